#include "platform/WachtBij.h"

#include "platform/Fout.h"
#include "platform/Klok.h"

#include <QWidget>

void WachtBij(const QWidget &venster, double seconden)
{
    const bool wasOpen = venster.isVisible();
    Klok::Huidig().Wacht(seconden);
    if (wasOpen && !venster.isVisible())
        throw Afgebroken();
}
