#include "platform/ScrollBar.h"

#include <QKeyEvent>
#include <QPainter>

ScrollBar::ScrollBar(Qt::Orientation richting, QWidget *ouder) : QScrollBar(richting, ouder)
{
    setFocusPolicy(Qt::StrongFocus);
}

// The style draws no focus on a scroll bar.
void ScrollBar::paintEvent(QPaintEvent *event)
{
    QScrollBar::paintEvent(event);
    if (!hasFocus())
        return;
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Highlight));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

// The toolkit's own bar goes back at Right.
void ScrollBar::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Left)
        triggerAction(SliderSingleStepSub);
    else if (event->key() == Qt::Key_Right)
        triggerAction(SliderSingleStepAdd);
    else
        QScrollBar::keyPressEvent(event);
}
