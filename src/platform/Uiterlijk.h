#pragma once

class QWidget;

/// The style, the palette and the font that every window has: Fusion, light, Arial 8.25. In Dutch what Qt has in the
/// menus of its boxes, in its dialog that asks for a file and in its help of the command line. To be called once,
/// before the first window.
void StelUiterlijkIn();

/// Gives a window the frame of a dialog: a title and a close button, nothing to minimise or maximise it.
void AlsDialoog(QWidget &venster);

/// The window that a new dialog belongs to, and stays in front of; nullptr when none is open.
QWidget *Eigenaar();
