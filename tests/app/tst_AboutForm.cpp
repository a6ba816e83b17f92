#include "app/AboutForm.h"
#include "support/Bord.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

class tst_AboutForm : public QObject
{
    Q_OBJECT
private slots:
    void itTellsVersionSizeAndDateOfTheProgramsFile()
    {
        Bord bord;
        AboutForm form;
        const QFileInfo programma(QCoreApplication::applicationFilePath());
        const QRegularExpression einde(u"Version : (\\d+\\.\\d+\\.\\d+) / (\\d+)\nDate : (.+)$"_s);
        const QRegularExpressionMatch gevonden = einde.match(form.Label1->Caption());
        QVERIFY(gevonden.hasMatch());
        QCOMPARE(gevonden.captured(2).toLongLong(), programma.size());
        QCOMPARE(gevonden.captured(3), QLocale::system().toString(programma.lastModified(), QLocale::ShortFormat));
        QCOMPARE(form.windowTitle(), u"About Rasteratelier..."_s);
    }

    void controlsAndTheirPlaces()
    {
        Bord bord;
        AboutForm form;
        QCOMPARE(form.Image1->pos(), QPoint(180 / 15, 210 / 15));
        QCOMPARE(form.CancelKnop->pos(), QPoint(5070 / 15, 1920 / 15));
        QCOMPARE(form.Label1->geometry(), QRect(2250 / 15, 300 / 15, 3900 / 15, 1800 / 15));
        QVERIFY(form.rect().contains(form.CancelKnop->geometry()));
        QVERIFY(!form.Label1->geometry().intersects(form.Image1->geometry()));
    }

    void theButtonClosesIt()
    {
        Bord bord;
        AboutForm form;
        form.CancelKnop_Click();
        QVERIFY(form.Unloaded());
        QVERIFY(qAbs(bord.Bank.TestKlok.Gewacht() - 0.2) < 1e-6);
    }
};

RASTER_TEST(tst_AboutForm)
#include "tst_AboutForm.moc"
