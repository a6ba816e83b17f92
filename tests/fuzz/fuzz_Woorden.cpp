// The input's first line is the key, or the pattern, of the searches; the words stand behind it.

#include "Fuzz.h"

#include "board/Woordlijst.h"
#include "platform/CodePage.h"
#include "platform/Fout.h"
#include "platform/Teksten.h"
#include "platform/Velden.h"
#include "wordlib/Database.h"
#include "wordlib/Ontbrekend.h"
#include "wordlib/Tegenproef.h"
#include "wordlib/Wisseling.h"

using Tegenproef::Lijst;

/// What a search finds, in its order.
static Lijst Gevonden(auto zoek)
{
    Lijst gevonden;
    zoek([&](auto woord) { gevonden.emplace_back(woord.data(), static_cast<size_t>(woord.size())); });
    return gevonden;
}

static void LeesItems(QByteArrayView inhoud)
{
    Files::VeldLezer lezer(inhoud);
    qsizetype items = 0, bytes = 0;
    while (!lezer.Einde()) {
        const QByteArrayView item = lezer.Item();
        EIS(item.isEmpty() || (item.begin() >= inhoud.begin() && item.end() <= inhoud.end()));
        bytes += item.size();
        EIS(++items <= inhoud.size() && bytes <= inhoud.size());
    }
}

static void LaadEnZoek(const QByteArray &inhoud, const std::string &key)
{
    const Lijst words = Tegenproef::Words(inhoud.toStdString());
    const std::vector<int> starts = Tegenproef::LetterStarts(words);
    Woorden Words = LeesWoorden(inhoud);
    std::vector<qint32> tabel;
    LetterIndex index{};
    const bool geladen = negeer([&] {
        SortStrings(Words, false);
        BuildHashTable(Words, tabel);
        MaakLetterIndex(Words, static_cast<qint32>(Words.size()) - 1, index);
    });
    EIS(geladen == (!words.empty() && starts.size() <= index.size()));
    EIS(std::equal(Words.begin(), Words.end(), words.begin(), words.end(),
                   [](auto &a, auto &b) { return a.Tekst == b; }));
    EIS(std::count(tabel.begin(), tabel.end(), LeegVak) == 3 * std::ssize(words));

    const Zoekgebied gebied{Words, static_cast<qint32>(Words.size()) - 1};
    const auto N = static_cast<qsizetype>(key.size());
    EIS(Gevonden([&](auto v) { unscramble(gebied, index, key, N, 2, v); }) ==
        Tegenproef::Letters(words, starts, key, key.size(), 2));
    EIS(Gevonden([&](auto v) { ZoekBegin(gebied, key, v); }) ==
        Tegenproef::Die(words, [&](auto &w) { return Tegenproef::Begint(w, key); }));
    EIS(Gevonden([&](auto v) { ZoekEind(gebied, key, v); }) ==
        Tegenproef::Die(words, [&](auto &w) { return Tegenproef::Eindigt(w, key); }));
    EIS(Gevonden([&](auto v) { ZoekKlinkers(gebied, v); }) == Tegenproef::OpLengte(Tegenproef::MetKlinkers(words)));
    negeer([&] { // it ends beyond the words
        ZoekLengte({Words, gebied.Laatste + 1}, static_cast<qint16>(N), [&](auto w) { EIS(std::ssize(w) == N); });
        EIS(false);
    });
}

static void ZoekRegels(const QByteArray &inhoud, const std::string &key)
{
    const Lijst regels = Tegenproef::Regels(inhoud.toStdString());
    const QByteArray alsBytes = QByteArray::fromStdString(key), pattern = Hoofdletters(alsBytes);
    EIS(Gevonden([&](auto v) { ZoekTrefwoord(inhoud, alsBytes, v); }) == Tegenproef::Trefwoord(regels, key));
    if (!key.empty())
        EIS(Gevonden([&](auto v) { ZoekWisselingen(inhoud, alsBytes, v); }) == Tegenproef::Wisselingen(regels, key));
    const qsizetype cellen = pattern.size() - pattern.count("IJ");
    EIS(Gevonden([&](auto v) { ZoekOntbrekende(inhoud, pattern, cellen, v); }) ==
        Tegenproef::Ontbrekende(Tegenproef::InHoofdletters(regels), pattern.toStdString(),
                                static_cast<size_t>(cellen)));
    QStringList paneel;
    std::map<size_t, Tegenproef::Lijst> inCellen = Tegenproef::Paneel(regels);
    for (const std::string &woord : inCellen[key.size()])
        paneel += Files::NaarTekst(QByteArray::fromStdString(woord));
    EIS(WoordenVanLengte(inhoud, std::ssize(key)) == paneel);
}

static void LeesEnSchrijfLijst(const QByteArray &inhoud)
{
    QStringList woorden = LeesWoordlijst(inhoud);
    for (QString &woord : woorden)
        woord = Hoofdletters(woord);
    const bool blijft = std::all_of(woorden.begin(), woorden.end(), [](const QString &woord) {
        return woord == woord.trimmed() && !woord.startsWith(u'"') &&
               std::none_of(woord.begin(), woord.end(), [](QChar c) { return c == u',' || c == u'\r' || c == u'\n'; });
    });
    const QByteArray geschreven = SchrijfWoordlijst(woorden);
    EIS(geschreven.count("\r\n") >= woorden.size());
    EIS(!blijft || LeesWoordlijst(geschreven) == woorden);
}

void Probeer(const QByteArray &inhoud)
{
    const qsizetype eersteRegel = std::max(inhoud.indexOf('\n'), qsizetype{0});
    const std::string key = inhoud.first(eersteRegel).toStdString();
    const QByteArray woorden = QByteArray::fromRawData(inhoud.data() + eersteRegel, inhoud.size() - eersteRegel);
    LeesItems(woorden);
    LaadEnZoek(woorden, key);
    ZoekRegels(woorden, key);
    LeesEnSchrijfLijst(woorden);
}
