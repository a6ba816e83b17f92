#pragma once

class QWidget;

/// Waits for so many seconds with events running. Raises Afgebroken when the window was closed meanwhile, so that what
/// comes behind the wait is left out.
void WachtBij(const QWidget &venster, double seconden);
