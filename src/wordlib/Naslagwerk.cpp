#include "wordlib/Naslagwerk.h"

#include "platform/CodePage.h"
#include "platform/Fout.h"
#include "platform/Regels.h"
#include "platform/Teksten.h"

using namespace Qt::StringLiterals;

template <class Doe> static void VoorElkeGevulde(QByteArrayView inhoud, Doe doe)
{
    VoorElkeRegel(inhoud, [&](QByteArrayView bytes) {
        const QString regel = Files::NaarTekst(bytes);
        if (!Trim(regel).isEmpty())
            doe(regel);
    });
}

/// The fields of a line; there may be more of them. @param minstens how many there have to be
static QStringList Velden(const QString &regel, QLatin1StringView scheiding, qsizetype minstens)
{
    QStringList velden = regel.split(scheiding);
    if (velden.size() < minstens)
        throw Fout(Fout::IndexBuitenBereik);
    return velden;
}

void LeesSpreekwoorden(QByteArrayView inhoud, const QString &filter, QStringList &gezegden, QStringList &betekenissen)
{
    VoorElkeGevulde(inhoud, [&](const QString &regel) {
        const QStringList velden = Velden(regel, " -/- "_L1, 2);
        if (!filter.isEmpty() && KleineLetters(velden[0].left(1)) != KleineLetters(filter))
            return;
        gezegden += velden[0];
        betekenissen += velden[1];
    });
}

void LeesBron(QByteArrayView inhoud, QStringList &regels)
{
    VoorElkeGevulde(inhoud, [&](const QString &regel) { regels += regel; });
}

static QString Kolom(const QString &veld, qsizetype breedte)
{
    if (veld.size() > breedte)
        throw Fout(Fout::OngeldigArgument);
    return veld.leftJustified(breedte);
}

void LeesElementen(QByteArrayView inhoud, QStringList &regels)
{
    VoorElkeGevulde(inhoud, [&](const QString &regel) {
        const QStringList velden = Velden(regel, "-/-"_L1, 3);
        regels += Kolom(velden[0], 16) + Kolom(velden[1], 9) + velden[2];
    });
}
