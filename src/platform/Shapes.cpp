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

// A straight line is a bar, as TekenKader draws them: a pen makes it too long where the screen is finer than one dot to
// the pixel.
void LineMark::paintEvent(QPaintEvent *)
{
    const auto punt = [](double x, double y) { return QPoint(Twips::NaarPixels(x), Twips::NaarPixels(y)); };
    const QPoint een = punt(X1, Y1), ander = punt(X2, Y2);
    QPainter painter(this);
    if (een.x() == ander.x() || een.y() == ander.y()) {
        const int voor = BorderWidth / 2, na = BorderWidth - voor - 1;
        painter.fillRect((QRect(een, een) | QRect(ander, ander)).adjusted(-voor, -voor, na, na), BorderColor);
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(BorderColor, BorderWidth, Qt::SolidLine, Qt::SquareCap)); // both ends belong to it
    painter.drawLine(een, ander);
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
