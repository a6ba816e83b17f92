#include "platform/ImageButton.h"
#include "platform/Uiterlijk.h"
#include "support/TestVenster.h"
#include "support/Testbank.h"

#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QGuiApplication>
#include <QMenuBar>
#include <QProxyStyle>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScreen>
#include <QTimer>
#include <QToolButton>

#include <new>
#include <optional>
#include <stdexcept>

using namespace Qt::StringLiterals;

class tst_Form : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        // The offscreen platform itself warns of windows of a fixed size.
        QTest::failOnWarning(QRegularExpression(u"^(?!This plugin does not support)"_s));
        bank_.emplace();
    }
    void cleanup() { bank_.reset(); }

    void everyDesktopGivesTheSameLook()
    {
        QApplication::setStyle(u"Windows"_s);
        QApplication::setFont(QFont(u"Liberation Mono"_s, 30, QFont::Bold));
        QApplication::setPalette(Qt::black);
        StelUiterlijkIn();
        const auto *stijl = qobject_cast<const QProxyStyle *>(QApplication::style()); // ours, which rests on another
        QVERIFY(stijl);
        QCOMPARE(stijl->baseStyle()->name(), u"fusion"_s);
        QCOMPARE(QApplication::font().family(), u"Liberation Sans"_s);
        QCOMPARE(QApplication::font().pixelSize(), 11); // 8.25 points
        QVERIFY(!QApplication::font().bold());
        const QPalette palet = QApplication::palette();
        QCOMPARE(palet.color(QPalette::Active, QPalette::Base), QColor(Qt::white));
        for (const QPalette::ColorRole rol : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
            QCOMPARE(palet.color(QPalette::Disabled, rol), QColor(120, 120, 120));
        QVERIFY(QCoreApplication::testAttribute(Qt::AA_DontUseNativeMenuBar));
    }

    void aMenuBarThatIsTooNarrowShowsThatThereIsMore()
    {
        QMenuBar balk;
        for (const QString &menu : {u"Bestand"_s, u"Bewerken"_s, u"Help"_s})
            balk.addMenu(menu);
        balk.resize(100, balk.sizeHint().height());
        const auto *meer = balk.findChild<QToolButton *>();
        balk.show();
        QVERIFY(meer->isVisible());
        const QImage teken = meer->icon().pixmap(8, 16).toImage();
        QCOMPARE(teken.size(), QSize(8, 16));
        QCOMPARE(InktVlak(teken, teken.rect(), qRgba(0, 0, 0, 0)), QRect(0, 4, 8, 8));
    }

    // --- the window and its controls ---

    void theWindowHasItsNameAndTitle()
    {
        const TestVenster venster;
        QCOMPARE(venster.objectName(), u"TestVenster"_s);
        QCOMPARE(venster.windowTitle(), u"Een titel"_s);
        QCOMPARE(venster.palette().color(QPalette::Window).rgb(), qRgb(10, 200, 30));
        QVERIFY(!venster.Unloaded());
        QCOMPARE(venster.MenuBalk(), nullptr);
    }

    void theClientAreaIsTheSizeLessTheFrame()
    {
        TestVenster venster(4590, 3450);
        QCOMPARE(venster.size(), QSize(300, 200));
        QCOMPARE(venster.minimumSize(), venster.maximumSize());
        venster.show();
        QCOMPARE(venster.size(), QSize(300, 200));
        QCOMPARE(venster.Knop->parentWidget()->size(), QSize(300, 200));
        QCOMPARE(venster.Knop->parentWidget()->mapTo(&venster, QPoint(0, 0)), QPoint(0, 0));
        QCOMPARE(venster.grab().toImage().pixel(299, 199), qRgb(10, 200, 30));
    }

    void aMenuBarTakesAPartOfTheHeight()
    {
        TestVenster venster(4590, 3750, true);
        QVERIFY(venster.MenuBalk());
        venster.MenuBalk()->addMenu(u"Bestand"_s);
        venster.PasOpScherm();
        venster.show();
        const QWidget &inhoud = *venster.Knop->parentWidget();
        QCOMPARE(inhoud.size(), QSize(300, 200));
        QCOMPARE(venster.size(), QSize(300, 200 + venster.MenuBalk()->height()));
        QCOMPARE(inhoud.mapTo(&venster, QPoint(0, 0)), QPoint(0, venster.MenuBalk()->height()));
    }

    void altMarksTheMenuThatTheKeysAreIn()
    {
        TestVenster venster(6000, 3750, true);
        QMenuBar &balk = *venster.MenuBalk();
        balk.addMenu(u"Bestand"_s);
        balk.addMenu(u"Tools"_s);
        venster.show();
        QVERIFY(QTest::qWaitForWindowActive(&venster));
        const auto gemerkt = [&] {
            const QImage beeld = balk.grab().toImage();
            QStringList namen;
            for (QAction *menu : balk.actions())
                if (beeld.pixel(balk.actionGeometry(menu).topLeft() + QPoint(3, 4)) ==
                    balk.palette().highlight().color().rgb())
                    namen += menu->text();
            return namen;
        };
        QCOMPARE(gemerkt(), QStringList());
        QTest::keyClick(venster.Knop, Qt::Key_Alt);
        QCOMPARE(gemerkt(), QStringList{u"Bestand"_s});
        QTest::keyClick(&balk, Qt::Key_Right);
        QCOMPARE(gemerkt(), QStringList{u"Tools"_s});
        QTest::keyClick(&balk, Qt::Key_Escape);
        QCOMPARE(gemerkt(), QStringList());
    }

    void aWindowWithAMenuBarFitsTheScreen()
    {
        TestVenster venster(60000, 60000, true);
        venster.MenuBalk()->addMenu(u"Bestand"_s);
        venster.PasOpScherm();
        venster.show();
        QCOMPARE(venster.size(), QGuiApplication::primaryScreen()->availableSize() - QSize(6, 30));
        QCOMPARE(venster.Knop->parentWidget()->size(), QSize(59910 / 15, 59250 / 15)); // it scrolls
    }

    void theTitleOfATallWindowIsOnTheScreen()
    {
        const QRect scherm = QGuiApplication::primaryScreen()->availableGeometry();
        TestVenster hoog(60000, 60000, true);
        TestVenster laag;
        hoog.PasOpScherm();
        hoog.show();
        laag.show();
        QCOMPARE(hoog.pos(), scherm.topLeft() + QPoint(3, 27));
        QDialog dialoog; // comes in the middle
        dialoog.setFixedSize(laag.size());
        dialoog.show();
        QCOMPARE(laag.pos(), dialoog.pos());
    }

    // As the window manager shows it again that was put away.
    void aWindowThatComesBackStaysWhereTheUserPutIt()
    {
        TestVenster venster;
        venster.show();
        venster.move(-40, -50);
        QShowEvent event;
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(&venster, &event); // sendEvent would take that back
        QCOMPARE(venster.pos(), QPoint(-40, -50));
    }

    void itBelongsToTheWindowThatIsActive()
    {
        TestVenster eerste;
        eerste.show();
        eerste.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&eerste));
        const TestVenster tweede;
        QCOMPARE(tweede.parentWidget(), &eerste);
    }

    void aFormBelongsToTheWindowThatIsOpenAlsoWhileNoneIsActive()
    {
        QCOMPARE(TestVenster().parentWidget(), nullptr);
        QWidget hoofd;
        hoofd.show();
        for (QWidget *actief : {&hoofd, static_cast<QWidget *>(nullptr)}) {
            QApplication::setActiveWindow(actief);
            QCOMPARE(TestVenster().parentWidget(), &hoofd);
            TestVenster dialoog;
            dialoog.setModal(true);
            dialoog.show();
            QApplication::setActiveWindow(actief);
            QCOMPARE(TestVenster().parentWidget(), &dialoog);
        }
    }

    void aControlHasItsNames()
    {
        TestVenster venster;
        QCOMPARE(venster.Knop->objectName(), u"ZoekKnop"_s);
        QCOMPARE(venster.Knop->accessibleName(), u"Zoeken"_s);
        QCOMPARE(venster.Knop->text(), u"..."_s);
        const Label *label = venster.MaakLabel("Label1", u"Woord:"_s);
        QCOMPARE(label->objectName(), u"Label1"_s);
        QCOMPARE(label->Caption(), u"Woord:"_s);
    }

    void aLabelIsReadAsWhatItShows()
    {
        TestVenster venster;
        Label *label = venster.MaakLabel("Label1", u"Woord:"_s);
        const auto gelezen = [&] { return QAccessible::queryAccessibleInterface(label)->text(QAccessible::Name); };
        QCOMPARE(gelezen(), u"Woord:"_s);
        label->SetCaption(u"Letter:"_s);
        QCOMPARE(gelezen(), u"Letter:"_s);
    }

    void aControlIsMadeOnAnotherControl()
    {
        TestVenster venster;
        auto *paneel = venster.Maak<QWidget>("Frame1", u"Paneel"_s, nullptr);
        const auto *vak = venster.Maak<QLineEdit>("Text2", u"Tweede"_s, paneel);
        QCOMPARE(vak->parentWidget(), paneel);
        QCOMPARE(venster.MaakLabel("Label1", u"x"_s, paneel)->parentWidget(), paneel);
        QCOMPARE(paneel->parentWidget(), venster.Knop->parentWidget());
    }

    void aControlStandsWhereItIsPlaced()
    {
        TestVenster venster;
        venster.Zet(venster.Knop, 120, 187, 1207, 368);
        QCOMPARE(venster.Knop->geometry(), QRect(8, 12, 80, 25));
        venster.show();
        QCOMPARE(venster.Knop->geometry(), QRect(8, 12, 80, 25));
        QCOMPARE(venster.Knop->mapTo(&venster, QPoint(0, 0)), QPoint(8, 12));
        venster.Zet(venster.Vak, -150, 0, 15, 15);
        QCOMPARE(venster.Vak->geometry(), QRect(-10, 0, 1, 1));
    }

    void aControlPlacedWithoutASizeTakesItsOwn()
    {
        TestVenster venster;
        venster.Zet(venster.Knop, 300, 450);
        QCOMPARE(venster.Knop->geometry(), QRect(QPoint(20, 30), venster.Knop->sizeHint()));
        Label *label = venster.MaakLabel("Label1", u"Woord:"_s);
        const QSize eigen = label->size();
        venster.Zet(label, 150, 300);
        QCOMPARE(label->geometry(), QRect(QPoint(10, 20), eigen));
        QVERIFY(label->AutoSize);
    }

    void aLabelPlacedWithASizeKeepsIt()
    {
        TestVenster venster;
        Label *label = venster.MaakLabel("Label1", u"Woord:"_s);
        venster.Zet(label, 150, 300, 1500, 300);
        label->SetCaption(u"Een veel langer opschrift dan er eerst op stond"_s);
        QCOMPARE(label->geometry(), QRect(10, 20, 100, 20));
    }

    void theColoursOfABoxAreSet()
    {
        TestVenster venster;
        venster.Kleur(venster.Vak, qRgb(1, 2, 3), qRgb(250, 251, 252));
        QCOMPARE(venster.Vak->palette().color(QPalette::Base).rgb(), qRgb(1, 2, 3));
        QCOMPARE(venster.Vak->palette().color(QPalette::Text).rgb(), qRgb(250, 251, 252));
        venster.Zet(venster.Vak, 150, 150, 1500, 450);
        QCOMPARE(venster.Vak->grab().toImage().pixel(50, 15), qRgb(1, 2, 3));
    }

    // --- handlers ---

    void aHandlerRunsOnItsSignal()
    {
        TestVenster venster;
        int gedaan = 0;
        venster.bij(venster.Knop, &QPushButton::clicked, [&] { ++gedaan; });
        QCOMPARE(gedaan, 0);
        venster.Knop->click();
        QCOMPARE(gedaan, 1);
    }

    void aHandlerMayTakeTheArguments()
    {
        TestVenster venster;
        auto *combo = venster.Maak<QComboBox>("Combo1", u"Keuze"_s, nullptr);
        combo->addItems({u"a"_s, u"b"_s, u"c"_s});
        QList<int> gekozen;
        QStringList getypt;
        venster.bij(combo, &QComboBox::currentIndexChanged, [&](int index) { gekozen += index; });
        venster.bij(venster.Vak, &QLineEdit::textChanged, [&](const QString &tekst) { getypt += tekst; });
        combo->setCurrentIndex(2);
        venster.Vak->setText(u"aap"_s);
        QCOMPARE(gekozen, QList{2});
        QCOMPARE(getypt, QStringList{u"aap"_s});
    }

    void aFailureIsShownOnceAndTheWindowStays()
    {
        TestVenster venster;
        venster.show();
        bool verder = false;
        venster.bij(venster.Knop, &QPushButton::clicked, [&] {
            throw Fout(Fout::TypeOnjuist);
            verder = true;
        });
        venster.Knop->click();
        QCOMPARE(bank_->Script.Gezien.size(), 1);
        const Bericht &bericht = bank_->Script.Gezien[0];
        QVERIFY(bericht.Tekst.contains("Fout 13 "_L1));
        QVERIFY(bericht.Tekst.contains(Fout(Fout::TypeOnjuist).tekst()));
        QVERIFY(bericht.Tekst.contains("'Zoeken'"_L1));
        QVERIFY(bericht.Plaatje == Icoon::Kritiek);
        QVERIFY(bericht.Soort == Knoppen::Ok);
        QVERIFY(!verder);
        QVERIFY(venster.isVisible());
        QVERIFY(!venster.Unloaded());
    }

    void aFailureNamesWhatItIsAbout()
    {
        Form::Voer(u"het lezen"_s, [] { throw Fout(Fout::BestandNietGevonden, u"aap.lst"_s); });
        Form::Voer(u"'Ok'"_s, [] { throw Fout(-7, u"Onderdeel"_s, u"Dat is een hele zin."_s); });
        QCOMPARE(bank_->Script.Gezien.size(), 2);
        QCOMPARE(bank_->Script.Gezien[0].Tekst, u"Fout 53 bij het lezen: Bestand niet gevonden (aap.lst)."_s);
        QCOMPARE(bank_->Script.Gezien[1].Tekst, u"Fout -7 bij 'Ok': Dat is een hele zin."_s);
    }

    void theSenderIsCalledWhatAPersonCallsIt()
    {
        const TestVenster venster;
        QCOMPARE(Form::Wat(venster.Knop), u"'Zoeken'"_s);
        QWidget naamloos;
        naamloos.setObjectName(u"Paneel"_s);
        QCOMPARE(Form::Wat(&naamloos), u"'Paneel'"_s);
        QAction item(u"Puzzel openen"_s);
        item.setObjectName(u"FileOpen"_s);
        QCOMPARE(Form::Wat(&item), u"'Puzzel openen'"_s);
        QTimer timer;
        timer.setObjectName(u"Timer1"_s);
        QCOMPARE(Form::Wat(&timer), u"'Timer1'"_s);
    }

    void anAbortedHandlerSaysNothing()
    {
        TestVenster venster;
        bool begonnen = false;
        venster.bij(venster.Knop, &QPushButton::clicked, [&] {
            begonnen = true;
            throw Afgebroken();
        });
        venster.Knop->click();
        QVERIFY(begonnen);
        QVERIFY(bank_->Script.Gezien.isEmpty());
    }

    void aLackOfMemoryIsShown()
    {
        TestVenster venster;
        venster.bij(venster.Knop, &QPushButton::clicked, [] { throw std::bad_alloc(); });
        venster.Knop->click();
        QCOMPARE(bank_->Script.Gezien.size(), 1);
        const Bericht &bericht = bank_->Script.Gezien[0];
        QVERIFY(bericht.Tekst.contains("Fout 7 "_L1));
        QVERIFY(bericht.Tekst.contains(Fout(Fout::GeheugenVol).tekst()));
        QVERIFY(bericht.Tekst.contains("'Zoeken'"_L1));
        QVERIFY(bericht.Plaatje == Icoon::Kritiek);
    }

    void aHandlerThatSucceedsSaysNothing()
    {
        bool gedaan = false;
        Form::Voer(u"niets"_s, [&] { gedaan = true; });
        QVERIFY(gedaan);
        QVERIFY(bank_->Script.Gezien.isEmpty());
    }

    void theNextHandlerRunsAfterAFailure()
    {
        TestVenster venster;
        bool gedaan = false;
        venster.bij(venster.Knop, &QPushButton::clicked, [] { throw Fout(Fout::Overloop); });
        venster.bij(venster.Knop, &QPushButton::clicked, [&] { gedaan = true; });
        venster.Knop->click();
        QVERIFY(gedaan);
        venster.Knop->click();
        QCOMPARE(bank_->Script.Gezien.size(), 2);
    }

    void aHandlerOfTheWindowItself()
    {
        TestVenster venster;
        venster.bij(venster.Knop, &QPushButton::clicked, &TestVenster::Knop_Click); // without the signal's argument
        venster.bij(venster.Vak, &QLineEdit::textChanged, &TestVenster::Vak_Change);
        venster.Knop->click();
        venster.Vak->setText(u"aap"_s);
        QCOMPARE(venster.Geklikt, 1);
        QCOMPARE(venster.Getypt, QStringList{u"aap"_s});
    }

    void anOptionTellsItsIndexWhenItIsChosen()
    {
        TestVenster venster;
        const QList<QRadioButton *> opties = venster.MaakOpties({u"een"_s, u"twee"_s, u"drie"_s});
        venster.bij(opties, &TestVenster::Optie_Click);
        opties[2]->click();
        opties[2]->click(); // is chosen already
        opties[1]->click();
        QCOMPARE(venster.Gekozen_, (QList{2, 1}));
    }

    void anyOtherExceptionIsShown()
    {
        Form::Voer(u"het lezen"_s, [] { throw std::length_error("te lang"); });
        QCOMPARE(bank_->Script.Gezien.size(), 1);
        const QString tekst = bank_->Script.Gezien[0].Tekst;
        QCOMPARE(tekst, u"Fout 51 bij het lezen: Interne fout (te lang)."_s);
        QVERIFY(bank_->Script.Gezien[0].Plaatje == Icoon::Kritiek);
    }

    // --- closing ---

    void unloadClosesForGood()
    {
        TestVenster venster;
        venster.show();
        QVERIFY(!venster.Unloaded());
        venster.Unload();
        QVERIFY(venster.Unloaded());
        QVERIFY(!venster.isVisible());
    }

    void closingByThePersonIsUnloading()
    {
        TestVenster metKruis, metEscape;
        metKruis.show();
        metKruis.close();
        QVERIFY(!metKruis.isVisible());
        QVERIFY(metKruis.Unloaded());
        metEscape.show();
        QTest::keyClick(&metEscape, Qt::Key_Escape);
        QVERIFY(!metEscape.isVisible());
        QVERIFY(metEscape.Unloaded());
    }

    void toonOpensUntilTheFormIsClosed()
    {
        bool zichtbaar = false;
        QTimer::singleShot(0, this, [&] {
            auto *venster = dynamic_cast<TestVenster *>(QApplication::activeModalWidget());
            if (!venster)
                return;
            zichtbaar = venster->isVisible();
            venster->Unload();
        });
        Toon<TestVenster>();
        QVERIFY(zichtbaar);
        QCOMPARE(QApplication::activeModalWidget(), nullptr);
    }

    void whatComesBehindAWaitIsLeftOutWhenTheWindowWasClosed()
    {
        TestVenster venster;
        venster.show();
        venster.Wacht(0.5); // nothing happens
        QCOMPARE(bank_->TestKlok.Gewacht(), 0.5);
        QTimer::singleShot(0, &venster, [&] { venster.close(); });
        QVERIFY_EXCEPTION_THROWN(venster.Wacht(0.5), Afgebroken);
        venster.Wacht(0.5); // a window that was closed before
    }

    void cancellingPressesWaitsAndCloses()
    {
        TestVenster venster;
        ImageButton *knop = venster.MaakKnop("CancelKnop", u"Annuleren"_s, u"knop-annuleren"_s);
        const QPoint plaats = knop->pos();
        QPoint ingedrukt;
        venster.show();
        QTimer::singleShot(0, &venster, [&] { ingedrukt = knop->pos(); });
        venster.Sluit(knop, 0.2);
        QCOMPARE(ingedrukt, plaats + QPoint(2, 2));
        QCOMPARE(knop->pos(), plaats);
        QCOMPARE(bank_->TestKlok.Gewacht(), 0.4);
        QVERIFY(venster.Unloaded());

        TestVenster zonder;
        zonder.Sluit(zonder.MaakKnop("CancelKnop", u"Annuleren"_s, u"knop-annuleren"_s));
        QCOMPARE(bank_->TestKlok.Gewacht(), 0.6);
        QVERIFY(zonder.Unloaded());
    }

private:
    std::optional<Testbank> bank_;
};

RASTER_TEST(tst_Form)
#include "tst_Form.moc"
