#include "editors/VakForm.h"
#include "editors/VakSoorten.h"
#include "platform/Plaatjes.h"
#include "support/Bord.h"

using namespace Qt::StringLiterals;

static const QRgb Wit = qRgb(255, 255, 255);
static const QRgb Zwart = qRgb(0, 0, 0);

/// Opens the editor on a cell with a kind and a text and presses Ok.
static void Plaats(Bord &bord, int kolom, int rij, int soort, const QString &tekst)
{
    bord.Wijs(kolom, rij);
    VakForm form;
    form.HScroll1->setValue(soort);
    form.Text1->SetText(tekst);
    form.OkKnop_Click();
    QVERIFY(form.Unloaded());
}

static QImage Glyph(Pijl pijl)
{
    return Plaatjes::Beeld(u"pijlen"_s).copy(static_cast<int>(pijl) / 15, 0, 23, 23);
}

class tst_VakForm : public QObject
{
    Q_OBJECT
private slots:
    void controlsAndTheirPlaces_data()
    {
        QTest::addColumn<QString>("naam");
        QTest::addColumn<QRect>("vlak"); // twips: left, top, width, height; a null size is not fixed
        QTest::newRow("Pic") << "Pic" << QRect(240, 240, 1845, 1845);
        QTest::newRow("Label3") << "Label3" << QRect(45, 45, 1755, 1755);
        QTest::newRow("ImgR") << "ImgR" << QRect(2085, 960, 345, 345);
        QTest::newRow("ImgO") << "ImgO" << QRect(960, 2085, 345, 345);
        QTest::newRow("Text1") << "Text1" << QRect(2700, 240, 1845, 1845);
        QTest::newRow("Label1") << "Label1" << QRect(2730, 2100, 0, 0);
        QTest::newRow("Label2") << "Label2" << QRect(2280, 1500, 0, 0);
        QTest::newRow("Label5") << "Label5" << QRect(4770, 270, 1800, 1800);
        QTest::newRow("Label6") << "Label6" << QRect(240, 2490, 1860, 330);
        QTest::newRow("HScroll1") << "HScroll1" << QRect(270, 2520, 1800, 270);
        QTest::newRow("Label7") << "Label7" << QRect(2160, 2535, 0, 0);
        QTest::newRow("CancelKnop") << "CancelKnop" << QRect(4590, 2430, 0, 360);
        QTest::newRow("OkKnop") << "OkKnop" << QRect(5595, 2430, 0, 360);
    }
    void controlsAndTheirPlaces()
    {
        QFETCH(QString, naam);
        QFETCH(QRect, vlak);
        Bord bord;
        VakForm form;
        QVERIFY(StaatOp(form, naam, vlak));
    }

    void asItOpens()
    {
        Bord bord;
        bord.Wijs(2, 6);
        PijlSoort = 6;
        VakForm form;
        QCOMPARE(form.windowTitle(), u"Informatievakje Plaatsen op C-07 / 99"_s);
        QCOMPARE(form.size(), QSize((6900 - 90) / 15, (3480 - 450) / 15));
        QCOMPARE(form.palette().color(QPalette::Window), QColor(230, 250, 190));
        QCOMPARE(PijlSoort, quint8(1));
        QCOMPARE(form.Label2->Caption(), u"1"_s);
        QVERIFY(form.Label2->font().bold());
        QCOMPARE(form.Label1->Caption(), u"Omschrijving"_s);
        QCOMPARE(form.Label7->Caption(), u"Soort Vakje"_s);
        QCOMPARE(form.Label5->Caption(),
                 u"Maak een keus d.m.v. de scrolbalk voor een van de 8 informatievakjes, typ dan de "
                 "omschrijving in de tekstvelden en klik daarna op de button 'Ok' om het infovakje op "
                 "het puzzelveld te plaatsen."_s);
        QCOMPARE(form.HScroll1->minimum(), 1);
        QCOMPARE(form.HScroll1->maximum(), 8);
        QCOMPARE(form.HScroll1->value(), 1);
        QVERIFY(form.Text1->Text().isEmpty());
        QCOMPARE(form.Text1->font().pixelSize(), 16);
        QVERIFY(form.Text1->font().bold());
        QCOMPARE(form.Text1->palette().color(QPalette::Base), QColor(30, 0, 0));
        QCOMPARE(form.Text1->palette().color(QPalette::Text), QColor(230, 230, 230));
        QCOMPARE(form.TextLabel->font().pixelSize(), 17);
        QVERIFY(form.TextLabel->isHidden());
        QCOMPARE(form.Pic->FontName, u"Arial Narrow"_s);
        QVERIFY(form.Pic->Image() == form.Image1);
        QCOMPARE(form.Image1.size(), QSize(123, 123));
    }

    void thePreviewOfEachKind_data()
    {
        QTest::addColumn<int>("soort");
        QTest::addColumn<int>("rechts");      // ImgR.Top in twips, 0: no arrow to the right
        QTest::addColumn<int>("glyphRechts"); // its place in the strip in twips
        QTest::addColumn<int>("omlaag");      // ImgO.Left
        QTest::addColumn<int>("glyphOmlaag");
        QTest::addColumn<bool>("gesplitst");
        QTest::newRow("1") << 1 << 960 << 0 << 0 << 0 << false;
        QTest::newRow("2") << 2 << 0 << 0 << 960 << 345 << false;
        QTest::newRow("3") << 3 << 450 << 690 << 0 << 0 << false;
        QTest::newRow("4") << 4 << 0 << 0 << 450 << 1035 << false;
        QTest::newRow("5") << 5 << 570 << 0 << 960 << 345 << true;
        QTest::newRow("6") << 6 << 450 << 690 << 960 << 345 << true;
        QTest::newRow("7") << 7 << 570 << 0 << 450 << 1035 << true;
        QTest::newRow("8") << 8 << 450 << 690 << 450 << 1035 << true;
    }
    void thePreviewOfEachKind()
    {
        QFETCH(int, soort);
        QFETCH(int, rechts);
        QFETCH(int, glyphRechts);
        QFETCH(int, omlaag);
        QFETCH(int, glyphOmlaag);
        QFETCH(bool, gesplitst);
        Bord bord;
        VakForm form;
        form.HScroll1->setValue(8);
        form.HScroll1->setValue(soort);
        QCOMPARE(PijlSoort, quint8(soort));
        QCOMPARE(form.Label2->Caption(), QString::number(soort));
        QCOMPARE(!form.ImgR->isHidden(), rechts > 0);
        QCOMPARE(!form.ImgO->isHidden(), omlaag > 0);
        if (rechts > 0) {
            QCOMPARE(form.ImgR->pos(), QPoint(139, Twips::NaarPixels(rechts)));
            QVERIFY(form.ImgR->Image() == form.BackPijlen2.copy(glyphRechts / 15, 0, 23, 23));
        }
        if (omlaag > 0) {
            QCOMPARE(form.ImgO->pos(), QPoint(Twips::NaarPixels(omlaag), 139));
            QVERIFY(form.ImgO->Image() == form.BackPijlen2.copy(glyphOmlaag / 15, 0, 23, 23));
        }
        const QRect deling = InktVlak(form.Pic->Image(), QRect(3, 3, 117, 117));
        QCOMPARE(deling, gesplitst ? QRect(3, 59, 117, 3) : QRect());
    }

    void anotherKindThanTheEightShowsNoArrow()
    {
        Bord bord;
        VakForm form;
        form.VakjeTonen(9);
        QVERIFY(form.ImgR->isHidden() && form.ImgO->isHidden());
        QCOMPARE(form.Label2->Caption(), u"9"_s);
        QCOMPARE(PijlSoort, quint8(9));
        form.OkKnop_Click();
        QVERIFY(form.Unloaded());
    }

    void changingTheKindThrowsTheTextAway()
    {
        Bord bord;
        VakForm form;
        form.HScroll1->setValue(5);
        form.Text1->SetText(u"getypt"_s);
        QCOMPARE(form.Label3->Caption(), u"getypt"_s);
        form.HScroll1->setValue(1);
        QVERIFY(form.Text1->Text().isEmpty());
        QVERIFY(form.Label3->Caption().isEmpty());
        QVERIFY(form.Pic->Image() == form.Image1); // the divider is gone
    }

    void anotherKindWithoutATextIsNoChangeOfText()
    {
        Bord bord;
        VakForm form;
        form.HScroll1->setValue(5);
        QCOMPARE(form.Label1->Caption(), u"Omschrijving"_s);
    }

    void typingShowsTextAndLineCount_data()
    {
        QTest::addColumn<QString>("tekst");
        QTest::addColumn<QString>("regel");
        QTest::newRow("one") << "spin"
                             << "Regel 1";
        QTest::newRow("two") << "een\r\ntwee"
                             << "Regel 2";
        QTest::newRow("break at the end") << "een\r\n"
                                          << "Regel 2";
        QTest::newRow("soft wrap") << "hoeveelheid medicijn"
                                   << "Regel 2";
    }
    void typingShowsTextAndLineCount()
    {
        QFETCH(QString, tekst);
        QFETCH(QString, regel);
        Bord bord;
        VakForm form;
        form.Text1->SetText(tekst);
        QCOMPARE(form.Label1->Caption(), regel);
        QCOMPARE(form.Label3->Caption(), form.Text1->toPlainText());
        QCOMPARE(form.Label3->font().pixelSize(), 16);
        QVERIFY(form.Label3->font().bold());
        form.Text1->SetText(QString());
        QCOMPARE(form.Label1->Caption(), u"Regel 1"_s);
    }

    void theEightKindsOnTheLargeBoard_data()
    {
        QTest::addColumn<int>("soort");
        QTest::addColumn<QList<QPoint>>("pijlen"); // glyph (twips in the strip), with its offset below
        QTest::addColumn<QList<QPoint>>("plaatsen");
        QTest::addColumn<bool>("gesplitst");
        const QPoint rechts(0, 0), omlaag(345, 0), rechtsOmlaag(690, 0), omlaagRechts(1035, 0);
        QTest::newRow("1") << 1 << QList{rechts} << QList{QPoint(1800, 690)} << false;
        QTest::newRow("2") << 2 << QList{omlaag} << QList{QPoint(690, 1800)} << false;
        QTest::newRow("3") << 3 << QList{rechtsOmlaag} << QList{QPoint(1800, 240)} << false;
        QTest::newRow("4") << 4 << QList{omlaagRechts} << QList{QPoint(240, 1800)} << false;
        QTest::newRow("5") << 5 << QList{rechts, omlaag} << QList{QPoint(1800, 270), QPoint(690, 1800)} << true;
        QTest::newRow("6") << 6 << QList{rechtsOmlaag, omlaag} << QList{QPoint(1800, 240), QPoint(690, 1800)} << true;
        QTest::newRow("7") << 7 << QList{rechts, omlaagRechts} << QList{QPoint(1800, 240), QPoint(240, 1800)} << true;
        QTest::newRow("8") << 8 << QList{rechtsOmlaag, omlaagRechts} << QList{QPoint(1800, 240), QPoint(240, 1800)}
                           << true;
    }
    void theEightKindsOnTheLargeBoard()
    {
        QFETCH(int, soort);
        QFETCH(QList<QPoint>, pijlen);
        QFETCH(QList<QPoint>, plaatsen);
        QFETCH(bool, gesplitst);
        Bord bord;
        OrgineelRood = 10;
        OrgineelGroen = 200;
        OrgineelBlauw = 30;
        Plaats(bord, 2, 3, soort, QString());
        const QPoint oorsprong(2 * 120 + 3, 3 * 120 + 3);
        const QImage groot = bord.Groot();
        const QImage strook = Plaatjes::Beeld(u"pijlen"_s);

        // The box: 0..116 from the inside of the cell, whole but for the divider.
        for (int y = 0; y <= 116; ++y)
            for (int x = 0; x <= 116; ++x) {
                const bool deling = gesplitst && y >= 58 && y <= 60;
                QCOMPARE(groot.pixel(oorsprong + QPoint(x, y)), deling ? Zwart : qRgb(10, 200, 30));
            }
        QVERIFY(groot.pixel(oorsprong + QPoint(-1, 20)) != qRgb(10, 200, 30));
        QVERIFY(groot.pixel(oorsprong + QPoint(117, 20)) != qRgb(10, 200, 30));
        QCOMPARE(groot.pixel(oorsprong + QPoint(118, 59)) == Zwart, gesplitst); // it reaches the frame at the right

        for (int i = 0; i < pijlen.size(); ++i) {
            const QPoint plaats = oorsprong + plaatsen[i] / 15;
            QVERIFY(groot.copy(QRect(plaats, QSize(23, 23))) == strook.copy(pijlen[i].x() / 15, 0, 23, 23));
        }
        // Nothing else in the neighbours.
        const bool naarRechts = plaatsen[0].x() == 1800;
        const bool naarOmlaag = plaatsen.last().y() == 1800;
        QCOMPARE(HeeftInkt(groot, BinnenGroot(3, 3)), naarRechts);
        QCOMPARE(HeeftInkt(groot, BinnenGroot(2, 4)), naarOmlaag);
        QVERIFY(!HeeftInkt(groot, BinnenGroot(3, 4)));
        QVERIFY(!HeeftInkt(groot, BinnenGroot(1, 3)));
        QVERIFY(!HeeftInkt(groot, BinnenGroot(2, 2)));
    }

    void theColourOfTheTileIsAChoice_data()
    {
        QTest::addColumn<int>("keuze");
        QTest::addColumn<QRgb>("kleur");
        QTest::newRow("1") << 1 << qRgb(229, 248, 194);
        QTest::newRow("2") << 2 << qRgb(192, 229, 224);
        QTest::newRow("3") << 3 << qRgb(244, 154, 149);
        QTest::newRow("none") << 4 << Wit;
        QTest::newRow("zero") << 0 << Wit;
    }
    void theColourOfTheTileIsAChoice()
    {
        QFETCH(int, keuze);
        QFETCH(QRgb, kleur);
        Bord bord;
        KleurVakjes = static_cast<quint8>(keuze);
        Plaats(bord, 2, 3, 1, u"tekst"_s);
        QCOMPARE(bord.Pic().pixel(2 * 30 + 15, 3 * 30 + 15), kleur);
        QVERIFY(HeeftInkt(bord.Groot(), BinnenGroot(2, 3)));
    }

    void theTileIsLaidOverWhatIsThere()
    {
        Bord bord;
        bord.Venster.Pic->BoxFull(3 * 450 + 15, 3 * 450 + 15, 4 * 450 - 15, 4 * 450 - 15, qRgb(100, 120, 140));
        bord.Venster.Pic->SetPixel(2 * 30 + 15, 3 * 30 + 15, qRgb(0x96, 0x96, 0x96));
        Plaats(bord, 2, 3, 1, QString());
        QCOMPARE(bord.Pic().pixel(3 * 30 + 20, 3 * 30 + 5), qRgb(100, 120, 140)); // white leaves it
        QCOMPARE(bord.Pic().pixel(2 * 30 + 15, 3 * 30 + 15), qRgb(0x96 & 229, 0x96 & 248, 0x96 & 194));
        QCOMPARE(bord.Pic().pixel(3 * 30 + 4, 3 * 30 + 15), Zwart); // the head of the arrow
    }

    void linesBeginAtTheTopOnAPitchOf300_data()
    {
        QTest::addColumn<int>("soort");
        QTest::addColumn<int>("regels");
        QTest::addColumn<int>("eerste"); // twips from the inside of the cell
        QTest::newRow("six in a whole cell") << 1 << 6 << 0;
        QTest::newRow("five in a whole cell") << 1 << 5 << 0;
        QTest::newRow("four in a split cell") << 6 << 4 << 0;
        QTest::newRow("five in a split cell") << 6 << 5 << -150;
        QTest::newRow("five in kind 4") << 4 << 5 << 0;
        QTest::newRow("five in kind 5") << 5 << 5 << -150;
        QTest::newRow("seven run into the cell below") << 1 << 7 << 0;
    }
    void linesBeginAtTheTopOnAPitchOf300()
    {
        QFETCH(int, soort);
        QFETCH(int, regels);
        QFETCH(int, eerste);
        Bord bord;
        OrgineelRood = OrgineelGroen = OrgineelBlauw = 255;
        Plaats(bord, 2, 3, soort, QStringList(QStringList(regels, u"e"_s)).join(u"\r\n"_s));
        const QImage groot = bord.Groot();
        const double w = 15.0 * std::ceil(QFontMetricsF(Lettertype(u"Arial"_s, 13, true)).horizontalAdvance(u'E'));
        const int x = Twips::NaarPixels(2 * 1800 + 45 + std::nearbyint((1800 - w) / 2) + 75);
        for (int i = 0; i < regels; ++i) {
            const int y = Twips::NaarPixels(3 * 1800 + 45 + eerste + i * 300);
            const QImage los = Gedrukt(groot.size(), u"E"_s, x, y, u"Arial Narrow"_s, 13, true, Zwart);
            const QRect cel = BinnenGroot(2, y < 4 * 120 ? 3 : 4); // a line that starts higher reaches into the frame
            const QRect letter = InktVlak(los, QRect(x, y, 20, 20) & cel);
            const bool opDeling = soort > 4 && letter.bottom() >= 3 * 120 + 61 && letter.top() <= 3 * 120 + 63;
            if (!opDeling)
                QVERIFY2(groot.copy(letter) == los.copy(letter), qPrintable(QString::number(i)));
        }
    }

    void aBreakAtTheEndPrintsNoInk()
    {
        Bord bord;
        Plaats(bord, 2, 3, 1, u"spin"_s);
        const QImage zonder = bord.Groot();
        bord.Begin(Zweeds, 16, 19);
        Plaats(bord, 2, 3, 1, u"spin\r\n"_s);
        QVERIFY(bord.Groot() == zonder);
    }

    void theVerticalPositionComesBackBelowTheLastLine()
    {
        Bord bord;
        VakForm form;
        form.Text1->SetText(u"een\r\ntwee\r\n"_s);
        qint32 y = 45;
        form.TekstPlaatsen(*bord.Venster.PicGroot, 45, y);
        QCOMPARE(y, 45 + 4 * 300); // three lines, and the one that stays empty
    }

    void linesAreCentredByTheWidthOfArial()
    {
        Bord bord;
        OrgineelRood = OrgineelGroen = OrgineelBlauw = 255;
        const QString woord = u"huisdier"_s;
        Plaats(bord, 2, 3, 1, woord);
        const QFontMetricsF arial(Lettertype(u"Arial"_s, 13, true));
        const double w = 15.0 * std::ceil(arial.horizontalAdvance(woord.toUpper()));
        const int x = Twips::NaarPixels(2 * 1800 + 45 + std::nearbyint((1800 - w) / 2) + 75);
        const QImage los =
            Gedrukt(bord.Groot().size(), woord.toUpper(), x, 3 * 120 + 3, u"Arial Narrow"_s, 13, true, Zwart);
        QCOMPARE(InktVlak(bord.Groot(), BinnenGroot(2, 3)), InktVlak(los, BinnenGroot(2, 3)));
        QVERIFY(bord.Groot().copy(BinnenGroot(2, 3)) == los.copy(BinnenGroot(2, 3)));
    }

    void whatOkLeavesBehind()
    {
        Bord bord;
        Plaats(bord, 2, 3, 7, QString()); // an empty clue is accepted
        QVERIFY(PuzzelGewijzigd);
        QCOMPARE(bord.Venster.ListView1->topLevelItemCount(), 0);
        const PictureBox &groot = *bord.Venster.PicGroot;
        QCOMPARE(groot.FontName, u"Arial Narrow"_s);
        QCOMPARE(groot.FontSize, 13.0);
        QVERIFY(groot.FontBold);
        QCOMPARE(groot.ForeColor, Zwart);
        QCOMPARE(PijlSoort, quint8(7));
        QVERIFY(qAbs(bord.Bank.TestKlok.Gewacht() - 0.2) < 1e-6);
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }

    void anArrowBeyondTheEdgeIsClipped()
    {
        Bord bord;
        Plaats(bord, 15, 18, 8, u"rand"_s);
        QCOMPARE(bord.Groot().size(), QSize(1923, 2283));
        QVERIFY(HeeftInkt(bord.Groot(), BinnenGroot(15, 18)));
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
        const QImage pic = bord.Pic(), groot = bord.Groot();
        VakForm form;
        QCOMPARE(FoutVan([&] { form.OkKnop_Click(); }), int(Fout::OngeldigArgument));
        QVERIFY(bord.Pic() == pic);
        QVERIFY(bord.Groot() == groot);
        OrgineelRood = 300; // above 255 counts as 255
        form.OkKnop_Click();
        QCOMPARE(bord.Groot().pixel(60, 100), qRgb(255, 250, 190));
    }

    void cancelChangesNothing()
    {
        Bord bord;
        const QImage pic = bord.Pic(), groot = bord.Groot();
        VakForm form;
        form.Text1->SetText(u"tekst"_s);
        form.CancelKnop_Click();
        QVERIFY(form.Unloaded());
        QVERIFY(bord.Pic() == pic);
        QVERIFY(bord.Groot() == groot);
        QVERIFY(!PuzzelGewijzigd);
        QVERIFY(qAbs(bord.Bank.TestKlok.Gewacht() - 0.2) < 1e-6);
    }

    void theArrowDrawings_data()
    {
        // Each drawing is black on white, 23 by 23; what its corners and its ends hold tells it from the others.
        QTest::addColumn<int>("pijl");
        QTest::addColumn<QPoint>("begin"); // where its shaft begins
        QTest::addColumn<QPoint>("punt");  // where its head ends
        QTest::addColumn<QPoint>("leeg");
        QTest::newRow("right") << int(Pijl::Rechts) << QPoint(0, 11) << QPoint(21, 11) << QPoint(11, 1);
        QTest::newRow("down") << int(Pijl::Omlaag) << QPoint(11, 0) << QPoint(11, 21) << QPoint(1, 11);
        QTest::newRow("right then down") << int(Pijl::RechtsDanOmlaag) << QPoint(0, 2) << QPoint(11, 21)
                                         << QPoint(1, 11);
        QTest::newRow("down then right") << int(Pijl::OmlaagDanRechts) << QPoint(2, 0) << QPoint(21, 11)
                                         << QPoint(11, 1);
    }
    void theArrowDrawings()
    {
        QFETCH(int, pijl);
        QFETCH(QPoint, begin);
        QFETCH(QPoint, punt);
        QFETCH(QPoint, leeg);
        const QImage beeld = Glyph(static_cast<Pijl>(pijl));
        QCOMPARE(Plaatjes::Beeld(u"pijlen"_s).size(), QSize(92, 23));
        QCOMPARE(beeld.pixel(begin), Zwart);
        QVERIFY(qGray(beeld.pixel(punt)) < 128);
        QCOMPARE(beeld.pixel(leeg), Wit);
        for (const QPoint hoek : {QPoint(22, 0), QPoint(0, 22), QPoint(22, 22)})
            QCOMPARE(beeld.pixel(hoek), Wit);
    }

    void theTileStripIsWhiteOutsideCellsAndArrows()
    {
        const QImage strook = Plaatjes::Beeld(u"vakjes"_s);
        QCOMPARE(strook.size(), QSize(344, 43));
        for (int soort = 0; soort < 8; ++soort) {
            const int x = soort * 43;
            QVERIFY(!HeeftInkt(strook, QRect(x, 0, 30, 30), qRgb(229, 248, 194)));
            QVERIFY(!HeeftInkt(strook, QRect(x + 30, 30, 13, 13)));
            QCOMPARE(HeeftInkt(strook, QRect(x + 30, 0, 13, 30)),
                     VakSoorten[static_cast<std::size_t>(soort)].Rechts.has_value());
            QCOMPARE(HeeftInkt(strook, QRect(x, 30, 30, 13)),
                     VakSoorten[static_cast<std::size_t>(soort)].Omlaag.has_value());
        }
    }
};

RASTER_TEST(tst_VakForm)
#include "tst_VakForm.moc"
