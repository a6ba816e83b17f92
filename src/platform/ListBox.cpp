#include "platform/ListBox.h"

#include "platform/Alfabet.h"

#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>

#include <algorithm>

namespace {

/// Rows that are as wide as their list: what is cut off of a longer one is told under the pointer.
class PassendeRij : public BeginVanTekst
{
public:
    using BeginVanTekst::BeginVanTekst;

    // The list takes one row for all of them, and would be as wide as that one happens to be.
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &rij) const override
    {
        return QSize(0, BeginVanTekst::sizeHint(option, rij).height());
    }

    bool helpEvent(QHelpEvent *event, QAbstractItemView *lijst, const QStyleOptionViewItem &option,
                   const QModelIndex &rij) override
    {
        if (event->type() != QEvent::ToolTip)
            return BeginVanTekst::helpEvent(event, lijst, option, rij);
        const QString tekst = displayText(rij.data(), option.locale);
        const bool past = !rij.isValid() || BeginVanTekst::sizeHint(option, rij).width() <= option.rect.width();
        QToolTip::showText(event->globalPos(), past ? QString() : Qt::convertFromPlainText(tekst), lijst->viewport(),
                           option.rect);
        return true;
    }
};

} // namespace

ListBox::ListBox(QWidget *ouder) : RowChoice(ouder, new PassendeRij)
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
    scrollToTop();
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
