#pragma once

#include <QImage>
#include <QString>

class Form;
class QMenu;

/// Takes pictures of windows into a folder, a PNG file each, and keeps a list of them there.
class Fotograaf
{
public:
    explicit Fotograaf(QString map);

    /// A whole window, under a bar with its title.
    void Neem(const QString &naam, Form &form);
    /// A part of the main window: its board with letters and numbers, or more or less of it.
    /// @param rechts,onder how much more, or less when negative, in pixels of the screen
    void NeemBord(const QString &naam, int rechts = 0, int onder = 0);
    /// The board with the pop-up menu that a click on a cell gives. It is closed again.
    void NeemMenu(const QString &naam, int kolom, int rij, QMenu &menu);
    /// Writes the list beelden.txt, unless it stands there as it is to be: of each picture its name and what tells it
    /// from an earlier one.
    void SchrijfLijst() const;

private:
    void Bewaar(const QString &naam, QImage beeld);

    QString map_;
    QByteArray lijst_;
};
