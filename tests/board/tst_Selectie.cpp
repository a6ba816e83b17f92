#include "board/MainForm.h"
#include "board/Soorten.h"
#include "support/Bord.h"

#include <QMouseEvent>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

static const QRgb Wit = qRgb(255, 255, 255);
static const QRgb Donker = qRgb(60, 60, 60);

class tst_Selectie : public QObject
{
    Q_OBJECT
private slots:
    void thePointerChoosesTheCell_data()
    {
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("y");
        QTest::addColumn<QString>("opschrift");
        QTest::newRow("first") << 15.0 << 15.0 << "A-01 / 1";
        QTest::newRow("C-07") << 2 * 450.0 + 225 << 6 * 450.0 + 225 << "C-07 / 99";
        QTest::newRow("ninth row") << 15.0 << 8 * 450.0 + 15 << "A-09 / 129";
        QTest::newRow("tenth row") << 15.0 << 9 * 450.0 + 15 << "A-10 / 145";
        QTest::newRow("last") << 16 * 450.0 - 15 << 19 * 450.0 - 15 << "P-19 / 304";
    }
    void thePointerChoosesTheCell()
    {
        QFETCH(double, x);
        QFETCH(double, y);
        QFETCH(QString, opschrift);
        Bord bord;
        bord.Venster.Pic_MouseMove(x, y);
        QCOMPARE(bord.Venster.Label6->Caption(), opschrift);
    }

    void onAGridLineTheEarlierCellStays()
    {
        Bord bord;
        bord.Wijs(1, 3);
        bord.Venster.Pic_MouseMove(900, 225);
        QCOMPARE(CurCol, 1);
        QCOMPARE(CurRow, 0);
        bord.Venster.Pic_MouseMove(225, 900);
        QCOMPARE(CurCol, 0);
        QCOMPARE(CurRow, 0);
    }

    void cellsAreNumberedByTheCurrentWidth()
    {
        Bord bord;
        bord.Wijs(0, 1);
        QCOMPARE(CurCell, 17);
        bord.Begin(Zweeds, 9, 9);
        bord.Wijs(0, 1);
        QCOMPARE(CurCell, 10);
    }

    void aFilippineShowsTheRowOnly()
    {
        Bord bord;
        bord.Begin(Filippine, 16, 19);
        bord.Wijs(4, 6);
        QCOMPARE(bord.Venster.Label6->Caption(), u"07"_s);
        bord.Wijs(4, 8);
        QCOMPARE(bord.Venster.Label6->Caption(), u"09"_s);
        bord.Wijs(4, 9);
        QCOMPARE(bord.Venster.Label6->Caption(), u"10"_s);
    }

    void theRealPointerDoesTheSame()
    {
        Bord bord;
        bord.Venster.show();
        QTest::mouseMove(bord.Venster.Pic, QPoint(3 * 30 + 10, 4 * 30 + 10));
        QCOMPARE(bord.Venster.Label6->Caption(), u"D-05 / 68"_s);
        QTest::mouseClick(bord.Venster.Pic, Qt::LeftButton, {}, QPoint(3 * 30 + 10, 4 * 30 + 10));
        QVERIFY(bord.Venster.SoortPlaatsing->isVisible());
        bord.Venster.SoortPlaatsing->close();
        QVERIFY(bord.Venster.Shape1->isVisible()); // dismissing the pop-up leaves the frame on the cell
    }

    void aPressActsWhereThePointerIs()
    {
        Bord bord;
        bord.Venster.show();
        const auto druk = [&](QPoint plaats) {
            QMouseEvent event(QEvent::MouseButtonPress, plaats, bord.Venster.Pic->mapToGlobal(plaats), Qt::RightButton,
                              Qt::RightButton, Qt::NoModifier);
            QCoreApplication::sendEvent(bord.Venster.Pic, &event);
        };
        druk(QPoint(100, 100)); // before any movement: the first cell
        QVERIFY(VakZwart[1]);
        QTest::mouseMove(bord.Venster.Pic, QPoint(45, 45));
        druk(QPoint(7 * 30 + 15, 9 * 30 + 15)); // the moves to here went to a menu
        QCOMPARE(bord.Venster.Label6->Caption(), u"H-10 / 152"_s);
        QVERIFY(VakZwart[152]);
    }

    void theFrameLiesOnTheChosenCell()
    {
        Bord bord;
        QVERIFY(bord.Venster.Shape1->isHidden());
        bord.Klik(Qt::LeftButton, 2, 5);
        QVERIFY(!bord.Venster.Shape1->isHidden());
        QCOMPARE(bord.Venster.Shape1->geometry(), QRect(2 * 30 + 1, 5 * 30 + 1, 30, 30));
        const QImage kader = bord.Venster.Shape1->grab().toImage().convertToFormat(QImage::Format_RGB32);
        for (const QPoint punt : {QPoint(0, 0), QPoint(1, 15), QPoint(29, 29), QPoint(15, 28)})
            QCOMPARE(kader.pixel(punt), qRgb(0, 200, 0));
        QVERIFY(kader.pixel(2, 15) != qRgb(0, 200, 0));
        bord.Venster.SoortPlaatsing->close();
    }

    void theItemsOfThePopUpByKind_data()
    {
        QTest::addColumn<int>("soort");
        QTest::addColumn<QString>("ingeschakeld");
        QTest::newRow("Zweeds") << int(Zweeds) << "1 2 9";
        QTest::newRow("Woordzoeker") << int(Woordzoeker) << "2 5 9";
        QTest::newRow("Kruiswoord") << int(Kruiswoord) << "2 9";
    }
    void theItemsOfThePopUpByKind()
    {
        QFETCH(int, soort);
        QFETCH(QString, ingeschakeld);
        Bord bord;
        bord.Begin(Woordzoeker, 9, 9);
        bord.Klik(Qt::MiddleButton, 0, 0); // whatever the button
        bord.Begin(static_cast<quint8>(soort), 9, 9);
        bord.Klik(Qt::MiddleButton, 0, 0);
        QStringList aan;
        for (int i = 1; i <= 9; ++i) {
            const QAction *item = bord.Venster.SoortVakTekst[static_cast<std::size_t>(i)];
            if (!item->isSeparator() && item->isEnabled())
                aan += QString::number(i);
        }
        QCOMPARE(aan.join(u' '), ingeschakeld);
        QVERIFY(bord.Venster.Shape1->isHidden());
    }

    void captionsOfThePopUps()
    {
        Bord bord;
        QStringList items, sudoku;
        for (const QAction *item : bord.Venster.SoortPlaatsing->actions())
            items += item->isSeparator() ? u"-"_s : item->text();
        for (const QAction *item : bord.Venster.SudokuMenu->actions())
            sudoku += item->isSeparator() ? u"-"_s : item->text();
        QCOMPARE(items.join(u'|'), u"Informatievakje plaatsen|Omschrijving en/of oplossing plaatsen|"
                                   "Letter plaatsen|-|Lege vakjes opvullen|-|Vaknummer plaatsen|-|"
                                   "Annuleren"_s);
        QCOMPARE(sudoku.join(u'|'), u"1|2|3|4|5|6|7|8|9|-|Hint"_s);
    }

    void thePopUpOfTheKindIsShown_data()
    {
        QTest::addColumn<int>("soort");
        QTest::addColumn<bool>("vakMenu");
        QTest::addColumn<bool>("sudokuMenu");
        QTest::newRow("Zweeds") << int(Zweeds) << true << false;
        QTest::newRow("Woordzoeker") << int(Woordzoeker) << true << false;
        QTest::newRow("Kruiswoord") << int(Kruiswoord) << true << false;
        QTest::newRow("Sudoku") << int(Sudoku) << false << true;
        QTest::newRow("Filippine") << int(Filippine) << false << false;
    }
    void thePopUpOfTheKindIsShown()
    {
        QFETCH(int, soort);
        QFETCH(bool, vakMenu);
        QFETCH(bool, sudokuMenu);
        Bord bord;
        bord.Venster.show();
        bord.Begin(static_cast<quint8>(soort), 9, 9);
        bord.Klik(Qt::LeftButton, 1, 1);
        QCOMPARE(bord.Venster.SoortPlaatsing->isVisible(), vakMenu);
        QCOMPARE(bord.Venster.SudokuMenu->isVisible(), sudokuMenu);
        QVERIFY(bord.Venster.Shape1->isVisible());
    }

    void aChosenItemIsToldByItsIndex()
    {
        Bord bord;
        QSignalSpy gekozen(&bord.Venster, &MainForm::VakMenuGekozen);
        for (const int index : {1, 2, 5, 9}) {
            bord.Venster.SoortVakTekst[static_cast<std::size_t>(index)]->setEnabled(true);
            bord.Venster.SoortVakTekst[static_cast<std::size_t>(index)]->trigger();
            QCOMPARE(gekozen.takeLast().at(0).toInt(), index);
        }
    }

    void aRightClickBlacksOutAndClears()
    {
        Bord bord;
        bord.Klik(Qt::RightButton, 3, 4);
        QCOMPARE(InktVlak(bord.Pic(), Binnen(3, 4)), QRect(3 * 30 + 2, 4 * 30 + 2, 27, 27));
        QCOMPARE(bord.Pic().pixel(3 * 30 + 15, 4 * 30 + 15), Donker);
        QCOMPARE(InktVlak(bord.Groot(), BinnenGroot(3, 4)), QRect(3 * 120 + 6, 4 * 120 + 6, 111, 111));
        QCOMPARE(bord.Groot().pixel(3 * 120 + 60, 4 * 120 + 60), Donker);
        QVERIFY(VakZwart[4 * 16 + 3 + 1]);
        bord.Klik(Qt::RightButton, 3, 4);
        QVERIFY(!HeeftInkt(bord.Pic(), Binnen(3, 4)));
        QVERIFY(!HeeftInkt(bord.Groot(), BinnenGroot(3, 4)));
        QVERIFY(!VakZwart[4 * 16 + 3 + 1]);
        QVERIFY(!PuzzelGewijzigd);
    }

    void clearingWipesTheWholeInsideButNotTheGrid()
    {
        Bord bord;
        bord.Klik(Qt::RightButton, 3, 4);
        const QRect binnen = Binnen(3, 4);
        bord.Venster.Pic->BoxFull(Twips::VanPixels(binnen.left()), Twips::VanPixels(binnen.top()),
                                  Twips::VanPixels(binnen.right()), Twips::VanPixels(binnen.bottom()), qRgb(1, 2, 3));
        bord.Klik(Qt::RightButton, 3, 4);
        QVERIFY(!HeeftInkt(bord.Pic(), binnen));
        QCOMPARE(bord.Pic().pixel(3 * 30, 4 * 30 + 15), qRgb(150, 150, 150));
        QCOMPARE(bord.Pic().pixel(4 * 30, 4 * 30 + 15), qRgb(150, 150, 150));
    }

    void theToggleLooksAtItsOwnArrayOnly()
    {
        Bord bord;
        bord.Klik(Qt::RightButton, 2, 1); // number 19 on a board 16 wide
        bord.Begin(Zweeds, 9, 9);
        bord.Klik(Qt::RightButton, 0, 2); // number 19 on a board 9 wide: clears, though the cell is white
        QVERIFY(!HeeftInkt(bord.Pic(), Binnen(0, 2)));
        bord.Klik(Qt::RightButton, 0, 2);
        QVERIFY(HeeftInkt(bord.Pic(), Binnen(0, 2)));
    }

    void rightClicksByKind_data()
    {
        QTest::addColumn<int>("soort");
        QTest::addColumn<bool>("zwart");
        for (int soort = 1; soort <= 5; ++soort)
            QTest::newRow(qPrintable(SoortVan(static_cast<quint8>(soort))->Opschrift)) << soort << (soort != Sudoku);
    }
    void rightClicksByKind()
    {
        QFETCH(int, soort);
        QFETCH(bool, zwart);
        Bord bord;
        bord.Begin(static_cast<quint8>(soort), 9, 9);
        bord.Klik(Qt::RightButton, 4, 4);
        QCOMPARE(bord.Pic().pixel(4 * 30 + 15, 4 * 30 + 15) == Donker, zwart);
        QVERIFY(bord.Venster.Shape1->isHidden());
    }

    void aClickBeforeAnyMovementActsOnTheFirstCell()
    {
        Bord bord;
        bord.Venster.Pic_MouseDown(Qt::RightButton, QPoint(0, 0));
        QCOMPARE(CurCell, 1);
        QVERIFY(VakZwart[1]);
        QVERIFY(!VakZwart[0]);
        QCOMPARE(bord.Pic().pixel(15, 15), Donker);
    }

    void theLastCellUsesTheLastIndex()
    {
        Bord bord;
        bord.Klik(Qt::RightButton, 15, 18);
        QCOMPARE(CurCell, 304);
        QVERIFY(VakZwart[304]);
    }

    void aNumberBeyondTheArrayFailsAndChangesNothing()
    {
        Bord bord;
        bord.Begin(Zweeds, 30, 30);
        bord.Wijs(29, 29);
        QCOMPARE(FoutVan([&] { bord.Venster.Pic_MouseDown(Qt::RightButton, QPoint()); }), int(Fout::IndexBuitenBereik));
        QVERIFY(!HeeftInkt(bord.Pic(), Binnen(29, 29)));
    }

    void aKindThatThereIsNotDoesNothing()
    {
        Bord bord;
        PuzzelType = 77;
        bord.Klik(Qt::LeftButton, 1, 1);
        bord.Klik(Qt::RightButton, 1, 1);
        QVERIFY(!HeeftInkt(bord.Pic(), Binnen(1, 1)));
        QVERIFY(SoortVan(0) == nullptr);
    }
};

RASTER_TEST(tst_Selectie)
#include "tst_Selectie.moc"
