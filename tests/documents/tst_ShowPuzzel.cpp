#include "documents/ShowPuzzel.h"
#include "support/Venster.h"
#include "support/Verwacht.h"

#include <QApplication>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

/// The main window with a large board on which every place looks otherwise.
struct Veld : Bord
{
    explicit Veld(int breedte = 16, int hoogte = 19)
    {
        Begin(Zweeds, breedte, hoogte);
        PictureBox &groot = *Venster.PicGroot;
        QImage beeld(groot.size(), QImage::Format_RGB32);
        for (int y = 0; y < beeld.height(); ++y) {
            auto *rij = reinterpret_cast<QRgb *>(beeld.scanLine(y));
            for (int x = 0; x < beeld.width(); ++x)
                rij[x] = qRgb(x % 256, y % 256, x / 256 * 16 + y / 256);
        }
        groot.SetPicture(beeld);
    }
};

/// Where the picture is, what the variables say of it, and where the bars stand, all in twips.
static QString Toestand(const ShowPuzzel &form)
{
    return u"%1,%2 %3,%4 %5,%6"_s.arg(form.SlidePic->x() * 15)
        .arg(form.SlidePic->y() * 15)
        .arg(form.NewLeft)
        .arg(form.NewTop)
        .arg(form.HScroll->value())
        .arg(form.VScroll->value());
}

/// The same when all of them agree.
static QString Op(int links, int boven)
{
    return u"%1,%2 %1,%2 %3,%4"_s.arg(links).arg(boven).arg(-links).arg(-boven);
}

static void Druk(QWidget &widget, QPoint plaats, Qt::MouseButton knop = Qt::LeftButton, Qt::MouseButtons knoppen = {})
{
    QMouseEvent druk(QEvent::MouseButtonPress, plaats, widget.mapToGlobal(plaats), knop, knoppen | knop, {});
    QCoreApplication::sendEvent(&widget, &druk);
}

static void Beweeg(QWidget &widget, QPoint plaats, Qt::MouseButtons knoppen = Qt::LeftButton)
{
    QMouseEvent beweeg(QEvent::MouseMove, plaats, widget.mapToGlobal(plaats), Qt::NoButton, knoppen, {});
    QCoreApplication::sendEvent(&widget, &beweeg);
}

/// Turns the wheel over a widget as the system tells it: what doesn't take it leaves it to what it lies on. A notch is
/// 120.
static void Rol(QWidget &widget, QPoint plaats, QPoint hoek)
{
    QWheelEvent rol(plaats, widget.mapToGlobal(QPointF(plaats)), {}, hoek, {}, {}, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&rol);
    qApp->notify(&widget, &rol);
}

/// Counts how often a widget is moved.
class Bewegingen : public QObject
{
public:
    int Aantal = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        Aantal += event->type() == QEvent::Move;
        return false;
    }
};

static const QString TeVer =
    u"Fout 6 bij 'Orgineel puzzelveld': Overloop: het getal is te groot of te klein (de muiscursor is te ver weg)."_s;

class tst_ShowPuzzel : public QObject
{
    Q_OBJECT
private slots:
    void controlsAndTheirPlaces()
    {
        const Veld veld;
        const ShowPuzzel form;
        QCOMPARE(Misplaatst(form, {{"PicCont", 150, 150, 8400, 4500},
                                   {"Label1", 8700, 150, 360, 4500},
                                   {"VScroll", 8730, 180, 300, 4440},
                                   {"Label2", 150, 4800, 8400, 360},
                                   {"HScroll", 180, 4830, 8340, 300},
                                   {"Label3", 180, 5340},
                                   {"ExitKnop", 8085, 5400}}),
                 QString());
        QCOMPARE(form.size(), QSize((9300 - 90) / 15, qRound((6440 - 450) / 15.0)));
        QCOMPARE(form.SlidePic->parentWidget(), form.PicCont);
        QVERIFY(form.Label3->geometry().right() < form.ExitKnop->x());
    }

    void theTabKeyGoesFromTheBarsOn()
    {
        const Veld veld;
        ShowPuzzel form;
        QCOMPARE(TabVolgorde(form), u"VScroll HScroll ExitKnop"_s);
    }

    void textsAndColours()
    {
        const Veld veld;
        const ShowPuzzel form;
        QCOMPARE(form.palette().color(QPalette::Window), QColor(230, 230, 190));
        QCOMPARE(form.Label3->Caption(),
                 u"Beweeg met ingedrukte linkermuisknop de muiscursor over het puzzelveld om deze te verschuiven,\n"
                 "of maak gebruik van de twee scrolbalken."_s);
        for (const Label *plaat : {form.Label1, form.Label2}) {
            QCOMPARE(plaat->Caption(), QString());
            QVERIFY(plaat->autoFillBackground());
            QCOMPARE(plaat->palette().color(QPalette::Window), QColor(150, 180, 180));
        }
        QCOMPARE(form.SlidePic->accessibleName(), u"Orgineel puzzelveld"_s);
        QCOMPARE(form.VScroll->orientation(), Qt::Vertical);
        QCOMPARE(form.HScroll->orientation(), Qt::Horizontal);
        QCOMPARE(form.VScroll->accessibleName(), u"Omhoog en omlaag"_s);
        QCOMPARE(form.HScroll->accessibleName(), u"Naar links en naar rechts"_s);
        QCOMPARE(form.ExitKnop->accessibleName(), u"Sluiten"_s);
        QCOMPARE(PlaatjesOp(form), u"ExitKnop knop-sluiten"_s);
    }

    void itTellsTheSizesAndHowFarThePictureGoes_data()
    {
        QTest::addColumn<int>("breedte");
        QTest::addColumn<int>("hoogte");
        QTest::addColumn<QString>("titel");
        QTest::addColumn<int>("maxX");
        QTest::addColumn<int>("maxY");
        Geval("largest", 16, 19, u"Orgineel Puzzelveld (1923,2283 / 16,19)"_s, 20355, 29655);
        Geval("smallest", 9, 9, u"Orgineel Puzzelveld (1083,1083 / 9,9)"_s, 7755, 11655);
        // Smaller than the viewport: both are positive too.
        Geval("1 by 1", 1, 1, u"Orgineel Puzzelveld (123,123 / 1,1)"_s, 6645, 2745);
        Geval("0 by 0", 0, 0, u"Orgineel Puzzelveld (3,3 / 0,0)"_s, 8445, 4545);
        Geval("widest", 22, 1, u"Orgineel Puzzelveld (2643,123 / 22,1)"_s, 31155, 2745);
        Geval("high", 1, 40, u"Orgineel Puzzelveld (123,4803 / 1,40)"_s, 6645, 67455);
    }
    void itTellsTheSizesAndHowFarThePictureGoes()
    {
        QFETCH(int, breedte);
        QFETCH(int, hoogte);
        QFETCH(QString, titel);
        QFETCH(int, maxX);
        QFETCH(int, maxY);
        const Veld veld(breedte, hoogte);
        const ShowPuzzel form;
        QCOMPARE(form.windowTitle(), titel);
        QCOMPARE(form.MaxX, qint16(maxX));
        QCOMPARE(form.MaxY, maxY);
        QCOMPARE(form.HScroll->minimum(), 0);
        QCOMPARE(form.VScroll->minimum(), 0);
        QCOMPARE(form.HScroll->maximum(), maxX + 30); // the bars go further than the mouse
        QCOMPARE(form.VScroll->maximum(), maxY + 30);
        QCOMPARE(Toestand(form), Op(0, 0));
        QVERIFY(form.SlidePic->AutoSize);
        QCOMPARE(Verschil(form.SlidePic->Image(), veld.Groot()), QString());
    }

    void itShowsTheLargeBoardOfEachKind_data() { ElkeSoort(); }
    void itShowsTheLargeBoardOfEachKind()
    {
        QFETCH(int, soort);
        const Veld veld(9, 10);
        PuzzelType = static_cast<quint8>(soort);
        BoardWidth = 12; // the title tells both, whether they agree or not
        BoardHeight = 7;
        const ShowPuzzel form;
        QCOMPARE(Verschil(form.SlidePic->Image(), veld.Groot()), QString());
        QCOMPARE(form.windowTitle(), u"Orgineel Puzzelveld (1083,1203 / 12,7)"_s);
    }

    void aBoardThatIsTooWideFails_data()
    {
        QTest::addColumn<int>("breedte");
        QTest::addColumn<int>("hoogte");
        Geval("23", 23, 1);
        Geval("40 by 40", 40, 40);
    }
    void aBoardThatIsTooWideFails()
    {
        QFETCH(int, breedte);
        QFETCH(int, hoogte);
        const Veld veld(breedte, hoogte);
        const auto ervoor = veld.Nu();
        QString gezegd;
        try {
            const ShowPuzzel form;
        } catch (const Fout &fout) {
            QCOMPARE(fout.nummer(), int(Fout::Overloop));
            gezegd = fout.tekst();
        }
        QCOMPARE(gezegd, u"Overloop: het getal is te groot of te klein (het puzzelveld is te breed om te tonen)"_s);
        QCOMPARE(veld.Veranderd(ervoor), QString());
    }

    void thePictureIsSeenInTheViewport()
    {
        const Veld veld;
        ShowPuzzel form;
        const QSize vlak(560, 300);
        QCOMPARE(Verschil(Getoond(*form.PicCont), veld.Groot().copy(QRect(QPoint(), vlak))), QString());
        Druk(*form.SlidePic, QPoint(300, 200));
        Beweeg(*form.SlidePic, QPoint(290, 180));
        QCOMPARE(Verschil(Getoond(*form.PicCont), veld.Groot().copy(QRect(QPoint(10, 20), vlak))), QString());
        form.HScroll->setValue(form.HScroll->maximum());
        form.VScroll->setValue(form.VScroll->maximum());
        QCOMPARE(Verschil(Getoond(*form.PicCont), veld.Groot().copy(QRect(QPoint(1359, 1979), vlak))), QString());
    }

    void besideASmallPictureIsAGround()
    {
        const Veld veld(1, 1);
        ShowPuzzel form;
        Verwacht beeld(Doek(560, 300, qRgb(150, 150, 150)));
        beeld.Plak(veld.Groot(), QPoint(0, 0));
        QCOMPARE(Verschil(Getoond(*form.PicCont), beeld.Beeld), QString());
    }

    void theMouseDragsThePicture_data()
    {
        QTest::addColumn<int>("vakjes");    // across and down
        QTest::addColumn<QPoint>("begin");  // what the bars are set to first
        QTest::addColumn<QPoint>("weg");    // how far the pointer goes, in pixels
        QTest::addColumn<QPoint>("plaats"); // where the picture is then, in twips
        const QPoint einde(20355, 24255);   // of a board of 16 by 16
        Geval("left and up", 16, QPoint(0, 0), QPoint(-10, -15), QPoint(-150, -225));
        Geval("right and down", 16, QPoint(3000, 6000), QPoint(20, 30), QPoint(-2700, -5550));
        Geval("no further right and down", 16, QPoint(0, 0), QPoint(1, 1), QPoint(0, 0));
        Geval("up to the corner", 16, QPoint(150, 300), QPoint(10, 20), QPoint(0, 0));
        Geval("past the corner", 16, QPoint(150, 300), QPoint(11, 21), QPoint(0, 0));
        Geval("before the end", 16, QPoint(15000, 23100), QPoint(-356, -76), QPoint(-20340, -24240));
        Geval("up to the end", 16, QPoint(15000, 23100), QPoint(-357, -77), -einde);
        Geval("past the end", 16, QPoint(15000, 23100), QPoint(-358, -78), -einde);
        Geval("back from where the bars go", 16, einde + QPoint(30, 30), QPoint(0, 0), -einde);
        Geval("one pixel from there", 16, einde + QPoint(30, 30), QPoint(1, 1), -einde);
        Geval("three pixels from there", 16, einde + QPoint(30, 30), QPoint(3, 3), -einde + QPoint(15, 15));
        Geval("left only", 16, QPoint(0, 0), QPoint(-40, 0), QPoint(-600, 0));
        Geval("far up", 16, QPoint(0, 0), QPoint(0, -5000), QPoint(0, -24255));
        Geval("far down", 16, QPoint(0, 24000), QPoint(0, 9000), QPoint(0, 0));
        Geval("as far as 16 bits go to the left", 16, einde, QPoint(-827, 0), -einde);
        Geval("as far as they go to the right", 16, QPoint(0, 0), QPoint(2184, 0), QPoint(0, 0));
        // A picture that is wholly in sight can be pulled out of it.
        Geval("1 by 1", 1, QPoint(0, 0), QPoint(-100, -50), QPoint(-1500, -750));
        Geval("1 by 1, to the end", 1, QPoint(0, 0), QPoint(-444, -184), QPoint(-6645, -2745));
        Geval("0 by 0", 0, QPoint(0, 0), QPoint(-10, -600), QPoint(-150, -4545));
    }
    void theMouseDragsThePicture()
    {
        QFETCH(int, vakjes);
        QFETCH(QPoint, begin);
        QFETCH(QPoint, weg);
        QFETCH(QPoint, plaats);
        Veld veld(vakjes, vakjes);
        veld.InBewerking();
        const auto ervoor = veld.Nu();
        ShowPuzzel form;
        form.HScroll->setValue(begin.x());
        form.VScroll->setValue(begin.y());
        const QPoint druk = vakjes > 0 ? QPoint(100, 60) : QPoint(1, 2);
        Druk(*form.SlidePic, druk);
        QCOMPARE(form.DragX, qint16(druk.x() * 15));
        QCOMPARE(form.DragY, druk.y() * 15);
        QCOMPARE(Toestand(form), Op(-begin.x(), -begin.y())); // a press alone moves nothing
        Beweeg(*form.SlidePic, druk + weg);
        QCOMPARE(Toestand(form), Op(plaats.x(), plaats.y()));
        QCOMPARE(form.DragX, qint16(druk.x() * 15));
        QCOMPARE(veld.Veranderd(ervoor), QString()); // it only looks
        QVERIFY(veld.Bank.Script.Gezien.isEmpty());
    }

    void thePictureStaysUnderThePointer()
    {
        const Veld veld;
        ShowPuzzel form;
        form.show();
        QVERIFY(QTest::qWaitForWindowExposed(&form));
        QWindow *venster = form.windowHandle();
        QTest::mousePress(venster, Qt::LeftButton, {}, QPoint(300, 200));
        for (int stap = 1; stap <= 12; ++stap) {
            QTest::mouseMove(venster, QPoint(300 - 20 * stap, 200 - 10 * stap));
            QCOMPARE(Toestand(form), Op(-300 * stap, -150 * stap));
        }
        QTest::mouseMove(venster, QPoint(5, 390)); // beside the viewport
        QCOMPARE(Toestand(form), Op(-4425, 0));
        QTest::mouseMove(venster, QPoint(300, 200));
        QCOMPARE(Toestand(form), Op(0, 0)); // the pointer had run ahead of it, downwards
        QTest::mouseRelease(venster, Qt::LeftButton, {}, QPoint(300, 200));
        QTest::mouseMove(venster, QPoint(100, 100));
        QCOMPARE(Toestand(form), Op(0, 0));
    }

    void aStepOfADragMovesThePictureOnce()
    {
        const Veld veld;
        ShowPuzzel form;
        form.show();
        QVERIFY(QTest::qWaitForWindowExposed(&form));
        Druk(*form.SlidePic, QPoint(300, 200));
        Bewegingen bewegingen;
        form.SlidePic->installEventFilter(&bewegingen);
        Beweeg(*form.SlidePic, QPoint(290, 180));
        QCOMPARE(Toestand(form), Op(-150, -300));
        QCOMPARE(bewegingen.Aantal, 1);
    }

    void aPressElsewhereStartsNoDrag_data()
    {
        QTest::addColumn<QPoint>("druk");
        Geval("viewport beside the picture", QPoint(300, 200));
        Geval("window", QPoint(4, 4));
        Geval("explanation", QPoint(100, 362));
    }
    void aPressElsewhereStartsNoDrag()
    {
        QFETCH(QPoint, druk);
        const Veld veld(1, 1);
        ShowPuzzel form;
        form.show();
        QVERIFY(QTest::qWaitForWindowExposed(&form));
        QWindow *venster = form.windowHandle();
        QTest::mousePress(venster, Qt::LeftButton, {}, druk);
        QTest::mouseMove(venster, QPoint(60, 60));
        QTest::mouseMove(venster, QPoint(30, 30));
        QTest::mouseRelease(venster, Qt::LeftButton, {}, QPoint(30, 30));
        QCOMPARE(Toestand(form), Op(0, 0));
    }

    void onlyTheLeftButtonAloneDrags_data()
    {
        QTest::addColumn<Qt::MouseButtons>("knoppen");
        Geval("none", Qt::MouseButtons(Qt::NoButton));
        Geval("right", Qt::MouseButtons(Qt::RightButton));
        Geval("middle", Qt::MouseButtons(Qt::MiddleButton));
        Geval("left and right", Qt::LeftButton | Qt::RightButton);
        Geval("left and middle", Qt::LeftButton | Qt::MiddleButton);
    }
    void onlyTheLeftButtonAloneDrags()
    {
        QFETCH(Qt::MouseButtons, knoppen);
        const Veld veld;
        ShowPuzzel form;
        Druk(*form.SlidePic, QPoint(300, 200));
        Beweeg(*form.SlidePic, QPoint(200, 100), knoppen);
        QCOMPARE(Toestand(form), Op(0, 0));
        Beweeg(*form.SlidePic, QPoint(290, 180));
        QCOMPARE(Toestand(form), Op(-150, -300));
    }

    void aPressOnTheFirstPixelStartsADrag()
    {
        const Veld veld;
        ShowPuzzel form;
        Druk(*form.SlidePic, QPoint(300, 200));
        Druk(*form.SlidePic, QPoint(0, 0));
        Beweeg(*form.SlidePic, QPoint(-10, -20));
        QCOMPARE(Toestand(form), Op(-150, -300));
    }

    void aSecondButtonDuringADragHoldsThePicture()
    {
        const Veld veld;
        ShowPuzzel form;
        Druk(*form.SlidePic, QPoint(300, 200));
        Beweeg(*form.SlidePic, QPoint(290, 190));
        Druk(*form.SlidePic, QPoint(300, 200), Qt::RightButton, Qt::LeftButton);
        Beweeg(*form.SlidePic, QPoint(250, 150), Qt::LeftButton | Qt::RightButton);
        QCOMPARE(Toestand(form), Op(-150, -150));
        Beweeg(*form.SlidePic, QPoint(299, 199)); // the right one is let go: on from where it was pressed
        QCOMPARE(Toestand(form), Op(-165, -165));
    }

    void aPointerTooFarOffIsToldOnceAndLeavesAllAsItIs_data()
    {
        QTest::addColumn<int>("begin");
        QTest::addColumn<QPoint>("weg");
        Geval("to the left", 20355, QPoint(-828, -10));
        Geval("to the right", 0, QPoint(2185, 10));
        Geval("much too far to the left", 0, QPoint(-100000, 0));
        Geval("much too far to the right", 0, QPoint(100000, 0));
        Geval("much too far down", 0, QPoint(0, 143200000));
        Geval("much too far up", 0, QPoint(-10, -143200000));
    }
    void aPointerTooFarOffIsToldOnceAndLeavesAllAsItIs()
    {
        QFETCH(int, begin);
        QFETCH(QPoint, weg);
        const Veld veld;
        ShowPuzzel form;
        form.HScroll->setValue(begin);
        Druk(*form.SlidePic, QPoint(300, 200));
        Beweeg(*form.SlidePic, QPoint(300, 200) + weg);
        QCOMPARE(veld.Bank.Script.Gezien.size(), 1);
        QCOMPARE(veld.Bank.Script.Gezien[0].Tekst, TeVer);
        QCOMPARE(veld.Bank.Script.Gezien[0].Plaatje, Icoon::Kritiek);
        QCOMPARE(Toestand(form), Op(-begin, 0));
        QVERIFY(!form.Unloaded());
        Beweeg(*form.SlidePic, QPoint(310, 150)); // the window goes on
        QCOMPARE(Toestand(form), Op(std::min(0, -begin + 150), -750));
        QCOMPARE(veld.Bank.Script.Gezien.size(), 1);
    }

    // A press on the first 32767 twips is held by the variable; the rest of a board from 19 cells on is further.
    void aPressTooFarOffIsToldOnce()
    {
        const Veld veld(20, 9);
        ShowPuzzel form;
        form.HScroll->setValue(form.HScroll->maximum());
        const QString stand = Toestand(form);
        Druk(*form.SlidePic, QPoint(2184, 100));
        QVERIFY(veld.Bank.Script.Gezien.isEmpty());
        Druk(*form.SlidePic, QPoint(2185, 200));
        QCOMPARE(veld.Bank.Script.Gezien.size(), 1);
        QCOMPARE(veld.Bank.Script.Gezien[0].Tekst, TeVer);
        QCOMPARE(form.DragX, qint16(2184 * 15));
        QCOMPARE(form.DragY, 100 * 15);
        QCOMPARE(Toestand(form), stand);
        QCOMPARE(FoutVan([&] { form.SlidePic_MouseDown(0, 3e9); }), int(Fout::Overloop));
        QCOMPARE(form.DragX, qint16(2184 * 15));
    }

    void aPressFarDownIsHeld()
    {
        const Veld veld;
        ShowPuzzel form;
        form.VScroll->setValue(29655);
        Druk(*form.SlidePic, QPoint(100, 2270)); // beyond what 16 bits hold
        QCOMPARE(form.DragX, qint16(1500));
        QCOMPARE(form.DragY, 34050);
        Beweeg(*form.SlidePic, QPoint(100, 2280));
        QCOMPARE(Toestand(form), Op(0, -29505));
        QVERIFY(veld.Bank.Script.Gezien.isEmpty());
    }

    void theBarsMoveThePicture()
    {
        const Veld veld;
        ShowPuzzel form;
        form.HScroll->setValue(4500);
        QCOMPARE(Toestand(form), Op(-4500, 0));
        form.VScroll->setValue(6000);
        QCOMPARE(Toestand(form), Op(-4500, -6000));
        form.HScroll->setValue(20385); // 30 further than the mouse goes
        form.VScroll->setValue(29685);
        QCOMPARE(Toestand(form), Op(-20385, -29685));
        form.HScroll->setValue(22); // whole pixels
        form.VScroll->setValue(23);
        QCOMPARE(Toestand(form), u"-15,-30 -15,-30 22,23"_s);
    }

    void thePictureFollowsAThumbWhileItIsDragged()
    {
        const Veld veld;
        ShowPuzzel form;
        for (QScrollBar *schuif : {form.HScroll, form.VScroll}) {
            schuif->setSliderDown(true);
            schuif->setSliderPosition(3000);
        }
        QCOMPARE(Toestand(form), Op(-3000, -3000));
    }

    void theKeysMoveTheBars()
    {
        const Veld veld;
        ShowPuzzel form;
        const auto toets = [](QScrollBar *schuif, Qt::Key key) { QTest::keyClick(schuif, key); };
        toets(form.VScroll, Qt::Key_Down);
        toets(form.HScroll, Qt::Key_Right);
        QCOMPARE(Toestand(form), Op(-450, -450)); // a quarter of a cell
        toets(form.VScroll, Qt::Key_PageDown);
        toets(form.HScroll, Qt::Key_PageDown);
        QCOMPARE(Toestand(form), Op(-8850, -4950)); // what the viewport holds
        toets(form.VScroll, Qt::Key_End);
        toets(form.HScroll, Qt::Key_End);
        toets(form.VScroll, Qt::Key_Down); // there is no further
        toets(form.HScroll, Qt::Key_Right);
        QCOMPARE(Toestand(form), Op(-20385, -29685));
        toets(form.VScroll, Qt::Key_Up);
        toets(form.HScroll, Qt::Key_Left);
        QCOMPARE(Toestand(form), Op(-19935, -29235));
        toets(form.VScroll, Qt::Key_Home);
        toets(form.HScroll, Qt::Key_Home);
        toets(form.VScroll, Qt::Key_Up);
        toets(form.HScroll, Qt::Key_Left);
        QCOMPARE(Toestand(form), Op(0, 0));
    }

    void theWheelOverThePictureMovesTheBars()
    {
        const Veld veld;
        ShowPuzzel form;
        const auto rol = [&](QPoint hoek) {
            Rol(*form.SlidePic, form.SlidePic->mapFrom(form.PicCont, QPoint(280, 150)), hoek);
        };
        rol(QPoint(0, -120));
        QCOMPARE(Toestand(form), Op(0, -1350));
        rol(QPoint(-240, 0));
        QCOMPARE(Toestand(form), Op(-2700, -1350));
        rol(QPoint(-120, -119)); // the larger one counts
        QCOMPARE(Toestand(form), Op(-4050, -1350));
        rol(QPoint(120, 120));
        QCOMPARE(Toestand(form), Op(-4050, 0));
        rol(QPoint(0, 120)); // at its end
        QCOMPARE(Toestand(form), Op(-4050, 0));
        for (int i = 0; i < 40; ++i)
            rol(QPoint(0, -120));
        QCOMPARE(Toestand(form), Op(-4050, -29685));
        QVERIFY(veld.Bank.Script.Gezien.isEmpty());
    }

    void theWheelOverTheGroundBesideASmallPictureMovesItToo()
    {
        const Veld veld(1, 1);
        ShowPuzzel form;
        Rol(*form.PicCont, QPoint(559, 299), QPoint(0, -120));
        QCOMPARE(Toestand(form), Op(0, -1350));
    }

    void theWheelElsewhereMovesOnlyTheBarUnderIt()
    {
        const Veld veld;
        ShowPuzzel form;
        Rol(*form.Label3, QPoint(5, 5), QPoint(0, -120));
        Rol(form, QPoint(4, 4), QPoint(0, -120));
        Rol(*form.ExitKnop, QPoint(5, 5), QPoint(0, -120));
        Rol(*form.HScroll, QPoint(50, 10), QPoint(0, 120)); // at its end
        QCOMPARE(Toestand(form), Op(0, 0));
        Rol(*form.HScroll, QPoint(50, 10), QPoint(0, -120));
        QCOMPARE(Toestand(form), Op(-1350, 0));
        Rol(*form.VScroll, QPoint(10, 50), QPoint(0, -120));
        QCOMPARE(Toestand(form), Op(-1350, -1350));
    }

    void theButtonClosesIt()
    {
        Veld veld;
        veld.InBewerking();
        const Stand ervoor = veld.Nu();
        ShowPuzzel form;
        form.show();
        const QPoint plaats = form.ExitKnop->pos();
        QList<QPoint> gezien;
        {
            KijkKlok klok([&] {
                gezien += form.ExitKnop->pos() - plaats;
                QVERIFY(!form.Unloaded());
            });
            form.ExitKnop->click();
            QCOMPARE(klok.Wachttijden, (QList<double>{0.2, 0.2}));
        }
        QCOMPARE(gezien, (QList<QPoint>{{2, 2}, {0, 0}}));
        QVERIFY(form.Unloaded() && !form.isVisible());
        QCOMPARE(veld.Veranderd(ervoor), QString());
    }

    // While the window is open the board may be drawn on: it shows the board as it was.
    void itHoldsACopy()
    {
        const Veld veld;
        const QImage toen = veld.Groot().copy();
        const ShowPuzzel form;
        veld.Venster.PicGroot->BoxFull(0, 0, 9000, 9000, qRgb(1, 2, 3));
        QVERIFY(veld.Groot() != toen);
        QCOMPARE(Verschil(form.SlidePic->Image(), toen), QString());
    }
};

RASTER_TEST(tst_ShowPuzzel)
#include "tst_ShowPuzzel.moc"
