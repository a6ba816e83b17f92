#include "platform/ImageButton.h"

#include "platform/Twips.h"
#include "platform/WachtBij.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScopeGuard>
#include <QStyleOptionFocusRect>

ImageButton::ImageButton(const QString &plaatje, QWidget *ouder) : QAbstractButton(ouder), plaatje_(plaatje)
{
    setFocusPolicy(Qt::StrongFocus);
}

void ImageButton::Druk()
{
    constexpr int Verschuiving = 30;
    constexpr double Seconden = 0.2;
    const QPoint stap(Twips::NaarPixels(Verschuiving), Twips::NaarPixels(Verschuiving));
    const auto terug = qScopeGuard([&] { move(pos() - stap); }); // also when the wait is abandoned
    move(pos() + stap);
    WachtBij(*window(), Seconden);
}

QSize ImageButton::sizeHint() const
{
    return Plaatjes::Maat(plaatje_.Naam());
}

void ImageButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (!isEnabled())
        painter.setOpacity(0.45);
    plaatje_.Teken(painter, *this);
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = rect().adjusted(2, 2, -2, -2);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

void ImageButton::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && !event->isAutoRepeat())
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

void ImageButton::mouseDoubleClickEvent(QMouseEvent *event)
{
    event->accept(); // the second half of a double click is no click of its own
}
