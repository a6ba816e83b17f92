#pragma once

#include "platform/Form.h"
#include "platform/ImageBox.h"
#include "platform/ImageButton.h"
#include "platform/LineBox.h"
#include "platform/ListBox.h"
#include "platform/PictureBox.h"
#include "wordlib/Database.h"

#include <QAction>
#include <QPushButton>
#include <QRadioButton>

/// Searches the word database in five ways. It is read anew at each opening.
class ZoekForm : public Form
{
public:
    ZoekForm();

    void Knop_Click();
    void ExportKnop_Click();
    void FilePrint_Click();
    void Text1_Change();

    /// Reads the database, sorts it, makes its hash table and its letter index. A failure is told, and what was read
    /// stays.
    void LaadDatabase();
    void ZoekLetters();
    void ZoekBegin();
    void ZoekEind();
    void ZoekTrefwoord();
    void ZoekKlinkers();
    void ZoekLengte(qint16 Lengte); ///< lists the words of this length
    /// Prints List1. Searches go no further then than to the word that PosX comes out at.
    void DrukLijst();

    ListBox *List1;
    Label *Label1, *Label3, *Label4, *Label5, *Label7;
    LineBox *Text1;
    QList<QRadioButton *> Option1;
    PictureBox *Picture1;
    QPushButton *Knop;
    ImageButton *ExportKnop;
    ImageBox *Image1;
    QAction *FilePrint;

    Woorden Words; ///< sorted
    LetterIndex LetterStart{};
    std::vector<qint32> WordHash; ///< no search reads it

private:
    void Schik();
    void ToonGevonden();
    /// Runs a search and lists what it finds, also what it found before it failed.
    void Lijst(const std::function<void(const Vondst &)> &zoek);
    void MeldAlsLeeg() const;
    /// The words from the first one to PosX.
    Zoekgebied Gebied() const;

    QByteArray inhoud_; ///< what Words lie in
};
