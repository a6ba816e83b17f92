#include "app/VoorbeeldBron.h"

#include "board/Algemeen.h"
#include "board/LangeIJ.h"
#include "board/Plaats.h"
#include "platform/Fout.h"
#include "platform/Teksten.h"

#include <QFile>
#include <QRegularExpression>
#include <QTextStream>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Voorbeeld {

namespace {

/// A line of the description.
struct Regel
{
    int Nummer; ///< from 1
    QStringList Velden;

    [[noreturn]] void Weiger(const QString &waarom) const
    {
        throw Fout(Fout::OngeldigeWaarde, u"regel %1: "_s.arg(Nummer) + waarom);
    }
    [[noreturn]] void WeigerVeld(qsizetype veld, const QString &waarom) const
    {
        Weiger(u'"' + Velden[veld] + u"\" "_s + waarom);
    }
    /// Whether the line has the first field and the number of fields of a form such as "naam|NAAM".
    bool Heeft(const QString &vorm) const
    {
        const QStringList velden = vorm.split(u'|');
        return Velden.size() == velden.size() && Velden[0] == velden[0];
    }
    void Eis(const QString &vorm) const
    {
        if (!Heeft(vorm))
            Weiger(u"hier hoort "_s + vorm);
    }
    int Getal(qsizetype veld, int van, int tot) const
    {
        bool isGetal = false;
        const int getal = Velden[veld].toInt(&isGetal);
        if (!isGetal || getal < van || getal > tot)
            WeigerVeld(veld, u"is geen getal van %1 tot en met %2"_s.arg(van).arg(tot));
        return getal;
    }
};

Cel LeesCel(const Regel &regel, const Puzzel &puzzel)
{
    for (int rij = 0; rij < puzzel.Hoogte; ++rij)
        for (int kolom = 0; kolom < puzzel.Breedte; ++kolom)
            if (regel.Velden[1] == KolomTekst(kolom) + u'-' + RijTekst(rij))
                return {kolom, rij};
    regel.WeigerVeld(1, u"is geen vakje van het bord"_s);
}

/// The name as a saved puzzle bears it, so that it is found again.
QString LeesNaam(const Regel &regel)
{
    static const QRegularExpression vorm(u"\\A[A-Z][a-z0-9]{0,39}\\z"_s);
    regel.Eis(u"naam|NAAM"_s);
    if (!vorm.match(regel.Velden[1]).hasMatch())
        regel.WeigerVeld(1, u"is geen naam: een hoofdletter, dan tot 39 kleine letters of cijfers"_s);
    return regel.Velden[1];
}

Vakje LeesVakje(const Regel &regel, const Puzzel &puzzel)
{
    regel.Eis(u"vak|PLAATS|SOORT|OMSCHRIJVING"_s);
    return {LeesCel(regel, puzzel), regel.Getal(2, 1, 8), QString(regel.Velden[3]).replace(u'\\', u'\n')};
}

Woord LeesWoord(const Regel &regel, const Puzzel &puzzel)
{
    regel.Eis(u"woord|PLAATS|H of V|OPLOSSING|OMSCHRIJVING"_s);
    Woord woord{LeesCel(regel, puzzel), regel.Velden[2] == "H"_L1, regel.Velden[3], regel.Velden[4]};
    if (!woord.Horizontaal && regel.Velden[2] != "V"_L1)
        regel.WeigerVeld(2, u"is geen richting: H of V"_s);
    const qsizetype letters = MetCode(KleineLetters(woord.Oplossing).remove(u' ')).size();
    if (letters == 0 || woord.Omschrijving.isEmpty())
        regel.Weiger(u"de oplossing of de omschrijving ontbreekt"_s);
    const int plek = woord.Horizontaal ? puzzel.Breedte - woord.Waar.Kolom : puzzel.Hoogte - woord.Waar.Rij;
    if (letters > plek)
        regel.WeigerVeld(3, u"past niet op het bord"_s);
    return woord;
}

/// A word of a word search. The engine places none of one letter, and none with a blank in it.
QString LeesZoekwoord(const Regel &regel, const Puzzel &puzzel)
{
    regel.Eis(u"woord|WOORD"_s);
    const QString &woord = regel.Velden[1];
    const auto isLetter = [](QChar c) { return c.isLetter(); };
    const int langste = std::max(puzzel.Breedte, puzzel.Hoogte);
    const qsizetype letters = AantalVakjes(woord);
    if (letters < 2 || letters > langste || !std::all_of(woord.begin(), woord.end(), isLetter))
        regel.WeigerVeld(1, u"is geen woord van 2 tot en met %1 letters"_s.arg(langste));
    return woord;
}

/// The sizes that the windows offer.
void LeesMaat(const Regel &regel, quint8 soort, Puzzel &puzzel)
{
    puzzel.Soort = soort;
    puzzel.Breedte = regel.Getal(1, 9, 16);
    puzzel.Hoogte = regel.Getal(2, 9, 19);
}

void LeesNiveau(const Regel &regel, Puzzel &puzzel)
{
    const QStringList niveaus{u"Gemakkelijk"_s, u"Normaal"_s, u"Moeilijk"_s};
    puzzel.Soort = Sudoku;
    puzzel.Niveau = static_cast<int>(niveaus.indexOf(regel.Velden[1]));
    if (puzzel.Niveau < 0)
        regel.WeigerVeld(1, u"is geen niveau: "_s + niveaus.join(u", "_s));
}

void LeesSoort(const Regel &regel, Puzzel &puzzel)
{
    const QString maat = u"maat|KOLOMMEN|RIJEN"_s, woordzoeker = u"woordzoeker|KOLOMMEN|RIJEN"_s,
                  sudoku = u"sudoku|NIVEAU"_s;
    if (regel.Heeft(maat))
        LeesMaat(regel, Zweeds, puzzel);
    else if (regel.Heeft(woordzoeker))
        LeesMaat(regel, Woordzoeker, puzzel);
    else if (regel.Heeft(sudoku))
        LeesNiveau(regel, puzzel);
    else
        regel.Weiger(u"hier hoort %1, %2 of %3"_s.arg(maat, woordzoeker, sudoku));
}

void LeesInhoud(const Regel &regel, Puzzel &puzzel)
{
    if (puzzel.Soort == Sudoku)
        regel.Weiger(u"een sudoku heeft verder niets"_s);
    else if (puzzel.Soort == Woordzoeker)
        puzzel.Zoekwoorden += LeesZoekwoord(regel, puzzel);
    else if (regel.Velden[0] == "vak"_L1)
        puzzel.Vakjes += LeesVakje(regel, puzzel);
    else if (regel.Velden[0] == "woord"_L1)
        puzzel.Woorden += LeesWoord(regel, puzzel);
    else
        regel.WeigerVeld(0, u"is geen vak of woord"_s);
}

void LeesRegel(const Regel &regel, Puzzel &puzzel)
{
    if (puzzel.Naam.isEmpty())
        puzzel.Naam = LeesNaam(regel);
    else if (puzzel.Soort == 0)
        LeesSoort(regel, puzzel);
    else
        LeesInhoud(regel, puzzel);
}

/// Whether something is still to come: then the description ends too early.
bool Ontbreekt(const Puzzel &puzzel)
{
    return puzzel.Soort == 0 || (puzzel.Soort == Woordzoeker && puzzel.Zoekwoorden.isEmpty());
}

} // namespace

Puzzel LeesBron(const QString &pad)
{
    const auto isDrukbaar = [](QChar c) { return c.isLetterOrNumber() || c.isPunct() || c.isSymbol() || c == u' '; };
    QFile bestand(pad);
    if (!bestand.open(QIODevice::ReadOnly))
        throw Fout(Fout::BestandNietGevonden, pad);
    QTextStream bron(&bestand);
    Puzzel puzzel;
    int nummer = 1;
    for (; !bron.atEnd(); ++nummer) {
        const QString tekst = bron.readLine();
        const Regel regel{nummer, tekst.split(u'|')};
        if (!std::all_of(tekst.begin(), tekst.end(), isDrukbaar))
            regel.Weiger(u"hier staat een teken dat niet te drukken is"_s);
        if (!tekst.trimmed().isEmpty())
            LeesRegel(regel, puzzel);
    }
    if (Ontbreekt(puzzel))
        LeesRegel({nummer, {}}, puzzel); // what was to come is missed there
    return puzzel;
}

} // namespace Voorbeeld
