// What a save, an opening or a deletion leaves when a call on the disk fails, or when the program is killed there.

#include "documents/OpenFile.h"
#include "documents/PuzzelJpeg.h"
#include "documents/PuzzelMap.h"
#include "documents/SaveForm.h"
#include "platform/Files.h"
#include "platform/PictureFiles.h"
#include "support/Bord.h"
#include "support/HaperendeSchijf.h"
#include "support/InhoudVan.h"
#include "support/Onbevoegd.h"
#include "support/TrageSchijf.h"

#include <QDir>
#include <QElapsedTimer>
#include <QLockFile>

using namespace Qt::StringLiterals;

/// A board with a saved puzzle "Reis", whose files are spelled in an older way, and another puzzle of its name that
/// isn't saved yet.
struct TweePuzzels
{
    Bord Scherm;
    QImage OudPic, OudGroot, NieuwPic, NieuwGroot;
    static constexpr char OudeRij[] = "A-01 / 1-H|oud|aap|-", NieuweRij[] = "A-02 / 3-H|nieuw|beer|-";

    TweePuzzels()
    {
        Teken(2, 3, 0, u"A-01 / 1-H|oud|aap|-"_s);
        OudPic = Scherm.Pic();
        OudGroot = Scherm.Groot();
        Bewaar();
        for (const auto &[van, naar] : {std::pair("Reis.lst", "REIS.LST"), std::pair("reis1.bmp", "Reis1.BMP")})
            QVERIFY(QFile::rename(Puzzels() + QLatin1String(van), Puzzels() + QLatin1String(naar)));
        Teken(3, 2, 1, u"A-02 / 3-H|nieuw|beer|-"_s);
        NieuwPic = Scherm.Pic();
        NieuwGroot = Scherm.Groot();
    }
    void Teken(int breedte, int hoogte, int zwart, const QString &rij)
    {
        Scherm.Begin(Zweeds, breedte, hoogte);
        VakZwart.fill(false);
        Scherm.Klik(Qt::RightButton, zwart, zwart);
        Scherm.Venster.WisRijen();
        const QStringList velden = rij.split(u'|');
        Scherm.Venster.VoegRijenToe({{velden[0], velden[1], velden[2], velden[3]}});
        PuzzelGewijzigd = true;
    }
    void TekenNieuw() { Teken(3, 2, 1, QLatin1String(NieuweRij)); }
    void Bewaar()
    {
        Scherm.Bank.Script.Antwoorden = {Antwoord::Ja};
        SaveForm form;
        QString naam = u"reis"_s;
        form.OpslaanPuzzel(naam);
    }
    QString Puzzels() const { return Scherm.Bank.Map() + u"/Puzzels/"_s; }
    QString Fotos() const { return Scherm.Bank.Thuis() + u"/Pictures/"_s; }

    /// Opens "Reis" from a fresh board and says which it is: "oud", "nieuw", or what was found.
    QString Geopend()
    {
        Scherm.Begin(Zweeds, 16, 19);
        OpenFile form;
        if (form.List1->ListCount() != 1)
            return u"%1 puzzles"_s.arg(form.List1->ListCount());
        form.List1->SetListIndex(0);
        form.OkKnop_Click();
        const auto is = [&](const QImage &pic, const QImage &groot, const char *rij) {
            return Scherm.Pic() == pic && Scherm.Groot() == groot && Scherm.Rij(0) == QLatin1String(rij) &&
                   Scherm.Rij(1).isEmpty();
        };
        return is(OudPic, OudGroot, OudeRij)         ? u"oud"_s
               : is(NieuwPic, NieuwGroot, NieuweRij) ? u"nieuw"_s
                                                     : u"a torn set: "_s + Scherm.Rij(0);
    }

    /// The names of all files in the three folders that a save writes to, spelled in small letters.
    QString Bestanden() const
    {
        QStringList alle;
        for (const QString &map : {Scherm.Bank.Map(), Puzzels(), Fotos()})
            alle += QDir(map).entryList(QDir::Files | QDir::Hidden, QDir::Name | QDir::IgnoreCase);
        return alle.join(u' ').toLower();
    }
    static constexpr char Alle[] = "reis.lst reis1.bmp reis2.bmp reis.jpg";
};

/// Puts back what stood in the folders of a test bank, for the next round.
class Terug
{
public:
    explicit Terug(const TweePuzzels &puzzels)
    {
        for (const QString &map : {puzzels.Scherm.Bank.Map() + u'/', puzzels.Puzzels(), puzzels.Fotos()})
            Neem(map);
    }
    void Zet() const
    {
        for (const auto &[map, bestanden] : inhoud_) {
            for (const QString &naam : QDir(map).entryList(QDir::Files | QDir::Hidden))
                QVERIFY(QFile::remove(map + naam));
            for (const auto &[naam, inhoud] : bestanden) {
                QFile bestand(map + naam);
                QVERIFY(bestand.open(QIODevice::WriteOnly));
                QCOMPARE(bestand.write(inhoud), inhoud.size());
            }
        }
    }
    /// Whether each file is as it was or isn't there any more, and no other file is there.
    bool OudOfWeg() const
    {
        for (const auto &[map, bestanden] : inhoud_)
            for (const QString &naam : QDir(map).entryList(QDir::Files | QDir::Hidden)) {
                const auto oud = std::find_if(bestanden.begin(), bestanden.end(),
                                              [&naam](const auto &bestand) { return bestand.first == naam; });
                if (oud == bestanden.end() || InhoudVan(map + naam) != oud->second)
                    return false;
            }
        return true;
    }

private:
    void Neem(const QString &map)
    {
        inhoud_.append({map, {}});
        for (const QString &naam : QDir(map).entryList(QDir::Files | QDir::Hidden))
            inhoud_.last().second.append({naam, InhoudVan(map + naam)});
    }

    QList<std::pair<QString, QList<std::pair<QString, QByteArray>>>> inhoud_;
};

class tst_Herstel : public QObject
{
    Q_OBJECT
private slots:
    void aKilledSaveLeavesTheOldPuzzleOrTheNewOne()
    {
        TweePuzzels puzzels;
        const Terug terug(puzzels);
        QStringList gezien;
        for (int aanroep = 1;; ++aanroep) {
            terug.Zet();
            puzzels.TekenNieuw();
            if (!SterftBij(aanroep, [&] { puzzels.Bewaar(); }))
                break;
            gezien += puzzels.Geopend();
            QVERIFY2(gezien.last() == "oud"_L1 || gezien.last() == "nieuw"_L1,
                     qPrintable(u"%1: %2"_s.arg(aanroep).arg(gezien.last())));
            HerstelBestanden(); // the next start
            QCOMPARE(puzzels.Bestanden(), QLatin1String(TweePuzzels::Alle));
        }
        // Both come up, and once the new one is there it stays.
        QVERIFY(gezien.count(u"oud"_s) > 10);
        QVERIFY(gezien.count(u"nieuw"_s) > 20);
        QCOMPARE(gezien.lastIndexOf(u"oud"_s), gezien.count(u"oud"_s) - 1);
        QCOMPARE(puzzels.Geopend(), u"nieuw"_s);
        QCOMPARE(puzzels.Bestanden(), QLatin1String(TweePuzzels::Alle));
    }

    void whoeverComesNextFinishesTheSave_data()
    {
        QTest::addColumn<int>("wie");
        Geval("a start", 0);
        Geval("the list", 1);
        Geval("a save", 2);
    }
    void whoeverComesNextFinishesTheSave()
    {
        QFETCH(int, wie);
        TweePuzzels puzzels;
        constexpr int TweedeNaam = 19; // the names are being changed
        QVERIFY(SterftBij(TweedeNaam, [&] { puzzels.Bewaar(); }));
        QVERIFY(puzzels.Bestanden().startsWith(".rasteratelier-"_L1));
        if (wie == 0)
            HerstelBestanden();
        else if (wie == 1)
            OpenFile();
        else {
            puzzels.Scherm.Bank.Script.Antwoorden = {Antwoord::Nee};
            QString naam = u"Reis"_s;
            SaveForm().OpslaanPuzzel(naam);
        }
        QCOMPARE(puzzels.Bestanden(), QLatin1String(TweePuzzels::Alle));
        QCOMPARE(puzzels.Geopend(), u"nieuw"_s);
    }

    void aDialogThatStoodOpenFinishesTheSave()
    {
        TweePuzzels puzzels;
        OpenFile form;
        form.List1->SetListIndex(0);
        QVERIFY(SterftBij(19, [&] { puzzels.Bewaar(); }));
        form.OkKnop_Click();
        QVERIFY(puzzels.Scherm.Groot() == puzzels.NieuwGroot);
        QCOMPARE(puzzels.Scherm.Rij(0), QLatin1String(TweePuzzels::NieuweRij));

        puzzels.TekenNieuw();
        OpenFile wissen;
        wissen.List1->SetListIndex(0);
        QVERIFY(SterftBij(19, [&] { puzzels.Bewaar(); }));
        puzzels.Scherm.Bank.Script.Antwoorden = {Antwoord::Ja};
        wissen.DelKnop_Click();
        QCOMPARE(puzzels.Bestanden(), u"reis.jpg"_s);
    }

    void anyCallOfASaveMayFail()
    {
        TweePuzzels puzzels;
        const Terug terug(puzzels);
        bool bezig = true;
        for (int aanroep = 1; bezig; ++aanroep) {
            terug.Zet();
            puzzels.TekenNieuw();
            puzzels.Scherm.Bank.Script.Gezien.clear();
            {
                const HaperendeSchijf schijf(aanroep);
                puzzels.Bewaar();
                bezig = schijf.Logboek.size() >= aanroep;
            }
            for (const Bericht &bericht : puzzels.Scherm.Bank.Script.Gezien)
                QVERIFY2(bericht.Tekst == "Naam puzzel bestaat al, overschrijven?"_L1 ||
                             bericht.Tekst == "Fout bij opslaan als JPG!"_L1,
                         qPrintable(bericht.Tekst));
            HerstelBestanden();
            QCOMPARE(puzzels.Bestanden(), QLatin1String(TweePuzzels::Alle));
            int oud = 0;
            const auto tel = [&](bool isOud, bool isNieuw) {
                QVERIFY2(isOud || isNieuw, qPrintable(u"call %1"_s.arg(aanroep)));
                oud += isOud;
            };
            const auto beeld = [&](const QString &naam) { return Files::LoadPicture(PuzzelPad(naam)); };
            tel(beeld(u"reis1.bmp"_s) == puzzels.OudPic, beeld(u"reis1.bmp"_s) == puzzels.NieuwPic);
            tel(beeld(u"reis2.bmp"_s) == puzzels.OudGroot, beeld(u"reis2.bmp"_s) == puzzels.NieuwGroot);
            const QByteArray lijst = Files::Lees(PuzzelPad(u"reis.lst"_s));
            tel(lijst.contains("oud\r\n"), lijst.contains("nieuw\r\n"));
            QVERIFY2(oud <= 1, qPrintable(u"call %1"_s.arg(aanroep))); // one call spoils one file
        }
        QCOMPARE(puzzels.Geopend(), u"nieuw"_s);
    }

    void anyCallOfAnOpeningMayFail()
    {
        TweePuzzels puzzels;
        const Terug terug(puzzels);
        bool bezig = true;
        for (int aanroep = 1; bezig; ++aanroep) {
            terug.Zet();
            puzzels.TekenNieuw();
            QVERIFY(SterftBij(19, [&] { puzzels.Bewaar(); })); // there is something to be finished as well
            puzzels.Scherm.Bank.Script.Gezien.clear();
            {
                const HaperendeSchijf schijf(aanroep);
                puzzels.Geopend();
                bezig = schijf.Logboek.size() >= aanroep;
            }
            QVERIFY(puzzels.Scherm.Bank.Script.Gezien.isEmpty());
            HerstelBestanden();
            QCOMPARE(puzzels.Geopend(), u"nieuw"_s);
            QCOMPARE(puzzels.Bestanden(), QLatin1String(TweePuzzels::Alle));
        }
    }

    void anyCallOfADeletionMayFail_data()
    {
        QTest::addColumn<bool>("sterft");
        Geval("fails", false);
        Geval("dies", true);
    }
    void anyCallOfADeletionMayFail()
    {
        QFETCH(bool, sterft);
        TweePuzzels puzzels;
        const Terug terug(puzzels);
        bool bezig = true;
        for (int aanroep = 1; bezig; ++aanroep) {
            terug.Zet();
            puzzels.Scherm.Bank.Script.Gezien.clear();
            const auto verwijder = [&] {
                OpenFile form;
                form.List1->SetListIndex(0);
                puzzels.Scherm.Bank.Script.Antwoorden = {Antwoord::Ja};
                form.DelKnop_Click();
            };
            if (sterft) {
                bezig = SterftBij(aanroep, verwijder);
            } else {
                const HaperendeSchijf schijf(aanroep);
                verwijder();
                bezig = schijf.Logboek.size() >= aanroep;
                QCOMPARE(puzzels.Scherm.Bank.Script.Gezien.size(), 1); // the question
            }
            QVERIFY(terug.OudOfWeg());
        }
        QCOMPARE(puzzels.Bestanden(), u"reis.jpg"_s);
    }

    void twoProgramsMakeTheirOwnJpegs()
    {
        TweePuzzels puzzels;
        TrageSchijf schijf(u"/mydummy.bmp"_s, [&] {
            puzzels.Teken(2, 3, 0, QLatin1String(TweePuzzels::OudeRij));
            MaakPuzzelJpeg(u"Kind"_s);
        });
        QVERIFY(MaakPuzzelJpeg(u"Ouder"_s));
        schijf.WachtOpAnder();
        QCOMPARE(QImage(puzzels.Fotos() + u"Ouder.jpg"_s).size(), puzzels.NieuwGroot.size());
        QCOMPARE(QImage(puzzels.Fotos() + u"Kind.jpg"_s).size(), puzzels.OudGroot.size());
        QVERIFY(puzzels.Scherm.Bank.Bestanden({}).isEmpty());
    }

    // It is gone a moment later: no time is lost on bringing it to the disk.
    void theBitmapInBetweenIsNotBroughtToTheDisk()
    {
        const TweePuzzels puzzels;
        const HaperendeSchijf schijf;
        QVERIFY(MaakPuzzelJpeg(u"Reis"_s));
        const qsizetype staat = schijf.Logboek.indexOf(u"Verplaats .rasteratelier-*-1 > mydummy.bmp"_s);
        QVERIFY(staat > 0);
        QCOMPARE(schijf.Logboek.first(staat).filter(u"Spoel"_s), QStringList());
        QVERIFY(!schijf.Logboek.filter(u"Spoel"_s).isEmpty()); // the picture itself is
    }

    void aTurnThatCannotBeHadGivesNoJpeg()
    {
        TweePuzzels puzzels;
        QVERIFY(QFile::remove(puzzels.Fotos() + u"Reis.jpg"_s));
        puzzels.Scherm.Bank.Schrijf(u"mydummy.bmp"_s, "van een ander");
        {
            const Onbevoegd onbevoegd(puzzels.Scherm.Bank, {u""_s});
            QVERIFY(!MaakPuzzelJpeg(u"Reis"_s));
        }
        QCOMPARE(puzzels.Scherm.Bank.Inhoud(u"mydummy.bmp"_s), QByteArray("van een ander"));
    }

    void theStartFinishesInEveryFolder()
    {
        const TweePuzzels puzzels;
        const QString map = puzzels.Scherm.Bank.Map(), html = map + u"/Html"_s, beelden = html + u"/Images"_s;
        QVERIFY(QDir().mkpath(beelden));
        const auto rest = [](const QString &in) { return in + u"/.rasteratelier-0123456789abcdef-1"_s; };
        const QStringList mappen{map, puzzels.Puzzels(), puzzels.Fotos(), html, beelden};
        for (const QString &in : mappen)
            QVERIFY(QFile(rest(in)).open(QIODevice::WriteOnly));
        HerstelBestanden();
        for (const QString &in : mappen)
            QVERIFY2(!QFile::exists(rest(in)), qPrintable(in));
    }

    void theBitmapOfAKilledProgramIsRemoved()
    {
        TweePuzzels puzzels;
        const QString slot = puzzels.Scherm.Bank.Map() + u"/.mydummy.slot"_s;
        puzzels.Scherm.Bank.Schrijf(u"mydummy.bmp"_s, "rest");
        {
            QLockFile beurt(slot);
            QVERIFY(beurt.tryLock());
            QElapsedTimer wachttijd;
            wachttijd.start();
            HerstelBestanden(); // somebody is at it: the start doesn't wait for that
            QVERIFY(wachttijd.elapsed() < 4000);
            QCOMPARE(puzzels.Scherm.Bank.Inhoud(u"mydummy.bmp"_s), QByteArray("rest"));
        }
        HerstelBestanden();
        QVERIFY(puzzels.Scherm.Bank.Bestanden({}).isEmpty());
        QVERIFY(SterftBij(1, [&] {
            QLockFile beurt(slot);
            if (beurt.tryLock())
                Schijf::Huidig().MaakMap(slot); // here it dies
        }));
        QVERIFY(QFile::exists(slot));
        HerstelBestanden();
        QVERIFY(puzzels.Scherm.Bank.Bestanden({}).isEmpty());
    }
};

RASTER_TEST(tst_Herstel)
#include "tst_Herstel.moc"
