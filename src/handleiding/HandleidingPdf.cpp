#include "handleiding/HandleidingPdf.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int PuntenPerInch = 600;
constexpr double Millimeter = PuntenPerInch / 25.4;
constexpr double Breedte = 210, Hoogte = 297; ///< A4, in millimetres
constexpr double Kant = 22, Boven = 20, Onder = 24, Voet = 14;
constexpr double TekstBreedte = Breedte - 2 * Kant, TekstHoogte = Hoogte - Boven - Onder;
constexpr double TitelHoogte = 20;  ///< the room of the title above the list of headings
constexpr double RegelHoogte = 4.8; ///< of a heading in the list
constexpr int RegelsEerste = static_cast<int>((TekstHoogte - TitelHoogte) / RegelHoogte); ///< on the page of the title
constexpr int RegelsVerder = static_cast<int>(TekstHoogte / RegelHoogte);                 ///< on each further page

/// A4 without margins of its own.
class Papier : public QPdfWriter
{
public:
    Papier(QIODevice &uit, const QString &titel) : QPdfWriter(&uit)
    {
        setTitle(titel);
        setCreator(u"Rasteratelier"_s);
        setResolution(PuntenPerInch);
        setPageSize(QPageSize(QPageSize::A4));
        setPageMargins(QMarginsF());
    }
};

/// A manual on its way to the file. All places on a page are in millimetres.
class Boek
{
public:
    Boek(const QString &titel, const QString &markdown, const BeeldVan &beeld, QIODevice &uit);
    void Teken();

private:
    void TekenInhoud();
    void TekenRegel(const Kop &kop, double boven);
    void TekenTekst();
    void TekenVoet();
    void NieuwBlad();
    int BladVan(const Kop &kop) const;
    void Druk(double boven, double links, const QString &tekst, const QFont &letter, int kant = Qt::AlignLeft);

    QString titel_;
    Papier papier_;
    Opmaak opmaak_;
    QList<int> bladen_; ///< the first piece of each page of text
    QPainter painter_;
    int blad_ = 1;
};

QFont Letter(double punten, bool vet)
{
    QFont letter(u"Liberation Sans"_s);
    letter.setPointSizeF(punten);
    letter.setBold(vet);
    return letter;
}

} // namespace

Boek::Boek(const QString &titel, const QString &markdown, const BeeldVan &beeld, QIODevice &uit)
    : titel_(titel), papier_(uit, titel),
      opmaak_(markdown, beeld, papier_, TekstBreedte * Millimeter, TekstHoogte * Millimeter),
      bladen_(VerdeelOverBladen(opmaak_.Stukken(), TekstHoogte * Millimeter))
{
}

void Boek::Teken()
{
    painter_.begin(&papier_);
    painter_.setRenderHint(QPainter::LosslessImageRendering); // a JPEG of letters has smudges
    TekenInhoud();
    TekenTekst();
}

/// The page that a heading stands on, behind those of the list of headings.
int Boek::BladVan(const Kop &kop) const
{
    const int verder = std::max(0, static_cast<int>(opmaak_.Koppen().size()) - RegelsEerste);
    const int inhoud = 1 + (verder + RegelsVerder - 1) / RegelsVerder;
    const auto blad = std::upper_bound(bladen_.begin(), bladen_.end(), static_cast<int>(kop.Stuk)) - bladen_.begin();
    return inhoud + static_cast<int>(blad);
}

void Boek::TekenInhoud()
{
    Druk(Boven, Kant, titel_, Letter(24, true));
    double boven = Boven + TitelHoogte;
    int over = RegelsEerste;
    for (const Kop &kop : opmaak_.Koppen()) {
        if (over == 0) {
            NieuwBlad();
            boven = Boven;
            over = RegelsVerder;
        }
        TekenRegel(kop, boven);
        boven += RegelHoogte;
        --over;
    }
}

/// A heading, its page number at the right, dots between them.
void Boek::TekenRegel(const Kop &kop, double boven)
{
    const QFont letter = Letter(9.5, kop.Niveau == 1);
    const QFontMetricsF maten(letter, &papier_);
    const double links = Kant + (kop.Niveau - 1) * 6.0;
    const QString nummer = QString::number(BladVan(kop));
    const double stip = maten.horizontalAdvance(u'.') * 2;
    const double begin = links * Millimeter + maten.horizontalAdvance(kop.Tekst) + stip;
    const double eind = (Breedte - Kant) * Millimeter - maten.horizontalAdvance(nummer) - stip;
    Druk(boven, links, kop.Tekst, letter);
    for (int i = static_cast<int>(std::ceil(begin / stip)); i * stip < eind; ++i) // those of all lines are in columns
        Druk(boven, i * stip / Millimeter, u"."_s, letter);
    Druk(boven, Kant, nummer, letter, Qt::AlignRight);
}

void Boek::TekenTekst()
{
    for (qsizetype i = 0; i < bladen_.size(); ++i) {
        NieuwBlad();
        const qsizetype tot = i + 1 < bladen_.size() ? bladen_[i + 1] : opmaak_.Stukken().size();
        opmaak_.Teken(painter_, QPointF(Kant, Boven) * Millimeter, bladen_[i], tot);
    }
    TekenVoet();
}

void Boek::NieuwBlad()
{
    TekenVoet();
    papier_.newPage();
    ++blad_;
}

void Boek::TekenVoet()
{
    const double lijn = (Hoogte - Voet - 2) * Millimeter;
    painter_.setPen(QPen(QColor(150, 150, 150), 0.2 * Millimeter));
    painter_.drawLine(QPointF(Kant * Millimeter, lijn), QPointF((Breedte - Kant) * Millimeter, lijn));
    Druk(Hoogte - Voet, Kant, titel_, Letter(8.5, false));
    Druk(Hoogte - Voet, Kant, QString::number(blad_), Letter(8.5, false), Qt::AlignRight);
}

/// Prints a line of text, with its top at a place, from the left or up to the right margin.
void Boek::Druk(double boven, double links, const QString &tekst, const QFont &letter, int kant)
{
    painter_.setPen(Qt::black);
    painter_.setFont(letter);
    const QRectF vlak(links * Millimeter, boven * Millimeter, (Breedte - Kant - links) * Millimeter, 20 * Millimeter);
    painter_.drawText(vlak, kant | Qt::AlignTop | Qt::TextSingleLine, tekst);
}

QByteArray MaakHandleiding(const QString &titel, const QString &markdown, const BeeldVan &beeld)
{
    QBuffer uit;
    uit.open(QIODevice::WriteOnly);
    Boek(titel, markdown, beeld, uit).Teken();
    return uit.data();
}
