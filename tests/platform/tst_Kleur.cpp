#include "platform/Kleur.h"
#include "support/Testbank.h"

class tst_Kleur : public QObject
{
    Q_OBJECT
private slots:
    void thePartsInTheirOrder()
    {
        QCOMPARE(RGB(1, 2, 3), qRgb(1, 2, 3));
        QCOMPARE(RGB(0, 0, 0), qRgb(0, 0, 0));
        QCOMPARE(RGB(255, 254, 253), qRgb(255, 254, 253));
    }

    void aPartThatIsTooLargeIsTheLargest()
    {
        QCOMPARE(RGB(256, 2, 3), qRgb(255, 2, 3));
        QCOMPARE(RGB(1, 300, 3), qRgb(1, 255, 3));
        QCOMPARE(RGB(1, 2, 32767), qRgb(1, 2, 255));
    }

    void aNegativePartFails()
    {
        QCOMPARE(FoutVan([] { RGB(-1, 2, 3); }), int(Fout::OngeldigArgument));
        QCOMPARE(FoutVan([] { RGB(1, -1, 3); }), int(Fout::OngeldigArgument));
        QCOMPARE(FoutVan([] { RGB(1, 2, -1); }), int(Fout::OngeldigArgument));
    }
};

QTEST_GUILESS_MAIN(tst_Kleur)
#include "tst_Kleur.moc"
