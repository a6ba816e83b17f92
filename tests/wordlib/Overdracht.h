#pragma once

#include "support/Verloop.h"
#include "support/Woordbord.h"

/// Hands the words that a window found over to the main window by its button; what counts is what it has when that has
/// been pressed.
/// @return the course of it, as Verloop notes it
template <class Vorm> QStringList GeefOver(Vorm &form, Woordbord &bord, const QStringList &woorden)
{
    form.List1->SetItems({QStringLiteral("eerder"), QStringLiteral("nog eerder")});
    const QPoint plaats = form.ExportKnop->pos();
    Verloop verloop([&] { return form.ExportKnop->pos() == plaats ? QString() : QStringLiteral("gedrukt"); });
    verloop.Volg(*bord.Venster.List1);
    verloop.Bijwerk = [&] { form.List1->SetItems(woorden); };
    form.ExportKnop->click();
    return verloop.Stappen;
}

/// Closes a window that found a word during the press of the button that hands over.
/// @return what that changes of the main window
template <class Vorm> QString SluitBijOvergave(Vorm &form, Woordbord &bord)
{
    bord.VulList1();
    form.List1->SetItems({QStringLiteral("kat")});
    form.show();
    const Stand ervoor = bord.Nu();
    Verloop verloop;
    verloop.Bijwerk = [&] { form.close(); };
    form.ExportKnop->click();
    return bord.Veranderd(ervoor);
}
