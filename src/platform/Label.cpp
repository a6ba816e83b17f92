#include "platform/Label.h"

#include <QFontMetricsF>

#include <cmath>

Label::Label(const QString &caption, QWidget *ouder) : QLabel(ouder)
{
    setTextFormat(Qt::PlainText);
    SetCaption(caption);
}

void Label::SetCaption(const QString &caption)
{
    setText(caption);
    Pas();
}

void Label::SetFont(const QFont &font)
{
    setFont(font);
    Pas();
}

void Label::SetBackColor(QRgb kleur)
{
    QPalette palet = palette();
    palet.setColor(QPalette::Window, kleur);
    setPalette(palet);
    setAutoFillBackground(true);
}

void Label::SetForeColor(QRgb kleur)
{
    QPalette palet = palette();
    palet.setColor(QPalette::WindowText, kleur);
    setPalette(palet);
}

void Label::Pas()
{
    if (!AutoSize)
        return;
    const QFontMetricsF maten(font());
    double breedte = 0;
    const QStringList regels = text().split(u'\n');
    for (const QString &regel : regels)
        breedte = std::max(breedte, maten.horizontalAdvance(regel));
    const QSize maat(static_cast<int>(std::ceil(breedte)),
                     static_cast<int>(std::ceil(maten.height() * double(regels.size()))));
    const int links = alignment() & Qt::AlignRight ? x() + width() - maat.width() : x();
    setGeometry(QRect(QPoint(links, y()), maat));
}
