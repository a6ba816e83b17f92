#include "platform/ImageButton.h"

#include "platform/Form.h"
#include "platform/Klok.h"
#include "platform/Plaatjes.h"
#include "platform/Twips.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
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
    const auto *form = dynamic_cast<Form *>(window());
    const bool wasOpen = form && !form->Unloaded();
    move(pos() + stap);
    Klok::Huidig().Wacht(Seconden);
    move(pos() - stap);
    if (wasOpen && form->Unloaded())
        throw Afgebroken();
}

QSize ImageButton::sizeHint() const
{
    return Plaatjes::Maat(plaatje_);
}

void ImageButton::paintEvent(QPaintEvent *)
{
    const double ratio = devicePixelRatioF();
    if (pixmap_.isNull() || pixmap_.devicePixelRatio() != ratio || pixmap_.deviceIndependentSize() != QSizeF(size()))
        pixmap_ = Plaatjes::Pixmap(plaatje_, size(), ratio);
    QPainter painter(this);
    if (!isEnabled())
        painter.setOpacity(0.45);
    painter.drawPixmap(0, 0, pixmap_);
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
