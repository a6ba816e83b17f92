#include "support/Venster.h"

#include "support/Testbank.h"

#include <QApplication>

using namespace Qt::StringLiterals;

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
