#include "platform/Tekening.h"

#include <QPainter>
#include <QSvgRenderer>

void TekenSvg(QPaintDevice &doel, QSvgRenderer &tekening, QSize maat)
{
    QPainter painter(&doel);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    tekening.render(&painter, QRectF(QPointF(0, 0), maat));
}
