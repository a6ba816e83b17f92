#include "editors/EditorStand.h"
#include "editors/VakForm.h"
#include "platform/Plaatjes.h"

using namespace Qt::StringLiterals;

static const QRgb Zwart = qRgb(0, 0, 0);
static const QRgb Groen = qRgb(10, 200, 30); // of the box on the large board, in most of these tests

/// A kind of information cell: the drawing of each of its arrows in the strip, from 0 (-1: none), and where it stands
/// on the large board, in twips from the inside of the cell.
struct Pijlen
{
    int Rechts, RechtsY; // x is 1800
    int Omlaag, OmlaagX; // y is 1800
};
static const Pijlen PijlenVan[8] = {
    {0, 690, -1, 0},  {-1, 0, 1, 690},  {2, 240, -1, 0},  {-1, 0, 3, 240},
    {0, 270, 1, 690}, {2, 240, 1, 690}, {0, 240, 3, 240}, {2, 240, 3, 240},
};

static QPoint HoekGroot(int kolom, int rij)
{
    return {kolom * 120 + 3, rij * 120 + 3};
}

/// The tile of a kind on the visible board.
static QImage Tegel(int soort, QRgb kleur)
{
    Verwacht tegel(Plaatjes::Beeld(u"vakjes"_s).copy((soort - 1) * 43, 0, 43, 43));
    tegel.Vul(QRect(0, 0, 30, 30), kleur);
    return tegel.Beeld;
}

/// Draws the box of a kind on the large board, with its arrows and its divider.
static void TekenVak(Verwacht &groot, int kolom, int rij, int soort, QRgb kleur = Groen)
{
    const QPoint hoek = HoekGroot(kolom, rij);
    const Pijlen &pijlen = PijlenVan[soort - 1];
    const auto tekening = [](int nummer) { return Plaatjes::Beeld(u"pijlen"_s).copy(nummer * 23, 0, 23, 23); };
    groot.Vul(QRect(hoek, QSize(117, 117)), kleur);
    if (pijlen.Rechts >= 0)
        groot.Plak(tekening(pijlen.Rechts), hoek + QPoint(120, pijlen.RechtsY / 15));
    if (pijlen.Omlaag >= 0)
        groot.Plak(tekening(pijlen.Omlaag), hoek + QPoint(pijlen.OmlaagX / 15, 120));
    if (soort > 4)
        groot.Vul(QRect(hoek + QPoint(0, 58), QSize(119, 3)), Zwart);
}

/// Prints one line of a clue. Its middle is that of a line in Arial, moved by 75 twips, and ties go to the even twip.
static void DrukRegel(Verwacht &groot, int kolom, int rij, int nummer, const QString &regel, int omhoog = 0)
{
    const int breedte = 15 * qCeil(QFontMetricsF(Lettertype(u"Arial"_s, 13, true)).horizontalAdvance(regel));
    const int x = kolom * 1800 + 45 + static_cast<int>(std::nearbyint((1800 - breedte) / 2.0)) + 75;
    const int y = rij * 1800 + 45 - omhoog + nummer * 300;
    groot.Druk(regel, QPoint(qRound(x / 15.0), y / 15), Lettertype(u"Arial Narrow"_s, 13, true), Zwart);
}

/// Opens the editor on a cell with a kind and a text and presses Ok.
static void Plaats(Bord &bord, int kolom, int rij, int soort, const QString &tekst, QRgb kleur = Groen)
{
    OrgineelRood = static_cast<qint16>(qRed(kleur));
    OrgineelGroen = static_cast<qint16>(qGreen(kleur));
    OrgineelBlauw = static_cast<qint16>(qBlue(kleur));
    bord.Wijs(kolom, rij);
    VakForm form;
    form.HScroll1->setValue(soort);
    form.Text1->SetText(tekst);
    form.OkKnop_Click();
    QVERIFY(form.Unloaded());
    QVERIFY(bord.Bank.Script.Gezien.isEmpty()); // it never says anything
}

static const QRgb Licht = qRgb(229, 248, 194); // the first colour of the tiles

class tst_VakFormOk : public QObject
{
    Q_OBJECT
private slots:
    void theEightKindsOnBothBoards_data()
    {
        QTest::addColumn<int>("soort");
        QTest::addColumn<int>("kolom");
        QTest::addColumn<int>("rij");
        for (int soort = 1; soort <= 8; ++soort) {
            Geval(QByteArray::number(soort), soort, 2, 3);
            // An arrow beyond the edge is lost; the box and the other arrow are there.
            Geval(QByteArray::number(soort) + " in the last column", soort, 15, 3);
            Geval(QByteArray::number(soort) + " in the last row", soort, 2, 18);
            Geval(QByteArray::number(soort) + " in the last cell", soort, 15, 18);
        }
    }
    void theEightKindsOnBothBoards()
    {
        QFETCH(int, soort);
        QFETCH(int, kolom);
        QFETCH(int, rij);
        Bord bord;
        Verwacht pic(bord.Pic()), groot(bord.Groot());
        Plaats(bord, kolom, rij, soort, QString()); // an empty clue is accepted
        pic.En(Tegel(soort, Licht), QPoint(kolom * 30, rij * 30));
        TekenVak(groot, kolom, rij, soort);
        QCOMPARE(Verschil(bord.Pic(), pic.Beeld), QString());
        QCOMPARE(Verschil(bord.Groot(), groot.Beeld), QString());
        QCOMPARE(Lettersoort(*bord.Venster.PicGroot), u"Arial Narrow 13 1 ff000000"_s); // for no text too
    }

    void aBoardOfATypedSize()
    {
        Bord bord;
        bord.Begin(Zweeds, 20, 22);
        Verwacht pic(bord.Pic()), groot(bord.Groot());
        Plaats(bord, 18, 20, 8, u"ver weg"_s);
        pic.En(Tegel(8, Licht), QPoint(540, 600));
        TekenVak(groot, 18, 20, 8);
        DrukRegel(groot, 18, 20, 0, u"VER WEG"_s);
        QCOMPARE(Verschil(bord.Pic(), pic.Beeld), QString());
        QCOMPARE(Verschil(bord.Groot(), groot.Beeld), QString());
    }

    void anotherKindIsABoxWithItsTextAlone()
    {
        Bord bord;
        bord.Wijs(2, 3);
        Verwacht groot(bord.Groot());
        const QImage pic = bord.Pic();
        VakForm form;
        form.VakjeTonen(9);
        form.Text1->SetText(u"tekst"_s);
        form.OkKnop_Click();
        groot.Vul(QRect(HoekGroot(2, 3), QSize(117, 117)), qRgb(230, 250, 190));
        DrukRegel(groot, 2, 3, 0, u"TEKST"_s);
        QCOMPARE(Verschil(bord.Groot(), groot.Beeld), QString());
        QCOMPARE(Verschil(bord.Pic(), pic), QString());
    }

    void theColourOfTheTileIsAChoice_data()
    {
        QTest::addColumn<int>("keuze");
        QTest::addColumn<QRgb>("kleur");
        Geval("1", 1, Licht);
        Geval("2", 2, qRgb(192, 229, 224));
        Geval("3", 3, qRgb(244, 154, 149));
        Geval("none", 4, qRgb(255, 255, 255));
        Geval("zero", 0, qRgb(255, 255, 255));
        Geval("most", 255, qRgb(255, 255, 255));
    }
    void theColourOfTheTileIsAChoice()
    {
        QFETCH(int, keuze);
        QFETCH(QRgb, kleur);
        Bord bord;
        KleurVakjes = static_cast<quint8>(keuze);
        Verwacht pic(bord.Pic()), groot(bord.Groot());
        Plaats(bord, 2, 3, 8, u"tekst"_s);
        if (keuze >= 1 && keuze <= 3)
            pic.En(Tegel(8, kleur), QPoint(60, 90));
        TekenVak(groot, 2, 3, 8);
        DrukRegel(groot, 2, 3, 0, u"TEKST"_s);
        QCOMPARE(Verschil(bord.Pic(), pic.Beeld), QString());
        QCOMPARE(Verschil(bord.Groot(), groot.Beeld), QString());
    }

    // On the visible board what is dark stays dark; on the large one the box and the arrows wipe what was there.
    void whatIsThereStaysOnTheVisibleBoardAlone()
    {
        Bord bord;
        bord.Venster.Pic->BoxFull(2 * 450, 3 * 450, 4 * 450, 5 * 450, qRgb(100, 120, 140));
        bord.Venster.PicGroot->BoxFull(2 * 1800, 3 * 1800, 4 * 1800, 5 * 1800, qRgb(100, 120, 140));
        Plaats(bord, 2, 3, 3, u"eerder"_s, qRgb(9, 8, 7));
        bord.Venster.Pic->PrintOp(2 * 450 + 165, 3 * 450 + 105, u"A"_s);
        Verwacht pic(bord.Pic()), groot(bord.Groot());
        Plaats(bord, 2, 3, 8, u"later"_s);
        pic.En(Tegel(8, Licht), QPoint(60, 90));
        TekenVak(groot, 2, 3, 8);
        DrukRegel(groot, 2, 3, 0, u"LATER"_s);
        QCOMPARE(Verschil(bord.Pic(), pic.Beeld), QString());
        QCOMPARE(Verschil(bord.Groot(), groot.Beeld), QString());
    }

    void theTileIsByTheShownKindAndTheRestByTheChoice()
    {
        Bord bord;
        bord.Wijs(2, 3);
        Verwacht pic(bord.Pic()), groot(bord.Groot());
        VakForm form;
        form.HScroll1->setValue(3);
        form.Text1->SetText(u"a\r\na\r\na\r\na\r\na"_s);
        PijlSoort = 8;
        form.OkKnop_Click();
        pic.En(Tegel(3, Licht), QPoint(60, 90));
        TekenVak(groot, 2, 3, 8, qRgb(230, 250, 190));
        for (int i = 0; i < 5; ++i)
            DrukRegel(groot, 2, 3, i, u"A"_s, 150);
        QCOMPARE(Verschil(bord.Pic(), pic.Beeld), QString());
        QCOMPARE(Verschil(bord.Groot(), groot.Beeld), QString());
    }

    void theLinesOfAClue_data()
    {
        QTest::addColumn<int>("soort");
        QTest::addColumn<QString>("tekst");
        QTest::addColumn<QStringList>("regels");
        QTest::addColumn<int>("omhoog"); // twips
        const QStringList letters{u"A"_s, u"BB"_s, u"CCC"_s, u"D"_s, u"EE"_s, u"FFF"_s, u"G"_s};
        const auto rij = [](const QString &naam, int soort, const QStringList &regels, int omhoog) {
            Geval(naam.toUtf8(), soort, regels.join(u"\r\n"_s).toLower(), regels, omhoog);
        };
        for (int soort = 1; soort <= 8; ++soort) {
            rij(u"four in kind %1"_s.arg(soort), soort, letters.first(4), 0);
            rij(u"five in kind %1"_s.arg(soort), soort, letters.first(5), soort > 4 ? 150 : 0);
        }
        rij(u"six"_s, 1, letters.first(6), 0);
        rij(u"seven, the last one in the cell below"_s, 1, letters, 0);
        rij(u"seven in a split cell"_s, 6, letters, 150);
        rij(u"empty lines move the text down"_s, 7, {u""_s, u""_s, u""_s, u"ONDER"_s}, 0);
        rij(u"blanks move the text to the right"_s, 1, {u"   A"_s, u" B"_s}, 0);
        rij(u"an empty line in between"_s, 1, {u"BOVEN"_s, u""_s, u"ONDER"_s}, 0);
        rij(u"a break at the end is a line"_s, 5, letters.first(4) + QStringList{u""_s}, 150);
        rij(u"capitals"_s, 2, {u"ÉÉN IJS"_s, u"ÇÀ VA"_s}, 0);
        rij(u"letters without a capital"_s, 2, {u"STRAßE"_s, u"3 µM"_s}, 0);
        Geval("as the box wraps it, with the blank at its end", 2, u"Hoeveelheid medicijn"_s,
              QStringList{u"HOEVEELHEID "_s, u"MEDICIJN"_s}, 0);
        Geval("lines that are wrapped count", 6, u"hoeveelheid hoeveelheid hoeveelheid hoeveelheid hoeveelheid"_s,
              (QStringList(4, u"HOEVEELHEID "_s) += u"HOEVEELHEID"_s), 150);
    }
    void theLinesOfAClue()
    {
        QFETCH(int, soort);
        QFETCH(QString, tekst);
        QFETCH(QStringList, regels);
        QFETCH(int, omhoog);
        Bord bord;
        Verwacht groot(bord.Groot());
        Plaats(bord, 2, 3, soort, tekst);
        TekenVak(groot, 2, 3, soort);
        for (int i = 0; i < regels.size(); ++i)
            DrukRegel(groot, 2, 3, i, regels[i], omhoog);
        QCOMPARE(Verschil(bord.Groot(), groot.Beeld), QString());
    }

    void aClueMayRunOffTheBoard_data()
    {
        QTest::addColumn<QPoint>("cel");
        QTest::addColumn<int>("regels");
        Geval("the first of five lines begins above the first row", QPoint(0, 0), 5);
        Geval("the last ones are below the last row", QPoint(15, 18), 8);
    }
    void aClueMayRunOffTheBoard()
    {
        QFETCH(QPoint, cel);
        QFETCH(int, regels);
        Bord bord;
        Verwacht groot(bord.Groot());
        const QStringList woorden(regels, u"HOEVEELHEID"_s);
        Plaats(bord, cel.x(), cel.y(), 6, woorden.join(u"\r\n"_s));
        TekenVak(groot, cel.x(), cel.y(), 6);
        for (int i = 0; i < regels; ++i)
            DrukRegel(groot, cel.x(), cel.y(), i, woorden[i], 150);
        QCOMPARE(Verschil(bord.Groot(), groot.Beeld), QString());
    }

    // The middle of a line is a half pixel for every odd width: the even twip decides on which side it falls.
    void theMiddleOfALineGoesToTheEvenTwip_data()
    {
        QTest::addColumn<QString>("regel");
        QTest::addColumn<int>("breedte"); // in Arial, pixels
        QTest::addColumn<int>("x");       // in the cell, pixels
        Geval("862.5 down to 862", u"I"_s, 5, 65);
        Geval("787.5 up to 788", u"M"_s, 15, 61);
        Geval("592.5 down to 592", u"DIER"_s, 41, 47);
        Geval("517.5 up to 518", u"HOND"_s, 51, 43);
        Geval("-52.5 up to -52", u"HOEVEELHEID "_s, 127, 5);
        Geval("even", u"KAT"_s, 34, 51);
    }
    void theMiddleOfALineGoesToTheEvenTwip()
    {
        QFETCH(QString, regel);
        QFETCH(int, breedte);
        QFETCH(int, x);
        Bord bord;
        Verwacht groot(bord.Groot());
        QCOMPARE(qCeil(QFontMetricsF(Lettertype(u"Arial"_s, 13, true)).horizontalAdvance(regel)), breedte);
        Plaats(bord, 2, 3, 1, regel);
        TekenVak(groot, 2, 3, 1);
        groot.Druk(regel, QPoint(240 + x, 363), Lettertype(u"Arial Narrow"_s, 13, true), Zwart);
        QCOMPARE(Verschil(bord.Groot(), groot.Beeld), QString());
    }

    void theMiddleIsRoundedBeforeThePlaceIsAdded()
    {
        Bord bord;
        Verwacht groot(bord.Groot());
        VakForm form;
        form.Text1->SetText(u"dier"_s);
        bord.Venster.PicGroot->ZetLetter({.Punten = 13.0});
        qint32 y = 330;
        form.TekstPlaatsen(*bord.Venster.PicGroot, 60, y); // 592 + 60 + 75 = 727, not 727.5 up to 728
        groot.Druk(u"DIER"_s, QPoint(48, 22), Lettertype(u"Arial Narrow"_s, 13, true), Zwart);
        QCOMPARE(Verschil(bord.Groot(), groot.Beeld), QString());
    }

    void theVerticalPositionComesBackBelowTheLastLine_data()
    {
        QTest::addColumn<int>("soort");
        QTest::addColumn<QString>("tekst");
        QTest::addColumn<int>("y");
        Geval("none", 1, QString(), 45 + 2 * 300); // one line, and the one that stays empty
        Geval("one", 1, u"een"_s, 45 + 2 * 300);
        Geval("a break at the end", 1, u"een\r\n"_s, 45 + 3 * 300);
        Geval("five in a split cell", 5, u"1\r\n2\r\n3\r\n4\r\n5"_s, 45 - 150 + 6 * 300);
    }
    void theVerticalPositionComesBackBelowTheLastLine()
    {
        QFETCH(int, soort);
        QFETCH(QString, tekst);
        QFETCH(int, y);
        Bord bord;
        VakForm form;
        form.HScroll1->setValue(soort);
        form.Text1->SetText(tekst);
        qint32 plaats = 45;
        form.TekstPlaatsen(*bord.Venster.PicGroot, 45, plaats);
        QCOMPARE(plaats, y);
    }

    void whatOkLeavesBehind()
    {
        Bord bord;
        bord.Venster.Pic->ZetLetter({.Naam = u"Courier New"_s, .Punten = 7.0, .Vet = false, .Kleur = Groen});
        bord.Venster.PicGroot->ZetLetter({.Naam = u"Courier New"_s, .Punten = 7.0, .Vet = false, .Kleur = Groen});
        bord.InBewerking();
        PuzzelGewijzigd = false;
        bord.Venster.Label11->SetCaption(u"iets"_s);
        bord.Wijs(2, 3);
        const Stand ervoor = EditorStand(bord);
        Plaats(bord, 2, 3, 7, u"tekst"_s);
        // No row, no count; the colour is what Plaats chose.
        QCOMPARE(Verschil(ervoor, EditorStand(bord)), u"Orgineel Pic PicGroot PijlSoort PuzzelGewijzigd"_s);
        QVERIFY(PuzzelGewijzigd);
        QCOMPARE(Lettersoort(*bord.Venster.Pic), u"Courier New 7 0 ff0ac81e"_s);
        QCOMPARE(Lettersoort(*bord.Venster.PicGroot), u"Arial Narrow 13 1 ff000000"_s);
        QCOMPARE(PijlSoort, quint8(7));
    }

    void thePressEffectComesFirst()
    {
        Bord bord;
        bord.Wijs(2, 3);
        VakForm form;
        Klik(bord, *form.OkKnop, [&] { QVERIFY(!form.Unloaded()); });
        QVERIFY(form.Unloaded());
        QVERIFY(PuzzelGewijzigd);
        QVERIFY(HeeftInkt(bord.Groot(), BinnenGroot(2, 3)));
    }

    void whatStandsThereAfterThePressIsPlaced()
    {
        Bord bord;
        Verwacht pic(bord.Pic()), groot(bord.Groot());
        bord.Wijs(2, 3);
        VakForm form;
        form.HScroll1->setValue(5);
        form.Text1->SetText(u"eerder"_s);
        Klik(bord, *form.OkKnop, [&] {
            form.HScroll1->setValue(8);
            form.Text1->SetText(u"later"_s);
            bord.Wijs(4, 6);
            KleurVakjes = 3;
            OrgineelRood = qRed(Groen);
            OrgineelGroen = qGreen(Groen);
            OrgineelBlauw = qBlue(Groen);
        });
        pic.En(Tegel(8, qRgb(244, 154, 149)), QPoint(120, 180));
        TekenVak(groot, 4, 6, 8);
        DrukRegel(groot, 4, 6, 0, u"LATER"_s);
        QCOMPARE(Verschil(bord.Pic(), pic.Beeld), QString());
        QCOMPARE(Verschil(bord.Groot(), groot.Beeld), QString());
    }

    void closedDuringThePressEffectItPlacesNothing()
    {
        Bord bord;
        bord.Wijs(2, 3);
        const Stand ervoor = EditorStand(bord);
        VakForm form;
        form.show();
        Klik(bord, *form.OkKnop, [&] { form.close(); });
        QCOMPARE(Verschil(ervoor, EditorStand(bord)), QString());
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }

    void aClueOfTenThousandCharacters()
    {
        Bord bord;
        Plaats(bord, 2, 3, 1, u"raadsel "_s.repeated(1250));
        QVERIFY(PuzzelGewijzigd);
        QVERIFY(HeeftInkt(bord.Groot(), BinnenGroot(2, 18)));
    }

    void aNegativeColourFailsBeforeAnythingIsPainted()
    {
        Bord bord;
        OrgineelRood = -1; // what a settings file may hold
        const Stand ervoor = EditorStand(bord);
        VakForm form;
        form.Text1->SetText(u"tekst"_s);
        QCOMPARE(FoutVan([&] { form.OkKnop_Click(); }), int(Fout::OngeldigArgument));
        QCOMPARE(form.Text1->Text(), u"tekst"_s);
        QCOMPARE(Verschil(ervoor, EditorStand(bord)), QString());
        QVERIFY(!form.Unloaded());
        OrgineelRood = 300; // above 255 counts as 255
        form.OkKnop_Click();
        QCOMPARE(bord.Groot().pixel(60, 100), qRgb(255, 250, 190));
    }
};

RASTER_TEST(tst_VakFormOk)
#include "tst_VakFormOk.moc"
