#pragma once

#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "platform/TextBox.h"

#include <QLineEdit>
#include <QMap>
#include <QVariant>

/// All that can be seen of something, by names: the globals of the puzzle, the controls and the items of a window.
using Stand = QMap<QString, QVariant>;

/// What a picture prints with: font, points, bold, colour.
inline QString Lettersoort(const PictureBox &box)
{
    return QStringLiteral("%1 %2 %3 %4")
        .arg(box.FontName)
        .arg(box.FontSize)
        .arg(box.FontBold)
        .arg(box.ForeColor, 8, 16);
}

inline QVariantList Inhoud(const QWidget &control)
{
    if (const auto *label = qobject_cast<const Label *>(&control))
        return {label->Caption()};
    if (const auto *pic = qobject_cast<const PictureBox *>(&control))
        return {pic->Image(), int(pic->ScaleMode()), Lettersoort(*pic)};
    if (const auto *beeld = qobject_cast<const ImageBox *>(&control))
        return {beeld->Picture()};
    if (const auto *combo = qobject_cast<const QComboBox *>(&control))
        return {combo->currentIndex()};
    if (const auto *knop = qobject_cast<const QAbstractButton *>(&control))
        return {knop->isChecked()};
    if (const auto *schuif = qobject_cast<const QScrollBar *>(&control))
        return {schuif->value()};
    if (const auto *box = qobject_cast<const QLineEdit *>(&control))
        return {box->text(), box->cursorPosition(), box->selectedText()};
    if (const auto *box = qobject_cast<const TextBox *>(&control))
        return {box->Text(), box->textCursor().position(), box->textCursor().selectedText(), box->font(),
                box->document()->isUndoAvailable()};
    QVariantList inhoud;
    if (const auto *lijst = qobject_cast<const ListBox *>(&control)) {
        inhoud += lijst->ListIndex();
        for (int i = 0; i < lijst->ListCount(); ++i)
            inhoud += lijst->List(i);
    }
    if (const auto *lijst = qobject_cast<const QTreeWidget *>(&control)) {
        inhoud += lijst->currentIndex().row();
        for (int i = 0; i < lijst->topLevelItemCount(); ++i)
            for (int kolom = 0; kolom < lijst->columnCount(); ++kolom)
                inhoud += lijst->topLevelItem(i)->text(kolom);
    }
    return inhoud;
}

/// Whether something is the window's own, and not of a dialog that belongs to it.
inline bool IsEigen(const Form &venster, const QObject *kind)
{
    for (const QObject *ouder = kind; ouder != &venster; ouder = ouder->parent())
        if (qobject_cast<const QDialog *>(ouder))
            return false;
    return true;
}

/// The controls and the items of a window.
inline Stand ControlsVan(const Form &venster)
{
    Stand stand;
    for (const QAction *item : venster.findChildren<QAction *>())
        if (!item->objectName().isEmpty() && IsEigen(venster, item))
            stand[item->objectName()] =
                QVariantList{item->text(), item->isEnabled(), item->isVisible(), item->isChecked()};
    for (const QWidget *control : venster.findChildren<QWidget *>()) {
        const QString naam = control->objectName();
        if (naam.isEmpty() || naam.startsWith(QLatin1String("qt_")) || !IsEigen(venster, control))
            continue;
        QVariantList waarden{control->isHidden(), control->isEnabled(), control->toolTip()};
        if (!control->isWindow()) // a menu is placed when it is shown
            waarden += control->geometry();
        stand[naam] = waarden + Inhoud(*control);
    }
    return stand;
}

/// A dialog, with its title, and which control has the focus when it is the active window.
inline Stand StandVan(const Form &venster)
{
    Stand stand = ControlsVan(venster);
    stand["Titel"] = venster.windowTitle();
    stand["Focus"] = venster.focusWidget() ? venster.focusWidget()->objectName() : QString();
    return stand;
}

/// The puzzle and the main window. The clock is left out: it goes on by itself.
inline Stand StandVan(const MainForm &main)
{
    const LineMark &lijn = *main.Line1;
    QVariantList zwart;
    for (const bool isZwart : VakZwart)
        zwart += isZwart;
    Stand stand = ControlsVan(main);
    stand.remove(main.KlokLabel->objectName());
    stand.insert({{"PuzzelType", PuzzelType},
                  {"BoardWidth", BoardWidth},
                  {"BoardHeight", BoardHeight},
                  {"CurCol", CurCol},
                  {"CurRow", CurRow},
                  {"CurCell", CurCell},
                  {"PuzzelNaam", PuzzelNaam},
                  {"PuzzelGewijzigd", PuzzelGewijzigd},
                  {"PijlSoort", PijlSoort},
                  {"KleurVakjes", KleurVakjes},
                  {"Orgineel", QVariantList{OrgineelRood, OrgineelGroen, OrgineelBlauw}},
                  {"PaginaTekst", PaginaTekst},
                  {"VakZwart", zwart},
                  {"Main", main.windowTitle()},
                  {"Line1.Punten", QVariantList{lijn.X1, lijn.Y1, lijn.X2, lijn.Y2}}});
    return stand;
}

/// The names of what differs, in their alphabetical order.
inline QString Verschil(const Stand &ervoor, const Stand &erna)
{
    QStringList namen;
    for (auto i = erna.begin(); i != erna.end(); ++i)
        if (ervoor.value(i.key()) != i.value())
            namen += i.key();
    return namen.join(u' ');
}
