#include "platform/Files.h"

#include "platform/Bewaren.h"
#include "platform/Fout.h"
#include "platform/Schijf.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Files {

// --- names ---

bool IsGoedeNaam(const QString &naam)
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

/// The spelling of a name in a folder; of several always the same one, the first by the alphabet. The folder may hold
/// ten thousands of names: they are not sorted for it.
static QString EigenSpelling(const QString &map, const QString &naam)
{
    if (QFileInfo::exists(map + u'/' + naam))
        return naam;
    QString eigen;
    QDirIterator lus(map, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    while (lus.hasNext()) {
        lus.next();
        const QString andere = lus.fileName();
        if (andere.compare(naam, Qt::CaseInsensitive) == 0 && (eigen.isEmpty() || andere < eigen))
            eigen = andere;
    }
    return eigen.isEmpty() ? naam : eigen;
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
    if (!Schijf::Huidig().Verwijder(pad))
        throw Fout(Fout::GeenToegang, pad);
}

void MkDir(const QString &pad)
{
    if (!Schijf::Huidig().MaakMap(pad))
        throw Fout(Fout::GeenToegang, pad);
}

// --- contents ---

QByteArray LeesBegin(const QString &pad, qint64 hoogstens)
{
    if (!FileExists(pad))
        throw Fout(Fout::BestandNietGevonden, pad);
    QFile bestand(pad);
    if (!Schijf::Huidig().Open(bestand, Schijf::Lezend))
        throw Fout(Fout::GeenToegang, pad);
    QByteArray inhoud;
    if (!Schijf::Huidig().Lees(bestand, std::min(bestand.size(), hoogstens), inhoud))
        throw Fout(Fout::SchijfFout, pad);
    return inhoud;
}

QByteArray Lees(const QString &pad)
{
    if (QFileInfo(pad).size() > GrootsteBestand)
        throw Fout(Fout::GeheugenVol, pad);
    return LeesBegin(pad, GrootsteBestand);
}

void Hernoem(const QString &pad, const QString &naam)
{
    ControleerNaam(naam);
    if (!Schijf::Huidig().Verplaats(pad, QFileInfo(pad).path() + u'/' + naam))
        throw Fout(Fout::GeenToegang, pad);
}

void Schrijf(const QString &pad, std::initializer_list<QByteArrayView> delen)
{
    BestandenSet set;
    set.Zet(pad, delen);
    set.PlaatsAlles();
}

void Schrijf(const QString &pad, const QByteArray &inhoud)
{
    Schrijf(pad, {QByteArrayView(inhoud)});
}

} // namespace Files
