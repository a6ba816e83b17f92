#pragma once

#include "platform/RowChoice.h"

#include <QTreeWidget>

/// A list of rows of texts in columns with captions, of which one row can be selected.
class ListView : public RowChoice<QTreeWidget>
{
    Q_OBJECT
public:
    struct Column
    {
        QString Caption;
        int Width; ///< in twips
    };
    ListView(const QList<Column> &columns, QWidget *ouder);

signals:
    void ItemClick(); ///< a row was chosen, or the chosen row was clicked again

protected:
    void RowChosen() override { emit ItemClick(); }
};
