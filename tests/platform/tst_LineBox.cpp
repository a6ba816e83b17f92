#include "platform/LineBox.h"
#include "support/Testbank.h"

#include <QClipboard>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

class tst_LineBox : public QObject
{
    Q_OBJECT
private slots:
    void textEndsAtTheFirstLineEnd_data()
    {
        QTest::addColumn<QString>("tekst");
        QTest::addColumn<QString>("over");
        QTest::newRow("none") << "dier, groot"
                              << "dier, groot";
        QTest::newRow("line feed") << "dier\ngroot"
                                   << "dier";
        QTest::newRow("carriage return") << "dier\r\ngroot\r\n"
                                         << "dier";
        QTest::newRow("at the end") << "Reis\n"
                                    << "Reis";
        QTest::newRow("at the begin") << "\nReis"
                                      << "";
        QTest::newRow("separator") << u"dier"_s + QChar(QChar::LineSeparator) + u'x' << "dier";
        QTest::newRow("paragraph") << u"dier"_s + QChar(QChar::ParagraphSeparator) + u'x' << "dier";
    }
    void textEndsAtTheFirstLineEnd()
    {
        QFETCH(QString, tekst);
        QFETCH(QString, over);
        QWidget venster;
        LineBox gezet(&venster), geplakt(&venster);
        gezet.setText(tekst);
        QCOMPARE(gezet.text(), over);
        QGuiApplication::clipboard()->setText(tekst);
        geplakt.paste();
        QCOMPARE(geplakt.text(), over);
    }
};

RASTER_TEST(tst_LineBox)
#include "tst_LineBox.moc"
