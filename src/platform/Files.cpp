#include "platform/Files.h"

#include "platform/Fout.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <filesystem>

using namespace Qt::StringLiterals;

namespace Files {

// --- names ---

static bool IsGoedeNaam(const QString &naam)
{
    if (!naam.isValidUtf16()) // half a pair of code units: no file system takes it
        return false;
    for (const QChar c : naam)
        if (c.unicode() < 32 || c.unicode() == 127 || u"<>:\"/\\|?*"_s.contains(c))
            return false;
    return !naam.isEmpty() && naam != "."_L1 && naam != ".."_L1;
}

static void ControleerNaam(const QString &naam)
{
    if (!IsGoedeNaam(naam))
        throw Fout(Fout::OngeldigeNaam, naam.left(60).simplified());
}

static QString EigenSpelling(const QString &map, const QString &naam)
{
    const QDir folder(map);
    if (folder.exists(naam))
        return naam;
    const QStringList namen = folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString &andere : namen)
        if (andere.compare(naam, Qt::CaseInsensitive) == 0)
            return andere;
    return naam;
}

QString Pad(const QString &map, const QStringList &namen)
{
    QString pad = map;
    for (const QString &naam : namen) {
        ControleerNaam(naam);
        pad += u'/' + EigenSpelling(pad, naam);
    }
    return pad;
}

bool FileExists(const QString &pad)
{
    return QFileInfo(pad).isFile();
}

QString Dir(const QString &pad)
{
    const QFileInfo info(pad);
    return info.isFile() ? info.fileName() : QString();
}

QStringList Lijst(const QString &map, const QString &patroon)
{
    QStringList namen = QDir(map).entryList({patroon}, QDir::Files | QDir::Hidden, QDir::Name | QDir::IgnoreCase);
    namen.removeIf([](const QString &naam) { return !IsGoedeNaam(naam); });
    return namen;
}

void Kill(const QString &pad)
{
    if (!QFileInfo::exists(pad))
        throw Fout(Fout::BestandNietGevonden, pad);
    if (!QFile::remove(pad))
        throw Fout(Fout::GeenToegang, pad);
}

void MkDir(const QString &pad)
{
    if (!QDir().mkdir(pad))
        throw Fout(Fout::GeenToegang, pad);
}

// --- contents ---

QByteArray LeesBegin(const QString &pad, qint64 hoogstens)
{
    if (!FileExists(pad))
        throw Fout(Fout::BestandNietGevonden, pad);
    QFile bestand(pad);
    if (!bestand.open(QIODevice::ReadOnly))
        throw Fout(Fout::GeenToegang, pad);
    QByteArray inhoud = bestand.read(std::min(bestand.size(), hoogstens));
    if (bestand.error() != QFileDevice::NoError)
        throw Fout(Fout::SchijfFout, pad);
    return inhoud;
}

QByteArray Lees(const QString &pad)
{
    if (QFileInfo(pad).size() > GrootsteBestand)
        throw Fout(Fout::GeheugenVol, pad);
    return LeesBegin(pad, GrootsteBestand);
}

static bool Verplaats(const QString &van, const QString &naar)
{
    return negeer([&] { std::filesystem::rename(QFile(van).filesystemFileName(), QFile(naar).filesystemFileName()); });
}

void Hernoem(const QString &pad, const QString &naam)
{
    ControleerNaam(naam);
    if (!Verplaats(pad, QFileInfo(pad).path() + u'/' + naam))
        throw Fout(Fout::GeenToegang, pad);
}

// It is written beside the old file and put in its place at the end, so that a full disk spares the old one.
void Schrijf(const QString &pad, std::initializer_list<QByteArrayView> delen)
{
    QFile nieuw(QFileInfo(pad).path() + u"/.rasteratelier~"_s); // no longer than any name
    if (!nieuw.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        throw Fout(Fout::GeenToegang, pad);
    bool geschreven = true;
    for (const QByteArrayView deel : delen)
        geschreven = geschreven && nieuw.write(deel.data(), deel.size()) == deel.size();
    nieuw.close();
    if (!geschreven || !Verplaats(nieuw.fileName(), pad)) {
        nieuw.remove();
        throw Fout(Fout::SchijfFout, pad);
    }
}

void Schrijf(const QString &pad, const QByteArray &inhoud)
{
    Schrijf(pad, {QByteArrayView(inhoud)});
}

} // namespace Files
