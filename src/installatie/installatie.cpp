// Makes a file of the installation of its source, and says how many lines are in it.
//
//   installatie woorden BRON DOEL  the word database
//   installatie lijst BRON DOEL    a word list
//   installatie tabel BRON DOEL    a table to look things up in
//   installatie spreekwoorden BRON DOEL  the proverbs with their meanings

#include "installatie/InstallatieBestanden.h"

#include "platform/Files.h"
#include "platform/Fout.h"

#include <QFile>
#include <QTextStream>

using namespace Qt::StringLiterals;

static QTextStream &Fouten()
{
    static QTextStream uit(stderr);
    return uit << "installatie: ";
}

static int Maak(QByteArray (*maak)(const QByteArray &), const QString &bron, const QString &doel)
{
    QByteArray inhoud;
    if (!negeer([&] { inhoud = Files::Lees(bron); })) {
        Fouten() << bron << " can't be read\n";
        return 1;
    }
    try {
        inhoud = maak(inhoud);
    } catch (const BronFout &fout) {
        Fouten() << bron << ": " << fout.what() << '\n';
        return 1;
    }
    if (!negeer([&] { Files::Schrijf(doel, inhoud); })) {
        Fouten() << doel << " can't be written\n";
        return 1;
    }
    QTextStream(stdout) << doel << ": " << inhoud.count('\n') << " lines\n";
    return 0;
}

int main(int argc, char *argv[])
{
    QStringList argumenten;
    for (int i = 1; i < argc; ++i)
        argumenten += QFile::decodeName(argv[i]);
    const struct
    {
        QLatin1StringView Wat;
        QByteArray (*Maak)(const QByteArray &);
    } soorten[] = {{"woorden"_L1, MaakWoorden},
                   {"lijst"_L1, MaakLijst},
                   {"tabel"_L1, MaakTabel},
                   {"spreekwoorden"_L1, MaakSpreekwoorden}};
    for (const auto &soort : soorten)
        if (argumenten.size() == 3 && argumenten[0] == soort.Wat)
            return Maak(soort.Maak, argumenten[1], argumenten[2]);
    Fouten() << "it takes woorden|lijst|tabel|spreekwoorden BRON DOEL\n";
    return 2;
}
