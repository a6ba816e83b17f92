#include "board/MainForm.h"
#include "support/Verwacht.h"

#include <QPainter>
#include <QSignalSpy>
#include <QStyledItemDelegate>

using namespace Qt::StringLiterals;

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
        QList<Rij> rijen;
        for (int i = 0; i < 12; ++i)
            rijen += {QString::number(12 - i), u"vraag"_s, u"antwoord"_s, QString::number(i)};
        bord.Venster.VoegRijenToe(rijen);
        bord.Venster.ToonAantal();
        QCOMPARE(bord.Venster.Rijen().sliced(2), rijen);
        QCOMPARE(bord.Venster.Label11->Caption(), u"14 Items"_s);
    }

    void theFirstRowIsSelectedAsLongAsNoOtherIs()
    {
        Bord bord;
        const QTreeWidget &lijst = *bord.Venster.ListView1;
        const auto gekozen = [&lijst] { return lijst.indexOfTopLevelItem(lijst.selectedItems().value(0)); };
        bord.Venster.VoegRijenToe({});
        QCOMPARE(gekozen(), -1);
        bord.Venster.VoegRijenToe({{u"-"_s, {}, u"een"_s, {}}, {u"-"_s, {}, u"twee"_s, {}}});
        QCOMPARE(gekozen(), 0);
        Kies(bord, 1);
        bord.Venster.VoegRijenToe({{u"-"_s, {}, u"drie"_s, {}}});
        QCOMPARE(gekozen(), 1);
        bord.Venster.ToonAantal();
        QCOMPARE(bord.Venster.Label11->Caption(), u"3 Items"_s); // tied to a place or not
    }

    void theLineRunsFromFirstToLastCell_data()
    {
        QTest::addColumn<quint8>("soort");
        QTest::addColumn<QString>("plaats");
        QTest::addColumn<QString>("oplossing");
        QTest::addColumn<QRectF>("lijn");
        const auto van = [](double x1, double y1, double x2, double y2) {
            return QRectF(QPointF(x1, y1), QPointF(x2, y2));
        };
        Geval("long IJ is one cell", Zweeds, "B-03 / 34-H", "IJSBEER", van(675, 1125, 2925, 1125));
        Geval("small letters", Zweeds, "B-03 / 34-H", "ijsbeer", van(675, 1125, 2925, 1125));
        Geval("two long IJ", Zweeds, "A-01 / 1-H", "ijsbergrij", van(225, 225, 3375, 225));
        Geval("Zweeds down", Zweeds, "C-07 / 99-V", "aap", van(1125, 2925, 1125, 3825));
        Geval("Woordzoeker to the right", Woordzoeker, "C-10 / 147-H", "ab", van(1125, 4275, 1575, 4275));
        Geval("Woordzoeker down", Woordzoeker, "P-18 / 288-V", "ab", van(6975, 7875, 6975, 8325));
        Geval("lower right", Woordzoeker, "A-01 / 1-R", "abcd", van(225, 225, 1575, 1575));
        Geval("lower left", Woordzoeker, "D-01 / 4-L", "abcd", van(1575, 225, 225, 1575));
        Geval("Kruiswoord to the right", Kruiswoord, "A-19 / 289-H", "aap", van(225, 8325, 1125, 8325));
        Geval("Kruiswoord down", Kruiswoord, "A-01 / 1-V", "aap", van(225, 225, 225, 1125));
        Geval("on a board of a typed size", Woordzoeker, "[-20 / 597-H", "ab", van(11925, 8775, 12375, 8775));
        Geval("one letter", Zweeds, "A-01 / 1-H", "a", van(225, 225, 225, 225));
        Geval("no letter", Zweeds, "C-01 / 3-H", "", van(1125, 225, 675, 225)); // a cell back
        Geval("blanks are cells", Zweeds, "A-01 / 1-H", " DE AAP ", van(225, 225, 3375, 225));
        Geval("72 cells", Zweeds, "A-01 / 1-H", QString(72, u'a'), van(225, 225, 225 + 71 * 450, 225));
    }
    void theLineRunsFromFirstToLastCell()
    {
        QFETCH(quint8, soort);
        QFETCH(QString, plaats);
        QFETCH(QString, oplossing);
        QFETCH(QRectF, lijn);
        Bord bord;
        PuzzelType = soort;
        bord.Venster.VoegRijenToe({{plaats, {}, oplossing, u"-"_s}});
        bord.Venster.Shape1->show();
        const Stand ervoor = bord.Nu();
        bord.Venster.ListView1_ItemClick();
        QCOMPARE(bord.Veranderd(ervoor), u"Line1 Line1.Punten"_s);
        QVERIFY(!bord.Venster.Line1->isHidden());
        QCOMPARE(Lijn(bord), lijn);
    }

    void ofTwoWordsInOnePlaceTheChosenOneIsShown()
    {
        Bord bord;
        const QString plaats = u"A-01 / 1-H"_s;
        bord.Venster.VoegRijenToe({{plaats, {}, u"aap"_s, u"-"_s}, {plaats, {}, u"schaap"_s, u"-"_s}});
        Kies(bord, 1);
        QCOMPARE(Lijn(bord), QRectF(QPointF(225, 225), QPointF(2475, 225)));
    }

    void theLineIsRedAndTwoPixelsWide()
    {
        Bord bord;
        bord.Venster.VoegRijenToe({{u"B-03 / 34-H"_s, {}, u"ijsbeer"_s, u"-"_s}});
        bord.Venster.ListView1_ItemClick();
        QImage verwacht = bord.Pic(); // it lies over the board and isn't drawn on it
        QPainter(&verwacht).fillRect(QRect(QPoint(44, 74), QPoint(195, 75)), Qt::red); // from a dot to a dot
        QCOMPARE(Getoond(*bord.Venster.Pic), verwacht);
    }

    void aWordOfOneCellIsADot()
    {
        Bord bord;
        for (const QChar richting : {u'H', u'V', u'R', u'L'}) {
            PuzzelType = Woordzoeker;
            bord.Venster.WisRijen();
            bord.Venster.VoegRijenToe({{u"B-03 / 34-"_s + richting, {}, u"IJ"_s, u"-"_s}});
            bord.Venster.ListView1_ItemClick();
            QImage verwacht = bord.Pic();
            QPainter(&verwacht).fillRect(44, 74, 2, 2, Qt::red);
            QCOMPARE(Getoond(*bord.Venster.Pic), verwacht);
        }
    }

    void someRowsLeaveTheLineAlone_data()
    {
        QTest::addColumn<quint8>("soort");
        QTest::addColumn<QString>("plaats");
        Geval("not tied to a place", Zweeds, "-");
        Geval("not tied to a place either", Woordzoeker, "-");
        Geval("no text", Zweeds, "");
        Geval("Sudoku", Sudoku, "B-02 / 18-H");
        Geval("Filippine", Filippine, "07");
        Geval("Filippine with a direction", Filippine, "B-02 / 18-V");
        Geval("no kind", quint8(99), "B-02 / 18-H");
    }
    void someRowsLeaveTheLineAlone()
    {
        QFETCH(quint8, soort);
        QFETCH(QString, plaats);
        Bord bord;
        bord.Venster.VoegRijenToe({{u"A-01 / 1-R"_s, {}, u"aap"_s, u"-"_s},
                                   {plaats, {}, QString(80, u'a'), u"-"_s}}); // no length is looked at either
        for (const bool zichtbaar : {true, false}) {
            PuzzelType = Woordzoeker;
            bord.Venster.Line1->hide();
            Kies(bord, 0);
            bord.Venster.ListView1_ItemClick();
            bord.Venster.Line1->setVisible(zichtbaar);
            PuzzelType = soort;
            const Stand ervoor = bord.Nu();
            Kies(bord, 1);
            bord.Venster.ListView1_ItemClick();
            QCOMPARE(bord.Veranderd(ervoor), u"ListView1"_s); // which row is selected
            QCOMPARE(Lijn(bord), QRectF(QPointF(225, 225), QPointF(1125, 1125)));
            QCOMPARE(bord.Venster.Line1->isHidden(), !zichtbaar);
        }
    }

    void aForeignDirectionMovesTheStartOnly_data()
    {
        QTest::addColumn<quint8>("soort");
        QTest::addColumn<QString>("plaats");
        Geval("Zweeds R", Zweeds, "C-02 / 19-R");
        Geval("Zweeds L", Zweeds, "C-02 / 19-L");
        Geval("Kruiswoord R", Kruiswoord, "C-02 / 19-R");
        Geval("Kruiswoord L", Kruiswoord, "C-02 / 19-L");
        Geval("Woordzoeker X", Woordzoeker, "C-02 / 19-X");
        Geval("a small letter", Woordzoeker, "C-02 / 19-h");
    }
    void aForeignDirectionMovesTheStartOnly()
    {
        QFETCH(quint8, soort);
        QFETCH(QString, plaats);
        Bord bord;
        PuzzelType = soort;
        bord.Venster.VoegRijenToe({{u"A-01 / 1-H"_s, {}, u"aap"_s, {}}, {plaats, {}, QString(73, u'o'), {}}});
        bord.Venster.ListView1_ItemClick();
        bord.Venster.Line1->hide();
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
            bord.Venster.Line1->hide();
            bord.Venster.ListView1_ItemClick();
            bord.Venster.Pic->grab();
            QVERIFY(!bord.Venster.Line1->isHidden());
        }
    }

    void aSolutionOf73CellsOverflows()
    {
        Bord bord;
        bord.Venster.VoegRijenToe({{u"A-01 / 1-H"_s, {}, QString(73, u'a'), {}}});
        const Stand ervoor = bord.Nu();
        QCOMPARE(FoutVan([&] { bord.Venster.ListView1_ItemClick(); }), int(Fout::Overloop));
        Form::Voer(u"lijst"_s, [&] { bord.Venster.ListView1_ItemClick(); });
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1);
        QVERIFY(bord.Bank.Script.Gezien[0].Tekst.contains(u"Overloop"_s));
        QCOMPARE(bord.Veranderd(ervoor), QString());
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

    // A solution too long shows a message each time that its row is handled.
    void aClickIsHandledOnce()
    {
        Bord bord;
        bord.Venster.show();
        bord.Venster.VoegRijenToe(
            {{u"A-01 / 1-H"_s, {}, u"aap"_s, u"-"_s}, {u"A-02 / 17-H"_s, {}, QString(73, u'a'), u"-"_s}});
        QTreeWidget &lijst = *bord.Venster.ListView1;
        const QPoint midden = lijst.visualItemRect(lijst.topLevelItem(1)).center();
        QTest::mouseClick(lijst.viewport(), Qt::LeftButton, {}, midden);
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1);
        QTest::mouseClick(lijst.viewport(), Qt::LeftButton, {}, midden);
        QCOMPARE(bord.Bank.Script.Gezien.size(), 2);
        QTest::keyClick(&lijst, Qt::Key_Up);
        QTest::keyClick(&lijst, Qt::Key_Down);
        QCOMPARE(bord.Bank.Script.Gezien.size(), 3);
    }

    void noClickTakesTheSelectionAway()
    {
        Bord bord;
        bord.Venster.show();
        bord.Venster.VoegRijenToe({{u"A-01 / 1-H"_s, {}, u"aap"_s, u"-"_s}});
        QTreeWidget &lijst = *bord.Venster.ListView1;
        const QPoint midden = lijst.visualItemRect(lijst.topLevelItem(0)).center();
        QTest::mouseClick(lijst.viewport(), Qt::LeftButton, Qt::ControlModifier, midden);
        QTest::mouseClick(lijst.viewport(), Qt::LeftButton, {}, QPoint(midden.x(), lijst.viewport()->height() - 5));
        QCOMPARE(lijst.selectedItems().size(), 1);
        QVERIFY(bord.Venster.Line1->isVisible());
        bord.Bank.Script.Antwoorden = {Antwoord::Nee};
        bord.Venster.DelKnop_Click();
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1); // it has a row to ask about
    }

    void whatTheProgramItselfDoesIsNoClick()
    {
        Bord bord;
        const QSignalSpy klik(bord.Venster.ListView1, &ListView::ItemClick);
        bord.Venster.VoegRijenToe({{u"A-01 / 1-H"_s, {}, u"aap"_s, {}}, {u"A-02 / 17-H"_s, {}, u"noot"_s, {}}});
        bord.Bank.Script.Antwoorden = {Antwoord::Ja};
        bord.Venster.DelKnop_Click();
        QCOMPARE(bord.Venster.ListView1->selectedItems().size(), 1);
        bord.Venster.VoegRijenToe({{u"-"_s, {}, u"mies"_s, {}}});
        bord.Venster.WisRijen();
        QCOMPARE(bord.Venster.ListView1->topLevelItemCount(), 0);
        QCOMPARE(klik.size(), 0);
    }

    void deletingAsksAndLeavesTheBoardAlone()
    {
        Bord bord;
        bord.InBewerking();
        PuzzelGewijzigd = false;
        bord.Venster.VoegRijenToe({{u"A-02 / 17-H"_s, {}, u" Wijn "_s, u"-"_s}});
        bord.Venster.ToonAantal();
        Kies(bord, 1);
        QVERIFY(!bord.Venster.Line1->isHidden());
        bord.Venster.DelKnop->setFocus();
        const Stand ervoor = bord.Nu();
        bord.Bank.Script.Antwoorden = {Antwoord::Nee, Antwoord::Ja};
        KlikMetDruk(*bord.Venster.DelKnop, [&] { QVERIFY(bord.Bank.Script.Gezien.isEmpty()); });
        QCOMPARE(bord.Veranderd(ervoor), QString());
        bord.Venster.DelKnop_Click();
        QCOMPARE(bord.Veranderd(ervoor), u"Label11 Line1 ListView1"_s);
        QCOMPARE(bord.Venster.focusWidget(), bord.Venster.DelKnop);
        QCOMPARE(bord.Bank.Script.Gezien[0].Tekst, u"Wil je ( Wijn ) verwijderen uit de lijst?"_s);
        QCOMPARE(bord.Bank.Script.Gezien[0].Titel, u" Delete"_s);
        QCOMPARE(bord.Bank.Script.Gezien[0].Soort, Knoppen::JaNee);
        QCOMPARE(bord.Bank.Script.Gezien[0].Plaatje, Icoon::Geen);
        QCOMPARE(bord.Venster.ListView1->topLevelItemCount(), 1);
        QCOMPARE(bord.Rij(0), u"A-01 / 1-H||aap|-"_s);
        QCOMPARE(bord.Venster.Label11->Caption(), u"1 Items"_s);
        QVERIFY(bord.Venster.Line1->isHidden());
    }

    void ofTwoEqualRowsTheSelectedOneIsDeleted()
    {
        Bord bord;
        const Rij rij{u"A-01 / 1-H"_s, u"vraag"_s, u"aap"_s, u"-"_s};
        const Rij los{u"-"_s, {}, u"noot"_s, u"-"_s};
        bord.Venster.VoegRijenToe({rij, los, rij});
        Kies(bord, 2);
        bord.Bank.Script.Antwoorden = {Antwoord::Ja};
        bord.Venster.DelKnop_Click();
        QCOMPARE(bord.Venster.Rijen(), (QList<Rij>{rij, los}));
    }

    void theRowIsTheOneSelectedAfterThePressEffect()
    {
        Bord bord;
        bord.Venster.VoegRijenToe({{u"-"_s, {}, u"een"_s, {}}, {u"-"_s, {}, u"twee"_s, {}}});
        bord.Bank.Script.Antwoorden = {Antwoord::Ja};
        bord.Venster.Line1->show();
        KlikMetDruk(*bord.Venster.DelKnop, [&] { Kies(bord, 1); });
        QVERIFY(bord.Venster.Line1->isHidden()); // whichever word it was of
        QVERIFY(bord.Bank.Script.Gezien.value(0).Tekst.contains(u"(twee)"_s));
        QCOMPARE(bord.Rij(0), u"-||een|"_s);
        QCOMPARE(bord.Venster.ListView1->topLevelItemCount(), 1);
    }

    void nothingIsAskedOnceTheWindowIsClosed()
    {
        Bord bord;
        bord.Venster.show();
        bord.Venster.VoegRijenToe({{u"-"_s, {}, u"een"_s, {}}});
        KlikMetDruk(*bord.Venster.DelKnop, [&] { bord.Venster.close(); });
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
        QCOMPARE(bord.Venster.ListView1->topLevelItemCount(), 1);
    }

    void deletingTheOnlyRow()
    {
        Bord bord;
        bord.Venster.VoegRijenToe({{u"A-01 / 1-H"_s, u"vraag"_s, {}, u"-"_s}});
        bord.Venster.ListView1_ItemClick();
        PuzzelGewijzigd = true;
        bord.Bank.Script.Antwoorden = {Antwoord::Ja};
        bord.Venster.DelKnop_Click();
        QCOMPARE(bord.Venster.Label11->Caption(), u"0 Items"_s);
        QVERIFY(bord.Venster.Line1->isHidden());
        QVERIFY(PuzzelGewijzigd); // this too is left as it was
        QCOMPARE(bord.Bank.Script.Gezien[0].Tekst, u"Wil je () verwijderen uit de lijst?"_s); // a word of blanks
    }

    void anEmptyListOnlyShowsThePressEffect()
    {
        Bord bord;
        const Stand ervoor = bord.Nu();
        bord.Venster.DelKnop->click();
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
        QCOMPARE(bord.Bank.TestKlok.Gewacht(), 0.2);
        QCOMPARE(bord.Veranderd(ervoor), QString());
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

    void aDeletedRowLeavesItsNeighbourSelected()
    {
        Bord bord;
        bord.Venster.VoegRijenToe({{u"-"_s, {}, u"een"_s, {}},
                                   {u"-"_s, {}, u"twee"_s, {}},
                                   {u"-"_s, {}, u"drie"_s, {}},
                                   {u"-"_s, {}, u"vier"_s, {}}});
        bord.Bank.Script.Antwoorden = {Antwoord::Ja, Antwoord::Ja};
        const auto volgende = [&bord] {
            bord.Venster.DelKnop_Click();
            return bord.Venster.ListView1->selectedItems().value(0)->text(2);
        };
        Kies(bord, 1);
        QCOMPARE(volgende(), u"drie"_s); // the one behind it
        Kies(bord, 2);
        QCOMPARE(volgende(), u"drie"_s); // behind the last there is none
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
