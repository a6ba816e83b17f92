#include "platform/Form.h"
#include "platform/ImageBox.h"
#include "platform/ImageButton.h"
#include "support/Testbank.h"
#include "support/Venster.h"

#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

using namespace Qt::StringLiterals;

/// Two boxes, and a frame with one.
class TestVenster : public Form
{
public:
    TestVenster() : Form(u"TestVenster"_s, u"Een titel"_s, 4590, 3450, qRgb(10, 200, 30))
    {
        Frame1 = Maak<QFrame>("Frame1", QString());
        for (const char *naam : {"Text1", "Text2"})
            Zet(Maak<QLineEdit>(naam, QString()), 150, naam[4] == '1' ? 300 : 900, 600, 450);
        Text3 = Maak<QLineEdit>("Text3", QString(), Frame1);
        Zet(Frame1, 1500, 300, 1500, 900);
        Zet(Text3, 150, 300, 600, 450);
    }
    QFrame *Frame1;
    QLineEdit *Text3;
};

class tst_Venster : public QObject
{
    Q_OBJECT
private slots:
    void aWindowIsComparedWithItsTable_data()
    {
        QTest::addColumn<QList<Plek>>("tabel");
        QTest::addColumn<QString>("verwacht");
        const auto rij = [](const char *naam, const Plek &text1, const Plek &text2, const QString &verwacht) {
            Geval(naam, QList<Plek>{{"Frame1", 1500, 300, 1500, 900}, text1, text2}, verwacht);
        };
        const Plek goed{"Text1", 150, 300, 600, 450}, vrij{"Text2"};
        rij("all well", goed, {"Text2", 150, 900, 600, 450}, QString());
        rij("not looked at", {"Text1"}, vrij, QString());
        rij("left", {"Text1", 165, 300}, vrij, u"Text1 staat op 10, 20 (pixels)"_s);
        rij("top", {"Text1", 150, 285}, vrij, u"Text1 staat op 10, 20 (pixels)"_s);
        rij("width", {"Text1", 0, 0, 615}, vrij, u"Text1 is 40 bij 30 (pixels)"_s);
        rij("height", {"Text1", 0, 0, 0, 435}, vrij, u"Text1 is 40 bij 30 (pixels)"_s);
        rij("two", {"Text1", 15}, {"Text2", 15}, u"Text1 staat op 10, 20 (pixels)\nText2 staat op 10, 60 (pixels)"_s);
        rij("not in the table", goed, goed, u"Text2 staat niet in de tabel"_s);
        rij("on a frame", {"Text3"}, vrij, u"Text3 staat op Frame1\nText1 staat niet in de tabel"_s);
    }
    void aWindowIsComparedWithItsTable()
    {
        QFETCH(QList<Plek>, tabel);
        QFETCH(QString, verwacht);
        const TestVenster venster;
        QCOMPARE(Misplaatst(venster, tabel), verwacht);
    }

    void aFrameIsComparedWithItsTable()
    {
        TestVenster venster;
        QCOMPARE(Misplaatst(*venster.Frame1, {{"Text3", 150, 300, 600, 450}}), QString());
        venster.Text3->resize(91, 30);
        QCOMPARE(Misplaatst(*venster.Frame1, {{"Text3"}}), u"Text3 steekt uit"_s);
        venster.Text3->hide();
        QCOMPARE(Misplaatst(*venster.Frame1, {{"Text3"}}), QString());
    }

    void whatLiesUnderAnotherIsTold()
    {
        TestVenster venster;
        const QList<Plek> tabel{{"Frame1"}, {"Text1"}, {"Text2"}};
        auto *plaat = new QLabel(venster.Frame1->parentWidget());
        plaat->setGeometry(0, 0, 50, 50);
        QCOMPARE(Misplaatst(venster, tabel), u"Text1 ligt onder "_s); // above all that was there
        plaat->setObjectName(u"Plaat"_s);
        const QString nietInDeTabel = u"Plaat staat niet in de tabel"_s;
        QCOMPARE(Misplaatst(venster, tabel), u"Text1 ligt onder Plaat\n"_s + nietInDeTabel);
        plaat->hide();
        QCOMPARE(Misplaatst(venster, tabel), nietInDeTabel);
        plaat->show();
        plaat->resize(20, 50); // beside the middle of the box
        QCOMPARE(Misplaatst(venster, tabel), nietInDeTabel);
        plaat->resize(50, 50);
        plaat->lower();
        QCOMPARE(Misplaatst(venster, tabel + QList<Plek>{{"Plaat"}}), QString()); // it has no text: it is a plate
        plaat->setText(u"a"_s);
        QCOMPARE(Misplaatst(venster, tabel + QList<Plek>{{"Plaat"}}), u"Plaat ligt onder Text1"_s);
    }

    void aTextUnderATextIsNotHidden()
    {
        TestVenster venster;
        QList<Plek> tabel{{"Frame1"}, {"Text1"}, {"Text2"}};
        QList<QLabel *> labels;
        for (const char *naam : {"Label1", "Label2"}) {
            labels += new QLabel(u"a"_s, venster.Frame1->parentWidget());
            labels.last()->setObjectName(QLatin1String(naam));
            labels.last()->setGeometry(200, 150, 30, 30);
            tabel += {naam};
        }
        QCOMPARE(Misplaatst(venster, tabel), QString());
        labels[1]->setAutoFillBackground(true);
        QCOMPARE(Misplaatst(venster, tabel), u"Label1 ligt onder Label2"_s);
    }

    void aTextWithoutRoomIsTold()
    {
        TestVenster venster;
        const QList<Plek> tabel{{"Frame1"}, {"Text1"}, {"Text2"}, {"Label1"}};
        QLabel label(u"een twee drie vier"_s, venster.Frame1->parentWidget());
        label.setObjectName(u"Label1"_s);
        label.setGeometry(150, 110, 40, 16);
        const QString teKlein = u"Label1 is te klein voor zijn tekst"_s;
        QCOMPARE(Misplaatst(venster, tabel), teKlein);
        label.setWordWrap(true);
        QCOMPARE(Misplaatst(venster, tabel), teKlein);
        label.resize(40, 80);
        QCOMPARE(Misplaatst(venster, tabel), QString());
        label.setWordWrap(false);
        label.resize(140, 16);
        QCOMPARE(Misplaatst(venster, tabel), QString());
    }

    void thePicturesOfAWindow()
    {
        TestVenster venster;
        QCOMPARE(PlaatjesOp(venster), QString());
        auto *ok = new ImageButton(u"knop-ok"_s, &venster);
        ok->setObjectName(u"OkKnop"_s);
        ok->resize(ok->sizeHint());
        auto *stop = new ImageButton(u"knop-stop"_s, venster.Frame1);
        stop->setObjectName(u"StopKnop"_s);
        stop->resize(stop->sizeHint());
        stop->setEnabled(false);
        auto *beeld = new ImageBox(u"logo"_s, &venster);
        beeld->setObjectName(u"Image1"_s);
        venster.show();
        ok->setFocus();
        QCOMPARE(PlaatjesOp(venster), u"Image1 logo, OkKnop knop-ok, StopKnop knop-stop"_s);
        ok->resize(20, 20);
        beeld->SetPicture(u"woordlijst"_s);
        QCOMPARE(PlaatjesOp(venster), u"Image1 woordlijst, OkKnop knop-ok, StopKnop knop-stop"_s);
    }

    void theTabKeyWalksRoundAWindow()
    {
        TestVenster venster;
        QCOMPARE(TabVolgorde(venster), u"Text1 Text2 Text3"_s);
    }

    void theWalkBeginsWhereTheWindowOpens()
    {
        TestVenster venster;
        venster.Text3->setFocus();
        QCOMPARE(TabVolgorde(venster), u"Text3 Text1 Text2"_s);
    }

    void aControlThatKeepsTheTabKeyIsSeen()
    {
        TestVenster venster;
        QPlainTextEdit tekst(&venster);
        tekst.setObjectName(u"Val"_s);
        QCOMPARE(TabVolgorde(venster), u"Text1 Text2 Text3 Val en terug naar Val"_s);
    }

    void theNamesOfAWindow()
    {
        TestVenster venster;
        QCOMPARE(Leesnamen(venster), QStringList());
        Vind<QWidget>(venster, u"Text2"_s)->setAccessibleName(u"Twee"_s);
        Vind<QWidget>(venster, u"Text1"_s)->setAccessibleName(u"Een"_s);
        QCOMPARE(Leesnamen(venster), (QStringList{u"Text1=Een"_s, u"Text2=Twee"_s}));
    }

    void theMenuOfARightClick()
    {
        TestVenster venster;
        venster.show();
        QFrame leeg;
        QCOMPARE(RechtsKlik(leeg), u"geen menu"_s);
        venster.Text3->setText(u"woord"_s);
        const QString items = RechtsKlik(*venster.Text3, u"Alles selecteren"_s);
        QVERIFY2(items.startsWith(u"(Ongedaan maken)|(Opnieuw)|"_s) && items.endsWith(u"|Alles selecteren"_s),
                 qPrintable(items));
        QCOMPARE(venster.Text3->selectedText(), u"woord"_s);
        QVERIFY(RechtsKlik(*venster.Text3).endsWith(u"|(Alles selecteren)"_s));
    }
};

RASTER_TEST(tst_Venster)
#include "tst_Venster.moc"
