#include "app/InstellingenBestand.h"

#include "app/Instellingen.h"
#include "board/Algemeen.h"
#include "platform/Files.h"
#include "platform/Fout.h"

using namespace Qt::StringLiterals;

static QString InstellingenPad()
{
    return Files::Pad(AppPath, {u"Rasteratelier.ini"_s});
}

void LaadInstellingen()
{
    const QString pad = InstellingenPad();
    Instellingen gelezen;
    try {
        gelezen = LeesInstellingen(Files::Lees(pad));
    } catch (const Fout &fout) {
        if (fout.nummer() != Fout::BestandNietGevonden && fout.nummer() != Fout::GeenToegang)
            throw Fout(static_cast<Fout::Nummer>(fout.nummer()), u"het instellingenbestand "_s + pad);
        negeer(BewaarInstellingen); // not there, or not to be opened
        return;
    }
    OrgineelRood = gelezen.Rood;
    OrgineelGroen = gelezen.Groen;
    OrgineelBlauw = gelezen.Blauw;
    KleurVakjes = gelezen.Kleur;
    PaginaTekst = gelezen.PaginaTekst;
}

void BewaarInstellingen()
{
    Files::Schrijf(InstellingenPad(),
                   SchrijfInstellingen({OrgineelRood, OrgineelGroen, OrgineelBlauw, KleurVakjes, PaginaTekst}));
}
