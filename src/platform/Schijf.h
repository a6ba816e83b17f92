#pragma once

#include <QFile>

/// The calls that reading and writing rest on: the one place that knows how the system brings a file to the disk and
/// tells who holds it. One object is in use at a time; tests put their own in its place, so that a call fails. A call
/// that fails gives false.
class Schijf
{
public:
    /// What became of asking for a file of one's own: got it; another has it; the file system has no such thing.
    enum class Greep { Gekregen, Bezet, Onmogelijk };

    virtual ~Schijf();

    static constexpr QIODevice::OpenMode Lezend = QIODevice::ReadOnly;
    /// Nothing of its name may be there yet, not even a link.
    static constexpr QIODevice::OpenMode Nieuw = QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered;
    /// As some file systems want it of who takes a file for oneself.
    static constexpr QIODevice::OpenMode Grijpend = QIODevice::ReadWrite | QIODevice::ExistingOnly;

    virtual bool Open(QFile &bestand, QIODevice::OpenMode hoe);
    virtual bool Lees(QFile &bestand, qint64 hoogstens, QByteArray &inhoud);
    virtual bool Schrijf(QFile &bestand, QByteArrayView deel);
    /// Brings what was written to the disk.
    virtual bool Spoel(QFile &bestand);
    /// Brings the names in a folder to the disk.
    virtual bool SpoelMap(const QString &map);
    /// Takes an open file for oneself until it is closed or this process ends, in whatever way. Another opening of the
    /// same file counts as another, also in this process.
    virtual Greep Grijp(QFile &bestand);
    /// Gives a file another name; a file that has that name is replaced.
    virtual bool Verplaats(const QString &van, const QString &naar);
    virtual bool Verwijder(const QString &pad);
    virtual bool MaakMap(const QString &pad);

    static Schijf &Huidig();
    /// Puts another disk in use, nullptr the real one. The caller keeps it alive.
    static void Gebruik(Schijf *schijf);
};
