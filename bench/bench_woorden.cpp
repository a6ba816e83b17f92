// The word database and its searches beside the tools that one would take for them. Each of those runs as a process of
// its own, and writes what it finds to a file. What is compared is processor time: the machine may have other work too.

#include "platform/CodePage.h"
#include "platform/Files.h"
#include "support/Woorden.h"
#include "wordlib/Database.h"
#include "wordlib/Ontbrekend.h"
#include "wordlib/Wisseling.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <ctime>
#include <fcntl.h>
#include <random>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

using namespace Qt::StringLiterals;

constexpr qint32 DictionarySize = 200000; ///< words, the least that makes these figures worth something

static QString Map;

static QString Pad(const QString &naam)
{
    return Map + u'/' + naam;
}

// --- the other tools ---

/// Runs a program, its output to a file. @return the seconds of processor time that it took; 0 when it failed
static double Draai(std::initializer_list<QByteArray> opdracht)
{
    std::vector<char *> argumenten;
    for (const QByteArray &deel : opdracht)
        argumenten.push_back(const_cast<char *>(deel.constData()));
    argumenten.push_back(nullptr);
    const QByteArray uit = Pad(u"uit"_s).toLocal8Bit();
    posix_spawn_file_actions_t acties;
    posix_spawn_file_actions_init(&acties);
    posix_spawn_file_actions_addopen(&acties, 1, uit.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    pid_t kind = 0;
    int status = -1;
    rusage gebruik{};
    const bool gestart = posix_spawnp(&kind, argumenten[0], &acties, nullptr, argumenten.data(), environ) == 0;
    posix_spawn_file_actions_destroy(&acties);
    if (!gestart || wait4(kind, &status, 0, &gebruik) != kind || !WIFEXITED(status) || WEXITSTATUS(status) != 0)
        return 0;
    const auto seconden = [](timeval tijd) { return double(tijd.tv_sec) + double(tijd.tv_usec) / 1e6; };
    return seconden(gebruik.ru_utime) + seconden(gebruik.ru_stime);
}

static QByteArray Lijst(const char *naam)
{
    return Pad(QLatin1String(naam)).toLocal8Bit();
}

static void Meet(benchmark::State &state, std::initializer_list<QByteArray> opdracht)
{
    for (auto _ : state) {
        const double seconden = Draai(opdracht);
        if (seconden == 0)
            return state.SkipWithError("the tool failed");
        state.SetIterationTime(seconden);
    }
}

#define GEREEDSCHAP(naam, ...)                                                                                         \
    static void naam(benchmark::State &state)                                                                          \
    {                                                                                                                  \
        Meet(state, {__VA_ARGS__});                                                                                    \
    }                                                                                                                  \
    BENCHMARK(naam)->Unit(benchmark::kMillisecond)->UseManualTime()

GEREEDSCHAP(SortShuffled, "sort", "--parallel=1", Lijst("geschud.txt"));
GEREEDSCHAP(AnWords, "/usr/games/an", "-w", "-d", Lijst("woorden.txt"), "restlap");
GEREEDSCHAP(AnAnagrams, "/usr/games/an", "-l", "1", "-d", Lijst("woorden.txt"), "regelende");
GEREEDSCHAP(GrepBegin, "grep", "^ver", Lijst("woorden.txt"));
GEREEDSCHAP(GrepEnd, "grep", "ing$", Lijst("woorden.txt"));
GEREEDSCHAP(GrepKeyword, "grep", "straat", Lijst("woorden.txt"));
GEREEDSCHAP(GrepMissing, "grep", "-E", "^(ij|.)(ij|.)a(ij|.)(ij|.)(ij|.)en(ij|.)$", Lijst("woorden.txt"));

// --- ours ---

struct Database
{
    QByteArray Inhoud;
    Woorden Words;
    LetterIndex LetterStart{};
    std::vector<qint32> WordHash;

    explicit Database(const QString &pad) : Inhoud(Files::Lees(pad)), Words(LeesWoorden(Inhoud))
    {
        SortStrings(Words, false);
        BuildHashTable(Words, WordHash);
        MaakLetterIndex(Words, Gebied().Laatste, LetterStart);
    }
    Zoekgebied Gebied() const { return {Words, static_cast<qint32>(Words.size()) - 1}; }
};

/// Measures what gives true when it did its work.
static void Meet(benchmark::State &state, auto opdracht)
{
    for (auto _ : state) {
        const std::clock_t begin = std::clock();
        if (!opdracht())
            return state.SkipWithError("nothing was found");
        state.SetIterationTime(double(std::clock() - begin) / CLOCKS_PER_SEC);
    }
}

static void Laad(benchmark::State &state, const QString &naam)
{
    Meet(state, [pad = Pad(naam)] { return Database(pad).LetterStart[26] > 0; });
}

/// Collects what a search finds, as a list shows it.
static void Zoek(benchmark::State &state, auto zoek)
{
    Meet(state, [&] {
        QStringList gevonden;
        zoek([&](auto woord) { gevonden += Files::NaarTekst(QByteArrayView(woord.data(), std::ssize(woord))); });
        return !gevonden.isEmpty();
    });
}

static const Database &Geladen()
{
    static const Database database(Pad(u"nederlands.lib"_s));
    return database;
}

static QByteArray Gelezen()
{
    return Files::Lees(Pad(u"nederlands.lib"_s));
}

#define ONS(naam, opdracht)                                                                                            \
    static void naam(benchmark::State &state)                                                                          \
    {                                                                                                                  \
        opdracht;                                                                                                      \
    }                                                                                                                  \
    BENCHMARK(naam)->Unit(benchmark::kMillisecond)->UseManualTime()

ONS(LoadShuffled, Laad(state, u"geschud.lib"_s));
ONS(LoadInFileOrder, Laad(state, u"nederlands.lib"_s));
ONS(ZoekLetters,
    Zoek(state, [](auto vondst) { unscramble(Geladen().Gebied(), Geladen().LetterStart, "restlap??", 9, 0, vondst); }));
ONS(ZoekBegin, Zoek(state, [](auto vondst) { ZoekBegin(Geladen().Gebied(), "ver", vondst); }));
ONS(ZoekEind, Zoek(state, [](auto vondst) { ZoekEind(Geladen().Gebied(), "ing", vondst); }));
ONS(ZoekTrefwoord, Zoek(state, [](auto vondst) { ZoekTrefwoord(Gelezen(), "straat", vondst); }));
ONS(ZoekWisselingen, Zoek(state, [](auto vondst) { ZoekWisselingen(Gelezen(), "regelende", vondst); }));
ONS(ZoekOntbrekende, Zoek(state, [](auto vondst) { ZoekOntbrekende(Gelezen(), "--A---EN-", 9, vondst); }));

/// The list in the order of the dictionary and shuffled, each for us and, with line feeds, for the tools.
static bool SchrijfLijsten()
{
    const QByteArray woorden = EchteWoorden();
    QList<QByteArray> regels = woorden.split('\n');
    regels.removeLast();
    if (regels.size() < DictionarySize)
        return false;
    const auto schrijf = [](const QString &naam, QByteArray inhoud) {
        Files::Schrijf(Pad(naam + u".lib"_s), inhoud);
        Files::Schrijf(Pad(naam + u".txt"_s), inhoud.replace("\r\n", "\n"));
    };
    schrijf(u"nederlands"_s, woorden);
    QFile::rename(Pad(u"nederlands.txt"_s), Pad(u"woorden.txt"_s));
    std::shuffle(regels.begin(), regels.end(), std::mt19937(1));
    schrijf(u"geschud"_s, regels.join('\n') + '\n');
    return true;
}

int main(int argc, char *argv[])
{
    QTemporaryDir map;
    Map = map.path();
    qputenv("LC_ALL", "C");
    if (!SchrijfLijsten()) {
        qCritical("there is no word database " DATABASE);
        return 1;
    }
    Geladen(); // no search is to wait for it
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
