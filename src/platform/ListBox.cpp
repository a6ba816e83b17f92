#include "platform/ListBox.h"

#include <QSignalBlocker>

ListBox::ListBox(QWidget *ouder) : QListView(ouder)
{
    setModel(&model_);
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    connect(this, &QListView::clicked, this, &ListBox::Click);
    connect(this, &QListView::doubleClicked, this, &ListBox::DblClick);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (ListIndex() >= 0)
            emit Click();
    });
}

void ListBox::AddItem(const QString &tekst)
{
    const int rij = model_.rowCount();
    model_.insertRow(rij);
    model_.setData(model_.index(rij), tekst);
}

void ListBox::SetItems(const QStringList &teksten)
{
    model_.setStringList(teksten);
}

void ListBox::RemoveItem(int index)
{
    const QSignalBlocker stil(selectionModel());
    model_.removeRow(index);
    selectionModel()->reset();
    viewport()->update();
}

QString ListBox::List(int index) const
{
    return model_.index(index).data().toString();
}

int ListBox::ListIndex() const
{
    const QModelIndexList gekozen = selectionModel()->selectedIndexes();
    return gekozen.isEmpty() ? -1 : gekozen.first().row();
}

void ListBox::SetListIndex(int index)
{
    selectionModel()->setCurrentIndex(model_.index(index), QItemSelectionModel::ClearAndSelect);
}
