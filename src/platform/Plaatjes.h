#pragma once

#include <QImage>
#include <QPixmap>
#include <QString>

/// The pictures that are compiled in, as vector drawings.
namespace Plaatjes {

/// A picture in its own size, for drawing on a picture box: on white, 32 bits a pixel.
QImage Beeld(const QString &naam);
/// The same drawing with one of its colours (as it is written in the drawing, such as "#e5f8c2") exchanged.
QImage Beeld(const QString &naam, const QString &kleur, const QString &andereKleur);
/// A picture for a widget of this size in logical pixels, sharp at any device pixel ratio, transparent where it is
/// empty.
QPixmap Pixmap(const QString &naam, QSize maat, double ratio);
/// The picture's own size in pixels.
QSize Maat(const QString &naam);

} // namespace Plaatjes

class QPainter;
class QWidget;

/// A picture as a widget shows it, over the whole widget: drawn when it is first seen, sharp at any scale.
class SchermPlaatje
{
public:
    explicit SchermPlaatje(const QString &naam = {}) : naam_(naam) {}

    /// An empty name shows nothing.
    const QString &Naam() const { return naam_; }
    void Teken(QPainter &painter, const QWidget &widget);

private:
    QString naam_;
    QPixmap pixmap_;
};
