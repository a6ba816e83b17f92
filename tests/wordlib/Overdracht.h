#pragma once

#include "support/Verloop.h"
#include "support/Woordbord.h"

/// Gives a window these words as what it found, and hands them over to the main window by its button.
/// @return the course of it, as Verloop notes it
template <class Vorm> QStringList GeefOver(Vorm &form, Woordbord &bord, const QStringList &woorden)
{
    form.List1->SetItems(woorden);
    const QPoint plaats = form.ExportKnop->pos();
    Verloop verloop([&] { return form.ExportKnop->pos() == plaats ? QString() : QStringLiteral("gedrukt"); });
    verloop.Volg(*bord.Venster.List1);
    form.ExportKnop->click();
    return verloop.Stappen;
}
