#include "board/NieuwForm.h"
#include "documents/OpenFile.h"
#include "documents/SaveForm.h"
#include "support/Bord.h"

#include <QPainter>

using namespace Qt::StringLiterals;

static const QRgb Wit = qRgb(255, 255, 255);
static const QRgb Donker = qRgb(60, 60, 60);

/// The picture with a rectangle of it in one colour.
static QImage Met(QImage beeld, QRect vlak, QRgb kleur)
{
    QPainter(&beeld).fillRect(vlak, QColor(kleur));
    return beeld;
}

/// The black cells, and the array that they are kept in.
class tst_Zwart : public QObject
{
    Q_OBJECT
private slots:
    void aRightClickBlacksOutAndClears_data()
    {
        QTest::addColumn<quint8>("soort");
        QTest::addColumn<int>("kolom");
        QTest::addColumn<int>("rij");
        Geval("in the middle", Zweeds, 3, 4);
        Geval("first", Woordzoeker, 0, 0);
        Geval("last", Kruiswoord, 15, 18);
        Geval("of a Filippine", Filippine, 15, 0);
        Geval("of a typed size", Zweeds, 20, 4);
    }
    void aRightClickBlacksOutAndClears()
    {
        QFETCH(quint8, soort);
        QFETCH(int, kolom);
        QFETCH(int, rij);
        const QRgb vol = qRgb(1, 2, 3);
        Bord bord;
        bord.Begin(soort, std::max(16, kolom + 1), 19);
        bord.Venster.Pic->BoxFull(0, 0, 1e5, 1e5, vol); // so that it is seen what is wiped
        bord.Venster.PicGroot->BoxFull(0, 0, 1e6, 1e6, vol);
        bord.Klik(Qt::MiddleButton, kolom, rij);
        const Stand ervoor = bord.Nu();
        const QImage pic = bord.Pic(), groot = bord.Groot();
        const QPoint hoek = QPoint(kolom, rij) * 30, hoekGroot = QPoint(kolom, rij) * 120;

        bord.Klik(Qt::RightButton, kolom, rij);
        QCOMPARE(bord.Pic(), Met(pic, QRect(hoek + QPoint(2, 2), QSize(27, 27)), Donker));
        QCOMPARE(bord.Groot(), Met(groot, QRect(hoekGroot + QPoint(6, 6), QSize(111, 111)), Donker));
        QCOMPARE(bord.Veranderd(ervoor), u"Pic PicGroot VakZwart"_s); // and the puzzle doesn't count as changed
        QCOMPARE(std::count(VakZwart.begin(), VakZwart.end(), true), 1);
        QVERIFY(VakZwart[static_cast<std::size_t>(CurCell)]);

        bord.Klik(Qt::RightButton, kolom, rij); // the white box is larger than the dark one
        QCOMPARE(bord.Pic(), Met(pic, QRect(hoek + QPoint(1, 1), QSize(29, 29)), Wit));
        QCOMPARE(bord.Groot(), Met(groot, QRect(hoekGroot + QPoint(3, 3), QSize(117, 117)), Wit));
        QCOMPARE(bord.Veranderd(ervoor), u"Pic PicGroot"_s);
    }

    void aSecondRightClickLeavesAWhiteCell()
    {
        Bord bord;
        bord.Klik(Qt::MiddleButton, 3, 4);
        const Stand ervoor = bord.Nu();
        bord.Klik(Qt::RightButton, 3, 4);
        bord.Klik(Qt::RightButton, 3, 4);
        QCOMPARE(bord.Veranderd(ervoor), QString());
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

    // As in a puzzle that was opened: its black cells are pixels alone.
    void aCellThatIsBlackByItsPixelsAloneIsBlackedOutFirst()
    {
        Bord bord;
        bord.Klik(Qt::RightButton, 4, 7);
        VakZwart.fill(false);
        const Stand ervoor = bord.Nu();
        bord.Klik(Qt::RightButton, 4, 7);
        QCOMPARE(bord.Veranderd(ervoor), u"VakZwart"_s);
        bord.Klik(Qt::RightButton, 4, 7);
        QVERIFY(!HeeftInkt(bord.Pic(), Binnen(4, 7)));
    }

    void nothingElseTouchesTheArray_data()
    {
        QTest::addColumn<QString>("wat");
        for (const char *wat : {"another size", "new puzzle", "saving", "opening"})
            Geval(wat, wat);
    }
    void nothingElseTouchesTheArray()
    {
        QFETCH(QString, wat);
        Bord bord;
        PuzzelNaam = u"Reis"_s;
        SaveForm bewaar;
        bewaar.Text1->setText(u"Reis"_s);
        bewaar.SaveKnop_Click();
        for (const std::size_t index : {std::size_t{1}, std::size_t{19}, std::size_t{304}})
            VakZwart[index] = true;
        const auto ervoor = VakZwart;
        if (wat == "another size"_L1) {
            bord.Begin(Zweeds, 9, 9);
        } else if (wat == "new puzzle"_L1) {
            NieuwForm form;
            form.Text1->setText(u"Nieuw"_s);
            form.OkKnop_Click();
            QCOMPARE(PuzzelNaam, u"Nieuw"_s);
        } else if (wat == "saving"_L1) {
            SaveForm form;
            form.Text1->setText(u"Zee"_s);
            form.SaveKnop_Click();
            QVERIFY(bord.Bank.Bestanden(u"Puzzels"_s).contains(u"Zee.lst"_s));
        } else {
            OpenFile form;
            form.List1->SetListIndex(0);
            form.OkKnop_Click();
            QVERIFY(bord.Venster.windowTitle().startsWith(u"Zweedse"_s));
        }
        QVERIFY(VakZwart == ervoor);
    }

    void rightClicksByKind_data()
    {
        QTest::addColumn<quint8>("soort");
        QTest::addColumn<QString>("veranderd");
        for (const quint8 soort : {Zweeds, Woordzoeker, Kruiswoord, Filippine})
            Geval(QByteArray::number(soort), soort, "Pic PicGroot VakZwart");
        Geval("Sudoku", Sudoku, "");
        Geval("no kind", quint8(77), "");
    }
    void rightClicksByKind()
    {
        QFETCH(quint8, soort);
        QFETCH(QString, veranderd);
        Bord bord;
        bord.Begin(soort, 9, 9);
        bord.InBewerking(); // the frame and the line stay where they are
        bord.Klik(Qt::MiddleButton, 4, 4);
        QCOMPARE(CurCell, 41);
        QVERIFY(!bord.Venster.Shape1->isHidden() && !bord.Venster.Line1->isHidden());
        const Stand ervoor = bord.Nu();
        bord.Klik(Qt::RightButton, 4, 4);
        QCOMPARE(bord.Veranderd(ervoor), veranderd);
    }

    void theLastCellUsesTheLastIndex()
    {
        Bord bord;
        bord.Klik(Qt::RightButton, 15, 18);
        QCOMPARE(CurCell, 304);
        QVERIFY(VakZwart[304]);
    }

    void aNumberBeyondTheArrayFailsAndChangesNothing_data()
    {
        QTest::addColumn<QSize>("maat");
        QTest::addColumn<QPoint>("cel");
        QTest::addColumn<int>("nummer");
        Geval("the first beyond", QSize(16, 20), QPoint(0, 19), 305);
        Geval("the next", QSize(16, 20), QPoint(1, 19), 306);
        Geval("far away", QSize(30, 30), QPoint(29, 29), 900);
    }
    void aNumberBeyondTheArrayFailsAndChangesNothing()
    {
        QFETCH(QSize, maat);
        QFETCH(QPoint, cel);
        QFETCH(int, nummer);
        Bord bord;
        bord.Begin(Zweeds, maat.width(), maat.height());
        bord.Klik(Qt::MiddleButton, cel.x(), cel.y());
        QCOMPARE(CurCell, nummer);
        bord.Klik(Qt::LeftButton, cel.x(), cel.y()); // which needs no place in it
        QVERIFY(bord.Venster.SoortPlaatsing->isVisible());
        bord.Venster.SoortPlaatsing->close();
        const Stand ervoor = bord.Nu();
        emit bord.Venster.Pic->MouseDown(Qt::RightButton, QPoint());
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1);
        QCOMPARE(bord.Bank.Script.Gezien[0].Tekst,
                 u"Fout 9 bij 'Puzzelveld': Index valt buiten het bereik (vakje %1)."_s.arg(nummer));
        QCOMPARE(bord.Bank.Script.Gezien[0].Plaatje, Icoon::Kritiek);
        QCOMPARE(bord.Veranderd(ervoor), QString());
    }
};

RASTER_TEST(tst_Zwart)
#include "tst_Zwart.moc"
