// The input is a puzzle file.

#include "Fuzz.h"

#include "documents/PuzzelBestand.h"
#include "platform/Teksten.h"

using namespace Qt::StringLiterals;

/// Whether a row is read as it was written, which nothing quotes.
static bool BlijftHeel(const Rij &rij)
{
    const auto scheidt = [](QChar teken) { return teken == u',' || teken == u'\r' || teken == u'\n'; };
    const auto blijftHeel = [&](const QString &veld) {
        return std::none_of(veld.begin(), veld.end(), scheidt) &&
               (veld.isEmpty() || !u" \t\""_s.contains(veld.front()));
    };
    return blijftHeel(Trim(rij.Vaknummer)) && blijftHeel(rij.Omschrijving) && blijftHeel(rij.Oplossing) &&
           blijftHeel(rij.Nr);
}

static void ControleerRijen(const PuzzelLijst &lijst)
{
    EIS((lijst.Rijen.isEmpty() && !lijst.Heel) || (lijst.Soort && lijst.Breedte && lijst.Hoogte));
    for (const Rij &rij : lijst.Rijen)
        EIS(!Trim(rij.Vaknummer).isEmpty());
}

/// What a file that is cut off has of a whole one: nothing else, but for the last row, in which the cut may be.
static void ControleerBegin(const PuzzelLijst &begin, const PuzzelLijst &heel)
{
    ControleerRijen(begin);
    EIS(begin.Rijen.size() <= heel.Rijen.size());
    for (qsizetype i = 0; i + 1 < begin.Rijen.size(); ++i)
        EIS(begin.Rijen[i] == heel.Rijen[i]);
}

static void ControleerSchrijven(const PuzzelLijst &lijst)
{
    const PuzzelLijst terug =
        LeesPuzzelLijst(SchrijfPuzzelLijst(*lijst.Soort, *lijst.Breedte, *lijst.Hoogte, lijst.Rijen));
    ControleerRijen(terug);
    EIS(terug.Soort == lijst.Soort && terug.Breedte == lijst.Breedte && terug.Hoogte == lijst.Hoogte);
    if (!std::all_of(lijst.Rijen.begin(), lijst.Rijen.end(), BlijftHeel))
        return;
    QList<Rij> rijen = lijst.Rijen;
    for (Rij &rij : rijen)
        rij.Vaknummer = Trim(rij.Vaknummer);
    EIS(terug.Heel && terug.Rijen == rijen);
}

void Probeer(const QByteArray &inhoud)
{
    const PuzzelLijst lijst = LeesPuzzelLijst(inhoud);
    ControleerRijen(lijst);
    ControleerBegin(LeesPuzzelLijst(inhoud.first(inhoud.size() / 2)), lijst);
    if (lijst.Hoogte)
        ControleerSchrijven(lijst);
}
