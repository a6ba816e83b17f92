#pragma once

#include "platform/PagedCanvas.h"
#include "print/Drukwerk.h"

/// The head of the first page: the puzzle's name, and the time when that is asked for. Raises what the printer raises.
void PrintPaginaKop(PagedCanvas &blad, const Drukwerk &werk);

/// The pages of a job from its head on. Everything is in twips. What fails is passed over: each of these ends as if it
/// had worked.
class Pagina
{
public:
    Pagina(PagedCanvas &blad, const Drukwerk &werk) : blad_(blad), werk_(werk) {}

    void ZetLetter(const Letter &letter) { blad_.ZetLetter(letter); }
    void PrintOp(double x, double y, const QString &tekst);
    /// A picture as a whole, stretched to a rectangle.
    void PrintBeeld(const QImage &beeld, const QRectF &doel);
    /// The board. @param maat of a cell on paper
    void PrintBord(const QImage &beeld, int maat, int boven = 900);
    /// The foot of this page, then another page.
    void VolgendBlad();
    /// The foot of this page; nothing comes behind it.
    void SluitAf();

private:
    void PrintVoet();

    PagedCanvas &blad_;
    const Drukwerk &werk_;
};
