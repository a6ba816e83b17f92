#include "Adressen.h"

#include "documents/HtmlMod.h"
#include "support/InhoudVan.h"
#include "support/Testbank.h"

#include <QDir>

using namespace Qt::StringLiterals;

/// What a case folder gives: the kind, the name, and the rows, a line each, their fields apart by "|".
struct Invoer
{
    quint8 Soort;
    QString Naam;
    QList<Rij> Rijen;
};

static Invoer LeesInvoer(const QString &geval)
{
    QStringList regels = QString::fromUtf8(InhoudVan(geval + u"/invoer.txt"_s)).chopped(1).split(u'\n');
    Invoer invoer{quint8(regels.takeFirst().toUInt()), regels.takeFirst(), {}};
    for (const QString &regel : regels) {
        const QStringList velden = regel.split(u'|');
        invoer.Rijen += Rij{velden[0], velden[1], velden[2], velden[3]};
    }
    return invoer;
}

/// The page that a case expects; the build says what stands in the place of the two words between "@".
static QByteArray Verwacht(const QString &geval)
{
    return InhoudVan(geval + u"/pagina.html"_s)
        .replace("@PROJECT_VERSION@", Versie.toLatin1())
        .replace("@RASTERATELIER_UITGEVER@", Adressen::Uitgever.toLatin1());
}

class tst_HtmlMod : public QObject
{
    Q_OBJECT

    static QStringList Gevallen()
    {
        return QDir(QStringLiteral(GEVALLEN)).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    }

private slots:
    void thePageIsTheExpectedOneToTheByte_data()
    {
        QTest::addColumn<QString>("geval");
        for (const QString &geval : Gevallen())
            Geval(geval.toUtf8(), QStringLiteral(GEVALLEN) + u'/' + geval);
    }
    void thePageIsTheExpectedOneToTheByte()
    {
        QFETCH(QString, geval);
        const Invoer invoer = LeesInvoer(geval);
        const QByteArray pagina = HtmlPagina(invoer.Naam, invoer.Soort, invoer.Rijen), verwacht = Verwacht(geval);
        const QByteArrayList regels = pagina.split('\n'), hoort = verwacht.split('\n');
        for (qsizetype i = 0; i < std::min(regels.size(), hoort.size()); ++i)
            QCOMPARE(regels[i], hoort[i]); // which says where they differ
        QCOMPARE(pagina, verwacht);
    }

    void everyKindHasACase()
    {
        QSet<quint8> soorten;
        for (const QString &geval : Gevallen())
            soorten += LeesInvoer(QStringLiteral(GEVALLEN) + u'/' + geval).Soort;
        for (quint8 soort = 1; soort <= 5; ++soort)
            QVERIFY(soorten.contains(soort));
    }

    void everyNumberOfAByteIsShown()
    {
        for (int n = 0; n <= 255; ++n) {
            const QString getal = QString::number(n);
            const auto regel = [](const QString &tekst) {
                return u"      <SPAN class=tekst><b>"_s + tekst + u"</b></SPAN><br>\r\n"_s;
            };
            QCOMPARE(HtmlLijst(3, {{u"A-01 / 1-V"_s, u"x"_s, {}, getal}}), regel(getal + u" - V. x"_s));
            QCOMPARE(HtmlLijst(5, {{getal, u"x"_s, {}, {}}}), regel(getal + u".  x"_s));
        }
    }

    void thePartsStandInThePage()
    {
        const QList<Rij> rijen{{u"A-01 / 1-H"_s, u"dier"_s, u"aap"_s, u"1"_s}};
        const QByteArray pagina = HtmlPagina(u"Proef"_s, 3, rijen);
        QCOMPARE(pagina.count(HtmlStijl().toLatin1()), 1);
        QCOMPARE(pagina.count(HtmlLijst(3, rijen).toLatin1()), 1);
        QVERIFY(HtmlStijl().startsWith(u"\r\n<style"_s) && HtmlStijl().endsWith(u"</style>\r\n"_s));
    }

    void aListWithoutEndIsWritten()
    {
        const QList<Rij> rijen(100000, {u"A-01 / 1-H"_s, QString(80, u'x'), u"aap"_s, u"-"_s});
        QCOMPARE(HtmlPagina(u"Proef"_s, 3, rijen).count("0 - H. xxx"), 100000);
    }
};

RASTER_TEST(tst_HtmlMod)
#include "tst_HtmlMod.moc"
