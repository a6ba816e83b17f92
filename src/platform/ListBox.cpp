#include "platform/ListBox.h"

#include "platform/Alfabet.h"

#include <algorithm>

ListBox::ListBox(QWidget *ouder) : RowChoice(ouder)
{
    setModel(&model_);
    setUniformItemSizes(true);
}

int ListBox::Plaats(const QString &tekst) const
{
    if (!Sorted)
        return model_.rowCount();
    const QStringList teksten = model_.stringList();
    return static_cast<int>(std::upper_bound(teksten.begin(), teksten.end(), tekst, AlfabetischVoor) - teksten.begin());
}

void ListBox::AddItem(const QString &tekst)
{
    const int rij = Plaats(tekst);
    model_.insertRow(rij);
    model_.setData(model_.index(rij), tekst);
}

void ListBox::SetItems(QStringList teksten)
{
    if (Sorted)
        SorteerAlfabetisch(teksten);
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
