#pragma once

#include <QString>

/// Connects the menu items, the pop-up and the buttons of the main window with what they open. An item that is not
/// connected stays disabled.
void VerbindOpdrachten();

/// The item of the pop-up that was chosen: opens its editor, or fills the empty cells after a question. In all cases
/// the frame round the cell is hidden then. @param index 1..9
void SoortVakTekst_Click(int index);

void BiebInternZoeken_Click();
void ToolsKlemboard_Click();
void HelpMail_Click();
void HelpKnop_Click();
void AboutKnop_Click();
void ExitKnop_Click();

/// The mail link: the publisher's address, with the program's name and version as the subject.
QString MailDoel();
