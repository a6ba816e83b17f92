#include "support/ProefWachtrijen.h"
#include "support/Testbank.h"

#include <optional>

using namespace Qt::StringLiterals;

class tst_Printers : public QObject
{
    Q_OBJECT
private slots:
    void init() { rijen_.emplace(QStringList{u"Zolder"_s, u"Balie"_s, u"Archief"_s}, u"Balie"_s); }
    void cleanup() { rijen_.reset(); }

    void thePdfPrinterIsTheLast()
    {
        QCOMPARE(Printers::Lijst(), (QStringList{u"Zolder"_s, u"Balie"_s, u"Archief"_s, u"PDF-bestand"_s}));
        rijen_->Alle.clear();
        QCOMPARE(Printers::Lijst(), QStringList{u"PDF-bestand"_s});
    }

    void theSystemIsAskedAtTheFirstUse()
    {
        QCOMPARE(rijen_->Gevraagd, 0);
        Printers::Huidig();
        QCOMPARE(rijen_->Gevraagd, 1);
        Printers::Huidig();
        QCOMPARE(rijen_->Gevraagd, 1);
    }

    void theDefaultIsTheCurrentOne() { QCOMPARE(Printers::Huidig().DeviceName(), u"Balie"_s); }

    void withoutADefaultItIsThePdfPrinter()
    {
        rijen_->Eerste.clear();
        QCOMPARE(Printers::Huidig().DeviceName(), u"PDF-bestand"_s);
    }

    void aChoiceStays()
    {
        const QStringList lijst = Printers::Lijst();
        for (int i = 0; i < lijst.size(); ++i) {
            Printers::Kies(i);
            QCOMPARE(Printers::Huidig().DeviceName(), lijst[i]);
            rijen_->Eerste = u"Zolder"_s; // the default is of no more account
            Printers::Lijst();
            QCOMPARE(Printers::Huidig().DeviceName(), lijst[i]);
        }
    }

    void theChoiceKeepsItsLetter()
    {
        Printers::Lijst();
        Printers::Kies(0);
        Printers::Huidig().FontSize = 16;
        Printers::Lijst();
        QCOMPARE(Printers::Huidig().FontSize, 16.0);
    }

    void noPrinterIsChosenByAnotherNumber()
    {
        Printers::Lijst();
        Printers::Kies(0);
        for (const int index : {-1, 4, 1000000}) {
            Printers::Kies(index);
            QCOMPARE(Printers::Huidig().DeviceName(), u"Zolder"_s);
        }
    }

    void aChoiceThatIsGoneIsForgotten()
    {
        Printers::Lijst();
        Printers::Kies(2);
        rijen_->Alle.removeLast();
        QCOMPARE(Printers::Huidig().DeviceName(), u"Archief"_s);
        Printers::Lijst();
        QCOMPARE(Printers::Huidig().DeviceName(), u"Balie"_s);
    }

    void otherQueuesBeginAnew()
    {
        Printers::Lijst();
        Printers::Kies(0);
        Wachtrijen::Gebruik(&*rijen_);
        QCOMPARE(Printers::Huidig().DeviceName(), u"Balie"_s);
    }

    void aSystemWithoutQueuesHasThePdfPrinter()
    {
        Wachtrijen::Gebruik(nullptr);
        QCOMPARE(Printers::Lijst(), QStringList{u"PDF-bestand"_s});
        QCOMPARE(Printers::Huidig().DeviceName(), u"PDF-bestand"_s);
    }

private:
    std::optional<ProefWachtrijen> rijen_;
};

int main(int argc, char *argv[])
{
    qputenv("CUPS_SERVER", "/geen/wachtrijen"); // whatever queues this machine has
    return TestMain(argc, argv, [](int c, char **v) {
        tst_Printers test;
        return QTest::qExec(&test, c, v);
    });
}
#include "tst_Printers.moc"
