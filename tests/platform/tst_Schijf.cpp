#include "platform/Schijf.h"
#include "support/HaperendeSchijf.h"
#include "support/Testbank.h"

#include <QDir>

#include <optional>

using namespace Qt::StringLiterals;

class tst_Schijf : public QObject
{
    Q_OBJECT

private slots:
    void init() { bank_.emplace(); }
    void cleanup() { bank_.reset(); }

    void aNewFileMayNotBeThereYet();
    void aNewFileIsNotMadeThroughALink();
    void aFileIsHeldByOneOpeningAtATime();
    void aFileIsLetGoWhenItsProcessDies();
    void aCallThatFailsIsTold();
    void aFolderIsBroughtToTheDisk();
    void whatIsMovedReplaces();
    void anotherDiskIsInUseForAsLongAsItLives();

private:
    QString Pad(const char *naam) const { return bank_->Map() + u'/' + QLatin1String(naam); }

    std::optional<Testbank> bank_;
};

void tst_Schijf::aNewFileMayNotBeThereYet()
{
    QFile een(Pad("a")), twee(Pad("a"));
    QVERIFY(Schijf::Huidig().Open(een, Schijf::Nieuw));
    QVERIFY(Schijf::Huidig().Schrijf(een, "inhoud"));
    QVERIFY(Schijf::Huidig().Spoel(een));
    QVERIFY(!Schijf::Huidig().Open(twee, Schijf::Nieuw));
    QCOMPARE(bank_->Inhoud(u"a"_s), QByteArray("inhoud"));
}

void tst_Schijf::aNewFileIsNotMadeThroughALink()
{
    QVERIFY(QFile::link(Pad("doel"), Pad("link")));
    QFile bestand(Pad("link"));
    QVERIFY(!Schijf::Huidig().Open(bestand, Schijf::Nieuw));
    QVERIFY(!QFile::exists(Pad("doel")));
}

void tst_Schijf::aFileIsHeldByOneOpeningAtATime()
{
    QFile een(Pad("a")), twee(Pad("a"));
    QVERIFY(Schijf::Huidig().Open(een, Schijf::Nieuw));
    QVERIFY(Schijf::Huidig().Open(twee, Schijf::Grijpend));
    QCOMPARE(Schijf::Huidig().Grijp(een), Schijf::Greep::Gekregen);
    QCOMPARE(Schijf::Huidig().Grijp(twee), Schijf::Greep::Bezet);
    een.close();
    QCOMPARE(Schijf::Huidig().Grijp(twee), Schijf::Greep::Gekregen);
}

void tst_Schijf::aFileIsLetGoWhenItsProcessDies()
{
    bank_->Schrijf(u"a"_s, "x");
    QVERIFY(SterftBij(3, [&] {
        QFile bestand(Pad("a"));
        if (Schijf::Huidig().Open(bestand, Schijf::Grijpend) &&
            Schijf::Huidig().Grijp(bestand) == Schijf::Greep::Gekregen)
            Schijf::Huidig().Spoel(bestand); // here it dies
    }));
    QFile bestand(Pad("a"));
    QVERIFY(Schijf::Huidig().Open(bestand, Schijf::Grijpend));
    QCOMPARE(Schijf::Huidig().Grijp(bestand), Schijf::Greep::Gekregen);
}

void tst_Schijf::aCallThatFailsIsTold()
{
    QFile geheugen(u"/proc/self/mem"_s); // its first bytes are nobody's
    QByteArray inhoud("oud");
    QVERIFY(Schijf::Huidig().Open(geheugen, Schijf::Lezend));
    QVERIFY(!Schijf::Huidig().Lees(geheugen, 10, inhoud));
    QCOMPARE(inhoud, QByteArray());
    QFile dicht(Pad("a"));
    QVERIFY(!Schijf::Huidig().Spoel(dicht));
    QCOMPARE(Schijf::Huidig().Grijp(dicht), Schijf::Greep::Onmogelijk);
}

void tst_Schijf::aFolderIsBroughtToTheDisk()
{
    QVERIFY(Schijf::Huidig().SpoelMap(bank_->Map()));
    QVERIFY(!Schijf::Huidig().SpoelMap(Pad("er niet")));
}

void tst_Schijf::whatIsMovedReplaces()
{
    bank_->Schrijf(u"a"_s, "nieuw");
    bank_->Schrijf(u"b"_s, "oud");
    QVERIFY(Schijf::Huidig().Verplaats(Pad("a"), Pad("b")));
    QCOMPARE(bank_->Bestanden({}), QStringList{"b"});
    QCOMPARE(bank_->Inhoud(u"b"_s), QByteArray("nieuw"));
    QVERIFY(!Schijf::Huidig().Verplaats(Pad("a"), Pad("b")));
    QVERIFY(!Schijf::Huidig().Verplaats(Pad("b"), Pad("Puzzels"))); // a folder is not replaced
    QVERIFY(!Schijf::Huidig().Verplaats(Pad("b"), bank_->Map() + u'/' + QChar(0xD800)));
    QCOMPARE(bank_->Bestanden({}), QStringList{"b"});
}

void tst_Schijf::anotherDiskIsInUseForAsLongAsItLives()
{
    {
        HaperendeSchijf schijf(2);
        QVERIFY(Schijf::Huidig().MaakMap(Pad("een")));
        QVERIFY(!Schijf::Huidig().MaakMap(Pad("twee")));
        QVERIFY(Schijf::Huidig().MaakMap(Pad("drie")));
        QCOMPARE(schijf.Logboek, (QStringList{"MaakMap een", "MaakMap twee", "MaakMap drie"}));
    }
    QVERIFY(Schijf::Huidig().MaakMap(Pad("twee")));
    QVERIFY(QDir(Pad("drie")).exists());
}

RASTER_TEST(tst_Schijf)
#include "tst_Schijf.moc"
