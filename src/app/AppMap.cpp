#include "app/AppMap.h"

#include "platform/Beurt.h"
#include "platform/Files.h"
#include "platform/Fout.h"
#include "platform/Schijf.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

using namespace Qt::StringLiterals;

/// The file that says whose turn it is.
static QString BeurtPad(const QString &gebruiker)
{
    return gebruiker + u".slot"_s;
}

// What is installed may be read-only; the copy is the user's.
static void KopieerBestand(const QString &van, const QString &naar)
{
    QFile bestand(naar);
    Schijf &schijf = Schijf::Huidig();
    if (!schijf.Open(bestand, Schijf::Nieuw) || !schijf.Schrijf(bestand, Files::Lees(van)) || !schijf.Spoel(bestand))
        throw Fout(Fout::SchijfFout, naar);
}

static void Kopieer(const QString &van, const QString &naar)
{
    Files::MkDir(naar);
    QDirIterator lus(van, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (lus.hasNext()) {
        const QString pad = lus.next();
        const QString doel = naar + u'/' + QDir(van).relativeFilePath(pad);
        if (lus.fileInfo().isDir())
            Files::MkDir(doel);
        else
            KopieerBestand(pad, doel);
    }
}

/// Fills the user's folder, unless another start was first. They take turns, and the folder gets its name when it is
/// whole: what a start that failed or was killed has left is never taken for it.
static void VulMap(const QString &gebruiker, const QString &installatie)
{
    constexpr int Geduld = 35000; // milliseconds; a turn that was never given back counts as left after 30 seconds
    const QFileInfo plaats(gebruiker);
    Beurt beurt(BeurtPad(gebruiker));
    if (!QDir().mkpath(plaats.path()) || !beurt.Neem(Geduld))
        throw Fout(Fout::GeenToegang, gebruiker);
    if (QDir(gebruiker).exists())
        return;
    const QString nieuw = gebruiker + u".nieuw~"_s;
    QDir(nieuw).removeRecursively();
    Kopieer(installatie, nieuw);
    Files::Hernoem(nieuw, plaats.fileName());
    Schijf::Huidig().SpoelMap(plaats.path());
}

QString KiesAppMap(const QString &gevraagd, const QString &eigen, const QString &gebruiker, const QString &installatie)
{
    if (!gevraagd.isEmpty()) {
        if (!QDir(gevraagd).exists())
            throw Fout(Fout::BestandNietGevonden, u"de map "_s + gevraagd);
        return QDir(gevraagd).absolutePath();
    }
    if (QDir(eigen + u"/Data"_s).exists())
        return eigen;
    const bool isEr = QDir(gebruiker).exists();
    if (!isEr && !QDir(installatie).exists())
        throw Fout(Fout::BestandNietGevonden, u"de bestanden van de installatie in "_s + installatie);
    if (!isEr || QFile::exists(BeurtPad(gebruiker)))
        VulMap(gebruiker, installatie);
    return gebruiker;
}
