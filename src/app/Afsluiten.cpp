#include "app/Afsluiten.h"

#include "app/InstellingenBestand.h"
#include "board/Algemeen.h"
#include "platform/Berichten.h"
#include "platform/Form.h"
#include "platform/Klok.h"

using namespace Qt::StringLiterals;

bool SluitMain()
{
    if (PuzzelGewijzigd && !JaNee(u"Puzzel is gewijzigd, wil je toch afsluiten?"_s, u"Afsluiten"_s))
        return false;
    // Settings that cannot be written are no reason to keep the program open: said, and ended all the same.
    Form::Voer(u"het bewaren van de instellingen"_s, BewaarInstellingen);
    Klok::ProgrammaEindigt();
    return true;
}
