#pragma once

#include "editors/TekstForm.h"
#include "support/Verwacht.h"

/// All that an editor may change.
inline Stand EditorStand(const Bord &bord)
{
    Stand stand = bord.Nu();
    stand["LaatsteOplossing"] = LaatsteOplossing;
    return stand;
}

/// Clicks a button. Its press effect comes before all else: nothing has been said or done yet.
inline void Klik(
    const Bord &bord, ImageButton &knop, const std::function<void()> &kijk = [] {})
{
    const Stand ervoor = EditorStand(bord);
    KlikMetDruk(knop, [&] {
        QCOMPARE(Verschil(ervoor, EditorStand(bord)), QString());
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
        kijk();
    });
}
