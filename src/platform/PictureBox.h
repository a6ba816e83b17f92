#pragma once

#include "platform/Canvas.h"

#include <QImage>
#include <QWidget>

/// The units of a PictureBox's coordinates.
enum class ScaleModes { Twips, Pixels };

/// A widget that keeps what is drawn on it, without a repaint handler. Its picture grows with it: growing shows what
/// was drawn there before, shrinking only hides it. Drawing outside the visible part is lost.
class PictureBox : public QWidget, public Canvas
{
    Q_OBJECT
public:
    explicit PictureBox(QWidget *ouder);

    ScaleModes ScaleMode = ScaleModes::Twips;
    QRgb BackColor = qRgb(255, 255, 255);
    bool AutoSize = false; ///< takes the size of each picture that is set

    /// Raises Fout::OngeldigeWaarde or Fout::GeheugenVol when no picture of this size, in twips, can be.
    static void ControleerMaat(double breedte, double hoogte);
    /// Width and height in twips. Raises what ControleerMaat raises, and nothing has changed then.
    void SetSize(double breedte, double hoogte);
    double Width() const;  ///< twips
    double Height() const; ///< twips

    void Line(double x1, double y1, double x2, double y2, QRgb kleur);    ///< draws both its end pixels
    void Box(double x1, double y1, double x2, double y2, QRgb kleur);     ///< outline, one pixel thick
    void BoxFull(double x1, double y1, double x2, double y2, QRgb kleur); ///< filled, both corner pixels included
    void Cls();

    /// Clears all and shows the picture from the top left, one pixel to the pixel.
    void SetPicture(const QImage &beeld);
    /// What is visible now. Shares its pixels with the box as long as the box is not drawn on.
    QImage Image() const;

    /// A pixel's colour; 0 (no colour at all) outside the visible part. In pixels, whatever the scale mode.
    QRgb GetPixel(int x, int y) const;
    void SetPixel(int x, int y, QRgb kleur);

signals:
    void MouseMove(double x, double y);                    ///< in twips, only over the box itself
    void MouseDown(Qt::MouseButton knop, QPoint opScherm); ///< where the pointer is on the screen, in pixels

protected:
    double EenheidPerPixel() const override;
    void MetPainter(const std::function<void(QPainter &)> &teken) override;
    void Plak(const QImage &bron, QRect deel, QPoint doel, PlakWijze wijze) override;
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    /// The picture, at least as large as the widget.
    QImage &Beeld();
    void Vul(QRect vlak, QRgb kleur);

    QImage beeld_;
    bool bewogen_ = false; ///< whether the pointer has ever moved over the box
};
