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

/// The size that the head of a bitmap file tells.
static QSize Maat(const QByteArray &inhoud)
{
    EIS(inhoud.size() >= 54);
    return {qFromLittleEndian<qint32>(inhoud.data() + 18), std::abs(qFromLittleEndian<qint32>(inhoud.data() + 22))};
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
    EIS(beeld.size() == Maat(inhoud));
    EIS(!beeld.isNull() && beeld.format() == QImage::Format_RGB32);
    EIS(beeld.sizeInBytes() <= GrootsteBeeld);
    if (beeld.sizeInBytes() > 1 << 20) // a large picture costs time and is saved as a small one is
        return;
    Files::SavePicture(beeld, pad);
    EIS(Files::LoadPicture(pad) == beeld);
}
