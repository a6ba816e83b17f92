// Makes a file of the installation of its source, and says how many words are in it.
//
//   installatie woorden BRON DOEL  the word database
//   installatie lijst BRON DOEL    a word list

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
    QTextStream(stdout) << doel << ": " << inhoud.count('\n') << " words\n";
    return 0;
}

int main(int argc, char *argv[])
{
    QStringList argumenten;
    for (int i = 1; i < argc; ++i)
        argumenten += QFile::decodeName(argv[i]);
    if (argumenten.size() == 3 && argumenten[0] == "woorden"_L1)
        return Maak(MaakWoorden, argumenten[1], argumenten[2]);
    if (argumenten.size() == 3 && argumenten[0] == "lijst"_L1)
        return Maak(MaakLijst, argumenten[1], argumenten[2]);
    Fouten() << "it takes woorden|lijst BRON DOEL\n";
    return 2;
}
