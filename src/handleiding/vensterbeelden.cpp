// Takes the pictures of a manual, of the windows of the program as they are.
//
//   vensterbeelden APPMAP BEELDMAP
//
// They show the data of the folder APPMAP, which stay as they are, and are put in BEELDMAP.

#include "handleiding/Fotograaf.h"
#include "handleiding/Taferelen.h"

#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "board/Raster.h"
#include "platform/Berichten.h"
#include "platform/Fout.h"
#include "platform/Klok.h"
#include "platform/Printers.h"
#include "platform/Uiterlijk.h"

#include <QApplication>
#include <QDir>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

/// A message is a failure here.
class GeenBerichten : public Berichten
{
public:
    Antwoord Vraag(const QString &tekst, Knoppen, Icoon, const QString &) override
    {
        throw Fout(Fout::OngeldigeWaarde, tekst);
    }
};

/// One printer, whatever there is where the pictures are taken.
class EenWachtrij : public Wachtrijen
{
public:
    QStringList Namen() override { return {Standaard()}; }
    QString Standaard() override { return u"Huisprinter"_s; }
};

void Voer(const QStringList &argumenten)
{
    if (argumenten.size() != 3)
        throw Fout(Fout::OngeldigArgument, u"vensterbeelden APPMAP BEELDMAP"_s);
    AppPath = QDir(argumenten[1]).absolutePath();
    Fotograaf foto(argumenten[2]);
    MainForm main;
    BeginWaarden();
    TekenBord(BoardWidth, BoardHeight);
    for (auto *tafereel : {Taferelen::Zweeds, Taferelen::Kruiswoord, Taferelen::Filippine, Taferelen::Sudoku,
                           Taferelen::Woordzoeker, Taferelen::Hulpmiddelen, Taferelen::Programma})
        tafereel(foto);
    foto.SchrijfLijst();
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_SCALE_FACTOR", "2"); // a screen as fine as paper
    qputenv("LC_ALL", "nl_NL.UTF-8");
    QApplication app(argc, argv);
    StelUiterlijkIn();
    DirecteKlok klok;
    Klok::Gebruik(&klok);
    GeenBerichten berichten;
    Berichten::Gebruik(&berichten);
    EenWachtrij wachtrijen;
    Wachtrijen::Gebruik(&wachtrijen);
    try {
        Voer(QCoreApplication::arguments());
        return 0;
    } catch (const Fout &fout) {
        QTextStream(stderr) << "vensterbeelden: " << fout.tekst() << '\n';
        return 1;
    }
}
