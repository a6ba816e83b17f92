#pragma once

#include "platform/Form.h"
#include "platform/ImageButton.h"
#include "platform/ListBox.h"

#include <QAction>

#include <array>

/// Shows the tables to look things up in: proverbs with their meanings, capitals, abbreviations, codes, municipalities.
class SpreekwoordForm : public Form
{
public:
    SpreekwoordForm();

    void FileCripto_Click(int Index); ///< @param Index 1..6
    void List1_DblClick();
    void OkKnop_Click();

    /// Fills the lists with the proverbs and their meanings. A failure ends that without a word: what was read before
    /// it stays.
    /// @param Filter the first letter of those that are shown, all when it is empty
    void LaadSpreekwoorden(const QString &Filter);
    /// Fills the list with another table, in the same way. @param Index 2..6
    void LaadBron(int Index);

    int HuidigeBron = 1;      ///< which table is shown, 1..6
    QString Titel, Betekenis; ///< of what was double-clicked last

    ListBox *List1;
    ListBox *List2; ///< hidden: the meanings beside the proverbs, each with its lead-in
    Label *Label1;
    ImageButton *OkKnop;
    std::array<QAction *, 7> FileCripto{}; ///< 1..6
};
