#pragma once

#include "platform/BeginVan.h"

#include <QAbstractItemView>
#include <QMouseEvent>
#include <QStyledItemDelegate>

/// Shows the beginning of a text: a file may hold one of megabytes.
class BeginVanTekst : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QString displayText(const QVariant &waarde, const QLocale &) const override
    {
        constexpr int MostCharacters = 260;
        return BeginVan(waarde.toString(), MostCharacters);
    }
};

/// How a person chooses a row in our lists, on top of the view that shows them: one row at a time, with the left button
/// or the keys. Once a row is chosen there is no way back to none: not with Ctrl, not with a click where no row is.
template <class View> class RowChoice : public View
{
protected:
    /// @param rijen how a row is shown, which becomes the list's own
    RowChoice(QWidget *ouder, BeginVanTekst *rijen) : View(ouder)
    {
        this->setEditTriggers(View::NoEditTriggers);
        rijen->setParent(this);
        this->setItemDelegate(rijen);
    }

    /// A row was chosen, or the chosen one was clicked again.
    virtual void RowChosen() = 0;

    void selectionChanged(const QItemSelection &erbij, const QItemSelection &eraf) override
    {
        View::selectionChanged(erbij, eraf);
        if (!erbij.isEmpty())
            RowChosen();
    }

    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &rij, const QEvent *) const override
    {
        if (!rij.isValid())
            return QItemSelectionModel::NoUpdate;
        return QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
    }

    void mousePressEvent(QMouseEvent *event) override
    {
        if (event->button() != Qt::LeftButton)
            return;
        const bool again = this->selectionModel()->isSelected(this->indexAt(event->position().toPoint()));
        View::mousePressEvent(event);
        if (again)
            RowChosen();
    }

    // A list that has the focus marks its first row, chosen or not. As long as no row is chosen the keys don't go on
    // from that mark: they come from outside the list.
    QModelIndex moveCursor(QAbstractItemView::CursorAction beweging, Qt::KeyboardModifiers toetsen) override
    {
        if (!WeggaanVanMerk())
            return View::moveCursor(beweging, toetsen);
        const int rij = beweging == View::MoveEnd ? this->model()->rowCount() - 1 : 0;
        return this->model()->index(rij, 0);
    }

    void keyboardSearch(const QString &begin) override
    {
        WeggaanVanMerk();
        View::keyboardSearch(begin);
    }

private:
    bool WeggaanVanMerk()
    {
        const bool geen = !this->selectionModel()->hasSelection();
        if (geen)
            this->selectionModel()->clearCurrentIndex();
        return geen;
    }
};
