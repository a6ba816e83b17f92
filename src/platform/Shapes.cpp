#include "platform/Shapes.h"

#include "platform/Kader.h"
#include "platform/Twips.h"

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
    TekenKader(painter, rect(), BorderWidth, BorderColor);
}
