#include "platform/Uiterlijk.h"

#include "platform/Canvas.h"

#include <QApplication>
#include <QStyle>
#include <QTranslator>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

/// The items of the menu that Qt gives every box one types in.
class BewerkMenu : public QTranslator
{
public:
    using QTranslator::QTranslator;

    bool isEmpty() const override { return false; }
    QString translate(const char *bron, const char *tekst, const char * /*uitleg*/, int /*aantal*/) const override
    {
        static const QHash<QLatin1String, QString> Items{{"&Undo"_L1, u"&Ongedaan maken"_s},
                                                         {"&Redo"_L1, u"Opnie&uw"_s},
                                                         {"Cu&t"_L1, u"K&nippen"_s},
                                                         {"&Copy"_L1, u"&Kopiëren"_s},
                                                         {"&Paste"_L1, u"&Plakken"_s},
                                                         {"Delete"_L1, u"&Verwijderen"_s},
                                                         {"Select All"_L1, u"&Alles selecteren"_s}};
        const bool isVak = bron == "QWidgetTextControl"_L1 || bron == "QLineEdit"_L1;
        return isVak ? Items.value(QLatin1String(tekst)) : QString();
    }
};

} // namespace

void StelUiterlijkIn()
{
    QApplication::installTranslator(new BewerkMenu(qApp));
    QApplication::setStyle(u"Fusion"_s);
    QPalette palet = QApplication::style()->standardPalette();
    for (const QPalette::ColorRole rol : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palet.setColor(QPalette::Disabled, rol, qRgb(120, 120, 120)); // still to be read on our pale colours
    QApplication::setPalette(palet);
    QApplication::setFont(Lettertype(u"Arial"_s, 8.25, false));
}

void AlsDialoog(QWidget &venster)
{
    venster.setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                           Qt::WindowCloseButtonHint);
}
