#pragma once

#include "handleiding/Bladen.h"

#include <QImage>
#include <QTextDocument>

#include <functional>

class QPaintDevice;
class QTextTable;

/// The picture of a name; a null one when there is none.
using BeeldVan = std::function<QImage(const QString &naam)>;

/// A heading: its level from 1 on, its text, and which piece it is.
struct Kop
{
    int Niveau;
    QString Tekst;
    qsizetype Stuk;
};

/// A text in Markdown as it is laid out on paper: chapters (headings of level 1) begin a page, a heading stays with
/// what follows it, so does a paragraph that ends in a colon; a picture is a paragraph of its own, with the text that
/// is given with its name under it. Of tables the first row is a head; a short one is on one page.
class Opmaak
{
public:
    /// @param papier what it will be drawn on; to be kept alive
    /// @param breedte,hoogte the room for text on a page, in units of the paper. No picture is higher than this
    /// Raises Fout::BestandNietGevonden for a picture that there isn't.
    Opmaak(const QString &markdown, const BeeldVan &beeld, QPaintDevice &papier, double breedte, double hoogte);

    const QList<Stuk> &Stukken() const { return stukken_; }
    const QList<Kop> &Koppen() const { return koppen_; }
    /// Draws the pieces from one up to another. @param hoek the top left corner of the first one
    void Teken(QPainter &painter, QPointF hoek, qsizetype van, qsizetype tot);

private:
    void ZetLetters();
    void ZetAlineas();
    void ZetKop(const QTextBlock &blok);
    void ZetBeelden(const BeeldVan &beeld);
    void ZetBeeld(const QTextBlock &blok, const BeeldVan &beeld);
    void ZetTabellen();
    static void ZetTabel(QTextTable &tabel);
    void ZoekStukken();
    void VoegBlokToe(const QTextBlock &blok);
    void VoegTabelToe(const QTextTable &tabel);

    QTextDocument document_;
    QSizeF ruimte_;       ///< for text on a page, in points of the screen: 96 to the inch
    double schaal_;       ///< units of the paper in such a point
    QList<Stuk> stukken_; ///< in units of the paper
    QList<Kop> koppen_;
};
