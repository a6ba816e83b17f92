#include "platform/Plaatjes.h"
#include "platform/Tekening.h"
#include "support/Testbank.h"

#include <QDir>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

/// The largest difference of any part of a colour between two pictures of one size.
static int Verschil(const QImage &a, const QImage &b)
{
    int verschil = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QColor een = a.pixelColor(x, y), twee = b.pixelColor(x, y);
            for (const int deel :
                 {een.alpha() - twee.alpha(), (een.red() - twee.red()) * een.alpha() / 255,
                  (een.green() - twee.green()) * een.alpha() / 255, (een.blue() - twee.blue()) * een.alpha() / 255})
                verschil = std::max(verschil, std::abs(deel));
        }
    return verschil;
}

static QStringList Tekeningen()
{
    QStringList namen = QDir(u":/assets"_s).entryList({u"*.svg"_s});
    for (QString &naam : namen)
        naam.chop(4);
    return namen;
}

class tst_Plaatjes : public QObject
{
    Q_OBJECT
private slots:
    void aPictureInItsOwnSizeIsItsDrawing_data()
    {
        QTest::addColumn<QString>("naam");
        for (const QString &naam : Tekeningen())
            Geval(naam.toUtf8(), naam);
    }
    void aPictureInItsOwnSizeIsItsDrawing()
    {
        QFETCH(QString, naam);
        QSvgRenderer tekening(u":/assets/"_s + naam + u".svg"_s);
        QImage getekend(tekening.defaultSize(), QImage::Format_ARGB32_Premultiplied);
        getekend.fill(Qt::transparent);
        TekenSvg(getekend, tekening, getekend.size());

        QCOMPARE(Plaatjes::Maat(naam), getekend.size());
        const QImage beeld = Plaatjes::Pixmap(naam, getekend.size(), 1).toImage();
        QCOMPARE(beeld.size(), getekend.size());
        QVERIFY2(Verschil(beeld, getekend) <= 2, qPrintable(QString::number(Verschil(beeld, getekend))));
    }

    void anotherSizeIsDrawnSharp()
    {
        const QSize maat = Plaatjes::Maat(u"knop-ok"_s);
        for (const double ratio : {1.0, 1.5, 2.0}) {
            const QPixmap groot = Plaatjes::Pixmap(u"knop-ok"_s, maat * 2, ratio);
            QCOMPARE(groot.size(), maat * 2 * ratio);
            QCOMPARE(groot.devicePixelRatio(), ratio);
            const QImage gerekt = Plaatjes::Pixmap(u"knop-ok"_s, maat, 1).toImage().scaled(groot.size());
            QVERIFY(Verschil(groot.toImage(), gerekt) > 60); // not the small one, stretched
        }
    }
};

QTEST_MAIN(tst_Plaatjes)
#include "tst_Plaatjes.moc"
