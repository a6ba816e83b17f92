#include "app/VoorbeeldMaken.h"

#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "board/NieuwForm.h"
#include "documents/HtmlExport.h"
#include "documents/SaveForm.h"
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
    if (puzzel.Soort != Sudoku) // whose size is not to be chosen
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

void Bewaar(const Puzzel &puzzel)
{
    SaveForm bewaar;
    bewaar.SaveKnop_Click();
    MoetBestaan(Files::Pad(AppPath, {u"Puzzels"_s, puzzel.Naam + u".lst"_s}));
}

} // namespace

void MaakPuzzel(const Puzzel &puzzel)
{
    Begin(puzzel);
    if (puzzel.Soort == Woordzoeker)
        MaakWoordzoeker(puzzel);
    else if (puzzel.Soort == Sudoku)
        MaakSudoku(puzzel);
    else
        MaakZweeds(puzzel);
    Bewaar(puzzel);
}

void MaakPagina()
{
    SchrijfHtml(PuzzelNaam);
    MoetBestaan(Files::Pad(HtmlMap(), {PuzzelNaam + u".html"_s}));
    MoetBestaan(Files::Pad(HtmlBeeldMap(), {PuzzelNaam + u".bmp"_s}));
}

} // namespace Voorbeeld
