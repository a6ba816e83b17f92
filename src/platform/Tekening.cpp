#include "platform/Tekening.h"

#include <QIODevice>
#include <QPainter>
#include <QSvgRenderer>

#include <array>
#include <cstring>

using Maten = std::array<qint32, 2>;

void TekenSvg(QPaintDevice &doel, QSvgRenderer &tekening, QSize maat)
{
    QPainter painter(&doel);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    tekening.render(&painter, QRectF(QPointF(0, 0), maat));
}

bool SchrijfBeeld(QIODevice &doel, const QImage &beeld)
{
    const Maten maten{beeld.width(), beeld.height()};
    const QByteArray kop(reinterpret_cast<const char *>(maten.data()), sizeof maten);
    return doel.write(kop) == kop.size() &&
           doel.write(reinterpret_cast<const char *>(beeld.constBits()), beeld.sizeInBytes()) == beeld.sizeInBytes();
}

QSize BeeldMaat(const QByteArray &bytes)
{
    Maten maten{};
    std::memcpy(maten.data(), bytes.data(), sizeof maten);
    return {maten[0], maten[1]};
}

QImage LeesBeeld(const QByteArray &bytes)
{
    QImage beeld(BeeldMaat(bytes), QImage::Format_ARGB32_Premultiplied);
    std::memcpy(beeld.bits(), bytes.data() + sizeof(Maten), static_cast<size_t>(beeld.sizeInBytes()));
    return beeld;
}
