#include "platform/Files.h"

#include "platform/Getallen.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QStringDecoder>
#include <QtEndian>

#include <filesystem>

namespace Files {

static constexpr char CodePage[] = "windows-1252";
static constexpr char LineEnd[] = "\r\n";

QByteArray NaarBytes(const QString &tekst)
{
    static const QString tekens = [] {
        QByteArray alle;
        for (int code = 0; code < 256; ++code)
            alle += static_cast<char>(code);
        return NaarTekst(alle);
    }();
    QByteArray bytes;
    bytes.reserve(tekst.size());
    for (const QChar c : tekst) {
        const qsizetype code = tekens.indexOf(c);
        bytes += code < 0 ? '?' : static_cast<char>(code);
    }
    return bytes;
}

QString NaarTekst(QByteArrayView bytes)
{
    QStringDecoder van(CodePage);
    return van.decode(bytes);
}

// --- names ---

static bool IsGoedeNaam(const QString &naam)
{
    for (const QChar c : naam)
        if (c.unicode() < 32 || c.unicode() == 127 || QStringLiteral("<>:\"/\\|?*").contains(c))
            return false;
    return !naam.isEmpty() && naam != QLatin1String(".") && naam != QLatin1String("..");
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
        if (!IsGoedeNaam(naam))
            throw Fout(Fout::OngeldigeNaam, naam.left(60).simplified());
        pad += QLatin1Char('/') + EigenSpelling(pad, naam);
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
    return QDir(map).entryList({patroon}, QDir::Files | QDir::Hidden, QDir::Name | QDir::IgnoreCase);
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

QByteArray Lees(const QString &pad)
{
    QFile bestand(pad);
    if (!QFileInfo(pad).isFile())
        throw Fout(Fout::BestandNietGevonden, pad);
    if (!bestand.open(QIODevice::ReadOnly))
        throw Fout(Fout::GeenToegang, pad);
    if (bestand.size() > GrootsteInhoud)
        throw Fout(Fout::GeheugenVol, pad);
    QByteArray inhoud = bestand.readAll();
    if (bestand.error() != QFileDevice::NoError)
        throw Fout(Fout::SchijfFout, pad);
    return inhoud;
}

static bool Verplaats(const QString &van, const QString &naar)
{
    std::error_code mislukt;
    std::filesystem::rename(QFile(van).filesystemFileName(), QFile(naar).filesystemFileName(), mislukt);
    return !mislukt;
}

void Hernoem(const QString &pad, const QString &naam)
{
    if (!Verplaats(pad, QFileInfo(pad).path() + QLatin1Char('/') + naam))
        throw Fout(Fout::GeenToegang, pad);
}

void Schrijf(const QString &pad, const QByteArray &inhoud)
{
    // Written beside the old file and put in its place at the end, so that a full disk spares the old one.
    QFile nieuw(pad + QStringLiteral(".nieuw~"));
    if (!nieuw.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        throw Fout(Fout::GeenToegang, pad);
    const bool geschreven = nieuw.write(inhoud) == inhoud.size();
    nieuw.close();
    if (!geschreven || !Verplaats(nieuw.fileName(), pad)) {
        nieuw.remove();
        throw Fout(Fout::SchijfFout, pad);
    }
}

// --- pictures ---

/// A bitmap's head says how many bytes its pixels take; one that holds fewer is cut off. The image reader itself takes
/// such a file for whole.
static bool IsAfgekapt(const QByteArray &bmp)
{
    constexpr int HeadSize = 54;
    if (bmp.size() < HeadSize)
        return true;
    const auto veld = [&bmp](int plaats) { return qFromLittleEndian<qint32>(bmp.constData() + plaats); };
    const qint64 rest = bmp.size() - veld(10), breedte = veld(18), hoogte = std::abs(qint64{veld(22)}),
                 bits = veld(28) & 0xFFFF, compressie = veld(30);
    if (compressie == 1 || compressie == 2) // run lengths, which take as many bytes as the head says
        return rest < veld(34);
    const qint64 rij = (breedte * bits + 31) / 32 * 4;
    return hoogte > 0 && rij > rest / hoogte; // divided, as a product of what the head says may not fit
}

QImage LoadPicture(const QString &pad)
{
    QByteArray inhoud = Lees(pad);
    if (IsAfgekapt(inhoud))
        throw Fout(Fout::OngeldigeAfbeelding, pad);
    QBuffer buffer(&inhoud);
    QImageReader lezer(&buffer, "bmp");
    const qint64 breedte = lezer.size().width();
    const qint64 hoogte = std::abs(qint64{lezer.size().height()}); // negative when the top row comes first
    if (breedte <= 0 || hoogte == 0)
        throw Fout(Fout::OngeldigeAfbeelding, pad);
    if (breedte > GrootsteInhoud / 4 / hoogte)
        throw Fout(Fout::GeheugenVol, pad);
    QImageReader::setAllocationLimit(static_cast<int>(GrootsteInhoud >> 20));
    const QImage beeld = lezer.read();
    if (beeld.isNull())
        throw Fout(Fout::OngeldigeAfbeelding, pad);
    return beeld.convertToFormat(QImage::Format_RGB32);
}

static QByteArray Gecodeerd(const QImage &beeld, const char *vorm, int kwaliteit)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!beeld.save(&buffer, vorm, kwaliteit))
        throw Fout(Fout::OngeldigeAfbeelding);
    return bytes;
}

void SavePicture(const QImage &beeld, const QString &pad)
{
    Schrijf(pad, Gecodeerd(beeld.convertToFormat(QImage::Format_RGB32), "bmp", -1));
}

void BmpToJpeg(const QString &bitmap, const QString &jpeg, int kwaliteit)
{
    Schrijf(jpeg, Gecodeerd(LoadPicture(bitmap), "jpg", kwaliteit));
}

// --- typed fields ---

static bool IsLineEnd(char c)
{
    return c == '\r' || c == '\n';
}

QByteArrayView VeldLezer::Neem(qsizetype aantal)
{
    const QByteArrayView deel = rest_.first(aantal);
    rest_ = rest_.sliced(aantal);
    return deel;
}

void VeldLezer::SlaScheidingOver()
{
    if (rest_.startsWith(QByteArrayView(LineEnd)))
        Neem(2);
    else if (!rest_.isEmpty() && (rest_.front() == ',' || IsLineEnd(rest_.front())))
        Neem(1);
}

QString VeldLezer::Tekst()
{
    if (Einde())
        throw Fout(Fout::EindeBestand);
    const auto slaBlanksOver = [this] {
        while (!Einde() && (rest_.front() == ' ' || rest_.front() == '\t'))
            Neem(1);
    };
    const auto neemTot = [this](auto &&isEinde) {
        return Neem(std::find_if(rest_.begin(), rest_.end(), isEinde) - rest_.begin());
    };
    slaBlanksOver();
    QString tekst;
    if (rest_.startsWith('"')) {
        Neem(1);
        tekst = NaarTekst(neemTot([](char c) { return c == '"'; }));
        if (!Einde())
            Neem(1);
        slaBlanksOver();
    } else {
        tekst = NaarTekst(neemTot([](char c) { return c == ',' || IsLineEnd(c); }));
    }
    SlaScheidingOver();
    return tekst;
}

quint8 VeldLezer::Byte()
{
    return Getallen::NaarByte(Tekst());
}

qint16 VeldLezer::Int16()
{
    return Getallen::NaarInt16(Tekst());
}

qint32 VeldLezer::Int32()
{
    return Getallen::NaarInt32(Tekst());
}

void VeldSchrijver::Regel(const QString &tekst)
{
    inhoud_ += '"' + NaarBytes(tekst) + '"' + LineEnd;
}

void VeldSchrijver::Regel(std::initializer_list<int> getallen)
{
    QByteArrayList delen;
    for (const int getal : getallen)
        delen += QByteArray::number(getal);
    inhoud_ += delen.join(',') + LineEnd;
}

} // namespace Files
