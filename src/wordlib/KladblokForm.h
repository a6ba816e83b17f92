#pragma once

#include "platform/Form.h"
#include "platform/TextBox.h"

/// Loose notes, a word a line, that can be stored as a word list. The only window that can be resized.
class KladblokForm : public Form
{
public:
    KladblokForm();

    void Form_Resize();
    void FileSave_Click();
    void FileExit_Click();
    void TG_Click(int Index); ///< @param Index points, 8 to 14
    void EditBold_Click();
    void EditItalic_Click();

    /// Writes the text as the word list of that name, a line of the box on a line of the file, unless there is one and
    /// the user keeps it. Failures pass in silence.
    void SaveKladblok(const QString &Naam);

    TextBox *Text1;
    QAction *FileSave, *FileExit;
    QList<QAction *> TG; ///< TG[0] is that of 8 points
    QAction *EditBold, *EditItalic;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void MaakMenus();
};
