#include "platform/Plaatjes.h"

#include "platform/Tekening.h"

#include <QFile>
#include <QPainter>
#include <QResource>
#include <QSvgRenderer>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace Plaatjes {

static QByteArray Tekening(const QString &naam)
{
    QFile bestand(u":/assets/"_s + naam + u".svg"_s);
    const bool open = bestand.open(QIODevice::ReadOnly);
    Q_ASSERT(open);
    return open ? bestand.readAll() : QByteArray();
}

/// The picture as it was drawn out in its own size; it lies in the program.
static QByteArray Uitgetekend(const QString &naam)
{
    const QResource beeld(u":/assets/"_s + naam + u".beeld"_s);
    Q_ASSERT(beeld.isValid());
    return QByteArray::fromRawData(reinterpret_cast<const char *>(beeld.data()), beeld.size());
}

QImage Beeld(const QString &naam)
{
    const QImage getekend = LeesBeeld(Uitgetekend(naam));
    QImage beeld(getekend.size(), QImage::Format_RGB32);
    beeld.fill(Qt::white);
    QPainter(&beeld).drawImage(0, 0, getekend);
    return beeld;
}

QImage Beeld(const QString &naam, const QString &kleur, const QString &andereKleur)
{
    QSvgRenderer tekening(Tekening(naam).replace(kleur.toLatin1(), andereKleur.toLatin1()));
    QImage beeld(tekening.defaultSize(), QImage::Format_RGB32);
    beeld.fill(Qt::white);
    TekenSvg(beeld, tekening, beeld.size());
    return beeld;
}

QPixmap Pixmap(const QString &naam, QSize maat, double ratio)
{
    if (ratio == 1 && maat == Maat(naam))
        return QPixmap::fromImage(LeesBeeld(Uitgetekend(naam)));
    QSvgRenderer tekening(Tekening(naam));
    QPixmap pixmap(maat * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    TekenSvg(pixmap, tekening, maat);
    return pixmap;
}

QSize Maat(const QString &naam)
{
    return BeeldMaat(Uitgetekend(naam));
}

} // namespace Plaatjes

void SchermPlaatje::Teken(QPainter &painter, const QWidget &widget)
{
    if (naam_.isEmpty())
        return;
    const double ratio = widget.devicePixelRatioF();
    if (pixmap_.size() != widget.size() * ratio || pixmap_.devicePixelRatio() != ratio)
        pixmap_ = Plaatjes::Pixmap(naam_, widget.size(), ratio);
    painter.drawPixmap(0, 0, pixmap_);
}
