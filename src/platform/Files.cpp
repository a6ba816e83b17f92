#include "platform/Files.h"

#include "platform/Bitmap.h"
#include "platform/Getallen.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QStringDecoder>

#include <filesystem>
#include <memory>

using namespace Qt::StringLiterals;

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
        if (c.unicode() < 32 || c.unicode() == 127 || u"<>:\"/\\|?*"_s.contains(c))
            return false;
    return !naam.isEmpty() && naam != "."_L1 && naam != ".."_L1;
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

static std::unique_ptr<QFile> Geopend(const QString &pad)
{
    if (!FileExists(pad))
        throw Fout(Fout::BestandNietGevonden, pad);
    auto bestand = std::make_unique<QFile>(pad);
    if (!bestand->open(QIODevice::ReadOnly))
        throw Fout(Fout::GeenToegang, pad);
    if (bestand->size() > GrootsteBestand)
        throw Fout(Fout::GeheugenVol, pad);
    return bestand;
}

QByteArray Lees(const QString &pad)
{
    const auto bestand = Geopend(pad);
    QByteArray inhoud = bestand->readAll();
    if (bestand->error() != QFileDevice::NoError)
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
    if (!Verplaats(pad, QFileInfo(pad).path() + u'/' + naam))
        throw Fout(Fout::GeenToegang, pad);
}

/// Writes the parts one behind the other beside the old file and puts that in its place at the end, so that a full disk
/// spares the old one.
static void SchrijfDelen(const QString &pad, std::initializer_list<QByteArrayView> delen)
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
    SchrijfDelen(pad, {inhoud});
}

// --- pictures ---

/// The picture in the bytes of a bitmap file; it may look at these bytes and must not outlive them.
static QImage BeeldVan(QByteArrayView bytes, const QString &pad)
{
    const auto *begin = reinterpret_cast<const uchar *>(bytes.data());
    Bitmap::Opgave opgave;
    if (!Bitmap::LeesKop(begin, bytes.size(), opgave))
        throw Fout(Fout::OngeldigeAfbeelding, pad);
    if (opgave.Breedte > GrootsteInhoud / 4 / std::abs(qint64{opgave.Hoogte}))
        throw Fout(Fout::GeheugenVol, pad);
    QImage beeld = Bitmap::Blik(begin, opgave);
    if (beeld.isNull()) { // another kind of bitmap
        QByteArray inhoud = QByteArray::fromRawData(bytes.data(), bytes.size());
        QBuffer buffer(&inhoud);
        QImageReader::setAllocationLimit(static_cast<int>(GrootsteInhoud >> 20));
        beeld = QImageReader(&buffer, "bmp").read().convertToFormat(QImage::Format_RGB32);
    }
    if (beeld.isNull())
        throw Fout(Fout::OngeldigeAfbeelding, pad);
    return beeld;
}

QImage LoadPicture(const QString &pad)
{
    const QByteArray inhoud = Lees(pad);
    return BeeldVan(inhoud, pad).copy();
}

void SavePicture(const QImage &beeld, const QString &pad)
{
    if (beeld.isNull())
        throw Fout(Fout::OngeldigeAfbeelding, pad);
    const QImage pixels = beeld.convertToFormat(QImage::Format_RGB32);
    SchrijfDelen(pad, {Bitmap::Kop(pixels.size()), QByteArrayView(pixels.constBits(), pixels.sizeInBytes())});
}

void BmpToJpeg(const QString &bitmap, const QString &jpeg, int kwaliteit)
{
    const auto bestand = Geopend(bitmap);
    const uchar *begin = bestand->size() > 0 ? bestand->map(0, bestand->size()) : nullptr;
    const QImage beeld = BeeldVan(QByteArrayView(begin, begin ? bestand->size() : 0), bitmap);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!beeld.save(&buffer, "jpg", kwaliteit))
        throw Fout(Fout::OngeldigeAfbeelding, bitmap);
    Schrijf(jpeg, bytes);
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
