#pragma once

#include <QFont>
#include <QRgb>
#include <QString>

#include <functional>

class QImage;
class QPainter;
class QPoint;
class QRect;

/// The font of a name and a size in points: asked for in pixels (points x 96 / 72, rounded), smoothed in grey, not
/// hinted. "Arial" is Liberation Sans, "Arial Narrow" Liberation Sans Narrow, "Courier New" Liberation Mono.
QFont Lettertype(const QString &naam, double punten, bool vet);

/// How a picture is painted over what is there.
enum class PlakWijze {
    Kopie, ///< replaces it
    En,    ///< bitwise AND with it, so that white leaves what is there
};

/// The drawing that screen and paper share. Positions are in the units of the surface; twips unless it says otherwise.
class Canvas
{
public:
    virtual ~Canvas();

    QString FontName = QStringLiteral("Arial");
    double FontSize = 8.25; ///< points
    bool FontBold = false;
    QRgb ForeColor = qRgb(0, 0, 0);
    double CurrentX = 0; ///< left edge of the text cell of the next Print
    double CurrentY = 0; ///< top edge of it

    /// Prints with the top left of the text cell at (CurrentX, CurrentY), then goes to the start of the next line.
    void Print(const QString &tekst);
    /// Prints a number, with a blank in the place of its sign when it is not negative.
    void Print(int getal);

    /// Paints a part of a picture; what falls outside the surface or the picture is left out. All in twips of 15 to the
    /// pixel of the picture; source and target are of one size.
    void PaintPicture(const QImage &bron, double x, double y, double breedte, double hoogte, double bronX, double bronY,
                      PlakWijze wijze);

    double TextWidth(const QString &tekst) const;
    double TextHeight(const QString &tekst) const;

protected:
    /// How many units of the surface make a pixel.
    virtual double EenheidPerPixel() const = 0;
    /// The surface in pixels, as an open painter.
    virtual void MetPainter(const std::function<void(QPainter &)> &teken) = 0;
    virtual void Plak(const QImage &bron, QRect deel, QPoint doel, PlakWijze wijze) = 0;

    /// The font of the three settings above.
    const QFont &Font() const;
    /// A distance on the surface to whole pixels, rounded to the nearest.
    int Pixels(double afstand) const;

private:
    // The last font that was asked for, and what it was asked for: it is dearer to make than to print with.
    mutable QFont font_;
    mutable QString fontNaam_;
    mutable double fontPunten_ = 0;
    mutable bool fontVet_ = false;
};
