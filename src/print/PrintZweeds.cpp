#include "platform/Kleur.h"
#include "print/Pagina.h"
#include "print/PrintTaken.h"

#include <QRectF>

using namespace Qt::StringLiterals;

// A page of the list:
//
//      Vaknummer    Omschrijving             Oplossing
//    --------------------------------------------------
//      C-07 / 99-H  huisdier                 hond
static constexpr int KolomVaknummer = 600, KolomOmschrijving = 2400, KolomOplossing = 5700;
static constexpr int EersteRij = 1380, RijHoogte = 255;

static void PrintLijstKop(Pagina &pagina)
{
    pagina.ZetLetter({.Naam = u"Arial"_s, .Punten = 10, .Vet = true, .Kleur = RGB(90, 90, 90)});
    pagina.PrintOp(KolomVaknummer, 900, u"Vaknummer"_s);
    pagina.PrintOp(KolomOmschrijving, 900, u"Omschrijving"_s);
    pagina.PrintOp(KolomOplossing, 900, u"Oplossing"_s);
    pagina.PrintOp(300, 1140, QString(162, u'-'));
    pagina.ZetLetter({.Vet = false});
}

// A text that is too long for its column runs on into the next one, wanted so. The row that fills a page begins the
// next one, also when it is the last.
static void PrintLijst(Pagina &pagina, const QList<Rij> &rijen)
{
    PrintLijstKop(pagina);
    int Y = EersteRij;
    for (const Rij &rij : rijen) {
        pagina.PrintOp(KolomVaknummer, Y, rij.Vaknummer);
        pagina.PrintOp(KolomOmschrijving, Y, rij.Omschrijving);
        pagina.PrintOp(KolomOplossing, Y, rij.Oplossing);
        Y += RijHoogte;
        if (Y > 15000) {
            pagina.VolgendBlad();
            PrintLijstKop(pagina);
            Y = EersteRij;
        }
    }
}

void PrintZweeds(PagedCanvas &blad, const Drukwerk &werk)
{
    PrintPaginaKop(blad, werk);
    Pagina pagina(blad, werk);
    pagina.PrintBord(werk.Pic, 600);
    pagina.VolgendBlad();
    pagina.PrintBeeld(werk.PicGroot, QRectF(600, 600, 10200, 14400)); // fills the sheet whatever the board's shape
    pagina.VolgendBlad();
    PrintLijst(pagina, werk.Rijen);
    pagina.SluitAf();
}
