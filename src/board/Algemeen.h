#pragma once

#include "platform/Canvas.h"
#include "platform/Kleur.h"

#include <QEventLoop>
#include <QString>

#include <array>

// The current puzzle: there is one at a time, and every window reads and writes these directly.

inline constexpr quint8 Zweeds = 1;
inline constexpr quint8 Woordzoeker = 2;
inline constexpr quint8 Kruiswoord = 3;
inline constexpr quint8 Sudoku = 4;
inline constexpr quint8 Filippine = 5;

inline constexpr int VakMaat = 450;       ///< a cell on Pic, twips
inline constexpr int VakMaatGroot = 1800; ///< a cell on PicGroot, twips

extern quint8 PuzzelType;    ///< the kind, 1..5
extern qint32 BoardWidth;    ///< cells across
extern qint32 BoardHeight;   ///< cells down
extern qint32 CurCol;        ///< column of the cell under the pointer, from 0
extern qint32 CurRow;        ///< row of it, from 0
extern qint32 CurCell;       ///< its running number by the current width, from 1; 0 before the pointer was on the board
extern QString PuzzelNaam;   ///< base of the puzzle's file names
extern bool PuzzelGewijzigd; ///< whether leaving asks first; not every edit sets it, on purpose
extern quint8 PijlSoort;     ///< arrow choice of the clue-cell editor, 1..8
extern quint8 KleurVakjes;   ///< colour of clue cells on Pic, 1..3
extern qint16 OrgineelRood;  ///< colour of clue cells on PicGroot, each part 0..255
extern qint16 OrgineelGroen;
extern qint16 OrgineelBlauw;
extern QString PaginaTekst;    ///< the text on all print pages
extern QString GebruikersNaam; ///< the user's name, filled where it is needed
extern qint32 PosX, PosY;      ///< scratch values; PosX is the last word that the database search goes to
extern QString AppPath;        ///< the folder of the program: all data files are found below it

/// True where a right click has blacked a cell out, by CurCell; index 0 is never used. Nothing but that click reads or
/// writes it: a new puzzle, another size and opening leave it as it stands, on purpose.
extern std::array<bool, 305> VakZwart;

/// Gives the globals the values that they start with.
void BeginWaarden();
/// Gives those of them that are the colours of clue cells the values that they start with.
void BeginKleuren();
/// The value that PaginaTekst starts with.
QString BeginPaginaTekst();

/// Asks the system to open a document or an address. @return negative when the system has nothing that opens it
int VoerUit(const QString &doel);
/// Asks the system to open a document or an address; what comes of it isn't looked at.
void OpenDocument(const QString &doel);
/// Pauses for so many seconds, with events running.
void Wachten(double seconden, QEventLoop::ProcessEventsFlags welke = QEventLoop::AllEvents);
/// The name that the user is logged in with.
QString HaalGebruiker();
/// Whether there is a file, and no folder, at a path of Files::Pad.
bool BestandBestaat(const QString &pad);
/// Says that the word database, or another file of the library, could not be read.
void MeldGeenDatabase();
/// Shows how letters with an accent and other signs are typed.
void ToonSpecialeTekens();
/// The first character upper case, the rest lower case.
QString EersteHoofdletter(const QString &tekst);

// The letters of the words.
inline const Letter BordLetter{.Punten = 12, .Vet = true, .Kleur = RGB(80, 80, 80)};      ///< on Pic
inline const Letter BordLetterGroot{.Punten = 48, .Vet = true, .Kleur = RGB(80, 80, 80)}; ///< on PicGroot

// Where a letter stands in its cell, in twips from the cell's corner.
inline constexpr int LetterX = 165; ///< on Pic
inline constexpr int LetterY = 105;
inline constexpr int LetterGrootX = 600; ///< on PicGroot
inline constexpr int LetterGrootY = 360;

/// How far a letter is moved to stand in the middle of its cell on Pic, in twips: the wide "W" and the narrow "I".
int LetterVerschuiving(QChar letter);
