#include "platform/Uiterlijk.h"

#include "platform/Canvas.h"

#include <QApplication>
#include <QStyle>

void StelUiterlijkIn()
{
    QApplication::setStyle(QStringLiteral("Fusion"));
    QPalette palet = QApplication::style()->standardPalette();
    for (const QPalette::ColorRole rol : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palet.setColor(QPalette::Disabled, rol, qRgb(120, 120, 120)); // still to be read on our pale colours
    QApplication::setPalette(palet);
    QApplication::setFont(Lettertype(QStringLiteral("Arial"), 8.25, false));
}
