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

Screen::Vraagt::Vraagt() : bezig_(QGuiApplication::overrideCursor() != nullptr)
{
    MousePointer(Arrow);
}

Screen::Vraagt::~Vraagt()
{
    if (bezig_)
        MousePointer(Hourglass);
}
