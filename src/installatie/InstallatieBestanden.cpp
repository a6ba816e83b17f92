#include "installatie/InstallatieBestanden.h"

#include "platform/Alfabet.h"
#include "platform/CodePage.h"
#include "platform/Regels.h"
#include "platform/Teksten.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

static QStringList Regels(const QByteArray &bron)
{
    if (!bron.isValidUtf8())
        throw BronFout("not valid UTF-8");
    QStringList regels;
    VoorElkeRegel(bron, [&](QByteArrayView bytes) {
        const QString regel = QString::fromUtf8(bytes); // without a byte order mark
        if (!regel.isEmpty())
            regels += regel;
    });
    return regels;
}

static QByteArray Regel(const QString &woord)
{
    return Files::NaarBytes(woord) + "\r\n";
}

// --- the word database ---

/// Small letters without their accents, and ligatures as the two letters that they join.
static QString ZonderAccenten(const QString &woord)
{
    QString kaal = woord.normalized(QString::NormalizationForm_D);
    kaal.removeIf([](QChar teken) { return teken.isMark(); });
    return kaal.replace(u'\u0133', "ij"_L1).replace(u'\u00E6', "ae"_L1).replace(u'\u0153', "oe"_L1);
}

static bool HeeftHoofdletter(const QString &regel)
{
    return std::any_of(regel.begin(), regel.end(), [](QChar teken) { return teken.isUpper(); });
}

static bool IsPuzzelwoord(const QString &woord)
{
    const auto isLetter = [](QChar teken) { return teken >= u'a' && teken <= u'z'; };
    return woord.size() >= 2 && std::all_of(woord.begin(), woord.end(), isLetter);
}

QByteArray MaakWoorden(const QByteArray &bron)
{
    QByteArray bestand;
    QSet<QString> gehad;
    QString ontbreekt = u"abcdefghijklmnopqrstuvwxyz"_s;
    for (const QString &regel : Regels(bron)) {
        const QString woord = ZonderAccenten(regel);
        if (HeeftHoofdletter(regel) || !IsPuzzelwoord(woord) || gehad.contains(woord))
            continue;
        gehad += woord;
        ontbreekt.remove(woord.front());
        bestand += Regel(woord);
    }
    if (!ontbreekt.isEmpty())
        throw BronFout("no word begins with one of these letters: " + ontbreekt.toStdString());
    return bestand;
}

// --- a word list ---

static bool IsLijstwoord(const QString &regel)
{
    static const QRegularExpression vorm(u"\\A\\p{L}+([ -]\\p{L}+)*\\z"_s);
    return vorm.match(regel).hasMatch() && std::all_of(regel.begin(), regel.end(), Files::InCodePage);
}

[[noreturn]] static void Weiger(const std::string &waarom, const QString &regel)
{
    throw BronFout(waarom + ": " + regel.left(60).toStdString());
}

QByteArray MaakLijst(const QByteArray &bron)
{
    QStringList woorden;
    QSet<QString> gehad;
    for (const QString &regel : Regels(bron)) {
        if (!IsLijstwoord(regel))
            Weiger("not a word of letters with single blanks or hyphens between them", regel);
        const QString woord = Hoofdletters(regel);
        if (gehad.contains(woord))
            Weiger("there twice", regel);
        gehad += woord;
        woorden += woord;
    }
    if (woorden.isEmpty())
        throw BronFout("no word in it");
    SorteerAlfabetisch(woorden);
    QByteArray bestand;
    for (const QString &woord : std::as_const(woorden))
        bestand += Regel(woord);
    return bestand;
}

// --- a table to look things up in ---

/// The lines of a source that is a table.
static QStringList Tabelregels(const QByteArray &bron)
{
    QStringList regels = Regels(bron);
    QSet<QString> gehad;
    for (const QString &regel : std::as_const(regels)) {
        const bool isTekst = std::all_of(regel.begin(), regel.end(),
                                         [](QChar teken) { return teken.isPrint() && Files::InCodePage(teken); });
        if (!isTekst || regel != regel.trimmed())
            Weiger("not a text of the code page without blanks at its ends", regel);
        if (gehad.contains(regel))
            Weiger("there twice", regel);
        gehad += regel;
    }
    if (regels.isEmpty())
        throw BronFout("no line in it");
    return regels;
}

QByteArray MaakTabel(const QByteArray &bron)
{
    QByteArray bestand;
    for (const QString &regel : Tabelregels(bron))
        bestand += Regel(regel);
    return bestand;
}

QByteArray MaakSpreekwoorden(const QByteArray &bron)
{
    const QString scheiding = u" -/- "_s, aanloop = u"Betekenis : "_s; // 12 characters
    QByteArray bestand;
    QSet<QString> gehad;
    for (const QString &regel : Tabelregels(bron)) {
        const QStringList delen = regel.split(scheiding);
        if (delen.size() != 2)
            Weiger("not a saying and its meaning with \" -/- \" between them", regel);
        if (gehad.contains(delen[0]))
            Weiger("there twice", regel);
        gehad += delen[0];
        bestand += Regel(delen[0] + scheiding + aanloop + delen[1]);
    }
    return bestand;
}
