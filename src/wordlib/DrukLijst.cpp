#include "wordlib/DrukLijst.h"

#include "board/Algemeen.h"
#include "board/PaginaVoet.h"
#include "platform/Kleur.h"
#include "platform/Klok.h"
#include "platform/PagedCanvas.h"

using namespace Qt::StringLiterals;

static constexpr int EersteKolom = 300, KolomBreedte = 3000;
static constexpr int RijHoogte = 270;

static void PrintWoord(PagedCanvas &blad, const QString &woord)
{
    blad.ZetLetter({.Punten = 10, .Vet = false, .Kleur = RGB(90, 90, 90)});
    blad.PrintOp(PosX, PosY, woord);
    PosX += KolomBreedte;
    if (PosX > 12000) {
        PosX = EersteKolom;
        PosY += RijHoogte;
    }
    if (PosY > 15000) {
        PrintPaginaVoet(blad, PaginaTekst);
        blad.NewPage();
        PosY = 300;
    }
}

void DrukLijst(PagedCanvas &blad, const QString &titel, const QStringList &woorden)
{
    blad.Titel = titel;
    blad.SetScaleMode(ScaleModes::Twips);
    blad.ZetLetter({.Naam = u"Arial"_s, .Punten = 16, .Vet = true, .Kleur = RGB(0, 0, 90)});
    blad.PrintOp(300, 300, titel);
    blad.ZetLetter({.Punten = 10, .Kleur = RGB(90, 0, 0)});
    blad.PrintOp(9150, 300, Klok::Huidig().Nu().toString(u"dd-MM-yyyy / HH:mm:ss"_s));
    PosX = EersteKolom;
    PosY = 900;
    for (const QString &woord : woorden)
        PrintWoord(blad, woord);
    PrintPaginaVoet(blad, PaginaTekst);
    blad.EndDoc();
}
