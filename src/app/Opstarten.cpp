#include "app/Opstarten.h"

#include "app/Instellingen.h"
#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "board/Raster.h"
#include "platform/Berichten.h"
#include "platform/Files.h"
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
    BeginWaarden();
    TekenBord(BoardWidth, BoardHeight);
    if (!Files::FileExists(InstellingenPad())) {
        BewaarInstellingen();
        return;
    }
    Instellingen gelezen;
    try {
        gelezen = LeesInstellingen(Files::Lees(InstellingenPad()));
    } catch (const Fout &fout) {
        throw Fout(fout.nummer(), u"het instellingenbestand "_s + InstellingenPad());
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
