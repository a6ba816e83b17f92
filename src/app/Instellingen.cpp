#include "app/Instellingen.h"

#include "platform/Velden.h"

using namespace Qt::StringLiterals;

Instellingen LeesInstellingen(const QByteArray &inhoud)
{
    Files::VeldLezer lezer(inhoud);
    lezer.Tekst();
    lezer.Tekst();
    Instellingen instellingen;
    instellingen.Rood = lezer.Int16();
    instellingen.Groen = lezer.Int16();
    instellingen.Blauw = lezer.Int16();
    instellingen.Kleur = lezer.Byte();
    instellingen.PaginaTekst = lezer.Tekst();
    return instellingen;
}

QByteArray SchrijfInstellingen(const Instellingen &instellingen)
{
    Files::VeldSchrijver schrijver;
    schrijver.Regel(u"Tessel Hoeksma Software 2017"_s);
    schrijver.Regel(QString(26, u'-'));
    schrijver.Regel({instellingen.Rood, instellingen.Groen, instellingen.Blauw});
    schrijver.Regel({instellingen.Kleur});
    schrijver.Regel(instellingen.PaginaTekst);
    return schrijver.Inhoud();
}
