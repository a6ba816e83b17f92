#pragma once

#include <QComboBox>
#include <QList>
#include <QString>
#include <QWidget>

/// Where a control belongs, in twips; 0 is not looked at.
struct Plek
{
    const char *Naam;
    int Links = 0, Boven = 0, Breedte = 0, Hoogte = 0;
};

/// Compares a window, or a frame on it, with the table of all its controls.
/// @return what is wrong, a line each: a control that is elsewhere, of another size, on another frame or outside its
/// frame, that lies under another one or has no room for its text, and one that is not in the table; empty when all is
/// well
QString Misplaatst(const QWidget &venster, const QList<Plek> &tabel);

/// The picture of each image button and each image of a window: "OkKnop knop-ok", with ", " between them.
QString PlaatjesOp(const QWidget &venster);

/// Shows a window and walks round it with the Tab key.
/// @return the names of the controls that take the focus, in their order, from the one that has it when the window
/// opens
QString TabVolgorde(QWidget &venster);

/// What a screen reader calls each control that has a name of its own for it: "OkKnop=Ok", in the order of their names.
QStringList Leesnamen(const QWidget &venster);

/// All that can be chosen, from top to bottom.
QStringList Items(const QComboBox &combo);

/// Opens the menu of a control as a right click does, and chooses an item if one is given.
/// @return its items with "|" between them, those that cannot be chosen between brackets
QString RechtsKlik(QWidget &control, const QString &keuze = {});
