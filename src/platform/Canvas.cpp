#include "platform/Canvas.h"

#include "platform/Getallen.h"
#include "platform/Twips.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>

using namespace Qt::StringLiterals;

QFont Lettertype(const QString &naam, double punten, bool vet)
{
    static const struct
    {
        QLatin1String naam, familie;
    } Families[] = {
        {"Arial"_L1, "Liberation Sans"_L1},
        {"Arial Narrow"_L1, "Liberation Sans Narrow"_L1},
        {"Courier New"_L1, "Liberation Mono"_L1},
    };
    QFont font;
    font.setFamilies({naam});
    for (const auto &rij : Families)
        if (naam == rij.naam)
            font.setFamilies({rij.familie, naam});
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(punten * 96 / 72))));
    font.setBold(vet);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    return font;
}

Canvas::~Canvas() = default;

int Canvas::Pixels(double afstand) const
{
    return static_cast<int>(std::lround(afstand / EenheidPerPixel()));
}

const QFont &Canvas::Font() const
{
    if (fontNaam_ != FontName || fontPunten_ != FontSize || fontVet_ != FontBold) {
        font_ = Lettertype(FontName, FontSize, FontBold);
        fontNaam_ = FontName;
        fontPunten_ = FontSize;
        fontVet_ = FontBold;
    }
    return font_;
}

static double CellHeight(const QFontMetricsF &maten)
{
    return std::round(maten.ascent() + maten.descent());
}

void Canvas::Print(const QString &tekst)
{
    const QFontMetricsF maten(Font());
    const QPointF basislijn(Pixels(CurrentX), Pixels(CurrentY) + std::round(maten.ascent()));
    MetPainter([&](QPainter &painter) {
        painter.setFont(Font());
        painter.setPen(QColor(ForeColor));
        painter.drawText(basislijn, tekst);
    });
    CurrentX = 0;
    CurrentY += CellHeight(maten) * EenheidPerPixel();
}

void Canvas::Print(int getal)
{
    Print(Getallen::MetTeken(getal));
}

void Canvas::PaintPicture(const QImage &bron, double x, double y, double breedte, double hoogte, double bronX,
                          double bronY, PlakWijze wijze)
{
    const QRect deel(Twips::NaarPixels(bronX), Twips::NaarPixels(bronY), Twips::NaarPixels(breedte),
                     Twips::NaarPixels(hoogte));
    Plak(bron, deel, QPoint(Pixels(x), Pixels(y)), wijze);
}

double Canvas::TextWidth(const QString &tekst) const
{
    return QFontMetricsF(Font()).horizontalAdvance(tekst) * EenheidPerPixel();
}

double Canvas::TextHeight(const QString &tekst) const
{
    return CellHeight(QFontMetricsF(Font())) * EenheidPerPixel() * static_cast<double>(tekst.count(u'\n') + 1);
}
