#include "platform/Screen.h"
#include "support/Onbevoegd.h"
#include "support/Venster.h"
#include "support/Verloop.h"
#include "support/Woordbord.h"
#include "wordlib/ZoekForm.h"

#include <QMenuBar>

using namespace Qt::StringLiterals;

static const QString NietGevonden = u"Error: Kan database niet vinden... (kritiek) | zandloper Label2"_s;

/// A word for each letter up to this one.
static QByteArrayList Letters(char tot)
{
    QByteArrayList woorden;
    for (char letter = 'a'; letter <= tot; ++letter)
        woorden += letter + QByteArray("oo");
    return woorden;
}

class tst_ZoekForm : public QObject
{
    Q_OBJECT

    /// The words that the window has read.
    static QString Gelezen(ZoekForm &form)
    {
        QStringList woorden;
        for (qint16 lengte = 0; lengte < 30; ++lengte) {
            form.ZoekLengte(lengte);
            woorden += form.List1->Items();
        }
        return woorden.join(u' ');
    }

private slots:
    void controlsAndTheirPlaces()
    {
        Woordbord bord("aal");
        ZoekForm form;
        QCOMPARE(Misplaatst(form, {{"List1", 210, 210, 3000, 3660},
                                   {"Label5", 240, 3900},
                                   {"Text1", 3450, 300, 3390, 360},
                                   {"Label4", 6990, 360},
                                   {"Label3", 3510, 750, 3300, 1500},
                                   {"Option1(0)", 3600, 1800, 3450, 300},
                                   {"Option1(1)", 3600, 2100, 3450, 300},
                                   {"Option1(2)", 3600, 2400, 3450, 300},
                                   {"Option1(3)", 3600, 2700, 3450, 300},
                                   {"Option1(4)", 3600, 3000, 3450, 300},
                                   {"Picture1", 990, 1770, 1440, 450},
                                   {"Label1", 3450, 3480, 1200, 390},
                                   {"Knop", 3480, 3510, 1140, 330},
                                   {"ExportKnop", 7800, 3810, 810, 330},
                                   {"Label7", 5430, 3870},
                                   {"Image1", 7050, 1950, 1680, 1680}}),
                 QString());
        const QSize vlak((9000 - 90) / 15, (5100 - 450 - 300) / 15);
        QCOMPARE(form.Label1->parentWidget()->size(), vlak);
        QCOMPARE(form.size(), vlak + QSize(0, form.findChild<QMenuBar *>()->sizeHint().height()));
    }

    void theTabKeyGoesFromTheKeywordOn()
    {
        Woordbord bord("aal");
        ZoekForm form;
        QCOMPARE(TabVolgorde(form), u"Text1 Option1(0) Knop ExportKnop List1"_s);
        QCOMPARE(Leesnamen(form),
                 (QStringList{
                     u"ExportKnop=Copy woorden t/m 20 letters"_s, u"Knop=Starten"_s, u"List1=Gevonden woorden"_s,
                     u"Option1(0)=Woorden uit bovenstaande letters"_s, u"Option1(1)=Woorden die beginnen met..."_s,
                     u"Option1(2)=Woorden die eindigen op..."_s, u"Option1(3)=Woorden waar het trefwoord in voorkomt"_s,
                     u"Option1(4)=Minimaal 3 klinkers achter elkaar"_s, u"Picture1=Wacht"_s, u"Text1=Trefwoord"_s}));
    }

    void asItOpens()
    {
        Woordbord bord("aal");
        ZoekForm form;
        QCOMPARE(form.windowTitle(), u"Database doorzoeken"_s);
        QCOMPARE(form.List1->Items(), QStringList());
        QVERIFY(form.List1->Sorted);
        QCOMPARE(form.Label5->Caption(), u"Gevonden woorden (0)"_s);
        QCOMPARE(form.Text1->text(), QString());
        QCOMPARE(form.Text1->maxLength(), 19);
        QCOMPARE(form.Label4->Caption(), u"Trefwoord (0)"_s);
        QCOMPARE(
            form.Label3->Caption(),
            u"Typ hierboven een willekeurig trefwoord van minimaal 3 tot maximaal 19 letters in, maak dan een keuze "
            "uit de eerste 4 opties, druk daarna op de button 'Starten' om te zoeken."_s);
        QStringList opties;
        for (const QRadioButton *optie : form.Option1)
            opties += optie->text() + (optie->isChecked() ? u" x"_s : QString());
        QCOMPARE(opties, (QStringList{u"Woorden uit bovenstaande letters x"_s, u"Woorden die beginnen met..."_s,
                                      u"Woorden die eindigen op..."_s, u"Woorden waar het trefwoord in voorkomt"_s,
                                      u"Minimaal 3 klinkers achter elkaar"_s}));
        QCOMPARE(form.Label1->Caption(), QString());
        QCOMPARE(form.Knop->text(), u"Starten"_s);
        QVERIFY(form.Knop->isDefault()); // Enter in the box starts
        QCOMPARE(form.ExportKnop->toolTip(), u" Copy woorden t/m 20 letters "_s);
        QCOMPARE(form.Label7->Caption(), u"Copyeer lijst naar hoofdscherm"_s);
        QVERIFY(form.Picture1->isHidden());
        QCOMPARE(PlaatjesOp(form), u"ExportKnop knop-export, Image1 database"_s);
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }

    void theMenu()
    {
        Woordbord bord("aal");
        ZoekForm form;
        const QList<QAction *> balk = form.findChild<QMenuBar *>()->actions();
        QCOMPARE(balk.size(), 1);
        QCOMPARE(balk[0]->text(), u"Bestand"_s);
        QCOMPARE(balk[0]->menu()->objectName(), u"Bestand"_s);
        QCOMPARE(balk[0]->menu()->actions(), QList<QAction *>{form.FilePrint});
        QCOMPARE(form.FilePrint->objectName(), u"FilePrint"_s);
        QCOMPARE(form.FilePrint->text(), u"Lijst afdrukken"_s);
        QVERIFY(form.FilePrint->isEnabled());
    }

    void coloursAndFonts()
    {
        Woordbord bord("aal");
        ZoekForm form;
        QCOMPARE(form.palette().color(QPalette::Window), QColor(230, 230, 190));
        QCOMPARE(form.List1->palette().color(QPalette::Base), QColor(30, 0, 0));
        QCOMPARE(form.List1->palette().color(QPalette::Text), QColor(230, 230, 230));
        for (const QRadioButton *optie : form.Option1) {
            QCOMPARE(optie->palette().color(QPalette::Window), QColor(230, 230, 190));
            QCOMPARE(optie->palette().color(QPalette::WindowText), QColor(0, 110, 0));
        }
        QCOMPARE(form.Picture1->BackColor, qRgb(30, 0, 0));
        QCOMPARE(form.Picture1->FontSize, 20.0);
        QVERIFY(form.Picture1->FontBold);
        // The frame is seen round its button.
        QCOMPARE(Getoond(*form.Label1->parentWidget()).pixelColor(form.Label1->pos()), QColor(150, 180, 180));
    }

    void theBusySign()
    {
        Woordbord bord("aal");
        ZoekForm form;
        QWidget venster;
        PictureBox wacht(&venster);
        wacht.resize(96, 30);
        wacht.BackColor = qRgb(30, 0, 0);
        wacht.Cls();
        wacht.ZetLetter({.Punten = 20, .Vet = true, .Kleur = qRgb(240, 240, 240)});
        wacht.PrintOp(0, 0, u"Wacht"_s);
        QVERIFY(HeeftInkt(wacht.Image(), QRect(0, 0, 96, 30), qRgb(30, 0, 0)));
        QCOMPARE(form.Picture1->Image().copy(0, 0, 96, 30), wacht.Image().copy(0, 0, 96, 30));
        form.Picture1->show(); // it lies over the list
        QCOMPARE(Getoond(*form.Label1->parentWidget()).copy(66, 118, 96, 30), wacht.Image().copy(0, 0, 96, 30));
    }

    void allTextsAreSeen()
    {
        Woordbord bord("aal");
        ZoekForm form;
        for (const QRadioButton *optie : form.Option1)
            QVERIFY2(optie->sizeHint().width() <= optie->width(), qPrintable(optie->text()));
        const int hoogte = form.Label3->heightForWidth(form.Label3->width());
        QVERIFY2(hoogte <= (1800 - 750) / 15, qPrintable(QString::number(hoogte))); // above the options
        form.Label4->SetCaption(u"Trefwoord (19)"_s);
        QVERIFY(form.Label4->parentWidget()->rect().contains(form.Label4->geometry()));
        QVERIFY(form.Label7->geometry().right() < form.ExportKnop->geometry().left());
    }

    // --- the load ---

    void theNoticeIsSeenBeforeTheFileIsRead()
    {
        Woordbord bord("oud");
        bord.Venster.Label2->show();
        Screen::MousePointer(Screen::Hourglass);
        PosX = 12345;
        Verloop verloop([&] { return bord.Venster.Label2->isHidden() ? QString() : u"Label2"_s; });
        verloop.Bijwerk = [&] { bord.Database("nieuw"); };
        ZoekForm form;
        QCOMPARE(verloop.Stappen, QStringList{u"0 s zonder invoer | zandloper Label2"_s});
        QCOMPARE(Gelezen(form), u"nieuw"_s);
        QVERIFY(bord.Venster.Label2->isHidden());
        QVERIFY(!Zandloper());
        QCOMPARE(PosX, 0);
        verloop.Bijwerk = [] {};
        bord.Database("nieuwer");
        ZoekForm later;
        QCOMPARE(Gelezen(later), u"nieuwer"_s);
        QCOMPARE(Gelezen(form), u"nieuw"_s);
    }

    void whatIsRead_data()
    {
        QTest::addColumn<QByteArray>("inhoud");
        QTest::addColumn<int>("posX"); // the index of the last word
        QTest::addColumn<bool>("gelukt");
        QTest::addColumn<QString>("woorden");
        const auto rij = [](const char *naam, const QByteArray &inhoud, int posX, const QString &woorden) {
            Geval(naam, inhoud, posX, true, woorden);
        };
        rij("one word", "aal\r\n", 0, u"aal"_s);
        rij("no line end", "aal", 0, u"aal"_s);
        rij("in any order", "kat\r\naal\r\nbij\r\n", 2, u"aal bij kat"_s);
        rij("short lines and empty ones are skipped", "a\r\n\r\nbij\r\n \r\nab\r\n", 1, u"ab bij"_s);
        rij("a comma parts two words", "aal,bij\r\nkat\r\n", 2, u"aal bij kat"_s);
        rij("quotes and blanks go", "  aal  \r\n\"b,ij\"\r\n", 1, u"aal b,ij"_s);
        rij("all letters", Regels(Letters('z')), 25,
            u"aoo boo coo doo eoo foo goo hoo ioo joo koo loo moo noo ooo poo qoo roo soo too uoo voo woo xoo yoo zoo"_s);
        rij("a letter is missing", Regels(Letters('y')), 24,
            u"aoo boo coo doo eoo foo goo hoo ioo joo koo loo moo noo ooo poo qoo roo soo too uoo voo woo xoo yoo"_s);
        rij("bytes above 127", "zee\xEBn\r\n", 0, u"zeeën"_s);
        Geval("27 first letters",
              Regels(Letters('z') + QByteArrayList{"\xE9"
                                                   "n"}),
              26, false,
              u"én aoo boo coo doo eoo foo goo hoo ioo joo koo loo moo noo ooo poo qoo roo soo too uoo voo woo xoo yoo "
              "zoo"_s);
        Geval("an empty file", QByteArray(""), -1, false, QString());
        Geval("no word of two letters", QByteArray("a\r\nb\r\n"), -1, false, QString());
    }
    void whatIsRead()
    {
        QFETCH(QByteArray, inhoud);
        QFETCH(int, posX);
        QFETCH(bool, gelukt);
        QFETCH(QString, woorden);
        Woordbord bord(inhoud);
        bord.Venster.Label2->show();
        Screen::MousePointer(Screen::Hourglass);
        Verloop verloop([&] { return bord.Venster.Label2->isHidden() ? QString() : u"Label2"_s; });
        ZoekForm form;
        QStringList verwacht{u"0 s zonder invoer | zandloper Label2"_s};
        if (!gelukt)
            verwacht += NietGevonden;
        QCOMPARE(verloop.Stappen, verwacht);
        QCOMPARE(PosX, posX);
        QCOMPARE(form.WordHash.size(), static_cast<size_t>(4 * (posX + 1))); // made before the index, which may fail
        QVERIFY(bord.Venster.Label2->isHidden());
        QVERIFY(!Zandloper());
        QStringList gelezen = woorden.split(u' ', Qt::SkipEmptyParts);
        QStringList gevonden = Gelezen(form).split(u' ', Qt::SkipEmptyParts);
        gelezen.sort();
        gevonden.sort();
        QCOMPARE(gevonden, gelezen);
    }

    void aDatabaseThatCannotBeRead_data() { Woordbord::Onleesbaar_data(); }
    void aDatabaseThatCannotBeRead()
    {
        QFETCH(QString, hoe);
        Woordbord bord("aal");
        bord.MaakOnleesbaar(hoe);
        const Onbevoegd onbevoegd(bord.Bank, {});
        bord.Venster.Label2->show();
        Screen::MousePointer(Screen::Hourglass);
        PosX = 12345;
        Verloop verloop([&] { return bord.Venster.Label2->isHidden() ? QString() : u"Label2"_s; });
        ZoekForm form;
        QCOMPARE(verloop.Stappen, (QStringList{u"0 s zonder invoer | zandloper Label2"_s, NietGevonden}));
        QCOMPARE(PosX, 0);
        QVERIFY(bord.Venster.Label2->isHidden());
        QVERIFY(!Zandloper());
        QVERIFY(!form.Unloaded());
        // There is no word 0: a search fails, and the window stays.
        form.Text1->setText(u"aal"_s);
        form.Knop->click();
        QCOMPARE(verloop.Gezien.size(), 2);
        QCOMPARE(verloop.Gezien[1].Tekst, u"Fout 9 bij 'Starten': Index valt buiten het bereik."_s);
        QVERIFY(!Zandloper());
        QVERIFY(form.Picture1->isHidden());
    }

    void theNameOfTheFileIsFoundIgnoringCase()
    {
        Woordbord bord;
        bord.Bank.Schrijf(u"Data/NEDERLANDS.Lib"_s, "aal");
        ZoekForm form;
        QCOMPARE(Gelezen(form), u"aal"_s);
    }

    void theWordsAreKeptSortedWithTheirIndexAndTheirTable()
    {
        Woordbord bord("kat\r\nkip\r\naal\r\nbij\r\n");
        ZoekForm form;
        QByteArrayList woorden;
        for (const Woord &woord : form.Words)
            woorden += QByteArray(woord.Tekst.data(), static_cast<qsizetype>(woord.Tekst.size()));
        QCOMPARE(woorden, (QByteArrayList{"aal", "bij", "kat", "kip"}));
        std::vector<qint32> tabel;
        BuildHashTable(form.Words, tabel);
        QCOMPARE(tabel.size(), std::size_t{16});
        QCOMPARE(form.WordHash, tabel);
        LetterIndex index{};
        index[2] = 1;
        index[3] = 2;
        QCOMPARE(form.LetterStart, index);
    }

    void theIndexIsKeptWhenThereAreTooManyLetters()
    {
        Woordbord bord(Regels(Letters('z') + QByteArrayList{"\xE9"
                                                            "n"}));
        ZoekForm form;
        for (int letter = 2; letter <= 26; ++letter)
            QCOMPARE(form.LetterStart[static_cast<size_t>(letter)], letter - 1);
    }

    void longLinesAreWords()
    {
        Woordbord bord("aal\r\n" + QByteArray(10000, 'b') + "\r\n");
        ZoekForm form;
        form.ZoekLengte(10000);
        QCOMPARE(form.List1->Items(), QStringList{QString(10000, u'b')});
    }

    // --- how far a search goes ---

    void aSearchGoesToPosX_data()
    {
        QTest::addColumn<int>("posX");
        QTest::addColumn<QString>("woorden");
        QTest::addColumn<int>("fout");
        Geval("none", -1, "", 0);
        Geval("less than none", -300, "", 0);
        Geval("the first one", 0, "aal", 0);
        Geval("all but one", 2, "aal bij kat", 0);
        Geval("all", 3, "aal bij kat vos", 0);
        Geval("more than there are", 4, "aal bij kat vos", int(Fout::IndexBuitenBereik));
        Geval("300", 300, "aal bij kat vos", int(Fout::IndexBuitenBereik));
    }
    void aSearchGoesToPosX()
    {
        QFETCH(int, posX);
        QFETCH(QString, woorden);
        QFETCH(int, fout);
        Woordbord bord("vos\r\nkat\r\nbij\r\naal\r\n");
        ZoekForm form;
        QCOMPARE(PosX, 3);
        PosX = posX; // a print writes it
        QCOMPARE(FoutVan([&] { form.ZoekLengte(3); }), fout);
        QCOMPARE(form.List1->Items().join(u' '), woorden);
        QVERIFY(!Zandloper());
        ZoekForm opnieuw;
        QCOMPARE(PosX, 3);
    }

    void eachSearchOfTheWordsIsBoundedByPosX_data()
    {
        QTest::addColumn<int>("wijze");
        QTest::addColumn<QString>("trefwoord");
        QTest::addColumn<QString>("gevonden"); // when it fails behind the last word
        Geval("letters", 0, "eiau", "aie eau iea uie");
        Geval("begin", 1, "???", "aie eau iea uie");
        Geval("end", 2, "???", "aie eau iea uie");
        Geval("vowels: they are listed at the end", 4, "", "");
    }
    void eachSearchOfTheWordsIsBoundedByPosX()
    {
        QFETCH(int, wijze);
        QFETCH(QString, trefwoord);
        Woordbord bord("aie\r\neau\r\niea\r\nuie\r\n");
        ZoekForm form;
        form.Option1[wijze]->setChecked(true);
        form.Text1->setText(trefwoord);
        PosX = 1;
        form.Knop->click();
        QCOMPARE(form.List1->Items().join(u' '), u"aie eau"_s);
        PosX = 9; // fails behind the last word
        form.Knop->click();
        QCOMPARE(form.Label5->Caption(), u"Gevonden woorden (2)"_s); // that of the search before
        QTEST(form.List1->Items().join(u' '), "gevonden");
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1);
        QCOMPARE(bord.Bank.Script.Gezien[0].Tekst, u"Fout 9 bij 'Starten': Index valt buiten het bereik."_s);
        QVERIFY(form.Picture1->isHidden());
        QVERIFY(!Zandloper());
    }
};

RASTER_TEST(tst_ZoekForm)
#include "tst_ZoekForm.moc"
