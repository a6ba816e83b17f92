#include "platform/LineBox.h"

#include <algorithm>

LineBox::LineBox(QWidget *ouder) : QLineEdit(ouder)
{
    connect(this, &QLineEdit::textChanged, this, &LineBox::SnijAf);
}

void LineBox::SnijAf(const QString &tekst)
{
    const auto isLineEnd = [](QChar c) {
        return c == u'\r' || c == u'\n' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
    };
    const auto einde = std::find_if(tekst.begin(), tekst.end(), isLineEnd);
    if (einde != tekst.end())
        setText(tekst.left(einde - tekst.begin()));
}
