#include "app/VoorbeeldBron.h"

#include "board/Algemeen.h"
#include "board/LangeIJ.h"
#include "board/Plaats.h"
#include "platform/CodePage.h"
#include "platform/Fout.h"
#include "platform/Teksten.h"
#include "platform/Velden.h"

#include <QFile>
#include <QRegularExpression>
#include <QTextStream>

#include <algorithm>
#include <map>

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

Cel LeesCel(const Regel &regel, qsizetype veld, const Puzzel &puzzel)
{
    for (int rij = 0; rij < puzzel.Hoogte; ++rij)
        for (int kolom = 0; kolom < puzzel.Breedte; ++kolom)
            if (regel.Velden[veld] == KolomTekst(kolom) + u'-' + RijTekst(rij))
                return {kolom, rij};
    regel.WeigerVeld(veld, u"is geen vakje van het bord"_s);
}

/// The name as a saved puzzle bears it, so that it is found again.
QString LeesNaam(const Regel &regel)
{
    static const QRegularExpression vorm(u"\\A[A-Z][a-z0-9]{0,39}\\z"_s);
    if (!vorm.match(regel.Velden[1]).hasMatch())
        regel.WeigerVeld(1, u"is geen naam: een hoofdletter, dan tot 39 kleine letters of cijfers"_s);
    return regel.Velden[1];
}

Vakje LeesVakje(const Regel &regel, const Puzzel &puzzel)
{
    regel.Eis(u"vak|PLAATS|SOORT|OMSCHRIJVING"_s);
    return {LeesCel(regel, 1, puzzel), regel.Getal(2, 1, 8), QString(regel.Velden[3]).replace(u'\\', u'\n')};
}

/// Puts the letters of a word on the board, with "?" for the long IJ. They have to be those of the words it crosses.
void LegLetters(const Regel &regel, qsizetype veld, Cel cel, bool horizontaal, Puzzel &puzzel)
{
    const QString letters = MetCode(KleineLetters(regel.Velden[veld]).remove(u' '));
    const int plek = horizontaal ? puzzel.Breedte - cel.Kolom : puzzel.Hoogte - cel.Rij;
    if (letters.size() > plek)
        regel.WeigerVeld(veld, u"past niet op het bord"_s);
    for (const QChar letter : letters) {
        QChar &hier = puzzel.Letters[puzzel.Vak(cel)];
        if (!hier.isNull() && hier != letter)
            regel.WeigerVeld(veld, u"heeft op %1-%2 een andere letter dan het woord dat er kruist"_s.arg(
                                       KolomTekst(cel.Kolom), RijTekst(cel.Rij)));
        hier = letter;
        ++(horizontaal ? cel.Kolom : cel.Rij);
    }
}

/// A text of the entry list has to come back out of the puzzle file, where a comma ends a field.
void EisVeld(const Regel &regel, qsizetype veld)
{
    const QByteArray bytes = Files::NaarBytes(regel.Velden[veld]);
    Files::VeldLezer lezer(bytes);
    if (lezer.Tekst() != regel.Velden[veld] || !lezer.Einde())
        regel.WeigerVeld(veld, u"komt zo niet terug uit het puzzelbestand"_s);
}

Woord LeesWoord(const Regel &regel, Puzzel &puzzel)
{
    regel.Eis(u"woord|PLAATS|H of V|OPLOSSING|OMSCHRIJVING"_s);
    Woord woord{LeesCel(regel, 1, puzzel), regel.Velden[2] == "H"_L1, regel.Velden[3], regel.Velden[4]};
    if (!woord.Horizontaal && regel.Velden[2] != "V"_L1)
        regel.WeigerVeld(2, u"is geen richting: H of V"_s);
    if (woord.Oplossing.trimmed().isEmpty() || woord.Omschrijving.isEmpty())
        regel.Weiger(u"de oplossing of de omschrijving ontbreekt"_s);
    EisVeld(regel, 3);
    EisVeld(regel, 4);
    LegLetters(regel, 3, woord.Waar, woord.Horizontaal, puzzel);
    return woord;
}

/// The editor of a Filippine takes a word as it is typed.
void EisKleineLetters(const Regel &regel, qsizetype veld)
{
    const QString &woord = regel.Velden[veld];
    if (woord.isEmpty() || !std::all_of(woord.begin(), woord.end(), [](QChar c) { return c.isLower(); }))
        regel.WeigerVeld(veld, u"is geen woord van kleine letters"_s);
}

/// The answer of the next letter of the search word: it stands in the row of that letter and goes through it.
Woord LeesAntwoord(const Regel &regel, Puzzel &puzzel)
{
    regel.Eis(u"antwoord|PLAATS|OPLOSSING|OMSCHRIJVING"_s);
    Woord woord{LeesCel(regel, 1, puzzel), true, regel.Velden[2], regel.Velden[3]};
    const Cel letter{puzzel.WaarZoekwoord.Kolom, puzzel.WaarZoekwoord.Rij + static_cast<int>(puzzel.Woorden.size())};
    if (woord.Omschrijving.isEmpty())
        regel.Weiger(u"de omschrijving ontbreekt"_s);
    EisVeld(regel, 3);
    EisKleineLetters(regel, 2);
    if (woord.Waar.Rij != letter.Rij)
        regel.WeigerVeld(
            1, u"is niet op rij %1, die van de volgende letter van het zoekwoord"_s.arg(RijTekst(letter.Rij)));
    const int einde = woord.Waar.Kolom + static_cast<int>(MetCode(woord.Oplossing).size());
    if (letter.Kolom <= woord.Waar.Kolom || letter.Kolom > einde)
        regel.WeigerVeld(2, u"gaat niet door het zoekwoord"_s);
    LegLetters(regel, 2, {woord.Waar.Kolom + 1, woord.Waar.Rij}, true, puzzel);
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

void LeesFilippine(const Regel &regel, Puzzel &puzzel)
{
    puzzel.Soort = Filippine;
    puzzel.Breedte = 16;
    puzzel.Hoogte = 19;
    puzzel.LegeNaam = LeesNaam(regel);
    if (puzzel.LegeNaam == puzzel.Naam)
        regel.WeigerVeld(1, u"is al de naam van de puzzel"_s);
    puzzel.WaarZoekwoord = LeesCel(regel, 2, puzzel);
    EisKleineLetters(regel, 3);
    puzzel.Zoekwoord = regel.Velden[3];
    LegLetters(regel, 3, puzzel.WaarZoekwoord, false, puzzel);
}

void LeesSoort(const Regel &regel, Puzzel &puzzel)
{
    const QString maat = u"maat|KOLOMMEN|RIJEN"_s, kruiswoord = u"kruiswoord|KOLOMMEN|RIJEN"_s,
                  woordzoeker = u"woordzoeker|KOLOMMEN|RIJEN"_s, sudoku = u"sudoku|NIVEAU"_s,
                  filippine = u"filippine|LEGE NAAM|PLAATS|ZOEKWOORD"_s;
    if (regel.Heeft(maat))
        LeesMaat(regel, Zweeds, puzzel);
    else if (regel.Heeft(kruiswoord))
        LeesMaat(regel, Kruiswoord, puzzel);
    else if (regel.Heeft(woordzoeker))
        LeesMaat(regel, Woordzoeker, puzzel);
    else if (regel.Heeft(sudoku))
        LeesNiveau(regel, puzzel);
    else if (regel.Heeft(filippine))
        LeesFilippine(regel, puzzel);
    else
        regel.Weiger(u"hier hoort %1, %2, %3, %4 of %5"_s.arg(maat, kruiswoord, woordzoeker, sudoku, filippine));
}

/// Whether all is there that has to be. Otherwise the description ends too early.
bool IsCompleet(const Puzzel &puzzel)
{
    switch (puzzel.Soort) {
    case Woordzoeker:
        return !puzzel.Zoekwoorden.isEmpty();
    case Kruiswoord:
        return !puzzel.Woorden.isEmpty();
    case Filippine:
        return puzzel.Woorden.size() == MetCode(puzzel.Zoekwoord).size();
    default:
        return puzzel.Soort != 0;
    }
}

void LeesInhoud(const Regel &regel, Puzzel &puzzel)
{
    if (puzzel.Soort == Sudoku)
        regel.Weiger(u"een sudoku heeft verder niets"_s);
    else if (IsCompleet(puzzel) && puzzel.Soort == Filippine)
        regel.Weiger(u"elke letter van het zoekwoord heeft al een antwoord"_s);
    else if (puzzel.Soort == Filippine)
        puzzel.Woorden += LeesAntwoord(regel, puzzel);
    else if (puzzel.Soort == Woordzoeker)
        puzzel.Zoekwoorden += LeesZoekwoord(regel, puzzel);
    else if (puzzel.Soort == Kruiswoord || regel.Velden[0] == "woord"_L1)
        puzzel.Woorden += LeesWoord(regel, puzzel);
    else if (regel.Velden[0] == "vak"_L1)
        puzzel.Vakjes += LeesVakje(regel, puzzel);
    else
        regel.WeigerVeld(0, u"is geen vak of woord"_s);
}

void LeesRegel(const Regel &regel, Puzzel &puzzel)
{
    if (puzzel.Naam.isEmpty()) {
        regel.Eis(u"naam|NAAM"_s);
        puzzel.Naam = LeesNaam(regel);
    } else if (puzzel.Soort == 0) {
        LeesSoort(regel, puzzel);
    } else {
        LeesInhoud(regel, puzzel);
    }
}

/// Numbers the cells where a word begins, row by row.
void Nummer(const Regel &laatste, Puzzel &puzzel)
{
    constexpr qsizetype Hoogste = 99; // of the windows
    std::map<int, int> nummers;
    for (const Woord &woord : puzzel.Woorden)
        nummers[puzzel.Vak(woord.Waar)] = 0;
    if (std::ssize(nummers) > Hoogste)
        laatste.Weiger(u"er beginnen woorden op meer dan %1 vakjes"_s.arg(Hoogste));
    int nummer = 0;
    for (auto &[vak, eigen] : nummers)
        eigen = ++nummer;
    for (Woord &woord : puzzel.Woorden)
        woord.Nummer = nummers[puzzel.Vak(woord.Waar)];
}

} // namespace

Puzzel LeesBron(const QString &pad)
{
    const auto isDrukbaar = [](QChar c) {
        return Files::InCodePage(c) && (c.isLetterOrNumber() || c.isPunct() || c.isSymbol() || c == u' ');
    };
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
    if (!IsCompleet(puzzel))
        LeesRegel({nummer, {QString()}}, puzzel); // what was to come is missed there
    if (puzzel.Soort == Kruiswoord)
        Nummer({nummer - 1, {}}, puzzel);
    return puzzel;
}

} // namespace Voorbeeld
