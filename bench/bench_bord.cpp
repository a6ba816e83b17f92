// Drawing and saving beside the least that such work could cost; and what a person waits for when a Sudoku is shuffled
// or the raster of a Filippine is wiped.

#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "board/Raster.h"
#include "documents/HtmlExport.h"
#include "documents/SaveForm.h"
#include "editors/Filippine.h"
#include "generators/SudokuSpel.h"
#include "platform/Berichten.h"
#include "platform/Klok.h"
#include "platform/Uiterlijk.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

static void DrawBothBoards(benchmark::State &state)
{
    for (auto _ : state) {
        TekenBord(16, 19);
    }
}
BENCHMARK(DrawBothBoards)->Unit(benchmark::kMicrosecond);

static void FillBothPictures(benchmark::State &state)
{
    QImage pic = Main().Pic->Image().copy(), groot = Main().PicGroot->Image().copy();
    for (auto _ : state) {
        pic.fill(Qt::white);
        groot.fill(Qt::white);
        benchmark::DoNotOptimize(groot.constBits());
    }
}
BENCHMARK(FillBothPictures)->Unit(benchmark::kMicrosecond);

/// Says yes to overwriting.
class JaBerichten : public Berichten
{
public:
    Antwoord Vraag(const QString &, Knoppen, Icoon, const QString &) override { return Antwoord::Ja; }
};

static QStringList Bestanden(const QString &map)
{
    return {map + u"/Puzzels/Proef.lst"_s, map + u"/Puzzels/Proef1.bmp"_s, map + u"/Puzzels/Proef2.bmp"_s,
            map + u"/Pictures/Proef.jpg"_s};
}

static void WholeSaveWithoutItsWaits(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        for (const QString &pad : Bestanden(AppPath))
            QFile::remove(pad);
        SaveForm form;
        QString naam = u"Proef"_s;
        state.ResumeTiming();
        form.OpslaanPuzzel(naam);
    }
}
BENCHMARK(WholeSaveWithoutItsWaits)->Unit(benchmark::kMillisecond)->MinTime(2);

/// The contents of files; empty when one isn't there.
static QList<QByteArray> Inhouden(const QStringList &paden)
{
    QList<QByteArray> inhouden;
    for (const QString &pad : paden) {
        QFile bestand(pad);
        if (!bestand.open(QIODevice::ReadOnly))
            return {};
        inhouden += bestand.readAll();
    }
    return inhouden;
}

/// Writes these to new files, each brought to the disk.
static void SchrijfNieuw(benchmark::State &state, const QList<QByteArray> &inhouden)
{
    if (inhouden.isEmpty())
        return state.SkipWithError("nothing was written before");
    const QString map = AppPath + u"/nieuw"_s;
    for (auto _ : state) {
        state.PauseTiming();
        QDir(map).removeRecursively();
        QDir().mkpath(map);
        state.ResumeTiming();
        for (qsizetype i = 0; i < inhouden.size(); ++i) {
            QFile bestand(map + u'/' + QString::number(i));
            if (!bestand.open(QIODevice::WriteOnly) || bestand.write(inhouden[i]) != inhouden[i].size() ||
                !bestand.flush() || fsync(bestand.handle()) != 0)
                return state.SkipWithError("cannot write");
        }
    }
}

/// The bytes that a save writes, the bitmap in between among them.
static void WriteTheSameBytes(benchmark::State &state)
{
    QList<QByteArray> inhouden = Inhouden(Bestanden(AppPath));
    if (!inhouden.isEmpty())
        inhouden += inhouden[2];
    SchrijfNieuw(state, inhouden);
}
BENCHMARK(WriteTheSameBytes)->Unit(benchmark::kMillisecond)->MinTime(2);

static const QString Pagina = u"Proef"_s;

/// Of a crossword with a row for each of a hundred words.
static void WebPageWithoutItsWait(benchmark::State &state)
{
    PuzzelType = Kruiswoord;
    Main().WisRijen();
    Main().VoegRijenToe(
        QList<Rij>(100, {u"C-05 / 43-H"_s, u"een omschrijving van gewone lengte"_s, u"oplossing"_s, u"12"_s}));
    for (auto _ : state) {
        state.PauseTiming();
        QDir(HtmlMap()).removeRecursively();
        state.ResumeTiming();
        SchrijfHtml(Pagina);
    }
}
BENCHMARK(WebPageWithoutItsWait)->Unit(benchmark::kMillisecond)->MinTime(2);

static void WriteTheBytesOfThePage(benchmark::State &state)
{
    SchrijfNieuw(state, Inhouden({HtmlMap() + u'/' + Pagina + u".html"_s, HtmlBeeldMap() + u'/' + Pagina + u".bmp"_s}));
}
BENCHMARK(WriteTheBytesOfThePage)->Unit(benchmark::kMillisecond)->MinTime(2);

static void ShuffleASudokuUntilItIsPainted(benchmark::State &state)
{
    PuzzelType = Sudoku;
    BoardWidth = BoardHeight = 9;
    TekenBord(BoardWidth, BoardHeight);
    Main().ToonPuzzel(u"Raster Atelier"_s);
    Main().show();
    QCoreApplication::processEvents();
    for (auto _ : state) {
        StartKnop_Click();
        Main().repaint();
    }
}
BENCHMARK(ShuffleASudokuUntilItIsPainted)->Unit(benchmark::kMillisecond);

/// Wipes the largest board of a Filippine, drawn anew each time.
static void WipeTheRaster(benchmark::State &state, bool getoond)
{
    PuzzelType = Filippine;
    BoardWidth = 16;
    BoardHeight = 19;
    TekenBord(BoardWidth, BoardHeight);
    Main().setVisible(getoond);
    PictureBox &pic = *Main().Pic;
    const QImage raster = pic.Image();
    for (auto _ : state) {
        state.PauseTiming();
        pic.SetPicture(raster);
        QCoreApplication::processEvents();
        state.ResumeTiming();
        VerwijderRaster(pic);
    }
    if (pic.GetPixel(480, 570) != qRgb(255, 255, 255))
        state.SkipWithError("the raster is still there");
}

static void WipeTheRasterUnseen(benchmark::State &state)
{
    WipeTheRaster(state, false);
}
BENCHMARK(WipeTheRasterUnseen)->Unit(benchmark::kMillisecond);

static void WipeTheRasterColumnByColumn(benchmark::State &state)
{
    WipeTheRaster(state, true);
}
BENCHMARK(WipeTheRasterColumnByColumn)->Unit(benchmark::kMillisecond);

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    StelUiterlijkIn();
    QTemporaryDir map;
    AppPath = map.path();
    for (const char *naam : {"/Puzzels", "/Pictures"})
        QDir().mkpath(AppPath + QLatin1String(naam));
    qputenv("HOME", AppPath.toLocal8Bit());
    DirecteKlok klok;
    Klok::Gebruik(&klok);
    JaBerichten berichten;
    Berichten::Gebruik(&berichten);
    MainForm main;
    BeginWaarden();
    TekenBord(BoardWidth, BoardHeight);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
