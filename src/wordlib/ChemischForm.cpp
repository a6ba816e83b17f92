#include "wordlib/ChemischForm.h"

#include "board/Algemeen.h"
#include "board/Kleuren.h"
#include "board/WoordPaden.h"
#include "platform/Canvas.h"
#include "platform/Files.h"
#include "platform/Fout.h"
#include "platform/Kleur.h"
#include "platform/Screen.h"
#include "wordlib/Naslagwerk.h"

using namespace Qt::StringLiterals;

ChemischForm::ChemischForm() : Form(u"ChemischForm"_s, u"Scheikundige symbolen (0)"_s, 8535, 4965, Kleuren::Paneel)
{
    Picture = MaakBeeld("Picture", QString(), u"scheikunde"_s);
    Label2 = MaakLabel("Label2", u"Naam                              Symbool           Atoomnummer"_s);
    Combo1 = Maak<QComboBox>("Combo1", u"Scheikundige elementen"_s);
    Label1 = MaakLabel("Label1", u"Scheikundige elementen en hun symbolen"_s);

    Zet(Picture, 0, 0, 8415, 4485);
    Zet(Label2, 1230, 180);
    Zet(Combo1, 1215, 540, 4200, 315);
    Zet(Label1, 1215, 990);

    Kleur(Combo1, RGB(0, 0, 30), RGB(200, 200, 200));
    Combo1->setFont(Lettertype(u"Fixedsys"_s, 10, false));
    Combo1->setModel(&elementen_);
    Combo1->setEditable(true); // what is typed finds an element
    Combo1->setInsertPolicy(QComboBox::NoInsert);
    VulElementen();
}

void ChemischForm::VulElementen()
{
    const bool heel = [this] {
        const Screen::Bezig bezig; // over by the time of the message
        QStringList regels;
        const bool gelezen = negeer([&] { LeesElementen(Files::Lees(BibliotheekPad(u"Elementen"_s)), regels); });
        elementen_.setStringList(regels);
        Combo1->setCurrentIndex(-1);
        return gelezen;
    }();
    if (!heel) {
        MeldGeenDatabase();
        return;
    }
    setWindowTitle(u"Scheikundige symbolen (%1)"_s.arg(Combo1->count()));
}
