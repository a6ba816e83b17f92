#include "support/Testbank.h"

#include "platform/Screen.h"
#include "platform/Toeval.h"
#include "platform/Uiterlijk.h"
#include "support/InhoudVan.h"

#include <QApplication>
#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

Antwoord BerichtenScript::Vraag(const QString &tekst, Knoppen knoppen, Icoon icoon, const QString &titel)
{
    Gezien += Bericht{tekst, titel, knoppen, icoon};
    if (!Antwoorden.isEmpty() && knoppen == Knoppen::JaNee)
        return Antwoorden.takeFirst();
    if (knoppen == Knoppen::Ok)
        return Antwoord::Ok;
    QTest::qFail(qPrintable(u"onverwachte vraag: "_s + tekst), __FILE__, __LINE__);
    return Antwoord::Nee;
}

QString BerichtenScript::VraagTekst(const QString &vraag, const QString &titel)
{
    Gezien += Bericht{vraag, titel, Knoppen::Ok, Icoon::Geen};
    if (!Teksten.isEmpty())
        return Teksten.takeFirst();
    QTest::qFail(qPrintable(u"onverwachte vraag: "_s + vraag), __FILE__, __LINE__);
    return {};
}

QString BerichtenScript::VraagBestand(const QString &titel, const QString &voorstel, const QString &soort)
{
    Voorstellen += voorstel;
    BestandVragen += titel + u": "_s + soort;
    BijBestand();
    if (!Bestanden.isEmpty())
        return Bestanden.takeFirst();
    QTest::qFail(qPrintable(u"onverwachte vraag naar een bestand: "_s + titel), __FILE__, __LINE__);
    return {};
}

Testbank::Testbank()
{
    QDir().mkpath(Map() + u"/Puzzels"_s);
    QDir().mkpath(Thuis() + u"/Pictures"_s);
    qputenv("HOME", Thuis().toLocal8Bit());
    qunsetenv("XDG_CONFIG_HOME");
    Klok::Gebruik(&TestKlok);
    Klok::ProgrammaEindigt(false);
    Berichten::Gebruik(&Script);
}

Testbank::~Testbank()
{
    if (Zandloper())
        QTest::qFail("de zandloper bleef staan", __FILE__, __LINE__);
    Klok::Gebruik(nullptr);
    Klok::ProgrammaEindigt(false);
    Berichten::Gebruik(nullptr);
    Toeval::ZonderZaad();
    Screen::MousePointer(Screen::Arrow);
}

QString Testbank::Map() const
{
    return map_.path() + u"/app"_s;
}

QString Testbank::Thuis() const
{
    return map_.path() + u"/thuis"_s;
}

QByteArray Testbank::Inhoud(const QString &naam) const
{
    return InhoudVan(Map() + u'/' + naam);
}

void Testbank::Schrijf(const QString &naam, const QByteArray &inhoud) const
{
    QFile bestand(Map() + u'/' + naam);
    QVERIFY(bestand.open(QIODevice::WriteOnly));
    QCOMPARE(bestand.write(inhoud), inhoud.size());
}

QStringList Testbank::Bestanden(const QString &onderMap) const
{
    return QDir(Map() + u'/' + onderMap).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

bool Zandloper()
{
    const QCursor *pointer = QGuiApplication::overrideCursor();
    return pointer && pointer->shape() == Qt::WaitCursor;
}

QString NamenIn(const QObject &venster)
{
    QStringList namen;
    for (const QObject *kind : venster.findChildren<QObject *>())
        if (!kind->objectName().isEmpty() && !kind->objectName().startsWith("qt_"_L1))
            namen += kind->objectName();
    return namen.join(u", "_s);
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

QImage Getoond(QWidget &widget)
{
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

int TestMain(int argc, char *argv[], int (*voer)(int, char **))
{
    QApplication app(argc, argv);
    StelUiterlijkIn();
    return voer(argc, argv);
}
