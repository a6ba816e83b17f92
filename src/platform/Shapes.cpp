#include "platform/Shapes.h"

#include "platform/Twips.h"

#include <QPainter>

Mark::Mark(QWidget *ouder) : QWidget(ouder)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void LineMark::Toon()
{
    setGeometry(parentWidget()->rect());
    raise();
    show();
    update();
}

void LineMark::paintEvent(QPaintEvent *)
{
    const auto punt = [](double x, double y) { return QPoint(Twips::NaarPixels(x), Twips::NaarPixels(y)); };
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing, X1 != X2 && Y1 != Y2);
    painter.setPen(QPen(BorderColor, BorderWidth, Qt::SolidLine, Qt::SquareCap)); // both ends belong to it
    painter.drawLine(punt(X1, Y1), punt(X2, Y2));
}

void RectMark::Toon(double links, double boven, double breedte, double hoogte)
{
    setGeometry(Twips::NaarPixels(links), Twips::NaarPixels(boven), Twips::NaarPixels(breedte),
                Twips::NaarPixels(hoogte));
    raise();
    show();
    update();
}

void RectMark::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    for (int i = 0; i < BorderWidth; ++i) {
        painter.setPen(BorderColor);
        painter.drawRect(rect().adjusted(i, i, -1 - i, -1 - i));
    }
}
