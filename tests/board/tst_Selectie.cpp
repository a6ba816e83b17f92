#include "board/MainForm.h"
#include "board/Soorten.h"
#include "support/Verwacht.h"

#include <QMouseEvent>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

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
        Geval("first", 15.0, 15.0, "A-01 / 1");
        Geval("C-07", 2 * 450.0 + 225, 6 * 450.0 + 225, "C-07 / 99");
        Geval("ninth row", 15.0, 8 * 450.0 + 15, "A-09 / 129");
        Geval("tenth row", 15.0, 9 * 450.0 + 15, "A-10 / 145");
        Geval("last", 16 * 450.0 - 15, 19 * 450.0 - 15, "P-19 / 304");
    }
    void thePointerChoosesTheCell()
    {
        QFETCH(double, x);
        QFETCH(double, y);
        QFETCH(QString, opschrift);
        Bord bord;
        bord.Venster.Pic_MouseMove(x, y);
        QCOMPARE(bord.Venster.Label6->Caption(), opschrift);
        QVERIFY(!PuzzelGewijzigd);
    }

    void everyCellIsFoundFromEdgeToEdge()
    {
        Bord bord;
        for (int kolom = 0; kolom < 16; ++kolom)
            for (int rij = 0; rij < 19; ++rij)
                for (const int binnen : {15, 435}) {
                    bord.Venster.Pic_MouseMove(kolom * 450 + binnen, rij * 450 + 450 - binnen);
                    QCOMPARE(CurCol, kolom);
                    QCOMPARE(CurRow, rij);
                    QCOMPARE(CurCell, 16 * rij + kolom + 1);
                }
    }

    void onAGridLineTheEarlierCellStays()
    {
        Bord bord;
        for (int kolom = 0; kolom < 16; ++kolom)
            for (int rij = 0; rij < 19; ++rij) {
                const auto blijft = [&](int x, int y, int kolomDan, int rijDan) {
                    bord.Wijs(kolom, rij);
                    bord.Venster.Pic_MouseMove(x, y);
                    return CurCol == kolomDan && CurRow == rijDan && CurCell == 16 * rijDan + kolomDan + 1;
                };
                QVERIFY(blijft(900, 2 * 450 + 225, kolom, 2)); // from column B, and from any other one
                QVERIFY(blijft(5 * 450 + 225, 900, 5, rij));
                QVERIFY(blijft(0, 0, kolom, rij));
                QVERIFY(blijft(16 * 450, 19 * 450, kolom, rij));
                QVERIFY(blijft(kolom * 450, rij * 450, kolom, rij));
            }
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

    // A size that was typed goes beyond the lists, and its columns beyond the alphabet.
    void aTypedSizeIsPointedAtUpToItsLastCell()
    {
        Bord bord;
        bord.Begin(Zweeds, 30, 25);
        bord.Wijs(26, 19);
        QCOMPARE(bord.Venster.Label6->Caption(), u"[-20 / 597"_s);
        bord.Wijs(29, 24);
        QCOMPARE(bord.Venster.Label6->Caption(), u"^-25 / 750"_s);
        bord.Venster.Pic_MouseDown(Qt::LeftButton, QPoint());
        bord.Venster.SoortPlaatsing->close();
        QCOMPARE(bord.Venster.Shape1->geometry(), QRect(29 * 30 + 1, 24 * 30 + 1, 30, 30));
    }

    void theCoordinatesByKind_data()
    {
        QTest::addColumn<quint8>("soort");
        QTest::addColumn<QString>("zevende");
        QTest::addColumn<QString>("negende");
        QTest::addColumn<QString>("tiende");
        for (const quint8 soort : {Zweeds, Woordzoeker, Kruiswoord, Sudoku})
            Geval(QByteArray::number(soort), soort, "E-07 / 101", "E-09 / 133", "E-10 / 149");
        Geval("Filippine", Filippine, "07", "09", "10");
        Geval("no kind", quint8(77), "E-07 / 101", "E-09 / 133", "E-10 / 149");
    }
    void theCoordinatesByKind()
    {
        QFETCH(quint8, soort);
        Bord bord;
        bord.Begin(soort, 16, 19);
        bord.Wijs(4, 6);
        QTEST(bord.Venster.Label6->Caption(), "zevende");
        bord.Wijs(4, 8);
        QTEST(bord.Venster.Label6->Caption(), "negende");
        bord.Wijs(4, 9);
        QTEST(bord.Venster.Label6->Caption(), "tiende");
    }

    void theRealPointerDoesTheSame()
    {
        Bord bord;
        bord.Venster.show();
        const QPoint plaats(3 * 30 + 10, 4 * 30 + 10);
        QTest::mouseMove(bord.Venster.Pic, plaats);
        QCOMPARE(bord.Venster.Label6->Caption(), u"D-05 / 68"_s);
        QTest::mouseClick(bord.Venster.Pic, Qt::LeftButton, {}, plaats);
        QVERIFY(bord.Venster.SoortPlaatsing->isVisible());
        QCOMPARE(bord.Venster.SoortPlaatsing->pos(), bord.Venster.Pic->mapToGlobal(plaats));
        bord.Venster.SoortPlaatsing->close();
        QVERIFY(bord.Venster.Shape1->isVisible()); // dismissing the pop-up leaves the frame on the cell
    }

    // A new board has other numbers; until the pointer moves, cell and number are those of the old one.
    void aClickTakesTheCellThatTheLastMoveFound()
    {
        Bord bord;
        bord.Wijs(3, 4);
        QCOMPARE(CurCell, 68);
        bord.Begin(Zweeds, 9, 9);
        bord.Venster.Pic_MouseDown(Qt::RightButton, QPoint());
        QCOMPARE(CurCell, 68);
        QVERIFY(VakZwart[68]);
        QCOMPARE(InktVlak(bord.Pic(), Binnen(3, 4)), QRect(3 * 30 + 2, 4 * 30 + 2, 27, 27));
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
        const QImage leeg = Getoond(*bord.Venster.Pic);
        QVERIFY(bord.Venster.Shape1->isHidden());
        bord.Klik(Qt::MiddleButton, 2, 5); // sets the items of the pop-up
        const Stand ervoor = bord.Nu();
        bord.Klik(Qt::LeftButton, 2, 5);
        QCOMPARE(bord.Veranderd(ervoor), u"Shape1 SoortPlaatsing"_s); // the pop-up is open
        bord.Venster.SoortPlaatsing->close();
        QCOMPARE(bord.Veranderd(ervoor), u"Shape1"_s);
        Verwacht verwacht(leeg);
        verwacht.Vul(QRect(61, 151, 30, 30), qRgb(0, 200, 0));
        verwacht.Plak(leeg.copy(63, 153, 26, 26), QPoint(63, 153)); // two pixels thick
        QCOMPARE(Getoond(*bord.Venster.Pic), verwacht.Beeld);
        bord.Venster.Shape1->BorderColor = Qt::black;
        bord.Klik(Qt::LeftButton, 2, 5); // each click sets it
        QCOMPARE(Getoond(*bord.Venster.Pic), verwacht.Beeld);
        bord.Venster.SoortPlaatsing->close();
    }

    void theItemsOfThePopUpByKind_data()
    {
        QTest::addColumn<quint8>("soort");
        QTest::addColumn<QString>("ingeschakeld");
        Geval("Zweeds", Zweeds, "1 2 3 9");
        Geval("Woordzoeker", Woordzoeker, "2 3 5 9");
        Geval("Kruiswoord", Kruiswoord, "2 3 7 9");
    }
    void theItemsOfThePopUpByKind()
    {
        QFETCH(quint8, soort);
        QFETCH(QString, ingeschakeld);
        Bord bord;
        for (const quint8 eerst : {Zweeds, Woordzoeker, Kruiswoord})
            for (const Qt::MouseButton knop : {Qt::MiddleButton, Qt::RightButton}) { // whatever the button
                bord.Begin(eerst, 9, 9);
                bord.Klik(knop, 0, 0);
                bord.Begin(soort, 9, 9);
                bord.Klik(knop, 0, 0);
                QStringList aan;
                for (int i = 1; i <= 9; ++i) {
                    const QAction *item = bord.Venster.SoortVakTekst[static_cast<std::size_t>(i)];
                    QVERIFY(item->isVisible());
                    if (!item->isSeparator() && item->isEnabled())
                        aan += QString::number(i);
                }
                QCOMPARE(aan.join(u' '), ingeschakeld);
                QVERIFY(bord.Venster.Shape1->isHidden());
            }
    }

    void anotherKindLeavesTheItemsAlone_data()
    {
        QTest::addColumn<quint8>("soort");
        Geval("Sudoku", Sudoku);
        Geval("Filippine", Filippine);
    }
    void anotherKindLeavesTheItemsAlone()
    {
        QFETCH(quint8, soort);
        Bord bord;
        bord.Klik(Qt::MiddleButton, 0, 0);
        bord.Begin(soort, 9, 9);
        const Stand ervoor = bord.Nu();
        bord.Klik(Qt::MiddleButton, 0, 0);
        QCOMPARE(bord.Veranderd(ervoor), soort == Filippine ? u"Label6"_s : QString());
    }

    void captionsOfThePopUps()
    {
        Bord bord;
        const auto items = [](const QMenu &menu) {
            QStringList lijst;
            for (const QAction *item : menu.actions())
                lijst += item->objectName() + u'=' + (item->isSeparator() ? u"-"_s : item->text());
            return lijst;
        };
        QCOMPARE(items(*bord.Venster.SoortPlaatsing),
                 (QStringList{u"SoortVakTekst(1)=Informatievakje plaatsen"_s,
                              u"SoortVakTekst(2)=Omschrijving en/of oplossing plaatsen"_s,
                              u"SoortVakTekst(3)=Letter plaatsen"_s, u"SoortVakTekst(4)=-"_s,
                              u"SoortVakTekst(5)=Lege vakjes opvullen"_s, u"SoortVakTekst(6)=-"_s,
                              u"SoortVakTekst(7)=Vaknummer plaatsen"_s, u"SoortVakTekst(8)=-"_s,
                              u"SoortVakTekst(9)=Annuleren"_s}));
        QCOMPARE(items(*bord.Venster.SudokuMenu).join(u' '),
                 u"SuMe(1)=1 SuMe(2)=2 SuMe(3)=3 SuMe(4)=4 SuMe(5)=5 SuMe(6)=6 SuMe(7)=7 SuMe(8)=8 SuMe(9)=9 "
                 "SuMe(10)=- SuMe(11)=Hint"_s);
        for (const auto *menu : {bord.Venster.SoortPlaatsing, bord.Venster.SudokuMenu})
            QVERIFY(menu->isHidden());
        for (std::size_t i = 1; i <= 9; ++i)
            QCOMPARE(bord.Venster.SoortVakTekst[i]->objectName(), u"SoortVakTekst(%1)"_s.arg(i));
        for (std::size_t i = 1; i <= 11; ++i)
            QCOMPARE(bord.Venster.SuMe[i]->objectName(), u"SuMe(%1)"_s.arg(i));
    }

    void thePopUpOfTheKindIsShown_data()
    {
        QTest::addColumn<quint8>("soort");
        QTest::addColumn<QString>("menu");
        Geval("Zweeds", Zweeds, "SoortPlaatsing");
        Geval("Woordzoeker", Woordzoeker, "SoortPlaatsing");
        Geval("Kruiswoord", Kruiswoord, "SoortPlaatsing");
        Geval("Sudoku", Sudoku, "SudokuMenu");
        Geval("Filippine", Filippine, "");
    }
    void thePopUpOfTheKindIsShown()
    {
        QFETCH(quint8, soort);
        QFETCH(QString, menu);
        Bord bord;
        QSignalSpy editor(&bord.Venster, &MainForm::EditorGekozen);
        bord.Venster.show();
        bord.Begin(soort, 9, 9);
        bord.InBewerking();
        bord.Wijs(1, 1);
        bord.Venster.Pic_MouseDown(Qt::RightButton, QPoint(120, 80));
        bord.Venster.Pic_MouseDown(Qt::MiddleButton, QPoint(120, 80));
        QVERIFY(editor.isEmpty());
        bord.Venster.Shape1->BorderColor = Qt::black;
        const Stand ervoor = bord.Nu();
        bord.Venster.Pic_MouseDown(Qt::LeftButton, QPoint(120, 80));
        QCOMPARE(bord.Veranderd(ervoor), u"Shape1 %1"_s.arg(menu).trimmed()); // the line of a word stays
        QCOMPARE(bord.Venster.Shape1->BorderColor, qRgb(0, 200, 0));
        QCOMPARE(bord.Venster.SoortPlaatsing->isVisible(), menu == "SoortPlaatsing"_L1);
        QCOMPARE(bord.Venster.SudokuMenu->isVisible(), menu == "SudokuMenu"_L1);
        QCOMPARE(editor.size(), menu.isEmpty() ? 1 : 0); // a Filippine has none: its editor opens
        QVERIFY(bord.Venster.Shape1->isVisible());
        if (!menu.isEmpty())
            QCOMPARE(Vind<QMenu>(bord.Venster, menu)->pos(), QPoint(120, 80));
    }

    void aChosenItemIsToldByItsIndex()
    {
        Bord bord;
        QSignalSpy gekozen(&bord.Venster, &MainForm::VakMenuGekozen);
        for (const int index : {1, 2, 3, 5, 7, 9}) {
            bord.Venster.SoortVakTekst[static_cast<std::size_t>(index)]->setEnabled(true);
            bord.Venster.SoortVakTekst[static_cast<std::size_t>(index)]->trigger();
            QCOMPARE(gekozen.takeLast().at(0).toInt(), index);
            QVERIFY(gekozen.isEmpty());
        }
        QSignalSpy getal(&bord.Venster, &MainForm::SudokuMenuGekozen);
        for (const int index : {1, 2, 3, 4, 5, 6, 7, 8, 9, 11}) {
            bord.Venster.SuMe[static_cast<std::size_t>(index)]->trigger();
            QCOMPARE(getal.takeLast().at(0).toInt(), index);
            QVERIFY(getal.isEmpty() && gekozen.isEmpty());
        }
    }

    void aClickBeforeAnyMovementActsOnTheFirstCell()
    {
        Bord bord;
        bord.Venster.Pic_MouseDown(Qt::RightButton, QPoint(0, 0));
        QCOMPARE(CurCell, 1);
        QCOMPARE(bord.Venster.Label6->Caption(), u"Coordinaten"_s); // nothing has been pointed at
        QVERIFY(VakZwart[1]);
        QVERIFY(!VakZwart[0]);
        QCOMPARE(bord.Pic().pixel(15, 15), Donker);
        bord.Venster.Pic_MouseDown(Qt::LeftButton, QPoint(0, 0));
        QCOMPARE(bord.Venster.Shape1->geometry(), QRect(1, 1, 30, 30));
        bord.Venster.SoortPlaatsing->close();
    }

    void aKindThatThereIsNotDoesNothing()
    {
        Bord bord;
        PuzzelType = 77;
        bord.Wijs(1, 1);
        const Stand ervoor = bord.Nu();
        for (const Qt::MouseButton knop : {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton})
            bord.Venster.Pic_MouseDown(knop, QPoint());
        QCOMPARE(bord.Veranderd(ervoor), QString());
        for (const quint8 type : {quint8(0), quint8(6), quint8(255)})
            QVERIFY(SoortVan(type) == nullptr);
    }
};

RASTER_TEST(tst_Selectie)
#include "tst_Selectie.moc"
