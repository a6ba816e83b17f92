#pragma once

#include <QColor>
#include <QWidget>

/// A mark that lies over a picture box without being drawn into it. It lets the pointer through.
class Mark : public QWidget
{
public:
    explicit Mark(QWidget *ouder);
};

/// A straight line from one point to another, both drawn: a line that ends where it begins is a dot. Its points are in
/// twips of the picture box that it lies on.
class LineMark : public Mark
{
public:
    using Mark::Mark;

    double X1 = 0, Y1 = 0, X2 = 0, Y2 = 0;
    QColor BorderColor = Qt::black;
    int BorderWidth = 1; ///< pixels

    /// Shows the line where its points are now.
    void Toon();

protected:
    void paintEvent(QPaintEvent *event) override;
};

/// The outline of a rectangle.
class RectMark : public Mark
{
public:
    using Mark::Mark;

    QColor BorderColor = Qt::black;
    int BorderWidth = 1; ///< pixels

    /// Shows the outline at this place, in twips.
    void Toon(double links, double boven, double breedte, double hoogte);

protected:
    void paintEvent(QPaintEvent *event) override;
};
