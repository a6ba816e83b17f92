#include "platform/TextBox.h"

#include "platform/BeginVan.h"

#include <QAbstractTextDocumentLayout>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>

using namespace Qt::StringLiterals;

TextBox::TextBox(QWidget *ouder) : QTextEdit(ouder), barWidth_(verticalScrollBar()->sizeHint().width())
{
    setAcceptRichText(false);
    setTabChangesFocus(true);
    setLineWrapMode(FixedPixelWidth);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    document()->setDocumentMargin(2);
    document()->clearUndoRedoStacks(); // the margin is not the user's to undo
    connect(this, &QTextEdit::textChanged, this, [this] { lineOfChar_.clear(); });
}

QString TextBox::Text() const
{
    QString tekst = document()->toRawText(); // toPlainText makes a blank of a hard space
    return tekst.replace(QChar::ParagraphSeparator, "\r\n"_L1).replace(QChar::LineSeparator, "\r\n"_L1);
}

// The beginning of a text that fits in that many characters, all that the box takes for a line end made into CR LF.
static QString Passend(const QString &tekst, qsizetype ruimte)
{
    QString passend = BeginVan(tekst, ruimte); // at once: the rest may be megabytes
    passend.replace("\r\n"_L1, "\n"_L1);
    for (const QChar einde : {u'\r', u'\u2028', u'\u2029', u'\ufdd0', u'\ufdd1'})
        passend.replace(einde, u'\n');
    return BeginVan(passend.replace(u'\n', "\r\n"_L1), ruimte);
}

void TextBox::SetText(const QString &tekst)
{
    const QString passend = Passend(tekst, MaxLength);
    if (Text() != passend) // what stands there already is no change
        setPlainText(passend);
}

qsizetype TextBox::Room() const
{
    const QString gekozen = textCursor().selectedText();
    const auto einden = gekozen.count(QChar::ParagraphSeparator) + gekozen.count(QChar::LineSeparator);
    return qsizetype{MaxLength} - Text().size() + gekozen.size() + einden;
}

// For all that is pasted or dropped. Qt's own routine looks at the first format without asking whether there is one: a
// clipboard that nobody owns has none.
void TextBox::insertFromMimeData(const QMimeData *source)
{
    const QString tekst = Passend(source->text(), Room());
    if (tekst.isEmpty())
        return;
    textCursor().insertText(tekst);
    ensureCursorVisible();
}

// The characters that a key types; none when it does something else. AltGr comes as Ctrl and Alt together.
static QString Typt(QKeyEvent &event)
{
    if (event.matches(QKeySequence::InsertParagraphSeparator) || event.matches(QKeySequence::InsertLineSeparator))
        return u"\r\n"_s;
    const bool opdracht = event.modifiers() & Qt::ControlModifier && !(event.modifiers() & Qt::AltModifier);
    const QString tekst = event.text();
    return opdracht || tekst.isEmpty() || tekst[0] < u' ' || tekst[0] == u'\x7f' ? QString() : tekst;
}

void TextBox::keyPressEvent(QKeyEvent *event)
{
    if (const qsizetype tekens = Typt(*event).size(); tekens == 0 || tekens <= Room())
        QTextEdit::keyPressEvent(event);
}

void TextBox::inputMethodEvent(QInputMethodEvent *event)
{
    const int vervangt = event->replacementLength();
    event->setCommitString(Passend(event->commitString(), Room() + vervangt), event->replacementStart(), vervangt);
    QTextEdit::inputMethodEvent(event);
}

int TextBox::LineCount()
{
    return Lines().back() + 1;
}

int TextBox::LineFromChar(qsizetype index)
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
        lineOfChar_.clear();
}

const std::vector<int> &TextBox::Lines()
{
    // Wrapping is fixed to the box's width here, so that a box that was never shown wraps like the one on the screen.
    const bool hasBar = verticalScrollBarPolicy() == Qt::ScrollBarAlwaysOn;
    const int width = this->width() - 2 * frameWidth() - (hasBar ? barWidth_ : 0);
    if (wrapWidth_ != width) {
        setLineWrapColumnOrWidth(width);
        wrapWidth_ = width;
        lineOfChar_.clear();
    }
    if (!lineOfChar_.empty())
        return lineOfChar_;
    document()->documentLayout()->documentSize(); // lays out what has changed

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
