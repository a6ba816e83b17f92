#pragma once

#include "board/Rij.h"

#include <QByteArray>
#include <QList>

#include <optional>

inline constexpr qsizetype GrootsteLijst = qsizetype{8} << 20; ///< of a puzzle file no more is read, in bytes

/// What the text file of a puzzle holds: kind, size and entry list. The board itself is in the bitmaps beside it.
struct PuzzelLijst
{
    std::optional<quint8> Soort;
    std::optional<qint32> Breedte, Hoogte;
    QList<Rij> Rijen;
    bool Heel = false; ///< it was read to its end without a failure
};

/// Reads a puzzle file. It never fails: from damage on, nothing more is taken; what was read up to there stands. What
/// is beyond GrootsteLijst counts as damage. A comma ends a field as a line end does, so that a clue with a comma
/// shifts the fields behind it; kept so.
PuzzelLijst LeesPuzzelLijst(const QByteArray &inhoud);

/// The puzzle file's bytes, in code page 1252: five lines of header, then five lines a row. Nothing is quoted.
QByteArray SchrijfPuzzelLijst(quint8 soort, qint32 breedte, qint32 hoogte, const QList<Rij> &rijen);
