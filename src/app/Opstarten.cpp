#include "app/Opstarten.h"

#include "app/Instellingen.h"
#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "board/Raster.h"
#include "platform/Berichten.h"
#include "platform/Files.h"
#include "platform/Klok.h"

static QString InstellingenPad()
{
    return Files::Pad(AppPath, {QStringLiteral("Rasteratelier.ini")});
}

static void BewaarInstellingen()
{
    Files::Schrijf(InstellingenPad(),
                   SchrijfInstellingen({OrgineelRood, OrgineelGroen, OrgineelBlauw, KleurVakjes, PaginaTekst}));
}

void LaadMain()
{
    BeginWaarden();
    TekenRaster(BoardWidth, BoardHeight);
    TekenGroot(BoardWidth, BoardHeight);
    if (!Files::FileExists(InstellingenPad())) {
        BewaarInstellingen();
        return;
    }
    Instellingen gelezen;
    try {
        gelezen = LeesInstellingen(Files::Lees(InstellingenPad()));
    } catch (const Fout &fout) {
        throw Fout(fout.nummer(), QStringLiteral("het instellingenbestand ") + InstellingenPad());
    }
    OrgineelRood = gelezen.Rood;
    OrgineelGroen = gelezen.Groen;
    OrgineelBlauw = gelezen.Blauw;
    KleurVakjes = gelezen.Kleur;
    PaginaTekst = gelezen.PaginaTekst;
}

bool SluitMain()
{
    if (PuzzelGewijzigd && MsgBox(QStringLiteral("Puzzel is gewijzigd, wil je toch afsluiten?"), Knoppen::JaNee,
                                  Icoon::Geen, QStringLiteral("Afsluiten")) != Antwoord::Ja)
        return false;
    // Settings that cannot be written are no reason to keep the program open: said, and ended all the same.
    Form::Voer(QStringLiteral("het bewaren van de instellingen"), [] { BewaarInstellingen(); });
    Klok::ProgrammaEindigt();
    return true;
}
