#include "platform/TextBox.h"

#include <QAbstractTextDocumentLayout>
#include <QEvent>
#include <QTextBlock>
#include <QTextLayout>

using namespace Qt::StringLiterals;

TextBox::TextBox(QWidget *ouder) : QTextEdit(ouder)
{
    setAcceptRichText(false);
    setTabChangesFocus(true);
    setLineWrapMode(FixedPixelWidth);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    document()->setDocumentMargin(2);
    connect(this, &QTextEdit::textChanged, this, [this] { wrapWidth_ = -1; });
}

QString TextBox::Text() const
{
    return toPlainText().replace(u'\n', "\r\n"_L1);
}

void TextBox::SetText(const QString &tekst)
{
    if (toPlainText() != tekst) // what stands there already is no change
        setPlainText(tekst);
}

int TextBox::LineCount() const
{
    return Lines().back() + 1;
}

int TextBox::LineFromChar(qsizetype index) const
{
    const std::vector<int> &lines = Lines();
    return lines[static_cast<std::size_t>(std::clamp<qsizetype>(index, 0, static_cast<qsizetype>(lines.size()) - 1))];
}

void TextBox::resizeEvent(QResizeEvent *event)
{
    QTextEdit::resizeEvent(event);
    Lines();
}

void TextBox::changeEvent(QEvent *event)
{
    QTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        wrapWidth_ = -1;
}

const std::vector<int> &TextBox::Lines() const
{
    const int width = this->width() - 2 * frameWidth();
    if (wrapWidth_ == width)
        return lineOfChar_;
    // Wrapping is fixed to the box's width here, so that a box that was never shown wraps like the one on the screen.
    const_cast<TextBox *>(this)->setLineWrapColumnOrWidth(width);
    document()->setTextWidth(width);
    document()->documentLayout()->documentSize(); // lays out the whole text
    wrapWidth_ = width;

    lineOfChar_.clear();
    int firstLine = 0;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        const QTextLayout &layout = *block.layout();
        const QString text = block.text();
        int line = 0;
        for (int i = 0; i < text.size(); ++i) {
            while (line + 1 < layout.lineCount() && i >= layout.lineAt(line + 1).textStart())
                ++line;
            lineOfChar_.push_back(firstLine + line);
            if (text[i] == QChar::LineSeparator) // a line end within a paragraph
                lineOfChar_.push_back(firstLine + line);
        }
        const int lastLine = firstLine + std::max(0, layout.lineCount() - 1);
        lineOfChar_.push_back(lastLine);
        if (block.next().isValid())
            lineOfChar_.push_back(lastLine);
        firstLine = lastLine + 1;
    }
    return lineOfChar_;
}
