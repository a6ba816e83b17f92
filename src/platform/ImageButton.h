#pragma once

#include "platform/Plaatjes.h"

#include <QAbstractButton>

/// A picture that is a button: it takes the focus, Space and Enter press it, a double click is one click.
class ImageButton : public QAbstractButton
{
    Q_OBJECT
public:
    /// @param plaatje name of the picture
    ImageButton(const QString &plaatje, QWidget *ouder);

    /// The press effect: the picture moves 30 twips right and 30 down for 0.2 seconds, then comes back. Raises
    /// Afgebroken when the window was closed meanwhile.
    void Druk();

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    SchermPlaatje plaatje_;
};
