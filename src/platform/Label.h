#pragma once

#include <QLabel>

/// A label of plain text that takes the size of its caption, unless it was placed with a size of its own. One that is
/// aligned to the right keeps its right edge where it is.
class Label : public QLabel
{
    Q_OBJECT
public:
    Label(const QString &caption, QWidget *ouder);

    bool AutoSize = true;

    void SetCaption(const QString &caption);
    QString Caption() const { return text(); }
    void SetFont(const QFont &font);
    void SetBackColor(QRgb kleur);
    void SetForeColor(QRgb kleur);

private:
    void Pas();
};
