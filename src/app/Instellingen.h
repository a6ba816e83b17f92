#pragma once

#include <QByteArray>
#include <QString>

/// What the settings file holds. Its values are not range-checked when they are read.
struct Instellingen
{
    qint16 Rood = 0, Groen = 0, Blauw = 0; ///< colour of the clue cells on the large board
    quint8 Kleur = 0;                      ///< colour choice for clue cells on the visible board
    QString PaginaTekst;                   ///< the text on all print pages
};

/// Reads the five lines of a settings file. Raises Fout when it is damaged.
Instellingen LeesInstellingen(const QByteArray &inhoud);
/// These five lines.
QByteArray SchrijfInstellingen(const Instellingen &instellingen);
