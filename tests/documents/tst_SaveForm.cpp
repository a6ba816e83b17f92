#include "documents/PuzzelBestand.h"
#include "documents/SaveForm.h"
#include "platform/Files.h"
#include "platform/PictureFiles.h"
#include "platform/Screen.h"
#include "support/KijkSchijf.h"
#include "support/Onbevoegd.h"
#include "support/Venster.h"
#include "support/Verloop.h"
#include "support/Verwacht.h"

#include <QBuffer>
#include <QDir>
#include <QGuiApplication>
#include <QRegularExpression>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

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
            Zandlopers += Zandloper();
            Gewijzigd += PuzzelGewijzigd;
        }
    }
    SaveForm *Form = nullptr;
    QStringList Percentages;
    QList<int> Breedtes;
    QList<double> Wachttijden;
    QList<QEventLoop::ProcessEventsFlags> Welke;
    QList<bool> Zandlopers, Gewijzigd;
};

class tst_SaveForm : public QObject
{
    Q_OBJECT

    static void Bewaar(const QString &naam)
    {
        SaveForm form;
        form.Text1->setText(naam);
        form.SaveKnop->click();
        QVERIFY(form.Unloaded());
    }
    /// Whether a save without its JPEG left the hourglass, which is taken away now.
    static bool ZandloperBleef()
    {
        const bool bleef = Zandloper();
        Screen::MousePointer(Screen::Own);
        return bleef;
    }
    static QStringList Fotos(const Bord &bord)
    {
        return QDir(bord.Bank.Thuis() + u"/Pictures"_s).entryList(QDir::Files | QDir::Hidden);
    }
    static void Vul(Bord &bord, quint8 soort = Zweeds)
    {
        bord.Begin(soort, 9, 10);
        for (PictureBox *pic : {bord.Venster.Pic, bord.Venster.PicGroot})
            pic->BoxFull(900, 900, 1800, 1500, RGB(60, 60, 60));
        bord.Venster.VoegRijenToe({{u"A-01 / 1-H"_s, u"dier"_s, u"aap"_s, u"7"_s}});
        PuzzelGewijzigd = true;
    }

private slots:
    void controlsAndTheirPlaces()
    {
        Bord bord;
        SaveForm form;
        QCOMPARE(Misplaatst(form, {{"Text1", 120, 150, 4470, 330},
                                   {"Bar", 120, 150, 4500, 330},
                                   {"Label1", 150, 540},
                                   {"CancelKnop", 2700, 600, 960, 330},
                                   {"SaveKnop", 3720, 600, 840, 330}}),
                 QString());
    }

    void theTabKeyGoesFromTheNameOn()
    {
        Bord bord;
        SaveForm form;
        QCOMPARE(TabVolgorde(form), u"Text1 CancelKnop SaveKnop"_s);
        QCOMPARE(Leesnamen(form), (QStringList{u"Bar=Voortgang"_s, u"CancelKnop=Annuleren"_s, u"SaveKnop=Opslaan"_s,
                                               u"Text1=Naam van de puzzel"_s}));
    }

    void asItOpens()
    {
        Bord bord;
        SaveForm leeg;
        QCOMPARE(leeg.windowTitle(), u"Puzzel opslaan"_s);
        QCOMPARE(leeg.size(), QSize((4800 - 90) / 15, (1560 - 450) / 15));
        QCOMPARE(leeg.palette().color(QPalette::Window), QColor(170, 240, 240));
        QVERIFY(leeg.Text1->text().isEmpty()); // the placeholder is no name
        QVERIFY(leeg.Bar->isHidden());
        QCOMPARE(leeg.Label1->Caption(), u"0%"_s);
        QCOMPARE(leeg.Text1->palette().color(QPalette::Base), QColor(40, 0, 0));
        QCOMPARE(leeg.Text1->palette().color(QPalette::Text), QColor(220, 220, 220));
        QCOMPARE(PlaatjesOp(leeg), u"CancelKnop knop-annuleren-laag, SaveKnop knop-opslaan"_s);
        for (const QString &naam : {u"vakantie"_s, u"puzzelnaam"_s, u" Reis "_s, u"Jan & Piet"_s}) {
            PuzzelNaam = naam;
            bord.Venster.ToonNaam();
            SaveForm form;
            QCOMPARE(form.Text1->text(), naam);
        }
    }

    // A name may have been clicked in the list of puzzles without its puzzle being opened.
    void itProposesTheNameInTheMenuBar()
    {
        Bord bord;
        PuzzelNaam = u"Zee"_s;
        QCOMPARE(SaveForm().Text1->text(), QString());
        bord.Venster.ToonNaam();
        PuzzelNaam = u"Boom"_s;
        QCOMPARE(SaveForm().Text1->text(), u"Zee"_s);
    }

    void theFourFiles_data() { ElkeSoort(); }
    void theFourFiles()
    {
        QFETCH(int, soort);
        Bord bord;
        Vul(bord, static_cast<quint8>(soort));
        PuzzelNaam = u"oud"_s;
        GebruikersNaam = u"een ander"_s;
        Bewaar(u"vakantie PUZZEL"_s);
        QCOMPARE(bord.Bank.Bestanden(u"Puzzels"_s),
                 (QStringList{u"Vakantie puzzel.lst"_s, u"vakantie PUZZEL1.bmp"_s, u"vakantie PUZZEL2.bmp"_s}));
        QCOMPARE(Fotos(bord), QStringList{u"Vakantie puzzel.jpg"_s});
        QVERIFY(bord.Bank.Bestanden(QString()).isEmpty()); // the bitmap in between is gone
        const QString puzzels = bord.Bank.Map() + u"/Puzzels/"_s;
        QVERIFY(Files::LoadPicture(puzzels + u"vakantie PUZZEL1.bmp"_s) == bord.Pic());
        QVERIFY(Files::LoadPicture(puzzels + u"vakantie PUZZEL2.bmp"_s) == bord.Groot());
        QBuffer jpeg;
        bord.Groot().save(&jpeg, "jpg", 100); // the finest
        QVERIFY(Files::Lees(bord.Bank.Thuis() + u"/Pictures/Vakantie puzzel.jpg"_s) == jpeg.data());
        QCOMPARE(bord.Bank.Inhoud(u"Puzzels/Vakantie puzzel.lst"_s),
                 "Tessel Hoeksma Software \xAE 2018\r\n" + QByteArray::number(soort) +
                     "\r\n9\r\n10\r\n----------------------------\r\n"
                     "A-01 / 1-H\r\ndier\r\naap\r\n7\r\n----------------------------\r\n");
        QVERIFY(!PuzzelGewijzigd);
        QCOMPARE(PuzzelNaam, u"oud"_s);
        QCOMPARE(bord.Venster.Bestandsnaam->text(), u"Puzzelnaam"_s);
        QCOMPARE(GebruikersNaam, HaalGebruiker());
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }

    void anEmptyNameIsRefused_data()
    {
        QTest::addColumn<QString>("naam");
        Geval("empty", "");
        Geval("blanks", "    ");
    }
    void anEmptyNameIsRefused()
    {
        QFETCH(QString, naam);
        Bord bord;
        PuzzelGewijzigd = true;
        SaveForm form;
        form.Text1->setText(naam);
        form.SaveKnop->setFocus();
        Verloop verloop([&] { return form.focusWidget()->objectName(); });
        KlikMetDruk(*form.SaveKnop, [&] { QVERIFY(verloop.Stappen.isEmpty()); });
        QCOMPARE(form.focusWidget(), form.Text1);
        QCOMPARE(verloop.Stappen, QStringList{u"Error: Naam Puzzel ontbreekt! (kritiek) | SaveKnop"_s});
        QCOMPARE(verloop.Gezien[0].Soort, Knoppen::Ok);
        QVERIFY(!form.Unloaded());
        QVERIFY(PuzzelGewijzigd);
        QVERIFY(bord.Bank.Bestanden(u"Puzzels"_s).isEmpty());
        QCOMPARE(form.Text1->text(), naam); // all stays as it was
        QVERIFY(form.Bar->isHidden());
        QCOMPARE(form.Label1->Caption(), u"0%"_s);
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void outerBlanksBelongToTheName()
    {
        Bord bord;
        Bewaar(u" Reis "_s);
        QCOMPARE(bord.Bank.Bestanden(u"Puzzels"_s), (QStringList{u" Reis 1.bmp"_s, u" Reis 2.bmp"_s, u" reis .lst"_s}));
        QCOMPARE(Fotos(bord), QStringList{u" reis .jpg"_s});
    }

    void otherEmptinessIsAName()
    {
        Bord bord;
        Bewaar(u" \u00A0 "_s); // a hard space
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
        QCOMPARE(bord.Bank.Bestanden(u"Puzzels"_s).size(), 3);
    }

    // Events run during the press effect: what is typed then belongs to the name.
    void whatIsTypedDuringThePressCounts()
    {
        Bord bord;
        SaveForm form;
        bool getypt = false;
        const KijkKlok klok([&] {
            if (!std::exchange(getypt, true))
                QTest::keyClicks(form.Text1, u"reis"_s);
        });
        form.SaveKnop->click();
        QCOMPARE(bord.Bank.Bestanden(u"Puzzels"_s), (QStringList{u"Reis.lst"_s, u"reis1.bmp"_s, u"reis2.bmp"_s}));
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
    }

    void aDialogThatIsClosedDuringThePressSavesNothing()
    {
        Bord bord;
        PuzzelGewijzigd = true;
        SaveForm form;
        form.Text1->setText(u"reis"_s);
        form.show();
        const KijkKlok klok([&] { form.close(); });
        form.SaveKnop->click();
        QCOMPARE(klok.Wachttijden, QList<double>{0.2});
        QVERIFY(bord.Bank.Bestanden(u"Puzzels"_s).isEmpty());
        QVERIFY(PuzzelGewijzigd);
    }

    void theStepsOfASave()
    {
        Bord bord;
        bord.Bank.Schrijf(u"Puzzels/Reis.lst"_s, "oud");
        GebruikersNaam.clear();
        SaveForm form;
        form.Text1->setText(u"reis"_s);
        const auto balk = [&] { return form.Text1->isHidden() && !form.Bar->isHidden() ? u"balk"_s : QString(); };
        Verloop verloop([&] { return GebruikersNaam + balk(); });
        verloop.Antwoorden = {Antwoord::Ja};
        const KijkSchijf schijf([&] { QVERIFY(Zandloper() && !balk().isEmpty()); }); // as soon as anything is written
        QString naam = form.Text1->text();
        PuzzelGewijzigd = true;
        form.OpslaanPuzzel(naam);
        QCOMPARE(naam, u"Reis"_s);
        QVERIFY(PuzzelGewijzigd && !form.Unloaded()); // both are left to the button
        QCOMPARE(verloop.Stappen[0], u"Exist: Naam puzzel bestaat al, overschrijven? (ja of nee) | "_s +
                                         HaalGebruiker()); // who it is, is asked first
        QStringList gedaan;
        for (const QString &regel : schijf.Logboek.filter(QRegularExpression(u"^(Verplaats|Verwijder [^.])"_s)))
            gedaan += regel.section(u' ', -1) + (regel.startsWith("Verwijder"_L1) ? u" weg"_s : QString());
        QCOMPARE(gedaan.join(u' '), u"reis1.bmp reis2.bmp Reis.lst mydummy.bmp Reis.jpg mydummy.bmp weg"_s);
    }

    void refusingToOverwriteCountsAsSaved()
    {
        Bord bord;
        Vul(bord);
        bord.Bank.Schrijf(u"Puzzels/Vakantie.lst"_s, "oud");
        bord.Bank.Script.Antwoorden = {Antwoord::Nee};
        const Stand ervoor = bord.Nu();
        Bewaar(u"vakantie"_s); // the look-up ignores case
        QCOMPARE(bord.Veranderd(ervoor), u"PuzzelGewijzigd"_s);
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1);
        QCOMPARE(bord.Bank.Script.Gezien[0].Tekst, u"Naam puzzel bestaat al, overschrijven?"_s);
        QCOMPARE(bord.Bank.Script.Gezien[0].Titel, u" Exist"_s);
        QCOMPARE(bord.Bank.Script.Gezien[0].Soort, Knoppen::JaNee);
        QCOMPARE(bord.Bank.Bestanden(u"Puzzels"_s), QStringList{u"Vakantie.lst"_s});
        QCOMPARE(bord.Bank.Inhoud(u"Puzzels/Vakantie.lst"_s), QByteArray("oud"));
        QVERIFY(!PuzzelGewijzigd);
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    // Only the list of a puzzle tells that there is one of that name.
    void picturesAloneAreReplacedWithoutAQuestion()
    {
        Bord bord;
        Vul(bord);
        bord.Bank.Schrijf(u"Puzzels/Reis1.bmp"_s, "oud");
        bord.Bank.Schrijf(u"Puzzels/Reis2.bmp"_s, "oud");
        Files::Schrijf(bord.Bank.Thuis() + u"/Pictures/Reis.jpg"_s, "oud");
        Bewaar(u"Reis"_s);
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
        QVERIFY(Files::LoadPicture(bord.Bank.Map() + u"/Puzzels/Reis1.bmp"_s) == bord.Pic());
        QVERIFY(Files::LoadPicture(bord.Bank.Map() + u"/Puzzels/Reis2.bmp"_s) == bord.Groot());
        QCOMPARE(QImage(bord.Bank.Thuis() + u"/Pictures/Reis.jpg"_s).size(), bord.Groot().size());
    }

    void aSecondSaveReplacesAllFour()
    {
        Bord bord;
        Vul(bord);
        PuzzelNaam = u"Reis"_s; // its own name is asked about like another
        bord.Venster.ToonNaam();
        Bewaar(u"Reis"_s);
        const QString foto = bord.Bank.Thuis() + u"/Pictures/Reis.jpg"_s, puzzels = bord.Bank.Map() + u"/Puzzels/"_s;
        const QByteArray oudeFoto = Files::Lees(foto);
        for (PictureBox *pic : {bord.Venster.Pic, bord.Venster.PicGroot})
            pic->BoxFull(300, 300, 600, 3000, RGB(200, 0, 0));
        bord.Venster.WisRijen();
        bord.Bank.Schrijf(u"mydummy.bmp"_s, "of an earlier one");
        bord.Bank.Script.Antwoorden = {Antwoord::Ja};
        Bewaar(u"Reis"_s);
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1);
        QVERIFY(Files::LoadPicture(puzzels + u"Reis1.bmp"_s) == bord.Pic());
        QVERIFY(Files::LoadPicture(puzzels + u"Reis2.bmp"_s) == bord.Groot());
        QCOMPARE(bord.Bank.Inhoud(u"Puzzels/Reis.lst"_s).count("\r\n"), 5);
        QVERIFY(Files::Lees(foto) != oudeFoto);
        QCOMPARE(QImage(foto).size(), bord.Groot().size());
        QVERIFY(bord.Bank.Bestanden(QString()).isEmpty());
    }

    void theNameIsCapitalisedByTheSaveAlone()
    {
        Bord bord;
        bord.Bank.Schrijf(u"Puzzels/Vakantie.lst"_s, "oud");
        bord.Bank.Script.Antwoorden = {Antwoord::Nee, Antwoord::Ja};
        for (const char *naarWens : {"vakANTIE", "Vakantie"}) {
            QString naam = u"vakANTIE"_s;
            SaveForm().OpslaanPuzzel(naam);
            QCOMPARE(naam, QLatin1String(naarWens));
        }
    }

    void overwritingMeetsTheSameFilesAndLeavesNoTail()
    {
        Bord bord;
        Vul(bord);
        bord.Bank.Schrijf(u"Puzzels/VAKANTIE.LST"_s, QByteArray(10000, 'x'));
        bord.Bank.Schrijf(u"Puzzels/Vakantie1.BMP"_s, "oud");
        bord.Bank.Schrijf(u"Puzzels/vakantie2.bmp"_s, QByteArray(9000000, 'x'));
        bord.Bank.Script.Antwoorden = {Antwoord::Ja};
        Bewaar(u"vaKANtie"_s);
        QCOMPARE(bord.Bank.Bestanden(u"Puzzels"_s),
                 (QStringList{u"Vakantie.lst"_s, u"Vakantie1.BMP"_s, u"vakantie2.bmp"_s}));
        QCOMPARE(bord.Bank.Inhoud(u"Puzzels/Vakantie.lst"_s).count("\r\n"), 10);
        QVERIFY(Files::LoadPicture(bord.Bank.Map() + u"/Puzzels/Vakantie1.BMP"_s) == bord.Pic());
        QVERIFY(bord.Bank.Inhoud(u"Puzzels/vakantie2.bmp"_s).size() < 9000000);
    }

    void theListCanBeSavedAlone()
    {
        Bord bord;
        Vul(bord);
        SaveForm form;
        QString naam = u"vakantie PUZZEL"_s;
        PuzzelType = 77; // whatever the boards look like
        BoardWidth = 3;
        BoardHeight = 4;
        form.SaveLijstPuzzel(naam);
        QCOMPARE(naam, u"Vakantie puzzel"_s);
        QCOMPARE(bord.Bank.Bestanden(u"Puzzels"_s), QStringList{u"Vakantie puzzel.lst"_s});
        QCOMPARE(bord.Bank.Inhoud(u"Puzzels/Vakantie puzzel.lst"_s),
                 SchrijfPuzzelLijst(77, 3, 4, bord.Venster.Rijen()));
        QVERIFY(PuzzelGewijzigd && !form.Unloaded());
    }

    void theProgressShow()
    {
        Bord bord;
        VoortgangKlok klok;
        Klok::Gebruik(&klok);
        SaveForm form;
        klok.Form = &form;
        form.Text1->setText(u"reis"_s);
        PuzzelGewijzigd = true;
        form.SaveKnop_Click();
        QCOMPARE(klok.Percentages.size(), 152);
        QVERIFY(!klok.Gewijzigd.contains(false)); // it counts as saved when all of that is over
        QVERIFY(!PuzzelGewijzigd);
        QCOMPARE(klok.Percentages.first(7).join(u' '), u"0% 1% 1% 2% 3% 3% 4%"_s);
        for (int i = 0; i <= 150; ++i) {
            QCOMPARE(klok.Percentages[i], u"%1%"_s.arg(static_cast<int>(std::nearbyint(2 * i / 3.0))));
            QCOMPARE(klok.Breedtes[i], std::min(2 * i + 1, 300)); // the bar is 300 wide
            QVERIFY(qAbs(klok.Wachttijden[i] - 0.02) < 1e-6);
            QVERIFY(klok.Zandlopers[i]);
            QCOMPARE(klok.Welke[i], QEventLoop::ExcludeUserInputEvents); // clicks and keys wait for its end
        }
        QCOMPARE(klok.Percentages.last(), u"100%"_s);
        QVERIFY(qAbs(klok.Wachttijden.last() - 1) < 1e-6);
        QVERIFY(!klok.Zandlopers.last());
        QCOMPARE(klok.Welke.last(), QEventLoop::ExcludeUserInputEvents);
        QVERIFY(!form.Bar->isHidden());
        QCOMPARE(form.Bar->GetPixel(10, 0), qRgb(0, 240, 0));
        QCOMPARE(form.Bar->GetPixel(10, 20), qRgb(0, 240, 0));
        QVERIFY(form.Bar->GetPixel(10, 21) != qRgb(0, 240, 0));
    }

    void aMissingDummyBitmapIsSaid()
    {
        Bord bord;
        QDir().mkpath(bord.Bank.Map() + u"/mydummy.bmp/bezet"_s); // a folder stands in its way
        PuzzelGewijzigd = true;
        const Stand ervoor = bord.Nu();
        Bewaar(u"reis"_s);
        QCOMPARE(bord.Veranderd(ervoor), u"PuzzelGewijzigd"_s);
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1);
        QCOMPARE(bord.Bank.Script.Gezien[0].Tekst, u"Fout bij opslaan als JPG!"_s);
        QCOMPARE(bord.Bank.Script.Gezien[0].Titel, u"Rasteratelier"_s);
        QCOMPARE(bord.Bank.Script.Gezien[0].Soort, Knoppen::Ok);
        QCOMPARE(bord.Bank.Script.Gezien[0].Plaatje, Icoon::Geen);
        QCOMPARE(bord.Bank.Bestanden(u"Puzzels"_s).size(), 3);
        QVERIFY(Fotos(bord).isEmpty());
        QVERIFY(qAbs(bord.Bank.TestKlok.Gewacht() - 0.2) < 1e-6); // no progress
        QVERIFY(ZandloperBleef());
    }

    void aDummyBitmapOfAnotherSpellingIsSaid()
    {
        Bord bord;
        bord.Bank.Schrijf(u"MyDummy.bmp"_s, "van een ander");
        Bewaar(u"reis"_s);
        QCOMPARE(bord.Bank.Script.Gezien.size(), 1);
        QCOMPARE(bord.Bank.Script.Gezien[0].Tekst, u"Fout bij opslaan als JPG!"_s);
        QVERIFY(Fotos(bord).isEmpty());
        QVERIFY(ZandloperBleef());
    }

    void aMissingPictureFolderPassesInSilence()
    {
        Bord bord;
        QDir(bord.Bank.Thuis() + u"/Pictures"_s).removeRecursively();
        Bewaar(u"reis"_s);
        QCOMPARE(bord.Bank.Bestanden(u"Puzzels"_s).size(), 3);
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
        QVERIFY(bord.Bank.Bestanden(QString()).isEmpty());
        QVERIFY(!QDir(bord.Bank.Thuis() + u"/Pictures"_s).exists());
    }

    void aFileThatCannotComeToItsPlaceKeepsNoOtherFromBeingSaved()
    {
        Bord bord;
        Vul(bord);
        QVERIFY(QDir().mkpath(bord.Bank.Map() + u"/Puzzels/reis1.bmp/bezet"_s));
        Bewaar(u"reis"_s);
        QCOMPARE(bord.Bank.Bestanden(u"Puzzels"_s), (QStringList{u"Reis.lst"_s, u"reis2.bmp"_s}));
        QCOMPARE(Fotos(bord), QStringList{u"Reis.jpg"_s});
        QVERIFY(bord.Bank.TestKlok.Gewacht() > 4); // the progress
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
        QVERIFY(!PuzzelGewijzigd);
    }

    void namesThatTheFileSystemRefuses_data()
    {
        QTest::addColumn<QString>("naam");
        Geval("slash", "a/b");
        Geval("up", "../../weg");
        Geval("backslash", "..\\weg");
        Geval("quotes", "\"naam\"");
        Geval("colon", "c:weg");
        Geval("control", QString(u'\x07') + u'a');
        Geval("star", "a*");
        Geval("too long", QString(400, u'x'));
        Geval("zero", QString(QChar(0)) + u'a');
        Geval("half a pair", u"a"_s + QChar(0xD800));
    }
    void namesThatTheFileSystemRefuses()
    {
        QFETCH(QString, naam);
        Bord bord;
        Vul(bord);
        const QImage pic = bord.Pic();
        Bewaar(naam);
        QVERIFY(bord.Bank.Bestanden(u"Puzzels"_s).isEmpty());
        QVERIFY(bord.Bank.Bestanden(QString()).isEmpty());
        QVERIFY(bord.Bank.Bestanden(u".."_s).isEmpty());
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
        QCOMPARE(bord.Bank.Bestanden(u"Puzzels"_s).size(), 3);
    }

    void theSavedNameMeetsItsBitmaps()
    {
        Bord bord;
        Bewaar(u"ßTEST"_s);
        QCOMPARE(bord.Bank.Bestanden(u"Puzzels"_s), (QStringList{u"ßTEST1.bmp"_s, u"ßTEST2.bmp"_s, u"ßtest.lst"_s}));
        QVERIFY(Files::FileExists(Files::Pad(bord.Bank.Map(), {u"Puzzels"_s, u"ßtest1.bmp"_s})));
    }

    void twoDotsAreANameLikeAnother()
    {
        Bord bord;
        Bewaar(u".."_s);
        QCOMPARE(bord.Bank.Bestanden(u"Puzzels"_s), (QStringList{u"...lst"_s, u"..1.bmp"_s, u"..2.bmp"_s}));
    }

    void aMissingFolderPassesInSilence()
    {
        Bord bord;
        Vul(bord);
        QDir(bord.Bank.Map() + u"/Puzzels"_s).removeRecursively();
        Bewaar(u"reis"_s);
        QVERIFY(!QDir(bord.Bank.Map() + u"/Puzzels"_s).exists());
        QCOMPARE(Fotos(bord), QStringList{u"Reis.jpg"_s}); // the remaining steps run
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
        QVERIFY(!PuzzelGewijzigd);
        QCOMPARE(bord.Venster.ListView1->topLevelItemCount(), 1);
    }

    void aReadOnlyFolderPassesInSilence()
    {
        Bord bord;
        Vul(bord);
        {
            const Onbevoegd onbevoegd(bord.Bank, {u"Puzzels"_s});
            Bewaar(u"reis"_s);
        }
        QVERIFY(bord.Bank.Bestanden(u"Puzzels"_s).isEmpty());
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
        Bewaar(u"Reis"_s);
        setrlimit(RLIMIT_FSIZE, &vrij);
        for (const char *naam : {"Puzzels/Reis.lst", "Puzzels/Reis1.bmp", "Puzzels/Reis2.bmp"})
            QCOMPARE(bord.Bank.Inhoud(QLatin1String(naam)), oud);
        QCOMPARE(bord.Bank.Bestanden(u"Puzzels"_s).size(), 3); // nothing half-written beside them
        QVERIFY(Fotos(bord).isEmpty());
        QCOMPARE(bord.Bank.Script.Gezien.size(), 2); // the question, and that no bitmap was there for the JPEG
        QCOMPARE(bord.Bank.Script.Gezien[1].Tekst, u"Fout bij opslaan als JPG!"_s);
        QVERIFY(!PuzzelGewijzigd);
        QCOMPARE(bord.Venster.ListView1->topLevelItemCount(), 1);
        QVERIFY(ZandloperBleef());
    }

    void cancelOnlyCloses()
    {
        Bord bord;
        PuzzelGewijzigd = true;
        SaveForm form;
        form.Text1->setText(u"reis"_s);
        KlikMetDruk(*form.CancelKnop, [&] { QVERIFY(!form.Unloaded()); });
        QVERIFY(form.Unloaded());
        QVERIFY(PuzzelGewijzigd);
        QVERIFY(bord.Bank.Bestanden(u"Puzzels"_s).isEmpty());
    }
};

RASTER_TEST(tst_SaveForm)
#include "tst_SaveForm.moc"
