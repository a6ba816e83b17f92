#include "Adressen.h"

#include "app/AboutForm.h"
#include "support/Bord.h"
#include "support/Venster.h"

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
        const QString datum = QLocale::system().toString(programma.lastModified(), QLocale::ShortFormat);
        QVERIFY(programma.size() > 0 && !datum.isEmpty());
        QVERIFY2(QRegularExpression(u"^\\d+\\.\\d+\\.\\d+$"_s).match(Versie).hasMatch(), qPrintable(Versie));
        const QStringList regels = form.Label1->Caption().split(u'\n');
        QVERIFY(regels.size() > 2);
        QCOMPARE(regels.sliced(regels.size() - 2),
                 (QStringList{u"Version : %1 / %2"_s.arg(Versie).arg(programma.size()), u"Date : "_s + datum}));
    }

    void asItOpens()
    {
        Bord bord;
        AboutForm form;
        QCOMPARE(form.windowTitle(), u"About Rasteratelier..."_s);
        QCOMPARE(form.palette().color(QPalette::Window), QColor(230, 230, 190));
        QCOMPARE(
            Misplaatst(form, {{"Image1", 180, 210}, {"Label1", 2250, 300, 3900, 1800}, {"CancelKnop", 5070, 1920}}),
            QString());
        QVERIFY(!form.Label1->geometry().intersects(form.Image1->geometry()));
        QCOMPARE(TabVolgorde(form), u"CancelKnop"_s);
    }

    void theButtonClosesIt()
    {
        Bord bord;
        AboutForm form;
        form.show();
        form.CancelKnop->click();
        QVERIFY(form.Unloaded() && !form.isVisible());
        QCOMPARE(bord.Bank.TestKlok.Gewacht(), 0.2);
    }
};

RASTER_TEST(tst_AboutForm)
#include "tst_AboutForm.moc"
