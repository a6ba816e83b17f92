#include "support/Venster.h"
#include "support/Verloop.h"
#include "support/Woordbord.h"
#include "wordlib/FormMain.h"
#include "wordlib/Overdracht.h"

using namespace Qt::StringLiterals;

static QString Woorden(const FormMain &form)
{
    return form.List1->Items().join(u' ');
}

/// What is found, as a person sees it.
static QString Zoek(FormMain &form, const QString &trefwoord)
{
    form.Text1->setText(trefwoord);
    form.OkKnop->click();
    return Woorden(form);
}

class tst_FormMain : public QObject
{
    Q_OBJECT
private slots:
    void controlsAndTheirPlaces()
    {
        Woordbord bord;
        FormMain form;
        QCOMPARE(Misplaatst(form, {{"Text1", 150, 180, 2400, 360},
                                   {"Label1", 2700, 240},
                                   {"List1", 150, 690, 2400, 2220},
                                   {"Label2", 2700, 1200, 2100, 1500},
                                   {"Image1", 4800, 300, 1260, 1680},
                                   {"OkKnop", 2700, 705},
                                   {"ExportKnop", 5160, 2550}}),
                 QString());
        QCOMPARE(form.size(), QSize((6300 - 90) / 15, (3510 - 450) / 15));
    }

    void theTabKeyGoesFromTheKeywordOn()
    {
        Woordbord bord;
        FormMain form;
        QCOMPARE(TabVolgorde(form), u"Text1 List1 OkKnop ExportKnop"_s);
        QCOMPARE(Leesnamen(form), (QStringList{u"ExportKnop=Copyeer de gevonden woorden"_s, u"List1=Gevonden woorden"_s,
                                               u"OkKnop=Start zoeken"_s, u"Text1=Trefwoord"_s}));
    }

    void asItOpens()
    {
        Woordbord bord;
        FormMain form;
        QCOMPARE(form.windowTitle(), u"Woorden Wisseling"_s);
        QCOMPARE(form.palette().color(QPalette::Window), QColor(230, 250, 200));
        for (const QWidget *control : {static_cast<QWidget *>(form.Text1), static_cast<QWidget *>(form.List1)}) {
            QCOMPARE(control->palette().color(QPalette::Base), QColor(40, 30, 0));
            QCOMPARE(control->palette().color(QPalette::Text), QColor(230, 230, 230));
        }
        QCOMPARE(form.Text1->text(), QString());
        QCOMPARE(form.Text1->maxLength(), 9);
        QCOMPARE(form.Label1->Caption(), u"Trefwoord (b.v. Streek)"_s);
        QCOMPARE(form.List1->Items(), QStringList());
        QVERIFY(form.List1->Sorted);
        QCOMPARE(form.Label2->Caption(),
                 u"Typ een woord in van minimaal 2 tot maximaal 9 letters. Druk daarna op de button 'Ok' om woorden te "
                 "zoeken bestaande uit alle letters van het trefwoord in willekeurige volgorde."_s);
        QVERIFY(form.Label1->geometry().right() < form.Image1->geometry().left() ||
                form.Label1->geometry().bottom() < form.Image1->geometry().top());
        QCOMPARE(form.OkKnop->toolTip(), u" Start zoeken "_s);
        QCOMPARE(form.ExportKnop->toolTip(), u" Copyeer de gevonden woorden "_s);
        QCOMPARE(PlaatjesOp(form), u"ExportKnop knop-export, Image1 wisseling, OkKnop knop-ok"_s);
    }

    void aKeyOfTheWrongLength_data()
    {
        QTest::addColumn<QString>("trefwoord");
        Geval("none", "");
        Geval("1", "a");
        Geval("10", "abcdefghij"); // cannot be typed
    }
    void aKeyOfTheWrongLength()
    {
        QFETCH(QString, trefwoord);
        Woordbord bord("a\r\nabcdefghij\r\n");
        FormMain form;
        form.List1->AddItem(u"oud"_s);
        form.Text1->setMaxLength(30);
        form.Text1->setText(trefwoord);
        form.OkKnop->setFocus();
        const Stand ervoor = StandVan(form);
        const QPoint plaats = form.OkKnop->pos();
        Verloop verloop([&] { return form.OkKnop->pos() == plaats ? QString() : u"gedrukt"_s; });
        verloop.Volg(*form.List1);
        form.OkKnop->click();
        QCOMPARE(verloop.Stappen,
                 (QStringList{u"0.2 s | gedrukt"_s, u"Error: Aleen woorden van 2 t/m 9 letters! (waarschuwing) |"_s}));
        QCOMPARE(Verschil(ervoor, StandVan(form)), QString());
        QVERIFY(!form.Unloaded());
    }

    void theStepsOfASearch()
    {
        Woordbord bord("streek\r\nkat\r\n");
        FormMain form;
        form.List1->AddItem(u"oud"_s);
        form.Text1->setText(u"Streek"_s);
        form.OkKnop->setFocus();
        const Stand ervoor = StandVan(form);
        const QPoint plaats = form.OkKnop->pos();
        Verloop verloop([&] {
            return form.OkKnop->pos() != plaats
                       ? u"gedrukt"_s
                       : Woorden(form) + (form.List1->isHidden() ? u" verborgen"_s : QString());
        });
        verloop.Volg(*form.List1);
        form.OkKnop->click();
        QCOMPARE(verloop.Stappen, (QStringList{u"0.2 s | gedrukt"_s, u"0 s | zandloper oud"_s, u"lijst | zandloper"_s,
                                               u"lijst Streek | zandloper Streek verborgen"_s}));
        QCOMPARE(Verschil(ervoor, StandVan(form)), u"List1"_s);
        QCOMPARE(form.List1->ListIndex(), -1);
        QVERIFY(!form.List1->isHidden());
        QVERIFY(!Zandloper());
        QVERIFY(!form.Unloaded());
    }

    void theKeyIsTheOneThatStandsThereWhenTheFileIsRead()
    {
        Woordbord bord("tak\r\nkat\r\nrat\r\n");
        FormMain form;
        form.Text1->setText(u"k"_s);
        Verloop verloop;
        verloop.Bijwerk = [&] { form.Text1->setText(verloop.Stappen.size() == 1 ? u"kat"_s : u"tar"_s); };
        form.OkKnop->click();
        QCOMPARE(Woorden(form), u"Rat"_s);
        QVERIFY(verloop.Gezien.isEmpty()); // its length counts when the button has been pressed
        verloop.Bijwerk = [&] { form.Text1->setText(u"k"_s); };
        form.OkKnop->click();
        QCOMPARE(verloop.Gezien.size(), 1);
        QCOMPARE(Woorden(form), u"Rat"_s);
    }

    void whatIsFound_data()
    {
        QTest::addColumn<QString>("trefwoord");
        QTest::addColumn<QString>("gevonden");
        Geval("the word itself and its anagrams", "Streek", "Sterke Streek");
        Geval("in capitals", "STREEK", "Sterke Streek");
        Geval("two letters", "en", "En Ne");
        Geval("nine letters", "regisseur", "Regisseur");
        Geval("each letter as often", "aab", "Aba");
        Geval("a line twice", "kat", "Kat Kat Tak");
        Geval("a blank", "op een", "");
        Geval("a hyphen", "op-een", "");
        Geval("blanks at the ends count", " en", "");
        Geval("a wildcard is no letter", "ka?", "");
        Geval("an accented letter", "zeeën", "");
        Geval("digits", "12", "");
        Geval("a quote", "o's", "");
        Geval("none", "xyz", "");
    }
    void whatIsFound()
    {
        QFETCH(QString, trefwoord);
        Woordbord bord(Regels({"tak",      "streek", "kat",       "sterke", "kat",
                               "en",       "ne",     "regisseur", "aba",    "abb",
                               "Kat",      "op een", "op-een",    " en",    "ka?",
                               "zee\xEBn", "12",     "o's",       "",       QByteArray(10000, 'e')}));
        FormMain form;
        QTEST(Zoek(form, trefwoord), "gevonden");
        QVERIFY(bord.Bank.Script.Gezien.isEmpty()); // an empty list is not said
        QVERIFY(!form.List1->isHidden());
    }

    void nineCharactersCanBeTyped()
    {
        Woordbord bord("regisseur");
        FormMain form;
        QTest::keyClicks(form.Text1, u"Regisseurs"_s);
        QCOMPARE(form.Text1->text(), u"Regisseur"_s);
        form.OkKnop->click();
        QCOMPARE(Woorden(form), u"Regisseur"_s);
    }

    void enterInTheBoxSearches()
    {
        Woordbord bord("kat\r\n");
        FormMain form;
        form.Text1->setText(u"tak"_s);
        for (const Qt::Key toets : {Qt::Key_Return, Qt::Key_Enter}) {
            form.List1->Clear();
            QTest::keyClick(form.Text1, toets);
            QCOMPARE(Woorden(form), u"Kat"_s);
        }
        QVERIFY(!form.Unloaded());
        bord.GeenDatabase();
        QTest::keyClick(form.Text1, Qt::Key_Return);
        QVERIFY(bord.Bank.Script.Gezien[0].Tekst.startsWith(u"Fout 53 bij 'Start zoeken': "_s));
    }

    void withoutADatabaseTheSearchFails()
    {
        Woordbord bord("kat");
        FormMain form;
        bord.GeenDatabase();
        form.List1->AddItem(u"oud"_s);
        QCOMPARE(Zoek(form, u"kat"_s), QString());
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1);
        QVERIFY(bord.Bank.Script.Gezien[0].Tekst.startsWith(u"Fout 53 bij 'Start zoeken': Bestand niet gevonden"_s));
        QVERIFY(!form.List1->isHidden());
        QVERIFY(!Zandloper());
        bord.Database("kat");
        QCOMPARE(Zoek(form, u"kat"_s), u"Kat"_s); // the file is read at each search
    }

    void closingTheWindowEndsASearch()
    {
        for (const qsizetype wacht : {1, 2}) { // during the press, and while pending events are run
            Woordbord bord("kat");
            FormMain form;
            form.Text1->setText(u"kat"_s);
            form.show();
            Verloop verloop;
            verloop.SluitBijStap(wacht, form);
            form.OkKnop->click();
            QCOMPARE(verloop.Stappen.size(), wacht);
            QCOMPARE(Woorden(form), QString());
            QVERIFY(!Zandloper());
        }
    }

    void closingTheWindowDuringThePressHandsNothingOver()
    {
        Woordbord bord("kat");
        FormMain form;
        QCOMPARE(SluitBijOvergave(form, bord), QString());
        QVERIFY(!Zandloper());
    }

    void whatIsHandedOver_data()
    {
        QTest::addColumn<QStringList>("woorden");
        QTest::addColumn<QString>("gegeven");
        QTest::addColumn<QString>("aantal");
        Geval("in capitals, of any length", QStringList{u"Kat"_s, u"Zeeën"_s, QString(30, u'a')},
              QString(30, u'A') + u" KAT ZEEËN"_s, u"3 Woorden gevonden"_s);
        Geval("a word twice", QStringList{u"Kat"_s, u"Kat"_s, u"Tak"_s}, u"KAT KAT TAK"_s, u"3 Woorden gevonden"_s);
        Geval("none", QStringList{}, QString(), u"0 Woorden gevonden"_s);
    }
    void whatIsHandedOver()
    {
        QFETCH(QStringList, woorden);
        QFETCH(QString, gegeven);
        Woordbord bord;
        bord.VulList1();
        FormMain form;
        const Stand ervoor = bord.Nu();
        QCOMPARE(GeefOver(form, bord, woorden),
                 (QStringList{u"0.2 s | gedrukt"_s, (u"lijst "_s + gegeven).trimmed() + u" |"_s}));
        QCOMPARE(bord.List1(), gegeven);
        QTEST(bord.Venster.Label3->Caption(), "aantal");
        QCOMPARE(bord.Veranderd(ervoor), u"Label3 List1"_s);
        QVERIFY(form.Unloaded());
    }
};

RASTER_TEST(tst_FormMain)
#include "tst_FormMain.moc"
