// Every search of the real list of words beside the plain one, with hundreds of keys that are made of its words.

#include "board/Woordlijst.h"
#include "platform/CodePage.h"
#include "support/Testbank.h"
#include "support/Woorden.h"
#include "wordlib/Database.h"
#include "wordlib/Ontbrekend.h"
#include "wordlib/Tegenproef.h"
#include "wordlib/Wisseling.h"

#include <random>
#include <set>

using Tegenproef::Lijst;

class tst_EchteWoorden : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void theListIsSortedAndIndexed();
    void everyWordIsInTheTable();
    void wordsOfLetters();
    void wordsByTheirBegin();
    void wordsByTheirEnd();
    void wordsThatContainAKey();
    void wordsWithThreeVowelsInARow();
    void wordsByTheirLength();
    void wordsOfTheSameLetters();
    void wordsWithMissingLetters();
    void wordsOfSoManyCells();

private:
    /// A word of the list; some of its letters are exchanged for the wildcard, or for any other letter.
    std::string Key(size_t meeste, int wildcards);
    std::string Woord(size_t meeste) { return Words_[toeval_() % Words_.size()].substr(0, meeste); }
    Zoekgebied Gebied() const { return {Woorden_, static_cast<qint32>(Woorden_.size()) - 1}; }
    template <class Zoek> Lijst Vind(Zoek zoek);

    std::mt19937 toeval_{1};
    QByteArray inhoud_;
    Woorden Woorden_;
    LetterIndex LetterStart_{};
    std::vector<qint32> Tabel_;
    Lijst Regels_, Words_; ///< plainly
};

/// What a search finds, in its order.
template <class Zoek> Lijst tst_EchteWoorden::Vind(Zoek zoek)
{
    Lijst gevonden;
    zoek([&](auto woord) { gevonden.emplace_back(woord.data(), static_cast<size_t>(woord.size())); });
    return gevonden;
}

std::string tst_EchteWoorden::Key(size_t meeste, int wildcards)
{
    std::string key = Woord(meeste);
    for (; wildcards > 0; --wildcards)
        key[toeval_() % key.size()] = '?';
    if (toeval_() % 8 == 0)
        key[toeval_() % key.size()] = static_cast<char>('a' + toeval_() % 26);
    return key;
}

void tst_EchteWoorden::initTestCase()
{
    inhoud_ = EchteWoorden();
    QVERIFY2(inhoud_.size() > 4000000, "there is no word database " DATABASE);
    Woorden_ = LeesWoorden(inhoud_);
    SortStrings(Woorden_, false);
    BuildHashTable(Woorden_, Tabel_);
    MaakLetterIndex(Woorden_, Gebied().Laatste, LetterStart_);
    Regels_ = Tegenproef::Regels(inhoud_.toStdString());
    Words_ = Tegenproef::Words(inhoud_.toStdString());
}

void tst_EchteWoorden::theListIsSortedAndIndexed()
{
    QVERIFY(Words_.size() > 300000);
    QVERIFY(std::equal(Woorden_.begin(), Woorden_.end(), Words_.begin(), Words_.end(),
                       [](auto &a, auto &b) { return a.Tekst == b; }));
    for (size_t n = 1; n <= 26; ++n) {
        const auto eerste =
            std::lower_bound(Words_.begin(), Words_.end(), std::string(1, static_cast<char>('a' + n - 1)));
        QCOMPARE(LetterStart_[n], static_cast<qint32>(eerste - Words_.begin()));
    }
}

void tst_EchteWoorden::everyWordIsInTheTable()
{
    std::vector<qint32> verwacht(4 * Words_.size(), LeegVak);
    for (size_t i = 0; i < Words_.size(); ++i) {
        auto plaats = static_cast<size_t>(HashString(Words_[i], -1)) % verwacht.size();
        while (verwacht[plaats] != LeegVak)
            plaats = (plaats + 1) % verwacht.size();
        verwacht[plaats] = static_cast<qint32>(i);
    }
    QVERIFY(Tabel_ == verwacht);
}

/// The words that can be made of the letters, but for the first word of each group that is jumped to: from a group
/// that has a word to try, of which the first letter is not to be had.
static Lijst TeMaken(const Lijst &words, const std::string &key)
{
    std::set<char> springers;
    Lijst gevonden;
    char vorige = 0;
    for (const std::string &woord : words) {
        const bool eerste = woord[0] != vorige;
        vorige = woord[0];
        if (eerste && springers.contains(static_cast<char>(woord[0] - 1)))
            continue;
        if (woord.size() <= key.size() && !Tegenproef::IsTeMaken(woord.substr(0, 1), key))
            springers.insert(woord[0]);
        if (woord.size() <= key.size() && Tegenproef::IsTeMaken(woord, key))
            gevonden.push_back(woord);
    }
    return gevonden;
}

void tst_EchteWoorden::wordsOfLetters()
{
    size_t raak = 0, overgeslagen = 0;
    for (int ronde = 0; ronde < 60; ++ronde) {
        const std::string key = Key(2 + toeval_() % 18, ronde % 4);
        const Lijst gevonden = Vind([&](const Vondst &v) {
            unscramble(Gebied(), LetterStart_, key, static_cast<qsizetype>(key.size()), 0, v);
        });
        QVERIFY2(gevonden == TeMaken(Words_, key), key.c_str());
        if (ronde < 10)
            QVERIFY2(gevonden == Tegenproef::Letters(Words_, Tegenproef::LetterStarts(Words_), key, key.size(), 0),
                     key.c_str());
        const auto alle = std::count_if(Words_.begin(), Words_.end(), [&](auto &woord) {
            return woord.size() <= key.size() && Tegenproef::IsTeMaken(woord, key);
        });
        raak += gevonden.size();
        overgeslagen += static_cast<size_t>(alle) - gevonden.size();
    }
    QVERIFY(raak > 1000);
    QVERIFY(overgeslagen > 0); // the first word of a letter goes missing, wanted so
}

void tst_EchteWoorden::wordsByTheirBegin()
{
    size_t raak = 0;
    for (int ronde = 0; ronde < 100; ++ronde) {
        const std::string key = Key(3 + toeval_() % 8, ronde % 3);
        const Lijst gevonden = Vind([&](const Vondst &v) { ZoekBegin(Gebied(), key, v); });
        QVERIFY2(gevonden == Tegenproef::Die(Words_, [&](auto &woord) { return Tegenproef::Begint(woord, key); }),
                 key.c_str());
        raak += gevonden.size();
    }
    QVERIFY(raak > 1000);
}

void tst_EchteWoorden::wordsByTheirEnd()
{
    size_t raak = 0;
    for (int ronde = 0; ronde < 60; ++ronde) {
        std::string key = Key(19, ronde % 3);
        key = key.substr(key.size() - std::min(key.size(), 1 + toeval_() % 8));
        const Lijst gevonden = Vind([&](const Vondst &v) { ZoekEind(Gebied(), key, v); });
        QVERIFY2(gevonden == Tegenproef::Die(Words_, [&](auto &woord) { return Tegenproef::Eindigt(woord, key); }),
                 key.c_str());
        raak += gevonden.size();
    }
    QVERIFY(raak > 1000);
}

void tst_EchteWoorden::wordsThatContainAKey()
{
    size_t raak = 0;
    for (int ronde = 0; ronde < 60; ++ronde) {
        const std::string woord = Woord(30);
        const size_t begin = toeval_() % woord.size();
        const std::string key = ronde % 10 == 0 ? Key(4, 1) : woord.substr(begin, 1 + toeval_() % 7);
        const Lijst gevonden = Vind([&](const Vondst &v) { ZoekTrefwoord(inhoud_, key, v); });
        QVERIFY2(gevonden ==
                     Tegenproef::Die(Regels_, [&](auto &regel) { return regel.find(key) != std::string::npos; }),
                 key.c_str());
        raak += gevonden.size();
    }
    QVERIFY(raak > 1000);
    QVERIFY(Vind([&](const Vondst &v) { ZoekTrefwoord(inhoud_, "", v); }) == Regels_);
}

void tst_EchteWoorden::wordsWithThreeVowelsInARow()
{
    const Lijst gevonden = Vind([&](const Vondst &v) { ZoekKlinkers(Gebied(), v); });
    const Lijst verwacht = Tegenproef::MetKlinkers(Words_);
    Lijst op = gevonden;
    std::sort(op.begin(), op.end());
    QVERIFY(op == verwacht);
    QVERIFY(std::is_sorted(gevonden.begin(), gevonden.end(), [](auto &a, auto &b) { return a.size() < b.size(); }));
    QVERIFY(std::set<std::string>(verwacht.begin(), verwacht.end()).size() < verwacht.size()); // duplicates, wanted so
    QVERIFY(verwacht.size() > 10000);
}

void tst_EchteWoorden::wordsByTheirLength()
{
    for (qint16 lengte = 0; lengte < 40; ++lengte)
        QVERIFY(Vind([&](const Vondst &v) { ZoekLengte(Gebied(), lengte, v); }) ==
                Tegenproef::Die(Words_, [&](auto &woord) { return woord.size() == static_cast<size_t>(lengte); }));
}

void tst_EchteWoorden::wordsOfTheSameLetters()
{
    size_t raak = 0;
    for (int ronde = 0; ronde < 60; ++ronde) {
        std::string key = Woord(9);
        if (ronde % 2 == 0) {
            do
                key = Woord(99);
            while (key.size() > 9);
            std::shuffle(key.begin(), key.end(), toeval_);
        }
        const Lijst gevonden = Vind([&](auto v) { ZoekWisselingen(inhoud_, key, v); });
        QVERIFY2(gevonden == Tegenproef::Wisselingen(Regels_, key), key.c_str());
        raak += gevonden.size();
    }
    QVERIFY(raak > 60);
}

void tst_EchteWoorden::wordsWithMissingLetters()
{
    const Lijst lines = Tegenproef::InHoofdletters(Regels_);
    size_t raak = 0;
    for (int ronde = 0; ronde < 40; ++ronde) {
        const std::string cellen = Tegenproef::Vervang(Woord(19), "ij", "?");
        std::string captions;
        for (const char cel : cellen) {
            if (toeval_() % 3 != 0)
                captions += '-';
            else
                captions += cel == '?' ? "IJ" : Tegenproef::Zet(std::string(1, cel), true);
        }
        if (ronde % 10 == 9)
            captions.replace(0, 2, "IJ"); // two cells that become one
        const auto pattern = QByteArray::fromStdString(captions);
        const Lijst gevonden =
            Vind([&](auto v) { ZoekOntbrekende(inhoud_, pattern, static_cast<qsizetype>(cellen.size()), v); });
        QVERIFY2(gevonden == Tegenproef::Ontbrekende(lines, captions, cellen.size()), captions.c_str());
        raak += gevonden.size();
    }
    QVERIFY(raak > 1000);
}

void tst_EchteWoorden::wordsOfSoManyCells()
{
    std::map<size_t, Lijst> gevonden = Tegenproef::Paneel(Regels_);
    for (size_t cellen = 2; cellen <= 19; ++cellen) {
        QStringList verwacht;
        for (const std::string &woord : gevonden[cellen])
            verwacht += Files::NaarTekst(QByteArrayView(woord.data(), std::ssize(woord)));
        QVERIFY(WoordenVanLengte(inhoud_, static_cast<qsizetype>(cellen)) == verwacht);
    }
}

RASTER_TEST(tst_EchteWoorden)
#include "tst_EchteWoorden.moc"
