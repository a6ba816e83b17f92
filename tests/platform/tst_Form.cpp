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

/// A form with a button and a box, that lets a test place controls.
class TestVenster : public Form
{
public:
    explicit TestVenster(int breedte = 4590, int hoogte = 3450, bool menuBalk = false)
        : Form(QStringLiteral("TestVenster"), QStringLiteral("Een titel"), breedte, hoogte, qRgb(10, 200, 30), menuBalk)
    {
        Knop = Maak<QPushButton>("ZoekKnop", QStringLiteral("Zoeken"), nullptr, QStringLiteral("..."));
        Vak = Maak<QLineEdit>("Text1", QStringLiteral("Woord"), nullptr);
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
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not support)")));
    bank_.emplace();
}

// --- the window and its controls ---

void TestForm::theWindowHasItsNameAndTitle()
{
    const TestVenster venster;
    QCOMPARE(venster.objectName(), QStringLiteral("TestVenster"));
    QCOMPARE(venster.windowTitle(), QStringLiteral("Een titel"));
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
    venster.MenuBalk()->addMenu(QStringLiteral("Bestand"));
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
    venster.MenuBalk()->addMenu(QStringLiteral("Bestand"));
    venster.PasOpScherm();
    venster.show();
    QCOMPARE(venster.size(), QGuiApplication::primaryScreen()->availableSize() - QSize(6, 30));
    QCOMPARE(venster.Knop->parentWidget()->size(), QSize(59910 / 15, 59250 / 15)); // it scrolls
}

void TestForm::aControlHasItsNames()
{
    TestVenster venster;
    QCOMPARE(venster.Knop->objectName(), QStringLiteral("ZoekKnop"));
    QCOMPARE(venster.Knop->accessibleName(), QStringLiteral("Zoeken"));
    QCOMPARE(venster.Knop->text(), QStringLiteral("..."));
    const Label *label = venster.MaakLabel("Label1", QStringLiteral("Woord:"));
    QCOMPARE(label->objectName(), QStringLiteral("Label1"));
    QCOMPARE(label->Caption(), QStringLiteral("Woord:"));
}

void TestForm::aLabelIsReadAsWhatItShows()
{
    TestVenster venster;
    Label *label = venster.MaakLabel("Label1", QStringLiteral("Woord:"));
    const auto gelezen = [&] { return QAccessible::queryAccessibleInterface(label)->text(QAccessible::Name); };
    QCOMPARE(gelezen(), QStringLiteral("Woord:"));
    label->SetCaption(QStringLiteral("Letter:"));
    QCOMPARE(gelezen(), QStringLiteral("Letter:"));
}

void TestForm::aControlIsMadeOnAnotherControl()
{
    TestVenster venster;
    auto *paneel = venster.Maak<QWidget>("Frame1", QStringLiteral("Paneel"), nullptr);
    const auto *vak = venster.Maak<QLineEdit>("Text2", QStringLiteral("Tweede"), paneel);
    QCOMPARE(vak->parentWidget(), paneel);
    QCOMPARE(venster.MaakLabel("Label1", QStringLiteral("x"), paneel)->parentWidget(), paneel);
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
    Label *label = venster.MaakLabel("Label1", QStringLiteral("Woord:"));
    const QSize eigen = label->size();
    venster.Zet(label, 150, 300);
    QCOMPARE(label->geometry(), QRect(QPoint(10, 20), eigen));
    QVERIFY(label->AutoSize);
}

void TestForm::aLabelPlacedWithASizeKeepsIt()
{
    TestVenster venster;
    Label *label = venster.MaakLabel("Label1", QStringLiteral("Woord:"));
    venster.Zet(label, 150, 300, 1500, 300);
    label->SetCaption(QStringLiteral("Een veel langer opschrift dan er eerst op stond"));
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
    auto *combo = venster.Maak<QComboBox>("Combo1", QStringLiteral("Keuze"), nullptr);
    combo->addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    QList<int> gekozen;
    QStringList getypt;
    venster.bij(combo, &QComboBox::currentIndexChanged, [&](int index) { gekozen += index; });
    venster.bij(venster.Vak, &QLineEdit::textChanged, [&](const QString &tekst) { getypt += tekst; });
    combo->setCurrentIndex(2);
    venster.Vak->setText(QStringLiteral("aap"));
    QCOMPARE(gekozen, QList{2});
    QCOMPARE(getypt, QStringList{QStringLiteral("aap")});
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
    QVERIFY(bericht.Tekst.contains(QLatin1String("Fout 13 ")));
    QVERIFY(bericht.Tekst.contains(Fout(Fout::TypeOnjuist).tekst()));
    QVERIFY(bericht.Tekst.contains(QLatin1String("'Zoeken'")));
    QVERIFY(bericht.Plaatje == Icoon::Kritiek);
    QVERIFY(bericht.Soort == Knoppen::Ok);
    QVERIFY(!verder);
    QVERIFY(venster.isVisible());
    QVERIFY(!venster.Unloaded());
}

void TestForm::aFailureNamesWhatItIsAbout()
{
    Form::Voer(QStringLiteral("het lezen"), [] { throw Fout(Fout::BestandNietGevonden, QStringLiteral("aap.lst")); });
    QCOMPARE(bank_->Script.Gezien.size(), 1);
    const QString tekst = bank_->Script.Gezien[0].Tekst;
    QVERIFY(tekst.contains(QLatin1String("het lezen")));
    QVERIFY(tekst.contains(QLatin1String("aap.lst")));
    QVERIFY(tekst.contains(QLatin1String("53")));
}

void TestForm::theSenderIsCalledWhatAPersonCallsIt()
{
    const TestVenster venster;
    QCOMPARE(Form::Wat(venster.Knop), QStringLiteral("'Zoeken'"));
    QWidget naamloos;
    naamloos.setObjectName(QStringLiteral("Paneel"));
    QCOMPARE(Form::Wat(&naamloos), QStringLiteral("'Paneel'"));
    QAction item(QStringLiteral("Puzzel openen"));
    item.setObjectName(QStringLiteral("FileOpen"));
    QCOMPARE(Form::Wat(&item), QStringLiteral("'Puzzel openen'"));
    QTimer timer;
    timer.setObjectName(QStringLiteral("Timer1"));
    QCOMPARE(Form::Wat(&timer), QStringLiteral("'Timer1'"));
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
    QVERIFY(bericht.Tekst.contains(QLatin1String("Fout 7 ")));
    QVERIFY(bericht.Tekst.contains(Fout(Fout::GeheugenVol).tekst()));
    QVERIFY(bericht.Tekst.contains(QLatin1String("'Zoeken'")));
    QVERIFY(bericht.Plaatje == Icoon::Kritiek);
}

void TestForm::aHandlerThatSucceedsSaysNothing()
{
    bool gedaan = false;
    Form::Voer(QStringLiteral("niets"), [&] { gedaan = true; });
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
    MsgBox(QString(1024, u'a') + QStringLiteral("b"));
    MsgBox(QString(1024, u'c'));
    QCOMPARE(bank_->Script.Gezien.size(), 2);
    QCOMPARE(bank_->Script.Gezien[0].Tekst, QString(1024, u'a'));
    QCOMPARE(bank_->Script.Gezien[1].Tekst, QString(1024, u'c'));
}

void TestForm::aMessageHasTheProgramsTitle()
{
    bank_->Script.Antwoorden = {Antwoord::Ja, Antwoord::Nee};
    QVERIFY(MsgBox(QStringLiteral("Klaar")) == Antwoord::Ok);
    QVERIFY(MsgBox(QStringLiteral("Zeker?"), Knoppen::JaNee, Icoon::Geen, QStringLiteral("Delete")) == Antwoord::Ja);
    QVERIFY(MsgBox(QStringLiteral("Zeker?"), Knoppen::JaNee) == Antwoord::Nee);
    QCOMPARE(bank_->Script.Gezien.size(), 3);
    QCOMPARE(bank_->Script.Gezien[0].Titel, QStringLiteral("Rasteratelier"));
    QVERIFY(bank_->Script.Gezien[0].Plaatje == Icoon::Geen);
    QCOMPARE(bank_->Script.Gezien[1].Titel, QStringLiteral("Delete"));
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
    const QString tekst = QStringLiteral("<b>Klaar</b> & wel");
    const auto klik = [](QMessageBox &box) { EchtBericht::Klik(box, QStringLiteral("OK")); };
    const EchtBericht bericht(tekst, Knoppen::Ok, Icoon::Geen, QStringLiteral("Een titel"), klik);
    QCOMPARE(bericht.Tekst, tekst);
    QCOMPARE(bericht.Vorm, Qt::PlainText);
    QCOMPARE(bericht.Titel, QStringLiteral("Een titel"));
    QCOMPARE(bericht.Opschriften, QStringList{QStringLiteral("OK")});
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
    QTest::newRow("yes") << QStringLiteral("Ja") << int(Antwoord::Ja);
    QTest::newRow("no") << QStringLiteral("Nee") << int(Antwoord::Nee);
}

void TestForm::aRealQuestionHasYesAndNo()
{
    QFETCH(QString, opschrift);
    const EchtBericht bericht(QStringLiteral("Zeker?"), Knoppen::JaNee, Icoon::Geen, QStringLiteral("Delete"),
                              [&](QMessageBox &box) { EchtBericht::Klik(box, opschrift); });
    QCOMPARE(bericht.Opschriften, (QStringList{QStringLiteral("Ja"), QStringLiteral("Nee")}));
    QCOMPARE(bericht.Titel, QStringLiteral("Delete"));
    QTEST(int(bericht.Gegeven), "antwoord");
}

void TestForm::closingARealQuestionIsANo()
{
    const EchtBericht metEscape(QStringLiteral("Zeker?"), Knoppen::JaNee, Icoon::Geen, QString(),
                                [](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Escape); });
    QCOMPARE(metEscape.Opschriften.size(), 2);
    QVERIFY(metEscape.Gegeven == Antwoord::Nee);
    const EchtBericht metKruis(QStringLiteral("Zeker?"), Knoppen::JaNee, Icoon::Geen, QString(),
                               [](QMessageBox &box) { box.close(); });
    QCOMPARE(metKruis.Opschriften.size(), 2);
    QVERIFY(metKruis.Gegeven == Antwoord::Nee);
    const EchtBericht metEnter(QStringLiteral("Zeker?"), Knoppen::JaNee, Icoon::Geen, QString(),
                               [](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Return); });
    QVERIFY(metEnter.Gegeven == Antwoord::Ja);
}

void TestForm::aRealCriticalMessageHasItsIcon()
{
    const EchtBericht bericht(QStringLiteral("Mis"), Knoppen::Ok, Icoon::Kritiek, QString(),
                              [](QMessageBox &box) { box.close(); });
    QCOMPARE(bericht.Plaatje, QMessageBox::Critical);
    QVERIFY(bericht.Gegeven == Antwoord::Ok);
}

RASTER_TEST(TestForm)
#include "tst_Form.moc"
