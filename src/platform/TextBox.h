#pragma once

#include <QTextEdit>

#include <limits>
#include <vector>

/// A multi-line box of plain text that wraps at its own width and tells its lines as it displays them. In its text, and
/// in every index of a character, a line end is two characters, CR LF.
class TextBox : public QTextEdit
{
    Q_OBJECT
public:
    explicit TextBox(QWidget *ouder);

    /// The most characters that the box takes: typed, inserted or set. A line end is two.
    int MaxLength = std::numeric_limits<int>::max();

    QString Text() const;
    /// A text in the place of what is there, cut off at MaxLength. Every kind of line end becomes CR LF.
    void SetText(const QString &tekst);

    int LineCount(); ///< lines as displayed; 1 for an empty box
    /// The line, from 0, that displays the character at this index (0 up to the length of the text).
    int LineFromChar(qsizetype index);

protected:
    void insertFromMimeData(const QMimeData *source) override;
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    qsizetype Room() const; ///< for characters in place of the selection
    const std::vector<int> &Lines();

    int barWidth_;                ///< of the scroll bar beside the text, where there is one
    std::vector<int> lineOfChar_; ///< of each character, and of the end of the text; empty when not known
    int wrapWidth_ = -1;          ///< the width that the text is wrapped at
};
