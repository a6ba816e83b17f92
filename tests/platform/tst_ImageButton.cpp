#include "platform/Form.h"
#include "platform/ImageButton.h"
#include "platform/Plaatjes.h"
#include "support/Testbank.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QStyle>
#include <QStyleOptionFocusRect>

#include <optional>

using namespace Qt::StringLiterals;

/// A white form with two picture buttons.
class KnopVenster : public Form
{
public:
    KnopVenster() : Form(u"KnopVenster"_s, QString(), 4590, 3450, qRgb(255, 255, 255))
    {
        Ok = Maak<ImageButton>("OkKnop", u"Ok"_s, nullptr, u"knop-ok"_s);
        Stop = Maak<ImageButton>("StopKnop", u"Stop"_s, nullptr, u"knop-stop"_s);
        Zet(Ok, 300, 450);
        Zet(Stop, 1500, 450);
    }
    ImageButton *Ok, *Stop;
};

static void Toets(QWidget &widget, QEvent::Type soort, Qt::Key toets, bool herhaald = false)
{
    QKeyEvent event(soort, toets, Qt::NoModifier, QString(), herhaald);
    QCoreApplication::sendEvent(&widget, &event);
}

static void Muis(QWidget &widget, QEvent::Type soort)
{
    const QPointF plaats(5, 5);
    const bool ingedrukt = soort != QEvent::MouseButtonRelease;
    QMouseEvent event(soort, plaats, widget.mapToGlobal(plaats), Qt::LeftButton,
                      ingedrukt ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

static bool IsAfgebroken(ImageButton &knop)
{
    try {
        knop.Druk();
    } catch (const Afgebroken &) {
        return true;
    }
    return false;
}

/// What the button "knop-ok" should look like on its white form.
static QImage Verwacht(const ImageButton &knop, double dekking, bool metFocus)
{
    QImage beeld(knop.size(), QImage::Format_RGB32);
    beeld.fill(Qt::white);
    QPainter painter(&beeld);
    painter.setOpacity(dekking);
    painter.drawPixmap(0, 0, Plaatjes::Pixmap(u"knop-ok"_s, knop.size(), 1));
    QStyleOptionFocusRect focus; // a frame, two pixels from the edge
    focus.state = QStyle::State_KeyboardFocusChange | QStyle::State_Enabled;
    focus.palette = knop.palette();
    focus.rect = QRect(2, 2, knop.width() - 4, knop.height() - 4);
    if (metFocus)
        knop.style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter);
    return beeld;
}

class tst_ImageButton : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        // The offscreen platform itself warns of windows of a fixed size.
        QTest::failOnWarning(QRegularExpression(u"^(?!This plugin does not support)"_s));
        bank_.emplace();
        venster_.emplace();
        kliks_ = 0;
        connect(venster_->Ok, &ImageButton::clicked, this, [this] { ++kliks_; });
    }

    void cleanup()
    {
        venster_.reset();
        bank_.reset();
    }

    // --- pressing ---

    void aKeyPressesTheButtonOnce_data()
    {
        QTest::addColumn<Qt::Key>("toets");
        Geval("Space", Qt::Key_Space);
        Geval("Return", Qt::Key_Return);
        Geval("Enter", Qt::Key_Enter);
    }
    void aKeyPressesTheButtonOnce()
    {
        QFETCH(Qt::Key, toets);
        Toets(*venster_->Ok, QEvent::KeyPress, toets);
        Toets(*venster_->Ok, QEvent::KeyRelease, toets);
        QCOMPARE(kliks_, 1);
        Toets(*venster_->Ok, QEvent::KeyPress, toets);
        Toets(*venster_->Ok, QEvent::KeyRelease, toets);
        QCOMPARE(kliks_, 2);
    }

    void aKeyHeldDownPressesTheButtonOnce_data() { aKeyPressesTheButtonOnce_data(); }
    void aKeyHeldDownPressesTheButtonOnce()
    {
        QFETCH(Qt::Key, toets);
        Toets(*venster_->Ok, QEvent::KeyPress, toets);
        for (int i = 0; i < 5; ++i) {
            Toets(*venster_->Ok, QEvent::KeyRelease, toets, true);
            Toets(*venster_->Ok, QEvent::KeyPress, toets, true);
        }
        Toets(*venster_->Ok, QEvent::KeyRelease, toets);
        QCOMPARE(kliks_, 1);
    }

    void anotherKeyDoesNotPressTheButton()
    {
        for (const Qt::Key toets : {Qt::Key_A, Qt::Key_Tab, Qt::Key_Escape, Qt::Key_F1}) {
            Toets(*venster_->Ok, QEvent::KeyPress, toets);
            Toets(*venster_->Ok, QEvent::KeyRelease, toets);
        }
        QCOMPARE(kliks_, 0);
    }

    void aClickPressesTheButton()
    {
        Muis(*venster_->Ok, QEvent::MouseButtonPress);
        QCOMPARE(kliks_, 0);
        Muis(*venster_->Ok, QEvent::MouseButtonRelease);
        QCOMPARE(kliks_, 1);
    }

    void aDoubleClickIsOneClick()
    {
        Muis(*venster_->Ok, QEvent::MouseButtonPress);
        Muis(*venster_->Ok, QEvent::MouseButtonRelease);
        Muis(*venster_->Ok, QEvent::MouseButtonDblClick);
        Muis(*venster_->Ok, QEvent::MouseButtonRelease);
        QCOMPARE(kliks_, 1);
    }

    void twoSlowClicksAreTwo()
    {
        for (int i = 0; i < 2; ++i) {
            Muis(*venster_->Ok, QEvent::MouseButtonPress);
            Muis(*venster_->Ok, QEvent::MouseButtonRelease);
        }
        QCOMPARE(kliks_, 2);
    }

    void aDisabledButtonCannotBePressed()
    {
        venster_->Ok->setEnabled(false);
        Muis(*venster_->Ok, QEvent::MouseButtonPress);
        Muis(*venster_->Ok, QEvent::MouseButtonRelease);
        for (const Qt::Key toets : {Qt::Key_Space, Qt::Key_Return}) {
            Toets(*venster_->Ok, QEvent::KeyPress, toets);
            Toets(*venster_->Ok, QEvent::KeyRelease, toets);
        }
        QCOMPARE(kliks_, 0);
    }

    void theTabKeyReachesEveryButton()
    {
        venster_->show();
        venster_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&*venster_));
        venster_->Ok->setFocus();
        QVERIFY(venster_->Ok->hasFocus());
        QTest::keyClick(venster_->Ok, Qt::Key_Tab);
        QVERIFY(venster_->Stop->hasFocus());
        QTest::keyClick(venster_->Stop, Qt::Key_Tab);
        QVERIFY(venster_->Ok->hasFocus());
        QTest::mouseClick(venster_->Stop, Qt::LeftButton);
        QVERIFY(venster_->Stop->hasFocus());
    }

    // --- looks ---

    void theFocusIsShown()
    {
        venster_->show();
        venster_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&*venster_));
        venster_->Stop->setFocus();
        const QImage zonder = Getoond(*venster_->Ok);
        QCOMPARE(zonder, Verwacht(*venster_->Ok, 1, false));
        QTest::keyClick(venster_->Stop, Qt::Key_Tab);
        QCOMPARE(Getoond(*venster_->Ok), Verwacht(*venster_->Ok, 1, true));
        QVERIFY(Getoond(*venster_->Ok) != zonder);
        QTest::keyClick(venster_->Ok, Qt::Key_Tab);
        QCOMPARE(Getoond(*venster_->Ok), zonder);
    }

    void theButtonIsAsLargeAsItsPicture()
    {
        QCOMPARE(venster_->Ok->size(), Plaatjes::Maat(u"knop-ok"_s));
        QVERIFY(!venster_->Ok->size().isEmpty());
        QCOMPARE(venster_->Ok->pos(), QPoint(20, 30));
    }

    void theButtonShowsItsPicture()
    {
        for (const QSize maat : {venster_->Ok->size(), QSize(100, 60)}) {
            venster_->Ok->resize(maat);
            QCOMPARE(Getoond(*venster_->Ok), Verwacht(*venster_->Ok, 1, false));
        }
        QVERIFY(HeeftInkt(Getoond(*venster_->Ok), venster_->Ok->rect()));
    }

    void aDisabledButtonIsPaler()
    {
        venster_->Ok->setEnabled(false);
        QCOMPARE(Getoond(*venster_->Ok), Verwacht(*venster_->Ok, 0.45, false));
    }

    // --- the press effect ---

    void theEffectMovesTheButtonAndBack()
    {
        QPoint tijdens;
        QMetaObject::invokeMethod(
            this, [&] { tijdens = venster_->Ok->pos(); }, Qt::QueuedConnection);
        venster_->Ok->Druk();
        QCOMPARE(tijdens, QPoint(22, 32));
        QCOMPARE(venster_->Ok->pos(), QPoint(20, 30));
    }

    void aSecondClickEntersTheHandlerDuringTheEffect()
    {
        int diepte = 0, diepst = 0, gedaan = 0;
        QPoint tijdens;
        venster_->bij(venster_->Ok, &ImageButton::clicked, [&] {
            diepst = std::max(diepst, ++diepte);
            venster_->Ok->Druk();
            --diepte;
            ++gedaan;
        });
        QMetaObject::invokeMethod(
            this,
            [&] {
                Muis(*venster_->Ok, QEvent::MouseButtonPress);
                Muis(*venster_->Ok, QEvent::MouseButtonRelease);
            },
            Qt::QueuedConnection);
        Muis(*venster_->Ok, QEvent::MouseButtonPress);
        Muis(*venster_->Ok, QEvent::MouseButtonRelease);
        QCOMPARE(diepst, 2);
        QCOMPARE(gedaan, 2);
        QCOMPARE(kliks_, 2);
        QCOMPARE(venster_->Ok->pos(), QPoint(20, 30));
    }

    void theEffectWaitsAFifthOfASecond()
    {
        venster_->Ok->Druk();
        QCOMPARE(bank_->TestKlok.Gewacht(), 0.2);
        venster_->Ok->Druk();
        QCOMPARE(bank_->TestKlok.Gewacht(), 0.4);
    }

    void theEffectEndsWithTheForm()
    {
        venster_->show();
        QMetaObject::invokeMethod(
            this, [&] { venster_->Unload(); }, Qt::QueuedConnection);
        QVERIFY(IsAfgebroken(*venster_->Ok));
    }

    void theEffectEndsWhenThePersonClosesTheForm()
    {
        venster_->show();
        QMetaObject::invokeMethod(
            this, [&] { venster_->close(); }, Qt::QueuedConnection);
        QVERIFY(IsAfgebroken(*venster_->Ok));
    }

    void aFormThatWasUnloadedBeforeDoesNotEndTheEffect()
    {
        venster_->show();
        venster_->Unload();
        QVERIFY(!IsAfgebroken(*venster_->Ok));
        QCOMPARE(bank_->TestKlok.Gewacht(), 0.2);
    }

    void aButtonOutsideAFormHasTheEffectToo()
    {
        QWidget ouder;
        ImageButton knop(u"knop-ok"_s, &ouder);
        knop.move(5, 5);
        QMetaObject::invokeMethod(
            &ouder, [&] { ouder.close(); }, Qt::QueuedConnection);
        QVERIFY(!IsAfgebroken(knop));
        QCOMPARE(knop.pos(), QPoint(5, 5));
        QCOMPARE(bank_->TestKlok.Gewacht(), 0.2);
    }

    void theEndOfTheProgramEndsTheEffect()
    {
        QMetaObject::invokeMethod(
            this, [] { Klok::ProgrammaEindigt(); }, Qt::QueuedConnection);
        QVERIFY(IsAfgebroken(*venster_->Ok));
    }

private:
    std::optional<Testbank> bank_;
    std::optional<KnopVenster> venster_;
    int kliks_ = 0;
};

RASTER_TEST(tst_ImageButton)
#include "tst_ImageButton.moc"
