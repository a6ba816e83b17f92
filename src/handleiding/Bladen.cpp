#include "handleiding/Bladen.h"

#include "platform/Fout.h"

using namespace Qt::StringLiterals;

/// The last of the pieces that have to be on one page with a piece.
static qsizetype LaatsteVanGroep(const QList<Stuk> &stukken, qsizetype eerste)
{
    qsizetype i = eerste;
    while (stukken[i].BijVolgend && i + 1 < stukken.size() && !stukken[i + 1].NieuwBlad)
        ++i;
    return i;
}

QList<int> VerdeelOverBladen(const QList<Stuk> &stukken, double hoogte)
{
    QList<int> eersten;
    for (qsizetype i = 0; i < stukken.size();) {
        const qsizetype laatste = LaatsteVanGroep(stukken, i);
        const double onder = stukken[laatste].Onder;
        if (onder - stukken[i].Boven > hoogte)
            throw Fout(Fout::OngeldigeWaarde, u"stuk %1 past op geen bladzijde"_s.arg(i + 1));
        if (eersten.isEmpty() || stukken[i].NieuwBlad || onder - stukken[eersten.last()].Boven > hoogte)
            eersten += static_cast<int>(i);
        i = laatste + 1;
    }
    return eersten;
}
