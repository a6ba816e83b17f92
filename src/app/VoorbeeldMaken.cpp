#include "app/VoorbeeldMaken.h"

#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "board/NieuwForm.h"
#include "documents/HtmlExport.h"
#include "documents/PuzzelMap.h"
#include "documents/SaveForm.h"
#include "editors/Filippine.h"
#include "editors/FilippineForm.h"
#include "editors/NummerForm.h"
#include "editors/TekstForm.h"
#include "editors/VakForm.h"
#include "generators/AutoForm.h"
#include "generators/SudokuSpel.h"
#include "platform/Files.h"
#include "platform/Fout.h"
#include "platform/Toeval.h"

using namespace Qt::StringLiterals;

namespace Voorbeeld {

namespace {

void WijsAan(Cel cel)
{
    Main().Pic_MouseMove(cel.Kolom * VakMaat + VakMaat / 2.0, cel.Rij * VakMaat + VakMaat / 2.0);
}

void MaakVakje(const Vakje &vakje)
{
    WijsAan(vakje.Waar);
    VakForm form;
    form.HScroll1->setValue(vakje.Soort);
    form.Text1->SetText(vakje.Omschrijving);
    form.OkKnop_Click();
}

void MaakWoord(const Woord &woord)
{
    WijsAan(woord.Waar);
    TekstForm form;
    form.Option[woord.Horizontaal ? 0 : 1]->setChecked(true);
    form.Text2->setText(woord.Oplossing);
    form.Text1->setText(woord.Omschrijving);
    form.Combo1->setCurrentText(QString::number(woord.Nummer)); // which only a Kruiswoord reads
    form.OkKnop_Click();
}

void MaakZwart(Cel cel)
{
    WijsAan(cel);
    Main().Pic_MouseDown(Qt::RightButton, {});
}

void MaakNummer(const Woord &woord)
{
    WijsAan(woord.Waar);
    NummerForm form;
    form.HScroll1->setValue(form.HScroll1->maximum()); // only what is scrolled to counts: also 1, where the bar begins
    form.HScroll1->setValue(woord.Nummer);
    form.OkKnop_Click();
}

void MaakAntwoord(const Woord &woord)
{
    WijsAan(woord.Waar);
    FilippineForm form;
    form.Text1->setText(woord.Omschrijving);
    form.Text2->setText(woord.Oplossing);
    form.OkKnop_Click();
}

void KiesMaat(QComboBox &breedte, QComboBox &hoogte, const Puzzel &puzzel)
{
    breedte.setEditText(QString::number(puzzel.Breedte));
    hoogte.setEditText(QString::number(puzzel.Hoogte));
}

void Begin(const Puzzel &puzzel)
{
    NieuwForm nieuw;
    nieuw.Text1->setText(puzzel.Naam);
    nieuw.Option[puzzel.Soort - 1]->click();
    if (puzzel.Soort != Sudoku && puzzel.Soort != Filippine) // whose size is not to be chosen
        KiesMaat(*nieuw.Combo1, *nieuw.Combo2, puzzel);
    nieuw.OkKnop_Click();
}

void MaakZweeds(const Puzzel &puzzel)
{
    for (const Vakje &vakje : puzzel.Vakjes)
        MaakVakje(vakje);
    for (const Woord &woord : puzzel.Woorden)
        MaakWoord(woord);
}

// The number of a cell where two words begin is printed twice: the number window prints it anew on white.
void MaakKruiswoord(const Puzzel &puzzel)
{
    for (int rij = 0; rij < puzzel.Hoogte; ++rij)
        for (int kolom = 0; kolom < puzzel.Breedte; ++kolom)
            if (const Cel cel{kolom, rij}; !puzzel.Letters.contains(puzzel.Vak(cel)))
                MaakZwart(cel);
    for (const Woord &woord : puzzel.Woorden)
        MaakWoord(woord);
    for (const Woord &woord : puzzel.Woorden)
        MaakNummer(woord);
}

void MaakFilippine(const Puzzel &puzzel)
{
    for (const Woord &woord : puzzel.Woorden)
        MaakAntwoord(woord);
    WijsAan(puzzel.WaarZoekwoord);
    FilippineForm form;
    form.Option[1]->click();
    form.Text2->setText(puzzel.Zoekwoord);
    form.OkKnop_Click();
}

/// Draws until every word has a place: the message that one has none is a failure here.
void TekenAlles(AutoForm &form)
{
    constexpr std::uint32_t LaatsteZaad = 200;
    for (std::uint32_t zaad = 1; zaad < LaatsteZaad; ++zaad) {
        Toeval::Zaad(zaad);
        if (negeer([&] { form.OkKnop_Click(); }))
            return;
    }
    Toeval::Zaad(LaatsteZaad);
    form.OkKnop_Click();
}

void MaakWoordzoeker(const Puzzel &puzzel)
{
    AutoForm form;
    KiesMaat(*form.Combo1, *form.Combo2, puzzel);
    for (const QString &woord : puzzel.Zoekwoorden) {
        form.Text2->setText(woord);
        form.AddKnop_Click();
    }
    TekenAlles(form);
    form.ExportKnop_Click();
}

void MaakSudoku(const Puzzel &puzzel)
{
    Toeval::Zaad(1);
    Main().Option[puzzel.Niveau]->click();
    StartKnop_Click();
}

/// For what passes over a file that could not be written.
void MoetBestaan(const QString &bestand)
{
    if (!BestandBestaat(bestand))
        throw Fout(Fout::SchijfFout, bestand);
}

void Bewaar(const QString &naam)
{
    SaveForm bewaar;
    bewaar.Text1->setText(naam);
    bewaar.SaveKnop_Click();
    MoetBestaan(PuzzelPad(naam + u".lst"_s));
}

void Maak(const Puzzel &puzzel)
{
    switch (puzzel.Soort) {
    case Woordzoeker:
        return MaakWoordzoeker(puzzel);
    case Kruiswoord:
        return MaakKruiswoord(puzzel);
    case Sudoku:
        return MaakSudoku(puzzel);
    case Filippine:
        return MaakFilippine(puzzel);
    default:
        return MaakZweeds(puzzel);
    }
}

} // namespace

void MaakPuzzel(const Puzzel &puzzel, const std::function<void(const QString &naam)> &bewaard)
{
    Begin(puzzel);
    Maak(puzzel);
    Bewaar(puzzel.Naam);
    bewaard(puzzel.Naam);
    if (puzzel.Soort == Filippine) {
        VerwijderRaster(*Main().Pic);
        VerwijderLetters(*Main().Pic);
        Bewaar(puzzel.LegeNaam);
        bewaard(puzzel.LegeNaam);
    }
}

void MaakPagina()
{
    SchrijfHtml(PuzzelNaam);
    MoetBestaan(Files::Pad(HtmlMap(), {PuzzelNaam + u".html"_s}));
    MoetBestaan(Files::Pad(HtmlBeeldMap(), {PuzzelNaam + u".bmp"_s}));
}

} // namespace Voorbeeld
