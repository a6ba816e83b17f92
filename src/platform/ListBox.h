#pragma once

#include "platform/RowChoice.h"

#include <QListView>
#include <QStringListModel>

/// A list of texts of which one can be selected. A text that is wider than the list ends in dots, and is told under the
/// pointer.
class ListBox : public RowChoice<QListView>
{
    Q_OBJECT
public:
    explicit ListBox(QWidget *ouder);

    /// Keeps its texts in the order of Alfabet.h; equal ones in the order of their coming. To be set before it is
    /// filled.
    bool Sorted = false;

    void AddItem(const QString &tekst);
    /// Fills the list with these texts in one go, and shows it from the first one on.
    void SetItems(QStringList teksten);
    void RemoveItem(int index); ///< leaves nothing selected
    void Clear() { SetItems({}); }

    int ListCount() const { return model_.rowCount(); }
    QString List(int index) const; ///< empty for an index that is not there
    QStringList Items() const { return model_.stringList(); }
    int ListIndex() const; ///< -1 when nothing is selected
    void SetListIndex(int index);
    QString Text() const { return List(ListIndex()); }

signals:
    void Click();    ///< a row was chosen, or the chosen row was clicked again
    void DblClick(); ///< a double click anywhere in the list: without a chosen row when it was below the rows

protected:
    void RowChosen() override { emit Click(); }
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    int Plaats(const QString &tekst) const; ///< the row for a text that comes

    QStringListModel model_;
};
