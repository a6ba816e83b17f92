#pragma once

#include "platform/Twips.h"

#include <QFont>
#include <QRgb>
#include <QString>

#include <functional>
#include <optional>

class QImage;
class QPainter;
class QPointF;
class QRect;
class QRectF;
class QSize;

/// The font of a name and a size in points: asked for in pixels (on the screen points x 96 / 72, rounded), smoothed in
/// grey, not hinted. "Arial" is Liberation Sans, "Arial Narrow" Liberation Sans Narrow, "Courier New" and "Fixedsys"
/// Liberation Mono.
/// @param perPixel how many twips a pixel is
QFont Lettertype(const QString &naam, double punten, bool vet, int perPixel = Twips::PerPixel);

/// How a picture is painted over what is there.
enum class PlakWijze {
    Kopie, ///< replaces it
    En,    ///< bitwise AND with it, so that white leaves what is there
};

/// The letter that is printed with. A part that is left out stays as it is.
struct Letter
{
    std::optional<QString> Naam = {};
    std::optional<double> Punten = {};
    std::optional<bool> Vet = {};
    std::optional<QRgb> Kleur = {};
};

/// The units of the coordinates of a surface.
enum class ScaleModes { User, Twips, Pixels };

/// The drawing that screen and paper share. Positions are in the units of the surface: twips unless it says otherwise.
/// They are rounded to whole pixels of the surface: 15 twips on the screen, a single one on paper.
class Canvas
{
public:
    /// @param twipsPerPixel how fine the surface is
    explicit Canvas(int twipsPerPixel = Twips::PerPixel);
    virtual ~Canvas();

    QString FontName = QStringLiteral("Arial");
    double FontSize = 8.25; ///< points
    bool FontBold = false;
    QRgb ForeColor = qRgb(0, 0, 0);
    double CurrentX = 0; ///< left edge of the text cell of the next Print
    double CurrentY = 0; ///< top edge of it

    void ZetLetter(const Letter &letter);

    /// Prints with the top left of the text cell at (CurrentX, CurrentY), then goes to the start of the next line.
    void Print(const QString &tekst);
    /// Prints a number, with a blank in the place of its sign when it is not negative.
    void Print(int getal);
    /// Prints with the top left of the text cell at (x, y).
    void PrintOp(double x, double y, const QString &tekst);
    void PrintOp(double x, double y, int getal);

    void Line(double x1, double y1, double x2, double y2, QRgb kleur);    ///< draws both its end pixels
    void Box(double x1, double y1, double x2, double y2, QRgb kleur);     ///< outline, one pixel thick
    void BoxFull(double x1, double y1, double x2, double y2, QRgb kleur); ///< filled, both corner pixels included
    virtual void Cls() = 0;                                               ///< wipes the surface

    /// Paints a part of a picture; what falls outside the surface or the picture is left out.
    /// @param doel where, in the units of the surface; a part of another size is stretched to it
    /// @param deel which part, in twips of 15 to the pixel of the picture
    void PaintPicture(const QImage &bron, const QRectF &doel, const QRectF &deel, PlakWijze wijze = PlakWijze::Kopie);

    double TextWidth(const QString &tekst) const;
    double TextHeight(const QString &tekst) const;

    /// From now on the surface is measured in twips or in pixels from its top left.
    void SetScaleMode(ScaleModes soort);
    /// From now on the surface is measured in units of one's own: its top left is (x1, y1), its bottom right (x2, y2).
    /// Raises Fout::OngeldigeWaarde when they lie on one line, or the surface is without a side.
    void Scale(double x1, double y1, double x2, double y2);
    ScaleModes ScaleMode() const { return soort_; }

protected:
    virtual QSize MaatInPixels() const = 0;
    /// The surface in pixels, as an open painter.
    virtual void MetPainter(const std::function<void(QPainter &)> &teken) = 0;
    virtual void Vul(QRect vlak, QRgb kleur) = 0;
    /// Paints a part of a picture, stretched to a place; both in pixels.
    virtual void Plak(const QImage &bron, QRect deel, QRect doel, PlakWijze wijze) = 0;

    /// The font of the settings above.
    const QFont &Font() const;

private:
    /// A place on the surface in whole pixels, rounded to the nearest.
    QPoint Pixel(double x, double y) const;

    int twipsPerPixel_;
    ScaleModes soort_ = ScaleModes::Twips;
    double links_ = 0, boven_ = 0; ///< the units at the left and the top edge
    double eenheidX_, eenheidY_;   ///< units to the pixel

    // The last font that was asked for, and what it was asked for: it is dearer to make than to print with.
    mutable QFont font_;
    mutable QString fontNaam_;
    mutable double fontPunten_ = 0;
    mutable bool fontVet_ = false;
};
