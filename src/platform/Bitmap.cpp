#include "platform/Bitmap.h"

#include <QtEndian>

#include <cstdlib>

namespace Bitmap {

static constexpr int InfoAt = 14; // behind the file header
static constexpr int InfoSize = 40;
static constexpr int RowsAt = 56;
static constexpr int PixelsPerMeter = 3780; // 96 to the inch

QByteArray Kop(QSize maat)
{
    QByteArray kop(RowsAt, '\0');
    const auto zet = [&kop]<class Getal>(int plaats, Getal waarde) { qToLittleEndian(waarde, kop.data() + plaats); };
    const auto rijen = static_cast<quint32>(maat.width() * 4 * maat.height());
    kop[0] = 'B';
    kop[1] = 'M';
    zet(2, quint32{RowsAt} + rijen);
    zet(10, quint32{RowsAt});
    zet(InfoAt, quint32{InfoSize});
    zet(InfoAt + 4, qint32{maat.width()});
    zet(InfoAt + 8, qint32{-maat.height()}); // negative: the top row comes first
    zet(InfoAt + 12, quint16{1});
    zet(InfoAt + 14, quint16{32});
    zet(InfoAt + 20, rijen);
    zet(InfoAt + 24, qint32{PixelsPerMeter});
    zet(InfoAt + 28, qint32{PixelsPerMeter});
    return kop;
}

bool LeesKop(const uchar *bytes, qint64 aantal, Opgave &opgave)
{
    if (aantal < InfoAt + InfoSize || bytes[0] != 'B' || bytes[1] != 'M')
        return false;
    opgave.Begin = qFromLittleEndian<quint32>(bytes + 10);
    opgave.Breedte = qFromLittleEndian<qint32>(bytes + InfoAt + 4);
    opgave.Hoogte = qFromLittleEndian<qint32>(bytes + InfoAt + 8);
    opgave.Bits = qFromLittleEndian<quint16>(bytes + InfoAt + 14);
    opgave.Compressie = qFromLittleEndian<quint32>(bytes + InfoAt + 16);
    const qint64 rest = aantal - opgave.Begin;
    if (opgave.Breedte <= 0 || opgave.Hoogte == 0)
        return false;
    if (opgave.Compressie == 1 || opgave.Compressie == 2) // run lengths, of which the head says how many bytes
        return rest >= qFromLittleEndian<quint32>(bytes + InfoAt + 20);
    const qint64 rij = (qint64{opgave.Breedte} * opgave.Bits + 31) / 32 * 4;
    return rij <= rest / std::abs(qint64{opgave.Hoogte}); // divided, as the product may be too large for any number
}

QImage Blik(const uchar *bytes, const Opgave &opgave)
{
    if (opgave.Bits != 32 || opgave.Compressie != 0 || opgave.Hoogte >= 0 || opgave.Begin % 4 != 0)
        return {};
    return QImage(bytes + opgave.Begin, opgave.Breedte, -opgave.Hoogte, qsizetype{opgave.Breedte} * 4,
                  QImage::Format_RGB32);
}

} // namespace Bitmap
