#include "support/Testbank.h"
#include "wordlib/mdlArray.h"

#include <cmath>
#include <random>

using Lijst = std::vector<std::string>;

class tst_mdlArray : public QObject
{
    Q_OBJECT

private slots:
    void textsAreComparedAsBytes();
    void partingLeavesWhatItsStepsLeave_data();
    void partingLeavesWhatItsStepsLeave();
    void partingLeavesWhatItsStepsLeaveOfAnyArray();
    void partingKeepsWithinItsBounds();
    void partingLeavesShortRunsAsTheyAre();
    void aRunOfTwoIsNeverParted();
    void boundsAreOfTheArray();
    void insertionPutsAPartRight();
    void reversing_data();
    void reversing();
    void swapping();
    void sortingIsThatOfTheLibrary_data();
    void sortingIsThatOfTheLibrary();
    void descending();
    void longTextsAreSortedByWhatStandsBehind();
    void noArrayIsPartedBadlyOverAndOver();
    void anArrayWithoutElementsFails();

    void hashes_data();
    void hashes();
    void aTableHasFourPlacesForEachText();
    void aTableIsFilledAroundItsEnd();
    void aTableIsThatOfLinearProbing_data();
    void aTableIsThatOfLinearProbing();
    void aMillionTextsOfOneHashAreOneRun();
    void anEmptyTextHasNoPlace();
};

static Woorden Zien(const Lijst &teksten)
{
    return {teksten.begin(), teksten.end()};
}

static Lijst Teksten(const Woorden &woorden)
{
    Lijst teksten;
    for (const Woord &woord : woorden)
        teksten.emplace_back(woord.Tekst);
    return teksten;
}

/// A letter a text.
static Lijst Letters(const char *letters)
{
    Lijst teksten;
    for (; *letters != 0; ++letters)
        teksten.emplace_back(1, *letters);
    return teksten;
}

/// Texts of up to 10 letters of the first so many; few letters make many duplicates.
static Lijst Willekeurig(size_t aantal, int letters, std::mt19937 &toeval)
{
    Lijst teksten(aantal);
    for (std::string &tekst : teksten) {
        tekst.resize(1 + toeval() % 10);
        for (char &letter : tekst)
            letter = static_cast<char>('a' + static_cast<int>(toeval() % static_cast<unsigned>(letters)));
    }
    return teksten;
}

/// The parting once more, a step at a time. @return into how many parts the array fell
static int Deel(std::vector<const std::string *> &arr, int split, int lo, int hi)
{
    const auto op = [&](int i) -> const std::string & { return *arr[static_cast<size_t>(i)]; };
    const auto ruil = [&](int i, int j) { std::swap(arr[static_cast<size_t>(i)], arr[static_cast<size_t>(j)]); };
    if (hi - lo <= split)
        return 1;
    const int m = static_cast<int>(std::nearbyint((lo + hi) / 2.0));
    if (op(lo) > op(m))
        ruil(lo, m);
    if (op(lo) > op(hi))
        ruil(lo, hi);
    if (op(m) > op(hi))
        ruil(m, hi);
    int j = hi - 1;
    ruil(m, j);
    int i = lo;
    const std::string pivot = op(j);
    while (true) {
        ++i;
        while (op(i) < pivot)
            ++i;
        --j;
        while (op(j) > pivot)
            --j;
        if (j < i)
            break;
        ruil(i, j);
    }
    ruil(i, hi - 1);
    return Deel(arr, split, lo, j) + Deel(arr, split, i + 1, hi);
}

static std::vector<const std::string *> Adressen(const Lijst &teksten)
{
    std::vector<const std::string *> adressen;
    for (const std::string &tekst : teksten)
        adressen.push_back(&tekst);
    return adressen;
}

/// Whether the parting leaves each text where those steps do, equal ones too.
static bool IsGedeeldAlsVerteld(const Lijst &teksten, int split)
{
    Woorden arr = Zien(teksten);
    std::vector<const std::string *> verwacht = Adressen(teksten);
    const int hi = static_cast<int>(teksten.size()) - 1;
    QuickSortStrings(arr, split, 0, hi);
    Deel(verwacht, split, 0, hi);
    return std::equal(arr.begin(), arr.end(), verwacht.begin(), verwacht.end(),
                      [](const Woord &a, const std::string *b) { return a.Tekst.data() == b->data(); });
}

void tst_mdlArray::textsAreComparedAsBytes()
{
    // Rising, over and within the first eight bytes.
    const Lijst teksten{std::string("a\0b", 3),
                        "aB",
                        "aa",
                        "ab",
                        "abcdefgh",
                        std::string("abcdefgh\0", 9),
                        "abcdefghA",
                        "abcdefgha",
                        "abcdefgh\xE9",
                        "ab\xE9",
                        "b",
                        "z",
                        "\x80",
                        "\xFF"};
    for (size_t i = 0; i < teksten.size(); ++i)
        for (size_t j = 0; j < teksten.size(); ++j) {
            QCOMPARE(Woord(teksten[i]) < Woord(teksten[j]), i < j);
            QCOMPARE(Woord(teksten[i]) > Woord(teksten[j]), i > j);
        }
    QVERIFY(!(Woord(std::string("ab\0", 3)) < Woord("ab")));
    QVERIFY(Woord(std::string("ab\0", 3)) > Woord("ab")); // of one beginning
}

void tst_mdlArray::partingLeavesWhatItsStepsLeave_data()
{
    QTest::addColumn<QByteArray>("voor");
    QTest::addColumn<QByteArray>("na");
    const auto rij = [](const char *naam, const char *voor, const char *na) {
        Geval(naam, QByteArray(voor), QByteArray(na));
    };
    rij("five are a short run", "edcba", "edcba");
    rij("half-way down to the even middle, 2", "fedcba", "acbdef");
    rij("half-way up to the even middle, 4", "hgfedcba", "acbdfgeh");
    rij("all equal", "aaaaaaaa", "aaaaaaaa");
}

void tst_mdlArray::partingLeavesWhatItsStepsLeave()
{
    QFETCH(QByteArray, voor);
    QFETCH(QByteArray, na);
    const Lijst teksten = Letters(voor);
    Woorden arr = Zien(teksten);
    QuickSortStrings(arr, 4, 0, static_cast<qint32>(arr.size()) - 1);
    QCOMPARE(Teksten(arr), Letters(na));
}

void tst_mdlArray::partingLeavesWhatItsStepsLeaveOfAnyArray()
{
    std::mt19937 toeval(1);
    for (size_t aantal = 0; aantal < 300; ++aantal)
        for (const int letters : {1, 2, 5, 26})
            for (const int split : {4, 1, 9})
                QVERIFY(IsGedeeldAlsVerteld(Willekeurig(aantal, letters, toeval), split));
    QVERIFY(IsGedeeldAlsVerteld(Willekeurig(20000, 26, toeval), 4));
    QVERIFY(IsGedeeldAlsVerteld(Willekeurig(20000, 2, toeval), 4));
}

void tst_mdlArray::partingKeepsWithinItsBounds()
{
    const Lijst teksten = Letters("zzhgfedcbaaa");
    Woorden arr = Zien(teksten);
    QuickSortStrings(arr, 1, 2, 9);
    InsertionSortStrings(arr, 2, 9);
    QCOMPARE(Teksten(arr), Letters("zzabcdefghaa"));
}

void tst_mdlArray::partingLeavesShortRunsAsTheyAre()
{
    const Lijst teksten = Letters("fedcba");
    Woorden arr = Zien(teksten);
    QuickSortStrings(arr, 5, 0, 5);
    QCOMPARE(Teksten(arr), teksten);
    QuickSortStrings(arr, 4, 3, 2);
    QCOMPARE(Teksten(arr), teksten);
}

void tst_mdlArray::aRunOfTwoIsNeverParted()
{
    const Lijst teksten = Letters("cbaedgf");
    for (const int split : {0, -1, std::numeric_limits<int>::min()}) {
        Woorden arr = Zien(teksten);
        QuickSortStrings(arr, split, 5, 6);
        QuickSortStrings(arr, split, 0, 1);
        QuickSortStrings(arr, split, 3, 3);
        QCOMPARE(Teksten(arr), teksten);
        QuickSortStrings(arr, split, 0, 6);
        InsertionSortStrings(arr, 0, 6);
        QCOMPARE(Teksten(arr), Letters("abcdefg"));
    }
}

void tst_mdlArray::boundsAreOfTheArray()
{
    const Lijst teksten = Letters("cba");
    Woorden arr = Zien(teksten);
    for (const auto &[lo, hi] : {std::pair(-1, 2), std::pair(0, 3)}) {
        QCOMPARE(FoutVan([&] { QuickSortStrings(arr, 4, lo, hi); }), int{Fout::IndexBuitenBereik});
        QCOMPARE(FoutVan([&] { InsertionSortStrings(arr, lo, hi); }), int{Fout::IndexBuitenBereik});
    }
    QCOMPARE(Teksten(arr), teksten);
}

void tst_mdlArray::insertionPutsAPartRight()
{
    const Lijst teksten = Letters("zdbcaea");
    Woorden arr = Zien(teksten);
    InsertionSortStrings(arr, 1, 5);
    QCOMPARE(Teksten(arr), Letters("zabcdea"));
    InsertionSortStrings(arr, 0, 6);
    QCOMPARE(Teksten(arr), Letters("aabcdez"));
    const Lijst gelijk{"b", "a", "a"};
    Woorden stabiel = Zien(gelijk);
    InsertionSortStrings(stabiel, 0, 2);
    QCOMPARE(stabiel[0].Tekst.data(), gelijk[1].data()); // equal ones keep their order
}

void tst_mdlArray::reversing_data()
{
    QTest::addColumn<QByteArray>("voor");
    QTest::addColumn<QByteArray>("na");
    Geval("one", QByteArray("a"), QByteArray("a"));
    Geval("two", QByteArray("ab"), QByteArray("ba"));
    Geval("three", QByteArray("abc"), QByteArray("cba"));
    Geval("four", QByteArray("aabc"), QByteArray("cbaa"));
}

void tst_mdlArray::reversing()
{
    QFETCH(QByteArray, voor);
    QFETCH(QByteArray, na);
    const Lijst teksten = Letters(voor);
    Woorden arr = Zien(teksten);
    ReverseStrings(arr);
    QCOMPARE(Teksten(arr), Letters(na));
}

void tst_mdlArray::swapping()
{
    Woord a("aap"), b("noot en mies");
    SwapStrings(a, b);
    QCOMPARE(a.Tekst, "noot en mies");
    QCOMPARE(b.Tekst, "aap");
    QVERIFY(b < a);
}

void tst_mdlArray::sortingIsThatOfTheLibrary_data()
{
    QTest::addColumn<Lijst>("teksten");
    std::mt19937 toeval(2);
    for (const size_t aantal : {1U, 2U, 3U, 5U, 6U, 7U, 100U, 1000U})
        for (const int letters : {1, 3, 26})
            Geval("random " + QByteArray::number(aantal) + " of " + QByteArray::number(letters) + " letters",
                  Willekeurig(aantal, letters, toeval));
    const Lijst veel = Willekeurig(200000, 26, toeval);
    Lijst op = veel;
    std::sort(op.begin(), op.end());
    Geval("200,000", veel);
    Geval("200,000 in order", op);
    Geval("200,000 in reverse", Lijst(op.rbegin(), op.rend()));
    Geval("200,000 equal ones", Lijst(200000, "gelijk"));
    Geval("200,000 of two kinds", Willekeurig(200000, 1, toeval));
}

void tst_mdlArray::sortingIsThatOfTheLibrary()
{
    QFETCH(Lijst, teksten);
    Woorden arr = Zien(teksten);
    SortStrings(arr, false);
    Lijst verwacht = teksten;
    std::sort(verwacht.begin(), verwacht.end());
    QVERIFY(Teksten(arr) == verwacht);
}

void tst_mdlArray::descending()
{
    const Lijst teksten = Letters("bdacfeg");
    Woorden arr = Zien(teksten);
    SortStrings(arr, true);
    QCOMPARE(Teksten(arr), Letters("gfedcba"));
}

void tst_mdlArray::longTextsAreSortedByWhatStandsBehind()
{
    Lijst teksten;
    for (int i = 0; i < 100; ++i)
        teksten.push_back(std::string(10000, 'a') + std::to_string(i * 37 % 100));
    Woorden arr = Zien(teksten);
    SortStrings(arr, false);
    std::sort(teksten.begin(), teksten.end());
    QVERIFY(Teksten(arr) == teksten);
}

/// An array of an even number of elements that falls into as many parts as it has pairs: each time the two smallest are
/// the first of the samples and the middle one, so that only these two come off. It is made from its end on; each round
/// undoes what parting does with the two that are put in front.
static std::vector<int> MaakSlechtDeelbaar(int aantal)
{
    std::vector<int> arr(static_cast<size_t>(aantal));
    const auto op = [&](int i) -> int & { return arr[static_cast<size_t>(i)]; };
    for (int i = 0; i < aantal; ++i)
        op(i) = i;
    const int hi = aantal - 1;
    for (int lo = aantal - 6; lo >= 0; lo -= 2) {
        const int m = static_cast<int>(std::nearbyint((lo + hi) / 2.0));
        op(lo + 1) = op(hi - 1);
        op(hi - 1) = op(m);
        op(m) = lo + 1;
        op(lo) = lo;
    }
    return arr;
}

static Lijst AlsTeksten(const std::vector<int> &getallen)
{
    Lijst teksten;
    for (const int getal : getallen)
        teksten.push_back(QByteArray::number(getal + 10000000).toStdString());
    return teksten;
}

// Were it parted all the way, the stack would not hold the calls, nor would the test end within its time.
void tst_mdlArray::noArrayIsPartedBadlyOverAndOver()
{
    const Lijst klein = AlsTeksten(MaakSlechtDeelbaar(1000));
    std::vector<const std::string *> delen = Adressen(klein);
    QCOMPARE(Deel(delen, 4, 0, 999), 499); // it is as bad as it is meant to be

    const Lijst teksten = AlsTeksten(MaakSlechtDeelbaar(400000));
    Woorden arr = Zien(teksten);
    SortStrings(arr, false);
    Lijst verwacht = teksten;
    std::sort(verwacht.begin(), verwacht.end());
    QVERIFY(Teksten(arr) == verwacht);
}

void tst_mdlArray::anArrayWithoutElementsFails()
{
    Woorden leeg;
    std::vector<qint32> tabel;
    QCOMPARE(FoutVan([&] { SortStrings(leeg, false); }), int{Fout::IndexBuitenBereik});
    QCOMPARE(FoutVan([&] { SortStrings(leeg, true); }), int{Fout::IndexBuitenBereik});
    QCOMPARE(FoutVan([&] { ReverseStrings(leeg); }), int{Fout::IndexBuitenBereik});
    QCOMPARE(FoutVan([&] { BuildHashTable(leeg, tabel); }), int{Fout::IndexBuitenBereik});
}

void tst_mdlArray::hashes_data()
{
    QTest::addColumn<QByteArray>("tekst");
    QTest::addColumn<qint32>("lengte");
    QTest::addColumn<qint32>("hash");
    const auto rij = [](const char *naam, const char *tekst, qint32 lengte, qint32 hash) {
        Geval(naam, QByteArray(tekst), lengte, hash);
    };
    rij("empty", "", -1, -1);
    rij("empty, of length 0", "", 0, -1);
    rij("empty, of length 3", "", 3, -1);
    rij("one letter", "a", -1, 0x60);              // 61 ^ 0 ^ 1
    rij("two", "ab", -1, 0x6260);                  // 6261 ^ 1
    rij("three", "abc", -1, 0x636260);             // 636261 ^ 1
    rij("four", "abcd", -1, 0x64636262);           // 64636261 ^ 1 ^ 2
    rij("five", "abcde", -1, 0x64636207);          // 64636261 ^ (65 ^ 1) ^ 2
    rij("the same four twice", "abcdabcd", -1, 0); // 1 ^ 2 ^ 3
    rij("nine", "abcdabcdz", -1, 'z');             // the same with 7A
    rij("highest bit", "\xE9\xE9\xE9\xE9", -1, 0x69E9E9EA);
    rij("bytes above 127", "\x80\xFF", -1, 0xFF81);
    rij("of length 0", "abcde", 0, 1);
    rij("of length 1", "abcde", 1, 0x60);
    rij("of length 4", "abcde", 4, 0x64636262);
    rij("of its whole length", "abcde", 5, 0x64636207);
    rij("of more than its length", "abcde", 6, 0x64636207);
    rij("of the greatest length", "abcde", std::numeric_limits<qint32>::max(), 0x64636207);
}

void tst_mdlArray::hashes()
{
    QFETCH(QByteArray, tekst);
    QFETCH(qint32, lengte);
    QTEST(HashString({tekst.data(), static_cast<size_t>(tekst.size())}, lengte), "hash");
}

void tst_mdlArray::aTableHasFourPlacesForEachText()
{
    std::vector<qint32> tabel{7, 7};
    BuildHashTable(Zien({"a"}), tabel); // 96 mod 4
    QCOMPARE(tabel, (std::vector<qint32>{0, LeegVak, LeegVak, LeegVak}));
    BuildHashTable(Zien({"c", "a", "c"}), tabel); // 98 and 96 mod 12
    const qint32 L = LeegVak;
    QCOMPARE(tabel, (std::vector<qint32>{1, L, 0, 2, L, L, L, L, L, L, L, L}));
    QCOMPARE(L, std::numeric_limits<qint32>::min());
}

void tst_mdlArray::aTableIsFilledAroundItsEnd()
{
    std::vector<qint32> tabel;
    BuildHashTable(Zien({"f", "f"}), tabel); // 103 mod 8
    const qint32 L = LeegVak;
    QCOMPARE(tabel, (std::vector<qint32>{1, L, L, L, L, L, L, 0}));
}

void tst_mdlArray::aTableIsThatOfLinearProbing_data()
{
    QTest::addColumn<Lijst>("teksten");
    std::mt19937 toeval(3);
    for (const size_t aantal : {1U, 2U, 15U, 16U, 17U, 100U, 1023U, 1024U, 1025U, 5000U})
        for (const int letters : {1, 2, 26})
            Geval("random " + QByteArray::number(aantal) + " of " + QByteArray::number(letters) + " letters",
                  Willekeurig(aantal, letters, toeval));
    Geval("around the end", Lijst(5000, std::string(1, '\x1F'))); // 30
    for (const char *tekst : {"abcdabcd", "\xFE\xFF\xFF", "zebra"})
        Geval(tekst, Lijst(3000, tekst));
}

void tst_mdlArray::aTableIsThatOfLinearProbing()
{
    QFETCH(Lijst, teksten);
    const Woorden arr = Zien(teksten);
    std::vector<qint32> tabel;
    BuildHashTable(arr, tabel);
    std::vector<qint32> verwacht(4 * teksten.size(), LeegVak);
    for (size_t i = 0; i < teksten.size(); ++i) {
        auto plaats = static_cast<size_t>(HashString(teksten[i], -1)) % verwacht.size();
        while (verwacht[plaats] != LeegVak)
            plaats = (plaats + 1) % verwacht.size();
        verwacht[plaats] = static_cast<qint32>(i);
    }
    QVERIFY(tabel == verwacht);
}

// Were each text to walk past those before it, the test would not end within its time.
void tst_mdlArray::aMillionTextsOfOneHashAreOneRun()
{
    constexpr size_t Aantal = 1000000, S = 4 * Aantal;
    const std::string tekst = "\xFE\xFF\x3C"; // close to the end of the table: 3CFFFF mod S, in bytes 3C FF FE ^ 1
    std::vector<qint32> tabel;
    BuildHashTable(Woorden(Aantal, Woord(tekst)), tabel);
    const size_t eerste = 0x3CFFFF % S;
    QCOMPARE(tabel.size(), S);
    QVERIFY(eerste + Aantal > S);
    for (size_t i = 0; i < S; ++i)
        if (tabel[(eerste + i) % S] != (i < Aantal ? static_cast<qint32>(i) : LeegVak))
            QFAIL(qPrintable(QString::number(i)));
}

void tst_mdlArray::anEmptyTextHasNoPlace()
{
    std::vector<qint32> tabel;
    QCOMPARE(FoutVan([&] { BuildHashTable(Zien({"a", ""}), tabel); }), int{Fout::IndexBuitenBereik});
}

RASTER_TEST(tst_mdlArray)
#include "tst_mdlArray.moc"
