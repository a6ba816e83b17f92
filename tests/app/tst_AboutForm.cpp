#include "Adressen.h"

#include "app/AboutForm.h"
#include "support/Bord.h"
#include "support/Venster.h"
#include "support/Verwacht.h"

#include <QFileInfo>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

class tst_AboutForm : public QObject
{
    Q_OBJECT
private slots:
    void itTellsVersionSizeAndDateOfTheProgramsFile()
    {
        Bord bord;
        const QFileInfo programma(QCoreApplication::applicationFilePath());
        const QDateTime gewijzigd(QDate(2021, 2, 3), QTime(4, 5));
        const QString datum = QLocale::system().toString(gewijzigd, QLocale::ShortFormat);
        QVERIFY(programma.size() > 0 && !datum.isEmpty());
        QFile bestand(programma.filePath());
        QVERIFY(bestand.open(QIODevice::ReadOnly));
        const auto terug = qScopeGuard([&bestand, gemaakt = programma.lastModified()] {
            bestand.setFileTime(gemaakt, QFileDevice::FileModificationTime);
        });
        QVERIFY(bestand.setFileTime(QDateTime(QDate(2020, 1, 1), QTime(12, 0)), QFileDevice::FileAccessTime));
        QVERIFY(bestand.setFileTime(gewijzigd,
                                    QFileDevice::FileModificationTime)); // of the times that a file has, this one
        const AboutForm form;
        QVERIFY2(QRegularExpression(u"^\\d+\\.\\d+\\.\\d+$"_s).match(Versie).hasMatch(), qPrintable(Versie));
        QCOMPARE(form.Label1->Caption(),
                 u"Raster Atelier\nPuzzels ontwerpen, bewaren en delen.\nGemaakt door de makers van Rasteratelier.\n\n"
                 "Version : %1 / %2\nDate : %3"_s.arg(Versie)
                     .arg(programma.size())
                     .arg(datum));
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
        QCOMPARE(Leesnamen(form), (QStringList{u"CancelKnop=Sluiten"_s, u"Image1=Raster Atelier"_s}));
        QCOMPARE(PlaatjesOp(form), u"CancelKnop knop-sluiten, Image1 rasteratelier"_s);
    }

    void theButtonClosesIt()
    {
        Bord bord;
        AboutForm form;
        form.show();
        KlikMetDruk(*form.CancelKnop, [&] { QVERIFY(form.isVisible()); });
        QVERIFY(form.Unloaded() && !form.isVisible());
    }
};

RASTER_TEST(tst_AboutForm)
#include "tst_AboutForm.moc"
