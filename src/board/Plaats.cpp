#include "board/Plaats.h"

#include "platform/Getallen.h"

using namespace Qt::StringLiterals;

QString RijTekst(int rij)
{
    return u"%1"_s.arg(rij + 1, 2, 10, QChar(u'0'));
}

QString KolomTekst(int kolom)
{
    return QString(QChar(static_cast<char16_t>(u'A' + kolom)));
}

QString PlaatsTekst(int kolom, int rij, int vak)
{
    return u"%1-%2 / %3"_s.arg(KolomTekst(kolom), RijTekst(rij)).arg(vak);
}

Plaats LeesPlaats(const QString &tekst)
{
    return {.Kolom = double(tekst.front().unicode()) - u'A',
            .Rij = Getallen::Val(QStringView(tekst).mid(2, 2)) - 1,
            .Richting = tekst.back()};
}
