#pragma once

#include <QLineEdit>

/// A box for one line of text. What is pasted or set is cut off at its first line end.
class LineBox : public QLineEdit
{
    Q_OBJECT
public:
    explicit LineBox(QWidget *ouder);

private:
    void SnijAf(const QString &tekst);
};
