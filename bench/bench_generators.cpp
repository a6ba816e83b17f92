// Making puzzles; a Sudoku beside a library that makes them too.

#include "generators/SudokuMod.h"
#include "generators/clsWordSearch.h"

#include <qqwing.hpp>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

static void MakeASudoku(benchmark::State &state)
{
    for (auto _ : state) {
        MaakSudoku();
        benchmark::DoNotOptimize(SudokuOplossing);
    }
}
BENCHMARK(MakeASudoku)->Unit(benchmark::kMicrosecond);

/// A full grid too: an empty one, solved at random.
static void SudokuOfQQwing(benchmark::State &state)
{
    qqwing::SudokuBoard bord;
    std::array<int, 81> leeg{};
    for (auto _ : state)
        if (!bord.setPuzzle(leeg.data()) || !bord.solve())
            return state.SkipWithError("no Sudoku");
}
BENCHMARK(SudokuOfQQwing)->Unit(benchmark::kMicrosecond);

static void MakeAWordSearch(benchmark::State &state)
{
    clsWordSearch zoeker;
    zoeker.SetGridWidth(16);
    zoeker.SetGridHeight(19);
    const QString woorden =
        u"APPEL BOOM CITROEN DAKGOOT EZEL FIETSBEL GORDIJN HAAS INKTVIS JASMIJN KASTEEL LAMP MOLENWIEK NACHTEGAAL "
        "OLIFANT PAARD QUIZ REGENBOOG SCHIP TAFEL UILENNEST VLINDER WATERVAL ZOMER ARDENNEN BAKKERIJ CADEAU DUIF "
        "EIKENBLAD FORNUIS GANZENVEER HERFST IJSBEER JUWEEL KOMPAS LENTE MUZIEK NEVEL OCHTEND PEPERMUNT"_s;
    for (const QString &woord : woorden.split(u' '))
        zoeker.Words.Add(woord);
    double gevraagd = 0, overgeslagen = 0;
    zoeker.CannotFitWord = [&](const QString &, bool &gaDoor) {
        gaDoor = true;
        ++overgeslagen;
    };
    for (auto _ : state) {
        benchmark::DoNotOptimize(zoeker.Make());
        gevraagd += zoeker.Words.Count();
    }
    state.counters["placed"] = 1 - overgeslagen / gevraagd;
}
BENCHMARK(MakeAWordSearch)->Unit(benchmark::kMicrosecond);

BENCHMARK_MAIN();
