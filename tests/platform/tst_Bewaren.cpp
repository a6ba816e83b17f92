#include "platform/Bewaren.h"
#include "support/HaperendeSchijf.h"
#include "support/Testbank.h"

#include <QCryptographicHash>
#include <QDir>
#include <QThread>

#include <optional>

using namespace Qt::StringLiterals;

static const QString Nota = u".rasteratelier-0123456789abcdef"_s;

class tst_Bewaren : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { bank_.reset(); }

    void aSetIsPutInPlace();
    void nothingIsInPlaceBeforeThat();
    void whatIsNotPutInPlaceIsRemoved();
    void theCallsOfASet();
    void theCallsOfOneFile();
    void theCallsOfAFileForAMoment();
    void anotherSpellingIsTakenOver();
    void rightsAreKept();
    void aFileThatFailsLeavesTheOthers();
    void aFileThatCannotComeToItsPlaceLeavesTheOthers();
    void twoSetsAtOnce();
    void twoSetsThatArePlacedAtOnceAreEachWhole();
    void aSetGoesOnBehindItsPlacing();

    void theCallsOfFinishing();
    void aNoteThatIsTakenForALeftOneIsMadeAnew();
    void aWriterThatRunsIsLeftAlone();
    void whoeverComesNextWaitsForTheNamesToBeChanged();
    void aWriterThatDiesLeavesTheOldOrTheNew();
    void finishingMayDieOrFailAnywhere_data();
    void finishingMayDieOrFailAnywhere();
    void anyCallOfASetMayFail();
    void aDamagedNoteIsRemoved();
    void aNoteOfNamesThatNobodyHasIsRemoved_data();
    void aNoteOfNamesThatNobodyHasIsRemoved();
    void aFileWithoutItsNoteIsRemoved();
    void otherFilesStay();
    void aFolderThatIsNotThereIsFinished() { MaakAf(Pad("er niet")); }

private:
    QString Pad(const char *naam) const { return bank_->Map() + u'/' + QLatin1String(naam); }
    QStringList Namen() const { return bank_->Bestanden({}); }
    /// What stands in the three files of the set; "-" for one that is not there.
    QByteArray Inhoud() const;
    /// Writes the new set.
    void Bewaar() const;
    static QByteArray Zegel(const QByteArray &regels)
    {
        return QCryptographicHash::hash(regels, QCryptographicHash::Sha256).toHex();
    }

    std::optional<Testbank> bank_;
};

static const QByteArray Oud = "oud oud oud", Nieuw = "nieuw nieuw nieuw";

void tst_Bewaren::init()
{
    bank_.emplace();
    for (const char *naam : {"A.LST", "a1.bmp", "a2.bmp"})
        bank_->Schrijf(QLatin1String(naam), "oud");
}

QByteArray tst_Bewaren::Inhoud() const
{
    QByteArrayList delen;
    const QString lijst = QFile::exists(Pad("A.lst")) ? u"A.lst"_s : u"A.LST"_s;
    for (const QString &naam : {u"a1.bmp"_s, u"a2.bmp"_s, lijst})
        delen += QFile::exists(bank_->Map() + u'/' + naam) ? bank_->Inhoud(naam) : "-";
    return delen.join(' ');
}

void tst_Bewaren::Bewaar() const
{
    BestandenSet set;
    negeer([&] { set.Zet(Pad("a1.bmp"), {"nie", "uw"}); });
    negeer([&] { set.Zet(Pad("a2.bmp"), {"nieuw"}); });
    negeer([&] { set.Zet(Pad("A.LST"), {"nieuw"}, u"A.lst"_s); });
    negeer([&] { set.PlaatsAlles(); });
}

void tst_Bewaren::aSetIsPutInPlace()
{
    Bewaar();
    QCOMPARE(Inhoud(), Nieuw);
    QCOMPARE(Namen(), (QStringList{"A.lst", "a1.bmp", "a2.bmp"}));
}

void tst_Bewaren::nothingIsInPlaceBeforeThat()
{
    BestandenSet set;
    set.Zet(Pad("a1.bmp"), {"nieuw"});
    set.Zet(Pad("nog een"), {"nieuw"});
    QCOMPARE(Inhoud(), Oud);
    QVERIFY(!QFile::exists(Pad("nog een")));
    set.PlaatsAlles();
    QCOMPARE(Inhoud(), QByteArray("nieuw oud oud"));
    QCOMPARE(bank_->Inhoud(u"nog een"_s), QByteArray("nieuw"));
}

void tst_Bewaren::whatIsNotPutInPlaceIsRemoved()
{
    {
        BestandenSet set;
        set.Zet(Pad("a1.bmp"), {"nieuw"});
        set.Zet(Pad("a2.bmp"), {"nieuw"});
        QCOMPARE(Namen().size(), 6);
    }
    QCOMPARE(Inhoud(), Oud);
    QCOMPARE(Namen().size(), 3);
    BestandenSet leeg;
    leeg.PlaatsAlles();
    QCOMPARE(Namen().size(), 3);
}

// Whatever is put in place has been brought to the disk before, and the note before the first name is changed.
void tst_Bewaren::theCallsOfASet()
{
    HaperendeSchijf schijf;
    Bewaar();
    const QString n = u".rasteratelier-*"_s, map = QFileInfo(bank_->Map()).fileName();
    QCOMPARE(schijf.Logboek.join(u'\n'), (QStringList{u"Open "_s + n,
                                                      u"Grijp "_s + n, //
                                                      u"Open "_s + n + u"-1"_s,
                                                      u"Schrijf "_s + n + u"-1"_s,
                                                      u"Schrijf "_s + n + u"-1"_s, //
                                                      u"Spoel "_s + n + u"-1"_s,   //
                                                      u"Open "_s + n + u"-2"_s,
                                                      u"Schrijf "_s + n + u"-2"_s,
                                                      u"Spoel "_s + n + u"-2"_s, //
                                                      u"Open "_s + n + u"-3"_s,
                                                      u"Schrijf "_s + n + u"-3"_s,
                                                      u"Spoel "_s + n + u"-3"_s, //
                                                      u"Schrijf "_s + n,
                                                      u"Spoel "_s + n,
                                                      u"SpoelMap "_s + map, //
                                                      u"Verplaats "_s + n + u"-1 > a1.bmp"_s,
                                                      u"Verplaats "_s + n + u"-2 > a2.bmp"_s, //
                                                      u"Verplaats "_s + n + u"-3 > A.LST"_s,
                                                      u"Verplaats A.LST > A.lst"_s, //
                                                      u"SpoelMap "_s + map,
                                                      u"Verwijder "_s + n})
                                             .join(u'\n'));
}

void tst_Bewaren::theCallsOfOneFile()
{
    HaperendeSchijf schijf;
    BestandenSet set;
    set.Zet(Pad("a1.bmp"), {"nieuw"});
    set.PlaatsAlles();
    const QString n = u".rasteratelier-*"_s, map = QFileInfo(bank_->Map()).fileName();
    QCOMPARE(schijf.Logboek.join(u'\n'),
             (QStringList{u"Open "_s + n, u"Grijp "_s + n, u"Open "_s + n + u"-1"_s, u"Schrijf "_s + n + u"-1"_s,
                          u"Spoel "_s + n + u"-1"_s, u"Verplaats "_s + n + u"-1 > a1.bmp"_s, u"SpoelMap "_s + map,
                          u"Verwijder "_s + n})
                 .join(u'\n'));
}

void tst_Bewaren::theCallsOfAFileForAMoment()
{
    HaperendeSchijf schijf;
    BestandenSet set(BestandenSet::Duur::Vluchtig);
    set.Zet(Pad("a1.bmp"), {"nieuw"});
    set.PlaatsAlles();
    const QString n = u".rasteratelier-*"_s;
    QCOMPARE(schijf.Logboek.join(u'\n'),
             (QStringList{u"Open "_s + n, u"Grijp "_s + n, u"Open "_s + n + u"-1"_s, u"Schrijf "_s + n + u"-1"_s,
                          u"Verplaats "_s + n + u"-1 > a1.bmp"_s, u"Verwijder "_s + n})
                 .join(u'\n'));
    QCOMPARE(Inhoud(), QByteArray("nieuw oud oud"));
}

void tst_Bewaren::anotherSpellingIsTakenOver()
{
    BestandenSet set;
    set.Zet(Pad("A.LST"), {"nieuw"}, u"a.lst"_s);
    set.PlaatsAlles();
    QCOMPARE(Namen(), (QStringList{"a.lst", "a1.bmp", "a2.bmp"}));
    QCOMPARE(bank_->Inhoud(u"a.lst"_s), QByteArray("nieuw"));
}

void tst_Bewaren::rightsAreKept()
{
    constexpr QFile::Permissions Lezen = QFile::ReadOwner, Eigen = Lezen | QFile::WriteOwner;
    for (const QFile::Permissions rechten : {Eigen, Eigen | QFile::ReadGroup | QFile::WriteGroup, Lezen,
                                             Lezen | QFile::ReadOther, Eigen | QFile::ExeOwner | QFile::ExeOther}) {
        QVERIFY(QFile::setPermissions(Pad("a1.bmp"), rechten));
        const QFile::Permissions gezien = QFile::permissions(Pad("a1.bmp"));
        Bewaar();
        QCOMPARE(QFile::permissions(Pad("a1.bmp")), gezien);
        QCOMPARE(bank_->Inhoud(u"a1.bmp"_s), QByteArray("nieuw"));
    }
}

void tst_Bewaren::aFileThatFailsLeavesTheOthers()
{
    BestandenSet set;
    set.Zet(Pad("a1.bmp"), {"nieuw"});
    {
        const HaperendeSchijf schijf(2); // its writing
        QCOMPARE(FoutVan([&] { set.Zet(Pad("a2.bmp"), {"nieuw"}); }), int{Fout::SchijfFout});
    }
    {
        const HaperendeSchijf schijf(3); // its way to the disk
        QCOMPARE(FoutVan([&] { set.Zet(Pad("a2.bmp"), {"nieuw"}); }), int{Fout::SchijfFout});
    }
    {
        const HaperendeSchijf schijf(1);
        QCOMPARE(FoutVan([&] { set.Zet(Pad("a2.bmp"), {"nieuw"}); }), int{Fout::GeenToegang});
    }
    set.Zet(Pad("A.LST"), {"nieuw"});
    set.PlaatsAlles();
    QCOMPARE(Inhoud(), QByteArray("nieuw oud nieuw"));
    QCOMPARE(Namen().size(), 3);
}

void tst_Bewaren::aFileThatCannotComeToItsPlaceLeavesTheOthers()
{
    BestandenSet set;
    set.Zet(Pad("a1.bmp"), {"nieuw"});
    set.Zet(Pad("Puzzels"), {"nieuw"}); // a folder
    set.Zet(Pad("a2.bmp"), {"nieuw"});
    QCOMPARE(FoutVan([&] { set.PlaatsAlles(); }), int{Fout::SchijfFout});
    QCOMPARE(Inhoud(), QByteArray("nieuw nieuw oud"));
    QCOMPARE(Namen().size(), 3);
    QCOMPARE(FoutVan([&] { set.Zet(Pad("er niet/a"), {"nieuw"}); }), int{Fout::GeenToegang});
}

void tst_Bewaren::twoSetsAtOnce()
{
    BestandenSet een, twee;
    een.Zet(Pad("a1.bmp"), {"een"});
    twee.Zet(Pad("a1.bmp"), {"twee"});
    twee.Zet(Pad("a2.bmp"), {"twee"});
    een.Zet(Pad("a2.bmp"), {"een"});
    een.PlaatsAlles();
    QCOMPARE(Inhoud(), QByteArray("een een oud"));
    twee.PlaatsAlles();
    QCOMPARE(Inhoud(), QByteArray("twee twee oud"));
    QCOMPARE(Namen().size(), 3);
}

/// A disk that dawdles when the first name has been changed, while another process does something.
class TrageSchijf : public Schijf
{
public:
    explicit TrageSchijf(std::function<void()> ander) : ander_(std::move(ander)) { Gebruik(this); }
    ~TrageSchijf() override { Gebruik(nullptr); }
    Q_DISABLE_COPY_MOVE(TrageSchijf)

    bool Verplaats(const QString &van, const QString &naar) override
    {
        const bool gelukt = Schijf::Verplaats(van, naar);
        if (kind_ < 0) {
            kind_ = fork();
            if (kind_ == 0) {
                Gebruik(nullptr);
                ander_();
                _exit(0);
            }
            QThread::msleep(300);
        }
        return gelukt;
    }
    void WachtOpAnder() const { waitpid(kind_, nullptr, 0); }

private:
    std::function<void()> ander_;
    pid_t kind_ = -1;
};

void tst_Bewaren::twoSetsThatArePlacedAtOnceAreEachWhole()
{
    const TrageSchijf schijf([&] {
        BestandenSet set;
        set.Zet(Pad("a1.bmp"), {"ander"});
        set.Zet(Pad("a2.bmp"), {"ander"});
        set.Zet(Pad("A.LST"), {"ander"}, u"A.lst"_s);
        set.PlaatsAlles();
    });
    Bewaar();
    schijf.WachtOpAnder();
    QCOMPARE(Inhoud(), QByteArray("ander ander ander"));
    QCOMPARE(Namen(), (QStringList{"A.lst", "a1.bmp", "a2.bmp"}));
}

void tst_Bewaren::whoeverComesNextWaitsForTheNamesToBeChanged()
{
    const TrageSchijf schijf([&] {
        MaakAf(bank_->Map());
        bank_->Schrijf(u"gezien"_s, Inhoud());
    });
    Bewaar();
    schijf.WachtOpAnder();
    QCOMPARE(bank_->Inhoud(u"gezien"_s), Nieuw);
}

void tst_Bewaren::aSetGoesOnBehindItsPlacing()
{
    BestandenSet set;
    set.Zet(Pad("a1.bmp"), {"een"});
    set.PlaatsAlles();
    set.Zet(Pad("a2.bmp"), {"twee"});
    set.PlaatsAlles();
    QCOMPARE(Inhoud(), QByteArray("een twee oud"));
    QCOMPARE(Namen().size(), 3);
}

// --- finishing ---

void tst_Bewaren::theCallsOfFinishing()
{
    QVERIFY(SterftBij(17, [&] { Bewaar(); })); // the first name has been changed
    HaperendeSchijf schijf;
    MaakAf(bank_->Map());
    const QString n = u".rasteratelier-*"_s, map = QFileInfo(bank_->Map()).fileName();
    QCOMPARE(schijf.Logboek.join(u'\n'),
             (QStringList{u"Open "_s + n, u"Grijp "_s + n, u"Lees "_s + n, u"Verplaats "_s + n + u"-2 > a2.bmp"_s,
                          u"Verplaats "_s + n + u"-3 > A.LST"_s, u"Verplaats A.LST > A.lst"_s, u"SpoelMap "_s + map,
                          u"Verwijder "_s + n, u"Verwijder "_s + n + u"-2"_s, u"Verwijder "_s + n + u"-3"_s})
                 .join(u'\n')); // the last two are gone already
}

/// A disk on which somebody finishes a folder just when a note has been made there and isn't held yet.
class DrukkeSchijf : public Schijf
{
public:
    DrukkeSchijf() { Gebruik(this); }
    ~DrukkeSchijf() override { Gebruik(nullptr); }
    Q_DISABLE_COPY_MOVE(DrukkeSchijf)

    Greep Grijp(QFile &bestand) override
    {
        if (++Gegrepen == 1)
            MaakAf(QFileInfo(bestand).path());
        return Schijf::Grijp(bestand);
    }
    int Gegrepen = 0;
};

void tst_Bewaren::aNoteThatIsTakenForALeftOneIsMadeAnew()
{
    const DrukkeSchijf schijf;
    BestandenSet set;
    set.Zet(Pad("a1.bmp"), {"nieuw"});
    QCOMPARE(schijf.Gegrepen, 3); // ours, the other's, ours again
    QCOMPARE(Namen().size(), 5);
    MaakAf(bank_->Map());
    QCOMPARE(Namen().size(), 5);
    set.PlaatsAlles();
    QCOMPARE(Inhoud(), QByteArray("nieuw oud oud"));
    QCOMPARE(Namen().size(), 3);
}

void tst_Bewaren::aWriterThatRunsIsLeftAlone()
{
    BestandenSet set;
    set.Zet(Pad("a1.bmp"), {"nieuw"});
    set.Zet(Pad("a2.bmp"), {"nieuw"});
    MaakAf(bank_->Map());
    QVERIFY(!SterftBij(0, [&] { MaakAf(bank_->Map()); })); // nor does another process touch it
    QCOMPARE(Namen().size(), 6);
    set.PlaatsAlles();
    QCOMPARE(Inhoud(), QByteArray("nieuw nieuw oud"));
}

void tst_Bewaren::aWriterThatDiesLeavesTheOldOrTheNew()
{
    int aanroep = 1;
    QByteArrayList gezien;
    while (SterftBij(aanroep, [&] { Bewaar(); })) {
        MaakAf(bank_->Map());
        gezien += Inhoud();
        QVERIFY2(gezien.last() == Oud || gezien.last() == Nieuw, gezien.last());
        QCOMPARE(Namen().size(), 3);
        init();
        ++aanroep;
    }
    QCOMPARE(aanroep, 22); // of the calls of a set there are 21
    QCOMPARE(gezien.count(Oud), 13);
    QCOMPARE(gezien.lastIndexOf(Oud), 12); // up to the note the old ones, from there on the new ones
}

void tst_Bewaren::finishingMayDieOrFailAnywhere_data()
{
    QTest::addColumn<bool>("sterft");
    Geval("dies", true);
    Geval("fails", false);
}

void tst_Bewaren::finishingMayDieOrFailAnywhere()
{
    QFETCH(bool, sterft);
    // Killed amid its writing; with half a note; with a whole one; amid its names; between the spellings; before the
    // end.
    for (const int aanroep : {8, 13, 14, 18, 20, 21}) {
        bool bezig = true;
        for (int tweede = 1; bezig; ++tweede) {
            init();
            QVERIFY(SterftBij(aanroep, [&] { Bewaar(); }));
            if (sterft) {
                bezig = SterftBij(tweede, [&] { MaakAf(bank_->Map()); });
            } else {
                const HaperendeSchijf schijf(tweede);
                MaakAf(bank_->Map());
                bezig = schijf.Logboek.size() >= tweede;
            }
            MaakAf(bank_->Map());
            QVERIFY2(Inhoud() == (aanroep <= 13 ? Oud : Nieuw),
                     qPrintable(u"%1, %2: %3"_s.arg(aanroep).arg(tweede).arg(QLatin1String(Inhoud()))));
            QCOMPARE(Namen().size(), 3);
        }
    }
}

void tst_Bewaren::anyCallOfASetMayFail()
{
    for (int aanroep = 1; aanroep <= 21; ++aanroep) {
        init();
        {
            const HaperendeSchijf schijf(aanroep);
            Bewaar();
        }
        for (const QByteArray &deel : Inhoud().split(' '))
            QVERIFY2(deel == "oud" || deel == "nieuw", qPrintable(QString::number(aanroep)));
        QVERIFY2(Inhoud().count("nieuw") >= 2, qPrintable(QString::number(aanroep))); // one call spoils one file
        MaakAf(bank_->Map());
        QCOMPARE(Namen().size(), 3);
    }
}

void tst_Bewaren::aDamagedNoteIsRemoved()
{
    const QByteArray regels = "1/a1.bmp/a1.bmp\n2/a2.bmp/a2.bmp\n", heel = regels + Zegel(regels);
    const auto probeer = [&](const QByteArray &inhoud) {
        init();
        bank_->Schrijf(Nota, inhoud);
        bank_->Schrijf(Nota + u"-1"_s, "nieuw");
        bank_->Schrijf(Nota + u"-2"_s, "nieuw");
        MaakAf(bank_->Map());
        QCOMPARE(Namen().size(), 3);
    };
    probeer(heel);
    QCOMPARE(Inhoud(), QByteArray("nieuw nieuw oud"));
    for (qsizetype lengte = 0; lengte < heel.size(); ++lengte) {
        probeer(heel.first(lengte));
        QCOMPARE(Inhoud(), Oud);
        probeer(QByteArray(heel).replace(lengte, 1, "x"));
        QCOMPARE(Inhoud(), Oud);
    }
    probeer(heel + '\n');
    QCOMPARE(Inhoud(), Oud);
    probeer(QByteArray(1000000, '\0'));
    QCOMPARE(Inhoud(), Oud);
}

void tst_Bewaren::aNoteOfNamesThatNobodyHasIsRemoved_data()
{
    QTest::addColumn<QByteArray>("regels");
    Geval("outside the folder", QByteArray("1/../a1.bmp/a1.bmp\n"));
    Geval("two dots", QByteArray("1/../..\n"));
    Geval("from the root", QByteArray("1//tmp/x\n"));
    Geval("refused signs", QByteArray("1/a1.bmp?/a1.bmp?\n"));
    Geval("another folder's separator", QByteArray("1/..\\a/..\\a\n"));
    Geval("control character", QByteArray("1/a\x07/a\x07\n"));
    Geval("no name", QByteArray("1//\n"));
    Geval("another name", QByteArray("1/a1.bmp/a2.bmp\n"));
    Geval("too few", QByteArray("1/a1.bmp\n"));
    Geval("one good, one bad", QByteArray("1/a1.bmp/a1.bmp\n1/../x\n"));
    Geval("nothing", QByteArray());
}

void tst_Bewaren::aNoteOfNamesThatNobodyHasIsRemoved()
{
    QFETCH(QByteArray, regels);
    bank_->Schrijf(Nota, regels + Zegel(regels));
    bank_->Schrijf(Nota + u"-1"_s, "nieuw");
    const QStringList buiten = bank_->Bestanden(u".."_s);
    MaakAf(bank_->Map());
    QCOMPARE(Inhoud(), Oud);
    QCOMPARE(Namen(), (QStringList{"A.LST", "a1.bmp", "a2.bmp"}));
    QCOMPARE(bank_->Bestanden(u".."_s), buiten);
}

void tst_Bewaren::aFileWithoutItsNoteIsRemoved()
{
    bank_->Schrijf(Nota + u"-1"_s, "nieuw");
    bank_->Schrijf(Nota + u"-23"_s, "nieuw");
    MaakAf(bank_->Map());
    QCOMPARE(Namen().size(), 3);
    QCOMPARE(Inhoud(), Oud);
}

void tst_Bewaren::otherFilesStay()
{
    const QStringList namen{u".rasteratelier"_s, u".rasteratelier-"_s, u".rasteratelier-0123"_s, Nota + u"-x"_s,
                            Nota + u"0-1"_s,     Nota + u"-1.bak"_s,   Nota.toUpper(),           u"x"_s + Nota};
    for (const QString &naam : namen)
        bank_->Schrijf(naam, "van een ander");
    QVERIFY(QDir(bank_->Map()).mkdir(Nota));
    bank_->Schrijf(u"doel"_s, Zegel({}));
    const QString link = u".rasteratelier-fedcba9876543210"_s;
    QVERIFY(QFile::link(Pad("doel"), bank_->Map() + u'/' + link));
    MaakAf(bank_->Map());
    for (const QString &naam : namen)
        QCOMPARE(bank_->Inhoud(naam), QByteArray("van een ander"));
    QVERIFY(QDir(bank_->Map() + u'/' + Nota).exists());
    QVERIFY(QFileInfo(bank_->Map() + u'/' + link).isSymLink());
    QVERIFY(QFile::exists(Pad("doel")));
}

RASTER_TEST(tst_Bewaren)
#include "tst_Bewaren.moc"
