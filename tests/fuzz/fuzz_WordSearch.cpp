// The input is the file of a word search.

#include "Fuzz.h"

#include "generators/clsWordSearch.h"
#include "platform/Files.h"
#include "platform/Fout.h"

#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include <algorithm>

using namespace Qt::StringLiterals;

static constexpr int MeesteVakken = 400; // to be drawn: more cost time
static constexpr auto Eigen = static_cast<qint32>(0x80040000);

class Beeld : public Canvas
{
public:
    void Cls() override { beeld_.fill(Qt::white); }

protected:
    QSize MaatInPixels() const override { return beeld_.size(); }
    void MetPainter(const std::function<void(QPainter &)> &teken) override
    {
        QPainter painter(&beeld_);
        teken(painter);
    }
    void Vul(QRect vlak, QRgb kleur) override { QPainter(&beeld_).fillRect(vlak, QColor(kleur)); }
    void Plak(const QImage &, QRect, QRect, PlakWijze) override {}

private:
    QImage beeld_{200, 200, QImage::Format_RGB32};
};

/// Reads a file, and fails as it may. @return whether it was read, up to the drawing: without a canvas it ends there
static bool Laad(clsWordSearch &zoeker, const QString &pad)
{
    try {
        zoeker.Load(pad);
    } catch (const Fout &fout) {
        const auto mag = {qint32{Fout::EindeBestand},
                          qint32{Fout::TypeOnjuist},
                          qint32{Fout::Overloop},
                          Eigen + 1,
                          Eigen + 2,
                          Eigen + 4};
        EIS(std::count(mag.begin(), mag.end(), fout.nummer()) == 1);
        return fout.nummer() == Eigen + 4;
    }
    qFatal("drawn without a canvas");
}

/// Saved and read again it is the same; one without a grid is not saved.
static void ControleerBewaren(clsWordSearch &zoeker, const QString &pad)
{
    QFile::remove(pad);
    zoeker.Save(pad);
    if (!QFile::exists(pad))
        return;
    const QByteArray bewaard = Files::Lees(pad);
    clsWordSearch weer;
    EIS(Laad(weer, pad));
    EIS(weer.SrchName == zoeker.SrchName && weer.GridWidth() == zoeker.GridWidth());
    EIS(weer.GridHeight() == zoeker.GridHeight() && weer.Words.Count() == zoeker.Words.Count());
    weer.Save(pad);
    EIS(Files::Lees(pad) == bewaard);
}

void Probeer(const QByteArray &inhoud)
{
    static const QTemporaryDir tijdelijk;
    static int aantal = 0;
    static const QGuiApplication app(aantal, nullptr); // letters need one
    const QString pad = tijdelijk.filePath(u"zoeker.txt"_s);
    QFile bestand(pad);
    EIS(bestand.open(QIODevice::WriteOnly) && bestand.write(inhoud) == inhoud.size());
    bestand.close();

    clsWordSearch zoeker;
    if (!Laad(zoeker, pad))
        return;
    const int vakken = zoeker.GridWidth() * zoeker.GridHeight();
    EIS(zoeker.GridWidth() >= 2 && zoeker.GridHeight() >= 2 && vakken <= 32767);
    EIS(zoeker.Words.Count() <= inhoud.size());
    ControleerBewaren(zoeker, pad);
    Beeld beeld;
    zoeker.Canvas = &beeld;
    if (vakken <= MeesteVakken)
        zoeker.Draw();
}
