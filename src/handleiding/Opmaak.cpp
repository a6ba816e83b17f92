#include "handleiding/Opmaak.h"

#include "platform/Fout.h"

#include <QAbstractTextDocumentLayout>
#include <QPaintDevice>
#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextFragment>
#include <QTextList>
#include <QTextTable>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr double PerInch = 96;
constexpr double Verkleining = 0.75;  ///< of a picture of the screen on paper, when there is room for it
constexpr double HoogsteBeeld = 0.55; ///< of a page
constexpr double CelRand = 3;         ///< round what stands in a cell of a table
constexpr int HeleTabel = 8;          ///< rows of the longest table that is on one page, its head included
constexpr double LijnDikte = 1;       ///< under a row of a table
const QColor Donker(20, 40, 90), Lijn(170, 170, 170), KopRij(226, 232, 242);

struct KopStijl
{
    double Punten, Boven, Onder;
};
constexpr std::array<KopStijl, 3> KopStijlen{{{20, 0, 12}, {13.5, 16, 6}, {11, 12, 4}}};

/// The picture that a paragraph consists of; one without a name for a paragraph of text.
QTextImageFormat BeeldIn(const QTextBlock &blok)
{
    for (auto i = blok.begin(); !i.atEnd(); ++i)
        if (i.fragment().charFormat().isImageFormat())
            return i.fragment().charFormat().toImageFormat();
    return {};
}

bool InTabel(const QTextBlock &blok)
{
    return QTextCursor(blok).currentTable() != nullptr;
}

/// Whether a line is to be typed as it stands: it is a paragraph of its own.
bool IsCode(const QTextBlock &blok)
{
    return blok.isValid() && blok.blockFormat().hasProperty(QTextFormat::BlockCodeLanguage);
}

/// The place of a paragraph in its list and how many there are; nothing when it is in none.
std::pair<int, int> PlaatsInLijst(const QTextBlock &blok)
{
    const QTextList *lijst = blok.textList();
    return lijst ? std::pair(lijst->itemNumber(blok), lijst->count()) : std::pair(0, 0);
}

/// The room below a paragraph.
double Ruimte(const QTextBlock &blok)
{
    const auto [plaats, aantal] = PlaatsInLijst(blok);
    if (InTabel(blok) || (IsCode(blok) && IsCode(blok.next())))
        return 0;
    return plaats + 1 < aantal ? 3 : 7;
}

/// Whether a paragraph stays with the next one: a heading, a picture, what ends in a colon; the first two and the last
/// two of a list; lines that are to be typed.
bool HoortBijVolgend(const QTextBlock &blok)
{
    const auto [plaats, aantal] = PlaatsInLijst(blok);
    const bool inLijst = plaats + 1 < aantal && (plaats == 0 || plaats == aantal - 2);
    return blok.blockFormat().headingLevel() > 0 || !BeeldIn(blok).name().isEmpty() || blok.text().endsWith(u':') ||
           inLijst || (IsCode(blok) && IsCode(blok.next()));
}

QFont TekstLetter(const QString &familie, double punten)
{
    QFont letter(familie);
    letter.setPointSizeF(punten);
    return letter;
}

} // namespace

Opmaak::Opmaak(const QString &markdown, const BeeldVan &beeld, QPaintDevice &papier, double breedte, double hoogte)
    : schaal_(papier.logicalDpiY() / PerInch)
{
    ruimte_ = QSizeF(breedte, hoogte) / schaal_;
    document_.setDefaultFont(TekstLetter(u"Liberation Sans"_s, 10));
    document_.documentLayout()->setPaintDevice(&papier);
    document_.setMarkdown(markdown, QTextDocument::MarkdownDialectGitHub);
    document_.setDocumentMargin(0);
    document_.setTextWidth(breedte);
    ZetLetters();
    ZetAlineas();
    ZetBeelden(beeld);
    ZetTabellen();
    ZoekStukken();
}

/// What is to be typed or is the name of a file stands in letters of one width.
void Opmaak::ZetLetters()
{
    for (QTextBlock blok = document_.begin(); blok.isValid(); blok = blok.next())
        for (auto i = blok.begin(); !i.atEnd(); ++i) {
            const QTextFragment deel = i.fragment();
            if (!deel.charFormat().fontFixedPitch() && !IsCode(blok))
                continue;
            QTextCursor cursor(&document_);
            cursor.setPosition(deel.position());
            cursor.setPosition(deel.position() + deel.length(), QTextCursor::KeepAnchor);
            QTextCharFormat letters;
            letters.setFontFamilies({u"Liberation Mono"_s});
            letters.setFontPointSize(9);
            cursor.mergeCharFormat(letters);
        }
}

void Opmaak::ZetAlineas()
{
    for (QTextBlock blok = document_.begin(); blok.isValid(); blok = blok.next()) {
        if (blok.blockFormat().headingLevel() > 0) {
            ZetKop(blok);
            continue;
        }
        QTextBlockFormat vorm;
        vorm.setTopMargin(0);
        vorm.setBottomMargin(Ruimte(blok));
        if (IsCode(blok))
            vorm.setLeftMargin(20 * schaal_); // of the margins only this one is in units of the paper
        vorm.setLineHeight(118, QTextBlockFormat::ProportionalHeight);
        QTextCursor(blok).mergeBlockFormat(vorm);
    }
}

void Opmaak::ZetKop(const QTextBlock &blok)
{
    const int niveau = blok.blockFormat().headingLevel();
    const KopStijl &stijl = KopStijlen.at(static_cast<size_t>(std::clamp(niveau, 1, 3) - 1));
    QTextBlockFormat vorm;
    vorm.setTopMargin(stijl.Boven);
    vorm.setBottomMargin(stijl.Onder);
    QTextCharFormat letters;
    letters.setFontPointSize(stijl.Punten);
    letters.setFontWeight(QFont::Bold);
    letters.setForeground(Donker);
    QTextCursor cursor(blok);
    cursor.mergeBlockFormat(vorm);
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    cursor.setCharFormat(letters); // in the place of the format that it came with, whose size is another one
}

void Opmaak::ZetBeelden(const BeeldVan &beeld)
{
    for (QTextBlock blok = document_.begin(); blok.isValid(); blok = blok.next())
        if (!BeeldIn(blok).name().isEmpty())
            ZetBeeld(blok, beeld);
}

/// A picture as large as on the screen or smaller, in the middle, with its text under it.
void Opmaak::ZetBeeld(const QTextBlock &blok, const BeeldVan &beeld)
{
    QTextImageFormat vorm = BeeldIn(blok);
    const QImage plaatje = beeld(vorm.name());
    if (plaatje.isNull())
        throw Fout(Fout::BestandNietGevonden, vorm.name());
    document_.addResource(QTextDocument::ImageResource, QUrl(vorm.name()), plaatje);
    const double puntenPerInch = plaatje.dotsPerMeterX() * 0.0254;
    QSizeF maat = QSizeF(plaatje.size()) * (PerInch / puntenPerInch * Verkleining);
    const QSizeF ruimte(ruimte_.width(), ruimte_.height() * HoogsteBeeld);
    if (maat.width() > ruimte.width() || maat.height() > ruimte.height())
        maat.scale(ruimte, Qt::KeepAspectRatio);
    vorm.setWidth(maat.width());
    vorm.setHeight(maat.height());
    const QString onderschrift = vorm.stringProperty(QTextFormat::ImageAltText);

    QTextCursor cursor(blok);
    QTextBlockFormat midden;
    midden.setAlignment(Qt::AlignHCenter);
    midden.setBottomMargin(3);
    midden.setLineHeight(0, QTextBlockFormat::SingleHeight);
    cursor.mergeBlockFormat(midden);
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    cursor.insertImage(vorm);
    midden.setBottomMargin(12);
    QTextCharFormat letters;
    letters.setFontItalic(true);
    letters.setFontPointSize(9);
    letters.setForeground(QColor(80, 80, 80));
    cursor.insertBlock(midden, letters);
    cursor.insertText(onderschrift, letters);
}

void Opmaak::ZetTabellen()
{
    for (QTextFrame *frame : document_.rootFrame()->childFrames())
        if (auto *tabel = qobject_cast<QTextTable *>(frame))
            ZetTabel(*tabel);
}

/// A line under each row, and a head that stands out.
void Opmaak::ZetTabel(QTextTable &tabel)
{
    QTextTableFormat vorm = tabel.format();
    vorm.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    vorm.setCellSpacing(0);
    vorm.setBorder(0);
    vorm.setTopMargin(6);
    vorm.setBottomMargin(10);
    tabel.setFormat(vorm);
    for (int rij = 0; rij < tabel.rows(); ++rij)
        for (int kolom = 0; kolom < tabel.columns(); ++kolom) {
            QTextTableCell cel = tabel.cellAt(rij, kolom);
            QTextTableCellFormat eigen = cel.format().toTableCellFormat();
            eigen.setPadding(CelRand);
            eigen.setRightPadding(3 * CelRand);
            eigen.setBottomBorder(LijnDikte);
            eigen.setBottomBorderStyle(QTextFrameFormat::BorderStyle_Solid);
            eigen.setBottomBorderBrush(Lijn);
            if (rij == 0)
                eigen.setBackground(KopRij);
            cel.setFormat(eigen);
        }
}

void Opmaak::ZoekStukken()
{
    for (auto i = document_.rootFrame()->begin(); !i.atEnd(); ++i) {
        if (const auto *tabel = qobject_cast<QTextTable *>(i.currentFrame()))
            VoegTabelToe(*tabel);
        else if (i.currentBlock().isValid() && i.currentBlock().length() > 1) // not the empty one behind a table
            VoegBlokToe(i.currentBlock());
    }
}

void Opmaak::VoegBlokToe(const QTextBlock &blok)
{
    const QRectF plaats = document_.documentLayout()->blockBoundingRect(blok);
    const int niveau = blok.blockFormat().headingLevel();
    if (niveau > 0)
        koppen_ += {niveau, blok.text(), stukken_.size()};
    stukken_ += {plaats.top(), plaats.bottom(), niveau == 1, HoortBijVolgend(blok)};
}

void Opmaak::VoegTabelToe(const QTextTable &tabel)
{
    const double rand = CelRand * schaal_;
    const int rijen = tabel.rows();
    for (int rij = 0; rij < rijen; ++rij) {
        QRectF plaats;
        for (int kolom = 0; kolom < tabel.columns(); ++kolom) {
            const QTextBlock blok = tabel.cellAt(rij, kolom).firstCursorPosition().block();
            plaats |= document_.documentLayout()->blockBoundingRect(blok);
        }
        // A short table is not divided; of a longer one no row is alone with its head, nor on a page.
        const bool bijVolgend = rijen <= HeleTabel || rij < 2 || rij == rijen - 2;
        stukken_ +=
            {plaats.top() - rand, plaats.bottom() + rand + LijnDikte * schaal_, false, bijVolgend && rij + 1 < rijen};
    }
}

// What lies wholly outside the clip is not drawn, so that no text is twice in a PDF file.
void Opmaak::Teken(QPainter &painter, QPointF hoek, qsizetype van, qsizetype tot)
{
    const double boven = stukken_[van].Boven;
    QAbstractTextDocumentLayout::PaintContext hoe;
    hoe.palette.setColor(QPalette::Text, Qt::black);
    hoe.clip = QRectF(0, boven, ruimte_.width() * schaal_, stukken_[tot - 1].Onder - boven);
    painter.save();
    painter.translate(hoek.x(), hoek.y() - boven);
    document_.documentLayout()->draw(&painter, hoe);
    painter.restore();
}
