#include "documents/SaveForm.h"
#include "platform/Files.h"
#include "support/Bord.h"

#include <QDir>
#include <QGuiApplication>

#include <csignal>
#include <sys/resource.h>
#include <unistd.h>

/// Keeps what the progress show looks like at each of its waits.
class VoortgangKlok : public DirecteKlok
{
public:
    void Slaap(double seconden, QEventLoop::ProcessEventsFlags welke) override
    {
        DirecteKlok::Slaap(seconden, welke);
        if (Form && Form->Text1->isHidden()) {
            Percentages += Form->Label1->Caption();
            Breedtes += InktVlak(Form->Bar->Image(), QRect(0, 0, 400, 22)).width();
            Wachttijden += seconden;
            Welke += welke;
            const QCursor *pointer = QGuiApplication::overrideCursor();
            Zandlopers += pointer && pointer->shape() == Qt::WaitCursor;
        }
    }
    SaveForm *Form = nullptr;
    QStringList Percentages;
    QList<int> Breedtes;
    QList<double> Wachttijden;
    QList<QEventLoop::ProcessEventsFlags> Welke;
    QList<bool> Zandlopers;
};

class tst_SaveForm : public QObject
{
    Q_OBJECT

    static void Bewaar(const QString &naam)
    {
        SaveForm form;
        form.Text1->setText(naam);
        form.SaveKnop_Click();
        QVERIFY(form.Unloaded());
    }
    static QStringList Fotos(const Bord &bord)
    {
        return QDir(bord.Bank.Thuis() + QStringLiteral("/Pictures")).entryList(QDir::Files | QDir::Hidden);
    }
    static void Vul(Bord &bord)
    {
        bord.Begin(Zweeds, 9, 10);
        bord.Klik(Qt::RightButton, 2, 2);
        bord.Venster.VoegRijToe(QStringLiteral("A-01 / 1-H"), QStringLiteral("dier"), QStringLiteral("aap"),
                                QStringLiteral("-"));
        PuzzelGewijzigd = true;
    }

private slots:
    void controlsAndTheirPlaces_data()
    {
        QTest::addColumn<QString>("naam");
        QTest::addColumn<QRect>("vlak"); // twips: left, top, width, height
        QTest::newRow("Text1") << "Text1" << QRect(120, 150, 4470, 330);
        QTest::newRow("Bar") << "Bar" << QRect(120, 150, 4500, 330);
        QTest::newRow("Label1") << "Label1" << QRect(150, 540, 0, 0);
        QTest::newRow("CancelKnop") << "CancelKnop" << QRect(2700, 600, 960, 330);
        QTest::newRow("SaveKnop") << "SaveKnop" << QRect(3720, 600, 840, 330);
    }
    void controlsAndTheirPlaces()
    {
        QFETCH(QString, naam);
        QFETCH(QRect, vlak);
        Bord bord;
        SaveForm form;
        QVERIFY(StaatOp(form, naam, vlak));
    }

    void asItOpens()
    {
        Bord bord;
        SaveForm leeg;
        QCOMPARE(leeg.windowTitle(), QStringLiteral("Puzzel opslaan"));
        QCOMPARE(leeg.size(), QSize((4800 - 90) / 15, (1560 - 450) / 15));
        QCOMPARE(leeg.palette().color(QPalette::Window), QColor(170, 240, 240));
        QVERIFY(leeg.Text1->text().isEmpty()); // the placeholder is no name
        QVERIFY(leeg.Bar->isHidden());
        QCOMPARE(leeg.Label1->Caption(), QStringLiteral("0%"));
        QCOMPARE(leeg.Text1->palette().color(QPalette::Base), QColor(40, 0, 0));
        QCOMPARE(leeg.Text1->palette().color(QPalette::Text), QColor(220, 220, 220));
        bord.Venster.Bestandsnaam->setText(QStringLiteral("vakantie"));
        SaveForm form;
        QCOMPARE(form.Text1->text(), QStringLiteral("vakantie"));
    }

    void theFourFiles()
    {
        Bord bord;
        Vul(bord);
        PuzzelNaam = QStringLiteral("oud");
        Bewaar(QStringLiteral("vakantie PUZZEL"));
        QCOMPARE(bord.Bank.Bestanden(QStringLiteral("Puzzels")),
                 (QStringList{QStringLiteral("Vakantie puzzel.lst"), QStringLiteral("vakantie PUZZEL1.bmp"),
                              QStringLiteral("vakantie PUZZEL2.bmp")}));
        QCOMPARE(Fotos(bord), QStringList{QStringLiteral("Vakantie puzzel.jpg")});
        QVERIFY(bord.Bank.Bestanden(QString()).isEmpty()); // the bitmap in between is gone
        const QString puzzels = bord.Bank.Map() + QStringLiteral("/Puzzels/");
        QVERIFY(Files::LoadPicture(puzzels + QStringLiteral("vakantie PUZZEL1.bmp")) == bord.Pic());
        QVERIFY(Files::LoadPicture(puzzels + QStringLiteral("vakantie PUZZEL2.bmp")) == bord.Groot());
        const QImage jpeg(bord.Bank.Thuis() + QStringLiteral("/Pictures/Vakantie puzzel.jpg"));
        QCOMPARE(jpeg.size(), bord.Groot().size());
        QVERIFY(qAbs(qGray(jpeg.pixel(2 * 120 + 60, 2 * 120 + 60)) - 60) <= 2);
        QCOMPARE(bord.Bank.Inhoud(QStringLiteral("Puzzels/Vakantie puzzel.lst")),
                 QByteArray("Tessel Hoeksma Software \xAE 2018\r\n1\r\n9\r\n10\r\n----------------------------\r\n"
                            "A-01 / 1-H\r\ndier\r\naap\r\n-\r\n----------------------------\r\n"));
        QVERIFY(!PuzzelGewijzigd);
        QCOMPARE(PuzzelNaam, QStringLiteral("oud"));
        QCOMPARE(bord.Venster.Bestandsnaam->text(), QStringLiteral("Puzzelnaam"));
        QCOMPARE(GebruikersNaam, HaalGebruiker());
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }

    void anEmptyNameIsRefused_data()
    {
        QTest::addColumn<QString>("naam");
        QTest::newRow("empty") << "";
        QTest::newRow("blanks") << "    ";
    }
    void anEmptyNameIsRefused()
    {
        QFETCH(QString, naam);
        Bord bord;
        PuzzelGewijzigd = true;
        SaveForm form;
        form.Text1->setText(naam);
        form.SaveKnop->setFocus();
        form.SaveKnop_Click();
        QCOMPARE(form.focusWidget(), form.Text1);
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1);
        QCOMPARE(bord.Bank.Script.Gezien[0].Tekst, QStringLiteral("Naam Puzzel ontbreekt!"));
        QCOMPARE(bord.Bank.Script.Gezien[0].Titel, QStringLiteral("Error"));
        QCOMPARE(bord.Bank.Script.Gezien[0].Plaatje, Icoon::Kritiek);
        QVERIFY(!form.Unloaded());
        QVERIFY(PuzzelGewijzigd);
        QVERIFY(bord.Bank.Bestanden(QStringLiteral("Puzzels")).isEmpty());
    }

    void outerBlanksBelongToTheName()
    {
        Bord bord;
        Bewaar(QStringLiteral(" Reis "));
        QCOMPARE(
            bord.Bank.Bestanden(QStringLiteral("Puzzels")),
            (QStringList{QStringLiteral(" Reis 1.bmp"), QStringLiteral(" Reis 2.bmp"), QStringLiteral(" reis .lst")}));
        QCOMPARE(Fotos(bord), QStringList{QStringLiteral(" reis .jpg")});
    }

    void refusingToOverwriteCountsAsSaved()
    {
        Bord bord;
        Vul(bord);
        bord.Bank.Schrijf(QStringLiteral("Puzzels/Vakantie.lst"), "oud");
        bord.Bank.Script.Antwoorden = {Antwoord::Nee};
        Bewaar(QStringLiteral("vakantie")); // the look-up ignores case
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1);
        QCOMPARE(bord.Bank.Script.Gezien[0].Tekst, QStringLiteral("Naam puzzel bestaat al, overschrijven?"));
        QCOMPARE(bord.Bank.Script.Gezien[0].Titel, QStringLiteral(" Exist"));
        QCOMPARE(bord.Bank.Script.Gezien[0].Soort, Knoppen::JaNee);
        QCOMPARE(bord.Bank.Bestanden(QStringLiteral("Puzzels")), QStringList{QStringLiteral("Vakantie.lst")});
        QCOMPARE(bord.Bank.Inhoud(QStringLiteral("Puzzels/Vakantie.lst")), QByteArray("oud"));
        QVERIFY(!PuzzelGewijzigd);
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void overwritingMeetsTheSameFilesAndLeavesNoTail()
    {
        Bord bord;
        Vul(bord);
        bord.Bank.Schrijf(QStringLiteral("Puzzels/VAKANTIE.LST"), QByteArray(10000, 'x'));
        bord.Bank.Schrijf(QStringLiteral("Puzzels/Vakantie1.BMP"), "oud");
        bord.Bank.Schrijf(QStringLiteral("Puzzels/vakantie2.bmp"), QByteArray(9000000, 'x'));
        bord.Bank.Script.Antwoorden = {Antwoord::Ja};
        Bewaar(QStringLiteral("vaKANtie"));
        QCOMPARE(bord.Bank.Bestanden(QStringLiteral("Puzzels")),
                 (QStringList{QStringLiteral("Vakantie.lst"), QStringLiteral("Vakantie1.BMP"),
                              QStringLiteral("vakantie2.bmp")}));
        QCOMPARE(bord.Bank.Inhoud(QStringLiteral("Puzzels/Vakantie.lst")).count("\r\n"), 10);
        QVERIFY(Files::LoadPicture(bord.Bank.Map() + QStringLiteral("/Puzzels/Vakantie1.BMP")) == bord.Pic());
        QVERIFY(bord.Bank.Inhoud(QStringLiteral("Puzzels/vakantie2.bmp")).size() < 9000000);
    }

    void theProgressShow()
    {
        Bord bord;
        VoortgangKlok klok;
        Klok::Gebruik(&klok);
        SaveForm form;
        klok.Form = &form;
        form.Text1->setText(QStringLiteral("reis"));
        form.SaveKnop_Click();
        QCOMPARE(klok.Percentages.size(), 152);
        QCOMPARE(klok.Percentages.first(7).join(u' '), QStringLiteral("0% 1% 1% 2% 3% 3% 4%"));
        for (int i = 0; i <= 150; ++i) {
            QCOMPARE(klok.Percentages[i], QStringLiteral("%1%").arg(static_cast<int>(std::nearbyint(2 * i / 3.0))));
            QCOMPARE(klok.Breedtes[i], std::min(2 * i + 1, 300)); // the bar is 300 wide
            QVERIFY(qAbs(klok.Wachttijden[i] - 0.02) < 1e-6);
            QVERIFY(klok.Zandlopers[i]);
            QCOMPARE(klok.Welke[i], QEventLoop::ExcludeUserInputEvents); // clicks and keys wait for its end
        }
        QCOMPARE(klok.Percentages.last(), QStringLiteral("100%"));
        QVERIFY(qAbs(klok.Wachttijden.last() - 1) < 1e-6);
        QVERIFY(!klok.Zandlopers.last());
        QCOMPARE(klok.Welke.last(), QEventLoop::ExcludeUserInputEvents);
        QCOMPARE(form.Bar->GetPixel(10, 20), qRgb(0, 240, 0));
        QVERIFY(form.Bar->GetPixel(10, 21) != qRgb(0, 240, 0));
    }

    void aMissingDummyBitmapIsSaid()
    {
        Bord bord;
        QDir().mkpath(bord.Bank.Map() + QStringLiteral("/mydummy.bmp/bezet")); // a folder stands in its way
        PuzzelGewijzigd = true;
        Bewaar(QStringLiteral("reis"));
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1);
        QCOMPARE(bord.Bank.Script.Gezien[0].Tekst, QStringLiteral("Fout bij opslaan als JPG!"));
        QCOMPARE(bord.Bank.Bestanden(QStringLiteral("Puzzels")).size(), 3);
        QVERIFY(Fotos(bord).isEmpty());
        QVERIFY(!PuzzelGewijzigd);
        QVERIFY(qAbs(bord.Bank.TestKlok.Gewacht() - 0.2) < 1e-6); // no progress
        QVERIFY(QGuiApplication::overrideCursor());               // the hourglass stays on
    }

    void aMissingPictureFolderPassesInSilence()
    {
        Bord bord;
        QDir(bord.Bank.Thuis() + QStringLiteral("/Pictures")).removeRecursively();
        Bewaar(QStringLiteral("reis"));
        QCOMPARE(bord.Bank.Bestanden(QStringLiteral("Puzzels")).size(), 3);
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
        QVERIFY(bord.Bank.Bestanden(QString()).isEmpty());
    }

    void namesThatTheFileSystemRefuses_data()
    {
        QTest::addColumn<QString>("naam");
        QTest::newRow("slash") << "a/b";
        QTest::newRow("up") << "../../weg";
        QTest::newRow("backslash") << "..\\weg";
        QTest::newRow("quotes") << "\"naam\"";
        QTest::newRow("colon") << "c:weg";
        QTest::newRow("control") << QString(u'\x07') + u'a';
        QTest::newRow("star") << "a*";
        QTest::newRow("too long") << QString(400, u'x');
        QTest::newRow("zero") << QString(QChar(0)) + u'a';
    }
    void namesThatTheFileSystemRefuses()
    {
        QFETCH(QString, naam);
        Bord bord;
        Vul(bord);
        const QImage pic = bord.Pic();
        Bewaar(naam);
        QVERIFY(bord.Bank.Bestanden(QStringLiteral("Puzzels")).isEmpty());
        QVERIFY(bord.Bank.Bestanden(QString()).isEmpty());
        QVERIFY(bord.Bank.Bestanden(QStringLiteral("..")).isEmpty());
        QVERIFY(Fotos(bord).isEmpty());
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
        QVERIFY(!PuzzelGewijzigd); // the puzzle counts as saved
        QVERIFY(bord.Pic() == pic);
        QCOMPARE(bord.Venster.ListView1->topLevelItemCount(), 1);
    }

    void theLongestNameThatFits()
    {
        Bord bord;
        Bewaar(QString(250, u'x'));
        QCOMPARE(bord.Bank.Bestanden(QStringLiteral("Puzzels")).size(), 3);
    }

    void theSavedNameMeetsItsBitmaps()
    {
        Bord bord;
        Bewaar(QStringLiteral("ßTEST"));
        QCOMPARE(
            bord.Bank.Bestanden(QStringLiteral("Puzzels")),
            (QStringList{QStringLiteral("ßTEST1.bmp"), QStringLiteral("ßTEST2.bmp"), QStringLiteral("ßtest.lst")}));
        QVERIFY(
            Files::FileExists(Files::Pad(bord.Bank.Map(), {QStringLiteral("Puzzels"), QStringLiteral("ßtest1.bmp")})));
    }

    void twoDotsAreANameLikeAnother()
    {
        Bord bord;
        Bewaar(QStringLiteral(".."));
        QCOMPARE(bord.Bank.Bestanden(QStringLiteral("Puzzels")),
                 (QStringList{QStringLiteral("...lst"), QStringLiteral("..1.bmp"), QStringLiteral("..2.bmp")}));
    }

    void aMissingFolderPassesInSilence()
    {
        Bord bord;
        Vul(bord);
        QDir(bord.Bank.Map() + QStringLiteral("/Puzzels")).removeRecursively();
        Bewaar(QStringLiteral("reis"));
        QVERIFY(!QDir(bord.Bank.Map() + QStringLiteral("/Puzzels")).exists());
        QCOMPARE(Fotos(bord), QStringList{QStringLiteral("Reis.jpg")}); // the remaining steps run
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
        QVERIFY(!PuzzelGewijzigd);
        QCOMPARE(bord.Venster.ListView1->topLevelItemCount(), 1);
    }

    void aReadOnlyFolderPassesInSilence()
    {
        Bord bord;
        Vul(bord);
        const QString puzzels = bord.Bank.Map() + QStringLiteral("/Puzzels");
        QFile::setPermissions(puzzels, QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
        // The superuser writes everywhere: as such the test goes on as somebody else.
        const bool isRoot = geteuid() == 0;
        if (isRoot) {
            QFile::setPermissions(bord.Bank.Map() + QStringLiteral("/.."), QFile::ReadOwner | QFile::WriteOwner |
                                                                               QFile::ExeOwner | QFile::ReadOther |
                                                                               QFile::ExeOther);
            QCOMPARE(seteuid(65534), 0);
        }
        Bewaar(QStringLiteral("reis"));
        if (isRoot)
            QCOMPARE(seteuid(0), 0);
        QFile::setPermissions(puzzels, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QVERIFY(bord.Bank.Bestanden(QStringLiteral("Puzzels")).isEmpty());
        QVERIFY(!PuzzelGewijzigd);
        QCOMPARE(bord.Venster.ListView1->topLevelItemCount(), 1);
    }

    void aFullDiskKeepsTheOlderFiles()
    {
        Bord bord;
        Vul(bord);
        const QByteArray oud(2000, 'o');
        for (const char *naam : {"Puzzels/Reis.lst", "Puzzels/Reis1.bmp", "Puzzels/Reis2.bmp"})
            bord.Bank.Schrijf(QLatin1String(naam), oud);
        // No file may grow beyond 100 bytes, as on a disk without room.
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit vrij{};
        getrlimit(RLIMIT_FSIZE, &vrij);
        rlimit vol{100, vrij.rlim_max};
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &vol), 0);
        bord.Bank.Script.Antwoorden = {Antwoord::Ja};
        Bewaar(QStringLiteral("Reis"));
        setrlimit(RLIMIT_FSIZE, &vrij);
        for (const char *naam : {"Puzzels/Reis.lst", "Puzzels/Reis1.bmp", "Puzzels/Reis2.bmp"})
            QCOMPARE(bord.Bank.Inhoud(QLatin1String(naam)), oud);
        QCOMPARE(bord.Bank.Bestanden(QStringLiteral("Puzzels")).size(), 3); // nothing half-written beside them
        QVERIFY(Fotos(bord).isEmpty());
        QCOMPARE(bord.Bank.Script.Gezien.size(), 2); // the question, and that no bitmap was there for the JPEG
        QCOMPARE(bord.Bank.Script.Gezien[1].Tekst, QStringLiteral("Fout bij opslaan als JPG!"));
        QVERIFY(!PuzzelGewijzigd);
        QCOMPARE(bord.Venster.ListView1->topLevelItemCount(), 1);
    }

    void cancelOnlyCloses()
    {
        Bord bord;
        PuzzelGewijzigd = true;
        SaveForm form;
        form.Text1->setText(QStringLiteral("reis"));
        form.CancelKnop_Click();
        QVERIFY(form.Unloaded());
        QVERIFY(PuzzelGewijzigd);
        QVERIFY(bord.Bank.Bestanden(QStringLiteral("Puzzels")).isEmpty());
    }
};

RASTER_TEST(tst_SaveForm)
#include "tst_SaveForm.moc"
