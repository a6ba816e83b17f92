#include "generators/clsWordSearch.h"
#include "platform/CodePage.h"
#include "platform/Kleur.h"
#include "platform/Toeval.h"
#include "support/PixelBox.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <random>

using namespace Qt::StringLiterals;

/// A word search that notes the words that fit nowhere, and goes on without them.
class Zoeker : public clsWordSearch
{
public:
    Zoeker(int breedte, int hoogte, const QStringList &woorden)
    {
        SetGridWidth(static_cast<qint16>(breedte));
        SetGridHeight(static_cast<qint16>(hoogte));
        for (const QString &woord : woorden)
            Words.Add(woord);
        CannotFitWord = [this](const QString &woord, bool &gaDoor) {
            Overgeslagen += woord;
            gaDoor = true;
        };
    }
    QString MakeMetZaad(std::uint32_t zaad)
    {
        Overgeslagen.clear();
        Toeval::Zaad(zaad);
        return Make();
    }

    QStringList Overgeslagen;
};

/// The making of a grid as it is told, step by step, without any thought of speed.
struct Nagebouwd
{
    int Breedte, Hoogte;
    QString Raster = {};
    QStringList Overgeslagen = {};

    QChar Vak(int p) const { return Raster[p - 1]; }
    static bool Naar(int d, std::initializer_list<int> richtingen) { return std::ranges::count(richtingen, d) > 0; }
    bool Kan(int p, int d) const
    {
        const int kolom = (p - 1) % Breedte + 1, rij = (p - 1) / Breedte + 1;
        return !(Naar(d, {8, 1, 2}) && rij == 1) && !(Naar(d, {6, 5, 4}) && rij == Hoogte) &&
               !(Naar(d, {8, 7, 6}) && kolom == 1) && !(Naar(d, {2, 3, 4}) && kolom == Breedte);
    }
    int Volgend(int p, int d) const
    {
        if (Naar(d, {8, 1, 2}))
            p -= Breedte;
        if (Naar(d, {6, 5, 4}))
            p += Breedte;
        return p + Naar(d, {2, 3, 4}) - Naar(d, {8, 7, 6});
    }
    bool Past(const QString &woord, int p, int d) const
    {
        if (woord.left(1) == Vak(1) || Vak(p) != u' ')
            return false;
        for (int i = 1;;) {
            if (!Kan(p, d))
                return false;
            p = Volgend(p, d);
            if (woord.mid(i - 1, 1) == Vak(p) || Vak(p) != u' ')
                return false;
            if (++i == woord.size())
                return true;
        }
    }
    static int Kies(const QList<int> &keuze) { return keuze[static_cast<int>(Toeval::Rnd() * double(keuze.size()))]; }
    bool Plaats(const QString &woord)
    {
        QMap<int, QList<int>> kansen;
        for (int p = 1; p <= Breedte * Hoogte; ++p)
            for (int d = 1; d <= 8; ++d)
                if (Past(woord, p, d))
                    kansen[p] += d;
        if (kansen.isEmpty())
            return false;
        int p = Kies(kansen.keys());
        const int d = Kies(kansen[p]);
        for (const QChar letter : woord) {
            Raster[p - 1] = letter;
            p = Volgend(p, d);
        }
        return true;
    }
    /// @param geeftOp the word at which it is given up
    QString Maak(const QStringList &woorden, const std::optional<QString> &geeftOp)
    {
        Raster = QString(Breedte * Hoogte, u' ');
        for (const QString &woord : woorden) {
            if (Plaats(woord))
                continue;
            Overgeslagen += woord;
            if (woord == geeftOp)
                return {};
        }
        for (QChar &vak : Raster)
            if (vak == u' ')
                vak = QChar(u'A' + static_cast<int>(Toeval::Rnd() * 26));
        return Raster;
    }
};

/// Words of few different letters, so that their first letters often meet position 1; some are blank, short or too
/// long.
static QStringList VreemdeWoorden(std::mt19937 &willekeurig, int hoogstens)
{
    static constexpr QStringView Letters = u"ABCDEFabcdef éÿ ";
    QStringList woorden;
    for (auto nog = willekeurig() % static_cast<unsigned>(hoogstens + 1); nog > 0; --nog) {
        QString woord;
        for (auto letters = willekeurig() % 9; letters > 0; --letters)
            woord += Letters[static_cast<qsizetype>(willekeurig() % (willekeurig() % 4 == 0 ? 16 : 12))];
        woorden += woord;
    }
    return woorden;
}

/// A word whose letters occur in no other one.
static QString EigenWoord(int nummer, int lengte)
{
    QString woord;
    for (int i = 0; i < lengte; ++i)
        woord += QChar(0xE000 + nummer * 16 + i);
    return woord;
}

/// Whether a word of such letters lies in the grid on one straight line, with each of its letters there just once.
static bool LigtRecht(const QString &raster, int breedte, const QString &woord)
{
    QList<QPoint> plaatsen;
    for (const QChar letter : woord) {
        if (raster.count(letter) != 1)
            return false;
        const int plaats = static_cast<int>(raster.indexOf(letter));
        plaatsen += QPoint(plaats % breedte, plaats / breedte);
    }
    const QPoint stap = plaatsen[1] - plaatsen[0];
    if (stap.isNull() || std::abs(stap.x()) > 1 || std::abs(stap.y()) > 1)
        return false;
    for (int i = 1; i < plaatsen.size(); ++i)
        if (plaatsen[i] - plaatsen[i - 1] != stap)
            return false;
    return true;
}

/// A surface of 160 by 120 pixels that notes what is done with it.
class Notities : public Canvas
{
public:
    void Cls() override { Regels += u"Cls %1"_s.arg(ForeColor, 0, 16); }
    QStringList Regels;

protected:
    QSize MaatInPixels() const override { return {160, 120}; }
    void MetPainter(const std::function<void(QPainter &)> &) override
    {
        Regels += u"letter %1 %2 %3"_s.arg(CurrentX, 0, 'f', 6).arg(CurrentY, 0, 'f', 6).arg(ForeColor, 0, 16);
    }
    void Vul(QRect vlak, QRgb kleur) override
    {
        Regels += u"lijn %1 %2 %3 %4 %5"_s.arg(vlak.left())
                      .arg(vlak.top())
                      .arg(vlak.right())
                      .arg(vlak.bottom())
                      .arg(kleur, 0, 16);
    }
    void Plak(const QImage &, QRect, QRect, PlakWijze) override { Regels += u"plaatje"_s; }
};

/// A surface that cannot be drawn on.
class Kapot : public Notities
{
public:
    void Cls() override { throw std::bad_alloc(); }
};

class tst_clsWordSearch : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        bank_ = std::make_unique<Testbank>();
        WoordzoekerRaster = u"vorige"_s;
    }
    void cleanup() { Toeval::ZonderZaad(); }

    // --- making ---

    void aSeedGivesOneGrid()
    {
        Zoeker zoeker(5, 4, {u"aap"_s, u"noot"_s, u"mies"_s, u"vuur"_s, u"te lang"_s});
        QCOMPARE(zoeker.MakeMetZaad(1), u"miesDGpaaCvuurKnootE"_s);
        QCOMPARE(zoeker.Overgeslagen, QStringList{u"te lang"_s});
        QCOMPARE(zoeker.MakeMetZaad(2), u"nsKIvoeIauoiEautmFpr"_s);
        QCOMPARE(zoeker.MakeMetZaad(1), u"miesDGpaaCvuurKnootE"_s);
    }

    void theGridIsMadeByTheToldSteps()
    {
        std::mt19937 willekeurig(5);
        int opgegeven = 0, overgeslagen = 0;
        for (std::uint32_t zaad = 0; zaad < 1000; ++zaad) {
            const bool groot = zaad % 50 == 0;
            const int breedte = zaad == 0 ? 16 : 2 + static_cast<int>(willekeurig() % (groot ? 15 : 6));
            const int hoogte = zaad == 0 ? 19 : 2 + static_cast<int>(willekeurig() % (groot ? 18 : 6));
            const QStringList woorden = VreemdeWoorden(willekeurig, groot ? 40 : 10);
            std::optional<QString> geeftOp;
            if (zaad % 3 == 0 && !woorden.isEmpty())
                geeftOp = woorden.last();
            Zoeker zoeker(breedte, hoogte, woorden);
            zoeker.CannotFitWord = [&](const QString &woord, bool &gaDoor) {
                QVERIFY(!gaDoor);
                zoeker.Overgeslagen += woord;
                gaDoor = woord != geeftOp;
            };
            const QString raster = zoeker.MakeMetZaad(zaad);
            const double volgende = Toeval::Rnd();
            Toeval::Zaad(zaad);
            Nagebouwd nagebouwd{breedte, hoogte};
            QCOMPARE(raster, nagebouwd.Maak(woorden, geeftOp));
            QCOMPARE(zoeker.Overgeslagen, nagebouwd.Overgeslagen);
            QCOMPARE(volgende, Toeval::Rnd()); // not a draw more
            opgegeven += raster.isEmpty();
            overgeslagen += !zoeker.Overgeslagen.isEmpty();
        }
        QVERIFY2(opgegeven > 100 && overgeslagen > 500, qPrintable(u"%1 %2"_s.arg(opgegeven).arg(overgeslagen)));
    }

    void everyPlacedWordCanBeReadBack()
    {
        std::mt19937 willekeurig(9);
        int geplaatst = 0, overgeslagen = 0;
        for (std::uint32_t zaad = 0; zaad < 10'000; ++zaad) {
            const int breedte = 2 + static_cast<int>(willekeurig() % 7),
                      hoogte = 2 + static_cast<int>(willekeurig() % 8);
            QStringList woorden;
            for (int i = 0, aantal = 1 + static_cast<int>(willekeurig() % 8); i < aantal; ++i)
                woorden += EigenWoord(i, 2 + static_cast<int>(willekeurig() % 8));
            Zoeker zoeker(breedte, hoogte, woorden);
            const QString raster = zoeker.MakeMetZaad(zaad);
            QCOMPARE(raster.size(), qsizetype{breedte} * hoogte);
            QCOMPARE(WoordzoekerRaster, raster);
            qsizetype letters = 0;
            for (const QString &woord : woorden) {
                if (zoeker.Overgeslagen.contains(woord)) {
                    QVERIFY(!raster.contains(woord.front()));
                    ++overgeslagen;
                    continue;
                }
                QVERIFY2(LigtRecht(raster, breedte, woord), qPrintable(QString::number(zaad)));
                letters += woord.size();
                ++geplaatst;
            }
            QCOMPARE(std::ranges::count_if(raster, [](QChar vak) { return vak >= u'A' && vak <= u'Z'; }),
                     raster.size() - letters);
        }
        QVERIFY2(geplaatst > 10'000 && overgeslagen > 5000, qPrintable(u"%1 %2"_s.arg(geplaatst).arg(overgeslagen)));
    }

    void theTwelveWaysInAGridOfFourAreEquallyLikely()
    {
        Zoeker zoeker(2, 2, {u"ab"_s});
        QMap<QString, int> wegen;
        constexpr int Keren = 12'000;
        for (std::uint32_t zaad = 0; zaad < Keren; ++zaad) {
            QString raster = zoeker.MakeMetZaad(zaad);
            for (QChar &vak : raster)
                vak = vak.isLower() ? vak : u'.';
            ++wegen[raster];
        }
        QCOMPARE(wegen.size(), 12);
        const double verwacht = Keren / 12.0;
        double chi = 0;
        for (const int aantal : wegen)
            chi += (aantal - verwacht) * (aantal - verwacht) / verwacht;
        QVERIFY2(chi < 31.26, qPrintable(QString::number(chi))); // eleven degrees of freedom, 0.1%
    }

    void emptyCellsTakeEachCapitalEquallyOften()
    {
        QMap<QChar, int> letters;
        for (std::uint32_t zaad = 0; zaad < 100; ++zaad)
            for (const QChar letter : Zoeker(16, 16, {}).MakeMetZaad(zaad))
                ++letters[letter];
        QCOMPARE(letters.size(), 26);
        QCOMPARE(letters.firstKey(), u'A');
        QCOMPARE(letters.lastKey(), u'Z');
        const double verwacht = 25'600 / 26.0;
        double chi = 0;
        for (const int aantal : letters)
            chi += (aantal - verwacht) * (aantal - verwacht) / verwacht;
        QVERIFY2(chi < 52.62, qPrintable(QString::number(chi))); // 25 degrees of freedom, 0.1%
    }

    void noWordBeginsWithTheLetterAtTheTopLeft_data()
    {
        QTest::addColumn<QString>("eerste");
        QTest::addColumn<QString>("tweede");
        Geval("the first letter there", u"ax"_s, u"ay"_s);
        Geval("the last letter there", u"xa"_s, u"ay"_s);
    }
    void noWordBeginsWithTheLetterAtTheTopLeft()
    {
        QFETCH(QString, eerste);
        QFETCH(QString, tweede);
        Zoeker zoeker(3, 3, {eerste, tweede}); // with room for both wherever the first lies
        int geweigerd = 0;
        for (std::uint32_t zaad = 0; zaad < 300; ++zaad) {
            const QString raster = zoeker.MakeMetZaad(zaad);
            if (raster.contains(u'y')) {
                QCOMPARE(zoeker.Overgeslagen, QStringList());
                continue;
            }
            QCOMPARE(raster[0], u'a');
            QCOMPARE(zoeker.Overgeslagen, QStringList{tweede});
            ++geweigerd;
        }
        QVERIFY2(geweigerd > 10 && geweigerd < 150, qPrintable(QString::number(geweigerd)));
    }

    void someWordsCanNeverBePlaced_data()
    {
        QTest::addColumn<QString>("woord");
        Geval("empty", u""_s);
        Geval("one letter", u"a"_s);
        Geval("a blank inside", u"a b"_s);
        Geval("a blank in front", u" ab"_s);
        Geval("two blanks", u"  "_s);
        Geval("longer than the grid", u"abcdef"_s);
    }
    void someWordsCanNeverBePlaced()
    {
        QFETCH(QString, woord);
        for (std::uint32_t zaad = 0; zaad < 50; ++zaad) {
            Zoeker zoeker(5, 5, {u"xy"_s, woord, u"zw"_s});
            const QString raster = zoeker.MakeMetZaad(zaad);
            QCOMPARE(zoeker.Overgeslagen, QStringList{woord});
            QCOMPARE(std::ranges::count_if(raster, [](QChar vak) { return vak.isLower(); }), 4);
        }
    }

    void aBlankAtTheEndTakesACellThatIsFilledLater()
    {
        Zoeker zoeker(3, 3, {u"ab "_s});
        const QString raster = zoeker.MakeMetZaad(1);
        QCOMPARE(zoeker.Overgeslagen, QStringList());
        QCOMPARE(std::ranges::count_if(raster, [](QChar vak) { return vak.isUpper(); }), 7);

        Zoeker lang(3, 3, {u"abc "_s}); // its blank needs a cell too
        lang.MakeMetZaad(1);
        QCOMPARE(lang.Overgeslagen, QStringList{u"abc "_s});
    }

    void aWordOfTheWholeSideFits()
    {
        for (std::uint32_t zaad = 0; zaad < 100; ++zaad) {
            Zoeker zoeker(2, 7, {EigenWoord(0, 7), EigenWoord(1, 7), EigenWoord(2, 2)});
            const QString raster = zoeker.MakeMetZaad(zaad);
            QCOMPARE(zoeker.Overgeslagen, QStringList{EigenWoord(2, 2)});
            QVERIFY(LigtRecht(raster, 2, EigenWoord(0, 7)) && LigtRecht(raster, 2, EigenWoord(1, 7)));
        }
    }

    void aLineEndBehindTheLastWordIsAnEmptyWordThatCannotBePlaced()
    {
        Zoeker zoeker(9, 9, {});
        zoeker.Words.AddFromString(u"aap\r\n"_s);
        QCOMPARE(zoeker.MakeMetZaad(1).size(), 81);
        QCOMPARE(zoeker.Overgeslagen, QStringList{QString()});
    }

    void whoDoesNotGoOnGetsNoGrid_data()
    {
        QTest::addColumn<bool>("gehoord");
        Geval("heard", true);
        Geval("nobody hears", false);
    }
    void whoDoesNotGoOnGetsNoGrid()
    {
        QFETCH(bool, gehoord);
        Zoeker zoeker(4, 4, {u"te lang"_s, u"aap"_s});
        int keren = 0;
        zoeker.CannotFitWord = nullptr;
        if (gehoord)
            zoeker.CannotFitWord = [&](QString &, bool &) { ++keren; };
        QCOMPARE(zoeker.MakeMetZaad(4), QString());
        QCOMPARE(keren, gehoord ? 1 : 0);
        QCOMPARE(WoordzoekerRaster, u"vorige"_s);
        const double volgende = Toeval::Rnd();
        Toeval::Zaad(4);
        QCOMPARE(volgende, Toeval::Rnd()); // nothing was filled
        zoeker.Save(Pad());
        QVERIFY(!QFile::exists(Pad()));
    }

    void aWordThatTheListenerChangesStaysInTheList()
    {
        Zoeker zoeker(4, 4, {u"te lang"_s});
        zoeker.CannotFitWord = [](QString &woord, bool &gaDoor) {
            woord = u"aap"_s;
            gaDoor = true;
        };
        zoeker.Make();
        QCOMPARE(zoeker.Words.JoinWords(), u"te lang"_s);
    }

    void makingAgainGivesAnotherGrid()
    {
        Zoeker zoeker(16, 19, {u"AMSTERDAM"_s});
        const QString eerste = zoeker.Make();
        QVERIFY(zoeker.Make() != eerste);
        QVERIFY(Zoeker(16, 19, {}).Make() != Zoeker(16, 19, {}).Make());
    }

    // --- sizes and failures ---

    void sizesUnderTwoAreRefused()
    {
        Zoeker zoeker(7, 9, {});
        for (const qint16 maat : {qint16{1}, qint16{0}, qint16{-1}, std::numeric_limits<qint16>::min()}) {
            ControleerFout([&] { zoeker.SetGridHeight(maat); }, 1, u"WordSearch - GridHeight"_s,
                           u"You have entered an invalid grid height, it must be more then 1."_s);
            ControleerFout([&] { zoeker.SetGridWidth(maat); }, 2, u"WordSearch - GridWidth"_s,
                           u"You have entered an invalid grid width, it must be more then 1."_s);
        }
        QCOMPARE(zoeker.GridWidth(), qint16{7});
        QCOMPARE(zoeker.GridHeight(), qint16{9});
        zoeker.SetGridWidth(2);
        zoeker.SetGridHeight(3);
        QCOMPARE(zoeker.GridWidth(), qint16{2});
        QCOMPARE(zoeker.GridHeight(), qint16{3});
    }

    void moreCellsThanSixteenBitsAreRefused()
    {
        Zoeker zoeker(2, 2, {});
        const QString raster = zoeker.MakeMetZaad(1);
        for (const auto &[breedte, hoogte] : {std::pair{256, 128}, std::pair{32767, 2}, std::pair{32767, 32767}}) {
            zoeker.SetGridWidth(static_cast<qint16>(breedte));
            zoeker.SetGridHeight(static_cast<qint16>(hoogte));
            QCOMPARE(FoutVan([&] { zoeker.Make(); }), int{Fout::Overloop});
        }
        QCOMPARE(WoordzoekerRaster, raster);
        Notities canvas; // the grid is still there
        zoeker.Canvas = &canvas;
        zoeker.SetGridWidth(2);
        zoeker.SetGridHeight(2);
        zoeker.Draw();
        QCOMPARE(canvas.Regels.filter(u"letter"_s).size(), 4);
        zoeker.Save(Pad());
        QVERIFY(bank_->Inhoud(u"zoeker.txt"_s).endsWith("\r\n" + Files::NaarBytes(raster) + "\r\n"));
        Zoeker grootste(16383, 2, {});
        QCOMPARE(grootste.Make().size(), 32766);
    }

    void withoutSizesThereAreNoCells()
    {
        clsWordSearch zoeker;
        QCOMPARE(zoeker.Make(), QString());
        zoeker.Words.Add(u"aap"_s);
        QCOMPARE(zoeker.Make(), QString());
    }

    void itStartsEmpty()
    {
        clsWordSearch zoeker;
        QCOMPARE(zoeker.Words.Count(), 0);
        QCOMPARE(zoeker.SrchName, QString());
        QCOMPARE(zoeker.FontColor, RGB(0, 0, 0));
        QVERIFY(!zoeker.Canvas);
    }

    // --- files ---

    void thePuzzleIsSavedByteForByte()
    {
        Zoeker zoeker(3, 2, {u"ab"_s, u""_s, u"é€"_s});
        zoeker.SrchName = u"Mijn \"zoeker\", één"_s;
        const QString raster = zoeker.MakeMetZaad(3);
        WoordzoekerRaster = u"van een ander"_s;
        bank_->Schrijf(u"zoeker.txt"_s,
                       "een oud en veel langer bestand, waar niets van overblijft: " + QByteArray(200, 'x'));
        zoeker.Save(Pad());
        QCOMPARE(bank_->Inhoud(u"zoeker.txt"_s), "Mijn \"zoeker\", \xE9\xE9n\r\n3\r\n2\r\n3\r\nab\r\n\r\n\xE9\x80\r\n" +
                                                     Files::NaarBytes(raster) + "\r\n");
        QCOMPARE(raster.size(), 6);
    }

    void nothingIsSavedBeforeThereIsAGrid()
    {
        Zoeker zoeker(3, 2, {u"ab"_s});
        zoeker.Save(Pad());
        QVERIFY(!QFile::exists(Pad()));
        bank_->Schrijf(u"zoeker.txt"_s, "oud");
        zoeker.Save(Pad());
        QCOMPARE(bank_->Inhoud(u"zoeker.txt"_s), "oud");
    }

    void failuresOfFilesComeThrough()
    {
        Zoeker zoeker(3, 2, {});
        QCOMPARE(FoutVan([&] { zoeker.Load(Pad()); }), int{Fout::BestandNietGevonden});
        zoeker.Make();
        QVERIFY(FoutVan([&] { zoeker.Save(bank_->Map() + u"/geen map/zoeker.txt"_s); }) != 0);
    }

    void aLoadedPuzzleIsTheSavedOne()
    {
        Zoeker bewaard(4, 3, {u"ab"_s, u""_s, u"é€"_s, u" er al  "_s, u"ab"_s});
        bewaard.SrchName = u" Naam  "_s;
        bewaard.MakeMetZaad(8);
        WoordzoekerRaster = u"vorige"_s;
        PixelBox box, andere;
        bewaard.Canvas = &box;
        bewaard.Draw();
        bewaard.Save(Pad());

        Zoeker geladen(9, 9, {u"er al"_s});
        geladen.Canvas = &andere;
        geladen.Load(Pad());
        QCOMPARE(geladen.SrchName, u" Naam  "_s);
        QCOMPARE(geladen.GridWidth(), qint16{4});
        QCOMPARE(geladen.GridHeight(), qint16{3});
        QCOMPARE(geladen.Words.JoinWords(), u"er al\r\nab\r\n\r\né€\r\n er al  \r\nab"_s);
        QCOMPARE(andere.Image(), box.Image());
        QCOMPARE(WoordzoekerRaster, u"vorige"_s); // loading leaves it alone

        geladen.Words.Remove(1);
        geladen.Save(bank_->Map() + u"/weer.txt"_s);
        QCOMPARE(bank_->Inhoud(u"weer.txt"_s), bank_->Inhoud(u"zoeker.txt"_s));
    }

    void aPuzzleThatCannotBeDrawnIsLoadedAllTheSame()
    {
        Zoeker bewaard(4, 3, {u"ab"_s});
        bewaard.MakeMetZaad(8);
        bewaard.Save(Pad());
        Zoeker geladen(9, 9, {});
        ControleerFout(
            [&] { geladen.Load(Pad()); }, 4, u"WordSearch - Draw"_s,
            u"The canvas specified is not a valid drawing object, please set, for example a picture box or form."_s);
        PixelBox box;
        geladen.Canvas = &box;
        geladen.Draw();
        bewaard.Canvas = &box;
        const QImage beeld = box.Image();
        bewaard.Draw();
        QCOMPARE(beeld, box.Image());
    }

    void aFileThatStopsTooEarlyIsRefused()
    {
        const QByteArrayList regels{"Naam", "3", "2", "2", "ab", "cd", "ABCDEF"};
        for (qsizetype heel = 0; heel < regels.size(); ++heel) {
            bank_->Schrijf(u"zoeker.txt"_s, heel == 0 ? QByteArray() : regels.first(heel).join("\r\n") + "\r\n");
            Zoeker zoeker(5, 5, {u"er al"_s});
            zoeker.SrchName = u"vorige"_s;
            const QString raster = zoeker.MakeMetZaad(1);
            Notities canvas;
            zoeker.Canvas = &canvas;
            QCOMPARE(FoutVan([&] { zoeker.Load(Pad()); }), 62);
            QCOMPARE(zoeker.SrchName, heel < 1 ? u"vorige"_s : u"Naam"_s); // what was read stays
            QCOMPARE(zoeker.GridWidth(), static_cast<qint16>(heel < 2 ? 5 : 3));
            QCOMPARE(zoeker.GridHeight(), static_cast<qint16>(heel < 3 ? 5 : 2));
            QCOMPARE(zoeker.Words.Count(), 1 + std::max(0, static_cast<int>(heel) - 4));
            QCOMPARE(canvas.Regels, QStringList());
            zoeker.Save(bank_->Map() + u"/weer.txt"_s); // of the grid nothing was read
            QVERIFY(bank_->Inhoud(u"weer.txt"_s).endsWith("\r\n" + Files::NaarBytes(raster) + "\r\n"));
        }
    }

    void theGridOfAFileIsReadBeforeItsCellsAreCounted()
    {
        const QByteArray inhoud = "N\r\n256\r\n128\r\n0\r\n  AB \r\n";
        bank_->Schrijf(u"zoeker.txt"_s, inhoud);
        Zoeker zoeker(5, 5, {});
        QCOMPARE(FoutVan([&] { zoeker.Load(Pad()); }), int{Fout::Overloop});
        zoeker.Save(bank_->Map() + u"/weer.txt"_s);
        QCOMPARE(bank_->Inhoud(u"weer.txt"_s), inhoud);
    }

    void oddFilesAreReadOrRefused_data()
    {
        constexpr int Eigen = static_cast<int>(0x80040000);
        QTest::addColumn<QByteArray>("inhoud");
        QTest::addColumn<int>("fout");
        QTest::addColumn<int>("woorden");
        const auto rij = [](const char *naam, const char *inhoud, int fout, int woorden) {
            Geval(naam, QByteArray(inhoud), fout, woorden);
        };
        rij("whole", "N\r\n3\r\n2\r\n1\r\nab\r\nABCDEF\r\n", 0, 1);
        rij("no line end behind the last line", "N\r\n3\r\n2\r\n1\r\nab\r\nABCDEF", 0, 1);
        rij("other line ends", "N\n3\r2\n1\rab\nABCDEF\n", 0, 1);
        rij("a number with words behind it", "N\r\n3\r\n2\r\n1 woord\r\nab\r\nABCDEF", 0, 1);
        rij("no count", "N\r\n3\r\n2\r\n\r\nABCDEF", 0, 0);
        rij("a count below zero", "N\r\n3\r\n2\r\n-5\r\nABCDEF", 0, 0);
        rij("a count that is too small", "N\r\n3\r\n2\r\n1\r\nab\r\ncd\r\nABCDEF", 0, 1);
        rij("a count that is too large", "N\r\n3\r\n2\r\n3\r\nab\r\nABCDEF", 62, 2);
        rij("a count beyond all numbers", "N\r\n3\r\n2\r\n1e999\r\nab\r\nABCDEF", 0, 1);
        rij("a count of 400 digits", ("N\r\n3\r\n2\r\n" + QByteArray(400, '9') + "\r\nab\r\nABCDEF").constData(), 62,
            2);
        rij("a grid that is too short", "N\r\n3\r\n2\r\n0\r\nABC", 0, 0);
        rij("a grid that is too long", "N\r\n3\r\n2\r\n0\r\nABCDEFGHIJ", 0, 0);
        rij("a width of one", "N\r\n1\r\n2\r\n0\r\nAB", Eigen + 2, 0);
        rij("a height of one", "N\r\n2\r\n1\r\n0\r\nAB", Eigen + 1, 0);
        rij("a height below zero", "N\r\n2\r\n-4\r\n0\r\nAB", Eigen + 1, 0);
        rij("a width in letters", "N\r\ndrie\r\n2\r\n0\r\nAB", 13, 0);
        rij("a width beyond 16 bits", "N\r\n32768\r\n2\r\n0\r\nAB", 6, 0);
        rij("too many cells", "N\r\n256\r\n128\r\n1\r\nab\r\nAB", 6, 1);
    }
    void oddFilesAreReadOrRefused()
    {
        QFETCH(QByteArray, inhoud);
        bank_->Schrijf(u"zoeker.txt"_s, inhoud);
        Zoeker zoeker(5, 5, {});
        Notities canvas;
        zoeker.Canvas = &canvas;
        QTEST(FoutVan([&] { zoeker.Load(Pad()); }), "fout");
        QTEST(int{zoeker.Words.Count()}, "woorden");
        QFETCH(int, fout);
        QCOMPARE(canvas.Regels.isEmpty(), fout != 0);
    }

    // --- drawing ---

    void theLettersStandInTheMiddleOfTheirCellsAndTheLinesBetweenThem()
    {
        Notities canvas;
        Zoeker zoeker(3, 2, {});
        zoeker.Canvas = &canvas;
        zoeker.FontColor = RGB(1, 2, 3);
        zoeker.GridColor = QVariant::fromValue(RGB(255, 0, 0));
        const QString raster = zoeker.MakeMetZaad(6);
        zoeker.Draw();

        // Four by three units on 160 by 120 pixels: a cell is 40 by 40.
        const QFontMetricsF maten(Lettertype(u"Arial"_s, 8.25, false));
        QStringList verwacht{u"Cls ff000000"_s}; // before the colour is set
        for (int i = 0; i < 6; ++i) {
            const double x = i % 3 + 1 - maten.horizontalAdvance(raster[i]) / 40 / 2;
            const double y = i / 3 + 1 - std::round(maten.ascent() + maten.descent()) / 40 / 2;
            verwacht += u"letter %1 %2 ff010203"_s.arg(x, 0, 'f', 6).arg(y, 0, 'f', 6);
        }
        for (const int y : {20, 60, 100, 140})
            verwacht += u"lijn 20 %1 140 %1 ff969696"_s.arg(y);
        for (const int x : {20, 60, 100, 140, 180})
            verwacht += u"lijn %1 20 %1 100 ff969696"_s.arg(x);
        QCOMPARE(canvas.Regels.join(u'\n'), verwacht.join(u'\n'));
        QCOMPARE(canvas.ForeColor, RGB(150, 150, 150));
        QCOMPARE(canvas.ScaleMode(), ScaleModes::User);
    }

    void aBoxShowsTheGrid()
    {
        PixelBox box(150, 110);
        box.ZetLetter({.Punten = 12, .Vet = true});
        Zoeker zoeker(5, 4, {u"ijs"_s, u"wel"_s});
        zoeker.Canvas = &box;
        zoeker.FontColor = RGB(0, 0, 200);
        box.BoxFull(0, 0, 149, 109, RGB(9, 9, 9)); // it goes
        const QString raster = zoeker.MakeMetZaad(6);
        WoordzoekerRaster = u"van een ander"_s;
        zoeker.Draw();
        QCOMPARE(box.Image(), Getekend(raster, 5, {150, 110}, RGB(0, 0, 200)));
        zoeker.SetGridWidth(9); // the cells go on in the new width
        zoeker.Draw();
        QCOMPARE(box.Image(), Getekend(raster + QString(16, u' '), 9, {150, 110}, RGB(0, 0, 200)));
    }

    void allCellsThatWereMadeAreDrawnInASmallerSizeToo()
    {
        Notities canvas;
        Zoeker zoeker(5, 4, {});
        zoeker.Canvas = &canvas;
        zoeker.MakeMetZaad(6);
        zoeker.SetGridHeight(2);
        zoeker.Draw();
        QCOMPARE(canvas.Regels.filter(u"letter"_s).size(), 20);
        QCOMPARE(canvas.Regels.filter(u"lijn"_s).size(), 4 + 7);
    }

    void withoutCellsThereAreOnlyLines()
    {
        Notities canvas;
        clsWordSearch zoeker;
        zoeker.Canvas = &canvas;
        zoeker.Draw();
        QCOMPARE(canvas.Regels.filter(u"letter"_s), QStringList());
        QCOMPARE(canvas.Regels.filter(u"lijn"_s).size(), 4);
    }

    void aCanvasThatCannotBeDrawnOnIsTold()
    {
        Zoeker zoeker(3, 2, {});
        const QString bron = u"WordSearch - Draw"_s;
        const QString tekst =
            u"The canvas specified is not a valid drawing object, please set, for example a picture box or form."_s;
        ControleerFout([&] { zoeker.Draw(); }, 4, bron, tekst);
        Kapot kapot;
        zoeker.Canvas = &kapot;
        ControleerFout([&] { zoeker.Draw(); }, 4, bron, tekst);
        QCOMPARE(kapot.Regels, QStringList());
        PixelBox leeg(0, 0);
        zoeker.Canvas = &leeg;
        ControleerFout([&] { zoeker.Draw(); }, 4, bron, tekst);
    }

private:
    QString Pad() const { return bank_->Map() + u"/zoeker.txt"_s; }

    template <class Opdracht>
    static void ControleerFout(Opdracht &&opdracht, int nummer, const QString &bron, const QString &tekst)
    {
        try {
            opdracht();
        } catch (const Fout &fout) {
            QCOMPARE(static_cast<quint32>(fout.nummer()), 0x80040000U + static_cast<quint32>(nummer));
            QCOMPARE(fout.bron(), bron);
            QCOMPARE(fout.tekst(), tekst);
            return;
        }
        QFAIL("no failure");
    }

    /// A grid in Arial 12 bold, drawn without any canvas.
    static QImage Getekend(const QString &raster, int breedte, QSize maat, QRgb kleur)
    {
        const int hoogte = static_cast<int>(raster.size()) / breedte;
        const double vakX = maat.width() / (breedte + 1.0), vakY = maat.height() / (hoogte + 1.0);
        QImage beeld(maat, QImage::Format_RGB32);
        beeld.fill(Qt::white);
        QPainter painter(&beeld);
        const QFont font = Lettertype(u"Arial"_s, 12, true);
        const QFontMetricsF maten(font);
        painter.setFont(font);
        painter.setPen(QColor(kleur));
        for (int i = 0; i < raster.size(); ++i) {
            const double x = (i % breedte + 1) * vakX - maten.horizontalAdvance(raster[i]) / 2;
            const double y = (i / breedte + 1) * vakY - std::round(maten.ascent() + maten.descent()) / 2;
            painter.drawText(QPointF(std::round(x), std::round(y) + std::round(maten.ascent())), raster[i]);
        }
        const auto links = static_cast<int>(std::lround(vakX / 2)), boven = static_cast<int>(std::lround(vakY / 2));
        const auto rechts = static_cast<int>(std::lround((breedte + 0.5) * vakX));
        const auto onder = static_cast<int>(std::lround((hoogte + 0.5) * vakY));
        for (int rij = 0; rij <= hoogte; ++rij) {
            const auto y = static_cast<int>(std::lround((rij + 0.5) * vakY));
            painter.fillRect(QRect(QPoint(links, y), QPoint(rechts, y)), QColor(150, 150, 150));
        }
        for (int kolom = 0; kolom <= breedte; ++kolom) {
            const auto x = static_cast<int>(std::lround((kolom + 0.5) * vakX));
            painter.fillRect(QRect(QPoint(x, boven), QPoint(x, onder)), QColor(150, 150, 150));
        }
        return beeld;
    }

    std::unique_ptr<Testbank> bank_;
};

RASTER_TEST(tst_clsWordSearch)
#include "tst_clsWordSearch.moc"
