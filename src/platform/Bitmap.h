#pragma once

#include <QByteArray>
#include <QImage>

/// A bitmap file as it lies on disk: a head, then the rows. We write pixels of 32 bits from the top row down, so that
/// the file is head and picture without any conversion: that is what makes a save cost no more than its bytes. And a
/// head that announces more than there is shows a cut file, which Qt's reader would give as a whole picture.
///
///     0             14                   54  56
///     +-------------+--------------------+--+----------------------
///     | file header | info header        |  | rows, top row first
///     +-------------+--------------------+--+----------------------
///                                         two bytes, so that the rows lie on a multiple of four
namespace Bitmap {

/// The head of the file of a picture of this size, in pixels.
QByteArray Kop(QSize maat);

/// What the head of a bitmap file tells.
struct Opgave
{
    qint64 Begin = 0;       ///< where the rows begin, in bytes
    qint32 Breedte = 0;     ///< pixels
    qint32 Hoogte = 0;      ///< pixels; negative when the top row comes first
    quint16 Bits = 0;       ///< a pixel
    quint32 Compressie = 0; ///< 0 for none
};

/// Reads the head. @return false when the bytes are no bitmap file, or fewer than its head announces
bool LeesKop(const uchar *bytes, qint64 aantal, Opgave &opgave);

/// The picture in the bytes of a file of the kind that we write; it looks at these bytes and copies nothing, so they
/// must outlive it. A null picture for any other kind.
QImage Blik(const uchar *bytes, const Opgave &opgave);

} // namespace Bitmap
