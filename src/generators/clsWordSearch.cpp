#include "generators/clsWordSearch.h"

#include "platform/CodePage.h"
#include "platform/Files.h"
#include "platform/Fout.h"
#include "platform/Getallen.h"
#include "platform/Kleur.h"
#include "platform/Regels.h"
#include "platform/Toeval.h"

using namespace Qt::StringLiterals;

QString WoordzoekerRaster;

constexpr int AantalRichtingen = 8;
constexpr QChar Leeg = u' ';

/// The failure of this class with a number above the base of its failures.
static Fout EigenFout(qint32 nummer, const QString &bron, const QString &tekst)
{
    constexpr auto Base = static_cast<qint32>(0x80040000);
    return {Base + nummer, bron, tekst};
}

clsWordSearch::clsWordSearch()
{
    Toeval::Randomize();
}

void clsWordSearch::SetGridHeight(qint16 hoogte)
{
    if (hoogte < 2)
        throw EigenFout(1, u"WordSearch - GridHeight"_s,
                        u"You have entered an invalid grid height, it must be more then 1."_s);
    hoogte_ = hoogte;
}

void clsWordSearch::SetGridWidth(qint16 breedte)
{
    if (breedte < 2)
        throw EigenFout(2, u"WordSearch - GridWidth"_s,
                        u"You have entered an invalid grid width, it must be more then 1."_s);
    breedte_ = breedte;
}

void clsWordSearch::TelVakken()
{
    aantal_ = Getallen::AlsInt16(qint64{breedte_} * hoogte_);
}

// What is compared is odd, and stays so: the first letter with the cell at position 1, wherever the word would lie; and
// each letter but the last with the cell behind its own, which must be empty anyhow, so that only a blank in the word
// is ever hit.
bool clsWordSearch::KanLiggen(const QString &woord) const
{
    return woord.size() >= 2 && !raster_.startsWith(woord.front()) && !QStringView(woord).chopped(1).contains(Leeg);
}

inline bool clsWordSearch::WoordPast(const QString &woord, int p, int d) const
{
    return ruimte_.at(static_cast<size_t>(d))[static_cast<size_t>(p)] >= woord.size();
}

clsWordSearch::Kansen clsWordSearch::KansenVan(const QString &woord)
{
    Kansen kansen(static_cast<size_t>(aantal_) + 1);
    if (!KanLiggen(woord))
        return kansen;
    MeetRuimte();
    for (int d = 1; d <= AantalRichtingen; ++d)
        for (int p = 1; p <= aantal_; ++p)
            kansen[static_cast<size_t>(p)] |= static_cast<quint16>(WoordPast(woord, p, d) << d);
    return kansen;
}

QString clsWordSearch::Make()
{
    TelVakken();
    LegPaden();
    raster_ = QString(aantal_, Leeg);
    for (const clsWord &element : Words) {
        QString woord = element.Word;
        const Kansen kansen = KansenVan(woord);
        const int p = KiesPositie(kansen);
        if (p > 0) {
            PlaatsWoord(woord, p, KiesRichting(kansen[static_cast<size_t>(p)]));
            continue;
        }
        bool gaDoor = false;
        if (CannotFitWord)
            CannotFitWord(woord, gaDoor);
        if (!gaDoor) {
            raster_.clear();
            return raster_;
        }
    }
    VulLegeVakken();
    WoordzoekerRaster = raster_;
    return raster_;
}

void clsWordSearch::LegPaden()
{
    for (int d = 1; d <= AantalRichtingen; ++d) {
        auto &volgend = volgend_.at(static_cast<size_t>(d));
        volgend.assign(static_cast<size_t>(aantal_) + 1, 0);
        for (int p = 1; p <= aantal_; ++p)
            if (KanStappen(p, d))
                volgend[static_cast<size_t>(p)] = static_cast<quint16>(VolgendVak(p, d));
    }
}

// From the far end of each direction on, so that the next cell is always known. A word takes as many steps as it has
// letters but one.
void clsWordSearch::MeetRuimte()
{
    const auto aantal = static_cast<size_t>(aantal_);
    const QStringView raster = raster_;
    for (size_t d = 1; d <= AantalRichtingen; ++d) {
        const auto &volgend = volgend_.at(d);
        auto &ruimte = ruimte_.at(d);
        ruimte.assign(aantal + 1, 0);
        const auto meet = [&](size_t p) {
            if (raster[static_cast<qsizetype>(p) - 1] == Leeg)
                ruimte[p] = static_cast<quint16>(ruimte[volgend[p]] + 1);
        };
        if (VolgendVak(0, static_cast<int>(d)) < 0)
            for (size_t p = 1; p <= aantal; ++p)
                meet(p);
        else
            for (size_t p = aantal; p >= 1; --p)
                meet(p);
    }
}

int clsWordSearch::VolgendVak(int p, int d) const
{
    const std::array<int, AantalRichtingen + 1> stappen{
        0, -breedte_, -breedte_ + 1, 1, breedte_ + 1, breedte_, breedte_ - 1, -1, -breedte_ - 1};
    return p + stappen.at(static_cast<size_t>(d));
}

bool clsWordSearch::KanStappen(int p, int d) const
{
    if ((d == 1 || d == 2 || d == 8) && p <= breedte_)
        return false;
    if ((d == 4 || d == 5 || d == 6) && p > breedte_ * hoogte_ - breedte_)
        return false;
    if (d == 2 || d == 3 || d == 4)
        return p % breedte_ >= 1;
    if (d == 6 || d == 7 || d == 8)
        return (p + breedte_ - 1) % breedte_ >= 1;
    return true;
}

/// One of the numbers from 0 up to this one, without it.
static size_t Kies(size_t aantal)
{
    return static_cast<size_t>(Toeval::Rnd() * static_cast<double>(aantal));
}

// A position counts once, however many directions it offers.
int clsWordSearch::KiesPositie(const Kansen &kansen)
{
    std::vector<int> posities;
    for (size_t p = 1; p < kansen.size(); ++p)
        if (kansen[p] > 0)
            posities.push_back(static_cast<int>(p));
    return posities.empty() ? 0 : posities[Kies(posities.size())];
}

int clsWordSearch::KiesRichting(quint16 masker)
{
    std::vector<int> richtingen;
    for (int d = 1; d <= AantalRichtingen; ++d)
        if (masker & 1 << d)
            richtingen.push_back(d);
    return richtingen[Kies(richtingen.size())];
}

void clsWordSearch::VulLegeVakken()
{
    for (QChar &vak : raster_)
        if (vak == Leeg)
            vak = QChar(static_cast<int>(Toeval::Rnd() * 26) + 65);
}

void clsWordSearch::PlaatsWoord(const QString &woord, int p, int d)
{
    for (const QChar letter : woord) {
        raster_[p - 1] = letter;
        p = VolgendVak(p, d);
    }
}

void clsWordSearch::Save(const QString &strFile)
{
    if (raster_.isEmpty())
        return;
    QStringList regels{SrchName, QString::number(breedte_), QString::number(hoogte_), QString::number(Words.Count())};
    for (const clsWord &woord : Words)
        regels += woord.Word;
    regels += raster_;
    Files::Schrijf(strFile, Files::NaarBytes(regels.join(clsWords::LineEnd) + clsWords::LineEnd));
}

void clsWordSearch::Load(const QString &strFile)
{
    QStringList regels;
    VoorElkeRegel(Files::Lees(strFile), [&](QByteArrayView regel) { regels += Files::NaarTekst(regel); });
    qsizetype volgende = 0;
    const auto lees = [&] {
        if (volgende == regels.size())
            throw Fout(Fout::EindeBestand);
        return regels[volgende++];
    };
    SrchName = lees();
    SetGridWidth(Getallen::NaarInt16(lees()));
    SetGridHeight(Getallen::NaarInt16(lees()));
    const double aantal = Getallen::Val(lees());
    for (qint32 i = 1; i <= aantal; ++i) // the lines end before this does, however large the number is
        Words.Add(lees());
    raster_ = lees();
    TelVakken();
    Draw();
}

void clsWordSearch::Draw()
{
    const bool getekend = negeer([this] {
        if (!Canvas)
            throw Fout(Fout::OngeldigArgument);
        TekenOp(*Canvas);
    });
    if (!getekend)
        throw EigenFout(4, u"WordSearch - Draw"_s,
                        u"The canvas specified is not a valid drawing object, please set, for example a picture box or "
                        "form."_s);
}

// A unit is a cell: the middle of the cell in column c and row r is at (c, r).
void clsWordSearch::TekenOp(class Canvas &canvas) const
{
    canvas.Cls();
    canvas.ForeColor = FontColor;
    canvas.Scale(0, 0, breedte_ + 1, hoogte_ + 1);
    for (int p = 1; p <= aantal_; ++p) {
        const QString letter = raster_.mid(p - 1, 1);
        const int c = (p - 1) % breedte_ + 1;
        const int r = (p - 1) / breedte_ + 1;
        canvas.PrintOp(c - canvas.TextWidth(letter) / 2, r - canvas.TextHeight(letter) / 2, letter);
    }
    canvas.ForeColor = RGB(150, 150, 150);
    for (int i = 0; i <= hoogte_ + 1; ++i)
        canvas.Line(0.5, i + 0.5, breedte_ + 0.5, i + 0.5, canvas.ForeColor);
    for (int i = 0; i <= breedte_ + 1; ++i)
        canvas.Line(i + 0.5, 0.5, i + 0.5, hoogte_ + 0.5, canvas.ForeColor);
}
