#include "platform/Printers.h"

#include <QPrinterInfo>

#include <optional>

namespace {

/// What is known of the printers since they were first asked for.
struct Bekend
{
    QStringList Wachtrijen;
    std::unique_ptr<Printer> Huidig;
};

} // namespace

static Bekend bekend;
static Wachtrijen *andereWachtrijen = nullptr;

Wachtrijen::~Wachtrijen() = default;

QStringList Wachtrijen::Namen()
{
    return QPrinterInfo::availablePrinterNames();
}

QString Wachtrijen::Standaard()
{
    return QPrinterInfo::defaultPrinterName();
}

Wachtrijen &Wachtrijen::Huidig()
{
    static Wachtrijen echte;
    return andereWachtrijen ? *andereWachtrijen : echte;
}

void Wachtrijen::Gebruik(Wachtrijen *wachtrijen)
{
    andereWachtrijen = wachtrijen;
    bekend = {};
}

QStringList Printers::Lijst()
{
    const QString pdf = Printer(QString()).DeviceName();
    bekend.Wachtrijen = Wachtrijen::Huidig().Namen();
    QStringList namen = bekend.Wachtrijen + QStringList{pdf};
    if (bekend.Huidig && !namen.contains(bekend.Huidig->DeviceName()))
        bekend.Huidig.reset();
    return namen;
}

void Printers::Kies(int index)
{
    if (index >= 0 && index <= bekend.Wachtrijen.size())
        bekend.Huidig =
            std::make_unique<Printer>(bekend.Wachtrijen.value(index)); // the one behind them is the PDF printer
}

Printer &Printers::Huidig()
{
    if (!bekend.Huidig)
        bekend.Huidig = std::make_unique<Printer>(Wachtrijen::Huidig().Standaard());
    return *bekend.Huidig;
}
