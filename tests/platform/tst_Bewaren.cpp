#include "platform/BewaarTest.h"
#include "support/TrageSchijf.h"

using namespace Qt::StringLiterals;

class tst_Bewaren : public BewaarTest
{
    Q_OBJECT

private slots:
    void init() { Begin(); }
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
    void whoeverComesNextWaitsForTheNamesToBeChanged();
};

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
    set.Zet(Pad("a2.bmp"), {"nieuw"}, u"A2.bmp"_s);
    set.Zet(Pad("A.LST"), {"nieuw"}, u"a.lst"_s);
    set.PlaatsAlles();
    QCOMPARE(Namen(), (QStringList{"A2.bmp", "a.lst", "a1.bmp"}));
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

void tst_Bewaren::twoSetsThatArePlacedAtOnceAreEachWhole()
{
    const TrageSchijf schijf({}, [&] {
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
    const TrageSchijf schijf({}, [&] {
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

RASTER_TEST(tst_Bewaren)
#include "tst_Bewaren.moc"
