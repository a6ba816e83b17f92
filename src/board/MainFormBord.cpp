#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "board/Soorten.h"
#include "platform/Kleur.h"

using namespace Qt::StringLiterals;

static constexpr bool NummerEditorBestaat = false; // item 7 stays disabled until it has an editor

QString RijTekst(int rij)
{
    return u"%1"_s.arg(rij + 1, 2, 10, QChar(u'0'));
}

QString KolomTekst(int kolom)
{
    return QString(QChar(static_cast<char16_t>(u'A' + kolom)));
}

// Both comparisons are strict on purpose: on a grid line the column or the row keeps its earlier value.
void MainForm::Pic_MouseMove(double pointerX, double pointerY)
{
    for (int y = 0; y <= Pic->Height(); y += VakMaat) {
        for (int x = 0; x <= Pic->Width(); x += VakMaat)
            if (pointerX > x && pointerX < x + VakMaat)
                CurCol = x / VakMaat;
        if (pointerY > y && pointerY < y + VakMaat)
            CurRow = y / VakMaat;
    }
    CurCell = BoardWidth * CurRow + CurCol + 1;

    const Soort *soort = SoortVan(PuzzelType);
    if (soort && soort->AlleenRij)
        Label6->SetCaption(RijTekst(CurRow));
    else
        Label6->SetCaption(u"%1-%2 / %3"_s.arg(KolomTekst(CurCol), RijTekst(CurRow)).arg(CurCell));
}

void MainForm::Pic_MouseDown(Qt::MouseButton knop, QPoint opScherm)
{
    const Soort *soort = SoortVan(PuzzelType);
    if (!soort)
        return;
    CurCell = std::max(CurCell, 1); // a click before the pointer ever moved acts on the first cell
    if (soort->MetVakMenu) {
        SoortVakTekst[1]->setEnabled(soort->MetInfovakje);
        SoortVakTekst[5]->setEnabled(soort->MetOpvullen);
        SoortVakTekst[7]->setEnabled(soort->MetVaknummer && NummerEditorBestaat);
    }
    if (knop == Qt::LeftButton) {
        Shape1->BorderColor = RGB(0, 200, 0);
        Shape1->Toon(CurCol * VakMaat + 15, CurRow * VakMaat + 15, VakMaat, VakMaat);
        if (soort->MetVakMenu)
            SoortPlaatsing->popup(opScherm);
        else if (PuzzelType == Sudoku)
            SudokuMenu->popup(opScherm);
    } else if (knop == Qt::RightButton && soort->MetZwart) {
        ZwartOmzetten();
    }
}

// The white box is larger than the dark one by design: it wipes the whole inside of the cell, the dark edge as well.
// Only the array is asked, not the pixels, and the puzzle doesn't count as changed.
void MainForm::ZwartOmzetten()
{
    if (CurCell < 0 || CurCell >= static_cast<int>(VakZwart.size()))
        throw Fout(Fout::IndexBuitenBereik, u"vakje %1"_s.arg(CurCell));
    bool &isZwart = VakZwart[static_cast<std::size_t>(CurCell)];
    const int x = CurCol * VakMaat + 15;
    const int y = CurRow * VakMaat + 15;
    const int grootX = CurCol * VakMaatGroot + 45;
    const int grootY = CurRow * VakMaatGroot + 45;
    if (isZwart) {
        Pic->BoxFull(x, y, x + 420, y + 420, RGB(255, 255, 255));
        PicGroot->BoxFull(grootX, grootY, grootX + 1740, grootY + 1740, RGB(255, 255, 255));
    } else {
        Pic->BoxFull(x + 15, y + 15, x + 405, y + 405, RGB(60, 60, 60));
        PicGroot->BoxFull(grootX + 45, grootY + 45, grootX + 1695, grootY + 1695, RGB(60, 60, 60));
    }
    isZwart = !isZwart;
}
