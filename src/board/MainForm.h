#pragma once

#include "board/Rij.h"
#include "platform/Form.h"
#include "platform/ImageBox.h"
#include "platform/ImageButton.h"
#include "platform/ListBox.h"
#include "platform/ListView.h"
#include "platform/PictureBox.h"
#include "platform/Shapes.h"

#include <QAction>
#include <QComboBox>
#include <QFrame>
#include <QMenu>
#include <QRadioButton>
#include <QScrollBar>
#include <QTimer>

/// The one window that stays open. Its controls hold the puzzle: Pic, PicGroot and ListView1. Each of its areas has its
/// layout and its handlers in a source file of its own.
class MainForm : public Form
{
    Q_OBJECT
public:
    MainForm();
    ~MainForm() override;

    // The board: MainFormBord.cpp.
    void Pic_MouseMove(double x, double y);
    void Pic_MouseDown(Qt::MouseButton knop, QPoint opScherm);
    void Timer1_Timer();
    void ToonSoort(); ///< shows the kind on Label12; a kind that there isn't leaves it alone
    /// What every puzzle that comes on the board ends with, a new one and an opened one: its name and its size in the
    /// bars, the controls of its kind, the count of its rows, and no mark on the board.
    /// @param programma what stands before the size in the title
    void ToonPuzzel(const QString &programma);
    /// What all of these have but the name: an exported word search keeps the one that stands in the bar.
    void ToonBord(const QString &programma);
    void ToonNaam();              ///< shows PuzzelNaam in the menu bar
    QString GetoondeNaam() const; ///< the name that stands there

    // The entry list: MainFormLijst.cpp.
    void ListView1_ItemClick();
    void DelKnop_Click();
    /// Adds rows at the end. The first row is selected as long as no other is.
    void VoegRijenToe(const QList<Rij> &rijen);
    void WisRijen();
    QList<Rij> Rijen() const;
    /// Shows the number of rows on Label11.
    void ToonAantal();

    // The word panel: MainFormWoorden.cpp.
    void ScrolLengte_Change();
    void OkKnop_Click();
    void LoadKnop_Click();
    void List1_Click();
    void List2_Click();
    void List3_Click();
    /// The one way in which a word tool hands over what it found: List1 holds these words, in capitals.
    void GeefWoorden(const QStringList &woorden);

    /// Asked when the window is to close; false keeps it open.
    std::function<bool()> MagSluiten;

    QFrame *Frame1, *Frame2, *Frame3, *Frame4, *Frame5, *Frame6, *Frame7, *Frame8, *Frame9, *Frame10;
    Label *Label1, *Label2, *Label3, *Label4, *Label5, *Label6, *Label7, *Label8, *Label9, *Label10, *Label11, *Label12,
        *Label13, *Label14, *Label15, *Label16, *Label17, *Label18, *KlokLabel, *CopyLabel;
    PictureBox *Pic, *PicGroot, *PicVak, *PicR, *PicO, *Vak1, *Vak2;
    RectMark *Shape1;
    LineMark *Line1;
    ListView *ListView1;
    ListBox *List1, *List2, *List3;
    QComboBox *Combo1;
    QScrollBar *ScrolLengte;
    ImageButton *DelKnop, *OkKnop, *LoadKnop, *StartKnop, *HelpKnop, *AboutKnop, *ExitKnop;
    QList<QRadioButton *> Option; ///< the three levels of a Sudoku
    ImageBox *Image1, *LogoPic;
    QTimer *Timer1;

    QAction *FileNew, *FileOpen, *FileSave, *FilePrint, *FileExit;
    QAction *ShowOrgineel;
    QAction *EditDeleteRaster, *EditDeleteLetters;
    QAction *BiebOnlineWoordenboek, *BiebInternZoeken, *BiebWoordzoeker, *BiebOntbrekendeLetters, *BiebSpreekwoorden,
        *BiebChemisch;
    QAction *ToolsAdd, *ToolsConfig, *ToolsKlemboard, *ToolsKladblok, *ToolsAutoWoordzoeker;
    QAction *Export1;
    QAction *HelpHelp, *HelpSpecialeTekens, *HelpMeerSoftware, *HelpMail, *HelpWoordlijstAanmaken;
    QAction *Spatie, *Bestandsnaam;

    QMenu *SoortPlaatsing; ///< the pop-up of a cell
    QMenu *SudokuMenu;     ///< the pop-up of a cell of a Sudoku
    /// The items of SoortPlaatsing by their index (VakMenu), 1..9; separators among them.
    std::array<QAction *, 10> SoortVakTekst{};
    std::array<QAction *, 12> SuMe{}; ///< those of SudokuMenu, 1..11: "1" to "9", a separator, "Hint"

signals:
    void VakMenuGekozen(int index);    ///< the item of SoortPlaatsing that was chosen (VakMenu)
    void EditorGekozen();              ///< a cell of a kind whose editor opens at once
    void SudokuMenuGekozen(int index); ///< the item of SudokuMenu that was chosen, as in SuMe

protected:
    void closeEvent(QCloseEvent *event) override;
    void reject() override; ///< Escape doesn't close this window

private:
    void MaakBord();
    void MaakSudokuPaneel(); // in MainFormSudoku.cpp
    void MaakLijst();
    void MaakWoordPaneel(); // this and its two parts in MainFormWoorden.cpp
    void MaakDatabaseDeel();
    void MaakWoordlijstDeel();
    void MaakKnoppen();
    void MaakMenuBalk(); // in MainFormMenu.cpp
    void MaakPopups();   // in MainFormMenu.cpp

    void ToonGekozen(const QString &woord, Label &lengte, const QString &tekst);
    QFrame *MaakFrame(const char *naam, const QString &leesnaam);
    PictureBox *MaakVerborgen(const char *naam, const QString &plaatje);
    void ZwartOmzetten();

    QStringList File1_; ///< the names of the word lists, as they were last read
};

/// The main window. There is one.
MainForm &Main();
