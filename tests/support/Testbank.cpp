#include "support/Testbank.h"

#include "platform/Screen.h"
#include "platform/Toeval.h"
#include "platform/Uiterlijk.h"

#include <QApplication>
#include <QDir>
#include <QFile>

Antwoord BerichtenScript::Vraag(const QString &tekst, Knoppen knoppen, Icoon icoon, const QString &titel)
{
    Gezien += Bericht{tekst, titel, knoppen, icoon};
    if (!Antwoorden.isEmpty() && knoppen == Knoppen::JaNee)
        return Antwoorden.takeFirst();
    if (knoppen == Knoppen::Ok)
        return Antwoord::Ok;
    QTest::qFail(qPrintable(QStringLiteral("onverwachte vraag: ") + tekst), __FILE__, __LINE__);
    return Antwoord::Nee;
}

Testbank::Testbank()
{
    QDir().mkpath(Map() + QStringLiteral("/Puzzels"));
    QDir().mkpath(Thuis() + QStringLiteral("/Pictures"));
    qputenv("HOME", Thuis().toLocal8Bit());
    qunsetenv("XDG_CONFIG_HOME");
    Klok::Gebruik(&TestKlok);
    Klok::ProgrammaEindigt(false);
    Berichten::Gebruik(&Script);
}

Testbank::~Testbank()
{
    Klok::Gebruik(nullptr);
    Klok::ProgrammaEindigt(false);
    Berichten::Gebruik(nullptr);
    Toeval::ZonderZaad();
    Screen::MousePointer(Screen::Arrow);
}

QByteArray Testbank::Inhoud(const QString &naam) const
{
    QFile bestand(Map() + QLatin1Char('/') + naam);
    return bestand.open(QIODevice::ReadOnly) ? bestand.readAll() : QByteArray();
}

void Testbank::Schrijf(const QString &naam, const QByteArray &inhoud) const
{
    QFile bestand(Map() + QLatin1Char('/') + naam);
    QVERIFY(bestand.open(QIODevice::WriteOnly));
    QCOMPARE(bestand.write(inhoud), inhoud.size());
}

QStringList Testbank::Bestanden(const QString &onderMap) const
{
    return QDir(Map() + QLatin1Char('/') + onderMap).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

QRect InktVlak(const QImage &beeld, QRect vlak, QRgb achtergrond)
{
    QRect inkt;
    vlak &= beeld.rect();
    for (int y = vlak.top(); y <= vlak.bottom(); ++y)
        for (int x = vlak.left(); x <= vlak.right(); ++x)
            if (beeld.pixel(x, y) != achtergrond)
                inkt |= QRect(x, y, 1, 1);
    return inkt;
}

bool HeeftInkt(const QImage &beeld, QRect vlak, QRgb achtergrond)
{
    return !InktVlak(beeld, vlak, achtergrond).isEmpty();
}

int TestMain(int argc, char *argv[], int (*voer)(int, char **))
{
    QApplication app(argc, argv);
    StelUiterlijkIn();
    return voer(argc, argv);
}
