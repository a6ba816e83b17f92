#include "platform/CodePage.h"

#include <QStringDecoder>

namespace Files {

/// The characters of the code page, by their bytes.
static const QString &Tekens()
{
    static const QString tekens = [] {
        QByteArray alle;
        for (int code = 0; code < 256; ++code)
            alle += static_cast<char>(code);
        QStringDecoder van("windows-1252");
        return QString(van.decode(alle));
    }();
    return tekens;
}

QByteArray NaarBytes(const QString &tekst)
{
    QByteArray bytes;
    bytes.reserve(tekst.size());
    for (const QChar c : tekst) {
        const qsizetype code = Tekens().indexOf(c);
        bytes += code < 0 ? '?' : static_cast<char>(code);
    }
    return bytes;
}

QString NaarTekst(QByteArrayView bytes)
{
    QString tekst(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), tekst.begin(),
                   [&tekens = Tekens()](char byte) { return tekens[static_cast<uchar>(byte)]; });
    return tekst;
}

bool InCodePage(QChar teken)
{
    return Tekens().contains(teken);
}

} // namespace Files
