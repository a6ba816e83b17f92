// What a person waits for in the windows of the word library, on the installed words: from the order until the result
// is on the screen, without the waits that are part of the show. It takes the folder of the program.

#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "platform/Klok.h"
#include "platform/Uiterlijk.h"
#include "wordlib/ZoekForm.h"

#include <QApplication>

#include <benchmark/benchmark.h>

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
    Toon(main);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
