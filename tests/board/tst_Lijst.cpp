#include "board/MainForm.h"
#include "support/Bord.h"

#include <QSignalSpy>
#include <QStyledItemDelegate>

using namespace Qt::StringLiterals;

/// The smallest rectangle round all wholly red pixels.
static QRect RodePunten(const QImage &beeld)
{
    QRect vlak;
    for (int y = 0; y < beeld.height(); ++y)
        for (int x = 0; x < beeld.width(); ++x)
            if (beeld.pixel(x, y) == qRgb(255, 0, 0))
                vlak |= QRect(x, y, 1, 1);
    return vlak;
}

class tst_Lijst : public QObject
{
    Q_OBJECT

    static void Kies(Bord &bord, int rij)
    {
        bord.Venster.ListView1->setCurrentItem(bord.Venster.ListView1->topLevelItem(rij));
    }
    static QRectF Lijn(const Bord &bord)
    {
        const LineMark &lijn = *bord.Venster.Line1;
        return QRectF(QPointF(lijn.X1, lijn.Y1), QPointF(lijn.X2, lijn.Y2));
    }

private slots:
    void columnsAndTheirWidths()
    {
        Bord bord;
        const QTreeWidget &lijst = *bord.Venster.ListView1;
        const QTreeWidgetItem &kop = *lijst.headerItem();
        QCOMPARE(lijst.columnCount(), 4);
        QCOMPARE((QStringList{kop.text(0), kop.text(1), kop.text(2), kop.text(3)}.join(u'|')),
                 u"Vaknummer|Omschrijving|Oplossing|Nr."_s);
        QCOMPARE(lijst.columnWidth(0), 88);
        QCOMPARE(lijst.columnWidth(1), 144);
        QCOMPARE(lijst.columnWidth(2), 90);
        QCOMPARE(lijst.columnWidth(3), 42);
        QVERIFY(!lijst.isSortingEnabled());
    }

    void rowsStayInTheOrderOfAddingAndAreCounted()
    {
        Bord bord;
        QCOMPARE(bord.Venster.Label11->Caption(), u"0 Items"_s);
        bord.Venster.VoegRijenToe({{u"C-07 / 99-H"_s, u"zz"_s, u"zebra"_s, u"-"_s}});
        bord.Venster.VoegRijenToe({{u"A-01 / 1-V"_s, u"aa"_s, u"aap"_s, u"-"_s}});
        bord.Venster.ToonAantal();
        QCOMPARE(bord.Rij(0), u"C-07 / 99-H|zz|zebra|-"_s);
        QCOMPARE(bord.Rij(1), u"A-01 / 1-V|aa|aap|-"_s);
        QCOMPARE(bord.Venster.Label11->Caption(), u"2 Items"_s);
        QVERIFY(bord.Venster.Line1->isHidden()); // adding shows no line
    }

    void theLineRunsFromFirstToLastCell_data()
    {
        QTest::addColumn<int>("soort");
        QTest::addColumn<QString>("plaats");
        QTest::addColumn<QString>("oplossing");
        QTest::addColumn<QRectF>("lijn");
        const auto van = [](double x1, double y1, double x2, double y2) {
            return QRectF(QPointF(x1, y1), QPointF(x2, y2));
        };
        QTest::newRow("long IJ is one cell") << 1 << "B-03 / 34-H"
                                             << "IJSBEER" << van(675, 1125, 2925, 1125);
        QTest::newRow("small letters") << 1 << "B-03 / 34-H"
                                       << "ijsbeer" << van(675, 1125, 2925, 1125);
        QTest::newRow("down") << 3 << "A-01 / 1-V"
                              << "aap" << van(225, 225, 225, 1125);
        QTest::newRow("row ten") << 2 << "C-10 / 147-H"
                                 << "ab" << van(1125, 4275, 1575, 4275);
        QTest::newRow("lower right") << 2 << "A-01 / 1-R"
                                     << "abcd" << van(225, 225, 1575, 1575);
        QTest::newRow("lower left") << 2 << "D-01 / 4-L"
                                    << "abcd" << van(1575, 225, 225, 1575);
        QTest::newRow("one letter") << 1 << "A-01 / 1-H"
                                    << "a" << van(225, 225, 225, 225);
        QTest::newRow("72 cells") << 1 << "A-01 / 1-H" << QString(72, u'a') << van(225, 225, 225 + 71 * 450, 225);
    }
    void theLineRunsFromFirstToLastCell()
    {
        QFETCH(int, soort);
        QFETCH(QString, plaats);
        QFETCH(QString, oplossing);
        QFETCH(QRectF, lijn);
        Bord bord;
        PuzzelType = static_cast<quint8>(soort);
        bord.Venster.VoegRijenToe({{plaats, {}, oplossing, u"-"_s}});
        bord.Venster.ListView1_ItemClick();
        QVERIFY(!bord.Venster.Line1->isHidden());
        QCOMPARE(Lijn(bord), lijn);
    }

    void theLineIsRedAndTwoPixelsWide()
    {
        Bord bord;
        bord.Venster.VoegRijenToe({{u"B-03 / 34-H"_s, {}, u"ijsbeer"_s, u"-"_s}});
        bord.Venster.ListView1_ItemClick();
        const QImage beeld = bord.Venster.Pic->grab().toImage().convertToFormat(QImage::Format_RGB32);
        int hoog = 0;
        for (int y = 60; y < 90; ++y)
            hoog += beeld.pixel(100, y) == qRgb(255, 0, 0);
        QCOMPARE(hoog, 2);
        QCOMPARE(RodePunten(beeld), QRect(QPoint(44, 74), QPoint(195, 75))); // a dot at each end, and what is between
        QVERIFY(!HeeftInkt(bord.Pic(), Binnen(3, 2))); // it lies over the board and isn't drawn on it
    }

    void aWordOfOneCellIsADot()
    {
        Bord bord;
        for (const QChar richting : {u'H', u'V', u'R', u'L'}) {
            PuzzelType = Woordzoeker;
            bord.Venster.WisRijen();
            bord.Venster.VoegRijenToe({{u"B-03 / 34-"_s + richting, {}, u"IJ"_s, u"-"_s}});
            bord.Venster.ListView1_ItemClick();
            const QImage beeld = bord.Venster.Pic->grab().toImage().convertToFormat(QImage::Format_RGB32);
            QCOMPARE(RodePunten(beeld), QRect(44, 74, 2, 2));
        }
    }

    void someRowsShowNoLine_data()
    {
        QTest::addColumn<int>("soort");
        QTest::addColumn<QString>("plaats");
        QTest::newRow("not tied to a place") << 2 << "-";
        QTest::newRow("Sudoku") << 4 << "A-01 / 1-H";
        QTest::newRow("Filippine") << 5 << "07";
        QTest::newRow("no kind") << 99 << "A-01 / 1-H";
    }
    void someRowsShowNoLine()
    {
        QFETCH(int, soort);
        QFETCH(QString, plaats);
        Bord bord;
        PuzzelType = static_cast<quint8>(soort);
        bord.Venster.VoegRijenToe({{plaats, {}, QString(80, u'a'), u"-"_s}}); // no length is looked at either
        bord.Venster.ListView1_ItemClick();
        QVERIFY(bord.Venster.Line1->isHidden());
    }

    void aForeignDirectionMovesTheStartOnly()
    {
        Bord bord;
        bord.Venster.VoegRijenToe({{u"A-01 / 1-H"_s, {}, u"aap"_s, {}}, {u"C-02 / 19-R"_s, {}, u"aap"_s, {}}});
        bord.Venster.ListView1_ItemClick();
        Kies(bord, 1);
        QCOMPARE(Lijn(bord), QRectF(QPointF(1125, 675), QPointF(1125, 225)));
        QVERIFY(!bord.Venster.Line1->isHidden());
    }

    void positionsThatNoEditorMakesDoNotCrash()
    {
        Bord bord;
        for (const QString &plaats :
             {u"x"_s, u"€€€€"_s, u"A"_s, u"-H"_s, QString(100000, u'9'), u"A-99999999 / 9-V"_s}) {
            bord.Venster.WisRijen();
            bord.Venster.VoegRijenToe({{plaats, {}, u"aap"_s, {}}});
            bord.Venster.ListView1_ItemClick();
            bord.Venster.Pic->grab();
            QVERIFY(!bord.Venster.Line1->isHidden());
        }
    }

    void aSolutionOf73CellsOverflows()
    {
        Bord bord;
        bord.Venster.VoegRijenToe({{u"A-01 / 1-H"_s, {}, QString(73, u'a'), {}}});
        QCOMPARE(FoutVan([&] { bord.Venster.ListView1_ItemClick(); }), int(Fout::Overloop));
        Form::Voer(u"lijst"_s, [&] { bord.Venster.ListView1_ItemClick(); });
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1);
        QVERIFY(bord.Bank.Script.Gezien[0].Tekst.contains(u"Overloop"_s));
    }

    void aClickOfThePointerShowsTheLineAgain()
    {
        Bord bord;
        bord.Venster.show();
        bord.Venster.VoegRijenToe({{u"A-01 / 1-H"_s, {}, u"aap"_s, u"-"_s}});
        QTreeWidget &lijst = *bord.Venster.ListView1;
        const QPoint midden = lijst.visualItemRect(lijst.topLevelItem(0)).center();
        QTest::mouseClick(lijst.viewport(), Qt::LeftButton, {}, midden);
        QVERIFY(bord.Venster.Line1->isVisible());
        bord.Venster.Line1->hide();
        QTest::mouseClick(lijst.viewport(), Qt::LeftButton, {}, midden);
        QVERIFY(bord.Venster.Line1->isVisible());
    }

    void deletingAsksAndLeavesTheBoardAlone()
    {
        Bord bord;
        bord.Venster.VoegRijenToe({{u"A-01 / 1-H"_s, {}, u"aap"_s, u"-"_s}, {u"A-02 / 17-H"_s, {}, u"wijn"_s, u"-"_s}});
        Kies(bord, 1);
        const QImage pic = bord.Pic();
        bord.Bank.Script.Antwoorden = {Antwoord::Nee, Antwoord::Ja};
        bord.Venster.DelKnop_Click();
        QCOMPARE(bord.Venster.ListView1->topLevelItemCount(), 2);
        QVERIFY(!bord.Venster.Line1->isHidden());
        bord.Venster.DelKnop_Click();
        QCOMPARE(bord.Bank.Script.Gezien[0].Tekst, u"Wil je (wijn) verwijderen uit de lijst?"_s);
        QCOMPARE(bord.Bank.Script.Gezien[0].Titel, u" Delete"_s);
        QCOMPARE(bord.Bank.Script.Gezien[0].Soort, Knoppen::JaNee);
        QCOMPARE(bord.Venster.ListView1->topLevelItemCount(), 1);
        QCOMPARE(bord.Rij(0), u"A-01 / 1-H||aap|-"_s);
        QCOMPARE(bord.Venster.Label11->Caption(), u"1 Items"_s);
        QVERIFY(bord.Venster.Line1->isHidden());
        QVERIFY(bord.Pic() == pic);
        QVERIFY(!PuzzelGewijzigd);
    }

    void deletingTheOnlyRow()
    {
        Bord bord;
        bord.Venster.VoegRijenToe({{u"A-01 / 1-H"_s, {}, u"aap"_s, u"-"_s}});
        bord.Venster.ListView1_ItemClick();
        bord.Bank.Script.Antwoorden = {Antwoord::Ja};
        bord.Venster.DelKnop_Click();
        QCOMPARE(bord.Venster.Label11->Caption(), u"0 Items"_s);
        QVERIFY(bord.Venster.Line1->isHidden());
    }

    void anEmptyListOnlyShowsThePressEffect()
    {
        Bord bord;
        bord.Venster.DelKnop_Click();
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
        QVERIFY(qAbs(bord.Bank.TestKlok.Gewacht() - 0.2) < 1e-6);
    }

    void rowsAlwaysHaveOneSelected()
    {
        Bord bord;
        bord.Venster.VoegRijenToe(
            {{u"-"_s, {}, u"een"_s, {}}, {u"-"_s, {}, u"twee"_s, {}}, {u"-"_s, {}, u"drie"_s, {}}});
        for (const QString &woord : {u"een"_s, u"twee"_s, u"drie"_s}) {
            bord.Bank.Script.Antwoorden = {Antwoord::Ja};
            bord.Venster.DelKnop_Click();
            QVERIFY(bord.Bank.Script.Gezien.takeLast().Tekst.contains(woord));
        }
    }

    void aTextOfMegabytesIsShownByItsBeginning()
    {
        Bord bord;
        const QString lang(5000000, u'm');
        bord.Venster.VoegRijenToe({{u"A-01 / 1-H"_s, lang, u"aap"_s, {}}});
        QCOMPARE(bord.Rij(0).size(), lang.size() + 16);
        auto *delegate = qobject_cast<QStyledItemDelegate *>(bord.Venster.ListView1->itemDelegate());
        QVERIFY(delegate);
        QCOMPARE(delegate->displayText(lang, QLocale()).size(), 260);
        QVERIFY(!bord.Venster.grab().isNull());
    }
};

RASTER_TEST(tst_Lijst)
#include "tst_Lijst.moc"
