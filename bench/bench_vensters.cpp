// What a person waits for in the viewer of the large board, and in the windows of the word library on the installed
// words: from the order until the result is on the screen, without the waits that are part of the show. It takes the
// folder of the program.

#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "board/Raster.h"
#include "documents/ShowPuzzel.h"
#include "platform/Klok.h"
#include "platform/Uiterlijk.h"
#include "wordlib/ChemischForm.h"
#include "wordlib/KladblokForm.h"
#include "wordlib/SpreekwoordForm.h"
#include "wordlib/ZoekForm.h"

#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

static void Toon(QWidget &venster)
{
    venster.show();
    QCoreApplication::processEvents();
    venster.repaint();
}

static void OpenSearchWindow(benchmark::State &state)
{
    for (auto _ : state) {
        ZoekForm form;
        Toon(form);
    }
}
BENCHMARK(OpenSearchWindow)->Unit(benchmark::kMillisecond);

static void OpenProverbs(benchmark::State &state)
{
    for (auto _ : state) {
        SpreekwoordForm form;
        Toon(form);
        if (form.List1->ListCount() < 400)
            return state.SkipWithError("too few proverbs were read");
    }
}
BENCHMARK(OpenProverbs)->Unit(benchmark::kMillisecond);

static void OpenElements(benchmark::State &state)
{
    for (auto _ : state) {
        ChemischForm form;
        Toon(form);
        if (form.Combo1->count() != 118)
            return state.SkipWithError("not all elements were read");
    }
}
BENCHMARK(OpenElements)->Unit(benchmark::kMillisecond);

/// @param wijze index of the option
static void Search(benchmark::State &state, int wijze)
{
    ZoekForm form;
    Toon(form);
    form.Option1[wijze]->setChecked(true);
    for (auto _ : state) {
        form.Knop_Click();
        form.repaint();
        if (form.List1->ListCount() < 1000)
            return state.SkipWithError("too few words were found");
        state.PauseTiming();
        form.List1->Clear();
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
}

static void AllWords(benchmark::State &state)
{
    Search(state, 3);
}
BENCHMARK(AllWords)->Unit(benchmark::kMillisecond);

static void Vowels(benchmark::State &state)
{
    Search(state, 4);
}
BENCHMARK(Vowels)->Unit(benchmark::kMillisecond);

/// The folder of the program as it is here, with lists in a folder that may be written.
static void SaveNotepad(benchmark::State &state)
{
    const QTemporaryDir map;
    QDir(map.path()).mkdir(u"Woordlijsten"_s);
    const QString programma = std::exchange(AppPath, map.path());
    KladblokForm form;
    Toon(form);
    form.Text1->SetText(u"een notitie\n"_s.repeated(10'000));
    for (auto _ : state) {
        form.SaveKladblok(u"Lijst"_s);
        state.PauseTiming();
        if (!QFile::remove(map.path() + u"/Woordlijsten/Lijst.txt"_s))
            state.SkipWithError("no list was saved");
        state.ResumeTiming();
    }
    AppPath = programma;
}
BENCHMARK(SaveNotepad)->Unit(benchmark::kMillisecond);

static void KeyInNotepad(benchmark::State &state)
{
    KladblokForm form;
    Toon(form);
    form.Text1->SetText(
        (u"een regel van tachtig tekens in een kladblok dat heel veel van zulke regels bevat\n"_s).repeated(13'000));
    form.Text1->moveCursor(QTextCursor::End);
    form.repaint();
    for (auto _ : state) {
        QKeyEvent toets(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, u"a"_s);
        QCoreApplication::sendEvent(form.Text1, &toets);
        form.repaint();
    }
}
BENCHMARK(KeyInNotepad)->Unit(benchmark::kMillisecond)->Iterations(40); // the line stays one of some eighty signs

static void OpenViewerOfTheLargestBoard(benchmark::State &state)
{
    for (auto _ : state) {
        ShowPuzzel form;
        Toon(form);
    }
}
BENCHMARK(OpenViewerOfTheLargestBoard)->Unit(benchmark::kMillisecond);

static void CopyItsPicture(benchmark::State &state)
{
    const QImage beeld = Main().PicGroot->Image();
    for (auto _ : state)
        benchmark::DoNotOptimize(beeld.copy());
}
BENCHMARK(CopyItsPicture)->Unit(benchmark::kMillisecond);

static void DragStepInTheViewer(benchmark::State &state)
{
    ShowPuzzel form;
    Toon(form);
    form.SlidePic_MouseDown(0, 0);
    for (double weg = -30; auto _ : state) {
        form.SlidePic_MouseMove(Qt::LeftButton, weg, weg);
        form.repaint();
        if (form.NewTop == 0 || form.NewTop == -form.MaxY)
            weg = -weg;
    }
}
BENCHMARK(DragStepInTheViewer)->Unit(benchmark::kMillisecond);

int main(int argc, char *argv[])
{
    benchmark::Initialize(&argc, argv); // takes its own options out
    QApplication app(argc, argv);
    StelUiterlijkIn();
    AppPath = QString::fromLocal8Bit(argv[1]);
    DirecteKlok klok;
    Klok::Gebruik(&klok);
    MainForm main;
    BeginWaarden();
    TekenBord(BoardWidth, BoardHeight);
    Toon(main);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
