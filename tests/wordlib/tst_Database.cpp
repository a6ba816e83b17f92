#include "platform/Teksten.h"
#include "support/Testbank.h"
#include "wordlib/Database.h"
#include "wordlib/Tegenproef.h"

#include <random>

using namespace Qt::StringLiterals;
using Tegenproef::Lijst;

class tst_Database : public QObject
{
    Q_OBJECT

private slots:
    void itemsOfTwoCharactersAndMoreAreWords_data();
    void itemsOfTwoCharactersAndMoreAreWords();
    void wordsLieInTheBytesOfTheFile();

    void theLetterIndexHasTheStartOfEachGroup();
    void theLetterIndexCountsChangesOfTheFirstLetter_data();
    void theLetterIndexCountsChangesOfTheFirstLetter();
    void aTwentySeventhGroupFails();
    void theLetterIndexEndsAtItsLastWord();

    void wordsOfLetters_data();
    void wordsOfLetters();
    void wordsOfLettersHaveALength();
    void theFirstWordBehindAJumpIsNotTried();
    void aZAndOtherCharactersDoNotJump();
    void aJumpThatDoesNotLeadForwardIsNotTaken();

    void wordsByTheirBegin_data();
    void wordsByTheirBegin();
    void wordsByTheirEnd_data();
    void wordsByTheirEnd();
    void wordsByTheirLength();
    void wordsWithThreeVowelsInARow();
    void wordsWithVowelsComeInTheOrderOfTheExchange();
    void manyWordsWithVowelsAreExchanged();
    void aSearchEndsAtItsLastWord();
    void aSearchBeyondTheWordsFails();

    void linesThatContainTheKey_data();
    void linesThatContainTheKey();

    void anyDatabaseIsLoadedAndSearched_data();
    void anyDatabaseIsLoadedAndSearched();
    void aHundredMebibytesAreLoadedAndSearched_data();
    void aHundredMebibytesAreLoadedAndSearched();
};

/// A file that is loaded as the dialog does it.
class Boek
{
public:
    explicit Boek(QByteArray inhoud) : Inhoud(std::move(inhoud)), Words(LeesWoorden(Inhoud))
    {
        LetterStart.fill(0);
        Fout_ = FoutVan([this] {
            SortStrings(Words, false);
            BuildHashTable(Words, WordHash);
            MaakLetterIndex(Words, Gebied().Laatste, LetterStart);
        });
    }

    Zoekgebied Gebied() const { return {Words, static_cast<qint32>(Words.size()) - 1}; }

    QByteArray Inhoud;
    Woorden Words;
    LetterIndex LetterStart;
    std::vector<qint32> WordHash;
    int Fout_; ///< of the load
};

static QByteArray Bytes(const QStringList &woorden)
{
    return woorden.join("\r\n").toLatin1() + "\r\n";
}

/// What a search finds, in its order.
template <class Zoek> Lijst Gevonden(Zoek zoek)
{
    Lijst gevonden;
    zoek([&](std::string_view woord) { gevonden.emplace_back(woord); });
    return gevonden;
}

static QByteArray Samen(const Lijst &woorden)
{
    QByteArrayList delen;
    for (const std::string &woord : woorden)
        delen += QByteArray::fromStdString(woord);
    return delen.join(' ');
}

static QByteArray MetLetters(const Boek &boek, std::string_view letters, qsizetype meeste, qsizetype minste = 0)
{
    return Samen(
        Gevonden([&](const Vondst &v) { unscramble(boek.Gebied(), boek.LetterStart, letters, meeste, minste, v); }));
}

/// Two words for each letter of the alphabet: "az" and "azz", "bz" and so on.
static QStringList TweePerLetter()
{
    QStringList woorden;
    for (char letter = 'a'; letter <= 'z'; ++letter)
        woorden << QString(QLatin1Char(letter)) + "z" << QString(QLatin1Char(letter)) + "zz";
    return woorden;
}

void tst_Database::itemsOfTwoCharactersAndMoreAreWords_data()
{
    QTest::addColumn<QByteArray>("inhoud");
    QTest::addColumn<QByteArray>("woorden");
    const auto rij = [](const char *naam, const QByteArray &inhoud, const char *woorden) {
        Geval(naam, inhoud, QByteArray(woorden));
    };
    rij("nothing", "", "");
    rij("lines, in their order", "noot\r\naap\r\nmies\r\n", "noot aap mies");
    rij("no end to the last line", "aap\r\nnoot", "aap noot");
    rij("one character is none", "a\r\naa\r\n\r\nb\r\nbb\r\nc", "aa bb");
    rij("a comma makes two words", "aap,noot\r\nmies", "aap noot mies");
    rij("of a comma one may be short", "x,noot\r\nmies,y", "noot mies");
    rij("quotes go", "\"aap\"\r\n\"noot\",mies", "aap noot mies");
    rij("blanks go", "  aap  \r\n   noot \r\n   x   \r\n", "aap noot");
    rij("blanks in quotes stay", "\"  \"\r\n", "  ");
    rij("other line ends", "aap\nnoot\rmies\n\rwim", "aap noot mies wim");
    rij("case and accents stay", "Aap\r\n\xE9\xE9n", "Aap \xE9\xE9n");
}

void tst_Database::itemsOfTwoCharactersAndMoreAreWords()
{
    QFETCH(QByteArray, inhoud);
    Lijst woorden;
    for (const Woord &woord : LeesWoorden(inhoud))
        woorden.emplace_back(woord.Tekst);
    QTEST(Samen(woorden), "woorden");
}

void tst_Database::wordsLieInTheBytesOfTheFile()
{
    const QByteArray inhoud = "aap, noot";
    const Woorden woorden = LeesWoorden(inhoud);
    QCOMPARE(woorden.size(), size_t{2});
    QCOMPARE(woorden[0].Tekst.data(), inhoud.data());
    QCOMPARE(woorden[1].Tekst.data(), inhoud.data() + 5);
}

void tst_Database::theLetterIndexHasTheStartOfEachGroup()
{
    const Boek boek(Bytes(TweePerLetter()));
    QCOMPARE(boek.Fout_, 0);
    for (size_t n = 1; n <= 26; ++n)
        QCOMPARE(boek.LetterStart[n], static_cast<qint32>(2 * (n - 1)));
}

void tst_Database::theLetterIndexCountsChangesOfTheFirstLetter_data()
{
    QTest::addColumn<QStringList>("woorden");
    QTest::addColumn<QList<int>>("starts"); // from 1 on; the others are 0
    Geval("no a", QStringList{"bb", "bc", "cc"}, QList<int>{0, 0, 2});
    Geval("a letter is missing", QStringList{"aa", "ab", "dd", "zz"}, QList<int>{0, 2, 3});
    Geval("only a", QStringList{"aa", "ab"}, QList<int>{0});
    Geval("a capital comes before", QStringList{"Aa", "aa", "bb"}, QList<int>{0, 0, 1, 2});
    Geval("digits and accents", QStringList{"11", "aa", u"\u00E9\u00E9n"_s}, QList<int>{0, 0, 1, 2});
    QStringList zonderZ = TweePerLetter();
    zonderZ.resize(50);
    QList<int> starts;
    for (int n = 0; n < 25; ++n)
        starts += 2 * n;
    Geval("25 groups", zonderZ, starts);
}

void tst_Database::theLetterIndexCountsChangesOfTheFirstLetter()
{
    QFETCH(QStringList, woorden);
    QFETCH(QList<int>, starts);
    const Boek boek(Bytes(woorden));
    QCOMPARE(boek.Fout_, 0);
    starts.resize(26);
    QCOMPARE(QList<int>(boek.LetterStart.begin() + 1, boek.LetterStart.end()), starts);
}

void tst_Database::aTwentySeventhGroupFails()
{
    const Boek boek(Bytes(TweePerLetter() << u"\u00E9\u00E9n"_s << u"\u00EB\u00EBn"_s));
    QCOMPARE(boek.Fout_, int{Fout::IndexBuitenBereik});
    for (size_t n = 1; n <= 26; ++n)
        QCOMPARE(boek.LetterStart[n], static_cast<qint32>(2 * (n - 1)));
    QCOMPARE(boek.Words.size(), size_t{54});
    QCOMPARE(boek.WordHash.size(), size_t{216});
    QCOMPARE(MetLetters(boek, "yzz", 3), "yzz zz"); // what was read is searched
}

void tst_Database::theLetterIndexEndsAtItsLastWord()
{
    const QByteArray inhoud = "aa\nbb\ncc\n";
    const Woorden woorden = LeesWoorden(inhoud);
    LetterIndex index;
    MaakLetterIndex(woorden, 1, index);
    QCOMPARE(QList<int>(index.begin() + 1, index.begin() + 5), (QList<int>{0, 1, 0, 0}));
    MaakLetterIndex(woorden, -1, index);
    QVERIFY(std::all_of(index.begin(), index.end(), [](qint32 start) { return start == 0; }));
    QCOMPARE(FoutVan([&] { MaakLetterIndex(woorden, 3, index); }), int{Fout::IndexBuitenBereik});
    QCOMPARE(index[3], 2);
}

void tst_Database::wordsOfLetters_data()
{
    QTest::addColumn<QByteArray>("letters");
    QTest::addColumn<QByteArray>("gevonden");
    const auto rij = [](const char *letters, const char *gevonden) {
        Geval(letters, QByteArray(letters), QByteArray(gevonden));
    };
    rij("paa", "aap aap"); // "pa" is the first word behind the jump of "oz"
    rij("opa", "pa");      // each letter once
    rij("ab", "ab ba");
    rij("ab?", "ab abc az ba bad bz pa"); // one free letter
    rij("?ab", "ab abc az ba bad bz pa"); // the letters themselves are taken first
    rij("bbb?", "ab ba bbbb bz");
    rij("qzz", "qzz");
    rij("AAP", "");
    rij("a-\"", "");
}

void tst_Database::wordsOfLetters()
{
    QFETCH(QByteArray, letters);
    const Boek boek(Bytes(TweePerLetter()) + "aap\naap\nab\nabc\nba\nbad\nbbbb\npa\n");
    QTEST(MetLetters(boek, letters.toStdString(), letters.size()), "gevonden");
}

void tst_Database::wordsOfLettersHaveALength()
{
    const Boek boek("aa\naap\npaap\npa");
    QCOMPARE(MetLetters(boek, "appa", 4), "aa aap pa paap");
    QCOMPARE(MetLetters(boek, "appa", 3), "aa aap pa");
    QCOMPARE(MetLetters(boek, "appa", 2), "aa pa");
    QCOMPARE(MetLetters(boek, "appa", 4, 3), "aap paap");
    QCOMPARE(MetLetters(boek, "appa", 4, 5), "");
    QCOMPARE(MetLetters(boek, "", 0), "");
}

void tst_Database::theFirstWordBehindAJumpIsNotTried()
{
    const Boek boek(Bytes(TweePerLetter()));
    // "az" fails at once and jumps to the words with b, of which the first one is skipped.
    QCOMPARE(MetLetters(boek, "bzz", 3), "bzz");
    QCOMPARE(MetLetters(boek, "abzz", 4), "az azz bz bzz"); // y jumps, over "zz"
    QCOMPARE(MetLetters(boek, "bz?", 3),
             Samen(Tegenproef::Die(Tegenproef::Words(boek.Inhoud.toStdString()), [](auto &woord) {
                 return Tegenproef::IsTeMaken(woord, "bz?");
             }))); // with a wildcard no first letter fails
    // From y to the words with z: the first of them is skipped.
    QCOMPARE(MetLetters(boek, "zzz", 3), "zzz");
    // A word that is too long doesn't jump.
    QCOMPARE(MetLetters(Boek("aap\nba\nbe\n"), "bae", 2), "ba be");
    QCOMPARE(MetLetters(Boek("ap\nbb\nbe\n"), "beb", 3), "be");
    // Nor does one that fails further on.
    QCOMPARE(MetLetters(Boek("ap\nba\nbe\n"), "bae", 3), "ba be");
}

void tst_Database::aZAndOtherCharactersDoNotJump()
{
    // 26 groups, so that there is somewhere to jump to: digits and capitals first.
    const Boek boek("1a\n1b\nA1\nA2\na1\nz1\nz2\nz3\n\xE9"
                    "1\n\xE9"
                    "2\n");
    QCOMPARE(MetLetters(boek, "2\xE9", 2), "\xE9"
                                           "2");
    QCOMPARE(MetLetters(boek, "2A", 2), "A2");
    QCOMPARE(MetLetters(boek, "b1", 2), "1b");
    QCOMPARE(MetLetters(Boek("aa\nza\nzb\n{a\n"), "a{", 2), "{a"); // "aa" fails at its second letter
}

void tst_Database::aJumpThatDoesNotLeadForwardIsNotTaken()
{
    // Without the other groups the index has 0 for them: y would lead back to the first word for ever.
    const Boek boek("ya\nyb\nza\nzb\n");
    QCOMPARE(MetLetters(boek, "azb", 3), "za zb");
    // Here the third group lies before the words with c.
    const Boek terug("1a\n2a\n3a\nbb\nca\ncb\nda\n");
    QCOMPARE(MetLetters(terug, "da", 2), "da");
    const LetterIndex zichzelf{0, 0, 1};
    const Woorden woorden = LeesWoorden("ba\nab\nca");
    Lijst gevonden;
    unscramble({woorden, 2}, zichzelf, "ac", 2, 0, [&](std::string_view woord) { gevonden.emplace_back(woord); });
    QCOMPARE(Samen(gevonden), "ca");
}

void tst_Database::wordsByTheirBegin_data()
{
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QByteArray>("gevonden");
    Geval("plain", QByteArray("aap"), QByteArray("aap aapje"));
    Geval("the whole word", QByteArray("aapje"), QByteArray("aapje"));
    Geval("longer than the words", QByteArray("aapjes"), QByteArray());
    Geval("capitals", QByteArray("AAP"), QByteArray());
    Geval("wildcard", QByteArray("a?p"), QByteArray("aap aapje"));
    Geval("wildcard in front", QByteArray("?b"), QByteArray("ab abc"));
    Geval("wildcards behind the end of a word", QByteArray("ab??"), QByteArray("ab abc"));
    Geval("only wildcards", QByteArray("?????????"), QByteArray("aap aapje ab abc ba noot"));
    Geval("a letter behind wildcards past the end", QByteArray("ab?d"), QByteArray());
    Geval("empty", QByteArray(), QByteArray("aap aapje ab abc ba noot"));
    Geval("quotes", QByteArray("\"aa"), QByteArray());
}

void tst_Database::wordsByTheirBegin()
{
    QFETCH(QByteArray, key);
    const Boek boek("noot\naap\naapje\nab\nabc\nba\n");
    QTEST(Samen(Gevonden([&](const Vondst &v) { ZoekBegin(boek.Gebied(), key.toStdString(), v); })), "gevonden");
}

void tst_Database::wordsByTheirEnd_data()
{
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QByteArray>("gevonden");
    Geval("plain", QByteArray("aap"), QByteArray("aap schaap"));
    Geval("in small letters of capitals", KleineLetters(QByteArray("AAP")), QByteArray("aap schaap"));
    Geval("longer than the words", QByteArray("xschaap"), QByteArray());
    Geval("wildcard", QByteArray("?aap"), QByteArray("schaap")); // "aap" is compared from its own first letter
    Geval("wildcards that a shorter word lacks", QByteArray("aap?"), QByteArray("aap"));
    Geval("the last letter", QByteArray("p"), QByteArray("aap schaap"));
    Geval("only wildcards", QByteArray("???"), QByteArray("aap ab noot schaap"));
    Geval("empty", QByteArray(), QByteArray("aap ab noot schaap"));
    Geval("blank", QByteArray(" "), QByteArray());
}

void tst_Database::wordsByTheirEnd()
{
    QFETCH(QByteArray, key);
    const Boek boek("noot\nschaap\naap\nab\n");
    QTEST(Samen(Gevonden([&](const Vondst &v) { ZoekEind(boek.Gebied(), key.toStdString(), v); })), "gevonden");
}

void tst_Database::wordsByTheirLength()
{
    const Boek boek("noot\nschaap\naap\nab\nmies\n");
    const auto vanLengte = [&](qint16 lengte) {
        return Samen(Gevonden([&](const Vondst &v) { ZoekLengte(boek.Gebied(), lengte, v); }));
    };
    QCOMPARE(vanLengte(2), "ab");
    QCOMPARE(vanLengte(4), "mies noot");
    for (const int lengte : {-32768, -1, 0, 1, 5, 32767})
        QCOMPARE(vanLengte(static_cast<qint16>(lengte)), "");
}

static QByteArray MetKlinkers(const Boek &boek)
{
    return Samen(Gevonden([&](const Vondst &v) { ZoekKlinkers(boek.Gebied(), v); }));
}

void tst_Database::wordsWithThreeVowelsInARow()
{
    // Once for each place: four in a row twice, five three times.
    QCOMPARE(MetKlinkers(Boek("aap\neeuw\nzeeen\nhooiig\nkoeieuier\naei\nei\n")),
             "aei eeuw zeeen hooiig hooiig koeieuier koeieuier koeieuier koeieuier koeieuier");
    QCOMPARE(MetKlinkers(Boek("sneeuui\n")), "sneeuui sneeuui sneeuui"); // the last letter counts
    QCOMPARE(MetKlinkers(Boek("yyy\nAEI\n\xEB\xEB\xEB\neeyee\nbbb\n")), "");
    const QByteArray negentien = "bbbbbbbbbbbbbbbbaei", twintig = 'b' + negentien;
    QCOMPARE(negentien.size(), 19);
    QCOMPARE(MetKlinkers(Boek(negentien + '\n' + twintig)), negentien);
}

/// Words of 3 to 19 letters, most of them with three vowels.
static QByteArray WillekeurigeKlinkers(int aantal, int langste, std::mt19937 &toeval)
{
    QByteArray inhoud;
    for (int i = 0; i < aantal; ++i) {
        for (auto letters = 3 + toeval() % static_cast<unsigned>(langste - 2); letters > 0; --letters)
            inhoud += "aeioubc"[toeval() % 7];
        inhoud += '\n';
    }
    return inhoud;
}

void tst_Database::wordsWithVowelsComeInTheOrderOfTheExchange()
{
    // "aaeb" changes places with "eeu", then "baee" with "uii".
    QCOMPARE(MetKlinkers(Boek("aaeb\nbaee\neeu\neuub\nuii\n")), "eeu uii aaeb euub baee");
    std::mt19937 toeval(4);
    for (int aantal = 1; aantal < 120; ++aantal)
        for (const int langste : {4, 6, 19}) {
            const Boek boek(WillekeurigeKlinkers(aantal, langste, toeval));
            QCOMPARE(MetKlinkers(boek), Samen(Tegenproef::OpLengte(
                                            Tegenproef::MetKlinkers(Tegenproef::Words(boek.Inhoud.toStdString())))));
        }
    const Boek groot(WillekeurigeKlinkers(1500, 19, toeval));
    QCOMPARE(MetKlinkers(groot),
             Samen(Tegenproef::OpLengte(Tegenproef::MetKlinkers(Tegenproef::Words(groot.Inhoud.toStdString())))));
}

// Were they exchanged in the square of their number, the test would not end within its time.
void tst_Database::manyWordsWithVowelsAreExchanged()
{
    std::mt19937 toeval(5);
    const Boek boek(WillekeurigeKlinkers(10000, 19, toeval).repeated(5));
    const Lijst gevonden = Gevonden([&](const Vondst &v) { ZoekKlinkers(boek.Gebied(), v); });
    QVERIFY(gevonden.size() > 130000);
    QVERIFY(std::is_sorted(gevonden.begin(), gevonden.end(), [](auto &a, auto &b) { return a.size() < b.size(); }));
    Lijst verwacht = Tegenproef::MetKlinkers(Tegenproef::Words(boek.Inhoud.toStdString())), alles = gevonden;
    std::sort(alles.begin(), alles.end());
    QVERIFY(alles == verwacht);
}

void tst_Database::aSearchEndsAtItsLastWord()
{
    const Boek boek("aaa\naab\naac\naad\n");
    const auto tot = [&](qint32 laatste, auto zoek) {
        return Samen(Gevonden([&](const Vondst &v) { zoek(Zoekgebied{boek.Words, laatste}, v); }));
    };
    const auto letters = [&](const Zoekgebied &g, const Vondst &v) { unscramble(g, boek.LetterStart, "???", 3, 0, v); };
    const auto begin = [](const Zoekgebied &g, const Vondst &v) { ZoekBegin(g, "aa", v); };
    const auto eind = [](const Zoekgebied &g, const Vondst &v) { ZoekEind(g, "?", v); };
    const auto lengte = [](const Zoekgebied &g, const Vondst &v) { ZoekLengte(g, 3, v); };
    for (const qint32 laatste : {-1, 0, 2, 3}) {
        const QByteArray verwacht = QByteArray("aaa aab aac aad").first(std::max(0, 4 * laatste + 3));
        QCOMPARE(tot(laatste, letters), verwacht);
        QCOMPARE(tot(laatste, begin), verwacht);
        QCOMPARE(tot(laatste, eind), verwacht);
        QCOMPARE(tot(laatste, lengte), verwacht);
        QCOMPARE(tot(laatste, ZoekKlinkers), verwacht.first(std::min(verwacht.size(), qsizetype{3})));
    }
}

void tst_Database::aSearchBeyondTheWordsFails()
{
    const Boek boek("aaa\nbbb\n");
    Lijst gevonden;
    const Vondst neem = [&](std::string_view woord) { gevonden.emplace_back(woord); };
    for (const qint32 laatste : {2, std::numeric_limits<qint32>::max()}) {
        const Zoekgebied gebied{boek.Words, laatste};
        constexpr int Fout_ = Fout::IndexBuitenBereik;
        QCOMPARE(FoutVan([&] { unscramble(gebied, boek.LetterStart, "???", 3, 0, neem); }), Fout_);
        QCOMPARE(FoutVan([&] { ZoekBegin(gebied, "?", neem); }), Fout_);
        QCOMPARE(FoutVan([&] { ZoekEind(gebied, "?", neem); }), Fout_);
        QCOMPARE(FoutVan([&] { ZoekLengte(gebied, 3, neem); }), Fout_);
        QCOMPARE(Samen(gevonden), "aaa bbb aaa bbb aaa bbb aaa bbb"); // what came before stays
        QCOMPARE(FoutVan([&] { ZoekKlinkers(gebied, neem); }), Fout_);
        gevonden.clear();
    }
    // A jump is not beyond the words by itself.
    QCOMPARE(MetLetters(boek, "x", 3), "");
    QCOMPARE(FoutVan([&] {
                 unscramble({boek.Words, 2}, boek.LetterStart, "x", 3, 0, neem);
             }),
             int{Fout::IndexBuitenBereik});
}

void tst_Database::linesThatContainTheKey_data()
{
    QTest::addColumn<QByteArray>("inhoud");
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QByteArray>("gevonden"); // with a bar between them
    const auto rij = [](const char *naam, const QByteArray &inhoud, const QByteArray &key, const char *gevonden) {
        Geval(naam, inhoud, key, QByteArray(gevonden));
    };
    rij("in the order of the file", "schaap\r\nnoot\r\naap\r\naapje", "aap", "schaap|aap|aapje");
    rij("in small letters", "AAP\nSchaap\nSCH\xC9\xC9P\n", "sch", "schaap|sch\xE9\xE9p");
    rij("a key in capitals finds nothing", "AAP\naap\n", "AAP", "");
    rij("an empty key lists all", "b\r\n\r\naap, noot\r\n", "", "b||aap, noot");
    rij("an empty key of nothing", "", "", "");
    rij("a whole line with comma and quotes", "\"aap\", noot\nmies\n", "aap", "\"aap\", noot");
    rij("a wildcard is a character", "aap\na?p\n", "a?p", "a?p");
    rij("twice in a line", "aapaap\n", "aap", "aapaap");
    rij("a line twice", "aap\naap\n", "aap", "aap|aap");
    rij("line ends of all kinds", "1aap\r2aap\n3aap\r\n4aap\n\r5aap", "aap", "1aap|2aap|3aap|4aap|5aap");
    rij("not across lines", "aa\np\r\naa\rp", "aap", "");
    rij("a key with a line end", "aa\np\naap", "a\np", "");
    rij("a line end", "aa\r\nbb", "\r\n", "");
    rij("a key longer than the file", "aa", "aaa", "");
    rij("one letter", "a\r\nb\r\na", "a", "a|a");
    rij("a blank", "a b\nab\n", " ", "a b");
    rij("zero bytes", QByteArray("a\0b\nab", 6), QByteArray("\0", 1), "a");
}

void tst_Database::linesThatContainTheKey()
{
    QFETCH(QByteArray, inhoud);
    QFETCH(QByteArray, key);
    QFETCH(QByteArray, gevonden);
    QByteArrayList regels;
    ZoekTrefwoord(inhoud, key,
                  [&](std::string_view regel) { regels += QByteArray::fromStdString(std::string(regel)); });
    if (inhoud.contains('\0'))
        QCOMPARE(regels, QByteArrayList{QByteArray("a\0b", 3)});
    else
        QCOMPARE(regels.join('|'), gevonden);
}

/// Compares every search of a database with the reference.
static void Vergelijk(const QByteArray &inhoud, const std::string &key)
{
    using namespace Tegenproef;
    const Boek boek(inhoud);
    const Lijst words = Words(inhoud.toStdString()), regels = Regels(inhoud.toStdString());
    const std::vector<int> starts = LetterStarts(words);
    QCOMPARE(boek.Fout_, words.empty() || starts.size() > 27 ? int{Fout::IndexBuitenBereik} : 0);
    const auto hetzelfde = [](auto zoek, const Lijst &verwacht) { QVERIFY(Gevonden(zoek) == verwacht); };
    const auto gebied = boek.Gebied();
    const auto N = static_cast<qsizetype>(key.size());
    hetzelfde([&](const Vondst &v) { unscramble(gebied, boek.LetterStart, key, N, 0, v); },
              Letters(words, starts, key, key.size(), 0));
    hetzelfde([&](const Vondst &v) { ZoekBegin(gebied, key, v); }, Die(words, [&](auto &w) { return Begint(w, key); }));
    hetzelfde([&](const Vondst &v) { ZoekEind(gebied, key, v); }, Die(words, [&](auto &w) { return Eindigt(w, key); }));
    hetzelfde([&](const Vondst &v) { ZoekLengte(gebied, 3, v); }, Die(words, [](auto &w) { return w.size() == 3; }));
    hetzelfde([&](const Vondst &v) { ZoekKlinkers(gebied, v); }, OpLengte(MetKlinkers(words)));
    hetzelfde([&](const Vondst &v) { ZoekTrefwoord(inhoud, key, v); }, Trefwoord(regels, key));
}

void tst_Database::anyDatabaseIsLoadedAndSearched_data()
{
    QTest::addColumn<QByteArray>("inhoud");
    std::mt19937 toeval(6);
    QByteArray binair(20000, Qt::Uninitialized);
    std::generate(binair.begin(), binair.end(), [&] { return static_cast<char>(toeval()); });
    QByteArray hoog, groepen;
    for (int code = 0x80; code <= 0xFF; ++code)
        hoog += QByteArray(3, static_cast<char>(code)) + "\r\n";
    for (int code = '!'; code <= '~'; ++code)
        groepen += static_cast<char>(code) + QByteArray("aei\r\n");
    const QByteArray alfabet = Bytes(TweePerLetter());
    Geval("empty", QByteArray());
    Geval("one line", QByteArray("aap\r\n"));
    Geval("one letter", QByteArray("a"));
    Geval("only line ends", QByteArray("\r\n\r\n\n\r\r"));
    Geval("CR only", QByteArray(alfabet).replace("\r\n", "\r"));
    Geval("LF only", QByteArray(alfabet).replace("\r\n", "\n"));
    Geval("26 first letters", alfabet);
    Geval("25 first letters", alfabet.chopped(9));
    Geval("27 first letters", alfabet + "{aaa\r\n");
    Geval("all first characters", groepen);
    Geval("commas and quotes", QByteArray("aap,\"noot, mies\",,\"a\"\"b\",\"\r\n\"\r\nwim\"zus, jet\",\"open\r\naei"));
    Geval("tabs", QByteArray("\taap\r\n \t noot\t \r\n\t\"mies\"\t,wim"));
    Geval("bytes above 127", hoog);
    Geval("binary", binair);
    Geval("zeros", QByteArray(1000, '\0'));
    Geval("lines of 10,000 characters",
          QByteArray(10000, 'a') + "\r\n" + QByteArray(10000, '\xE9') + "\r\n" + QByteArray(10000, 'a') + "b\r\naap");
}

void tst_Database::anyDatabaseIsLoadedAndSearched()
{
    QFETCH(QByteArray, inhoud);
    for (const char *key : {"", "a", "aap", "\"", "\"a\"", " ", "a b", "?", "???", "????????????????????", "azz", "AZ",
                            "\xE9\xE9", "zz?a", ",", "\r", "aa?????????????????"})
        Vergelijk(inhoud, key);
    Vergelijk(inhoud, std::string("a\0b", 3));
    Vergelijk(inhoud, std::string(20000, 'a'));
}

void tst_Database::aHundredMebibytesAreLoadedAndSearched_data()
{
    QTest::addColumn<QByteArray>("blok");
    Geval("of one word", QByteArray("aardappel\r\n"));
    Geval("of one line", QByteArray("aardappel"));
}

// Whatever takes the square of such a size doesn't end within the time of the test.
void tst_Database::aHundredMebibytesAreLoadedAndSearched()
{
    QFETCH(QByteArray, blok);
    const qsizetype aantal = (100 << 20) / blok.size();
    const Boek boek(blok.repeated(aantal));
    QCOMPARE(boek.Fout_, 0);
    size_t bytes = 0, gevonden = 0;
    const Vondst tel = [&](std::string_view woord) { bytes += woord.size(), ++gevonden; };
    ZoekBegin(boek.Gebied(), "aa", tel);
    if (blok == "aardappel\r\n") {
        QCOMPARE(gevonden, static_cast<size_t>(aantal));
        unscramble(boek.Gebied(), boek.LetterStart, "appelaard", 9, 0, tel);
        QCOMPARE(gevonden, static_cast<size_t>(2 * aantal));
    } else if (blok == "aardappel") {
        QCOMPARE(bytes, static_cast<size_t>(boek.Inhoud.size()));
    }
    gevonden = 0;
    ZoekTrefwoord(boek.Inhoud, "a", tel);
    QCOMPARE(gevonden, static_cast<size_t>(blok == "aardappel" ? 1 : aantal));
}

RASTER_TEST(tst_Database)
#include "tst_Database.moc"
