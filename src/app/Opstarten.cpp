#include "app/Opstarten.h"

#include "app/Instellingen.h"
#include "board/Algemeen.h"
#include "board/Raster.h"
#include "documents/PuzzelMap.h"
#include "platform/Berichten.h"
#include "platform/Files.h"
#include "platform/Form.h"
#include "platform/Fout.h"
#include "platform/Klok.h"

using namespace Qt::StringLiterals;

static QString InstellingenPad()
{
    return Files::Pad(AppPath, {u"Rasteratelier.ini"_s});
}

static void BewaarInstellingen()
{
    Files::Schrijf(InstellingenPad(),
                   SchrijfInstellingen({OrgineelRood, OrgineelGroen, OrgineelBlauw, KleurVakjes, PaginaTekst}));
}

void LaadMain()
{
    HerstelBestanden();
    BeginWaarden();
    TekenBord(BoardWidth, BoardHeight);
    const QString pad = InstellingenPad();
    Instellingen gelezen;
    try {
        gelezen = LeesInstellingen(Files::Lees(pad));
    } catch (const Fout &fout) {
        if (fout.nummer() != Fout::BestandNietGevonden && fout.nummer() != Fout::GeenToegang)
            throw Fout(fout.nummer(), u"het instellingenbestand "_s + pad);
        negeer(BewaarInstellingen); // not there, or not to be opened
        return;
    }
    OrgineelRood = gelezen.Rood;
    OrgineelGroen = gelezen.Groen;
    OrgineelBlauw = gelezen.Blauw;
    KleurVakjes = gelezen.Kleur;
    PaginaTekst = gelezen.PaginaTekst;
}

bool SluitMain()
{
    if (PuzzelGewijzigd && MsgBox(u"Puzzel is gewijzigd, wil je toch afsluiten?"_s, Knoppen::JaNee, Icoon::Geen,
                                  u"Afsluiten"_s) != Antwoord::Ja)
        return false;
    // Settings that cannot be written are no reason to keep the program open: said, and ended all the same.
    Form::Voer(u"het bewaren van de instellingen"_s, [] { BewaarInstellingen(); });
    Klok::ProgrammaEindigt();
    return true;
}
