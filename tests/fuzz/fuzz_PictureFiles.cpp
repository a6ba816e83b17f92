// The input is a bitmap file.

#include "Fuzz.h"

#include "platform/Fout.h"
#include "platform/Grenzen.h"
#include "platform/PictureFiles.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>

using namespace Qt::StringLiterals;

static void Zet(const QString &pad, const QByteArray &inhoud)
{
    QFile bestand(pad);
    EIS(bestand.open(QIODevice::WriteOnly) && bestand.write(inhoud) == inhoud.size());
}

template <class Getal> static qint64 Uit(const QByteArray &inhoud, qsizetype plaats)
{
    EIS(plaats + qsizetype{sizeof(Getal)} <= inhoud.size());
    return qFromLittleEndian<Getal>(inhoud.data() + plaats);
}

/// What holds for a picture and the bitmap file that it was read from: the size is told, and every row is there.
static void Vergelijk(const QImage &beeld, const QByteArray &inhoud)
{
    EIS(beeld.width() == Uit<qint32>(inhoud, 18) && beeld.height() == std::abs(Uit<qint32>(inhoud, 22)));
    const qint64 compressie = Uit<quint32>(inhoud, 30);
    if (compressie == 1 || compressie == 2) // run lengths
        return;
    const qint64 rij = (beeld.width() * Uit<quint16>(inhoud, 28) + 31) / 32 * 4;
    EIS(Uit<quint32>(inhoud, 10) + rij * beeld.height() <= inhoud.size());
}

void Probeer(const QByteArray &inhoud)
{
    static const QTemporaryDir map;
    const QString pad = map.filePath(u"a.bmp"_s);
    Zet(pad, inhoud);
    QImage beeld;
    try {
        beeld = Files::LoadPicture(pad);
    } catch (const Fout &fout) {
        EIS(fout.nummer() == Fout::OngeldigeAfbeelding || fout.nummer() == Fout::GeheugenVol);
        return;
    }
    EIS(!beeld.isNull() && beeld.format() == QImage::Format_RGB32);
    EIS(beeld.sizeInBytes() <= GrootsteBeeld);
    Vergelijk(beeld, inhoud);
    if (beeld.sizeInBytes() > 1 << 20) // a large picture costs time and is saved as a small one is
        return;
    Files::SavePicture(beeld, pad);
    EIS(Files::LoadPicture(pad) == beeld);
}
