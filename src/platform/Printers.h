#pragma once

#include "platform/Printer.h"

#include <QStringList>

/// The system's print queues. One object is in use at a time; tests put their own in its place.
class Wachtrijen
{
public:
    virtual ~Wachtrijen();
    virtual QStringList Namen();
    virtual QString Standaard(); ///< the name of the default one; empty when there is none

    static Wachtrijen &Huidig();
    /// Puts other queues in use, nullptr the real ones; the printer that was chosen is forgotten. The caller keeps them
    /// alive.
    static void Gebruik(Wachtrijen *wachtrijen);
};

/// The printers there are: the system's queues in its order, and a last one that writes a PDF file. The system is not
/// asked before the first use.
namespace Printers {

/// The names of all printers, asked anew. When the one that was chosen is gone, the choice is forgotten.
QStringList Lijst();
/// Makes a printer the current one for the rest of the run.
/// @param index in the list as it was last asked for; another number changes nothing
void Kies(int index);
/// The current printer: the one chosen; else the system's default, or the PDF printer when there is none.
/// Another choice ends the life of this object.
Printer &Huidig();

} // namespace Printers
