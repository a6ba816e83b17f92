#pragma once

#include <QScrollBar>

/// A scroll bar that can be reached with Tab, and shows it. Left and Up go back, Right and Down go on.
class ScrollBar : public QScrollBar
{
    Q_OBJECT
public:
    ScrollBar(Qt::Orientation richting, QWidget *ouder);

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
};
