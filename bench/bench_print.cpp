// Printing the sample puzzles to PDF files, beside the plainest program that puts the same pictures on as many pages;
// and what a row of a long list costs.
//
//   bench_print FOLDER   the program's folder, with the samples

#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "documents/OpenFile.h"
#include "platform/Berichten.h"
#include "platform/Klok.h"
#include "platform/Printer.h"
#include "platform/Uiterlijk.h"
#include "print/Drukwerk.h"
#include "print/PrintTaken.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

/// Says where the PDF file is to come.
class PadBerichten : public Berichten
{
public:
    QString VraagBestand(const QString &, const QString &, const QString &) override { return Pad; }
    QString Pad;
};

static PadBerichten berichten;

/// A picture, and where it stands on which page; in twips.
struct Plek
{
    int Pagina;
    QImage Beeld;
    QRect Doel;
};

struct Voorbeeld
{
    const PrintTaak *Taak;
    Drukwerk Werk;
    QList<Plek> Plekken;
    int Paginas;
};

static Voorbeeld Lees(int index)
{
    OpenFile open;
    open.List1->SetListIndex(index);
    open.OkKnop_Click();
    const Drukwerk werk{.PuzzelNaam = PuzzelNaam,
                        .BoardWidth = BoardWidth,
                        .BoardHeight = BoardHeight,
                        .Rijen = Main().Rijen(),
                        .Pic = Main().Pic->Image().copy(),
                        .PicGroot = Main().PicGroot->Image().copy(),
                        .PaginaTekst = PaginaTekst,
                        .MetTijd = true,
                        .Oplossing = true};
    const auto bord = [&](int cel, int boven = 900) { return QRect(600, boven, BoardWidth * cel, BoardHeight * cel); };
    Voorbeeld voorbeeld{PrintTaakVan(PuzzelType), werk, {}, 1};
    switch (PuzzelType) {
    case Zweeds:
        voorbeeld.Plekken = {{0, werk.Pic, bord(600)}, {1, werk.PicGroot, QRect(600, 600, 10200, 14400)}};
        voorbeeld.Paginas = 3;
        break;
    case Woordzoeker:
        voorbeeld.Plekken = {{0, werk.Pic, bord(600)}};
        break;
    case Kruiswoord:
        voorbeeld.Plekken = {{0, werk.PicGroot, bord(600)}};
        voorbeeld.Paginas = 2;
        break;
    case Sudoku:
        voorbeeld.Plekken = {{0, werk.Pic, bord(750)}, {0, werk.PicGroot, bord(750, 8400)}};
        break;
    default:
        voorbeeld.Plekken = {{0, werk.Pic, bord(450)}};
    }
    return voorbeeld;
}

static void Druk(const Voorbeeld &voorbeeld)
{
    Printer printer({});
    voorbeeld.Taak->Druk(printer, voorbeeld.Werk);
}

static void PrintSample(benchmark::State &state, const Voorbeeld &voorbeeld)
{
    for (auto _ : state) {
        Druk(voorbeeld);
    }
    state.counters["size"] = static_cast<double>(QFileInfo(berichten.Pad).size());
}

static void SchrijfPlat(QFile &bestand, const Voorbeeld &voorbeeld)
{
    QPdfWriter pdf(&bestand);
    pdf.setPageSize(QPageSize(QPageSize::A4));
    pdf.setResolution(1440);
    QPainter painter(&pdf);
    painter.setRenderHint(QPainter::LosslessImageRendering);
    int pagina = 0;
    const auto tot = [&](int waar) {
        for (; pagina < waar; ++pagina)
            pdf.newPage();
    };
    for (const Plek &plek : voorbeeld.Plekken) {
        tot(plek.Pagina);
        painter.drawImage(plek.Doel, plek.Beeld);
    }
    tot(voorbeeld.Paginas - 1);
}

/// The pictures without loss and brought to the disk, as ours are.
static void PlainPages(benchmark::State &state, const Voorbeeld &voorbeeld)
{
    for (auto _ : state) {
        QFile bestand(berichten.Pad);
        if (!bestand.open(QIODevice::WriteOnly))
            return state.SkipWithError("cannot write");
        SchrijfPlat(bestand, voorbeeld);
        if (!bestand.flush() || fsync(bestand.handle()) != 0)
            return state.SkipWithError("cannot write");
    }
    state.counters["size"] = static_cast<double>(QFileInfo(berichten.Pad).size());
}

static void ZweedsOf5000Rows(benchmark::State &state, Voorbeeld voorbeeld)
{
    voorbeeld.Werk.Rijen.clear();
    for (int i = 0; i < 5000; ++i)
        voorbeeld.Werk.Rijen += Rij{u"C-07 / %1-H"_s.arg(i), u"omschrijving van %1"_s.arg(i), u"woord"_s, u"-"_s};
    for (auto _ : state) {
        Druk(voorbeeld);
    }
}

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    StelUiterlijkIn();
    benchmark::Initialize(&argc, argv);
    if (argc != 2)
        return 2;
    QTemporaryDir map;
    berichten.Pad = map.path() + u"/druk.pdf"_s;
    Berichten::Gebruik(&berichten);
    DirecteKlok klok;
    Klok::Gebruik(&klok);
    MainForm main;
    BeginWaarden();
    AppPath = QString::fromLocal8Bit(argv[1]);
    const int aantal = OpenFile().List1->ListCount();
    for (int index = 0; index < aantal; ++index) {
        const Voorbeeld voorbeeld = Lees(index);
        const std::string naam = voorbeeld.Werk.PuzzelNaam.toStdString();
        const auto meld = [](const std::string &wat, auto meet, const Voorbeeld &wie) {
            benchmark::RegisterBenchmark(wat.c_str(), meet, wie)->Unit(benchmark::kMillisecond);
        };
        meld("PrintSample/" + naam, PrintSample, voorbeeld);
        meld("PlainPages/" + naam, PlainPages, voorbeeld);
        if (voorbeeld.Taak == PrintTaakVan(Zweeds))
            benchmark::RegisterBenchmark("ZweedsOf5000Rows", ZweedsOf5000Rows, voorbeeld)
                ->Unit(benchmark::kMillisecond);
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
