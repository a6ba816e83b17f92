#pragma once

#include "platform/ListBox.h"

/// A list of three words, shown.
class DrieWoorden : public ListBox
{
public:
    DrieWoorden() : ListBox(nullptr)
    {
        resize(200, 150);
        SetItems({QStringLiteral("aap"), QStringLiteral("noot"), QStringLiteral("mies")});
        show();
    }
};

/// The middle of a row.
inline QPoint Rij(const ListBox &lijst, int rij)
{
    return lijst.visualRect(lijst.model()->index(rij, 0)).center();
}
