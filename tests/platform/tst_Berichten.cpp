#include "platform/Berichten.h"
#include "support/Testbank.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QTimer>

#include <optional>

using namespace Qt::StringLiterals;

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
        QTimer::singleShot(0, qApp, [&] {
            QWidget &box = *QApplication::activeModalWidget();
            vraag = box.findChild<QLabel *>()->text();
            titel = box.windowTitle();
            eerst = box.findChild<QLineEdit *>()->text();
            for (const QPushButton *knop : box.findChildren<QPushButton *>()) {
                opschriften += knop->text();
                QVERIFY(knop->icon().isNull());
            }
            kleinst = box.minimumSize();
            grootst = box.maximumSize();
            QTest::keyClicks(box.focusWidget(), u"reizen"_s);
            QTest::keyClick(&box, toets);
        });
        QTEST(InputBox(u"Geef de naam"_s), "gegeven");
        QCOMPARE(vraag, u"Geef de naam"_s);
        QCOMPARE(titel, u"Rasteratelier"_s);
        QCOMPARE(eerst, QString());
        QCOMPARE(opschriften, (QStringList{u"OK"_s, u"Annuleren"_s}));
        QCOMPARE(kleinst, grootst);
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

    void aMessageHasTheFrameOfADialog()
    {
        Qt::WindowFlags vlaggen;
        const EchtBericht bericht(u"Mis"_s, Knoppen::Ok, Icoon::Geen, QString(), [&](QMessageBox &box) {
            vlaggen = box.windowFlags();
            box.close();
        });
        QVERIFY(vlaggen & Qt::WindowCloseButtonHint);
        QVERIFY(!(vlaggen & (Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint)));
    }

private:
    std::optional<Testbank> bank_;
};

RASTER_TEST(tst_Berichten)
#include "tst_Berichten.moc"
