#include "platform/Canvas.h"

#include "platform/Fout.h"
#include "platform/Getallen.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>

using namespace Qt::StringLiterals;

QFont Lettertype(const QString &naam, double punten, bool vet, int perPixel)
{
    static const struct
    {
        QLatin1String naam, familie;
    } Families[] = {
        {"Arial"_L1, "Liberation Sans"_L1},
        {"Arial Narrow"_L1, "Liberation Sans Narrow"_L1},
        {"Courier New"_L1, "Liberation Mono"_L1},
        {"Fixedsys"_L1, "Liberation Mono"_L1},
    };
    QFont font;
    font.setFamilies({naam});
    for (const auto &rij : Families)
        if (naam == rij.naam)
            font.setFamilies({rij.familie, naam});
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(punten * Twips::PerPunt / perPixel))));
    font.setBold(vet);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    return font;
}

Canvas::Canvas(int twipsPerPixel) : twipsPerPixel_(twipsPerPixel), eenheidX_(twipsPerPixel), eenheidY_(twipsPerPixel) {}

Canvas::~Canvas() = default;

// --- letters ---

void Canvas::ZetLetter(const Letter &letter)
{
    FontName = letter.Naam.value_or(FontName);
    FontSize = letter.Punten.value_or(FontSize);
    FontBold = letter.Vet.value_or(FontBold);
    ForeColor = letter.Kleur.value_or(ForeColor);
}

const QFont &Canvas::Font() const
{
    if (fontNaam_ != FontName || fontPunten_ != FontSize || fontVet_ != FontBold) {
        font_ = Lettertype(FontName, FontSize, FontBold, twipsPerPixel_);
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
    const QPointF basislijn = Pixel(CurrentX, CurrentY) + QPointF(0, std::round(maten.ascent()));
    MetPainter([&](QPainter &painter) {
        painter.setFont(Font());
        painter.setPen(QColor(ForeColor));
        painter.drawText(basislijn, tekst);
    });
    CurrentX = 0;
    CurrentY += CellHeight(maten) * eenheidY_;
}

void Canvas::Print(int getal)
{
    Print(Getallen::MetTeken(getal));
}

void Canvas::PrintOp(double x, double y, const QString &tekst)
{
    CurrentX = x;
    CurrentY = y;
    Print(tekst);
}

void Canvas::PrintOp(double x, double y, int getal)
{
    PrintOp(x, y, Getallen::MetTeken(getal));
}

double Canvas::TextWidth(const QString &tekst) const
{
    return QFontMetricsF(Font()).horizontalAdvance(tekst) * eenheidX_;
}

double Canvas::TextHeight(const QString &tekst) const
{
    return CellHeight(QFontMetricsF(Font())) * eenheidY_ * static_cast<double>(tekst.count(u'\n') + 1);
}

// --- lines and pictures ---

static QRect Rechthoek(QPoint van, QPoint tot)
{
    return QRect(QPoint(std::min(van.x(), tot.x()), std::min(van.y(), tot.y())),
                 QPoint(std::max(van.x(), tot.x()), std::max(van.y(), tot.y())));
}

void Canvas::Line(double x1, double y1, double x2, double y2, QRgb kleur)
{
    const QPoint van = Pixel(x1, y1), tot = Pixel(x2, y2);
    if (van.x() == tot.x() || van.y() == tot.y()) {
        Vul(Rechthoek(van, tot), kleur);
        return;
    }
    MetPainter([&](QPainter &painter) {
        painter.setPen(QColor(kleur));
        painter.drawLine(van, tot);
    });
}

void Canvas::Box(double x1, double y1, double x2, double y2, QRgb kleur)
{
    Line(x1, y1, x2, y1, kleur);
    Line(x2, y1, x2, y2, kleur);
    Line(x2, y2, x1, y2, kleur);
    Line(x1, y2, x1, y1, kleur);
}

void Canvas::BoxFull(double x1, double y1, double x2, double y2, QRgb kleur)
{
    Vul(Rechthoek(Pixel(x1, y1), Pixel(x2, y2)), kleur);
}

void Canvas::PaintPicture(const QImage &bron, const QRectF &doel, const QRectF &deel, PlakWijze wijze)
{
    const QRect van(Twips::NaarPixels(deel.x()), Twips::NaarPixels(deel.y()), Twips::NaarPixels(deel.width()),
                    Twips::NaarPixels(deel.height()));
    const QPoint plaats = Pixel(doel.x(), doel.y());
    const QSize maat(static_cast<int>(std::lround(doel.width() / eenheidX_)),
                     static_cast<int>(std::lround(doel.height() / eenheidY_)));
    Plak(bron, van, QRect(plaats, maat), wijze);
}

// --- units ---

QPoint Canvas::Pixel(double x, double y) const
{
    return {static_cast<int>(std::lround((x - links_) / eenheidX_)),
            static_cast<int>(std::lround((y - boven_) / eenheidY_))};
}

void Canvas::SetScaleMode(ScaleModes soort)
{
    soort_ = soort;
    links_ = boven_ = 0;
    eenheidX_ = eenheidY_ = soort == ScaleModes::Twips ? twipsPerPixel_ : 1;
}

void Canvas::Scale(double x1, double y1, double x2, double y2)
{
    const QSize maat = MaatInPixels();
    if (x1 == x2 || y1 == y2 || maat.isEmpty())
        throw Fout(Fout::OngeldigeWaarde, u"een schaal zonder oppervlak"_s);
    soort_ = ScaleModes::User;
    links_ = x1;
    boven_ = y1;
    eenheidX_ = (x2 - x1) / maat.width();
    eenheidY_ = (y2 - y1) / maat.height();
}
