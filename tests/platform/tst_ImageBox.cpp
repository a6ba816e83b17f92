#include "platform/ImageBox.h"
#include "platform/Plaatjes.h"
#include "support/Testbank.h"

#include <QPainter>

using namespace Qt::StringLiterals;

class tst_ImageBox : public QObject
{
    Q_OBJECT

    /// What a box with this picture should show on a white window.
    static QImage Verwacht(const QString &naam, QSize maat)
    {
        QImage beeld(maat, QImage::Format_RGB32);
        beeld.fill(Qt::white);
        if (!naam.isEmpty())
            QPainter(&beeld).drawPixmap(0, 0, Plaatjes::Pixmap(naam, maat, 1));
        return beeld;
    }

private slots:
    void aPictureIsAsLargeAsItsPlace()
    {
        QWidget venster;
        venster.setPalette(Qt::white);
        venster.resize(200, 200);
        ImageBox beeld(u"richting-h"_s, &venster);
        for (const QSize maat : {QSize(32, 48), QSize(100, 20)}) {
            beeld.resize(maat);
            QCOMPARE(Getoond(beeld), Verwacht(u"richting-h"_s, maat));
        }
        QVERIFY(HeeftInkt(Getoond(beeld), beeld.rect()));
        QCOMPARE(beeld.Picture(), u"richting-h"_s);
    }

    void anotherPictureIsShownAtOnce()
    {
        QWidget venster;
        venster.setPalette(Qt::white);
        ImageBox beeld(u"richting-h"_s, &venster);
        beeld.resize(40, 40);
        venster.show();
        QVERIFY(QTest::qWaitForWindowExposed(&venster));
        const auto opScherm = [&] {
            QCoreApplication::processEvents();
            return venster.screen()
                ->grabWindow(venster.winId(), 0, 0, 40, 40)
                .toImage()
                .convertToFormat(QImage::Format_RGB32);
        };
        for (const QString &naam : {u"richting-v"_s, QString(), u"richting-h"_s}) {
            beeld.SetPicture(naam);
            QCOMPARE(beeld.Picture(), naam);
            QCOMPARE(Getoond(beeld), Verwacht(naam, beeld.size()));
            QCOMPARE(opScherm(), Verwacht(naam, beeld.size()));
        }
    }
};

RASTER_TEST(tst_ImageBox)
#include "tst_ImageBox.moc"
