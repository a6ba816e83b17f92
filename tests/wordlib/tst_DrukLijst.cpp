#include "support/Drukrol.h"
#include "support/Onbevoegd.h"
#include "support/ProefWachtrijen.h"
#include "support/Woordbord.h"
#include "wordlib/DrukLijst.h"
#include "wordlib/ZoekForm.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

static QStringList Woorden_(int aantal)
{
    QStringList woorden;
    for (int i = 0; i < aantal; ++i)
        woorden += u"woord%1"_s.arg(i);
    return woorden;
}

static const QString Voet = Drukrol::Tekst(600, 16200, 9, false, RGB(0, 0, 0), u"www.voorbeeld.nl"_s);

/// What the list of so many words should be: four columns, 53 rows on the first page, 55 on those behind it.
static QStringList Hoort(int aantal)
{
    QStringList hoort{Drukrol::Tekst(300, 300, 16, true, RGB(0, 0, 90), u"Een titel"_s),
                      Drukrol::Tekst(9150, 300, 10, true, RGB(90, 0, 0), u"07-03-2026 / 09:05:03"_s)};
    int rij = 0, boven = 900, rijen = 53;
    for (int i = 0; i < aantal; ++i) {
        hoort +=
            Drukrol::Tekst(300 + 3000 * (i % 4), boven + 270 * rij, 10, false, RGB(90, 90, 90), u"woord%1"_s.arg(i));
        rij += i % 4 == 3;
        if (rij == rijen) {
            hoort += {Voet, u"blad"_s};
            rij = 0;
            boven = 300;
            rijen = 55;
        }
    }
    return hoort + QStringList{Voet, u"einde"_s};
}

/// The search window on a machine without queues.
struct Zoekdruk : Woordbord
{
    Zoekdruk()
    {
        QByteArrayList woorden;
        for (int i = 0; i < 1000; ++i)
            woorden += QByteArray("aa") + char('a' + i / 100) + char('a' + i / 10 % 10) + char('a' + i % 10);
        Database(Regels(Opvulling(woorden) + woorden));
    }

    ProefWachtrijen Rijen;
    QString Pad = Bank.Map() + u"/lijst.pdf"_s;
};

class tst_DrukLijst : public QObject
{
    Q_OBJECT
private slots:
    void theWholeList_data()
    {
        QTest::addColumn<int>("aantal");
        for (const int aantal : {0, 1, 4, 5, 211, 212, 213, 431, 432, 433, 5000})
            Geval(QByteArray::number(aantal), aantal);
    }
    void theWholeList()
    {
        QFETCH(int, aantal);
        Bord bord;
        PaginaTekst = u"www.voorbeeld.nl"_s;
        Drukrol rol;
        rol.Scale(0, 0, 5, 5);
        rol.FontName = u"Courier New"_s;
        DrukLijst(rol, u"Een titel"_s, Woorden_(aantal));
        QCOMPARE(rol.Gedaan, Hoort(aantal));
        QCOMPARE(rol.Titel, u"Een titel"_s);
    }

    void wordsArePrintedAsTheyStand()
    {
        Bord bord;
        Drukrol rol;
        const QStringList woorden{u" Kat "_s, QString(), u"kat"_s, u"kat"_s};
        DrukLijst(rol, QString(), woorden);
        for (int i = 0; i < 4; ++i)
            QCOMPARE(rol.Gedaan[2 + i], Drukrol::Tekst(300 + 3000 * i, 900, 10, false, RGB(90, 90, 90), woorden[i]));
    }

    void wherePosXAndPosYEnd_data()
    {
        QTest::addColumn<int>("aantal");
        QTest::addColumn<int>("x");
        QTest::addColumn<int>("y");
        Geval("no words", 0, 300, 900);
        Geval("one", 1, 3300, 900);
        Geval("three", 3, 9300, 900);
        Geval("a row", 4, 300, 1170);
        Geval("all but the last row", 208, 300, 14940);
        Geval("a page", 212, 300, 300);
        Geval("one more", 213, 3300, 300);
    }
    void wherePosXAndPosYEnd()
    {
        QFETCH(int, aantal);
        Bord bord;
        PosX = PosY = 7;
        Drukrol rol;
        DrukLijst(rol, QString(), Woorden_(aantal));
        QTEST(PosX, "x");
        QTEST(PosY, "y");
    }

    void theQuestion_data()
    {
        QTest::addColumn<int>("aantal");
        QTest::addColumn<int>("paginas");
        Geval("no words", 0, 1);
        Geval("half a page, to the even one", 120, 1);
        Geval("just more", 121, 2);
        Geval("what a page holds", 212, 2);
        Geval("a page and a half, to the even one", 360, 3);
        Geval("just less", 359, 2);
        Geval("many", 5000, 22);
    }
    void theQuestion()
    {
        QFETCH(int, aantal);
        QFETCH(int, paginas);
        Zoekdruk bord;
        ZoekForm form;
        form.List1->SetItems(Woorden_(aantal));
        bord.Bank.Script.Antwoorden = {Antwoord::Nee};
        const int posX = PosX;
        const Stand ervoor = StandVan(form);
        QVERIFY(form.FilePrint->isEnabled());
        form.FilePrint->trigger();
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1);
        QCOMPARE(bord.Bank.Script.Gezien[0].Tekst,
                 u"Het aantal pagina's is.. %1, wil je verder gaan met afdrukken?"_s.arg(paginas));
        QCOMPARE(bord.Bank.Script.Gezien[0].Titel, u"Afdrukken"_s);
        QCOMPARE(bord.Bank.Script.Gezien[0].Soort, Knoppen::JaNee);
        QVERIFY(bord.Bank.Script.Voorstellen.isEmpty()); // No: nothing happens
        QCOMPARE(PosX, posX);
        QCOMPARE(Verschil(ervoor, StandVan(form)), QString());
        QVERIFY(!form.Unloaded());
    }

    void printedItLimitsTheSearchesBehindIt()
    {
        Zoekdruk bord;
        ZoekForm form;
        const int laatste = PosX;
        QCOMPARE(laatste, 1024); // 1000 words with an "a", and one for each other letter
        form.ZoekLengte(5);
        QCOMPARE(form.List1->ListCount(), 1000);
        form.List1->SetItems({u"aaaaa"_s});
        const Stand ervoor = StandVan(form);
        bord.Bank.Script.Antwoorden = {Antwoord::Ja};
        bord.Bank.Script.Bestanden = {bord.Pad};
        form.FilePrint->trigger();
        QVERIFY(bord.Bank.Inhoud(u"lijst.pdf"_s).startsWith("%PDF"));
        QCOMPARE(QFileInfo(bord.Bank.Script.Voorstellen.value(0)).fileName(), u"Database doorzoeken.pdf"_s);
        QCOMPARE(Verschil(ervoor, StandVan(form)), QString());
        QCOMPARE(PosX, 3300); // beyond the words that there are: a search fails, and the window stays
        form.Option1[1]->click();
        form.Text1->setText(u"aaa"_s);
        form.Knop->click();
        QCOMPARE(bord.Bank.Script.Gezien.size(), 2);
        QCOMPARE(bord.Bank.Script.Gezien[1].Tekst.section(u':', 0, 0), u"Fout 9 bij 'Starten'"_s);
        QCOMPARE(form.List1->ListCount(), 100);
        form.List1->SetItems(Woorden_(4));
        bord.Bank.Script.Antwoorden = {Antwoord::Ja};
        bord.Bank.Script.Bestanden = {bord.Pad};
        form.FilePrint->trigger();
        QCOMPARE(PosX, 300);
        form.ZoekLengte(5);
        QCOMPARE(form.List1->ListCount(), 301); // the words from 0 to 300
        ZoekForm nieuw;
        nieuw.ZoekLengte(5);
        QCOMPARE(nieuw.List1->ListCount(), 1000);
    }

    void itGoesToThePrinterThatWasChosen()
    {
        Zoekdruk bord;
        bord.Rijen.Alle = {u"Een rij die er niet is"_s};
        QCOMPARE(Printers::Lijst().size(), 2);
        Printers::Kies(0);
        ZoekForm form;
        form.List1->SetItems(Woorden_(2));
        bord.Bank.Script.Antwoorden = {Antwoord::Ja};
        form.FilePrint->trigger();
        QVERIFY(bord.Bank.Script.Voorstellen.isEmpty()); // no file is asked for
        QCOMPARE(PosX, 6300);
        bord.Bank.Script.Antwoorden = {Antwoord::Ja};
        bord.Bank.Script.Bestanden = {bord.Pad};
        Printers::Kies(1);
        form.FilePrint->trigger();
        QCOMPARE(bord.Bank.Script.Voorstellen.size(), 1);
    }

    void whateverThePrinterMakesOfIt_data()
    {
        QTest::addColumn<QString>("hoe");
        for (const char *hoe : {"no file", "a folder in its place", "no folder", "forbidden"})
            Geval(hoe, QString::fromLatin1(hoe));
    }
    void whateverThePrinterMakesOfIt()
    {
        QFETCH(QString, hoe);
        Zoekdruk bord;
        ZoekForm form;
        form.List1->SetItems(Woorden_(2));
        bord.Bank.Script.Antwoorden = {Antwoord::Ja};
        bord.Bank.Script.Bestanden = {bord.Pad};
        if (hoe == u"no file"_s)
            bord.Bank.Script.Bestanden = {QString()};
        if (hoe == u"no folder"_s)
            bord.Bank.Script.Bestanden = {bord.Bank.Map() + u"/weg/lijst.pdf"_s};
        if (hoe == u"a folder in its place"_s)
            QDir().mkpath(bord.Pad);
        {
            const Onbevoegd onbevoegd(bord.Bank, hoe == u"forbidden"_s ? QStringList{u""_s} : QStringList{});
            form.FilePrint->trigger();
        }
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1); // the question alone
        QVERIFY(bord.Bank.Bestanden(QString()).isEmpty());
        QVERIFY(!form.Unloaded());
        QCOMPARE(PosX, 6300);
    }
};

RASTER_TEST(tst_DrukLijst)
#include "tst_DrukLijst.moc"
