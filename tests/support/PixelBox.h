#pragma once

#include "platform/PictureBox.h"
#include "support/Testbank.h"

/// A white box of so many pixels, whose coordinates are pixels.
class PixelBox : public PictureBox
{
public:
    explicit PixelBox(int breedte = 100, int hoogte = 60) : PictureBox(nullptr)
    {
        SetScaleMode(ScaleModes::Pixels);
        Maat(breedte, hoogte);
        Cls();
    }
    void Maat(int breedte, int hoogte) { SetSize(breedte * 15, hoogte * 15); }
    QRect Inkt() const { return InktVlak(Image(), rect()); }
    int Aantal(QRgb kleur) const
    {
        int aantal = 0;
        for (int y = 0; y < height(); ++y)
            for (int x = 0; x < width(); ++x)
                aantal += GetPixel(x, y) == kleur;
        return aantal;
    }
};

/// A picture without white or black of which no two pixels are alike.
inline QImage Bont(int breedte, int hoogte)
{
    QImage beeld(breedte, hoogte, QImage::Format_RGB32);
    for (int y = 0; y < hoogte; ++y)
        for (int x = 0; x < breedte; ++x)
            beeld.setPixel(x, y, qRgb(10 + x, 100 + y, 50));
    return beeld;
}
