#pragma once

#include "generators/clsWords.h"
#include "platform/Canvas.h"

#include <QRgb>
#include <QVariant>

#include <array>
#include <functional>
#include <vector>

/// The grid of the word search that was made last, row by row, a character a cell; it outlives its maker.
extern QString WoordzoekerRaster;

/// Makes a word search: places words at random in a grid, each in one of eight directions, and fills the rest with
/// random letters.
///
/// A position p is a number from 1, row after row. The codes of the directions:
///
///     8 1 2
///     7 p 3
///     6 5 4
class clsWordSearch
{
public:
    clsWordSearch();

    /// Makes a new grid of the words. @return it, row by row; empty when it was given up
    /// Raises Fout::Overloop when there are more than 32767 cells.
    QString Make();
    /// Writes the puzzle to a file; nothing when there is no grid. Raises what Files::Schrijf raises.
    void Save(const QString &strFile);
    /// Reads a puzzle from a file, and draws it. Its words are added to those that are there. Raises what Files::Lees,
    /// the sizes and Draw raise, Fout::EindeBestand for a file that ends too early; what was read before that stays.
    void Load(const QString &strFile);
    /// Draws the grid on the canvas. Whatever fails, raises the failure with number 0x80040004.
    void Draw();

    clsWords Words;

    qint16 GridHeight() const { return hoogte_; }
    void SetGridHeight(qint16 hoogte); ///< in cells. Raises the failure with number 0x80040001 for a value under 2
    qint16 GridWidth() const { return breedte_; }
    void SetGridWidth(qint16 breedte); ///< in cells. Raises the failure with number 0x80040002 for a value under 2

    class Canvas *Canvas = nullptr; ///< what Draw draws on; the caller keeps it alive
    QString SrchName;
    QVariant GridColor; ///< kept, and not used in drawing
    QRgb FontColor = qRgb(0, 0, 0);

    /// A word fits nowhere. When Continue is set it is left out, else the whole grid is given up. Words and the sizes
    /// are to be left alone meanwhile.
    std::function<void(QString &strWord, bool &Continue)> CannotFitWord;

private:
    using Kansen = std::vector<quint16>; ///< of each position, from 1, the directions that a word fits in, a bit each

    bool WoordPast(const QString &woord, int p, int d) const;
    int VolgendVak(int p, int d) const;
    bool KanStappen(int p, int d) const;
    static int KiesPositie(const Kansen &kansen);
    static int KiesRichting(quint16 masker);
    void VulLegeVakken();
    void PlaatsWoord(const QString &woord, int p, int d);

    void TelVakken(); ///< raises Fout::Overloop when there are more than 32767
    void TekenOp(class Canvas &canvas) const;
    void LegPaden();
    void MeetRuimte();
    bool KanLiggen(const QString &woord) const;
    Kansen KansenVan(const QString &woord);

    qint16 breedte_ = 0, hoogte_ = 0;
    QString raster_;
    qint16 aantal_ = 0; ///< cells of the grid; it stays when the sizes change
    // By direction and position, both from 1.
    std::array<std::vector<quint16>, 9> volgend_; ///< where a step leads; 0 when it leaves the grid
    std::array<std::vector<quint16>, 9> ruimte_;  ///< how many empty cells there are in a row
};
