#include "documents/OpenFile.h"
#include "documents/PuzzelBestand.h"
#include "documents/SaveForm.h"
#include "platform/Files.h"
#include "platform/PictureFiles.h"
#include "support/HaperendeSchijf.h"
#include "support/Onbevoegd.h"
#include "support/Venster.h"
#include "support/Verwacht.h"

#include <QDir>

using namespace Qt::StringLiterals;

static const QList<Rij> TweeRijen{{u"A-01 / 1-H"_s, u"dier"_s, u"aap"_s, u"-"_s},
                                  {u"B-02 / 11-V"_s, QString(), u"wijn"_s, u"7"_s}};

class tst_OpenFile : public QObject
{
    Q_OBJECT

    static void SchrijfPuzzel(const Bord &bord, const QString &naam, quint8 soort, int breedte, int hoogte,
                              const QList<Rij> &rijen = TweeRijen)
    {
        bord.Bank.Schrijf(u"Puzzels/"_s + naam + u".lst"_s, SchrijfPuzzelLijst(soort, breedte, hoogte, rijen));
    }
    static void SchrijfBeeld(const Bord &bord, const QString &naam, QSize maat, QRgb kleur)
    {
        QImage beeld(maat, QImage::Format_RGB32);
        beeld.fill(kleur);
        Files::SavePicture(beeld, bord.Bank.Map() + u"/Puzzels/"_s + naam);
    }
    static void Open(const QString &naam)
    {
        OpenFile form;
        form.List1->SetListIndex(static_cast<int>(form.List1->Items().indexOf(naam)));
        form.OkKnop->click();
        QVERIFY(form.Unloaded());
    }

private slots:
    void controlsAndTheirPlaces()
    {
        Bord bord;
        OpenFile form;
        QCOMPARE(Misplaatst(form, {{"List1", 180, 180, 2400, 2940},
                                   {"Image1", 3300, 1800, 1440, 1440},
                                   {"Label2", 2700, 180, 2100, 2100},
                                   {"DelKnop", 180, 3390, 960, 360},
                                   {"CancelKnop", 2910, 3390, 0, 360},
                                   {"OkKnop", 3915, 3390, 0, 360}}),
                 QString());
    }

    void theTabKeyGoesFromTheListOn()
    {
        Bord bord;
        SchrijfPuzzel(bord, u"Reis"_s, Zweeds, 9, 9);
        OpenFile form;
        form.List1->SetListIndex(0);
        QCOMPARE(TabVolgorde(form), u"List1 DelKnop CancelKnop OkKnop"_s);
        QCOMPARE(Leesnamen(form), (QStringList{u"CancelKnop=Annuleren"_s, u"DelKnop=Puzzel verwijderen"_s,
                                               u"List1=Puzzels"_s, u"OkKnop=Ok"_s}));
    }

    void asItOpens()
    {
        Bord bord;
        for (const char *naam : {"Zee.lst", "appel.LST", "Boom.lst", "los.bmp", "Boom1.bmp", "lijst.txt"})
            bord.Bank.Schrijf(u"Puzzels/"_s + QLatin1String(naam), "x");
        OpenFile form;
        QCOMPARE(form.windowTitle(), u"Puzzel openen"_s);
        QCOMPARE(form.size(), QSize((5160 - 90) / 15, (4395 - 450) / 15));
        QCOMPARE(form.palette().color(QPalette::Window), QColor(190, 240, 240));
        QCOMPARE(form.List1->Items().join(u' '), u"appel Boom Zee"_s); // bitmaps without a list are not shown
        QCOMPARE(form.List1->palette().color(QPalette::Base), QColor(30, 0, 0));
        QCOMPARE(form.List1->palette().color(QPalette::Text), QColor(250, 250, 250));
        QCOMPARE(form.Label2->Caption(), u"Selecteer d.m.v. de linker lijst een puzzel die je wilt openen."_s);
        QCOMPARE(form.DelKnop->toolTip(), u" Puzzel verwijderen "_s);
        QVERIFY(!form.DelKnop->isEnabled());
        QCOMPARE(form.List1->ListIndex(), -1);
        QCOMPARE(PlaatjesOp(form),
                 u"CancelKnop knop-annuleren, DelKnop knop-wissen, Image1 map-open, OkKnop knop-ok"_s);
    }

    void aPuzzleThatCannotBeOpenedIsNotShown()
    {
        Bord bord;
        for (const char *naam : {"Wie?", "a:b", "regel\nregel", "goed"})
            SchrijfPuzzel(bord, QLatin1String(naam), Zweeds, 9, 9);
        OpenFile form;
        QCOMPARE(form.List1->Items(), QStringList{u"goed"_s});
    }

    void onlyTheLastFourCharactersAreLeftOut()
    {
        Bord bord;
        const QStringList namen{u" Reis "_s, u"a.b"_s, u"Zee.lst"_s, u"zon."_s};
        for (const QString &naam : namen)
            SchrijfPuzzel(bord, naam, Zweeds, 9, 9);
        OpenFile form;
        QCOMPARE(form.List1->Items(), namen);
        for (const QString &naam : namen) {
            Open(naam);
            QCOMPARE(PuzzelNaam, naam);
            QCOMPARE(bord.Venster.GetoondeNaam(), naam);
        }
    }

    void thePuzzleOnTheBoardIsNotChosenYet()
    {
        Bord bord;
        SchrijfPuzzel(bord, u"Reis"_s, Zweeds, 9, 9);
        Open(u"Reis"_s);
        OpenFile form;
        QCOMPARE(form.List1->ListIndex(), -1);
        QVERIFY(!form.DelKnop->isEnabled());
    }

    void choosingANameTakesItAtOnce()
    {
        Bord bord;
        SchrijfPuzzel(bord, u"Reis"_s, Zweeds, 9, 9);
        PuzzelNaam = u"oud"_s;
        const Stand ervoor = bord.Nu();
        OpenFile form;
        form.List1->SetListIndex(0);
        QCOMPARE(PuzzelNaam, u"Reis"_s);
        QVERIFY(form.DelKnop->isEnabled());
        KlikMetDruk(*form.CancelKnop, [&] { QVERIFY(!form.Unloaded()); });
        QVERIFY(form.Unloaded());
        QCOMPARE(PuzzelNaam, u"Reis"_s); // it stays so
        QCOMPARE(bord.Veranderd(ervoor), u"PuzzelNaam"_s);
    }

    void aSavedPuzzleComesBackWhole_data() { ElkeSoort(); }
    void aSavedPuzzleComesBackWhole()
    {
        QFETCH(int, soort);
        Bord bord;
        bord.Begin(static_cast<quint8>(soort), 9, 12);
        bord.Venster.VoegRijenToe(TweeRijen);
        for (PictureBox *pic : {bord.Venster.Pic, bord.Venster.PicGroot})
            pic->BoxFull(900, 900, 1800, 1500, RGB(60, 60, 60));
        SaveForm bewaar;
        bewaar.Text1->setText(u"mijn PUZZEL"_s);
        bewaar.SaveKnop_Click();
        const QImage pic = bord.Pic(), groot = bord.Groot();
        bord.Begin(Zweeds, 16, 19);
        bord.Venster.WisRijen();
        bord.AllesAnders();
        bord.Klik(Qt::LeftButton, 1, 1);
        bord.Venster.SoortPlaatsing->close();
        bord.Venster.Line1->Toon();
        const int nummer = BordNummer();
        const Stand ervoor = bord.Nu();

        Open(u"Mijn puzzel"_s); // the bitmaps are spelled as they were typed
        QVERIFY(bord.Pic() == pic);
        QVERIFY(bord.Groot() == groot);
        QCOMPARE(BordNummer(), nummer + 1); // what works on the one before ends
        QCOMPARE(PuzzelType, quint8(soort));
        QCOMPARE(QSize(BoardWidth, BoardHeight), QSize(9, 12));
        QCOMPARE(bord.Venster.Rijen(), TweeRijen);
        QVERIFY(bord.Venster.ListView1->topLevelItem(0)->isSelected());
        QCOMPARE(bord.Venster.Label11->Caption(), u"2 Items"_s);
        QCOMPARE(bord.Venster.Label12->Caption(), SoortVan(PuzzelType)->Opschrift);
        QCOMPARE(bord.Venster.windowTitle(), u"Zweedse Raster Atelier (9x12)"_s);
        QCOMPARE(PuzzelNaam, u"Mijn puzzel"_s);
        QCOMPARE(bord.Venster.Bestandsnaam->text(), u"Mijn puzzel"_s);
        QVERIFY(bord.Venster.Shape1->isHidden());
        QVERIFY(bord.Venster.Line1->isHidden());
        QCOMPARE(bord.VeranderdBuitenPuzzel(ervoor), QString());
    }

    void openingAgainGoesBackToWhatWasSaved()
    {
        Bord bord;
        SchrijfPuzzel(bord, u"Reis"_s, Zweeds, 9, 9);
        SchrijfBeeld(bord, u"Reis1.bmp"_s, QSize(271, 271), qRgb(9, 9, 9));
        SchrijfBeeld(bord, u"Reis2.bmp"_s, QSize(1083, 1083), qRgb(9, 9, 9));
        Open(u"Reis"_s);
        const Stand eerst = bord.Nu();
        bord.InBewerking();
        for (PictureBox *pic : {bord.Venster.Pic, bord.Venster.PicGroot})
            pic->BoxFull(900, 900, 1800, 1500, RGB(200, 0, 0));
        Open(u"Reis"_s);
        QCOMPARE(bord.Veranderd(eerst), u"PuzzelGewijzigd"_s);
    }

    void openingLeavesAllElseAlone_data()
    {
        QTest::addColumn<int>("soort");
        QTest::addColumn<QStringList>("ook"); // what changes besides what always does
        const QStringList anders{u"Label12"_s, u"PuzzelType"_s};
        Geval("Zweeds", 1, QStringList());
        Geval("Woordzoeker", 2, anders);
        Geval("Kruiswoord", 3, anders);
        Geval("Sudoku", 4, anders + QStringList{u"Frame9"_s});
        Geval("Filippine", 5, anders + QStringList{u"EditDeleteLetters"_s, u"EditDeleteRaster"_s});
    }
    void openingLeavesAllElseAlone()
    {
        QFETCH(int, soort);
        QFETCH(QStringList, ook);
        Bord bord;
        SchrijfPuzzel(bord, u"Reis"_s, static_cast<quint8>(soort), 9, 12, {TweeRijen[1], TweeRijen[1]});
        bord.InBewerking();
        bord.Klik(Qt::RightButton, 15, 18);
        PijlSoort = 5;
        KleurVakjes = 3;
        bord.Venster.GeefWoorden({u"AAP"_s, u"BEER"_s});
        bord.Venster.List1->SetListIndex(1); // shows it on CopyLabel
        for (PictureBox *pic : {bord.Venster.Pic, bord.Venster.PicGroot})
            pic->ZetLetter({.Naam = u"Courier New"_s, .Punten = 7.0, .Vet = false, .Kleur = qRgb(1, 2, 3)});
        const Stand ervoor = bord.Nu();
        Open(u"Reis"_s);
        for (const PictureBox *pic : {bord.Venster.Pic, bord.Venster.PicGroot})
            QCOMPARE(Lettersoort(*pic), u"Courier New 7 0 ff010203"_s);
        ook += u"Bestandsnaam BoardHeight BoardWidth Frame8 Label1 Label11 Line1 ListView1 Main Pic PicGroot PicO PicR "
               "PuzzelNaam Shape1"_s.split(u' ');
        ook.sort();
        QCOMPARE(bord.Veranderd(ervoor), ook.join(u' '));
    }

    void whatAKindShows_data()
    {
        QTest::addColumn<int>("soort");
        QTest::addColumn<QString>("opschrift");
        Geval("1", 1, "Soortpuzzel : Zweeds");
        Geval("2", 2, "Soortpuzzel : Woordzoeker");
        Geval("3", 3, "Soortpuzzel : Kruiswoord");
        Geval("4", 4, "Soortpuzzel : Sudoku");
        Geval("5", 5, "Soortpuzzel : Filippine");
        Geval("another", 77, "Soortpuzzel : Filippine"); // left alone
    }
    void whatAKindShows()
    {
        QFETCH(int, soort);
        QFETCH(QString, opschrift);
        Bord bord;
        SchrijfPuzzel(bord, u"Eerst"_s, Filippine, 16, 19);
        SchrijfPuzzel(bord, u"Sudoku"_s, Sudoku, 9, 9);
        SchrijfPuzzel(bord, u"Dan"_s, static_cast<quint8>(soort), 9, 9);
        Open(u"Sudoku"_s);
        Open(u"Eerst"_s);
        Open(u"Dan"_s);
        QCOMPARE(PuzzelType, quint8(soort));
        QCOMPARE(bord.Venster.Label12->Caption(), opschrift);
        QCOMPARE(!bord.Venster.Frame9->isHidden(), soort == 4);
        QCOMPARE(bord.Venster.EditDeleteRaster->isEnabled(), soort == 5);
        QCOMPARE(bord.Venster.EditDeleteLetters->isEnabled(), soort == 5);
        // Without bitmaps the boards are empty ones of the kind.
        QCOMPARE(Verschil(bord.Pic(), Raster(9, 9, soort == 4 ? Banden : QList<int>())), QString());
        QCOMPARE(
            Verschil(bord.Groot(), Tegels(bord.Venster.PicVak->Image(), 9, 9, soort == 4 ? BandenGroot : QList<int>())),
            QString());
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }

    void fiveHeaderLinesGiveAnEmptyList()
    {
        Bord bord;
        bord.Venster.VoegRijenToe(TweeRijen);
        SchrijfPuzzel(bord, u"Leeg"_s, Zweeds, 10, 11, {});
        Open(u"Leeg"_s);
        QCOMPARE(bord.Venster.ListView1->topLevelItemCount(), 0);
        QCOMPARE(bord.Venster.Label11->Caption(), u"0 Items"_s);
        QCOMPARE(bord.Pic().size(), QSize(301, 331)); // without bitmaps: the empty board
        QVERIFY(!HeeftInkt(bord.Pic(), Binnen(4, 4)));
    }

    void anEmptyFolderDoesNothing()
    {
        Bord bord;
        PuzzelNaam = u"oud"_s;
        OpenFile form;
        QCOMPARE(form.List1->ListCount(), 0);
        form.OkKnop->click();
        QVERIFY(!form.Unloaded());
        QCOMPARE(bord.Bank.TestKlok.Gewacht(), 0.2);
        QCOMPARE(PuzzelNaam, u"oud"_s);
        QDir(bord.Bank.Map() + u"/Puzzels"_s).removeRecursively();
        OpenFile zonderMap;
        QCOMPARE(zonderMap.List1->ListCount(), 0);
    }

    void okWithoutAChoiceEmptiesTheName()
    {
        Bord bord;
        SchrijfPuzzel(bord, u"Reis"_s, Zweeds, 9, 9);
        PuzzelNaam = u"oud"_s;
        OpenFile form;
        KlikMetDruk(*form.OkKnop, [] { QCOMPARE(PuzzelNaam, u"oud"_s); });
        QVERIFY(!form.Unloaded());
        QVERIFY(PuzzelNaam.isEmpty());
        QCOMPARE(BoardWidth, 16);
    }

    void aDoubleClickBesideTheNamesIsOkWithoutAChoice()
    {
        Bord bord;
        SchrijfPuzzel(bord, u"Reis"_s, Zweeds, 9, 9);
        PuzzelNaam = u"oud"_s;
        OpenFile form;
        form.show();
        QTest::mouseDClick(form.List1->viewport(), Qt::LeftButton, {}, form.List1->viewport()->rect().center());
        QVERIFY(!form.Unloaded());
        QVERIFY(PuzzelNaam.isEmpty());
        QCOMPARE(bord.Bank.TestKlok.Gewacht(), 0.2);
    }

    // Events run during the press effect: another row may be chosen then.
    void whatIsChosenDuringThePressCounts()
    {
        Bord bord;
        SchrijfPuzzel(bord, u"Boom"_s, Zweeds, 9, 9);
        SchrijfPuzzel(bord, u"Zee"_s, Zweeds, 10, 10);
        OpenFile form;
        form.List1->SetListIndex(0);
        bord.Bank.Script.Antwoorden = {Antwoord::Nee};
        KlikMetDruk(*form.DelKnop, [&] { form.List1->SetListIndex(1); });
        QCOMPARE(bord.Bank.Script.Gezien.last().Tekst, u"Wilt je deze puzzel 'Zee' verwijderen?"_s);
        form.List1->SetListIndex(0);
        KlikMetDruk(*form.OkKnop, [&] { form.List1->SetListIndex(1); });
        QCOMPARE(PuzzelNaam, u"Zee"_s);
        QCOMPARE(BoardWidth, 10);
    }

    void aDoubleClickOpens()
    {
        Bord bord;
        SchrijfPuzzel(bord, u"Reis"_s, Zweeds, 9, 9);
        OpenFile form;
        form.show();
        const QPoint midden = form.List1->visualRect(form.List1->model()->index(0, 0)).center();
        QTest::mouseClick(form.List1->viewport(), Qt::LeftButton, {}, midden);
        QTest::mouseDClick(form.List1->viewport(), Qt::LeftButton, {}, midden);
        QVERIFY(form.Unloaded());
        QCOMPARE(bord.Bank.TestKlok.Gewacht(), 0.2); // as a press of the button
        QCOMPARE(BoardWidth, 9);
    }

    void bitmapsOfAllKinds_data()
    {
        QTest::addColumn<QByteArray>("bitmap");
        Geval("missing", QByteArray());
        Geval("empty", QByteArray(""));
        Geval("binary", QByteArray(3000, '\xAB'));
        Geval("text", QByteArray("BM geen bitmap"));
    }
    void bitmapsOfAllKinds()
    {
        QFETCH(QByteArray, bitmap);
        Bord bord;
        SchrijfPuzzel(bord, u"Reis"_s, Zweeds, 9, 9);
        if (!bitmap.isNull()) {
            bord.Bank.Schrijf(u"Puzzels/Reis1.bmp"_s, bitmap);
            bord.Bank.Schrijf(u"Puzzels/Reis2.bmp"_s, bitmap);
        }
        bord.Begin(Zweeds, 9, 9); // the size is the same, and yet all is drawn anew
        bord.Klik(Qt::RightButton, 1, 1);
        Open(u"Reis"_s);
        Bord leeg;
        leeg.Begin(Zweeds, 9, 9);
        QVERIFY(bord.Pic() == leeg.Pic()); // the canvas keeps what the set-up drew
        QVERIFY(bord.Groot() == leeg.Groot());
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }

    void eachBitmapIsReadByItself_data()
    {
        QTest::addColumn<QString>("bitmap");
        Geval("of the visible board", "Reis1.bmp");
        Geval("of the large board", "Reis2.bmp");
    }
    void eachBitmapIsReadByItself()
    {
        QFETCH(QString, bitmap);
        const QRgb kleur = qRgb(9, 9, 9);
        Bord bord;
        SchrijfPuzzel(bord, u"Reis"_s, Zweeds, 9, 9);
        SchrijfBeeld(bord, bitmap, QSize(1083, 1083), kleur);
        Open(u"Reis"_s);
        QCOMPARE(bord.Pic().pixelColor(1, 1), bitmap == "Reis1.bmp"_L1 ? QColor(kleur) : QColor(Qt::white));
        QCOMPARE(bord.Groot().pixelColor(4, 4), bitmap == "Reis2.bmp"_L1 ? QColor(kleur) : QColor(Qt::white));
    }

    void truncatedBitmapsAreNoPictures()
    {
        Bord bord;
        SchrijfPuzzel(bord, u"Reis"_s, Zweeds, 9, 9);
        SchrijfBeeld(bord, u"Reis1.bmp"_s, QSize(271, 271), qRgb(9, 9, 9));
        const QByteArray heel = bord.Bank.Inhoud(u"Puzzels/Reis1.bmp"_s);
        for (const qsizetype lengte : {heel.size() - 1, heel.size() / 2, qsizetype(60), qsizetype(20)}) {
            bord.Bank.Schrijf(u"Puzzels/Reis1.bmp"_s, heel.first(lengte));
            Open(u"Reis"_s);
            QVERIFY(!HeeftInkt(bord.Pic(), Binnen(4, 4)));
        }
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }

    void aBitmapOfAnotherSize()
    {
        Bord bord;
        SchrijfPuzzel(bord, u"Klein"_s, Zweeds, 9, 9);
        SchrijfBeeld(bord, u"Klein1.bmp"_s, QSize(40, 50), qRgb(1, 2, 3));
        SchrijfBeeld(bord, u"Klein2.bmp"_s, QSize(3000, 3000), qRgb(4, 5, 6));
        Open(u"Klein"_s);
        QCOMPARE(bord.Pic().size(), QSize(271, 271));
        QCOMPARE(InktVlak(bord.Pic(), QRect(0, 0, 271, 271)), QRect(0, 0, 40, 50));
        QCOMPARE(bord.Groot().size(), QSize(1083, 1083));
        QVERIFY(!HeeftInkt(bord.Groot(), QRect(0, 0, 1083, 1083), qRgb(4, 5, 6)));
    }

    void damagedListsOpenQuietly_data()
    {
        QTest::addColumn<QByteArray>("inhoud");
        QTest::addColumn<QSize>("maat");
        QTest::addColumn<int>("soort");
        QTest::addColumn<int>("rijen"); // that stand
        const QByteArray kop = "b\r\n2\r\n10\r\n11\r\n-\r\n", rij = "A-01 / 1-H\r\ndier\r\naap\r\n-\r\n-\r\n";
        const QSize maat(10, 11);
        Geval("empty", QByteArray(), QSize(16, 19), 3, 0);
        Geval("binary", QByteArray(3000, '\xFE'), QSize(16, 19), 3, 0);
        Geval("width no number", QByteArray("b\r\n2\r\nnegen\r\n9\r\n-\r\n"), QSize(16, 19), 2, 0);
        Geval("cut behind the width", QByteArray("b\r\n2\r\n10\r\n"), QSize(10, 19), 2, 0);
        Geval("without the header's end", kop.chopped(3), maat, 2, 0);
        Geval("commas", QByteArray("b,2,10,11,-,A-01 / 1-H,dier,aap,-,-,,,,,"), maat, 2, 1);
        Geval("cut in a row", kop + rij + "B-02 / 11-V\r\n", maat, 2, 1);
        Geval("cut before a separator", kop + rij.chopped(3), maat, 2, 1);
        Geval("comma in a clue", kop + QByteArray(rij).replace("dier", "wild, dier"), maat, 2, 1);
        // Every record is whole, but there is a byte too much.
        const QByteArray leeg(GrootsteLijst / 5 * 5 - 1000, ','), begin = kop + rij + leeg;
        Geval("too large", QByteArray(GrootsteLijst - begin.size(), 'x') + begin + ',', maat, 2, 1);
    }
    void damagedListsOpenQuietly()
    {
        QFETCH(QByteArray, inhoud);
        QFETCH(QSize, maat);
        QFETCH(int, soort);
        QFETCH(int, rijen);
        Bord bord;
        PuzzelType = Kruiswoord;
        bord.Venster.ToonSoort();
        bord.Venster.VoegRijenToe(TweeRijen);
        bord.Bank.Schrijf(u"Puzzels/Stuk.lst"_s, inhoud);
        Open(u"Stuk"_s);
        QCOMPARE(QSize(BoardWidth, BoardHeight), maat);
        QCOMPARE(PuzzelType, quint8(soort));
        QCOMPARE(bord.Venster.ListView1->topLevelItemCount(), rijen);
        QCOMPARE(bord.Venster.windowTitle(), u"Zweedse Raster Atelier (%1x%2)"_s.arg(maat.width()).arg(maat.height()));
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
        QCOMPARE(bord.Venster.Label12->Caption(), SoortVan(Kruiswoord)->Opschrift); // it stays as it stood
    }

    void aBoardWithoutCellsOpens()
    {
        Bord bord;
        SchrijfPuzzel(bord, u"Niets"_s, Woordzoeker, 0, 0, {});
        Open(u"Niets"_s);
        QCOMPARE(QSize(BoardWidth, BoardHeight), QSize(0, 0));
        QCOMPARE(bord.Venster.windowTitle(), u"Zweedse Raster Atelier (0x0)"_s);
        QCOMPARE(bord.Venster.Label12->Caption(), SoortVan(Woordzoeker)->Opschrift);
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }

    void aFileThatVanishedOpensQuietly()
    {
        Bord bord;
        SchrijfPuzzel(bord, u"Weg"_s, Zweeds, 9, 9);
        SchrijfBeeld(bord, u"Weg2.bmp"_s, QSize(9, 9), qRgb(9, 9, 9));
        bord.InBewerking();
        bord.Klik(Qt::RightButton, 1, 1);
        OpenFile form;
        form.List1->SetListIndex(0);
        QFile::remove(bord.Bank.Map() + u"/Puzzels/Weg.lst"_s);
        form.OkKnop_Click();
        QVERIFY(form.Unloaded());
        QCOMPARE(BoardWidth, 16);
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
        // All the other steps are done.
        QCOMPARE(bord.Venster.Label11->Caption(), u"0 Items"_s);
        QCOMPARE(bord.Venster.GetoondeNaam(), u"Weg"_s);
        QCOMPARE(bord.Venster.windowTitle(), u"Zweedse Raster Atelier (16x19)"_s);
        QCOMPARE(Verschil(bord.Pic(), Raster(16, 19)), QString());
        QCOMPARE(bord.Groot().pixel(8, 8), qRgb(9, 9, 9));
        QVERIFY(bord.Venster.Line1->isHidden() && bord.Venster.Shape1->isHidden());
    }

    void aListCanBeReadAlone()
    {
        Bord bord;
        SchrijfPuzzel(bord, u"Reis"_s, Sudoku, 9, 10);
        SchrijfPuzzel(bord, u"Zee"_s, Filippine, 5, 5);
        OpenFile form;
        form.List1->SetListIndex(1);
        bord.InBewerking();
        const Stand ervoor = bord.Nu();
        form.LoadPuzzel(u"Reis"_s); // another one than is chosen
        QCOMPARE(bord.Veranderd(ervoor), u"BoardHeight BoardWidth Label12 ListView1 PuzzelType"_s);
        QCOMPARE(PuzzelType, Sudoku);
        QCOMPARE(QSize(BoardWidth, BoardHeight), QSize(9, 10));
        QCOMPARE(bord.Venster.Rijen(), TweeRijen);
        QVERIFY(!form.Unloaded());
    }

    void aDialogThatIsClosedDuringAPressDoesNothing()
    {
        Bord bord;
        SchrijfPuzzel(bord, u"Reis"_s, Sudoku, 9, 9);
        for (ImageButton *OpenFile::*knop : {&OpenFile::OkKnop, &OpenFile::DelKnop}) {
            OpenFile form;
            form.List1->SetListIndex(0);
            form.show();
            const Stand ervoor = bord.Nu();
            const KijkKlok klok([&] { form.close(); });
            (form.*knop)->click();
            QCOMPARE(klok.Wachttijden, QList<double>{0.2});
            QCOMPARE(bord.Veranderd(ervoor), QString());
            QCOMPARE(bord.Bank.Bestanden(u"Puzzels"_s), QStringList{u"Reis.lst"_s});
            QVERIFY(bord.Bank.Script.Gezien.isEmpty());
        }
    }

    void sizesThatNoBoardCanHaveKeepThePuzzle_data()
    {
        QTest::addColumn<QByteArray>("breedte");
        QTest::addColumn<int>("fout");
        Geval("negative", QByteArray("-1"), int(Fout::OngeldigeWaarde));
        Geval("hundred thousand", QByteArray("100000"), int(Fout::GeheugenVol));
        Geval("largest", QByteArray("2147483647"), int(Fout::GeheugenVol));
    }
    void sizesThatNoBoardCanHaveKeepThePuzzle()
    {
        QFETCH(QByteArray, breedte);
        QFETCH(int, fout);
        Bord bord;
        bord.Venster.VoegRijenToe(TweeRijen);
        bord.Klik(Qt::RightButton, 1, 1);
        const Stand ervoor = bord.Nu();
        bord.Bank.Schrijf(u"Puzzels/Groot.lst"_s, "b\r\n2\r\n" + breedte + "\r\n19\r\n-\r\nx\r\ny\r\nz\r\n-\r\n-\r\n");
        OpenFile form;
        form.List1->SetListIndex(0);
        QCOMPARE(FoutVan([&] { form.OkKnop_Click(); }), fout);
        QVERIFY(!form.Unloaded());
        QCOMPARE(bord.Veranderd(ervoor), u"PuzzelNaam"_s);
    }

    void aHugeListOpens()
    {
        Bord bord;
        SchrijfPuzzel(bord, u"Reus"_s, Zweeds, 9, 9, QList<Rij>(100000, TweeRijen[0]));
        Open(u"Reus"_s);
        QCOMPARE(bord.Venster.Label11->Caption(), u"100000 Items"_s);
    }

    // Up to a byte before the largest size it is whole, and it goes on behind that.
    void aListBeyondTheLargestIsDamaged()
    {
        Bord bord;
        const QByteArray kop = SchrijfPuzzelLijst(Sudoku, 9, 9, {}), einde("\r\n");
        const QByteArray lang(GrootsteLijst - 1 - kop.size() - 5 * einde.size(), 'x');
        bord.Bank.Schrijf(u"Puzzels/groot.lst"_s, kop + einde + lang + einde.repeated(4) + einde);
        Open(u"groot"_s);
        QCOMPARE(PuzzelType, Sudoku);
        QCOMPARE(bord.Venster.Label12->Caption(), u"Soortpuzzel : Zweeds"_s); // as it was
    }

    void deletingAPuzzle()
    {
        Bord bord;
        for (const char *naam : {"Boom.lst", "boom1.BMP", "BOOM2.bmp", "Boom3.bmp", "Zee.lst", "Zee1.bmp"})
            bord.Bank.Schrijf(u"Puzzels/"_s + QLatin1String(naam), "x");
        QFile foto(bord.Bank.Thuis() + u"/Pictures/Boom.jpg"_s);
        QVERIFY(foto.open(QIODevice::WriteOnly));
        OpenFile form;
        form.List1->SetListIndex(0);
        bord.Bank.Script.Antwoorden = {Antwoord::Nee, Antwoord::Ja};
        KlikMetDruk(*form.DelKnop, [&] { QVERIFY(bord.Bank.Script.Gezien.isEmpty()); });
        QCOMPARE(bord.Bank.Bestanden(u"Puzzels"_s).size(), 6);
        QCOMPARE(form.List1->ListCount(), 2);
        {
            const HaperendeSchijf schijf;
            form.DelKnop->click();
            QCOMPARE(schijf.Logboek.join(u'|'), u"Verwijder Boom.lst|Verwijder boom1.BMP|Verwijder BOOM2.bmp"_s);
        }
        QCOMPARE(bord.Bank.Script.Gezien.size(), 2);
        QCOMPARE(bord.Bank.Script.Gezien[0].Tekst, u"Wilt je deze puzzel 'Boom' verwijderen?"_s);
        QCOMPARE(bord.Bank.Script.Gezien[0].Titel, u"Delete"_s);
        QCOMPARE(bord.Bank.Script.Gezien[0].Soort, Knoppen::JaNee);
        QCOMPARE(bord.Bank.Bestanden(u"Puzzels"_s).join(u' '), u"Boom3.bmp Zee.lst Zee1.bmp"_s);
        QVERIFY(foto.exists());
        QCOMPARE(form.List1->Items(), QStringList{u"Zee"_s});
        QVERIFY(!form.Unloaded());
        QCOMPARE(form.List1->ListIndex(), -1); // nothing is selected then
        form.DelKnop->click();
        QCOMPARE(bord.Bank.Script.Gezien.size(), 2);     // and the next press stops at once
        QCOMPARE(bord.Bank.TestKlok.Gewacht(), 2 * 0.2); // with its effect
    }

    void aPuzzleInTheMiddleOfTheListIsDeleted()
    {
        Bord bord;
        for (const char *naam : {"Aal", "Boom", "Zee"})
            SchrijfPuzzel(bord, QLatin1String(naam), Zweeds, 9, 9);
        PuzzelNaam = u"Boom"_s; // it is on the board, and stays there
        bord.Venster.ToonNaam();
        PuzzelNaam.clear();
        bord.InBewerking();
        const Stand ervoor = bord.Nu();
        OpenFile form;
        form.List1->SetListIndex(1);
        bord.Bank.Script.Antwoorden = {Antwoord::Ja, Antwoord::Ja};
        form.DelKnop->setFocus();
        form.DelKnop->click();
        QCOMPARE(form.focusWidget(), form.DelKnop);
        QCOMPARE(form.List1->Items(), (QStringList{u"Aal"_s, u"Zee"_s}));
        QCOMPARE(bord.Bank.Bestanden(u"Puzzels"_s), (QStringList{u"Aal.lst"_s, u"Zee.lst"_s}));
        QCOMPARE(PuzzelNaam, u"Boom"_s); // the name that was clicked stays
        QCOMPARE(bord.Veranderd(ervoor), u"PuzzelNaam"_s);
        form.OkKnop->click(); // no row is chosen now
        QVERIFY(!form.Unloaded());
        QVERIFY(PuzzelNaam.isEmpty());
        form.List1->SetListIndex(1);
        form.DelKnop->click();
        QCOMPARE(form.List1->Items(), QStringList{u"Aal"_s});
        form.List1->SetListIndex(0);
        form.OkKnop->click();
        QVERIFY(form.Unloaded());
        QCOMPARE(PuzzelNaam, u"Aal"_s);
    }

    void aRowGoesThoughItsFilesCannot()
    {
        Bord bord;
        SchrijfPuzzel(bord, u"Boom"_s, Zweeds, 9, 9);
        OpenFile form;
        form.List1->SetListIndex(0);
        bord.Bank.Script.Antwoorden = {Antwoord::Ja};
        {
            const Onbevoegd onbevoegd(bord.Bank, {u"Puzzels"_s});
            form.DelKnop_Click();
        }
        QCOMPARE(form.List1->ListCount(), 0);
        QCOMPARE(bord.Bank.Bestanden(u"Puzzels"_s), QStringList{u"Boom.lst"_s});
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1); // the question
    }

    void aFileThatIsNotThereKeepsNoOtherFromGoing()
    {
        Bord bord;
        for (const char *naam : {"Boom.lst", "Boom1.bmp", "Boom2.bmp"})
            bord.Bank.Schrijf(u"Puzzels/"_s + QLatin1String(naam), "x");
        for (const char *weg : {"Boom.lst", "Boom1.bmp"}) {
            OpenFile form;
            form.List1->SetListIndex(0);
            QVERIFY(QFile::remove(bord.Bank.Map() + u"/Puzzels/"_s + QLatin1String(weg)));
            bord.Bank.Script.Antwoorden = {Antwoord::Ja};
            form.DelKnop_Click();
            QCOMPARE(form.List1->ListCount(), 0);
            QCOMPARE(bord.Bank.Bestanden(u"Puzzels"_s), QStringList());
            for (const char *naam : {"Boom.lst", "Boom1.bmp", "Boom2.bmp"})
                bord.Bank.Schrijf(u"Puzzels/"_s + QLatin1String(naam), "x");
        }
    }

    void aNameThatBeginsWithADotIsShown()
    {
        Bord bord;
        SchrijfPuzzel(bord, u".Reis"_s, Zweeds, 9, 9);
        OpenFile form;
        QCOMPARE(form.List1->Items(), QStringList{u".Reis"_s});
    }
};

RASTER_TEST(tst_OpenFile)
#include "tst_OpenFile.moc"
