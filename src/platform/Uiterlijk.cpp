#include "platform/Uiterlijk.h"

#include "platform/Canvas.h"

#include <QApplication>
#include <QStyle>

void StelUiterlijkIn()
{
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setPalette(QApplication::style()->standardPalette());
    QApplication::setFont(Lettertype(QStringLiteral("Arial"), 8.25, false));
}
