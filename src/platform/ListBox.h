#pragma once

#include "platform/RowChoice.h"

#include <QListView>
#include <QStringListModel>

/// A list of texts of which one can be selected.
class ListBox : public RowChoice<QListView>
{
    Q_OBJECT
public:
    explicit ListBox(QWidget *ouder);

    void AddItem(const QString &tekst);
    /// Fills the list with these texts in one go.
    void SetItems(const QStringList &teksten);
    void RemoveItem(int index); ///< leaves nothing selected
    void Clear() { SetItems({}); }

    int ListCount() const { return model_.rowCount(); }
    QString List(int index) const; ///< empty for an index that is not there
    int ListIndex() const;         ///< -1 when nothing is selected
    void SetListIndex(int index);
    QString Text() const { return List(ListIndex()); }

signals:
    void Click();    ///< a row was chosen, or the chosen row was clicked again
    void DblClick(); ///< a double click anywhere in the list: without a chosen row when it was below the rows

protected:
    void RowChosen() override { emit Click(); }
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    QStringListModel model_;
};
