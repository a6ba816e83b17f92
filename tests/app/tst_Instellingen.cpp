#include "app/Instellingen.h"
#include "support/Testbank.h"

using namespace Qt::StringLiterals;

static const QByteArray Kop = "\"Tessel Hoeksma Software 2017\"\r\n\"--------------------------\"\r\n";

class tst_Instellingen : public QObject
{
    Q_OBJECT
private slots:
    void theFiveLines()
    {
        QCOMPARE(SchrijfInstellingen({230, 250, 190, 1, u"https://een.example/"_s}),
                 Kop + "230,250,190\r\n1\r\n\"https://een.example/\"\r\n");
        QCOMPARE(SchrijfInstellingen({0, 0, 255, 3, QString()}), Kop + "0,0,255\r\n3\r\n\"\"\r\n");
        QCOMPARE(SchrijfInstellingen({1, 2, 3, 2, u"één € ® , komma"_s}),
                 Kop + "1,2,3\r\n2\r\n\"\xE9\xE9n \x80 \xAE , komma\"\r\n");
    }

    void whatIsWrittenComesBack_data()
    {
        QTest::addColumn<QString>("tekst");
        Geval("address", "https://een.example/");
        Geval("empty", "");
        Geval("comma", "puzzels, op maat");
        Geval("outer blanks", "  midden  ");
        Geval("accents", u"één € ®"_s);
    }
    void whatIsWrittenComesBack()
    {
        QFETCH(QString, tekst);
        const Instellingen gelezen = LeesInstellingen(SchrijfInstellingen({12, 250, 0, 2, tekst}));
        QCOMPARE(gelezen.Rood, qint16(12));
        QCOMPARE(gelezen.Groen, qint16(250));
        QCOMPARE(gelezen.Blauw, qint16(0));
        QCOMPARE(gelezen.Kleur, quint8(2));
        QCOMPARE(gelezen.PaginaTekst, tekst);
    }

    void valuesAreNotRangeChecked()
    {
        const Instellingen gelezen = LeesInstellingen("x\r\n\r\n-1,300,32767\r\n255\r\nzonder aanhalingstekens\r\n");
        QCOMPARE(gelezen.Rood, qint16(-1));
        QCOMPARE(gelezen.Groen, qint16(300));
        QCOMPARE(gelezen.Blauw, qint16(32767));
        QCOMPARE(gelezen.Kleur, quint8(255));
        QCOMPARE(gelezen.PaginaTekst, u"zonder aanhalingstekens"_s);
    }

    void theFieldsMayBeOnOtherLines_data()
    {
        QTest::addColumn<QByteArray>("inhoud");
        Geval("on one", QByteArray("kop,streep,1,2,3,2,\"tekst\""));
        Geval("each on its own", QByteArray("kop\r\nstreep\r\n1\r\n2\r\n3\r\n2\r\n\"tekst\"\r\n"));
        Geval("more than there are", Kop + "1,2,3\r\n2\r\n\"tekst\",7\r\n\"meer\"\r\n");
    }
    void theFieldsMayBeOnOtherLines()
    {
        QFETCH(QByteArray, inhoud);
        QCOMPARE(SchrijfInstellingen(LeesInstellingen(inhoud)), Kop + "1,2,3\r\n2\r\n\"tekst\"\r\n");
    }

    void damagedFilesFail_data()
    {
        QTest::addColumn<QByteArray>("inhoud");
        QTest::addColumn<int>("fout");
        Geval("empty", QByteArray(), int(Fout::EindeBestand));
        Geval("cut behind the header", Kop, int(Fout::EindeBestand));
        Geval("cut in the colours", Kop + "230,250", int(Fout::EindeBestand));
        Geval("without the last line", Kop + "230,250,190\r\n1\r\n", int(Fout::EindeBestand));
        Geval("colour no number", Kop + "rood,250,190\r\n1\r\n\"x\"\r\n", int(Fout::TypeOnjuist));
        Geval("colour too large", Kop + "32768,250,190\r\n1\r\n\"x\"\r\n", int(Fout::Overloop));
        Geval("choice too large", Kop + "230,250,190\r\n256\r\n\"x\"\r\n", int(Fout::Overloop));
        Geval("choice negative", Kop + "230,250,190\r\n-1\r\n\"x\"\r\n", int(Fout::Overloop));
        Geval("choice empty", Kop + "230,250,190\r\n\r\n\"x\"\r\n", int(Fout::TypeOnjuist));
        Geval("binary", QByteArray(500, '\xFF'), int(Fout::EindeBestand));
        Geval("commas", QByteArray(500, ','), int(Fout::TypeOnjuist));
    }
    void damagedFilesFail()
    {
        QFETCH(QByteArray, inhoud);
        QFETCH(int, fout);
        QCOMPARE(FoutVan([&] { LeesInstellingen(inhoud); }), fout);
    }
};

RASTER_TEST(tst_Instellingen)
#include "tst_Instellingen.moc"
