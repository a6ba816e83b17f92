#include "platform/Screen.h"

#include <QCursor>
#include <QGuiApplication>

void Screen::MousePointer(int soort)
{
    while (QGuiApplication::overrideCursor())
        QGuiApplication::restoreOverrideCursor();
    if (soort == Hourglass)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}
