#include "support/Verloop.h"
#include "support/Woordbord.h"
#include "wordlib/Overdracht.h"
#include "wordlib/ZoekForm.h"

using namespace Qt::StringLiterals;

/// A word in its file, with lines to fill up the alphabet.
static QByteArray Database(const QByteArrayList &woorden)
{
    return Regels(Opvulling(woorden) + woorden);
}

/// The window over a database.
struct Zoekvenster
{
    Woordbord Bord;
    ZoekForm Form;

    explicit Zoekvenster(const QByteArray &database) : Bord(database) {}

    void Kies(int wijze, const QString &trefwoord)
    {
        Form.Option1[wijze]->setChecked(true);
        Form.Text1->setText(trefwoord);
    }
    /// What is found, as a person sees it.
    QString Zoek(int wijze, const QString &trefwoord)
    {
        Kies(wijze, trefwoord);
        Form.Knop->click();
        return Form.List1->Items().join(u' ');
    }
    /// The list, the count and the busy sign.
    QString Gezien() const
    {
        const QString gezien = Form.List1->Items().join(u' ') + u' ' + Form.Label5->Caption().mid(17) +
                               (Form.Picture1->isHidden() ? QString() : u" Wacht"_s);
        return gezien.trimmed();
    }
};

class tst_ZoekFormKnop : public QObject
{
    Q_OBJECT
private slots:
    void theLengthOfTheKeyIsShown_data()
    {
        QTest::addColumn<QString>("getypt");
        QTest::addColumn<QString>("trefwoord");
        QTest::addColumn<QString>("opschrift");
        Geval("a word", "kat", "kat", "Trefwoord (3)");
        Geval("blanks at the ends", "  kat ", "kat", "Trefwoord (3)");
        Geval("blanks alone", "   ", "", "Trefwoord (0)");
        Geval("a blank inside", "op een", "op een", "Trefwoord (6)");
        Geval("a tab is no blank", "\tkat", "\tkat", "Trefwoord (4)");
        Geval("19", "abcdefghijklmnopqrs", "abcdefghijklmnopqrs", "Trefwoord (19)");
    }
    void theLengthOfTheKeyIsShown()
    {
        QFETCH(QString, getypt);
        Zoekvenster venster("aal");
        venster.Form.Text1->setText(getypt);
        QTEST(venster.Form.Text1->text(), "trefwoord");
        QTEST(venster.Form.Label4->Caption(), "opschrift");
    }

    void aBlankAtTheEndCannotBeTyped()
    {
        Zoekvenster venster("aal");
        QTest::keyClicks(venster.Form.Text1, u"ka t "_s);
        QCOMPARE(venster.Form.Text1->text(), u"kat"_s);
        QCOMPARE(venster.Form.Label4->Caption(), u"Trefwoord (3)"_s);
        QTest::keyClicks(venster.Form.Text1, QString(30, u'x'));
        QCOMPARE(venster.Form.Text1->text(), u"kat"_s + QString(16, u'x'));
        QCOMPARE(venster.Form.Label4->Caption(), u"Trefwoord (19)"_s);
    }

    void whatIsTypedInTheMiddleStaysThere()
    {
        Zoekvenster venster("aal");
        venster.Form.Text1->setText(u"kat"_s);
        QTest::keyClick(venster.Form.Text1, Qt::Key_Home);
        QTest::keyClicks(venster.Form.Text1, u"ra"_s);
        QCOMPARE(venster.Form.Text1->text(), u"rakat"_s);
    }

    void aKeyOfLessThanThreeLetters_data()
    {
        QTest::addColumn<int>("wijze");
        QTest::addColumn<QString>("trefwoord");
        for (int wijze = 0; wijze <= 2; ++wijze)
            for (const char *trefwoord : {"", "   ", "ka", " ka "})
                Geval(QByteArray::number(wijze) + " '" + trefwoord + "'", wijze, trefwoord);
    }
    void aKeyOfLessThanThreeLetters()
    {
        QFETCH(int, wijze);
        QFETCH(QString, trefwoord);
        Zoekvenster venster("kat");
        venster.Zoek(3, u"kat"_s);
        venster.Kies(wijze, trefwoord);
        venster.Form.Knop->setFocus();
        const Stand ervoor = StandVan(venster.Form);
        Verloop verloop([&] { return venster.Gezien(); });
        verloop.Volg(*venster.Form.List1);
        venster.Form.Knop->click();
        QCOMPARE(verloop.Stappen, QStringList{u"Rasteratelier: Minimaal 3 letters intypen a.u.b. | kat (1)"_s});
        QCOMPARE(venster.Form.focusWidget(), venster.Form.Text1);
        QCOMPARE(Verschil(ervoor, StandVan(venster.Form)), u"Focus"_s); // the list stays, and so does the key
        QVERIFY(!Zandloper());
    }

    void theStepsOfASearch_data()
    {
        QTest::addColumn<int>("wijze");
        QTest::addColumn<QString>("trefwoord");
        QTest::addColumn<QStringList>("stappen");
        QTest::addColumn<QString>("erna");
        for (const auto &[naam, wijze, trefwoord] :
             {std::tuple{"letters", 0, "kat"}, {"begin", 1, "kat"}, {"end", 2, "Kat"}}) {
            const QStringList begin{u"lijst | (9) Wacht"_s, u"0.2 s | (9) Wacht"_s};
            Geval(naam, wijze, trefwoord, begin + QStringList{u"lijst kat | zandloper kat (9) Wacht"_s}, u"kat (1)"_s);
            Geval(QByteArray(naam) + ", none", wijze, "xyz",
                  begin + QStringList{u"lijst | zandloper (9) Wacht"_s,
                                      u"Rasteratelier: Kan helaas geen woorden vinden! | (9) Wacht"_s},
                  u"(0)"_s);
        }
        const QStringList begin{u"lijst | (9)"_s, u"0.2 s | (9)"_s};
        Geval("part", 3, "KA", begin + QStringList{u"lijst kat | zandloper kat (9)"_s}, u"kat (1)"_s);
        Geval("part, none: it is not said", 3, "xyz", begin + QStringList{u"lijst | zandloper (9)"_s}, u"(0)"_s);
        Geval("vowels", 4, "Kat",
              QStringList{u"0.2 s | zandloper oud (9) Wacht"_s, u"0 s | zandloper oud (9) Wacht"_s,
                          u"lijst | zandloper (9) Wacht"_s, u"lijst aai | zandloper aai (9) Wacht"_s},
              u"aai (1)"_s);
    }
    void theStepsOfASearch()
    {
        QFETCH(int, wijze);
        QFETCH(QString, trefwoord);
        QFETCH(QStringList, stappen);
        Zoekvenster venster("kat\r\naai\r\n");
        venster.Form.List1->AddItem(u"oud"_s);
        venster.Form.Label5->SetCaption(u"Gevonden woorden (9)"_s);
        venster.Kies(wijze, trefwoord);
        venster.Form.Knop->setFocus();
        const Stand ervoor = StandVan(venster.Form);
        Verloop verloop([&] { return venster.Gezien(); });
        verloop.Volg(*venster.Form.List1);
        venster.Form.Knop->click();
        QCOMPARE(verloop.Stappen, stappen);
        QTEST(venster.Gezien(), "erna");
        QCOMPARE(Verschil(ervoor, StandVan(venster.Form)), u"Label5 List1"_s); // way and key stay for the next one
        QCOMPARE(venster.Form.List1->ListIndex(), -1);
        QVERIFY(!Zandloper());
    }

    void noVowelsIsNotSaid()
    {
        Zoekvenster venster("kat");
        QCOMPARE(venster.Zoek(4, QString()), QString());
        QCOMPARE(venster.Form.Label5->Caption(), u"Gevonden woorden (0)"_s);
        QVERIFY(venster.Bord.Bank.Script.Gezien.isEmpty());
    }

    void whatIsFound_data()
    {
        QTest::addColumn<int>("wijze");
        QTest::addColumn<QByteArrayList>("woorden");
        QTest::addColumn<QString>("trefwoord");
        QTest::addColumn<QString>("gevonden");
        const auto rij = [](const char *naam, int wijze, const QByteArrayList &woorden, const QString &trefwoord,
                            const QString &gevonden) { Geval(naam, wijze, woorden, trefwoord, gevonden); };
        const QByteArrayList dieren{"tak", "kat", "kaart", "kater", "katten", "rat", "staart", "ab", "kat"};
        rij("letters", 0, dieren, u"taka"_s, u"kat kat tak"_s);
        rij("letters in capitals", 0, dieren, u"TAK"_s, u"kat kat tak"_s);
        rij("any letter, after the letters themselves", 0, {"ab", "ba", "bad", "dab", "cab", "abc", "bcd", "aaa"},
            u"ab?"_s, u"ab abc ba bad cab dab"_s);
        rij("letters: the first word of each letter isn't tried after a jump", 0, {"yes", "zee", "zeeg"}, u"geez"_s,
            u"zeeg"_s);
        rij("letters: a word that is too long doesn't jump", 0, {"katten", "lap"}, u"pal"_s, u"lap"_s);
        rij("letters: the last group is gone through to its end", 0, {"yen", "zaak", "zeeg", "zegt"}, u"gezet"_s,
            u"zeeg zegt"_s);
        rij("begin", 1, dieren, u"kat"_s, u"kat kat kater katten"_s);
        rij("begin with any letter", 1, dieren, u"ka?t"_s, u"katten"_s);
        rij("begin with wildcards behind the end of a word", 1, {"ab", "abc", "b"}, u"ab??"_s, u"ab abc"_s);
        rij("end", 2, dieren, u"art"_s, u"kaart staart"_s);
        rij("end in capitals", 2, dieren, u"ART"_s, u"kaart staart"_s);
        rij("end with any letter", 2, dieren, u"?at"_s, u"kat kat rat"_s);
        rij("part", 3, dieren, u"aa"_s, u"kaart staart"_s);
        rij("part in capitals", 3, dieren, u"AA"_s, u"kaart staart"_s);
        rij("part: a wildcard is a question mark", 3, {"wat?", "wat"}, u"t?"_s, u"wat?"_s);
        rij("part: lines with their blanks", 3, {" kat ", "kat"}, u"kat"_s, u" kat  kat"_s);
        rij("vowels", 4, {"kat", "oei", "koeien", "aaiui", "zeeen", "ijs"}, QString(),
            u"aaiui aaiui aaiui koeien koeien oei zeeen"_s);
        rij("vowels in the longest words", 4,
            {"aai4567890123456789", "bai45678901234567890", "aaiij678901234567890", "baaai"}, QString(),
            u"aai4567890123456789 baaai baaai"_s);
        rij("an accented letter is no vowel", 4,
            {"ze\xEB"
             "en",
             "re\xEB"
             "el"},
            QString(), QString());
        rij("accented letters", 2, {"zee\xEBn", "zeeen"}, u"EËN"_s, u"zeeën"_s);
        rij("quotes", 3, {"foto's", "fotos"}, u"o'"_s, u"foto's"_s);
        rij("quotes round a key", 3, {"\"aal\"", "aal"}, u"\"aal"_s, u"\"aal\""_s);
    }
    void whatIsFound()
    {
        QFETCH(int, wijze);
        QFETCH(QByteArrayList, woorden);
        QFETCH(QString, trefwoord);
        Zoekvenster venster(Database(woorden));
        QTEST(venster.Zoek(wijze, trefwoord), "gevonden");
        const qsizetype aantal = venster.Form.List1->ListCount();
        QCOMPARE(venster.Form.Label5->Caption(), u"Gevonden woorden (%1)"_s.arg(aantal));
    }

    void aKeyInCapitalsFindsNoBeginning()
    {
        Zoekvenster venster(Database({"kater"}));
        QCOMPARE(venster.Zoek(1, u"KAT"_s), QString());
        QCOMPARE(venster.Bord.Bank.Script.Gezien.size(), 1);
        QCOMPARE(venster.Bord.Bank.Script.Gezien[0].Tekst, u"Kan helaas geen woorden vinden!"_s);
        QCOMPARE(venster.Zoek(2, u"TER"_s), u"kater"_s);
    }

    void wildcardsAloneFindEverythingOfTheirLength()
    {
        Zoekvenster venster(Regels({"ab", "abc", "abcd", "bcd"}));
        QCOMPARE(venster.Zoek(0, u"???"_s), u"ab abc bcd"_s);
        QCOMPARE(venster.Zoek(1, u"???"_s), u"ab abc abcd bcd"_s);
        QCOMPARE(venster.Zoek(2, QString(19, u'?')), u"ab abc abcd bcd"_s);
    }

    // --- the search that reads the file anew ---

    void anEmptyKeyListsTheWholeFile()
    {
        Zoekvenster venster("b\r\nKat\r\n\r\naal,oog\r\n");
        QCOMPARE(venster.Zoek(3, QString()), u" aal,oog b kat"_s); // lines, in lower case
        QCOMPARE(venster.Form.Label5->Caption(), u"Gevonden woorden (4)"_s);
    }

    void aPartIsLookedUpInTheFileOfToday()
    {
        Zoekvenster venster("aal");
        venster.Bord.Database(Regels({"kat", QByteArray(10000, 'k'), "oog"}));
        PosX = -1; // doesn't bound it
        QCOMPARE(venster.Zoek(3, u"k"_s), u"kat "_s + QString(10000, u'k'));
        PosX = 300;
        QCOMPARE(venster.Zoek(3, u"oo"_s), u"oog"_s);
    }

    void aDatabaseThatVanishedIsSaid()
    {
        Zoekvenster venster("kat");
        venster.Bord.GeenDatabase();
        venster.Form.List1->AddItem(u"oud"_s);
        venster.Kies(3, u"kat"_s);
        Verloop verloop([&] { return venster.Gezien(); });
        venster.Form.Knop->click();
        QCOMPARE(verloop.Stappen,
                 (QStringList{u"0.2 s | (0)"_s, u"Error: Kan database niet vinden... (kritiek) | (0)"_s}));
        QVERIFY(!Zandloper());
        QVERIFY(!venster.Form.Unloaded());
        QCOMPARE(venster.Zoek(1, u"kat"_s), u"kat"_s); // the words in memory are still there
    }

    // --- what the button keeps away ---

    void theLettersAreCountedOnceMore_data()
    {
        QTest::addColumn<QString>("letters");
        QTest::addColumn<QStringList>("stappen");
        const auto zegt = [](const char *tekst) { return u"Rasteratelier: "_s + QLatin1String(tekst); };
        Geval("none", "", QStringList());
        Geval("1", "k", QStringList{zegt("Typ meer dan 1 letter. | zandloper")});
        Geval("2", "ka", QStringList{u"lijst | zandloper"_s, zegt("Kan helaas geen woorden vinden! |")});
        Geval("19", QString(19, u'k'), QStringList{u"lijst | zandloper"_s, zegt("Kan helaas geen woorden vinden! |")});
        Geval("20", QString(20, u'k'), QStringList{zegt("Te veel letters, maximaal 19 letters. | zandloper")});
    }
    void theLettersAreCountedOnceMore()
    {
        QFETCH(QString, letters);
        QFETCH(QStringList, stappen);
        Zoekvenster venster("kat");
        venster.Form.Text1->setMaxLength(30);
        venster.Form.Text1->setText(letters);
        Verloop verloop;
        verloop.Volg(*venster.Form.List1);
        venster.Form.ZoekLetters();
        QCOMPARE(verloop.Stappen, stappen);
        QVERIFY(!Zandloper());
    }

    void wordsOfALength()
    {
        Zoekvenster venster("kat\r\naal\r\nzee\xEBn\r\n");
        const Stand ervoor = StandVan(venster.Form);
        Verloop verloop;
        verloop.Volg(*venster.Form.List1);
        venster.Form.ZoekLengte(3);
        QCOMPARE(venster.Form.List1->Items().join(u' '), u"aal kat"_s);
        QCOMPARE(Verschil(ervoor, StandVan(venster.Form)), u"List1"_s);
        venster.Form.ZoekLengte(5);
        venster.Form.ZoekLengte(4); // that there are none isn't said
        QCOMPARE(verloop.Stappen,
                 (QStringList{u"lijst aal kat | zandloper"_s, u"lijst zeeën | zandloper"_s, u"lijst | zandloper"_s}));
        QVERIFY(!Zandloper());
    }

    void closingTheWindowEndsASearch()
    {
        for (const int wijze : {0, 3, 4}) {
            Zoekvenster venster("kat\r\naai\r\n");
            venster.Kies(wijze, u"kat"_s);
            venster.Form.show();
            QMetaObject::invokeMethod(
                &venster.Form, [&] { venster.Form.close(); }, Qt::QueuedConnection);
            venster.Form.Knop->click();
            QVERIFY(venster.Form.Unloaded());
            QCOMPARE(venster.Gezien(), u"(0)"_s);
            QVERIFY(!Zandloper());
        }
    }

    void closingTheWindowBeforeTheVowelsAreLookedFor()
    {
        Zoekvenster venster("kat\r\naai\r\n");
        venster.Kies(4, QString());
        venster.Form.List1->AddItem(u"oud"_s);
        venster.Form.show();
        Verloop verloop;
        verloop.Bijwerk = [&] {
            if (verloop.Stappen.size() == 2) // while pending events are run
                venster.Form.close();
        };
        venster.Form.Knop->click();
        QCOMPARE(verloop.Stappen.size(), 2);
        QCOMPARE(venster.Gezien(), u"oud (0)"_s);
        QVERIFY(!Zandloper());
    }

    void aSecondClickDuringTheWaitListsNothingTwice()
    {
        for (int wijze = 0; wijze <= 4; ++wijze) {
            Zoekvenster venster("kat\r\naai\r\n");
            venster.Kies(wijze, wijze == 4 ? u"aai"_s : u"kat"_s);
            int klikken = 0;
            Verloop verloop;
            verloop.Bijwerk = [&] {
                if (klikken++ == 0)
                    venster.Form.Knop->click();
            };
            venster.Form.Knop->click();
            QVERIFY(klikken > 1);
            QCOMPARE(venster.Gezien(), wijze == 4 ? u"aai (1)"_s : u"kat (1)"_s);
            QVERIFY(!Zandloper());
        }
    }

    void theWayIsTheOneThatIsChosenBehindTheWait()
    {
        Zoekvenster venster("kat\r\nskate\r\n");
        venster.Kies(1, u"kat"_s);
        Verloop verloop;
        verloop.Bijwerk = [&] { venster.Form.Option1[3]->setChecked(true); };
        venster.Form.Knop->click();
        QCOMPARE(venster.Gezien(), u"kat skate (2)"_s);
        venster.Kies(1, u"kat"_s);
        verloop.Bijwerk = [&] { venster.Form.Option1[4]->setChecked(true); }; // none of the first four
        venster.Form.Knop->click();
        QCOMPARE(venster.Gezien(), u"(0)"_s);
    }

    void vowelsOnceBegunAreLookedFor()
    {
        Zoekvenster venster("kat\r\naai\r\n");
        venster.Kies(4, u"kat"_s);
        Verloop verloop;
        verloop.Bijwerk = [&] { venster.Form.Option1[1]->setChecked(true); };
        venster.Form.Knop->click();
        QCOMPARE(venster.Gezien(), u"aai (1)"_s);
    }

    void theKeyIsTheOneThatStandsThereBehindTheWait()
    {
        for (int wijze = 0; wijze <= 3; ++wijze) {
            Zoekvenster venster("kat\r\nok\r\n");
            venster.Kies(wijze, u"kat"_s);
            Verloop verloop;
            verloop.Bijwerk = [&] { venster.Form.Text1->setText(u"ok"_s); }; // too short before the wait only
            venster.Form.Knop->click();
            QCOMPARE(venster.Gezien(), u"ok (1)"_s);
            QVERIFY(verloop.Gezien.isEmpty());
        }
    }

    void enterInTheBoxStarts()
    {
        Zoekvenster venster("kat");
        venster.Kies(1, u"kat"_s);
        venster.Form.show();
        QTest::keyClick(venster.Form.Text1, Qt::Key_Return);
        QCOMPARE(venster.Gezien(), u"kat (1)"_s);
    }

    // --- the hand-over ---

    void whatIsHandedOver_data()
    {
        QTest::addColumn<QStringList>("woorden");
        QTest::addColumn<QString>("gegeven");
        QTest::addColumn<QString>("aantal");
        Geval("in capitals", QStringList{u"kat"_s, u"zeeën"_s, u"ijs"_s}, u"IJS KAT ZEEËN"_s, u"3 Woorden gevonden"_s);
        Geval("up to 19 characters", QStringList{QString(18, u'a'), QString(19, u'b'), QString(20, u'c'), u"d"_s},
              QString(18, u'A') + u' ' + QString(19, u'B') + u" D"_s, u"3 Woorden gevonden"_s);
        Geval("ij is two characters", QStringList{u"ij"_s + QString(17, u'a'), u"ij"_s + QString(18, u'b')},
              u"IJ"_s + QString(17, u'A'), u"1 Woorden gevonden"_s);
        Geval("a word twice, and an empty one", QStringList{u"kat"_s, QString(), u"kat"_s}, u" KAT KAT"_s,
              u"3 Woorden gevonden"_s);
        Geval("none", QStringList{}, QString(), u"0 Woorden gevonden"_s);
        Geval("none that is short enough", QStringList{QString(20, u'c')}, QString(), u"0 Woorden gevonden"_s);
    }
    void whatIsHandedOver()
    {
        QFETCH(QStringList, woorden);
        Zoekvenster venster("kat");
        venster.Bord.VulList1();
        const Stand ervoor = venster.Bord.Nu();
        QFETCH(QString, gegeven);
        QCOMPARE(GeefOver(venster.Form, venster.Bord, woorden),
                 (QStringList{u"0.2 s | gedrukt"_s, (u"lijst "_s + gegeven).trimmed() + u" | zandloper"_s}));
        QCOMPARE(venster.Bord.List1(), gegeven);
        QTEST(venster.Bord.Venster.Label3->Caption(), "aantal");
        const QString anders = venster.Bord.Veranderd(ervoor);
        QVERIFY2(anders == "Label3 List1"_L1 || anders == "List1"_L1, qPrintable(anders)); // a count may be the same
        QVERIFY(venster.Form.Unloaded());
        QVERIFY(!Zandloper());
    }

    void closingTheWindowDuringThePressHandsNothingOver()
    {
        Zoekvenster venster("kat");
        QCOMPARE(SluitBijOvergave(venster.Form, venster.Bord), QString());
        QVERIFY(!Zandloper());
    }

    void aSearchHandsNothingOver()
    {
        Zoekvenster venster("kat");
        venster.Bord.VulList1();
        const Stand ervoor = venster.Bord.Nu();
        venster.Zoek(1, u"kat"_s);
        venster.Form.close();
        QCOMPARE(venster.Bord.Veranderd(ervoor), QString());
    }
};

RASTER_TEST(tst_ZoekFormKnop)
#include "tst_ZoekFormKnop.moc"
