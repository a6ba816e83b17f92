#pragma once

#include "platform/Form.h"
#include "platform/ImageBox.h"

#include <QComboBox>
#include <QStringListModel>

/// Shows the chemical elements with their symbols and atomic numbers.
class ChemischForm : public Form
{
public:
    ChemischForm();

    /// Fills the box. A failure ends that with a message: what was read before it stays.
    void VulElementen();

    ImageBox *Picture; ///< behind all the others
    Label *Label1, *Label2;
    QComboBox *Combo1;

private:
    QStringListModel elementen_;
};
