// The input is a settings file.

#include "Fuzz.h"

#include "app/Instellingen.h"
#include "platform/Fout.h"

void Probeer(const QByteArray &inhoud)
{
    Instellingen instellingen;
    if (!negeer([&] { instellingen = LeesInstellingen(inhoud); }))
        return;
    const Instellingen terug = LeesInstellingen(SchrijfInstellingen(instellingen));
    EIS(terug.Rood == instellingen.Rood && terug.Groen == instellingen.Groen && terug.Blauw == instellingen.Blauw);
    EIS(terug.Kleur == instellingen.Kleur);
    EIS(terug.PaginaTekst == instellingen.PaginaTekst.section(u'"', 0, 0)); // a quote ends the text
}
