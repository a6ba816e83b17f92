// Makes the sample puzzle through the windows of the program, and checks that a saved puzzle comes back whole.
//
//   voorbeeld maak BRON MAP        makes the puzzle that BRON tells and saves it in the folder Puzzels of MAP
//   voorbeeld bewaar BRON MAP      the same, and keeps in MAP/controle what stood on the screen
//   voorbeeld controleer BRON MAP  opens the saved puzzle and compares it with what was kept
//
// BRON has one entry a line, fields separated by "|": the name, the size, then cells and words. Blank lines are passed
// over.
//   naam|NAME   maat|COLUMNS|ROWS   vak|A-01|KIND|clue, its lines separated by "\"   woord|A-01|H or V|solution|clue

#include "board/Algemeen.h"
#include "board/LangeIJ.h"
#include "board/MainForm.h"
#include "board/NieuwForm.h"
#include "board/Plaats.h"
#include "documents/OpenFile.h"
#include "documents/SaveForm.h"
#include "editors/TekstForm.h"
#include "editors/VakForm.h"
#include "platform/Berichten.h"
#include "platform/Files.h"
#include "platform/Fout.h"
#include "platform/Klok.h"
#include "platform/Teksten.h"
#include "platform/Uiterlijk.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTextStream>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QTextStream uit(stdout);

/// Says yes to every question, and keeps what it was told.
class JaBerichten : public Berichten
{
public:
    Antwoord Vraag(const QString &tekst, Knoppen knoppen, Icoon, const QString &) override
    {
        if (knoppen == Knoppen::JaNee)
            return Antwoord::Ja;
        throw Fout(Fout::OngeldigeWaarde, tekst);
    }
};

/// A cell, counted from 0.
struct Cel
{
    int Kolom = 0, Rij = 0;
};

struct Vakje
{
    Cel Waar;
    int Soort; ///< 1..8
    QString Omschrijving;
};

struct Woord
{
    Cel Waar;
    bool Horizontaal;
    QString Oplossing, Omschrijving;
};

/// What a description tells. Everything in it is right: the cells are on the board and the words fit.
struct Puzzel
{
    QString Naam;
    int Breedte = 0, Hoogte = 0;
    QList<Vakje> Vakjes;
    QList<Woord> Woorden;
};

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
    /// Refuses the line unless it has the first field and the number of fields of a form such as "naam|NAAM".
    void Eis(const QString &vorm) const
    {
        const QStringList velden = vorm.split(u'|');
        if (Velden.size() != velden.size() || Velden[0] != velden[0])
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

void LeesRegel(const Regel &regel, Puzzel &puzzel)
{
    if (puzzel.Naam.isEmpty()) {
        puzzel.Naam = LeesNaam(regel);
    } else if (puzzel.Breedte == 0) {
        regel.Eis(u"maat|KOLOMMEN|RIJEN"_s); // the sizes that the window for a new puzzle offers
        puzzel.Breedte = regel.Getal(1, 9, 16);
        puzzel.Hoogte = regel.Getal(2, 9, 19);
    } else if (regel.Velden[0] == "vak"_L1) {
        puzzel.Vakjes += LeesVakje(regel, puzzel);
    } else if (regel.Velden[0] == "woord"_L1) {
        puzzel.Woorden += LeesWoord(regel, puzzel);
    } else {
        regel.WeigerVeld(0, u"is geen vak of woord"_s);
    }
}

/// Reads a whole description. Raises Fout::OngeldigeWaarde, with the number of the line, at the first thing wrong.
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
    if (puzzel.Breedte == 0)
        LeesRegel({nummer, {}}, puzzel); // it ends too early: what was to come is missed there
    return puzzel;
}

void WijsAan(Cel cel)
{
    Main().Pic_MouseMove(cel.Kolom * VakMaat + VakMaat / 2.0, cel.Rij * VakMaat + VakMaat / 2.0);
}

void MaakVakje(const Vakje &vakje)
{
    WijsAan(vakje.Waar);
    VakForm form;
    form.HScroll1->setValue(vakje.Soort);
    form.Text1->SetText(vakje.Omschrijving);
    form.OkKnop_Click();
}

void MaakWoord(const Woord &woord)
{
    WijsAan(woord.Waar);
    TekstForm form;
    form.Option[woord.Horizontaal ? 0 : 1]->setChecked(true);
    form.Text2->setText(woord.Oplossing);
    form.Text1->setText(woord.Omschrijving);
    form.OkKnop_Click();
}

void MaakPuzzel(const Puzzel &puzzel)
{
    NieuwForm nieuw;
    nieuw.Text1->setText(puzzel.Naam);
    nieuw.Combo1->setEditText(QString::number(puzzel.Breedte));
    nieuw.Combo2->setEditText(QString::number(puzzel.Hoogte));
    nieuw.OkKnop_Click();
    for (const Vakje &vakje : puzzel.Vakjes)
        MaakVakje(vakje);
    for (const Woord &woord : puzzel.Woorden)
        MaakWoord(woord);
    SaveForm bewaar;
    bewaar.SaveKnop_Click();
    const QString bestand = Files::Pad(AppPath, {u"Puzzels"_s, puzzel.Naam + u".lst"_s});
    if (!BestandBestaat(bestand)) // the window passes over what could not be written
        throw Fout(Fout::SchijfFout, bestand);
}

QString LijstTekst()
{
    QString tekst;
    for (const Rij &rij : Main().Rijen())
        tekst += QStringList{rij.Vaknummer, rij.Omschrijving, rij.Oplossing, rij.Nr}.join(u'\t') + u'\n';
    return tekst;
}

void Bewaar(const QString &map)
{
    QFile lijst(map + u"/lijst.txt"_s);
    const bool gelukt = Main().Pic->Image().save(map + u"/Pic.png"_s) &&
                        Main().PicGroot->Image().save(map + u"/PicGroot.png"_s) && lijst.open(QIODevice::WriteOnly) &&
                        lijst.write(LijstTekst().toUtf8()) >= 0;
    if (!gelukt)
        throw Fout(Fout::SchijfFout, map);
}

bool Vergelijk(const QString &map)
{
    const auto gelijk = [](const QString &wat, bool is) {
        uit << wat << (is ? ": gelijk\n" : ": VERSCHIL\n");
        return is;
    };
    const auto beeld = [&map](const char *naam) {
        return QImage(map + QLatin1String(naam)).convertToFormat(QImage::Format_RGB32);
    };
    QFile lijst(map + u"/lijst.txt"_s);
    const bool open = lijst.open(QIODevice::ReadOnly);
    bool alles = gelijk(u"zichtbaar puzzelveld, beeldpunt voor beeldpunt"_s, Main().Pic->Image() == beeld("/Pic.png"));
    alles &=
        gelijk(u"orgineel puzzelveld, beeldpunt voor beeldpunt"_s, Main().PicGroot->Image() == beeld("/PicGroot.png"));
    alles &= gelijk(u"lijst van %1 woorden, rij voor rij"_s.arg(Main().ListView1->topLevelItemCount()),
                    open && QString::fromUtf8(lijst.readAll()) == LijstTekst());
    return alles;
}

bool Controleer(const QString &naam, const QString &map)
{
    OpenFile open;
    for (int i = 0; i < open.List1->ListCount(); ++i)
        if (open.List1->List(i) == naam)
            open.List1->SetListIndex(i);
    open.OkKnop_Click();
    const QString venster = map + u"/venster.png"_s;
    Main().resize(Main().maximumSize()); // the window as it is on a screen that has room for all of it
    if (!Main().grab().save(venster))
        throw Fout(Fout::SchijfFout, venster);
    uit << "venster: " << venster << '\n';
    return Vergelijk(map);
}

int Voer(const QStringList &argumenten)
{
    const QStringList opdrachten{u"maak"_s, u"bewaar"_s, u"controleer"_s};
    if (argumenten.size() != 4 || !opdrachten.contains(argumenten[1]))
        throw Fout(Fout::OngeldigArgument, u"voorbeeld maak|bewaar|controleer BRON MAP"_s);
    const QString &wat = argumenten[1];
    const Puzzel puzzel = LeesBron(argumenten[2]);
    AppPath = QDir(argumenten[3]).absolutePath();
    qputenv("HOME", AppPath.toLocal8Bit()); // the JPEG goes to the folder Pictures in it, not to the user's own
    qunsetenv("XDG_CONFIG_HOME");
    const QString controle = AppPath + u"/controle"_s;
    MainForm main;
    BeginWaarden();
    if (wat == "controleer"_L1)
        return Controleer(puzzel.Naam, controle) ? 0 : 1;
    MaakPuzzel(puzzel);
    if (wat == "bewaar"_L1) {
        QDir().mkpath(controle);
        Bewaar(controle);
    }
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    StelUiterlijkIn();
    DirecteKlok klok;
    Klok::Gebruik(&klok);
    JaBerichten berichten;
    Berichten::Gebruik(&berichten);
    try {
        return Voer(QCoreApplication::arguments());
    } catch (const Fout &fout) {
        uit << "voorbeeld: " << fout.tekst() << '\n';
        return 1;
    }
}
