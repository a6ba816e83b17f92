#include "print/Pagina.h"

#include "board/PaginaVoet.h"
#include "platform/Fout.h"
#include "platform/Kleur.h"
#include "platform/Twips.h"

#include <QRectF>

using namespace Qt::StringLiterals;

void PrintPaginaKop(PagedCanvas &blad, const Drukwerk &werk)
{
    blad.Titel = werk.PuzzelNaam;
    blad.SetScaleMode(ScaleModes::Twips);
    blad.ZetLetter({.Naam = u"Arial"_s, .Punten = 12, .Vet = true, .Kleur = RGB(0, 0, 90)});
    blad.PrintOp(600, 300, u"Puzzelnaam : "_s + werk.PuzzelNaam);
    if (!werk.MetTijd)
        return;
    blad.ZetLetter({.Kleur = RGB(90, 0, 0)});
    blad.PrintOp(9000, 300, werk.Nu.toString(u"HH:mm:ss / dd-MM-yyyy"_s));
}

void Pagina::PrintOp(double x, double y, const QString &tekst)
{
    negeer([&] { blad_.PrintOp(x, y, tekst); });
}

void Pagina::PrintBeeld(const QImage &beeld, const QRectF &doel)
{
    const QRectF geheel(0, 0, Twips::VanPixels(beeld.width()), Twips::VanPixels(beeld.height()));
    negeer([&] { blad_.PaintPicture(beeld, doel, geheel); });
}

void Pagina::PrintBord(const QImage &beeld, int maat, int boven)
{
    PrintBeeld(beeld, QRectF(600, boven, werk_.BoardWidth * maat, werk_.BoardHeight * maat));
}

void Pagina::PrintVoet()
{
    negeer([this] { PrintPaginaVoet(blad_, werk_.PaginaTekst); });
}

void Pagina::VolgendBlad()
{
    PrintVoet();
    negeer([this] { blad_.NewPage(); });
}

void Pagina::SluitAf()
{
    PrintVoet();
    negeer([this] { blad_.EndDoc(); });
}
