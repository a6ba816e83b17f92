// Makes a sample puzzle through the windows of the program, and checks that a saved puzzle comes back whole.
//
//   voorbeeld maak BRON MAP        makes the puzzle that BRON tells and saves it in the folder Puzzels of MAP
//   voorbeeld bewaar BRON MAP      the same, writes its web page in the folder Html, and keeps what stood on the screen
//   voorbeeld controleer BRON MAP  opens the saved puzzle and compares it with what was kept
//   voorbeeld druk BRON MAP        opens the saved puzzle and prints it to a PDF file, with all that can be printed
//
// BRON is a description, see VoorbeeldBron.h. What is kept stands in MAP/controle, in a folder of the puzzle's name;
// what is printed in MAP/Afdrukken.

#include "app/VoorbeeldBron.h"
#include "app/VoorbeeldMaken.h"
#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "documents/OpenFile.h"
#include "platform/Berichten.h"
#include "platform/Fout.h"
#include "platform/Klok.h"
#include "platform/Uiterlijk.h"
#include "print/Afdrukken.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QTextStream uit(stdout);

QString AfdrukMap()
{
    return AppPath + u"/Afdrukken/"_s;
}

/// Says yes to every question, and where a file is to come; any other message is a failure.
class JaBerichten : public Berichten
{
public:
    Antwoord Vraag(const QString &tekst, Knoppen knoppen, Icoon, const QString &) override
    {
        if (knoppen == Knoppen::JaNee)
            return Antwoord::Ja;
        throw Fout(Fout::OngeldigeWaarde, tekst);
    }
    QString VraagBestand(const QString &, const QString &voorstel, const QString &) override
    {
        return AfdrukMap() + QFileInfo(voorstel).fileName();
    }
};

QString LijstTekst()
{
    QString tekst;
    for (const Rij &rij : Main().Rijen())
        tekst += QStringList{rij.Vaknummer, rij.Omschrijving, rij.Oplossing, rij.Nr}.join(u'\t') + u'\n';
    return tekst;
}

/// Where is kept what stood on the screen when a puzzle was saved.
QString ControleMap(const QString &naam)
{
    return AppPath + u"/controle/"_s + naam;
}

void Bewaar(const QString &map)
{
    QDir().mkpath(map);
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

void Open(const QString &naam)
{
    OpenFile open;
    for (int i = 0; i < open.List1->ListCount(); ++i)
        if (open.List1->List(i) == naam)
            open.List1->SetListIndex(i);
    open.OkKnop_Click();
}

void Druk(const QString &naam)
{
    const QString pad = AfdrukMap() + naam + u".pdf"_s;
    QDir().mkpath(AfdrukMap());
    QFile::remove(pad);
    Open(naam);
    Afdrukken afdrukken;
    afdrukken.Combo2->setCurrentIndex(afdrukken.Combo2->count() - 1); // the PDF file
    afdrukken.Check1->setChecked(true);
    afdrukken.Check2->setChecked(true);
    afdrukken.PrintKnop_Click();
    if (!QFileInfo::exists(pad)) // the window passes over what could not be written
        throw Fout(Fout::SchijfFout, pad);
    uit << "afdruk: " << pad << '\n';
}

bool Controleer(const QString &naam)
{
    const QString map = ControleMap(naam);
    Open(naam);
    const QString venster = map + u"/venster.png"_s;
    Main().resize(Main().maximumSize()); // the window as it is on a screen that has room for all of it
    if (!Main().grab().save(venster))
        throw Fout(Fout::SchijfFout, venster);
    uit << "venster: " << venster << '\n';
    return Vergelijk(map);
}

bool ControleerAlles(const QStringList &namen)
{
    return std::count_if(namen.begin(), namen.end(), Controleer) == namen.size(); // each of them, whatever came before
}

int Voer(const QStringList &argumenten)
{
    const QStringList opdrachten{u"maak"_s, u"bewaar"_s, u"controleer"_s, u"druk"_s};
    if (argumenten.size() != 4 || !opdrachten.contains(argumenten[1]))
        throw Fout(Fout::OngeldigArgument, u"voorbeeld maak|bewaar|controleer|druk BRON MAP"_s);
    const QString &wat = argumenten[1];
    const Voorbeeld::Puzzel puzzel = Voorbeeld::LeesBron(argumenten[2]);
    AppPath = QDir(argumenten[3]).absolutePath();
    qputenv("HOME", AppPath.toLocal8Bit()); // the JPEG goes to the folder Pictures in it, not to the user's own
    qunsetenv("XDG_CONFIG_HOME");
    MainForm main;
    BeginWaarden();
    if (wat == "controleer"_L1)
        return ControleerAlles(puzzel.Namen()) ? 0 : 1;
    if (wat == "druk"_L1) {
        for (const QString &naam : puzzel.Namen())
            Druk(naam);
        return 0;
    }
    const bool houdt = wat == "bewaar"_L1;
    Voorbeeld::MaakPuzzel(puzzel, [houdt](const QString &naam) {
        if (houdt)
            Bewaar(ControleMap(naam));
    });
    if (houdt)
        Voorbeeld::MaakPagina();
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
