#pragma once

#include <QRectF>

#include <array>
#include <optional>

// The eight kinds of information cell: which arrows leave it, and whether it is split between two clues. This is the
// sheet and the preview; on the visible board a kind is a tile of the drawing "vakjes", with its arrows in it.
//
//        +--------+            +--------+
//        |  clue  |> 1         | clue 1 |> 5: both arrows,
//        |        |            |--------|     one a clue
//        +--------+            | clue 2 |
//            v 2               +---v----+

inline constexpr int PijlMaat = 345; ///< an arrow drawing is square

/// A drawing in the arrow strip, as its left edge there in twips.
enum class Pijl { Rechts = 0, Omlaag = 345, RechtsDanOmlaag = 690, OmlaagDanRechts = 1035 };

/// An arrow of a kind: its drawing, its place on PicGroot from the inside of the cell, and in the preview the one place
/// that differs by kind (the top of a right arrow, the left of a down arrow). Twips.
struct PijlPlaats
{
    Pijl Tekening;
    int X, Y;
    int Voorbeeld;

    /// The drawing's part of the strip.
    QRectF Deel() const { return QRectF(static_cast<int>(Tekening), 0, PijlMaat, PijlMaat); }
};

struct VakSoort
{
    std::optional<PijlPlaats> Rechts, Omlaag;
    bool Gesplitst() const { return Rechts && Omlaag; }
};

// Kind 5 lies at 270 where kind 7 lies at 240, and the preview shows both at 570: wanted so.
inline constexpr std::array<VakSoort, 8> VakSoorten{{
    {PijlPlaats{Pijl::Rechts, 1800, 690, 960}, std::nullopt},
    {std::nullopt, PijlPlaats{Pijl::Omlaag, 690, 1800, 960}},
    {PijlPlaats{Pijl::RechtsDanOmlaag, 1800, 240, 450}, std::nullopt},
    {std::nullopt, PijlPlaats{Pijl::OmlaagDanRechts, 240, 1800, 450}},
    {PijlPlaats{Pijl::Rechts, 1800, 270, 570}, PijlPlaats{Pijl::Omlaag, 690, 1800, 960}},
    {PijlPlaats{Pijl::RechtsDanOmlaag, 1800, 240, 450}, PijlPlaats{Pijl::Omlaag, 690, 1800, 960}},
    {PijlPlaats{Pijl::Rechts, 1800, 240, 570}, PijlPlaats{Pijl::OmlaagDanRechts, 240, 1800, 450}},
    {PijlPlaats{Pijl::RechtsDanOmlaag, 1800, 240, 450}, PijlPlaats{Pijl::OmlaagDanRechts, 240, 1800, 450}},
}};

/// @return nullptr for a value outside 1..8
inline const VakSoort *VakSoortVan(int soort)
{
    return soort >= 1 && soort <= 8 ? &VakSoorten[static_cast<std::size_t>(soort - 1)] : nullptr;
}
