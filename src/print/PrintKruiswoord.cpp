#include "platform/Fout.h"
#include "platform/Getallen.h"
#include "platform/Kleur.h"
#include "platform/Teksten.h"
#include "print/Pagina.h"
#include "print/PrintTaken.h"

using namespace Qt::StringLiterals;

// A row whose number is none has that of the row before. The columns have no end: a long list runs off the sheet.
static void PrintOmschrijvingen(Pagina &pagina, const QList<Rij> &rijen)
{
    struct Kolom
    {
        QChar Richting;
        QString Kop;
        int X, Y = 900;
    };
    Kolom kolommen[]{{u'H', u"Horizontaal"_s, 600}, {u'V', u"Vertikaal"_s, 4200}};
    pagina.ZetLetter({.Punten = 9, .Vet = true, .Kleur = RGB(0, 0, 0)});
    for (const Kolom &kolom : kolommen)
        pagina.PrintOp(kolom.X, 600, kolom.Kop);
    pagina.ZetLetter({.Vet = false});
    qint32 N = 0;
    for (const Rij &rij : rijen) {
        pagina.ZetLetter({.Punten = 8, .Kleur = RGB(50, 50, 50)});
        negeer([&] { N = Getallen::NaarInt32(rij.Nr); });
        const int inspringing = N < 10 ? 90 : 0;
        for (Kolom &kolom : kolommen) {
            if (!rij.Vaknummer.endsWith(kolom.Richting))
                continue;
            pagina.PrintOp(kolom.X + inspringing, kolom.Y,
                           QString::number(N) + u". "_s + KleineLetters(rij.Omschrijving));
            kolom.Y += 210;
        }
    }
}

void PrintKruiswoord(PagedCanvas &blad, const Drukwerk &werk)
{
    PrintPaginaKop(blad, werk);
    Pagina pagina(blad, werk);
    pagina.PrintBord(werk.PicGroot, 600);
    pagina.VolgendBlad();
    PrintOmschrijvingen(pagina, werk.Rijen);
    pagina.SluitAf();
}
