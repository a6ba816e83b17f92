#include "handleiding/Fotograaf.h"
#include "handleiding/Taferelen.h"

#include "app/AboutForm.h"
#include "app/ConfigForm.h"
#include "board/MainForm.h"
#include "documents/OpenFile.h"
#include "documents/SaveForm.h"
#include "documents/ShowPuzzel.h"
#include "print/Afdrukken.h"
#include "wordlib/AddForm.h"
#include "wordlib/ChemischForm.h"
#include "wordlib/FormMain.h"
#include "wordlib/KladblokForm.h"
#include "wordlib/MissingForm.h"
#include "wordlib/SpreekwoordForm.h"
#include "wordlib/ZoekForm.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

// Chooses an entry, as a click does.
static void Kies(ListBox &lijst, const QString &tekst)
{
    for (int i = 0; i < lijst.ListCount(); ++i)
        if (lijst.List(i) == tekst)
            lijst.SetListIndex(i);
}

static void NeemOntbrekend(Fotograaf &foto)
{
    MissingForm form;
    form.HScroll1->setValue(9);
    for (const auto &[plaats, letter] : {std::pair{3, u'A'}, {7, u'E'}, {8, u'N'}})
        form.VScroll.at(static_cast<size_t>(plaats))->setValue(letter);
    form.OkKnop_Click();
    foto.Neem(u"ontbrekende-letters"_s, form);
    form.HelpUitleg->trigger();
    foto.Neem(u"ontbrekende-letters-uitleg"_s, form);
}

static void NeemWoordlijsten(Fotograaf &foto)
{
    AddForm form;
    Kies(*form.List2, u"Bloemen"_s);
    form.List2_Click();
    form.List1->SetListIndex(2);
    form.Text1->setText(u"vergeet-mij-nietje"_s);
    foto.Neem(u"woordlijsten"_s, form);
}

static void NeemKladblok(Fotograaf &foto)
{
    KladblokForm form;
    form.resize(420, 200);
    form.Text1->SetText(u"zonnebloem\nklaproos\nkorenbloem\npaardenbloem\nboterbloem"_s);
    foto.Neem(u"kladblok"_s, form);
}

static void NeemNaslag(Fotograaf &foto)
{
    SpreekwoordForm spreekwoorden;
    spreekwoorden.List1->SetListIndex(4);
    foto.Neem(u"spreekwoorden"_s, spreekwoorden);
    ChemischForm scheikunde;
    scheikunde.Combo1->setCurrentIndex(7);
    foto.Neem(u"scheikunde"_s, scheikunde);
}

void Taferelen::Hulpmiddelen(Fotograaf &foto)
{
    {
        ZoekForm form;
        form.Option1[2]->click();
        form.Text1->setText(u"bloem"_s);
        form.Knop_Click();
        foto.Neem(u"database-doorzoeken"_s, form);
    }
    {
        FormMain form;
        form.Text1->setText(u"streek"_s);
        form.OkKnop_Click();
        foto.Neem(u"woorden-wisseling"_s, form);
    }
    NeemOntbrekend(foto);
    NeemNaslag(foto);
    NeemWoordlijsten(foto);
    NeemKladblok(foto);
}

static void OpenVoorbeeld(const QString &naam)
{
    OpenFile open;
    Kies(*open.List1, naam);
    open.OkKnop_Click();
}

static void NeemAfdrukken(Fotograaf &foto, const QString &naam)
{
    Afdrukken form;
    form.Check1->setChecked(true);
    form.Check2->setChecked(true);
    foto.Neem(naam, form);
}

static void NeemHoofdvenster(Fotograaf &foto)
{
    MainForm &main = Main();
    main.Timer1_Timer();
    main.ListView1->setCurrentItem(main.ListView1->topLevelItem(5));
    main.ListView1_ItemClick();
    main.ScrolLengte->setValue(6);
    main.OkKnop_Click();
    main.LoadKnop_Click();
    Kies(*main.List3, u"Bloemen"_s);
    main.List3_Click();
    main.List2->SetListIndex(4);
    main.List2_Click();
    foto.Neem(u"hoofdvenster"_s, main);
    main.Line1->hide();
}

static void NeemOver(Fotograaf &foto)
{
    AboutForm form;
    // Size and date are those of this program here, and other ones at each build.
    QString tekst = form.Label1->Caption();
    tekst.replace(QRegularExpression(u"/ \\d+\nDate : .*"_s), u"/ 1605120\nDate : 07-03-2026 09:05"_s);
    form.Label1->SetCaption(tekst);
    foto.Neem(u"over"_s, form);
}

void Taferelen::Programma(Fotograaf &foto)
{
    {
        OpenFile form;
        Kies(*form.List1, u"Kennismaking"_s);
        foto.Neem(u"openen"_s, form);
    }
    OpenVoorbeeld(u"Cijfers"_s);
    NeemAfdrukken(foto, u"afdrukken-sudoku"_s);
    OpenVoorbeeld(u"Kennismaking"_s);
    NeemAfdrukken(foto, u"afdrukken"_s);
    NeemHoofdvenster(foto);
    SaveForm opslaan;
    foto.Neem(u"opslaan"_s, opslaan);
    ShowPuzzel groot;
    foto.Neem(u"orgineel"_s, groot);
    ConfigForm instellingen;
    instellingen.HScroll2->setValue(2);
    foto.Neem(u"instellingen"_s, instellingen);
    NeemOver(foto);
}
