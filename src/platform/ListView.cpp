#include "platform/ListView.h"

#include "platform/Twips.h"

#include <QHeaderView>
#include <QStyleOption>

ListView::ListView(const QList<Column> &columns, QWidget *ouder) : RowChoice(ouder, new BeginVanTekst)
{
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(false);
    setColumnCount(static_cast<int>(columns.size()));
    QStyleOptionHeader kop;
    kop.initFrom(header());
    for (int i = 0; i < columnCount(); ++i) {
        kop.text = columns[i].Caption;
        headerItem()->setText(i, kop.text);
        // Of its own account the header measures a caption in bold.
        headerItem()->setSizeHint(i, style()->sizeFromContents(QStyle::CT_HeaderSection, &kop, {}, header()));
        setColumnWidth(i, Twips::NaarPixels(columns[i].Width));
    }
}
