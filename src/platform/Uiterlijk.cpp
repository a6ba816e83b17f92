#include "platform/Uiterlijk.h"

#include "platform/Canvas.h"

#include <QApplication>
#include <QStyle>
#include <QWidget>

using namespace Qt::StringLiterals;

void StelUiterlijkIn()
{
    QApplication::setStyle(u"Fusion"_s);
    QPalette palet = QApplication::style()->standardPalette();
    for (const QPalette::ColorRole rol : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palet.setColor(QPalette::Disabled, rol, qRgb(120, 120, 120)); // still to be read on our pale colours
    QApplication::setPalette(palet);
    QApplication::setFont(Lettertype(u"Arial"_s, 8.25, false));
}

void AlsDialoog(QWidget &venster)
{
    venster.setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                           Qt::WindowCloseButtonHint);
}
