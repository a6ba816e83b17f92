// The input is each of the tables in turn: what is read is what a plain reading gives.

#include "Fuzz.h"

#include "platform/CodePage.h"
#include "platform/Fout.h"
#include "wordlib/Naslagwerk.h"

using namespace Qt::StringLiterals;

/// The lines that aren't blank.
static QStringList Regels(const QByteArray &inhoud)
{
    QStringList regels = Files::NaarTekst(inhoud).replace("\r\n"_L1, "\n"_L1).replace(u'\r', u'\n').split(u'\n');
    regels.removeIf([](const QString &regel) { return regel.count(u' ') == regel.size(); });
    return regels;
}

static void Elementen(const QByteArray &inhoud, const QStringList &regels)
{
    QStringList gelezen;
    const bool heel = negeer([&] { LeesElementen(inhoud, gelezen); });
    EIS(heel ? gelezen.size() == regels.size() : gelezen.size() < regels.size());
    for (qsizetype i = 0; i < gelezen.size(); ++i) {
        const QStringList velden = regels[i].split(u"-/-"_s);
        EIS(gelezen[i] == velden[0].leftJustified(16) + velden[1].leftJustified(9) + velden[2]);
        EIS(velden[0].size() <= 16 && velden[1].size() <= 9);
    }
}

static void Spreekwoorden(const QByteArray &inhoud, const QStringList &regels)
{
    QStringList gezegden, betekenissen;
    const bool heel = negeer([&] { LeesSpreekwoorden(inhoud, {}, gezegden, betekenissen); });
    EIS(gezegden.size() == betekenissen.size());
    EIS(heel == (gezegden.size() == regels.size()));
    for (qsizetype i = 0; i < gezegden.size(); ++i)
        EIS(regels[i].startsWith(gezegden[i] + u" -/- "_s + betekenissen[i]));
    EIS(heel || !regels[gezegden.size()].contains(u" -/- "_s));
}

void Probeer(const QByteArray &inhoud)
{
    const QStringList regels = Regels(inhoud);
    QStringList bron;
    LeesBron(inhoud, bron);
    EIS(bron == regels);
    Elementen(inhoud, regels);
    Spreekwoorden(inhoud, regels);
}
