#include "platform/PictureFiles.h"

#include "platform/Bewaren.h"
#include "platform/Bitmap.h"
#include "platform/Files.h"
#include "platform/Fout.h"

#include <QBuffer>
#include <QImageReader>

namespace Files {

/// The picture in the bytes of a bitmap file; it may look at these bytes and must not outlive them.
static QImage BeeldVan(QByteArrayView bytes, const QString &pad)
{
    const auto *begin = reinterpret_cast<const uchar *>(bytes.data());
    Bitmap::Opgave opgave;
    if (!Bitmap::LeesKop(begin, bytes.size(), opgave))
        throw Fout(Fout::OngeldigeAfbeelding, pad);
    if (opgave.Breedte > GrootsteBeeld / 4 / std::abs(qint64{opgave.Hoogte}))
        throw Fout(Fout::GeheugenVol, pad);
    QImage beeld = Bitmap::Blik(begin, opgave);
    if (beeld.isNull()) { // another kind of bitmap
        QByteArray inhoud = QByteArray::fromRawData(bytes.data(), bytes.size());
        QBuffer buffer(&inhoud);
        QImageReader::setAllocationLimit(static_cast<int>(GrootsteBeeld >> 20));
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
    BestandenSet set;
    SavePicture(beeld, pad, set);
    set.PlaatsAlles();
}

void SavePicture(const QImage &beeld, const QString &pad, BestandenSet &set)
{
    if (beeld.isNull())
        throw Fout(Fout::OngeldigeAfbeelding, pad);
    const QImage pixels = beeld.convertToFormat(QImage::Format_RGB32);
    set.Zet(pad,
            {QByteArrayView(Bitmap::Kop(pixels.size())), QByteArrayView(pixels.constBits(), pixels.sizeInBytes())});
}

void BmpToJpeg(const QString &bitmap, const QString &jpeg, int kwaliteit)
{
    const QByteArray inhoud = Lees(bitmap);
    const QImage beeld = BeeldVan(inhoud, bitmap);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!beeld.save(&buffer, "jpg", kwaliteit))
        throw Fout(Fout::OngeldigeAfbeelding, bitmap);
    Schrijf(jpeg, bytes);
}

} // namespace Files
