#include "platform/Form.h"
#include "support/Testbank.h"

#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QTimer>

#include <new>
#include <optional>

using namespace Qt::StringLiterals;

/// A form with a button and a box, that lets a test place controls.
class TestVenster : public Form
{
public:
    explicit TestVenster(int breedte = 4590, int hoogte = 3450, bool menuBalk = false)
        : Form(u"TestVenster"_s, u"Een titel"_s, breedte, hoogte, qRgb(10, 200, 30), menuBalk)
    {
        Knop = Maak<QPushButton>("ZoekKnop", u"Zoeken"_s, nullptr, u"..."_s);
        Vak = Maak<QLineEdit>("Text1", u"Woord"_s, nullptr);
    }

    using Form::Kleur;
    using Form::Maak;
    using Form::MaakLabel;
    using Form::MenuBalk;
    using Form::PasOpScherm;
    using Form::Zet;

    QPushButton *Knop;
    QLineEdit *Vak;
};

class TestForm : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { bank_.reset(); }

    void theWindowHasItsNameAndTitle();
    void theClientAreaIsTheSizeLessTheFrame();
    void aMenuBarTakesAPartOfTheHeight();
    void aWindowWithAMenuBarFitsTheScreen();
    void aControlHasItsNames();
    void aLabelIsReadAsWhatItShows();
    void aControlIsMadeOnAnotherControl();
    void aControlStandsWhereItIsPlaced();
    void aControlPlacedWithoutASizeTakesItsOwn();
    void aLabelPlacedWithASizeKeepsIt();
    void theColoursOfABoxAreSet();

    void aHandlerRunsOnItsSignal();
    void aHandlerMayTakeTheArguments();
    void aFailureIsShownOnceAndTheWindowStays();
    void aFailureNamesWhatItIsAbout();
    void theSenderIsCalledWhatAPersonCallsIt();
    void anAbortedHandlerSaysNothing();
    void aLackOfMemoryIsShown();
    void aHandlerThatSucceedsSaysNothing();
    void theNextHandlerRunsAfterAFailure();

    void unloadClosesForGood();
    void closingByThePersonIsUnloading();
    void toonOpensUntilTheFormIsClosed();

    void aMessageIsCutAtItsLongest();
    void aMessageHasTheProgramsTitle();
    void aRealMessageHasAnOkButton();
    void aRealQuestionHasYesAndNo_data();
    void aRealQuestionHasYesAndNo();
    void closingARealQuestionIsANo();
    void aRealCriticalMessageHasItsIcon();

private:
    std::optional<Testbank> bank_;
};

void TestForm::init()
{
    // The offscreen platform itself warns of windows of a fixed size.
    QTest::failOnWarning(QRegularExpression(u"^(?!This plugin does not support)"_s));
    bank_.emplace();
}

// --- the window and its controls ---

void TestForm::theWindowHasItsNameAndTitle()
{
    const TestVenster venster;
    QCOMPARE(venster.objectName(), u"TestVenster"_s);
    QCOMPARE(venster.windowTitle(), u"Een titel"_s);
    QCOMPARE(venster.palette().color(QPalette::Window).rgb(), qRgb(10, 200, 30));
    QVERIFY(!venster.Unloaded());
    QCOMPARE(venster.MenuBalk(), nullptr);
}

void TestForm::theClientAreaIsTheSizeLessTheFrame()
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

void TestForm::aMenuBarTakesAPartOfTheHeight()
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

void TestForm::aWindowWithAMenuBarFitsTheScreen()
{
    TestVenster venster(60000, 60000, true);
    venster.MenuBalk()->addMenu(u"Bestand"_s);
    venster.PasOpScherm();
    venster.show();
    QCOMPARE(venster.size(), QGuiApplication::primaryScreen()->availableSize() - QSize(6, 30));
    QCOMPARE(venster.Knop->parentWidget()->size(), QSize(59910 / 15, 59250 / 15)); // it scrolls
}

void TestForm::aControlHasItsNames()
{
    TestVenster venster;
    QCOMPARE(venster.Knop->objectName(), u"ZoekKnop"_s);
    QCOMPARE(venster.Knop->accessibleName(), u"Zoeken"_s);
    QCOMPARE(venster.Knop->text(), u"..."_s);
    const Label *label = venster.MaakLabel("Label1", u"Woord:"_s);
    QCOMPARE(label->objectName(), u"Label1"_s);
    QCOMPARE(label->Caption(), u"Woord:"_s);
}

void TestForm::aLabelIsReadAsWhatItShows()
{
    TestVenster venster;
    Label *label = venster.MaakLabel("Label1", u"Woord:"_s);
    const auto gelezen = [&] { return QAccessible::queryAccessibleInterface(label)->text(QAccessible::Name); };
    QCOMPARE(gelezen(), u"Woord:"_s);
    label->SetCaption(u"Letter:"_s);
    QCOMPARE(gelezen(), u"Letter:"_s);
}

void TestForm::aControlIsMadeOnAnotherControl()
{
    TestVenster venster;
    auto *paneel = venster.Maak<QWidget>("Frame1", u"Paneel"_s, nullptr);
    const auto *vak = venster.Maak<QLineEdit>("Text2", u"Tweede"_s, paneel);
    QCOMPARE(vak->parentWidget(), paneel);
    QCOMPARE(venster.MaakLabel("Label1", u"x"_s, paneel)->parentWidget(), paneel);
    QCOMPARE(paneel->parentWidget(), venster.Knop->parentWidget());
}

void TestForm::aControlStandsWhereItIsPlaced()
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

void TestForm::aControlPlacedWithoutASizeTakesItsOwn()
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

void TestForm::aLabelPlacedWithASizeKeepsIt()
{
    TestVenster venster;
    Label *label = venster.MaakLabel("Label1", u"Woord:"_s);
    venster.Zet(label, 150, 300, 1500, 300);
    label->SetCaption(u"Een veel langer opschrift dan er eerst op stond"_s);
    QCOMPARE(label->geometry(), QRect(10, 20, 100, 20));
}

void TestForm::theColoursOfABoxAreSet()
{
    TestVenster venster;
    venster.Kleur(venster.Vak, qRgb(1, 2, 3), qRgb(250, 251, 252));
    QCOMPARE(venster.Vak->palette().color(QPalette::Base).rgb(), qRgb(1, 2, 3));
    QCOMPARE(venster.Vak->palette().color(QPalette::Text).rgb(), qRgb(250, 251, 252));
    venster.Zet(venster.Vak, 150, 150, 1500, 450);
    QCOMPARE(venster.Vak->grab().toImage().pixel(50, 15), qRgb(1, 2, 3));
}

// --- handlers ---

void TestForm::aHandlerRunsOnItsSignal()
{
    TestVenster venster;
    int gedaan = 0;
    venster.bij(venster.Knop, &QPushButton::clicked, [&] { ++gedaan; });
    QCOMPARE(gedaan, 0);
    venster.Knop->click();
    QCOMPARE(gedaan, 1);
}

void TestForm::aHandlerMayTakeTheArguments()
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

void TestForm::aFailureIsShownOnceAndTheWindowStays()
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

void TestForm::aFailureNamesWhatItIsAbout()
{
    Form::Voer(u"het lezen"_s, [] { throw Fout(Fout::BestandNietGevonden, u"aap.lst"_s); });
    QCOMPARE(bank_->Script.Gezien.size(), 1);
    const QString tekst = bank_->Script.Gezien[0].Tekst;
    QVERIFY(tekst.contains("het lezen"_L1));
    QVERIFY(tekst.contains("aap.lst"_L1));
    QVERIFY(tekst.contains("53"_L1));
}

void TestForm::theSenderIsCalledWhatAPersonCallsIt()
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

void TestForm::anAbortedHandlerSaysNothing()
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

void TestForm::aLackOfMemoryIsShown()
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

void TestForm::aHandlerThatSucceedsSaysNothing()
{
    bool gedaan = false;
    Form::Voer(u"niets"_s, [&] { gedaan = true; });
    QVERIFY(gedaan);
    QVERIFY(bank_->Script.Gezien.isEmpty());
}

void TestForm::theNextHandlerRunsAfterAFailure()
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

// --- closing ---

void TestForm::unloadClosesForGood()
{
    TestVenster venster;
    venster.show();
    QVERIFY(!venster.Unloaded());
    venster.Unload();
    QVERIFY(venster.Unloaded());
    QVERIFY(!venster.isVisible());
}

void TestForm::closingByThePersonIsUnloading()
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

void TestForm::toonOpensUntilTheFormIsClosed()
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

// --- messages ---

void TestForm::aMessageIsCutAtItsLongest()
{
    MsgBox(QString(1024, u'a') + u"b"_s);
    MsgBox(QString(1024, u'c'));
    QCOMPARE(bank_->Script.Gezien.size(), 2);
    QCOMPARE(bank_->Script.Gezien[0].Tekst, QString(1024, u'a'));
    QCOMPARE(bank_->Script.Gezien[1].Tekst, QString(1024, u'c'));
}

void TestForm::aMessageHasTheProgramsTitle()
{
    bank_->Script.Antwoorden = {Antwoord::Ja, Antwoord::Nee};
    QVERIFY(MsgBox(u"Klaar"_s) == Antwoord::Ok);
    QVERIFY(MsgBox(u"Zeker?"_s, Knoppen::JaNee, Icoon::Geen, u"Delete"_s) == Antwoord::Ja);
    QVERIFY(MsgBox(u"Zeker?"_s, Knoppen::JaNee) == Antwoord::Nee);
    QCOMPARE(bank_->Script.Gezien.size(), 3);
    QCOMPARE(bank_->Script.Gezien[0].Titel, u"Rasteratelier"_s);
    QVERIFY(bank_->Script.Gezien[0].Plaatje == Icoon::Geen);
    QCOMPARE(bank_->Script.Gezien[1].Titel, u"Delete"_s);
    QVERIFY(bank_->Script.Gezien[1].Soort == Knoppen::JaNee);
}

/// Shows a real message, notes how it looks and then handles it.
struct EchtBericht
{
    EchtBericht(const QString &tekst, Knoppen knoppen, Icoon icoon, const QString &titel,
                const std::function<void(QMessageBox &)> &doe)
    {
        Berichten::Gebruik(nullptr);
        QTimer::singleShot(0, qApp, [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box)
                return;
            Tekst = box->text();
            Vorm = box->textFormat();
            Titel = box->windowTitle();
            Plaatje = box->icon();
            for (const QAbstractButton *knop : box->buttons())
                Opschriften += knop->text().remove(u'&');
            Opschriften.sort();
            doe(*box);
        });
        Gegeven = MsgBox(tekst, knoppen, icoon, titel);
    }

    static void Klik(QMessageBox &box, const QString &opschrift)
    {
        for (QAbstractButton *knop : box.buttons())
            if (knop->text().remove(u'&') == opschrift)
                knop->click();
    }

    QString Tekst, Titel;
    Qt::TextFormat Vorm = Qt::AutoText;
    QMessageBox::Icon Plaatje = QMessageBox::NoIcon;
    QStringList Opschriften;
    Antwoord Gegeven;
};

void TestForm::aRealMessageHasAnOkButton()
{
    const QString tekst = u"<b>Klaar</b> & wel"_s;
    const auto klik = [](QMessageBox &box) { EchtBericht::Klik(box, u"OK"_s); };
    const EchtBericht bericht(tekst, Knoppen::Ok, Icoon::Geen, u"Een titel"_s, klik);
    QCOMPARE(bericht.Tekst, tekst);
    QCOMPARE(bericht.Vorm, Qt::PlainText);
    QCOMPARE(bericht.Titel, u"Een titel"_s);
    QCOMPARE(bericht.Opschriften, QStringList{u"OK"_s});
    QCOMPARE(bericht.Plaatje, QMessageBox::NoIcon);
    QVERIFY(bericht.Gegeven == Antwoord::Ok);

    const auto escape = [](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Escape); };
    const EchtBericht gesloten(tekst, Knoppen::Ok, Icoon::Geen, QString(), escape);
    QCOMPARE(gesloten.Tekst, tekst);
    QVERIFY(gesloten.Gegeven == Antwoord::Ok);
}

void TestForm::aRealQuestionHasYesAndNo_data()
{
    QTest::addColumn<QString>("opschrift");
    QTest::addColumn<int>("antwoord");
    QTest::newRow("yes") << u"Ja"_s << int(Antwoord::Ja);
    QTest::newRow("no") << u"Nee"_s << int(Antwoord::Nee);
}

void TestForm::aRealQuestionHasYesAndNo()
{
    QFETCH(QString, opschrift);
    const EchtBericht bericht(u"Zeker?"_s, Knoppen::JaNee, Icoon::Geen, u"Delete"_s,
                              [&](QMessageBox &box) { EchtBericht::Klik(box, opschrift); });
    QCOMPARE(bericht.Opschriften, (QStringList{u"Ja"_s, u"Nee"_s}));
    QCOMPARE(bericht.Titel, u"Delete"_s);
    QTEST(int(bericht.Gegeven), "antwoord");
}

void TestForm::closingARealQuestionIsANo()
{
    const EchtBericht metEscape(u"Zeker?"_s, Knoppen::JaNee, Icoon::Geen, QString(),
                                [](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Escape); });
    QCOMPARE(metEscape.Opschriften.size(), 2);
    QVERIFY(metEscape.Gegeven == Antwoord::Nee);
    const EchtBericht metKruis(u"Zeker?"_s, Knoppen::JaNee, Icoon::Geen, QString(),
                               [](QMessageBox &box) { box.close(); });
    QCOMPARE(metKruis.Opschriften.size(), 2);
    QVERIFY(metKruis.Gegeven == Antwoord::Nee);
    const EchtBericht metEnter(u"Zeker?"_s, Knoppen::JaNee, Icoon::Geen, QString(),
                               [](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Return); });
    QVERIFY(metEnter.Gegeven == Antwoord::Ja);
}

void TestForm::aRealCriticalMessageHasItsIcon()
{
    const EchtBericht bericht(u"Mis"_s, Knoppen::Ok, Icoon::Kritiek, QString(), [](QMessageBox &box) { box.close(); });
    QCOMPARE(bericht.Plaatje, QMessageBox::Critical);
    QVERIFY(bericht.Gegeven == Antwoord::Ok);
}

RASTER_TEST(TestForm)
#include "tst_Form.moc"
