#pragma once

#include <QImage>
#include <QStringList>
#include <QTemporaryDir>

/// A PDF file as the tools of poppler read it back. Positions are twips from the top left of the printable area of the
/// printer that writes such files, rounded to whole ones. A page's number counts from 1. A file that cannot be read
/// ends the test program.
class PdfLezer
{
public:
    explicit PdfLezer(const QString &pad);

    /// What the file says of itself, such as its "Title" or "Page size"; empty when it does not say that.
    QString Kenmerk(const QString &naam) const;
    int Paginas() const { return Kenmerk(QStringLiteral("Pages")).toInt(); }
    /// The letters, sorted: "LiberationSans" or "LiberationSans-Bold", with "ingesloten" and "doorzoekbaar" behind it.
    QStringList Letters() const;

    /// The lines of a page, from top to bottom: what stands side by side is in one, with blanks between.
    QStringList Regels(int pagina) const;
    /// What is printed on a page, in the order of printing: "600,300 12 vet #00005a Puzzelnaam : Winter" is the place
    /// of the first letter, the size in points, whether it is bold, the colour, the text. Blanks at the ends are not
    /// there; what has more than one blank inside counts as several texts.
    QStringList Teksten(int pagina) const;
    /// The pictures on a page, in the order of painting: "600,900 9600x11400" is the place and the size on paper.
    QStringList Beelden(int pagina) const;
    /// The pictures of the whole document: "3: 240x120" is the page and the size in pixels.
    QStringList BeeldMaten() const;
    /// The pixels of a picture as they are in the file. @param nummer from 0 through the whole document
    QImage Beeld(int nummer) const;
    /// A page as it is seen, 96 dots to the inch, margins included.
    QImage Pagina(int pagina) const;

private:
    /// Runs a tool on the file, and gives what it says.
    QString Roep(const QString &programma, const QStringList &argumenten, const QStringList &achter = {}) const;
    /// The description of the document, as XML. It is made when it is first needed.
    const QString &Document() const;
    /// What stands of a page in it.
    QString Beschrijving(int pagina) const;

    QString pad_;
    QTemporaryDir map_; ///< with the pictures
    mutable QString beschrijving_;
};
