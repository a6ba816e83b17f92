#include "platform/Berichten.h"
#include "support/Testbank.h"

#include <QAction>
#include <QApplication>
#include <QCommandLineParser>
#include <QFileDialog>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProxyStyle>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QTimer>
#include <QTranslator>
#include <QTreeView>

#include <optional>

using namespace Qt::StringLiterals;

/// A desktop that has words of its own for everything: those of a message are ours.
class Anders : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *, const char *, int) const override { return u"anders"_s; }
};

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
            if (box->defaultButton())
                Standaard = box->defaultButton()->text().remove(u'&');
            doe(*box);
        });
        Anders anders;
        QCoreApplication::installTranslator(&anders);
        Gegeven = MsgBox(tekst, knoppen, icoon, titel);
    }

    static void Klik(QMessageBox &box, const QString &opschrift)
    {
        for (QAbstractButton *knop : box.buttons())
            if (knop->text().remove(u'&') == opschrift)
                knop->click();
    }

    QString Tekst, Titel, Standaard;
    Qt::TextFormat Vorm = Qt::AutoText;
    QMessageBox::Icon Plaatje = QMessageBox::NoIcon;
    QStringList Opschriften;
    Antwoord Gegeven;
};

/// Asks for a file with the real dialog, and handles that when it is shown.
static QString EchteVraag(const QString &voorstel, const std::function<void(QFileDialog &)> &doe)
{
    Berichten::Gebruik(nullptr);
    QTimer::singleShot(0, qApp, [&] {
        auto *dialoog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (!dialoog)
            qFatal("there is no dialog");
        doe(*dialoog);
    });
    return Berichten::Huidig().VraagBestand(u"Waarheen?"_s, voorstel, u"PDF-bestanden (*.pdf)"_s);
}

/// All that a dialog shows or tells of itself, each text once, sorted.
static QStringList Teksten(const QWidget &dialoog)
{
    QSet<QString> teksten{dialoog.windowTitle()};
    for (const auto *label : dialoog.findChildren<QLabel *>())
        teksten += label->text();
    for (const auto *knop : dialoog.findChildren<QAbstractButton *>())
        teksten += knop->text();
    for (const auto *control : dialoog.findChildren<QWidget *>())
        teksten += {control->toolTip(), control->accessibleName(), control->accessibleDescription()};
    for (const auto *lijst : dialoog.findChildren<QTreeView *>())
        for (int i = 0; i < lijst->header()->count(); ++i)
            teksten += lijst->model()->headerData(i, Qt::Horizontal).toString();
    for (const auto *actie : dialoog.findChildren<QAction *>())
        teksten += actie->text();
    QStringList gesorteerd(teksten.begin(), teksten.end());
    gesorteerd.removeAll(QString());
    gesorteerd.sort();
    return gesorteerd;
}

static const Qt::WindowFlags VlaggenVanEenDialoog =
    Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;

/// A style that gives buttons their pictures.
class MetPlaatjes : public QProxyStyle
{
public:
    MetPlaatjes() : QProxyStyle(u"Fusion"_s) {}
    int styleHint(StyleHint soort, const QStyleOption *optie, const QWidget *widget,
                  QStyleHintReturn *data) const override
    {
        return soort == SH_DialogButtonBox_ButtonsHaveIcons ? 1 : QProxyStyle::styleHint(soort, optie, widget, data);
    }
};

class tst_Berichten : public QObject
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

    void aMessageIsCutAtItsLongest()
    {
        MsgBox(QString(1024, u'a') + u"b"_s);
        MsgBox(QString(1024, u'c'));
        MsgBox(QString(1023, u'd') + u"\U0001F600"_s); // no half of a pair
        QCOMPARE(bank_->Script.Gezien.size(), 3);
        QCOMPARE(bank_->Script.Gezien[0].Tekst, QString(1024, u'a'));
        QCOMPARE(bank_->Script.Gezien[1].Tekst, QString(1024, u'c'));
        QCOMPARE(bank_->Script.Gezien[2].Tekst, QString(1023, u'd'));
    }

    void aBoxBelongsToTheDialogThatIsOpenAlsoWhileNoWindowIsActive()
    {
        QDialog dialoog;
        dialoog.setModal(true);
        dialoog.show();
        for (QWidget *actief : {static_cast<QWidget *>(&dialoog), static_cast<QWidget *>(nullptr)}) {
            QApplication::setActiveWindow(actief);
            const QWidget *ouder = nullptr;
            const EchtBericht bericht(u"Klaar"_s, Knoppen::Ok, Icoon::Geen, QString(), [&](QMessageBox &box) {
                ouder = box.parentWidget();
                EchtBericht::Klik(box, u"OK"_s);
            });
            QCOMPARE(ouder, &dialoog);
        }
    }

    void aBoxBelongsToTheWindowThatIsOpenAlsoWhileNoneIsActive()
    {
        QWidget venster;
        venster.show();
        QApplication::setActiveWindow(nullptr);
        const QWidget *ouder = nullptr;
        const EchtBericht bericht(u"Klaar"_s, Knoppen::Ok, Icoon::Geen, QString(), [&](QMessageBox &box) {
            ouder = box.parentWidget();
            EchtBericht::Klik(box, u"OK"_s);
        });
        QCOMPARE(ouder, &venster);
    }

    void aMessageHasTheProgramsTitle()
    {
        bank_->Script.Antwoorden = {Antwoord::Ja, Antwoord::Nee};
        QVERIFY(MsgBox(u"Klaar"_s) == Antwoord::Ok);
        QVERIFY(MsgBox(u"Zeker?"_s, Knoppen::JaNee, Icoon::Geen, u"Delete"_s) == Antwoord::Ja);
        QVERIFY(!JaNee(u"Zeker?"_s, u"Fill"_s));
        QCOMPARE(bank_->Script.Gezien.size(), 3);
        QCOMPARE(bank_->Script.Gezien[0].Titel, u"Rasteratelier"_s);
        QVERIFY(bank_->Script.Gezien[0].Plaatje == Icoon::Geen);
        QCOMPARE(bank_->Script.Gezien[1].Titel, u"Delete"_s);
        QVERIFY(bank_->Script.Gezien[1].Soort == Knoppen::JaNee);
        QCOMPARE(bank_->Script.Gezien[2].Tekst, u"Zeker?"_s);
        QCOMPARE(bank_->Script.Gezien[2].Titel, u"Fill"_s);
        QVERIFY(bank_->Script.Gezien[2].Soort == Knoppen::JaNee);
        QVERIFY(bank_->Script.Gezien[2].Plaatje == Icoon::Geen);
        bank_->Script.Antwoorden = {Antwoord::Ja};
        QVERIFY(JaNee(u"Zeker?"_s, u"Fill"_s));
    }

    void aRealMessageHasAnOkButton()
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

    void aRealMessageShowsItsIcon_data()
    {
        QTest::addColumn<Icoon>("icoon");
        QTest::addColumn<QMessageBox::Icon>("plaatje");
        Geval("critical", Icoon::Kritiek, QMessageBox::Critical);
        Geval("warning", Icoon::Waarschuwing, QMessageBox::Warning);
        Geval("information", Icoon::Informatie, QMessageBox::Information);
    }
    void aRealMessageShowsItsIcon()
    {
        QFETCH(Icoon, icoon);
        const EchtBericht bericht(u"Mis"_s, Knoppen::Ok, icoon, QString(), [](QMessageBox &box) { box.close(); });
        QTEST(bericht.Plaatje, "plaatje");
        QVERIFY(bericht.Gegeven == Antwoord::Ok);
    }

    void aRealQuestionHasYesAndNo_data()
    {
        QTest::addColumn<QString>("opschrift");
        QTest::addColumn<int>("antwoord");
        Geval("yes", u"Ja"_s, int(Antwoord::Ja));
        Geval("no", u"Nee"_s, int(Antwoord::Nee));
    }
    void aRealQuestionHasYesAndNo()
    {
        QFETCH(QString, opschrift);
        const EchtBericht bericht(u"Zeker?"_s, Knoppen::JaNee, Icoon::Geen, u"Delete"_s,
                                  [&](QMessageBox &box) { EchtBericht::Klik(box, opschrift); });
        QCOMPARE(bericht.Opschriften, (QStringList{u"Ja"_s, u"Nee"_s}));
        QCOMPARE(bericht.Titel, u"Delete"_s);
        QCOMPARE(bericht.Plaatje, QMessageBox::Question);
        QCOMPARE(bericht.Standaard, u"Ja"_s);
        QTEST(int(bericht.Gegeven), "antwoord");
    }

    void closingARealQuestionIsANo()
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

    void aTextIsAskedFor_data()
    {
        QTest::addColumn<Qt::Key>("toets");
        QTest::addColumn<QString>("gegeven");
        Geval("Enter", Qt::Key_Return, u"reizen"_s);
        Geval("Escape", Qt::Key_Escape, QString());
    }
    void aTextIsAskedFor()
    {
        QFETCH(Qt::Key, toets);
        Berichten::Gebruik(nullptr);
        QString vraag, titel, eerst;
        QStringList opschriften;
        QSize kleinst, grootst;
        Qt::WindowFlags vlaggen;
        int regel = 0;
        Anders anders;
        QCoreApplication::installTranslator(&anders);
        QApplication::setStyle(new MetPlaatjes);
        QTimer::singleShot(0, qApp, [&] {
            QWidget &box = *QApplication::activeModalWidget();
            vraag = box.findChild<QLabel *>()->text();
            titel = box.windowTitle();
            eerst = box.findChild<QLineEdit *>()->text();
            for (const QPushButton *knop : box.findChildren<QPushButton *>()) {
                opschriften += knop->text();
                QVERIFY(knop->icon().isNull());
            }
            regel = box.findChild<QLineEdit *>()->width();
            vlaggen = box.windowFlags();
            kleinst = box.minimumSize();
            grootst = box.maximumSize();
            QTest::keyClicks(box.focusWidget(), u"reizen"_s);
            QTest::keyClick(&box, toets);
        });
        QTEST(InputBox(u"Geef de naam"_s), "gegeven");
        QApplication::setStyle(u"Fusion"_s);
        QCOMPARE(vlaggen, VlaggenVanEenDialoog);
        QCOMPARE(vraag, u"Geef de naam"_s);
        QCOMPARE(titel, u"Rasteratelier"_s);
        QCOMPARE(eerst, QString());
        QCOMPARE(opschriften, (QStringList{u"OK"_s, u"Annuleren"_s}));
        QCOMPARE(kleinst, grootst);
        QCOMPARE(regel, 330);
    }

    void aQuestionForATextBelongsToTheWindowThatIsOpen()
    {
        Berichten::Gebruik(nullptr);
        QWidget venster;
        venster.show();
        QApplication::setActiveWindow(nullptr);
        const QWidget *ouder = nullptr;
        QTimer::singleShot(0, qApp, [&] {
            QWidget &box = *QApplication::activeModalWidget();
            ouder = box.parentWidget();
            QTest::keyClick(&box, Qt::Key_Escape);
        });
        QCOMPARE(InputBox(u"Geef de naam"_s), QString());
        QCOMPARE(ouder, &venster);
    }

    void theTitleOfAQuestionForATextCanBeSet()
    {
        bank_->Script.Teksten = {u"a"_s, u"b"_s};
        QCOMPARE(InputBox(u"Eerst"_s), u"a"_s);
        QCOMPARE(InputBox(u"Dan"_s, u"Titel"_s), u"b"_s);
        QCOMPARE(bank_->Script.Gezien[0].Titel, u"Rasteratelier"_s);
        QCOMPARE(bank_->Script.Gezien[1].Titel, u"Titel"_s);
        QCOMPARE(bank_->Script.Gezien[1].Tekst, u"Dan"_s);
    }

    void aShortMessageIsWideEnoughForItsTitle()
    {
        QRect inhoud, laatsteRij;
        const EchtBericht bericht(u"Mis"_s, Knoppen::Ok, Icoon::Geen, QString(), [&](QMessageBox &box) {
            const auto *opmaak = qobject_cast<QGridLayout *>(box.layout());
            inhoud = opmaak->contentsRect();
            laatsteRij = opmaak->cellRect(opmaak->rowCount() - 1, 0);
            box.close();
        });
        QCOMPARE(inhoud.width(), 280);
        QCOMPARE(laatsteRij.height(), 0); // it is no higher for that
    }

    void aMessageHasTheFrameOfADialog()
    {
        Qt::WindowFlags vlaggen;
        const EchtBericht bericht(u"Mis"_s, Knoppen::Ok, Icoon::Geen, QString(), [&](QMessageBox &box) {
            vlaggen = box.windowFlags();
            box.close();
        });
        QCOMPARE(vlaggen, VlaggenVanEenDialoog);
    }

    void theCommandLineIsToldInDutch()
    {
        const auto fout = [](const QStringList &woorden) {
            QCommandLineParser regel;
            regel.addOption({u"map"_s, u"De map."_s, u"MAP"_s});
            regel.addOption({u"stil"_s, u"Zonder tekst."_s});
            return regel.parse(QStringList(u"programma"_s) + woorden) ? QString() : regel.errorText();
        };
        QCOMPARE(fout({u"--mop"_s}), u"Onbekende keuze 'mop'."_s);
        QCOMPARE(fout({u"--mop"_s, u"--mep"_s}), u"Onbekende keuzes: mop, mep."_s);
        QCOMPARE(fout({u"--map"_s}), u"Achter '--map' ontbreekt de waarde."_s);
        QCOMPARE(fout({u"--stil=ja"_s}), u"Achter '--stil' hoort geen waarde."_s);
        QCommandLineParser regel;
        regel.addHelpOption();
        const QStringList hulp = regel.helpText().split(u'\n', Qt::SkipEmptyParts);
        QVERIFY2(hulp[0].startsWith(u"Gebruik: "_s) && hulp[0].endsWith(u" [keuzes]"_s), qPrintable(hulp[0]));
        QCOMPARE(hulp[1], u"Keuzes:"_s);
        QVERIFY2(hulp[2].endsWith(u"  Toont deze uitleg."_s), qPrintable(hulp[2]));
        QVERIFY2(hulp[3].endsWith(u"  Toont deze uitleg met de keuzes van Qt erbij."_s), qPrintable(hulp[3]));
    }

    void aFileIsAskedForInDutch()
    {
        QStringList teksten;
        const QString pad = EchteVraag(bank_->Map() + u"/reis.pdf"_s, [&](QFileDialog &dialoog) {
            teksten = Teksten(dialoog);
            dialoog.reject();
        });
        QCOMPARE(pad, QString());
        QCOMPARE(teksten, (QStringList{u"&Naam wijzigen"_s,
                                       u"&Verwijderen"_s,
                                       u"Alleen de namen tonen"_s,
                                       u"Annuleren"_s,
                                       u"Bestanden"_s,
                                       u"Bestands&naam:"_s,
                                       u"Bijzonderheden"_s,
                                       u"Bovenliggende map"_s,
                                       u"Een nieuwe map maken"_s,
                                       u"Gewijzigd"_s,
                                       u"Grootte"_s,
                                       u"Lijst"_s,
                                       u"Lijst van plaatsen"_s,
                                       u"Naam"_s,
                                       u"Naar de bovenliggende map"_s,
                                       u"Nieuwe &map"_s,
                                       u"Nieuwe map"_s,
                                       u"Ook grootte en datum tonen"_s,
                                       u"Op&slaan"_s,
                                       u"Plaatsen"_s,
                                       u"Soort"_s,
                                       u"Soort bestanden:"_s,
                                       u"Terug"_s,
                                       u"Terug naar de vorige map"_s,
                                       u"Toon Gewijzigd"_s,
                                       u"Toon Grootte"_s,
                                       u"Toon Soort"_s,
                                       u"Ver&borgen bestanden tonen"_s,
                                       u"Verder"_s,
                                       u"Verder naar de volgende map"_s,
                                       u"Waarheen?"_s,
                                       u"Zoeken in:"_s}));
    }

    void theDialogOfFilesBelongsToTheWindowAndShowsFilesOfTheKind()
    {
        QDialog venster;
        venster.setModal(true);
        venster.show();
        QApplication::setActiveWindow(&venster);
        const QWidget *ouder = nullptr;
        QStringList soorten;
        EchteVraag(bank_->Map() + u"/reis.pdf"_s, [&](QFileDialog &dialoog) {
            ouder = dialoog.parentWidget();
            soorten = dialoog.nameFilters();
            dialoog.reject();
        });
        QCOMPARE(ouder, &venster);
        QCOMPARE(soorten, QStringList{u"PDF-bestanden (*.pdf)"_s});
    }

    void theListOfFilesHasRoomForAllThatItTells()
    {
        bank_->Schrijf(u"groot.pdf"_s, QByteArray(123456, 'x'));
        EchteVraag(bank_->Map() + u"/reis.pdf"_s, [](QFileDialog &dialoog) {
            const auto sluit = qScopeGuard([&] { dialoog.reject(); });
            const auto *boom = dialoog.findChild<QTreeView *>();
            const QAbstractItemView *lijst = boom;
            QTRY_COMPARE(lijst->model()->rowCount(lijst->rootIndex()), 2); // and a folder
            for (int i = 0; i < boom->header()->count(); ++i)
                QTRY_VERIFY(boom->columnWidth(i) >= lijst->sizeHintForColumn(i));
            QCOMPARE(boom->header()->length(), lijst->viewport()->width());
        });
    }

    void theFileThatIsTypedIsTheAnswer()
    {
        const QString voorstel = bank_->Map() + u"/reis.pdf"_s;
        const auto neemAan = [](QFileDialog &dialoog) { QTest::keyClick(&dialoog, Qt::Key_Return); };
        QCOMPARE(EchteVraag(voorstel, neemAan), voorstel);
        const auto typ = [&](QFileDialog &dialoog) {
            auto *naam = dialoog.findChild<QLineEdit *>(u"fileNameEdit"_s);
            QCOMPARE(naam->text(), u"reis.pdf"_s);
            naam->setText(u"tocht"_s);
            QTest::keyClick(naam, Qt::Key_Return);
        };
        QCOMPARE(EchteVraag(voorstel, typ), bank_->Map() + u"/tocht"_s);
    }

    void aFileThatIsThereIsAskedAbout()
    {
        bank_->Schrijf(u"reis.pdf"_s, "oud");
        for (const bool ja : {true, false}) {
            QString vraag;
            const QString pad = EchteVraag(bank_->Map() + u"/reis.pdf"_s, [&](QFileDialog &dialoog) {
                QTimer::singleShot(0, qApp, [&] {
                    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
                    if (!box)
                        return;
                    vraag = box->text() + u'|' + box->button(QMessageBox::Yes)->text() + u'|' +
                            box->button(QMessageBox::No)->text();
                    box->button(ja ? QMessageBox::Yes : QMessageBox::No)->click();
                });
                QTest::keyClick(&dialoog, Qt::Key_Return);
                if (!ja)
                    dialoog.reject();
            });
            QCOMPARE(vraag, u"reis.pdf bestaat al.\nWil je het vervangen?|&Ja|&Nee"_s);
            QCOMPARE(pad, ja ? bank_->Map() + u"/reis.pdf"_s : QString());
        }
    }

private:
    std::optional<Testbank> bank_;
};

RASTER_TEST(tst_Berichten)
#include "tst_Berichten.moc"
