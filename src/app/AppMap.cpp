#include "app/AppMap.h"

#include "platform/Fout.h"

#include <QDir>
#include <QDirIterator>

using namespace Qt::StringLiterals;

static void Kopieer(const QString &van, const QString &naar)
{
    if (!QDir().mkpath(naar))
        throw Fout(Fout::GeenToegang, naar);
    QDirIterator lus(van, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (lus.hasNext()) {
        const QString pad = lus.next();
        const QString doel = naar + u'/' + QDir(van).relativeFilePath(pad);
        const bool gelukt = lus.fileInfo().isDir() ? QDir().mkpath(doel) : QFile::copy(pad, doel);
        if (!gelukt)
            throw Fout(Fout::GeenToegang, doel);
        if (lus.fileInfo().isFile()) // what is installed may be read-only; the copy is the user's
            QFile::setPermissions(doel, QFile::permissions(doel) | QFile::WriteOwner);
    }
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
    if (!QDir(gebruiker).exists()) {
        if (!QDir(installatie).exists())
            throw Fout(Fout::BestandNietGevonden, u"de bestanden van de installatie in "_s + installatie);
        // Under another name until it is whole: a start that fails halfway leaves nothing that is taken for the folder.
        const QString nieuw = gebruiker + u".nieuw~"_s;
        QDir(nieuw).removeRecursively();
        Kopieer(installatie, nieuw);
        if (!QDir().rename(nieuw, gebruiker))
            throw Fout(Fout::GeenToegang, gebruiker);
    }
    return gebruiker;
}
