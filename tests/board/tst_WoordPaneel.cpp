#include "board/WoordPaden.h"
#include "support/Onbevoegd.h"
#include "support/Verloop.h"
#include "support/Verwacht.h"
#include "support/Woordbord.h"

using namespace Qt::StringLiterals;

static QString Woorden(const ListBox &lijst)
{
    return lijst.Items().join(u'|');
}

/// Chooses the row of that text.
static void Kies(ListBox &lijst, const QString &tekst)
{
    lijst.SetListIndex(static_cast<int>(lijst.Items().indexOf(tekst)));
}

/// What the search for words of a length finds, as a person sees it.
static QString Zoek(MainForm &main, int lengte)
{
    main.ScrolLengte->setValue(lengte);
    main.OkKnop->click();
    return Woorden(*main.List1);
}

class tst_WoordPaneel : public QObject
{
    Q_OBJECT
private slots:
    void aLengthIsChosenAndNotTyped()
    {
        Woordbord bord;
        QVERIFY(!bord.Venster.Combo1->isEditable());
    }

    // --- the words of a length ---

    void theLengthIsShown()
    {
        Woordbord bord;
        const Stand ervoor = bord.Nu();
        for (const int lengte : {19, 3, 2}) {
            bord.Venster.ScrolLengte->setValue(lengte);
            QCOMPARE(bord.Venster.Label16->Caption(), u"Woordlengte (%1)"_s.arg(lengte));
        }
        bord.Venster.ScrolLengte->setSliderDown(true); // while it is dragged too
        bord.Venster.ScrolLengte->setSliderPosition(8);
        QCOMPARE(bord.Venster.Label16->Caption(), u"Woordlengte (8)"_s);
        QCOMPARE(bord.Veranderd(ervoor), u"Label16 ScrolLengte"_s);
    }

    void theStepsOfASearch()
    {
        Woordbord bord("kat\r\noog\r\nstreek\r\n");
        MainForm &main = bord.Venster;
        bord.VulList1();
        main.List1->SetListIndex(1);
        main.Label3->SetCaption(u"0 Woorden in lijst"_s);
        main.ScrolLengte->setValue(3);
        main.OkKnop->setFocus();
        const Stand ervoor = bord.Nu();
        const QPoint plaats = main.OkKnop->pos();
        Verloop verloop([&] {
            return (main.OkKnop->pos() == plaats ? QString() : u"gedrukt "_s) + bord.List1() + u' ' +
                   main.Label3->Caption();
        });
        verloop.Volg(*main.List1);
        main.OkKnop->click();
        QCOMPARE(verloop.Stappen,
                 (QStringList{u"0.2 s | gedrukt OUD OUDER 0 Woorden in lijst"_s,
                              u"lijst | zandloper  0 Woorden in lijst"_s, u"0 s | zandloper  0 Woorden in lijst"_s,
                              u"lijst KAT OOG | zandloper KAT OOG 0 Woorden in lijst"_s}));
        QCOMPARE(main.Label3->Caption(), u"2 Woorden gevonden"_s);
        QCOMPARE(main.List1->ListIndex(), -1);
        QCOMPARE(main.focusWidget(), main.OkKnop);
        QCOMPARE(bord.Veranderd(ervoor), u"Label3 List1"_s);
        QVERIFY(!Zandloper());
    }

    void theWordsOfALength_data()
    {
        QTest::addColumn<int>("lengte");
        QTest::addColumn<QString>("woorden");
        Geval("ijs counts two", 2, "OP|IJS|IJIJ");
        Geval("in the order of the file, and a line is one word", 5, "VIJFDD|A,B C|ZEEËN|Ÿ€123");
        Geval("capitals are as small ones", 6, "STREEK|IJSBEER");
        Geval("a question mark takes one cell and is written out", 4, "VIJFD|WATIJ|\"AB\"");
        Geval("the longest", 19, "NEGENTIENLETTERWOOR");
        Geval("none", 18, "");
    }
    void theWordsOfALength()
    {
        QFETCH(int, lengte);
        QFETCH(QString, woorden);
        Woordbord bord(Regels({"streek", "op", "IJSBEER", "ijs", "ijij", "vijfdd", "", "vijfd", "wat?", "\"ab\"",
                               "a,b c", "a", "zee\xEBn",
                               "\xFF\x80"
                               "123",
                               "negentienletterwoor", "twintigletterwoorden", QByteArray(10000, 'a')}));
        QCOMPARE(Zoek(bord.Venster, lengte), woorden);
        const qsizetype aantal = woorden.split(u'|', Qt::SkipEmptyParts).size();
        QCOMPARE(bord.Venster.Label3->Caption(), u"%1 Woorden gevonden"_s.arg(aantal));
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }

    void theLengthIsTheOneThatStandsThereWhenItSearches()
    {
        Woordbord bord("kat\r\nnoot\r\nstreek\r\n");
        Verloop verloop;
        verloop.Bijwerk = [&, waarde = 3]() mutable { bord.Venster.ScrolLengte->setValue(waarde++); };
        bord.Venster.OkKnop->click();
        QCOMPARE(verloop.Stappen.size(), 2); // 3 in the press effect, 4 while pending events run
        QCOMPARE(bord.List1(), u"NOOT"_s);
    }

    void aDatabaseThatCannotBeRead_data() { Woordbord::Onleesbaar_data(); }
    void aDatabaseThatCannotBeRead()
    {
        QFETCH(QString, hoe);
        Woordbord bord("kat");
        bord.MaakOnleesbaar(hoe);
        const Onbevoegd onbevoegd(bord.Bank, {});
        bord.VulList1();
        const Stand ervoor = bord.Nu();
        Verloop verloop([&] { return bord.Venster.Label3->Caption(); });
        bord.Venster.OkKnop->click();
        const QString klaar = u"Error: Kan database niet vinden... (kritiek) | 2 Woorden gevonden"_s;
        QCOMPARE(verloop.Stappen,
                 (QStringList{u"0.2 s | 2 Woorden gevonden"_s, u"0 s | zandloper 2 Woorden gevonden"_s, klaar}));
        QCOMPARE(bord.List1(), QString()); // Label3 keeps its text
        QCOMPARE(bord.Veranderd(ervoor), u"List1"_s);
        QVERIFY(!Zandloper());
    }

    void theDatabaseIsReadAtEachSearch()
    {
        Woordbord bord;
        bord.Bank.Schrijf(u"Data/Nederlands.LIB"_s, "kat"); // found ignoring case
        QCOMPARE(Zoek(bord.Venster, 3), u"KAT"_s);
        bord.Bank.Schrijf(u"Data/Nederlands.LIB"_s, "");
        QCOMPARE(Zoek(bord.Venster, 3), QString());
        QCOMPARE(bord.Venster.Label3->Caption(), u"0 Woorden gevonden"_s);
    }

    void aChosenWordIsCopied_data()
    {
        QTest::addColumn<QString>("woord");
        QTest::addColumn<int>("letters");
        QTest::addColumn<QString>("copy");
        Geval("a word", "KAT", 3, "kat");
        Geval("IJ is one letter", "IJSBEER", 6, "ijsbeer");
        Geval("each IJ", "IJIJ", 2, "ijij");
        Geval("one letter", "IJ", 1, "ij");
        Geval("small ones are two", "ijIJij", 5, "ijijij");
        Geval("accents", "ZEEËN", 5, "zeeën");
        Geval("signs stand as they are", "<B>&CO", 6, "<b>&co");
        Geval("blanks too", " DE AAP ", 8, " de aap ");
        Geval("none", "", 0, "");
    }
    void aChosenWordIsCopied()
    {
        QFETCH(QString, woord);
        QFETCH(int, letters);
        Woordbord bord;
        MainForm &main = bord.Venster;
        main.Label8->SetCaption(u"oud"_s);
        main.Label9->SetCaption(u"oud"_s);
        main.CopyLabel->SetCaption(u"oud"_s);
        main.List1->SetItems({u"AAL"_s, woord});
        const Stand eerst = bord.Nu();
        main.List1->SetListIndex(1);
        QCOMPARE(main.Label9->Caption(), u"Lengte (%1) letters"_s.arg(letters));
        QTEST(main.CopyLabel->Caption(), "copy");
        QCOMPARE(bord.Veranderd(eerst), u"CopyLabel Label9 List1"_s);

        main.CopyLabel->SetCaption(u"oud"_s);
        main.List2->SetItems({u"AAL"_s, woord});
        const Stand dan = bord.Nu();
        main.List2->SetListIndex(1);
        QCOMPARE(main.Label8->Caption(), u"%1 Letters"_s.arg(letters));
        QTEST(main.CopyLabel->Caption(), "copy");
        QCOMPARE(bord.Veranderd(dan), u"CopyLabel Label8 List2"_s);
    }

    void aWordThatIsClickedAgainIsCopiedAgain()
    {
        Woordbord bord;
        MainForm &main = bord.Venster;
        for (ListBox *lijst : {main.List1, main.List2})
            lijst->SetItems({lijst->objectName()});
        for (int keer = 0; keer < 2; ++keer)
            for (ListBox *lijst : {main.List1, main.List2}) {
                main.Label8->SetCaption(QString());
                main.Label9->SetCaption(QString());
                QTest::mouseClick(lijst->viewport(), Qt::LeftButton, {}, QPoint(5, 5));
                QCOMPARE(main.CopyLabel->Caption(), lijst->objectName().toLower());
                QCOMPARE(main.Label9->Caption() + main.Label8->Caption(),
                         lijst == main.List1 ? u"Lengte (5) letters"_s : u"5 Letters"_s);
            }
    }

    void theLengthOfAWordIsSeenWhole()
    {
        Woordbord bord;
        bord.Venster.List2->SetItems({QString(200, u'A')});
        bord.Venster.List2->SetListIndex(0);
        QCOMPARE(bord.Venster.Label8->Caption(), u"200 Letters"_s);
        QVERIFY(bord.Venster.Frame6->rect().contains(bord.Venster.Label8->geometry()));
    }

    // --- the word lists ---

    void theStepsOfLoad()
    {
        Woordbord bord;
        for (const char *naam : {"Zee.txt", "appels.TXT", "Boom.txt", "Boom.lst", "txt", "nr. 2.txt", ".txt"})
            bord.Bank.Schrijf(u"Woordlijsten/"_s + QLatin1String(naam), "x");
        QDir(bord.Bank.Map()).mkdir(u"Woordlijsten/map.txt"_s);
        MainForm &main = bord.Venster;
        main.List3->SetItems({u"oud"_s});
        main.LoadKnop->setFocus();
        const Stand ervoor = bord.Nu();
        const QPoint plaats = main.LoadKnop->pos();
        Verloop verloop(
            [&] { return (main.LoadKnop->pos() == plaats ? QString() : u"gedrukt "_s) + Woorden(*main.List3); });
        main.LoadKnop->click();
        QCOMPARE(verloop.Stappen, QStringList{u"0.2 s | gedrukt oud"_s});
        QCOMPARE(Woorden(*main.List3), u"|appels|Boom|nr. 2|Zee"_s);
        QCOMPARE(main.focusWidget(), main.LoadKnop);
        QCOMPARE(bord.Veranderd(ervoor), u"List3"_s);
    }

    void theFolderIsReadAfterThePress()
    {
        Woordbord bord;
        bord.Lijst(u"Zee"_s, "x");
        KlikMetDruk(*bord.Venster.LoadKnop, [&] { bord.Lijst(u"Aarde"_s, "x"); });
        QCOMPARE(Woorden(*bord.Venster.List3), u"Aarde|Zee"_s);
    }

    void nothingIsReadOnceTheWindowIsClosed()
    {
        Woordbord bord("kat\r\n");
        bord.Lijst(u"Zee"_s, "x");
        MainForm &main = bord.Venster;
        const Stand ervoor = bord.Nu();
        for (ImageButton *knop : {main.OkKnop, main.LoadKnop}) {
            main.show();
            KlikMetDruk(*knop, [&] { main.close(); });
            QCOMPARE(bord.Veranderd(ervoor), QString());
        }
    }

    void anEmptyFolderHasNoNames()
    {
        Woordbord bord;
        bord.Lijst(u"Zee"_s, "x");
        bord.Venster.LoadKnop->click();
        QCOMPARE(Woorden(*bord.Venster.List3), u"Zee"_s);
        QFile::remove(bord.Bank.Map() + u"/Woordlijsten/Zee.txt"_s);
        bord.Venster.LoadKnop->click();
        QCOMPARE(Woorden(*bord.Venster.List3), QString());
    }

    void withoutAFolderTheOldNamesStay_data()
    {
        QTest::addColumn<QString>("hoe");
        for (const char *hoe : {"missing", "forbidden", "a file in its place"})
            Geval(hoe, QString::fromLatin1(hoe));
    }
    void withoutAFolderTheOldNamesStay()
    {
        QFETCH(QString, hoe);
        Woordbord bord;
        bord.Lijst(u"Zee"_s, "x");
        MainForm &main = bord.Venster;
        QDir map(bord.Bank.Map());
        map.rename(u"Woordlijsten"_s, u"weg"_s);
        main.LoadKnop->click();
        QCOMPARE(Woorden(*main.List3), QString()); // none were read yet
        map.rename(u"weg"_s, u"Woordlijsten"_s);
        main.LoadKnop->click();
        QCOMPARE(Woorden(*main.List3), u"Zee"_s);
        if (hoe != "forbidden"_L1)
            map.rename(u"Woordlijsten"_s, u"weg"_s);
        if (hoe == "a file in its place"_L1)
            bord.Bank.Schrijf(u"Woordlijsten"_s, "x");
        const Onbevoegd onbevoegd(bord.Bank, {}, {u"Woordlijsten"_s});
        main.LoadKnop->click();
        QCOMPARE(Woorden(*main.List3), u"Zee"_s);
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }

    void theWordsOfAList_data()
    {
        QTest::addColumn<QByteArray>("inhoud");
        QTest::addColumn<QString>("lengte");
        QTest::addColumn<QString>("woorden");
        const QByteArray dieren =
            Regels({"Kat", "ijsbeer", "\"vos, rode\"", "mus,  mees , zee\xEBnd", "IJSJE", "", "ijs"});
        Geval("all, in the order of the file", dieren, "Alles", "KAT|IJSBEER|VOS, RODE|MUS|MEES|ZEEËND|IJSJE||IJS");
        Geval("three letters: capitals alone are two", dieren, "3", "KAT|MUS");
        Geval("two", dieren, "2", "IJS");
        Geval("four", dieren, "4", "MEES");
        Geval("five", dieren, "5", "IJSJE");
        Geval("six", dieren, "6", "IJSBEER|ZEEËND");
        Geval("nine", dieren, "9", "VOS, RODE");
        Geval("none", dieren, "20", "");
        Geval("blanks within quotes count", QByteArray("\" ab \"\r\nab"), "4", u" AB "_s);
        Geval("so do hard blanks and tabs",
              QByteArray("\xA0"
                         "ab\t\r\n\tabc\r\nab"),
              "4", u"\u00A0AB\t|\tABC"_s);
        Geval("each as often as it stands there", QByteArray("ab,ab\r\nab"), "2", "AB|AB|AB");
        Geval("a question mark stays one", QByteArray("wat?\r\n?\r\nij?"), "4", "WAT?");
        Geval("an empty file", QByteArray(""), "Alles", "");
        Geval("a long line", QByteArray(10000, 'a'), "Alles", QString(10000, u'A'));
        Geval("bytes above 127", QByteArray("\x80\xE9\xFF\xDF"), "4", u"€ÉŸß"_s);
    }
    void theWordsOfAList()
    {
        QFETCH(QByteArray, inhoud);
        QFETCH(QString, lengte);
        QFETCH(QString, woorden);
        Woordbord bord;
        bord.Lijst(u"Dieren"_s, inhoud);
        MainForm &main = bord.Venster;
        main.LoadKnop->click();
        main.Combo1->setCurrentIndex(main.Combo1->findText(lengte));
        main.List2->SetItems({u"oud"_s});
        main.Label8->SetCaption(u"oud"_s);
        main.List3->setFocus();
        const Stand ervoor = bord.Nu();
        Kies(*main.List3, u"Dieren"_s);
        QCOMPARE(main.focusWidget(), main.List3);
        QCOMPARE(Woorden(*main.List2), woorden);
        const qsizetype aantal = woorden.isEmpty() ? 0 : woorden.split(u'|').size();
        QCOMPARE(main.Label8->Caption(), QString::number(aantal));
        QCOMPARE(bord.Veranderd(ervoor), u"Label8 List2 List3"_s);
    }

    void aListIsFoundByItsWholeName_data()
    {
        QTest::addColumn<QString>("naam");
        for (const QString &naam : {u""_s, u" aan zee "_s, u"nr. 2"_s, u"R&D 'x' één"_s, u"x.txt"_s})
            Geval(u"'%1'"_s.arg(naam).toUtf8(), naam);
    }
    void aListIsFoundByItsWholeName()
    {
        QFETCH(QString, naam);
        Woordbord bord;
        for (const QString &andere : {u"aan zee"_s, u"nr"_s, u"x"_s})
            bord.Lijst(andere, "fout");
        bord.Lijst(naam, "kat");
        MainForm &main = bord.Venster;
        main.Combo1->setCurrentText(u"Alles"_s);
        main.LoadKnop->click();
        Kies(*main.List3, naam);
        QCOMPARE(Woorden(*main.List2), u"KAT"_s);
    }

    void eitherAllIsAll()
    {
        Woordbord bord;
        bord.Lijst(u"Dieren"_s, "kat\r\nijsbeer\r\n");
        MainForm &main = bord.Venster;
        for (const int index : {0, 20}) {
            main.Combo1->setCurrentIndex(index);
            QCOMPARE(main.Combo1->currentText(), u"Alles"_s);
            main.LoadKnop->click();
            main.List2->Clear();
            Kies(*main.List3, u"Dieren"_s);
            QCOMPARE(Woorden(*main.List2), u"KAT|IJSBEER"_s);
        }
    }

    void filterAndFileAreReadAtEachClick()
    {
        Woordbord bord;
        bord.Lijst(u"Dieren"_s, "kat\r\nijsbeer\r\n");
        MainForm &main = bord.Venster;
        main.Combo1->setCurrentText(u"Alles"_s);
        main.LoadKnop->click();
        Kies(*main.List3, u"Dieren"_s);
        main.Combo1->setCurrentIndex(2); // 3
        QCOMPARE(Woorden(*main.List2), u"KAT|IJSBEER"_s);
        const auto klik = [&] { QTest::mouseClick(main.List3->viewport(), Qt::LeftButton, {}, QPoint(5, 5)); };
        klik(); // the chosen row again
        QCOMPARE(Woorden(*main.List2), u"KAT"_s);
        bord.Lijst(u"Dieren"_s, "mus\r\n");
        klik();
        QCOMPARE(Woorden(*main.List2), u"MUS"_s);
    }

    void aListThatVanished()
    {
        Woordbord bord;
        bord.Lijst(u"Dieren"_s, "kat");
        MainForm &main = bord.Venster;
        main.LoadKnop->click();
        QFile::remove(bord.Bank.Map() + u"/Woordlijsten/Dieren.txt"_s);
        main.List2->SetItems({u"oud"_s});
        main.Label8->SetCaption(u"7"_s);
        const Stand ervoor = bord.Nu();
        Kies(*main.List3, u"Dieren"_s);
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1);
        QVERIFY(bord.Bank.Script.Gezien[0].Tekst.startsWith(u"Fout 53 bij 'Woordlijsten': Bestand niet gevonden"_s));
        QCOMPARE(bord.Veranderd(ervoor), u"List2 List3"_s);
        QCOMPARE(Woorden(*main.List2), QString());
    }

    void aWordOfAListIsCopiedInSmallLetters()
    {
        Woordbord bord;
        bord.Lijst(u"Plaatsen"_s, "Amsterdam\r\nDoetinchem\r\n");
        MainForm &main = bord.Venster;
        main.Combo1->setCurrentText(u"Alles"_s);
        main.LoadKnop->click();
        Kies(*main.List3, u"Plaatsen"_s);
        Kies(*main.List2, u"DOETINCHEM"_s);
        QCOMPARE(main.CopyLabel->Caption(), u"doetinchem"_s);
        QCOMPARE(main.Label8->Caption(), u"10 Letters"_s);
    }

    // --- what a word tool hands over ---

    void wordsAreTakenInCapitals()
    {
        Woordbord bord;
        bord.AllesAnders(); // with a word chosen in each list
        bord.Venster.List2->setFocus();
        const Stand ervoor = bord.Nu();
        bord.Venster.GeefWoorden({u"vos"_s, u"zeeën"_s, u"Aal"_s, u"Vos"_s});
        QCOMPARE(bord.List1(), u"VOS ZEEËN AAL VOS"_s); // in their order, and each of them
        QCOMPARE(bord.Venster.focusWidget(), bord.Venster.List2);
        QCOMPARE(bord.Venster.Label3->Caption(), u"4 Woorden gevonden"_s);
        QCOMPARE(bord.Veranderd(ervoor), u"Label3 List1"_s);
        QCOMPARE(bord.Venster.List1->ListIndex(), -1);
        bord.Venster.GeefWoorden({});
        QCOMPARE(bord.List1(), QString());
        QCOMPARE(bord.Venster.Label3->Caption(), u"0 Woorden gevonden"_s);
    }

    // --- where the words are ---

    void thePlaces()
    {
        Woordbord bord;
        const QString map = bord.Bank.Map();
        QCOMPARE(DatabasePad(), map + u"/Data/nederlands.lib"_s);
        QCOMPARE(WoordlijstPad(u"Dieren"_s), map + u"/Woordlijsten/Dieren.txt"_s);
        QCOMPARE(FoutVan([] { WoordlijstPad(u"../Data/x"_s); }), int(Fout::OngeldigeNaam));
        QDir(map).rename(u"Woordlijsten"_s, u"WOORDLIJSTEN"_s);
        bord.Bank.Schrijf(u"WOORDLIJSTEN/DIEREN.Txt"_s, "x");
        QCOMPARE(WoordlijstPad(u"dieren"_s), map + u"/WOORDLIJSTEN/DIEREN.Txt"_s);
    }
};

RASTER_TEST(tst_WoordPaneel)
#include "tst_WoordPaneel.moc"
