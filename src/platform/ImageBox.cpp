#include "platform/ImageBox.h"

#include <QPainter>

ImageBox::ImageBox(const QString &plaatje, QWidget *ouder) : QWidget(ouder), plaatje_(plaatje) {}

void ImageBox::SetPicture(const QString &naam)
{
    plaatje_ = SchermPlaatje(naam);
    update();
}

void ImageBox::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    plaatje_.Teken(painter, *this);
}
