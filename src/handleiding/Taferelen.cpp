#include "handleiding/Taferelen.h"

#include "handleiding/Fotograaf.h"

#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "board/NieuwForm.h"
#include "board/Opvullen.h"
#include "editors/Filippine.h"
#include "editors/FilippineForm.h"
#include "editors/LetterForm.h"
#include "editors/NummerForm.h"
#include "editors/TekstForm.h"
#include "editors/VakForm.h"
#include "generators/AutoForm.h"
#include "generators/SudokuSpel.h"
#include "platform/Fout.h"
#include "platform/Toeval.h"

using namespace Qt::StringLiterals;

namespace {

void WijsAan(int kolom, int rij)
{
    Main().Pic_MouseMove(kolom * VakMaat + VakMaat / 2.0, rij * VakMaat + VakMaat / 2.0);
}

void Vul(NieuwForm &nieuw, quint8 soort, const QString &naam)
{
    nieuw.Text1->setText(naam);
    nieuw.Option[soort - 1]->click();
    if (nieuw.Combo1->isEnabled()) {
        nieuw.Combo1->setEditText(u"9"_s);
        nieuw.Combo2->setEditText(u"9"_s);
    }
}

void Begin(quint8 soort, const QString &naam)
{
    NieuwForm nieuw;
    Vul(nieuw, soort, naam);
    nieuw.OkKnop_Click();
}

/// What is typed into the window for a word.
struct Plaatsing
{
    int Kolom, Rij;
    int Richting; ///< the index of its option
    QString Omschrijving, Oplossing;
    QString Nummer = {}; ///< of a Kruiswoord
};

void Vul(TekstForm &form, const Plaatsing &woord)
{
    form.Option[woord.Richting]->click();
    form.Text1->setText(woord.Omschrijving);
    form.Text2->setText(woord.Oplossing);
    if (!woord.Nummer.isEmpty())
        form.Combo1->setCurrentText(woord.Nummer);
}

void Plaats(const Plaatsing &woord)
{
    WijsAan(woord.Kolom, woord.Rij);
    TekstForm form;
    Vul(form, woord);
    form.OkKnop_Click();
}

void PlaatsVakje(int kolom, int rij, int soort, const QString &omschrijving)
{
    WijsAan(kolom, rij);
    VakForm form;
    form.HScroll1->setValue(soort);
    form.Text1->SetText(omschrijving);
    form.OkKnop_Click();
}

void Vul(FilippineForm &form, int nummer, const QString &omschrijving, const QString &antwoord)
{
    form.HScroll1->setValue(nummer);
    form.Text1->setText(omschrijving);
    form.Text2->setText(antwoord);
}

void PlaatsAntwoord(int kolom, int nummer, const QString &omschrijving, const QString &antwoord)
{
    WijsAan(kolom, nummer - 1);
    FilippineForm form;
    Vul(form, nummer, omschrijving, antwoord);
    form.OkKnop_Click();
}

/// Draws until every word has a place.
void TekenAlles(AutoForm &form)
{
    std::uint32_t zaad = 1;
    do
        Toeval::Zaad(zaad++);
    while (!negeer([&] { form.OkKnop_Click(); }));
}

} // namespace

void Taferelen::Zweeds(Fotograaf &foto)
{
    {
        NieuwForm nieuw;
        Vul(nieuw, ::Zweeds, u"Huisdieren"_s);
        foto.Neem(u"nieuw"_s, nieuw);
        nieuw.OkKnop_Click();
    }
    foto.NeemMenu(u"vakmenu"_s, 0, 0, *Main().SoortPlaatsing);
    {
        WijsAan(0, 0);
        VakForm form;
        form.HScroll1->setValue(1);
        form.Text1->SetText(u"\nspinnend\nhuisdier"_s);
        foto.Neem(u"informatievakje"_s, form);
        form.OkKnop_Click();
    }
    {
        WijsAan(2, 5);
        VakForm form;
        form.HScroll1->setValue(6);
        form.Text1->SetText(u"\nziet in\nhet donker\n\ngeeft\nmelk"_s);
        foto.Neem(u"informatievakje-dubbel"_s, form);
    }
    const Plaatsing kat{1, 0, 0, u"spinnend huisdier"_s, u"kat"_s};
    {
        WijsAan(kat.Kolom, kat.Rij);
        TekstForm form;
        Vul(form, kat);
        foto.Neem(u"oplossing"_s, form);
        form.OkKnop_Click();
    }
    PlaatsVakje(0, 1, 4, u"\nwaakt over\nhuis en hof"_s);
    Plaats({0, 2, 0, u"waakt over huis en hof"_s, u"hond"_s});
    PlaatsVakje(4, 0, 2, u"\nzit op\nstok"_s);
    Plaats({4, 1, 1, u"zit op stok"_s, u"kanarie"_s});
    foto.NeemBord(u"zweeds"_s);
}

void Taferelen::Kruiswoord(Fotograaf &foto)
{
    Begin(::Kruiswoord, u"Keuken"_s);
    const Plaatsing kaas{0, 0, 0, u"zuivel om te snijden"_s, u"kaas"_s, u"1"_s};
    {
        WijsAan(kaas.Kolom, kaas.Rij);
        TekstForm form;
        Vul(form, kaas);
        foto.Neem(u"oplossing-kruiswoord"_s, form);
        form.OkKnop_Click();
    }
    Plaats({0, 0, 1, u"groente van het land"_s, u"kool"_s, u"1"_s});
    Plaats({3, 0, 1, u"jong plantje"_s, u"stek"_s, u"2"_s});
    Plaats({0, 3, 0, u"schakel van een ketting"_s, u"link"_s, u"3"_s});
    for (const QPoint cel : {QPoint(1, 1), QPoint(2, 1), QPoint(1, 2), QPoint(2, 2)}) {
        WijsAan(cel.x(), cel.y());
        Main().Pic_MouseDown(Qt::RightButton, QPoint());
    }
    foto.NeemBord(u"kruiswoord"_s);
    WijsAan(5, 0);
    LetterForm letter;
    letter.HScroll1->setValue(26);
    foto.Neem(u"letter"_s, letter);
    NummerForm nummer;
    nummer.HScroll1->setValue(4);
    foto.Neem(u"vaknummer"_s, nummer);
}

void Taferelen::Filippine(Fotograaf &foto)
{
    constexpr int LegeRijen = -450; // of the board only its top is shown
    Begin(::Filippine, u"Hemel"_s);
    {
        WijsAan(1, 0);
        FilippineForm form;
        Vul(form, 1, u"bloemen met doornen"_s, u"rozen"_s);
        foto.Neem(u"filippine-antwoord"_s, form);
        form.OkKnop_Click();
    }
    PlaatsAntwoord(2, 2, u"malen op de wind"_s, u"molens"_s);
    PlaatsAntwoord(0, 3, u"schijnt in de nacht"_s, u"maan"_s);
    {
        WijsAan(4, 0);
        FilippineForm form;
        form.Option[1]->click();
        form.Text2->setText(u"zon"_s);
        foto.Neem(u"filippine-zoekwoord"_s, form);
        form.OkKnop_Click();
    }
    foto.NeemBord(u"filippine"_s, 0, LegeRijen);
    VerwijderRaster(*Main().Pic);
    VerwijderLetters(*Main().Pic);
    foto.NeemBord(u"filippine-leeg"_s, 0, LegeRijen);
}

void Taferelen::Sudoku(Fotograaf &foto)
{
    Toeval::Zaad(1);
    Begin(::Sudoku, u"Cijfers"_s);
    StartKnop_Click();
    constexpr int Paneel = 300; // the panel is below the board
    foto.NeemBord(u"sudoku"_s, 0, Paneel);
    foto.NeemMenu(u"sudokumenu"_s, 2, 0, *Main().SudokuMenu);
}

void Taferelen::Woordzoeker(Fotograaf &foto)
{
    Begin(::Woordzoeker, u"Zomer"_s);
    const Plaatsing strand{0, 0, 2, QString(), u"strand"_s};
    {
        WijsAan(strand.Kolom, strand.Rij);
        TekstForm form;
        Vul(form, strand);
        foto.Neem(u"oplossing-woordzoeker"_s, form);
        form.OkKnop_Click();
    }
    Plaats({2, 8, 0, QString(), u"ijsje"_s});
    Plaats({8, 0, 1, QString(), u"zwembad"_s});
    Plaats({6, 1, 3, QString(), u"zomer"_s});
    foto.NeemBord(u"woordzoeker"_s);
    Toeval::Zaad(1);
    VulLegeVakjes();
    foto.NeemBord(u"woordzoeker-vol"_s);
    AutoForm form;
    form.EditVoorbeeld->trigger();
    TekenAlles(form);
    form.Text2->setText(u"Zwolle"_s);
    foto.Neem(u"automatische-woordzoeker"_s, form);
}
