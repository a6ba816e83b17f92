#include "platform/ImageButton.h"
#include "support/TestVenster.h"
#include "support/Testbank.h"

#include <QComboBox>
#include <QMenuBar>
#include <QRadioButton>
#include <QScrollBar>

using namespace Qt::StringLiterals;

/// The controls that many windows have, as a form makes them.
class tst_FormControls : public QObject
{
    Q_OBJECT
private slots:
    void aDialogHasNothingToMinimiseOrMaximiseIt()
    {
        const TestVenster venster;
        QVERIFY(venster.windowFlags() & Qt::WindowCloseButtonHint);
        QVERIFY(!(venster.windowFlags() & (Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint)));
        QCOMPARE(venster.windowType(), Qt::Dialog);
    }

    void aMenuAndItsItems()
    {
        TestVenster venster(4590, 3450, true);
        QMenu *menu = venster.MaakMenu("Help", u"Uitleg"_s);
        QCOMPARE(menu->objectName(), u"Help"_s);
        QCOMPARE(venster.MenuBalk()->actions(), QList<QAction *>{menu->menuAction()});
        QCOMPARE(menu->menuAction()->text(), u"Uitleg"_s);
        QAction *eerste = MaakItem(*menu, "HelpEen", u"Een"_s), *tweede = MaakItem(*menu, "HelpTwee", u"Twee"_s);
        QCOMPARE(menu->actions(), (QList<QAction *>{eerste, tweede}));
        QCOMPARE(tweede->objectName(), u"HelpTwee"_s);
        QCOMPARE(tweede->text(), u"Twee"_s);
        QVERIFY(tweede->isEnabled());
    }

    void aTipIsAlsoTheNameForAScreenReader()
    {
        TestVenster venster;
        const ImageButton *knop = venster.MaakKnopMetTip("DelKnop", u" Puzzel verwijderen "_s, u"knop-wissen"_s);
        QCOMPARE(knop->objectName(), u"DelKnop"_s);
        QCOMPARE(knop->toolTip(), u" Puzzel verwijderen "_s);
        QCOMPARE(knop->accessibleName(), u"Puzzel verwijderen"_s);
        QCOMPARE(venster.MaakKnop("SaveKnop", u"Opslaan"_s, u"knop-opslaan"_s)->toolTip(), QString());
    }

    void anExplanationIsWrappedFromTheTopLeft()
    {
        TestVenster venster;
        const Label *uitleg = venster.MaakUitleg("Label5", u"Maak een keus."_s);
        QVERIFY(uitleg->wordWrap());
        QCOMPARE(uitleg->alignment(), Qt::AlignLeft | Qt::AlignTop);
        QCOMPARE(uitleg->Caption(), u"Maak een keus."_s);
    }

    void theFirstOptionIsChosen()
    {
        TestVenster venster;
        const QList<QRadioButton *> opties = venster.MaakOpties({u"een"_s, u"twee"_s});
        QCOMPARE(opties[0]->objectName(), u"Option1"_s);
        QCOMPARE(opties[1]->objectName(), u"Option2"_s);
        QCOMPARE(opties[1]->text(), u"twee"_s);
        QCOMPARE(TestVenster::Gekozen(opties), 0);
        opties[1]->click();
        QCOMPARE(TestVenster::Gekozen(opties), 1);
    }

    void theTabKeyGoesToTheChosenOption()
    {
        TestVenster venster;
        const QList<QRadioButton *> opties = venster.MaakOpties({u"een"_s, u"twee"_s, u"drie"_s});
        for (const int gekozen : {0, 2, 1, 0}) {
            opties[gekozen]->setChecked(true);
            for (int i = 0; i < 3; ++i) {
                QCOMPARE(bool(opties[i]->focusPolicy() & Qt::TabFocus), i == gekozen);
                QVERIFY(opties[i]->focusPolicy() & Qt::ClickFocus);
            }
        }
    }

    void theListOfANumberBoxStandsAtItsText_data()
    {
        QTest::addColumn<int>("nu");
        QTest::addColumn<QString>("omlaag");
        QTest::addColumn<QString>("omhoog");
        Geval("in the middle", 12, u"13"_s, u"11"_s);
        Geval("the first", 9, u"10"_s, u"9"_s);
        Geval("the last", 16, u"16"_s, u"15"_s);
    }
    void theListOfANumberBoxStandsAtItsText()
    {
        QFETCH(int, nu);
        TestVenster venster;
        QComboBox *combo = venster.MaakNummers("Combo1", u"Getal"_s, 9, 16, nu);
        QCOMPARE(combo->currentText(), QString::number(nu));
        QTest::keyClick(combo, Qt::Key_Down);
        QTEST(combo->currentText(), "omlaag");
        combo->setEditText(QString::number(nu));
        QTest::keyClick(combo, Qt::Key_Up);
        QTEST(combo->currentText(), "omhoog");
    }

    void anyTextMayBeTypedInANumberBox()
    {
        TestVenster venster;
        QComboBox *combo = venster.MaakNummers("Combo1", u"Getal"_s, 9, 16, 40);
        QCOMPARE(combo->currentText(), u"40"_s);
        QCOMPARE(combo->count(), 8);
        combo->setEditText(u"twaalf"_s);
        QTest::keyClick(combo, Qt::Key_Return);
        QCOMPARE(combo->currentText(), u"twaalf"_s);
        QCOMPARE(combo->count(), 8);
        venster.show();
        venster.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&venster));
        combo->setFocus();
        combo->lineEdit()->clear();
        QTest::keyClick(combo->lineEdit(), Qt::Key_1);
        QCOMPARE(combo->currentText(), u"1"_s); // and nothing is added of itself
    }

    void theListFollowsWhatIsTyped()
    {
        TestVenster venster;
        QComboBox *combo = venster.MaakNummers("Combo1", u"Getal"_s, 9, 16, 9);
        combo->lineEdit()->selectAll();
        QTest::keyClicks(combo->lineEdit(), u"12"_s);
        combo->lineEdit()->setCursorPosition(1);
        QTest::keyClick(combo->lineEdit(), Qt::Key_Delete);
        QTest::keyClicks(combo->lineEdit(), u"4"_s);
        QCOMPARE(combo->currentText(), u"14"_s);
        QTest::keyClick(combo, Qt::Key_Down);
        QCOMPARE(combo->currentText(), u"15"_s);
        combo->setEditText(u"102"_s);
        combo->lineEdit()->setCursorPosition(2);
        QTest::keyClick(combo->lineEdit(), Qt::Key_Delete); // "10" is in the list: the cursor stays all the same
        QCOMPARE(combo->lineEdit()->cursorPosition(), 2);
        combo->setEditText(u"1x1"_s);
        combo->lineEdit()->setCursorPosition(1);
        QTest::keyClick(combo->lineEdit(), Qt::Key_Delete);
        QCOMPARE(combo->currentText(), u"11"_s);
        QCOMPARE(combo->lineEdit()->cursorPosition(), 1);
    }

    void aScrollBarMovesOneAtATime()
    {
        TestVenster venster;
        QScrollBar *schuif = venster.MaakSchuif("HScroll1", u"Soort"_s, 2, 19, venster.Knop);
        QCOMPARE(schuif->parentWidget(), venster.Knop);
        QCOMPARE(schuif->objectName(), u"HScroll1"_s);
        QCOMPARE(schuif->accessibleName(), u"Soort"_s);
        QCOMPARE(schuif->value(), 2);
        QCOMPARE(schuif->minimum(), 2);
        QCOMPARE(schuif->maximum(), 19);
        QCOMPARE(schuif->orientation(), Qt::Horizontal);
        for (const auto &[toets, waarde] : {std::pair(Qt::Key_Right, 3), std::pair(Qt::Key_PageDown, 4),
                                            std::pair(Qt::Key_Left, 3), std::pair(Qt::Key_PageUp, 2)}) {
            QTest::keyClick(schuif, toets);
            QCOMPARE(schuif->value(), waarde);
        }
    }
};

RASTER_TEST(tst_FormControls)
#include "tst_FormControls.moc"
