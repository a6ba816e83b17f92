#pragma once

#include <QStringList>

// Where the words are.

/// A library file of the installation. @param naam without ".lib"
QString BibliotheekPad(const QString &naam);
/// The word database.
QString DatabasePad();
/// The word list of a subject. Raises Fout::OngeldigeNaam for a subject that can't be a file's name.
QString WoordlijstPad(const QString &onderwerp);
/// Reads which subjects there are. A folder that can't be read leaves them as they are.
void LeesOnderwerpen(QStringList &onderwerpen);
