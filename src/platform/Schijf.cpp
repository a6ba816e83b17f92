#include "platform/Schijf.h"

#include "platform/Fout.h"

#include <QDir>

#include <filesystem>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#else
#include <io.h>
#include <sys/locking.h>
#endif

static Schijf *andereSchijf = nullptr;

Schijf::~Schijf() = default;

bool Schijf::Open(QFile &bestand, QIODevice::OpenMode hoe)
{
    return bestand.open(hoe);
}

bool Schijf::Lees(QFile &bestand, qint64 hoogstens, QByteArray &inhoud)
{
    inhoud = bestand.read(hoogstens);
    return bestand.error() == QFileDevice::NoError;
}

bool Schijf::Schrijf(QFile &bestand, QByteArrayView deel)
{
    return bestand.write(deel.data(), deel.size()) == deel.size();
}

bool Schijf::Verplaats(const QString &van, const QString &naar)
{
    return negeer([&] { std::filesystem::rename(QFile(van).filesystemFileName(), QFile(naar).filesystemFileName()); });
}

bool Schijf::Verwijder(const QString &pad)
{
    return QFile::remove(pad);
}

bool Schijf::MaakMap(const QString &pad)
{
    return QDir().mkdir(pad);
}

#ifdef Q_OS_UNIX

bool Schijf::Spoel(QFile &bestand)
{
    return fsync(bestand.handle()) == 0;
}

bool Schijf::SpoelMap(const QString &map)
{
    const int geopend = open(QFile::encodeName(map).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const bool gespoeld = geopend >= 0 && fsync(geopend) == 0;
    if (geopend >= 0)
        close(geopend);
    return gespoeld;
}

Schijf::Greep Schijf::Grijp(QFile &bestand)
{
    if (flock(bestand.handle(), LOCK_EX | LOCK_NB) == 0)
        return Greep::Gekregen;
    return errno == EWOULDBLOCK ? Greep::Bezet : Greep::Onmogelijk;
}

#else

bool Schijf::Spoel(QFile &bestand)
{
    return _commit(bestand.handle()) == 0;
}

bool Schijf::SpoelMap(const QString &)
{
    return true; // names are the system's business there
}

Schijf::Greep Schijf::Grijp(QFile &bestand)
{
    return _locking(bestand.handle(), _LK_NBLCK, 1) == 0 ? Greep::Gekregen : Greep::Bezet;
}

#endif

Schijf &Schijf::Huidig()
{
    static Schijf echte;
    return andereSchijf ? *andereSchijf : echte;
}

void Schijf::Gebruik(Schijf *schijf)
{
    andereSchijf = schijf;
}
