// The tables that the build makes, read as the program reads them: they keep their formats and their facts hang
// together.

#include "platform/Alfabet.h"
#include "support/InhoudVan.h"
#include "support/Testbank.h"
#include "wordlib/Naslagwerk.h"

#include <QRegularExpression>
#include <QSet>

using namespace Qt::StringLiterals;

static QByteArray Inhoud(const QString &naam)
{
    return InhoudVan(QStringLiteral(DATA "/") + naam + u".lib"_s);
}

static QStringList Bron(const QString &naam)
{
    QStringList regels;
    LeesBron(Inhoud(naam), regels);
    return regels;
}

/// What stands before the separator of each line, and behind it.
static QStringList Deel(const QString &naam, const QString &scheiding, qsizetype index)
{
    QStringList delen;
    for (const QString &regel : Bron(naam))
        delen += regel.split(scheiding).value(index);
    return delen;
}

static QStringList Codes(const QString &naam)
{
    return Deel(naam, u" - "_s, 0);
}

static QStringList Namen(const QString &naam)
{
    return Deel(naam, u" - "_s, 1);
}

/// The texts that don't have a shape.
static QStringList Misvormd(QStringList teksten, const QString &vorm)
{
    const QRegularExpression heel(u"\\A(?:"_s + vorm + u")\\z"_s);
    teksten.removeIf([&](const QString &tekst) { return heel.match(tekst).hasMatch(); });
    return teksten;
}

/// The texts that are there more than once, ignoring case.
static QStringList Dubbel(const QStringList &teksten)
{
    QStringList dubbel;
    QSet<QString> gezien;
    for (const QString &tekst : teksten) {
        if (gezien.contains(tekst.toLower()))
            dubbel += tekst;
        gezien += tekst.toLower();
    }
    return dubbel;
}

/// The texts that come before the one above them. An apostrophe doesn't count.
static QStringList Verdwaald(QStringList teksten)
{
    QStringList verdwaald;
    teksten.replaceInStrings(u"'"_s, QString());
    for (qsizetype i = 1; i < teksten.size(); ++i)
        if (AlfabetischVoor(teksten[i], teksten[i - 1]))
            verdwaald += teksten[i];
    return verdwaald;
}

static QStringList Zonder(QStringList teksten, const QStringList &weg)
{
    teksten.removeIf([&](const QString &tekst) { return weg.contains(tekst); });
    return teksten;
}

// Names of countries in Dutch begin with a capital; small words may stand between.
static const QString Landvorm = u"\\p{Lu}[\\p{L}' ()-]*[\\p{L})]"_s;

class tst_EchteNaslag : public QObject
{
    Q_OBJECT
private slots:
    void everyFileIsPlainLines_data()
    {
        QTest::addColumn<QString>("naam");
        QTest::addColumn<int>("minstens");
        const auto rij = [](const char *naam, int minstens) { Geval(naam, QString::fromLatin1(naam), minstens); };
        rij("Spreekwoorden", 400);
        rij("Hoofdsteden", 197);
        rij("Afkortingen", 300);
        rij("LandcodesIOC", 206);
        rij("Gemeenten", 342);
        rij("Internet landen afkortingen", 240);
        rij("Elementen", 118);
    }
    void everyFileIsPlainLines()
    {
        QFETCH(QString, naam);
        QFETCH(int, minstens);
        const QByteArray inhoud = Inhoud(naam);
        QVERIFY(inhoud.endsWith("\r\n"));
        QCOMPARE(inhoud.count('\n'), inhoud.count("\r\n"));
        QCOMPARE(inhoud.count('\r'), inhoud.count("\r\n"));
        const QStringList regels = Bron(naam);
        QCOMPARE(regels.size(), inhoud.count('\n')); // none is blank
        QVERIFY2(regels.size() >= minstens, qPrintable(QString::number(regels.size())));
        QCOMPARE(Misvormd(regels, u"\\S(.*\\S)?"_s), QStringList());
        QCOMPARE(Misvormd(regels, u"[^\\p{C}?]*"_s), QStringList()); // a "?" is a letter that was lost
        QCOMPARE(Misvormd(regels, u".{3,200}"_s), QStringList());
        QCOMPARE(Dubbel(regels), QStringList());
    }

    void proverbsHaveAMeaning()
    {
        QStringList gezegden, betekenissen;
        LeesSpreekwoorden(Inhoud(u"Spreekwoorden"_s), {}, gezegden, betekenissen);
        const QStringList regels = Bron(u"Spreekwoorden"_s);
        QCOMPARE(gezegden.size(), regels.size());
        QCOMPARE(Misvormd(regels, u"((?! -/- ).)* -/- ((?! -/- ).)*"_s), QStringList());
        QCOMPARE(Misvormd(betekenissen, u"Betekenis : .*"_s), QStringList());
        for (QString &betekenis : betekenissen)
            betekenis = betekenis.mid(12);
        const QString woord = u"[\\p{L}]+(['-]\\p{L}+)*"_s;
        QCOMPARE(Misvormd(betekenissen, woord + u"([,;]? "_s + woord + u"){3,}"_s), QStringList());
        QCOMPARE(Misvormd(betekenissen, u"\\p{Ll}.*"_s), QStringList()); // the capital is the window's
        QCOMPARE(Misvormd(gezegden, u"\\p{Lu}.*\\p{L}"_s), QStringList());
        QCOMPARE(Misvormd(gezegden, u"('?"_s + woord + u"[,;]?( '?|\\z))+"_s), QStringList());
        QCOMPARE(Dubbel(gezegden), QStringList());
        QCOMPARE(Dubbel(betekenissen), QStringList());
        QCOMPARE(Verdwaald(gezegden), QStringList());
    }

    void theTablesAreInTheirOrder_data()
    {
        QTest::addColumn<QString>("naam");
        for (const char *naam :
             {"Hoofdsteden", "Afkortingen", "LandcodesIOC", "Gemeenten", "Internet landen afkortingen"})
            Geval(naam, QString::fromLatin1(naam));
    }
    void theTablesAreInTheirOrder()
    {
        QFETCH(QString, naam);
        QCOMPARE(Verdwaald(Bron(naam)), QStringList());
    }

    void countriesHaveACapital()
    {
        const QStringList landen = Codes(u"Hoofdsteden"_s), steden = Namen(u"Hoofdsteden"_s);
        QCOMPARE(landen.size(), 193 + 2 + 2);
        QCOMPARE(Misvormd(Bron(u"Hoofdsteden"_s), u".+? - .+"_s), QStringList());
        QCOMPARE(Misvormd(landen, Landvorm), QStringList());
        QCOMPARE(Misvormd(steden, u"\\p{Lu}[\\p{L}' -]*\\p{L}"_s), QStringList());
        QCOMPARE(Dubbel(landen), QStringList());
        QCOMPARE(Dubbel(steden), QStringList());
    }

    void abbreviationsStandForSomething()
    {
        QCOMPARE(Misvormd(Bron(u"Afkortingen"_s), u".+? - .+"_s), QStringList());
        QCOMPARE(Misvormd(Codes(u"Afkortingen"_s), u"[\\p{L}\\p{N}.' -]{1,12}"_s), QStringList());
        QCOMPARE(Misvormd(Namen(u"Afkortingen"_s), u"[\\p{L}\\p{N}.,'() -]+"_s), QStringList());
        QStringList codes = Codes(u"Afkortingen"_s);
        QCOMPARE(codes.removeDuplicates(), 0); // "cv" and "CV" are two
    }

    void olympicCodes()
    {
        const QStringList codes = Codes(u"LandcodesIOC"_s), landen = Namen(u"LandcodesIOC"_s);
        QCOMPARE(codes.size(), 206);
        QCOMPARE(Misvormd(codes, u"[A-Z]{3}"_s), QStringList());
        QCOMPARE(Misvormd(landen, Landvorm), QStringList());
        QCOMPARE(Dubbel(codes), QStringList());
        QCOMPARE(Dubbel(landen), QStringList());
    }

    void theNamesOfCountriesAreTheSameEverywhere()
    {
        const QStringList staten = Codes(u"Hoofdsteden"_s), ioc = Namen(u"LandcodesIOC"_s),
                          domeinen = Namen(u"Internet landen afkortingen"_s);
        // The others take no part under their own name, or have no domain.
        QCOMPARE(Zonder(staten, ioc), (QStringList{u"Taiwan"_s, u"Vaticaanstad"_s, u"Verenigd Koninkrijk"_s}));
        QCOMPARE(Zonder(staten, domeinen), QStringList{u"Kosovo"_s});
        QCOMPARE(Zonder(Zonder(ioc, staten), domeinen),
                 (QStringList{u"Groot-Brittannië"_s, u"Taiwan (Chinees Taipei)"_s}));
    }

    void municipalitiesOf2023()
    {
        const QStringList regels = Bron(u"Gemeenten"_s);
        const QList<QPair<QString, int>> provincies{
            {u"Groningen"_s, 10},    {u"Friesland"_s, 18},  {u"Drenthe"_s, 12},       {u"Overijssel"_s, 25},
            {u"Flevoland"_s, 6},     {u"Gelderland"_s, 51}, {u"Utrecht"_s, 26},       {u"Noord-Holland"_s, 44},
            {u"Zuid-Holland"_s, 50}, {u"Zeeland"_s, 13},    {u"Noord-Brabant"_s, 56}, {u"Limburg"_s, 31}};
        QCOMPARE(regels.size(), 342);
        qsizetype samen = 0;
        for (const auto &[provincie, aantal] : provincies) {
            const QStringList die = regels.filter(u" ("_s + provincie + u')');
            QVERIFY2(die.size() == aantal, qPrintable(provincie + u" %1"_s.arg(die.size())));
            samen += die.size();
        }
        QCOMPARE(samen, 342);
        QCOMPARE(Misvormd(Deel(u"Gemeenten"_s, u" ("_s, 0), u"('s-)?\\p{Lu}[\\p{L}, -]*\\p{L}"_s), QStringList());
        QCOMPARE(Dubbel(Deel(u"Gemeenten"_s, u" ("_s, 0)), QStringList{u"Bergen"_s}); // there are two
    }

    void domainsOfCountries()
    {
        const QStringList codes = Codes(u"Internet landen afkortingen"_s),
                          landen = Namen(u"Internet landen afkortingen"_s);
        QCOMPARE(Misvormd(codes, u"\\.[a-z]{2}"_s), QStringList());
        QCOMPARE(Misvormd(landen, Landvorm), QStringList());
        QCOMPARE(Dubbel(codes), QStringList());
        QCOMPARE(Dubbel(landen), QStringList());
    }

    void elements()
    {
        QStringList regels, symbolen, namen, nummers, verwacht;
        LeesElementen(Inhoud(u"Elementen"_s), regels);
        for (const QString &regel : regels) {
            namen += regel.left(16).trimmed();
            symbolen += regel.mid(16, 9).trimmed();
            nummers += regel.mid(25);
        }
        for (int nummer = 1; nummer <= 118; ++nummer)
            verwacht += QString::number(nummer);
        QCOMPARE(nummers, verwacht);
        QCOMPARE(Misvormd(namen, u"\\p{Ll}+"_s), QStringList());
        QCOMPARE(Misvormd(symbolen, u"[A-Z][a-z]?"_s), QStringList());
        QCOMPARE(Dubbel(namen), QStringList());
        QCOMPARE(Dubbel(symbolen), QStringList());
        QCOMPARE(regels[78], u"goud            Au       79"_s);
    }
};

RASTER_TEST(tst_EchteNaslag)
#include "tst_EchteNaslag.moc"
