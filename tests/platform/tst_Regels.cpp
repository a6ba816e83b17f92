#include "platform/Regels.h"
#include "support/Testbank.h"

#include <random>

class tst_Regels : public QObject
{
    Q_OBJECT

private slots:
    void linesEndInThreeWays_data();
    void linesEndInThreeWays();
    void anyTextFallsIntoItsLines();
    void linesLieInTheirText();
};

static QByteArrayList Regels(QByteArrayView tekst)
{
    QByteArrayList regels;
    VoorElkeRegel(tekst, [&](QByteArrayView regel) { regels += regel.toByteArray(); });
    return regels;
}

void tst_Regels::linesEndInThreeWays_data()
{
    QTest::addColumn<QByteArray>("tekst");
    QTest::addColumn<QByteArrayList>("regels");
    const auto rij = [](const char *naam, const char *tekst, const QByteArrayList &regels) {
        Geval(naam, QByteArray(tekst), regels);
    };
    rij("empty", "", {});
    rij("no end", "aap", {"aap"});
    rij("CR LF", "aap\r\nnoot\r\n", {"aap", "noot"});
    rij("CR", "aap\rnoot\r", {"aap", "noot"});
    rij("LF", "aap\nnoot\n", {"aap", "noot"});
    rij("mixed", "a\nb\r\nc\rd\n\re\r\r\nf", {"a", "b", "c", "d", "", "e", "", "f"});
    rij("no end to the last line", "aap\r\nnoot", {"aap", "noot"});
    rij("one CR LF", "\r\n", {""});
    rij("one CR", "\r", {""});
    rij("one LF", "\n", {""});
    rij("empty lines", "\n\n\r\n\r\raap", {"", "", "", "", "", "aap"});
    rij("blanks, commas and quotes stay", " aap ,\"noot\" \r\n", {" aap ,\"noot\" "});
}

void tst_Regels::linesEndInThreeWays()
{
    QFETCH(QByteArray, tekst);
    QTEST(Regels(tekst), "regels");
}

void tst_Regels::anyTextFallsIntoItsLines()
{
    std::mt19937 toeval(1);
    for (int ronde = 0; ronde < 2000; ++ronde) {
        QByteArray tekst;
        for (auto lengte = toeval() % 12; lengte > 0; --lengte)
            tekst += "ab\r\n"[toeval() % 4];
        QByteArrayList verwacht = QByteArray(tekst).replace("\r\n", "\n").replace('\r', '\n').split('\n');
        if (verwacht.last().isEmpty())
            verwacht.removeLast(); // what stands behind the last end is no line
        QCOMPARE(Regels(tekst), verwacht);
    }
}

void tst_Regels::linesLieInTheirText()
{
    const QByteArray tekst = "aap\r\nnoot";
    QList<qsizetype> plaatsen;
    VoorElkeRegel(tekst, [&](QByteArrayView regel) { plaatsen += regel.data() - tekst.data(); });
    QCOMPARE(plaatsen, (QList<qsizetype>{0, 5}));
}

RASTER_TEST(tst_Regels)
#include "tst_Regels.moc"
