#include "platform/ListBox.h"

ListBox::ListBox(QWidget *ouder) : RowChoice(ouder)
{
    setModel(&model_);
    setUniformItemSizes(true);
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
    selectionModel()->clear();
    model_.removeRow(index);
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

void ListBox::mouseDoubleClickEvent(QMouseEvent *event)
{
    RowChoice::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton)
        emit DblClick();
}
