// Makes the sample puzzle through the windows of the program, and checks that a saved puzzle comes back whole.
//
//   voorbeeld maak BRON MAP        makes the puzzle that BRON tells and saves it in the folder Puzzels of MAP
//   voorbeeld bewaar BRON MAP      the same, and keeps in MAP/controle what stood on the screen
//   voorbeeld controleer BRON MAP  opens the saved puzzle and compares it with what was kept
//
// BRON has one entry a line, fields separated by "|":
//   naam|NAME   maat|COLUMNS|ROWS   vak|A-01|KIND|clue, its lines separated by "\"   woord|A-01|H or V|solution|clue

#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "board/NieuwForm.h"
#include "documents/OpenFile.h"
#include "documents/SaveForm.h"
#include "editors/TekstForm.h"
#include "editors/VakForm.h"
#include "platform/Berichten.h"
#include "platform/Klok.h"
#include "platform/Uiterlijk.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTextStream>

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

QList<QStringList> LeesBron(const QString &pad)
{
    QFile bestand(pad);
    if (!bestand.open(QIODevice::ReadOnly))
        throw Fout(Fout::BestandNietGevonden, pad);
    QList<QStringList> regels;
    for (const QString &regel : QString::fromUtf8(bestand.readAll()).split(u'\n', Qt::SkipEmptyParts))
        regels += regel.split(u'|');
    return regels;
}

/// Puts the pointer in the middle of a cell such as "C-07".
void WijsAan(const QString &plaats)
{
    const int kolom = plaats.at(0).unicode() - 'A';
    const int rij = plaats.mid(2).toInt() - 1;
    Main().Pic_MouseMove(kolom * VakMaat + VakMaat / 2.0, rij * VakMaat + VakMaat / 2.0);
}

void Ontwerp(const QStringList &regel)
{
    const QString &wat = regel.at(0);
    if (wat == "vak"_L1) {
        WijsAan(regel.at(1));
        VakForm form;
        form.HScroll1->setValue(regel.at(2).toInt());
        form.Text1->SetText(QString(regel.at(3)).replace(u'\\', u'\n'));
        form.OkKnop_Click();
    } else if (wat == "woord"_L1) {
        WijsAan(regel.at(1));
        TekstForm form;
        form.Option[regel.at(2) == "H"_L1 ? 0 : 1]->setChecked(true);
        form.Text2->setText(regel.at(3));
        form.Text1->setText(regel.at(4));
        form.OkKnop_Click();
    }
}

void MaakPuzzel(const QList<QStringList> &bron)
{
    NieuwForm nieuw;
    nieuw.Text1->setText(bron.at(0).at(1));
    nieuw.Combo1->setEditText(bron.at(1).at(1));
    nieuw.Combo2->setEditText(bron.at(1).at(2));
    nieuw.OkKnop_Click();
    for (const QStringList &regel : bron)
        Ontwerp(regel);
    SaveForm bewaar;
    bewaar.SaveKnop_Click();
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
    if (argumenten.size() != 4)
        throw Fout(Fout::OngeldigArgument, u"voorbeeld maak|bewaar|controleer BRON MAP"_s);
    const QString &wat = argumenten[1];
    const QList<QStringList> bron = LeesBron(argumenten[2]);
    AppPath = QDir(argumenten[3]).absolutePath();
    qputenv("HOME", AppPath.toLocal8Bit()); // the JPEG goes to the folder Pictures in it, not to the user's own
    qunsetenv("XDG_CONFIG_HOME");
    const QString controle = AppPath + u"/controle"_s;
    MainForm main;
    BeginWaarden();
    if (wat == "controleer"_L1)
        return Controleer(bron.at(0).at(1), controle) ? 0 : 1;
    MaakPuzzel(bron);
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
