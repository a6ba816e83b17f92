#include "editors/EditorStand.h"
#include "editors/VakForm.h"
#include "platform/Plaatjes.h"
#include "support/Venster.h"

#include <QClipboard>

using namespace Qt::StringLiterals;

static const QRgb Wit = qRgb(255, 255, 255);
static const QRgb Zwart = qRgb(0, 0, 0);

/// A drawing of the arrow strip, from 0.
static QImage Tekening(int nummer)
{
    return Plaatjes::Beeld(u"pijlen"_s).copy(nummer * 23, 0, 23, 23);
}

static QString Lettersoort(const QFont &font)
{
    return u"%1 %2%3"_s.arg(font.families().value(0)).arg(font.pixelSize()).arg(font.bold() ? u" vet"_s : QString());
}

class tst_VakForm : public QObject
{
    Q_OBJECT
private slots:
    void controlsAndTheirPlaces()
    {
        Bord bord;
        VakForm form;
        QCOMPARE(Misplaatst(form, {{"Pic", 240, 240, 1845, 1845},
                                   {"ImgR", 2085, 960, 345, 345},
                                   {"ImgO", 960, 2085, 345, 345},
                                   {"Text1", 2700, 240, 1845, 1845},
                                   {"Label1", 2730, 2100},
                                   {"Label2", 2280, 1500},
                                   {"Label5", 4770, 270, 1800, 1800},
                                   {"Label6", 240, 2490, 1860, 330},
                                   {"HScroll1", 270, 2520, 1800, 270},
                                   {"Label7", 2160, 2535},
                                   {"CancelKnop", 4590, 2430, 0, 360},
                                   {"OkKnop", 5595, 2430, 0, 360},
                                   {"TextLabel"}}),
                 QString());
        QCOMPARE(Misplaatst(*form.Pic, {{"Label3", 45, 45, 1755, 1755}}), QString());
    }

    void theTabKeyGoesFromTheClueOn()
    {
        Bord bord;
        VakForm form;
        QCOMPARE(TabVolgorde(form), u"Text1 HScroll1 CancelKnop OkKnop"_s);
        QCOMPARE(Leesnamen(form), (QStringList{u"CancelKnop=Annuleren"_s, u"HScroll1=Soort Vakje"_s,
                                               u"ImgO=Pijl omlaag"_s, u"ImgR=Pijl naar rechts"_s, u"OkKnop=Ok"_s,
                                               u"Pic=Voorbeeld van het vakje"_s, u"Text1=Omschrijving"_s}));
    }

    void asItOpens()
    {
        Bord bord;
        bord.InBewerking();
        QCOMPARE(VakForm().windowTitle(), u"Informatievakje Plaatsen op Coordinaten"_s); // nothing was pointed at yet
        bord.Wijs(2, 6);
        {
            VakForm eerder;
            eerder.HScroll1->setValue(6);
            eerder.Text1->SetText(u"eerder"_s);
            eerder.OkKnop_Click();
        }
        const Stand ervoor = EditorStand(bord);
        VakForm form;
        QCOMPARE(Verschil(ervoor, EditorStand(bord)), u"PijlSoort"_s);
        QCOMPARE(form.windowTitle(), u"Informatievakje Plaatsen op C-07 / 99"_s);
        QCOMPARE(form.size(), QSize((6900 - 90) / 15, (3480 - 450) / 15));
        QCOMPARE(PijlSoort, quint8(1));
        QCOMPARE(form.Label2->Caption(), u"1"_s);
        QCOMPARE(form.Label1->Caption(), u"Omschrijving"_s);
        QCOMPARE(form.Label7->Caption(), u"Soort Vakje"_s);
        QCOMPARE(form.Label5->Caption(),
                 u"Maak een keus d.m.v. de scrolbalk voor een van de 8 informatievakjes, typ dan de "
                 "omschrijving in de tekstvelden en klik daarna op de button 'Ok' om het infovakje op "
                 "het puzzelveld te plaatsen."_s);
        QCOMPARE(PlaatjesOp(form), u"CancelKnop knop-annuleren, OkKnop knop-ok"_s);
        QCOMPARE(form.HScroll1->minimum(), 1);
        QCOMPARE(form.HScroll1->maximum(), 8);
        QCOMPARE(form.HScroll1->value(), 1);
        QVERIFY(form.Text1->Text().isEmpty());
        QCOMPARE(form.focusWidget(), form.Text1);
        QVERIFY(form.Label3->Caption().isEmpty());
        QCOMPARE(form.Label3->parentWidget(), form.Pic);
        QCOMPARE(Verschil(form.Pic->Image(), Plaatjes::Beeld(u"vak"_s)), QString());
        QVERIFY(!form.ImgR->isHidden() && form.ImgO->isHidden());
        QCOMPARE(Verschil(form.ImgR->Image(), Tekening(0)), QString());
    }

    void fontsAndColours()
    {
        Bord bord;
        VakForm form;
        const QColor groen(230, 250, 190);
        QCOMPARE(form.palette().color(QPalette::Window), groen);
        QCOMPARE(QColor(form.ImgR->BackColor), groen);
        QCOMPARE(QColor(form.ImgO->BackColor), groen);
        QCOMPARE(form.Text1->palette().color(QPalette::Base), QColor(30, 0, 0));
        QCOMPARE(form.Text1->palette().color(QPalette::Text), QColor(230, 230, 230));
        QCOMPARE(Lettersoort(form.Text1->font()), u"Liberation Sans 16 vet"_s);
        QCOMPARE(Lettersoort(form.TextLabel->font()), u"Liberation Sans 17 vet"_s);
        QVERIFY(form.TextLabel->AutoSize);
        QVERIFY(form.TextLabel->isHidden());
        QVERIFY(form.Label2->font().bold());
        QVERIFY(form.Label3->font().bold());
        QVERIFY(!form.Label3->autoFillBackground());
        QCOMPARE(form.Label3->alignment(), Qt::AlignHCenter | Qt::AlignTop);
        QVERIFY(form.Label3->wordWrap());
        QCOMPARE(form.Pic->FontName, u"Arial Narrow"_s);
        // The frame behind the scroll bar is seen round it.
        const QColor rand = form.Label6->palette().color(QPalette::Window);
        QCOMPARE(rand, QColor(150, 180, 180));
        QVERIFY(form.Label6->autoFillBackground());
        QCOMPARE(form.grab().toImage().pixelColor(form.Label6->geometry().topLeft()), rand);
        QVERIFY(form.grab().toImage().pixelColor(form.HScroll1->geometry().center()) != rand);
    }

    void thePreviewOfEachKind_data()
    {
        QTest::addColumn<int>("rechts");         // ImgR.Top in twips, 0: no arrow to the right
        QTest::addColumn<int>("tekeningRechts"); // of the strip
        QTest::addColumn<int>("omlaag");         // ImgO.Left
        QTest::addColumn<int>("tekeningOmlaag");
        QTest::addColumn<bool>("gesplitst");
        Geval("1", 960, 0, 0, 0, false);
        Geval("2", 0, 0, 960, 1, false);
        Geval("3", 450, 2, 0, 0, false);
        Geval("4", 0, 0, 450, 3, false);
        Geval("5", 570, 0, 960, 1, true);
        Geval("6", 450, 2, 960, 1, true);
        Geval("7", 570, 0, 450, 3, true);
        Geval("8", 450, 2, 450, 3, true);
        Geval("0", 0, 0, 0, 0, false); // no kinds: no arrow
        Geval("9", 0, 0, 0, 0, false);
        Geval("-1", 0, 0, 0, 0, false);
    }
    void thePreviewOfEachKind()
    {
        QFETCH(int, rechts);
        QFETCH(int, tekeningRechts);
        QFETCH(int, omlaag);
        QFETCH(int, tekeningOmlaag);
        QFETCH(bool, gesplitst);
        const QString soort = QString::fromLatin1(QTest::currentDataTag());
        Bord bord;
        VakForm form;
        form.VakjeTonen(8); // what another kind has shown is gone
        form.VakjeTonen(soort.toShort());
        QCOMPARE(PijlSoort, static_cast<quint8>(soort.toShort()));
        QCOMPARE(form.Label2->Caption(), soort);
        QCOMPARE(!form.ImgR->isHidden(), rechts > 0);
        QCOMPARE(!form.ImgO->isHidden(), omlaag > 0);
        if (rechts > 0) {
            QCOMPARE(form.ImgR->geometry(), QRect(2085 / 15, rechts / 15, 23, 23));
            QCOMPARE(Verschil(form.ImgR->Image(), Tekening(tekeningRechts)), QString());
        }
        if (omlaag > 0) {
            QCOMPARE(form.ImgO->geometry(), QRect(omlaag / 15, 2085 / 15, 23, 23));
            QCOMPARE(Verschil(form.ImgO->Image(), Tekening(tekeningOmlaag)), QString());
        }
        Verwacht pic(Plaatjes::Beeld(u"vak"_s));
        if (gesplitst)
            pic.Vul(QRect(0, 59, 123, 3), Zwart);
        QCOMPARE(Verschil(form.Pic->Image(), pic.Beeld), QString());
    }

    void theScrollBarChoosesTheKind()
    {
        Bord bord;
        VakForm form;
        form.HScroll1->setValue(7);
        QCOMPARE(PijlSoort, quint8(7));
        form.HScroll1->setSliderDown(true); // while it is dragged too
        form.HScroll1->setSliderPosition(4);
        QCOMPARE(form.Label2->Caption(), u"4"_s);
        QCOMPARE(PijlSoort, quint8(4));
        QVERIFY(form.ImgR->isHidden() && !form.ImgO->isHidden());
        form.HScroll1->setSliderDown(false);
        form.HScroll1->setFocus();
        QTest::keyClick(form.HScroll1, Qt::Key_Right);
        QCOMPARE(PijlSoort, quint8(5));
        QCOMPARE(form.focusWidget(), form.HScroll1); // so that the next key goes on
    }

    void changingTheKindThrowsTheTextAway()
    {
        Bord bord;
        VakForm form;
        const QRect tekst = form.Text1->geometry(), voorbeeld = form.Label3->geometry();
        form.HScroll1->setValue(5);
        form.Text1->SetText(u"getypt\r\nen nog wat"_s);
        QCOMPARE(form.Label3->Caption(), u"getypt\nen nog wat"_s);
        QCOMPARE(form.Label1->Caption(), u"Regel 2"_s);
        form.HScroll1->setValue(1);
        form.Text1->undo(); // which doesn't bring it back
        QVERIFY(form.Text1->Text().isEmpty());
        QVERIFY(form.Label3->Caption().isEmpty());
        QCOMPARE(form.Label1->Caption(), u"Regel 1"_s);
        QCOMPARE(form.Text1->geometry(), tekst);
        QCOMPARE(form.Label3->geometry(), voorbeeld);
        QCOMPARE(Verschil(form.Pic->Image(), Plaatjes::Beeld(u"vak"_s)), QString()); // the divider is gone
        form.Text1->SetText(u"weer"_s);
        form.VakjeTonen(1); // the same one counts as well
        QVERIFY(form.Text1->Text().isEmpty());
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
        Geval("one", u"Spin"_s, u"Regel 1"_s); // shown as it is typed
        Geval("two", u"een\r\ntwee"_s, u"Regel 2"_s);
        Geval("break at the end", u"een\r\n"_s, u"Regel 2"_s);
        Geval("soft wrap", u"hoeveelheid medicijn"_s, u"Regel 2"_s);
        Geval("a hard space", u"de\u00a0hond"_s, u"Regel 1"_s);
        Geval("nothing limits it", u"\r\n"_s.repeated(199), u"Regel 200"_s);
    }
    void typingShowsTextAndLineCount()
    {
        QFETCH(QString, tekst);
        QFETCH(QString, regel);
        Bord bord;
        VakForm form;
        form.Text1->SetText(tekst);
        QCOMPARE(form.Label1->Caption(), regel);
        QCOMPARE(form.Label3->Caption(), QString(tekst).remove(u'\r'));
        QCOMPARE(Lettersoort(form.Label3->font()), u"Liberation Sans 16 vet"_s);
        form.Text1->SetText(QString());
        QCOMPARE(form.Label1->Caption(), u"Regel 1"_s);
    }

    void cancelChangesNothing()
    {
        Bord bord;
        bord.Wijs(2, 3);
        bord.InBewerking();
        const Stand ervoor = EditorStand(bord);
        VakForm form;
        form.HScroll1->setValue(5);
        form.Text1->SetText(u"tekst"_s);
        Klik(bord, *form.CancelKnop, [&] { QVERIFY(!form.Unloaded()); });
        QVERIFY(form.Unloaded());
        QCOMPARE(Verschil(ervoor, EditorStand(bord)), u"PijlSoort"_s);
        QCOMPARE(PijlSoort, quint8(5)); // it keeps its last value
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }

    void theArrowDrawings_data()
    {
        QTest::addColumn<int>("tekening");
        QTest::addColumn<QList<QPoint>>("weg"); // where its shaft runs, up to the tip of its head
        QTest::addColumn<QRect>("kop");
        const QRect rechts(13, 4, 10, 15), omlaag(4, 13, 15, 10);
        Geval("right", 0, QList{QPoint(0, 11), QPoint(21, 11)}, rechts);
        Geval("down", 1, QList{QPoint(11, 0), QPoint(11, 21)}, omlaag);
        Geval("right then down", 2, QList{QPoint(0, 2), QPoint(11, 2), QPoint(11, 21)}, omlaag);
        Geval("down then right", 3, QList{QPoint(2, 0), QPoint(2, 11), QPoint(21, 11)}, rechts);
    }
    void theArrowDrawings()
    {
        QFETCH(int, tekening);
        QFETCH(QList<QPoint>, weg);
        QFETCH(QRect, kop);
        QCOMPARE(Plaatjes::Beeld(u"pijlen"_s).size(), QSize(92, 23));
        const QImage beeld = Tekening(tekening);
        QCOMPARE(InktVlak(beeld, kop), kop);              // it fills its place
        QVERIFY(qGray(beeld.pixel(kop.topLeft())) > 128); // and is pointed
        QVERIFY(qGray(beeld.pixel(kop.bottomRight())) > 128);
        Verwacht rest(beeld); // what is left when shaft and head have been taken away
        rest.Vul(kop, Wit);
        for (qsizetype i = 1; i < weg.size(); ++i)
            for (int y = weg[i - 1].y(); y <= weg[i].y(); ++y)
                for (int x = weg[i - 1].x(); x <= weg[i].x(); ++x) {
                    QVERIFY2(qGray(beeld.pixel(x, y)) < 128, qPrintable(u"%1,%2"_s.arg(x).arg(y)));
                    rest.Vul(QRect(x - 1, y - 1, 3, 3), Wit);
                }
        QCOMPARE(InktVlak(rest.Beeld, rest.Beeld.rect()), QRect());
    }

    // A clue without a blank is laid out in the square of its length.
    void aClueHasAtMostTenThousandCharacters()
    {
        Bord bord;
        VakForm form;
        QGuiApplication::clipboard()->setText(QString(300000, u'm'));
        form.Text1->paste();
        QCOMPARE(form.Text1->Text(), QString(10000, u'm'));
        QTest::keyClick(form.Text1, Qt::Key_X);
        QCOMPARE(form.Text1->Text().size(), 10000);
    }
};

RASTER_TEST(tst_VakForm)
#include "tst_VakForm.moc"
