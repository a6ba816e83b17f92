#pragma once

#include <QTextEdit>

#include <vector>

/// A multi-line box of plain text that wraps at its own width and tells its lines as it displays them. In its text, and
/// in every index of a character, a line end is two characters, CR LF.
class TextBox : public QTextEdit
{
    Q_OBJECT
public:
    explicit TextBox(QWidget *ouder);

    QString Text() const;
    void SetText(const QString &tekst);

    int LineCount() const; ///< lines as displayed; 1 for an empty box
    /// The line, from 0, that displays the character at this index (0 up to the length of the text).
    int LineFromChar(qsizetype index) const;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    const std::vector<int> &Lines() const;

    mutable std::vector<int> lineOfChar_; ///< of each character, and of the end of the text behind them
    mutable int wrapWidth_ = -1;          ///< the width that lineOfChar_ holds for; -1 when text or font has changed
};
