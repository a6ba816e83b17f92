#include "app/Afsluiten.h"
#include "app/ConfigForm.h"
#include "app/Opstarten.h"
#include "support/Venster.h"
#include "support/Verwacht.h"

#include <QStyleOptionSlider>

using namespace Qt::StringLiterals;

static const QByteArray Kop = "\"Tessel Hoeksma Software 2017\"\r\n\"--------------------------\"\r\n";

static QColor Achter(const Label &label)
{
    return label.autoFillBackground() ? label.palette().color(QPalette::Window) : QColor();
}

/// What the window shows: the bars, their values, the sample, the choice with its sample, the text.
static QString Getoond(const ConfigForm &form)
{
    QStringList delen;
    for (size_t i = 0; i < 3; ++i)
        delen += QString::number(form.HScroll1[i]->value()) + u'=' + form.ColorLabel[i]->Caption();
    delen += Achter(*form.Label3).name();
    delen += QString::number(form.HScroll2->value()) + u'=' + form.Label7->Caption();
    delen += Achter(*form.Label7).isValid() ? Achter(*form.Label7).name() : u"-"_s;
    return delen.join(u' ') + u" '"_s + form.Text1->text() + u'\'';
}

/// The settings in memory.
static QString Instelling()
{
    return u"%1,%2,%3 %4 '%5'"_s.arg(OrgineelRood)
        .arg(OrgineelGroen)
        .arg(OrgineelBlauw)
        .arg(KleurVakjes)
        .arg(PaginaTekst);
}

static void ZetInstelling(qint16 rood, qint16 groen, qint16 blauw, quint8 keuze, const QString &tekst)
{
    OrgineelRood = rood;
    OrgineelGroen = groen;
    OrgineelBlauw = blauw;
    KleurVakjes = keuze;
    PaginaTekst = tekst;
}

/// The main window with settings that are no defaults.
struct Ingesteld : Bord
{
    Ingesteld() { ZetInstelling(1, 20, 255, 2, u"mijn pagina"_s); }
};

static const QString IngesteldIs = u"1,20,255 2 'mijn pagina'"_s;
static const QString IngesteldGetoond = u"1=1 20=20 255=255 #0114ff 2= 2 #bee6e6 'mijn pagina'"_s;

/// Changes all that can be changed.
static void Verstel(ConfigForm &form)
{
    form.HScroll1[0]->setValue(100);
    form.HScroll1[1]->setValue(0);
    form.HScroll1[2]->setValue(7);
    form.HScroll2->setValue(3);
    form.Text1->selectAll();
    QTest::keyClicks(form.Text1, u"een ander"_s);
}

static const QString VersteldGetoond = u"100=100 0=0 7=7 #640007 3= 3 #fa9696 'een ander'"_s;

/// Drags the thumb of a bar with the left button from one value to another. @param kijk before it is let go
static void Sleep(QScrollBar &schuif, int naar, const std::function<void()> &kijk)
{
    QStyleOptionSlider optie;
    optie.initFrom(&schuif);
    optie.subControls = QStyle::SC_All;
    optie.orientation = Qt::Horizontal;
    optie.state |= QStyle::State_Horizontal;
    optie.minimum = schuif.minimum();
    optie.maximum = schuif.maximum();
    optie.pageStep = schuif.pageStep();
    optie.sliderPosition = optie.sliderValue = schuif.value();
    const auto vlak = [&](QStyle::SubControl deel) {
        return schuif.style()->subControlRect(QStyle::CC_ScrollBar, &optie, deel, &schuif);
    };
    const QRect baan = vlak(QStyle::SC_ScrollBarGroove), duim = vlak(QStyle::SC_ScrollBarSlider);
    const int weg =
        QStyle::sliderPositionFromValue(schuif.minimum(), schuif.maximum(), naar, baan.width() - duim.width());
    const QPoint begin = duim.center(), einde(baan.left() + weg + duim.width() / 2, begin.y());
    QTest::mousePress(&schuif, Qt::LeftButton, {}, begin);
    QMouseEvent sleep(QEvent::MouseMove, einde, schuif.mapToGlobal(einde), Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&schuif, &sleep);
    kijk();
    QTest::mouseRelease(&schuif, Qt::LeftButton, {}, einde);
}

/// Clicks a button and gives the waits that it comes with, in tenths of a second, and what is seen during each.
static QString KlikEnKijk(ImageButton &knop, const std::function<QString()> &kijk)
{
    const QPoint plaats = knop.pos();
    QStringList gezien;
    KijkKlok klok([&] { gezien += (knop.pos() == plaats ? u"los "_s : u"in "_s) + kijk(); });
    knop.click();
    for (qsizetype i = 0; i < gezien.size(); ++i)
        gezien[i] = QString::number(klok.Wachttijden[i] * 10) + u' ' + gezien[i];
    return gezien.join(u"; "_s);
}

class tst_ConfigForm : public QObject
{
    Q_OBJECT
private slots:
    void controlsAndTheirPlaces()
    {
        Bord bord;
        ConfigForm form;
        QCOMPARE(Misplaatst(form, {{"Label2", 210, 240, 1800, 960},
                                   {"HScroll1(0)", 240, 270, 1740, 300},
                                   {"HScroll1(1)", 240, 570, 1740, 300},
                                   {"HScroll1(2)", 240, 870, 1740, 300},
                                   {"ColorLabel(0)", 2640, 315},
                                   {"ColorLabel(1)", 2640, 615},
                                   {"ColorLabel(2)", 2640, 915},
                                   {"Label3", 2070, 240, 450, 960},
                                   {"Label4", 210, 1260},
                                   {"Text1", 3600, 240, 3000, 300},
                                   {"Label8", 3600, 600},
                                   {"Label1", 210, 1800, 1800, 360},
                                   {"HScroll2", 240, 1830, 1740, 300},
                                   {"Label6", 2070, 1860},
                                   {"Label7", 210, 2220, 1800, 330},
                                   {"Image1", 5100, 1950, 1080, 1080},
                                   {"ResetKnop", 240, 3210, 0, 360},
                                   {"Label5", 1290, 3285},
                                   {"CancelKnop", 4560, 3210},
                                   {"OkKnop", 5580, 3210, 0, 360}}),
                 QString());
        QCOMPARE(form.size(), QSize((6900 - 90) / 15, (4200 - 450) / 15));
    }

    void theTabKeyGoesFromTheFirstColourOn()
    {
        Bord bord;
        ConfigForm form;
        QCOMPARE(TabVolgorde(form),
                 u"HScroll1(0) HScroll1(1) HScroll1(2) Text1 HScroll2 ResetKnop CancelKnop OkKnop"_s);
    }

    void textsColoursAndRanges()
    {
        Bord bord;
        ConfigForm form;
        QCOMPARE(form.windowTitle(), u"Instellingen"_s);
        QCOMPARE(form.palette().color(QPalette::Window), QColor(230, 230, 190));
        QCOMPARE(form.Label4->Caption(), u"Kleur vakjes orgineel puzzelveld"_s);
        QCOMPARE(form.Label5->Caption(), u"Reset alle gemaakte wijzigingen"_s);
        QCOMPARE(form.Label6->Caption(), u"Kleur vakjes zichtbaar puzzelveld"_s);
        QCOMPARE(form.Label8->Caption(), u"Tekst op alle afdrukpagina's"_s);
        QCOMPARE(PlaatjesOp(form),
                 u"CancelKnop knop-annuleren, Image1 instellingen, OkKnop knop-ok, ResetKnop knop-reset"_s);
        for (const QWidget *control : form.findChildren<QWidget *>())
            QCOMPARE(control->toolTip(), control == form.OkKnop ? u" Wijzigingen Opslaan "_s : QString());
        QCOMPARE(form.Text1->palette().color(QPalette::Base), QColor(0, 0, 30));
        QCOMPARE(form.Text1->palette().color(QPalette::Text), QColor(230, 230, 230));
        for (const Label *plaat : {form.Label1, form.Label2}) {
            QCOMPARE(plaat->Caption(), QString());
            QCOMPARE(Achter(*plaat), QColor(150, 180, 180));
        }
        const QStringList kleuren{u"Rood"_s, u"Groen"_s, u"Blauw"_s};
        for (qsizetype i = 0; i < kleuren.size(); ++i) {
            const QScrollBar &schuif = *form.HScroll1[static_cast<size_t>(i)];
            QCOMPARE(schuif.accessibleName(), kleuren[i]);
            QCOMPARE(schuif.minimum(), 0);
            QCOMPARE(schuif.maximum(), 255);
        }
        QCOMPARE(form.HScroll2->minimum(), 1);
        QCOMPARE(form.HScroll2->maximum(), 3);
        QCOMPARE(form.HScroll2->accessibleName(), form.Label6->Caption());
        QCOMPARE(form.Text1->accessibleName(), form.Label8->Caption());
        QCOMPARE(form.ResetKnop->accessibleName(), form.Label5->Caption());
    }

    void itShowsTheSettings_data()
    {
        QTest::addColumn<int>("rood");
        QTest::addColumn<int>("groen");
        QTest::addColumn<int>("blauw");
        QTest::addColumn<int>("keuze");
        QTest::addColumn<QString>("getoond");
        Geval("first choice", 230, 250, 190, 1, u"230=230 250=250 190=190 #e6fabe 1= 1 #e6fabe 'tekst'"_s);
        Geval("second choice", 0, 0, 0, 2, u"0=0 0=0 0=0 #000000 2= 2 #bee6e6 'tekst'"_s);
        Geval("third choice", 255, 255, 255, 3, u"255=255 255=255 255=255 #ffffff 3= 3 #fa9696 'tekst'"_s);
        // There is no such choice: bar and sample stay as they stand.
        for (const int keuze : {0, 4, 9, 255})
            Geval("choice " + QByteArray::number(keuze), 1, 2, 3, keuze, u"1=1 2=2 3=3 #010203 1= - 'tekst'"_s);
    }
    void itShowsTheSettings()
    {
        QFETCH(int, rood);
        QFETCH(int, groen);
        QFETCH(int, blauw);
        QFETCH(int, keuze);
        QFETCH(QString, getoond);
        Bord bord;
        ZetInstelling(static_cast<qint16>(rood), static_cast<qint16>(groen), static_cast<qint16>(blauw),
                      static_cast<quint8>(keuze), u"tekst"_s);
        const Stand ervoor = bord.Nu();
        const ConfigForm form;
        QCOMPARE(Getoond(form), getoond);
        QCOMPARE(bord.Veranderd(ervoor), QString());
    }

    void aColourOutsideItsBarShowsAsTheNearest_data()
    {
        QTest::addColumn<int>("deel");
        QTest::addColumn<int>("waarde");
        QTest::addColumn<int>("getoond");
        Geval("red -5", 0, -5, 0);
        Geval("green 300", 1, 300, 255);
        Geval("blue -1", 2, -1, 0);
        Geval("red 256", 0, 256, 255);
        Geval("blue 32767", 2, 32767, 255);
        Geval("green -32768", 1, -32768, 0);
    }
    void aColourOutsideItsBarShowsAsTheNearest()
    {
        QFETCH(int, deel);
        QFETCH(int, waarde);
        QFETCH(int, getoond);
        Bord bord;
        std::array<qint16 *, 3> kleuren{&OrgineelRood, &OrgineelGroen, &OrgineelBlauw};
        *kleuren.at(static_cast<size_t>(deel)) = static_cast<qint16>(waarde);
        const Stand ervoor = bord.Nu();
        ConfigForm form;
        const auto i = static_cast<size_t>(deel);
        QCOMPARE(form.HScroll1.at(i)->value(), getoond);
        QCOMPARE(form.ColorLabel.at(i)->Caption(), QString::number(getoond));
        QCOMPARE(Achter(*form.Label3),
                 QColor(form.HScroll1[0]->value(), form.HScroll1[1]->value(), form.HScroll1[2]->value()));
        QCOMPARE(bord.Veranderd(ervoor), QString());
        form.OkKnop_Click(); // what was shown counts from now on
        QCOMPARE(int{*kleuren.at(i)}, getoond);
    }

    void aColourBarIsFollowedWhileItIsDragged()
    {
        Ingesteld bord;
        ConfigForm form;
        form.show();
        for (size_t i = 0; i < 3; ++i) {
            QScrollBar &schuif = *form.HScroll1[i];
            Sleep(schuif, 128, [&] {
                QVERIFY(schuif.isSliderDown());
                QVERIFY2(qAbs(schuif.value() - 128) < 6, qPrintable(QString::number(schuif.value())));
                QCOMPARE(form.ColorLabel[i]->Caption(), QString::number(schuif.value()));
                QCOMPARE(Achter(*form.Label3),
                         QColor(form.HScroll1[0]->value(), form.HScroll1[1]->value(), form.HScroll1[2]->value()));
            });
        }
        QCOMPARE(Instelling(), IngesteldIs); // before Ok nothing is changed
    }

    void theChoiceReactsWhenItsBarIsReleased()
    {
        Ingesteld bord;
        ConfigForm form;
        form.show();
        Sleep(*form.HScroll2, 3, [&] {
            QVERIFY(form.HScroll2->isSliderDown());
            QCOMPARE(form.HScroll2->sliderPosition(), 3);
            QCOMPARE(Getoond(form), IngesteldGetoond);
        });
        QCOMPARE(Getoond(form), QString(IngesteldGetoond).replace(u"2= 2 #bee6e6"_s, u"3= 3 #fa9696"_s));
    }

    void theKeysChangeTheBars()
    {
        Ingesteld bord;
        ConfigForm form;
        QTest::keyClick(form.HScroll2, Qt::Key_Left);
        QTest::keyClick(form.HScroll1[0], Qt::Key_Right);
        QTest::keyClick(form.HScroll1[1], Qt::Key_Home);
        QTest::keyClick(form.HScroll1[2], Qt::Key_Right); // it is at its end
        QCOMPARE(Getoond(form), u"2=2 0=0 255=255 #0200ff 1= 1 #e6fabe 'mijn pagina'"_s);
        QTest::keyClick(form.HScroll2, Qt::Key_Left);
        QTest::keyClick(form.HScroll1[1], Qt::Key_Left);
        for (QScrollBar *schuif : form.HScroll1) // one at a time as well
            QTest::keyClick(schuif, Qt::Key_PageUp);
        QCOMPARE(Getoond(form), u"1=1 0=0 254=254 #0100fe 1= 1 #e6fabe 'mijn pagina'"_s);
    }

    void theNumberOfTheChoiceStandsAtTheLeftOfItsSample()
    {
        Bord bord;
        ConfigForm form;
        for (int keuze = 1; keuze <= 3; ++keuze) {
            form.HScroll2->setValue(keuze);
            const QImage beeld = Getoond(*form.Label7);
            const QRect inkt = InktVlak(beeld, beeld.rect(), Achter(*form.Label7).rgb());
            QVERIFY(!inkt.isEmpty() && inkt.right() < 20); // behind a blank
        }
    }

    void okChangesTheSettingsAndNothingElse()
    {
        Ingesteld bord;
        bord.Klik(Qt::RightButton, 3, 4);
        bord.InBewerking();
        PuzzelGewijzigd = false;
        PijlSoort = 4;
        const Stand ervoor = bord.Nu();
        ConfigForm form;
        Verstel(form);
        QCOMPARE(Getoond(form), VersteldGetoond);
        QCOMPARE(KlikEnKijk(*form.OkKnop, Instelling), u"2 in "_s + IngesteldIs + u"; 2 los "_s + IngesteldIs);
        QCOMPARE(Instelling(), u"100,0,7 3 'een ander'"_s);
        QVERIFY(form.Unloaded());
        QCOMPARE(bord.Veranderd(ervoor), u"KleurVakjes Orgineel PaginaTekst"_s); // what stands on the boards stays
        QVERIFY(!bord.Bank.Bestanden({}).contains(u"Rasteratelier.ini"_s));
    }

    void whatStandsThereAfterTheWaitsCounts()
    {
        Ingesteld bord;
        ConfigForm form;
        int wachten = 0;
        KijkKlok klok([&] {
            if (++wachten == 2)
                Verstel(form);
        });
        form.OkKnop->click();
        QCOMPARE(Instelling(), u"100,0,7 3 'een ander'"_s);
    }

    void okWithoutAChangeLeavesAllAsItIs()
    {
        for (const QString &tekst : {u"  een,  \"twee\" "_s, QString()}) {
            Ingesteld bord;
            PaginaTekst = tekst;
            PuzzelGewijzigd = true;
            const Stand ervoor = bord.Nu();
            ConfigForm form;
            form.OkKnop->click();
            QVERIFY(form.Unloaded());
            QCOMPARE(bord.Veranderd(ervoor), QString());
        }
    }

    void cancelChangesNothing()
    {
        Ingesteld bord;
        bord.InBewerking();
        const Stand ervoor = bord.Nu();
        ConfigForm form;
        Verstel(form);
        QCOMPARE(KlikEnKijk(*form.CancelKnop, [&] { return form.Unloaded() ? u"dicht"_s : u"open"_s; }),
                 u"2 in open; 2 los open"_s);
        QVERIFY(form.Unloaded());
        QCOMPARE(bord.Veranderd(ervoor), QString());
    }

    void resetReachesPastCancel()
    {
        Ingesteld bord;
        const QString standaard = BeginPaginaTekst();
        QVERIFY(!standaard.isEmpty() && standaard != PaginaTekst);
        ConfigForm form;
        Verstel(form);
        form.ResetKnop->setFocus();
        const Stand ervoor = bord.Nu();
        QCOMPARE(KlikEnKijk(*form.ResetKnop, [&] { return Instelling() + u' ' + Getoond(form); }),
                 u"2 in "_s + IngesteldIs + u' ' + VersteldGetoond);
        QVERIFY(!form.Unloaded());
        QCOMPARE(Instelling(), u"230,250,190 1 'mijn pagina'"_s); // the colours at once, the text not
        QCOMPARE(Getoond(form), u"230=230 250=250 190=190 #e6fabe 1= 1 #e6fabe '"_s + standaard + u'\'');
        QCOMPARE(form.focusWidget(), form.ResetKnop); // it stays
        form.CancelKnop->click();
        QCOMPARE(Instelling(), u"230,250,190 1 'mijn pagina'"_s);
        QCOMPARE(bord.Veranderd(ervoor), u"KleurVakjes Orgineel"_s);
    }

    void resetReachesPastTheCloseBox()
    {
        Ingesteld bord;
        ConfigForm form;
        form.show();
        form.ResetKnop->click();
        QVERIFY(form.close() && form.Unloaded());
        QCOMPARE(Instelling(), u"230,250,190 1 'mijn pagina'"_s);
    }

    void resetAndOkGiveAllDefaults()
    {
        Ingesteld bord;
        ConfigForm form;
        form.ResetKnop->click();
        form.OkKnop->click();
        QCOMPARE(Instelling(), u"230,250,190 1 '"_s + BeginPaginaTekst() + u'\'');
    }

    void resetWorksWhateverDiffersAndEachTime()
    {
        const QString standaard = u"230=230 250=250 190=190 #e6fabe 1= 1 #e6fabe '"_s + BeginPaginaTekst() + u'\'';
        for (int anders = 0; anders < 4; ++anders) {
            Bord bord;
            ZetInstelling(anders == 0 ? 1 : 230, anders == 1 ? 1 : 250, anders == 2 ? 1 : 190, anders == 3 ? 2 : 1,
                          QString());
            ConfigForm form;
            for (int keer = 0; keer < 2; ++keer) {
                form.ResetKnop->click();
                QCOMPARE(Getoond(form), standaard);
                QCOMPARE(Instelling(), u"230,250,190 1 ''"_s);
                Verstel(form);
            }
        }
    }

    void enterIsNoOk()
    {
        Ingesteld bord;
        ConfigForm form;
        form.show();
        Verstel(form);
        for (QWidget *control : {static_cast<QWidget *>(form.Text1), static_cast<QWidget *>(form.HScroll2)})
            QTest::keyClick(control, Qt::Key_Return);
        QVERIFY(form.isVisible());
        QCOMPARE(Instelling(), IngesteldIs);
    }

    // Its bar stands at 1 already then.
    void resetShowsTheChoiceAlsoInThePlaceOfOneThatThereIsNot()
    {
        Bord bord;
        KleurVakjes = 9;
        ConfigForm form;
        form.show();
        QCOMPARE(form.Label7->Caption(), QString());
        form.ResetKnop->click();
        QCOMPARE(form.Label7->Caption(), u" 1"_s);
        QCOMPARE(Achter(*form.Label7), QColor(230, 250, 190));
        QCOMPARE(KleurVakjes, quint8(1));
    }

    void closedDuringAWaitNothingIsChanged_data()
    {
        QTest::addColumn<QString>("knop");
        QTest::addColumn<int>("wacht");
        Geval("Ok, first wait", "OkKnop", 1);
        Geval("Ok, second wait", "OkKnop", 2);
        Geval("Reset", "ResetKnop", 1);
    }
    void closedDuringAWaitNothingIsChanged()
    {
        QFETCH(QString, knop);
        QFETCH(int, wacht);
        Ingesteld bord;
        const Stand ervoor = bord.Nu();
        ConfigForm form;
        form.show();
        Verstel(form);
        int wachten = 0;
        KijkKlok klok([&] {
            if (++wachten == wacht)
                form.close();
        });
        Vind<ImageButton>(form, knop)->click();
        QCOMPARE(wachten, wacht);
        QCOMPARE(bord.Veranderd(ervoor), QString());
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }

    void theTextInTheSettingsFile_data()
    {
        QTest::addColumn<QString>("tekst");
        QTest::addColumn<QByteArray>("regel");
        QTest::addColumn<QString>("gelezen"); // at the next start
        Geval("none", QString(), QByteArray("\"\""), QString());
        Geval("blanks", u"  "_s, QByteArray("\"  \""), u"  "_s);
        Geval("accents", u"één, twee"_s, QByteArray("\"\xE9\xE9n, twee\""), u"één, twee"_s);
        Geval("quotes", u"a \"b\" c"_s, QByteArray("\"a \"b\" c\""), u"a "_s); // a quote ends what is read
        Geval("only a quote", u"\""_s, QByteArray("\"\"\""), QString());
        Geval("outside the code page", u"a\u4e00b"_s, QByteArray("\"a?b\""), u"a?b"_s);
        Geval("lines", u"een\r\ntwee"_s, QByteArray("\"een\""), u"een"_s); // one line is taken
        Geval("long", QString(40000, u'x'), '"' + QByteArray(32767, 'x') + '"', QString(32767, u'x'));
    }
    void theTextInTheSettingsFile()
    {
        QFETCH(QString, tekst);
        QFETCH(QByteArray, regel);
        QFETCH(QString, gelezen);
        Bord bord;
        ConfigForm form;
        form.Text1->setText(tekst);
        form.OkKnop->click();
        QVERIFY(SluitMain());
        Klok::ProgrammaEindigt(false);
        QCOMPARE(bord.Bank.Inhoud(u"Rasteratelier.ini"_s), Kop + "230,250,190\r\n1\r\n" + regel + "\r\n");
        LaadMain();
        QCOMPARE(PaginaTekst, gelezen);
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }
};

RASTER_TEST(tst_ConfigForm)
#include "tst_ConfigForm.moc"
