#pragma once

#include "platform/Plaatjes.h"

#include <QWidget>

/// A picture on a window, as large as the box.
class ImageBox : public QWidget
{
    Q_OBJECT
public:
    ImageBox(const QString &plaatje, QWidget *ouder);

    void SetPicture(const QString &naam);
    const QString &Picture() const { return plaatje_.Naam(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    SchermPlaatje plaatje_;
};
