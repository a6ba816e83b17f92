#pragma once

#include "platform/Canvas.h"

#include <QImage>
#include <QWidget>

/// A widget that keeps what is drawn on it, without a repaint handler. Its picture grows with it: growing shows what
/// was drawn there before, shrinking only hides it. Drawing outside the visible part is lost.
class PictureBox : public QWidget, public Canvas
{
    Q_OBJECT
public:
    explicit PictureBox(QWidget *ouder);

    QRgb BackColor = qRgb(255, 255, 255);
    bool AutoSize = false; ///< takes the size of each picture that is set

    /// Raises Fout::OngeldigeWaarde or Fout::GeheugenVol when the box cannot have this size, in twips: what it holds
    /// then, its hidden part included, would be too large a picture.
    void ControleerMaat(double breedte, double hoogte) const;
    /// Width and height in twips. Raises what ControleerMaat raises, and nothing has changed then.
    void SetSize(double breedte, double hoogte);
    double Width() const;  ///< twips
    double Height() const; ///< twips

    void Cls() override; ///< wipes the hidden part too

    /// Clears all and shows the picture from the top left, one pixel to the pixel. A box with AutoSize shares the
    /// pixels with the picture as long as it is not drawn on.
    void SetPicture(const QImage &beeld);
    /// Covers all that is visible with a tile, at every `stap` pixels from the top left: 1 to the tile's own side,
    /// where less lets each tile lie over the edge of the one before. What is hidden may be wiped. Raises
    /// Fout::GeheugenVol.
    void Betegel(const QImage &tegel, int stap);
    /// What is visible now; a null picture of a box without a side. Shares its pixels with the box as long as the box
    /// is not drawn on.
    QImage Image() const;

    /// A pixel's colour; 0 (no colour at all) outside the visible part. In pixels, whatever the scale.
    QRgb GetPixel(int x, int y) const;
    void SetPixel(int x, int y, QRgb kleur);

signals:
    void MouseMove(double x, double y);                    ///< in twips, only over the box itself
    void MouseDown(Qt::MouseButton knop, QPoint opScherm); ///< where the pointer is on the screen, in pixels
    void DragStart(double x, double y);                    ///< a button goes down on the box, at this place in twips
    /// The pointer moves while it holds buttons that went down on the box, at this place in twips: beside it too.
    void Drag(Qt::MouseButtons knoppen, double x, double y);

protected:
    QSize MaatInPixels() const override;
    void MetPainter(const std::function<void(QPainter &)> &teken) override;
    void Vul(QRect vlak, QRgb kleur) override;
    void Plak(const QImage &bron, QRect deel, QRect doel, PlakWijze wijze) override;
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    /// The picture, at least as large as the widget. It is made when it is first asked for.
    QImage &Beeld() const;
    void MeldPlaats(QPoint plaats);

    mutable QImage beeld_;
    bool bewogen_ = false; ///< whether the pointer has ever moved over the box
};
