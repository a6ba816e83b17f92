#include "generators/SudokuMod.h"

#include "platform/Toeval.h"

#include <bit>

std::array<qint32, 81> SudokuOplossing;

constexpr unsigned AlleCijfers = 0b11'1111'1110;

static size_t RijVan(int cel)
{
    return static_cast<size_t>(cel / 9);
}

static size_t KolomVan(int cel)
{
    return static_cast<size_t>(cel % 9);
}

static size_t BlokVan(int cel)
{
    return RijVan(cel) / 3 * 3 + KolomVan(cel) / 3;
}

void SudokuRaster::Zet(int cel, int cijfer)
{
    const unsigned bit = 1U << cijfer;
    cellen_[static_cast<size_t>(cel)] = static_cast<qint16>(cijfer);
    inRij_[RijVan(cel)] |= bit;
    inKolom_[KolomVan(cel)] |= bit;
    inBlok_[BlokVan(cel)] |= bit;
}

unsigned SudokuRaster::Vrij(int cel) const
{
    return AlleCijfers & ~(inRij_[RijVan(cel)] | inKolom_[KolomVan(cel)] | inBlok_[BlokVan(cel)]);
}

QString SudokuRaster::Kandidaten(int cel) const
{
    QString cijfers;
    for (int cijfer = 1; cijfer <= 9; ++cijfer)
        if (Vrij(cel) & 1U << cijfer)
            cijfers += QChar(u'0' + cijfer);
    return cijfers;
}

qint32 RandomGetal(qint32 Laag, qint32 Hoog)
{
    Toeval::Randomize();
    const auto aantal = static_cast<double>(qint64{Hoog} - Laag + 1);
    return static_cast<qint32>(Laag + static_cast<qint64>(Toeval::Rnd() * aantal));
}

/// The first of the empty cells with the fewest free digits; -1 when one has none.
static int BesteCel(const SudokuRaster &raster)
{
    int beste = -1, kleinste = 10;
    for (int cel = 0; cel < 81; ++cel) {
        if (raster[cel] > 0)
            continue;
        const int aantal = std::popcount(raster.Vrij(cel));
        if (aantal == 0)
            return -1;
        if (aantal < kleinste) {
            kleinste = aantal;
            beste = cel;
        }
    }
    return beste;
}

/// Fills a grid from nothing. @return whether it came to no dead end
static bool Vul(SudokuRaster &raster)
{
    for (int gevuld = 0; gevuld < 81; ++gevuld) {
        const int cel = BesteCel(raster);
        if (cel < 0)
            return false;
        const QString keuze = raster.Kandidaten(cel);
        const auto aantal = static_cast<qint32>(keuze.size());
        raster.Zet(cel, keuze[aantal == 1 ? 0 : RandomGetal(1, aantal) - 1].digitValue());
    }
    return true;
}

void MaakSudoku()
{
    SudokuRaster raster;
    while (!Vul(raster))
        raster = {};
    int cel = 0;
    for (qint32 &cijfer : SudokuOplossing)
        cijfer = raster[cel++];
}
