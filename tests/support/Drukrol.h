#pragma once

#include "platform/PagedCanvas.h"

#include <QColor>
#include <QHash>
#include <QImage>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QRectF>
#include <QStringList>

#include <functional>

/// Pages that only note what is done to them, in its order: each text with its place, its letter and its colour, each
/// picture with its name and its rectangle, each new page and the end. All in twips; texts as PdfLezer tells them.
///
///     "600,300 12 vet #00005a Puzzelnaam : reis"   in Arial; an empty text too
///     "Pic 600,900 9600x11400"                     the whole picture; "deel" behind it for a part
///     "blad", "einde"
class Drukrol : public PagedCanvas
{
public:
    static QString Tekst(int x, int y, double punten, bool vet, QRgb kleur, const QString &tekst)
    {
        return QStringLiteral("%1,%2 %3 %4%5 %6")
            .arg(x)
            .arg(y)
            .arg(punten)
            .arg(QLatin1String(vet ? "vet " : ""), QColor(kleur).name(), tekst);
    }
    static QString Beeld(const char *naam, int x, int y, int breedte, int hoogte)
    {
        return QStringLiteral("%1 %2,%3 %4x%5").arg(QLatin1String(naam)).arg(x).arg(y).arg(breedte).arg(hoogte);
    }

    /// The name of a picture that is to come.
    void Noem(const QImage &beeld, const char *naam) { namen_[beeld.cacheKey()] = naam; }

    QStringList Gedaan;
    std::function<void(int nummer)> Bij = [](int) {}; ///< run before each of these, counted from 0; it may raise

    /// What is printed on each page, without what is empty: the texts, and the pictures without their names.
    QList<QStringList> Teksten() const { return Paginas(true); }
    QList<QStringList> Beelden() const { return Paginas(false); }

    void NewPage() override { Noteer(QStringLiteral("blad")); }
    void EndDoc() override { Noteer(QStringLiteral("einde")); }
    void Cls() override { Noteer(QStringLiteral("gewist")); }

protected:
    QSize MaatInPixels() const override { return {11906, 16838}; }
    void MetPainter(const std::function<void(QPainter &)> &teken) override
    {
        Papier papier;
        {
            QPainter painter(&papier);
            teken(painter);
        }
        if (ScaleMode() != ScaleModes::Twips || FontName != QLatin1String("Arial"))
            return Noteer(QStringLiteral("not in twips, or in ") + FontName);
        Noteer(Tekst(qRound(CurrentX), qRound(CurrentY), FontSize, FontBold, ForeColor, papier.Inkt.Gelezen));
    }
    void Vul(QRect, QRgb) override { Noteer(QStringLiteral("vlak")); }
    void Plak(const QImage &bron, QRect deel, QRect doel, PlakWijze wijze) override
    {
        QString wat = Beeld(namen_.value(bron.cacheKey(), "?"), doel.x(), doel.y(), doel.width(), doel.height());
        if (deel != bron.rect())
            wat += QStringLiteral(" deel");
        if (wijze != PlakWijze::Kopie)
            wat += QStringLiteral(" en");
        Noteer(wat);
    }

private:
    /// Reads the texts that are drawn.
    class Lezer : public QPaintEngine
    {
    public:
        Lezer() : QPaintEngine(AllFeatures) {}
        bool begin(QPaintDevice *) override { return true; }
        bool end() override { return true; }
        void updateState(const QPaintEngineState &) override {}
        void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}
        void drawTextItem(const QPointF &, const QTextItem &item) override { Gelezen += item.text(); }
        Type type() const override { return User; }

        QString Gelezen;
    };
    class Papier : public QPaintDevice
    {
    public:
        QPaintEngine *paintEngine() const override { return &Inkt; }
        mutable Lezer Inkt;

    protected:
        int metric(PaintDeviceMetric wat) const override
        {
            switch (wat) {
            case PdmWidth:
                return 11906;
            case PdmHeight:
                return 16838;
            case PdmDpiX:
            case PdmDpiY:
            case PdmPhysicalDpiX:
            case PdmPhysicalDpiY:
                return 1440;
            case PdmDevicePixelRatio:
                return 1;
            case PdmDevicePixelRatioScaled:
                return int(devicePixelRatioFScale());
            default:
                return QPaintDevice::metric(wat);
            }
        }
    };

    QList<QStringList> Paginas(bool teksten) const
    {
        QList<QStringList> paginas{QStringList()};
        for (const QString &wat : Gedaan)
            if (wat == QLatin1String("blad"))
                paginas += QStringList();
            else if (!wat.endsWith(QLatin1Char(' ')) && wat != QLatin1String("einde") && wat[0].isDigit() == teksten)
                paginas.last() += teksten ? wat : wat.section(QLatin1Char(' '), 1);
        return paginas;
    }

    void Noteer(const QString &wat)
    {
        Bij(nummer_++);
        Gedaan += wat;
    }

    QHash<qint64, const char *> namen_;
    int nummer_ = 0;
};
