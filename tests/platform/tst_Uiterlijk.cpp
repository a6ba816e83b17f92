#include "platform/Canvas.h"
#include "platform/Plaatjes.h"
#include "platform/Uiterlijk.h"
#include "support/Testbank.h"

#include <QCheckBox>
#include <QStyleFactory>
#include <QStyleOptionButton>

#include <memory>

using namespace Qt::StringLiterals;

class tst_Uiterlijk : public QObject
{
    Q_OBJECT
private slots:
    void theFontOfAllWindows() { QCOMPARE(QApplication::font(), Lettertype(u"Arial"_s, 8.25, false)); }

    void whatIsDisabledCanStillBeRead()
    {
        for (const QPalette::ColorRole rol : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
            QCOMPARE(QApplication::palette().color(QPalette::Disabled, rol), QColor(120, 120, 120));
    }

    void whatIsNoOutlineIsDrawnAsFusionDrawsItAtAnyScale_data()
    {
        QTest::addColumn<double>("ratio");
        for (const double ratio : {1.0, 1.25, 1.5, 2.0})
            Geval(QByteArray::number(ratio), ratio);
    }
    void whatIsNoOutlineIsDrawnAsFusionDrawsItAtAnyScale()
    {
        QFETCH(double, ratio);
        const std::unique_ptr<QStyle> fusion(QStyleFactory::create(u"Fusion"_s));
        QStyleOptionButton keuze;
        keuze.rect = QRect(0, 0, 16, 16);
        keuze.state = QStyle::State_Enabled | QStyle::State_On;
        keuze.palette = QApplication::palette();
        const auto getekend = [&](const QStyle &stijl) {
            QImage beeld((QSizeF(16, 16) * ratio).toSize(), QImage::Format_RGB32);
            beeld.setDevicePixelRatio(ratio);
            beeld.fill(Qt::white);
            QPainter painter(&beeld);
            stijl.drawPrimitive(QStyle::PE_IndicatorCheckBox, &keuze, &painter);
            return beeld;
        };
        QCOMPARE(getekend(*QApplication::style()), getekend(*fusion));
    }

    void theMarkOfANarrowMenuIsOurs()
    {
        const auto icoon = [](QStyle::StandardPixmap soort) {
            return QApplication::style()->standardIcon(soort).pixmap(16).toImage();
        };
        QCOMPARE(icoon(QStyle::SP_ToolBarHorizontalExtensionButton), Plaatjes::Pixmap(u"meer"_s, {8, 16}, 1).toImage());
        QVERIFY(icoon(QStyle::SP_MessageBoxWarning) != icoon(QStyle::SP_ToolBarHorizontalExtensionButton));
    }

    // The others are seen on the dialog and in the menus.
    void whatTheDialogOfFilesSaysSeldom_data()
    {
        QTest::addColumn<QString>("bron");
        QTest::addColumn<QString>("engels");
        QTest::addColumn<QString>("nederlands");
        Geval("open", "QFileDialog", "&Open", u"&Openen"_s);
        Geval("delete", "QFileDialog", "Delete", u"Verwijderen"_s);
        Geval("a new folder's name", "QFileDialog", "New Folder", u"Nieuwe map"_s);
        Geval("places", "QFileDialog", "Recent Places", u"Laatste plaatsen"_s);
        Geval("delete?", "QFileDialog", "Are you sure you want to delete '%1'?", u"Wil je '%1' verwijderen?"_s);
        Geval("delete what is protected?", "QFileDialog", "'%1' is write protected.\nDo you want to delete it anyway?",
              u"'%1' is beveiligd.\nWil je het toch verwijderen?"_s);
        Geval("not deleted", "QFileDialog", "Could not delete directory.", u"De map kon niet worden verwijderd."_s);
        Geval("no such folder", "QFileDialog",
              "%1\nDirectory not found.\nPlease verify the correct directory name was given.",
              u"%1\nDeze map is er niet."_s);
        Geval("remove a place", "QSidebar", "Remove", u"Weghalen"_s);
        Geval("the computer", "QFileSystemModel", "Computer", u"Computer"_s);
        Geval("my computer", "QFileSystemModel", "My Computer", u"Computer"_s);
        Geval("a folder's kind", "QAbstractFileIconProvider", "Folder", u"Map"_s);
        Geval("Ok", "QPlatformTheme", "OK", u"OK"_s);
    }
    void whatTheDialogOfFilesSaysSeldom()
    {
        QFETCH(QString, bron);
        QFETCH(QString, engels);
        QTEST(QCoreApplication::translate(bron.toUtf8(), engels.toUtf8()), "nederlands");
    }
};

RASTER_TEST(tst_Uiterlijk)
#include "tst_Uiterlijk.moc"
