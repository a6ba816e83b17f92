#include "platform/ListView.h"

#include "platform/Twips.h"

#include <QHeaderView>

ListView::ListView(const QList<Column> &columns, QWidget *ouder) : RowChoice(ouder)
{
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(false);
    setColumnCount(static_cast<int>(columns.size()));
    for (int i = 0; i < columnCount(); ++i) {
        headerItem()->setText(i, columns[i].Caption);
        setColumnWidth(i, Twips::NaarPixels(columns[i].Width));
    }
}
