#include "support/Venster.h"

#include "platform/ImageBox.h"
#include "platform/ImageButton.h"
#include "platform/Twips.h"
#include "support/Testbank.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDir>
#include <QLabel>
#include <QMenu>

using namespace Qt::StringLiterals;

/// Whether a control lies over the middle of another one. A label that shows its text alone hides no other label, and
/// on a plate, which has no text, lies what it is for.
static bool Bedekt(const QWidget &boven, const QWidget &onder)
{
    const auto *tekst = qobject_cast<const QLabel *>(&onder);
    if (tekst && (tekst->text().isEmpty() || (qobject_cast<const QLabel *>(&boven) && !boven.autoFillBackground())))
        return false;
    return !boven.isHidden() && !onder.isHidden() && boven.geometry().contains(onder.geometry().center());
}

/// What lies over a control; nullptr when nothing does.
static const QWidget *Bedekker(const QWidget &control)
{
    const QObjectList &kinderen = control.parent()->children(); // from the lowest to the highest
    for (qsizetype i = kinderen.indexOf(&control) + 1; i < kinderen.size(); ++i)
        if (const auto *ander = qobject_cast<const QWidget *>(kinderen[i]); ander && Bedekt(*ander, control))
            return ander;
    return nullptr;
}

/// Whether a label has room for its text; any other control has.
static bool TekstPast(const QWidget &control)
{
    const auto *label = qobject_cast<const QLabel *>(&control);
    if (!label || label->isHidden())
        return true;
    return label->wordWrap() ? label->heightForWidth(label->width()) <= label->height()
                             : label->fontMetrics().size(0, label->text()).width() <= label->width();
}

static QString Wijkt(const QWidget &control, const Plek &plek)
{
    const auto wijktAf = [](int pixels, int twips) { return twips != 0 && pixels != Twips::NaarPixels(twips); };
    const QRect vlak = control.geometry();
    if (wijktAf(vlak.x(), plek.Links) || wijktAf(vlak.y(), plek.Boven))
        return u"staat op %1, %2 (pixels)"_s.arg(vlak.x()).arg(vlak.y());
    if (wijktAf(vlak.width(), plek.Breedte) || wijktAf(vlak.height(), plek.Hoogte))
        return u"is %1 bij %2 (pixels)"_s.arg(vlak.width()).arg(vlak.height());
    if (!control.isHidden() && !control.parentWidget()->rect().contains(vlak))
        return u"steekt uit"_s;
    if (const QWidget *ander = Bedekker(control))
        return u"ligt onder "_s + ander->objectName();
    if (!TekstPast(control))
        return u"is te klein voor zijn tekst"_s;
    return {};
}

QString Misplaatst(const QWidget &venster, const QList<Plek> &tabel)
{
    QStringList mis;
    QList<const QObject *> gezien;
    for (const Plek &plek : tabel) {
        const auto *control = Vind<QWidget>(venster, QLatin1String(plek.Naam));
        const QWidget *houder = control->parentWidget();
        const bool isHouder = houder == &venster || houder->objectName().isEmpty(); // what a form holds all with
        const QString wat = isHouder ? Wijkt(*control, plek) : u"staat op "_s + houder->objectName();
        if (!wat.isEmpty())
            mis += QLatin1String(plek.Naam) + u' ' + wat;
        gezien += control;
    }
    for (const QObject *kind : gezien.first()->parent()->children())
        if (kind->isWidgetType() && !kind->objectName().isEmpty() && !gezien.contains(kind))
            mis += kind->objectName() + u" staat niet in de tabel"_s;
    return mis.join(u'\n');
}

/// The picture that a button shows, without the frame that the focus gives it.
static QString PlaatjeVan(ImageButton &knop)
{
    knop.clearFocus();
    const QImage beeld = knop.grab().toImage();
    const QStringList tekeningen = QDir(u":/assets"_s).entryList({u"knop-*.svg"_s});
    for (const QString &bestand : tekeningen) {
        const QString naam = bestand.section(u'.', 0, 0);
        ImageButton ander(naam, knop.parentWidget());
        ander.resize(knop.size());
        ander.setEnabled(knop.isEnabled());
        if (ander.grab().toImage() == beeld)
            return naam;
    }
    return u"?"_s;
}

QString PlaatjesOp(const QWidget &venster)
{
    QStringList plaatjes;
    const QList<QWidget *> controls = venster.findChildren<QWidget *>();
    for (QWidget *control : controls) {
        if (auto *knop = qobject_cast<ImageButton *>(control))
            plaatjes += knop->objectName() + u' ' + PlaatjeVan(*knop);
        else if (const auto *beeld = qobject_cast<ImageBox *>(control))
            plaatjes += beeld->objectName() + u' ' + beeld->Picture();
    }
    plaatjes.sort();
    return plaatjes.join(u", "_s);
}

static QString MetFocus()
{
    const QWidget *control = QApplication::focusWidget();
    return control ? control->objectName() : u"niets"_s;
}

QString TabVolgorde(QWidget &venster)
{
    venster.show();
    venster.activateWindow();
    if (!QTest::qWaitForWindowActive(&venster))
        return u"het venster wordt niet actief"_s;
    QStringList namen;
    while (!namen.contains(MetFocus())) {
        namen += MetFocus();
        QTest::keyClick(venster.windowHandle(), Qt::Key_Tab);
    }
    if (MetFocus() != namen.first())
        namen += u"en terug naar "_s + MetFocus();
    return namen.join(u' ');
}

QStringList Leesnamen(const QWidget &venster)
{
    QStringList namen;
    for (const QWidget *control : venster.findChildren<QWidget *>())
        if (!control->objectName().isEmpty() && !control->accessibleName().isEmpty())
            namen += control->objectName() + u'=' + control->accessibleName();
    namen.sort();
    return namen;
}

QStringList Items(const QComboBox &combo)
{
    QStringList items;
    for (int i = 0; i < combo.count(); ++i)
        items += combo.itemText(i);
    return items;
}

QString RechtsKlik(QWidget &control, const QString &keuze)
{
    const QPoint midden = control.rect().center();
    QWidget *kind = control.childAt(midden); // what lies on top gets the click
    QContextMenuEvent klik(QContextMenuEvent::Mouse, midden, control.mapToGlobal(midden));
    QApplication::sendEvent(kind ? kind : &control, &klik);
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    if (!menu)
        return u"geen menu"_s;
    QStringList items;
    for (QAction *item : menu->actions()) {
        if (item->isSeparator())
            continue;
        const QString naam = item->text().section(u'\t', 0, 0).remove(u'&');
        items += item->isEnabled() ? naam : u'(' + naam + u')';
        if (naam == keuze)
            item->trigger();
    }
    menu->close();
    return items.join(u'|');
}
