#include "platform/BewaarTest.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>

using namespace Qt::StringLiterals;

static const QString Nota = u".rasteratelier-0123456789abcdef"_s;

/// What a writer leaves that was killed, and how it is finished.
class tst_BewarenAfmaken : public BewaarTest
{
    Q_OBJECT

private slots:
    void init() { Begin(); }
    void cleanup() { bank_.reset(); }

    void theCallsOfFinishing();
    void aNoteThatIsTakenForALeftOneIsMadeAnew();
    void aWriterThatRunsIsLeftAlone();
    void aWriterThatMayRunIsLeftAlone();
    void aWriterThatDiesLeavesTheOldOrTheNew();
    void finishingMayDieOrFailAnywhere_data();
    void finishingMayDieOrFailAnywhere();
    void anyCallOfASetMayFail();
    void aNoteOfLongNamesIsFinished();
    void theSpellingOfOneFileIsFinished();
    void allThatWasLeftIsFinishedBesideAWriterThatRuns();
    void aFolderWhereNothingIsLeftIsNotTouched();
    void aDamagedNoteIsRemoved();
    void aNoteOfNamesThatNobodyHasIsRemoved_data();
    void aNoteOfNamesThatNobodyHasIsRemoved();
    void aFileWithoutItsNoteIsRemoved();
    void otherFilesStay();
    void aFolderThatIsNotThereIsFinished() { MaakAf(Pad("er niet")); }

private:
    static QByteArray Zegel(const QByteArray &regels)
    {
        return QCryptographicHash::hash(regels, QCryptographicHash::Sha256).toHex();
    }
};

void tst_BewarenAfmaken::theCallsOfFinishing()
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

void tst_BewarenAfmaken::aNoteThatIsTakenForALeftOneIsMadeAnew()
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

void tst_BewarenAfmaken::aWriterThatRunsIsLeftAlone()
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

// Where the file system cannot tell.
void tst_BewarenAfmaken::aWriterThatMayRunIsLeftAlone()
{
    BestandenSet set;
    set.Zet(Pad("a1.bmp"), {"nieuw"});
    {
        const HaperendeSchijf schijf(2); // the hold on its note
        MaakAf(bank_->Map());
    }
    QCOMPARE(Namen().size(), 5);
    set.PlaatsAlles();
    QCOMPARE(Inhoud(), QByteArray("nieuw oud oud"));
}

void tst_BewarenAfmaken::aWriterThatDiesLeavesTheOldOrTheNew()
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

void tst_BewarenAfmaken::finishingMayDieOrFailAnywhere_data()
{
    QTest::addColumn<bool>("sterft");
    Geval("dies", true);
    Geval("fails", false);
}

void tst_BewarenAfmaken::finishingMayDieOrFailAnywhere()
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

void tst_BewarenAfmaken::anyCallOfASetMayFail()
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

void tst_BewarenAfmaken::aNoteOfLongNamesIsFinished()
{
    const auto naam = [](int nummer) { return QString(250, u'x') + QString::number(nummer); };
    QVERIFY(SterftBij(15, [&] { // the note is whole
        BestandenSet set;
        for (int i = 1; i <= 3; ++i)
            set.Zet(bank_->Map() + u'/' + naam(i), {"nieuw"});
        set.PlaatsAlles();
    }));
    QCOMPARE(Namen().size(), 3 + 5); // with the note, its files and the turn
    MaakAf(bank_->Map());
    for (int i = 1; i <= 3; ++i)
        QCOMPARE(bank_->Inhoud(naam(i)), QByteArray("nieuw"));
    QCOMPARE(Namen().size(), 3 + 3);
}

void tst_BewarenAfmaken::theSpellingOfOneFileIsFinished()
{
    QVERIFY(SterftBij(10, [&] { // between its two names
        BestandenSet set;
        set.Zet(Pad("A.LST"), {"nieuw"}, u"a.lst"_s);
        set.PlaatsAlles();
    }));
    QCOMPARE(bank_->Inhoud(u"A.LST"_s), QByteArray("nieuw"));
    MaakAf(bank_->Map());
    QCOMPARE(Namen(), (QStringList{"a.lst", "a1.bmp", "a2.bmp"}));
    QCOMPARE(bank_->Inhoud(u"a.lst"_s), QByteArray("nieuw"));
}

// Whoever only looks at a folder makes no file there to say that it is his turn.
void tst_BewarenAfmaken::aFolderWhereNothingIsLeftIsNotTouched()
{
    const QDateTime ervoor = QFileInfo(bank_->Map()).lastModified();
    QTest::qSleep(30);
    MaakAf(bank_->Map());
    QCOMPARE(QFileInfo(bank_->Map()).lastModified(), ervoor);
}

void tst_BewarenAfmaken::allThatWasLeftIsFinishedBesideAWriterThatRuns()
{
    BestandenSet set;
    set.Zet(Pad("a2.bmp"), {"nieuw"});
    const auto laat = [&](QChar cijfer, const QString &nummer, const QString &namen) {
        const QString nota = u".rasteratelier-"_s + QString(16, cijfer);
        const QByteArray regels = (nummer + u'/' + namen + u'\n').toLatin1();
        bank_->Schrijf(nota, regels + Zegel(regels));
        bank_->Schrijf(nota + u'-' + nummer, "nieuw");
    };
    laat(u'0', u"1"_s, u"a1.bmp/a1.bmp"_s); // before the note of the writer
    laat(u'f', u"12"_s, u"A.LST/A.lst"_s);  // and behind it
    MaakAf(bank_->Map());
    QCOMPARE(Inhoud(), QByteArray("nieuw oud nieuw"));
    QCOMPARE(Namen().size(), 5);
    set.PlaatsAlles();
    QCOMPARE(Inhoud(), Nieuw);
    QCOMPARE(Namen(), (QStringList{"A.lst", "a1.bmp", "a2.bmp"}));
}

void tst_BewarenAfmaken::aDamagedNoteIsRemoved()
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

void tst_BewarenAfmaken::aNoteOfNamesThatNobodyHasIsRemoved_data()
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

void tst_BewarenAfmaken::aNoteOfNamesThatNobodyHasIsRemoved()
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

void tst_BewarenAfmaken::aFileWithoutItsNoteIsRemoved()
{
    bank_->Schrijf(Nota + u"-1"_s, "nieuw");
    bank_->Schrijf(Nota + u"-23"_s, "nieuw");
    MaakAf(bank_->Map());
    QCOMPARE(Namen().size(), 3);
    QCOMPARE(Inhoud(), Oud);
}

void tst_BewarenAfmaken::otherFilesStay()
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

RASTER_TEST(tst_BewarenAfmaken)
#include "tst_BewarenAfmaken.moc"
