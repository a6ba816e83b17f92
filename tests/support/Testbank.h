#pragma once

#include "platform/Berichten.h"
#include "platform/Fout.h"
#include "platform/Klok.h"

#include <QColor>
#include <QImage>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <functional>

/// A message as it was shown.
struct Bericht
{
    QString Tekst, Titel;
    Knoppen Soort;
    Icoon Plaatje;
};

/// Messages that a test answers beforehand and reads back afterwards. A question without a scripted answer fails the
/// test and is answered No.
class BerichtenScript : public Berichten
{
public:
    Antwoord Vraag(const QString &tekst, Knoppen knoppen, Icoon icoon, const QString &titel) override;
    QString VraagBestand(const QString &titel, const QString &voorstel, const QString &soort) override;

    QString VraagTekst(const QString &vraag, const QString &titel) override;

    QList<Antwoord> Antwoorden;               ///< for the questions to come, first one first
    QStringList Teksten;                      ///< for the texts that are asked for, first one first
    QStringList Bestanden;                    ///< for the files that are asked for, an empty one for none
    QStringList Voorstellen;                  ///< the paths that were proposed
    QStringList BestandVragen;                ///< how they were asked for: "title: kind of file"
    std::function<void()> BijBestand = [] {}; ///< run when a file is asked for; it may raise
    QList<Bericht> Gezien;
};

/// What every test runs on: a fresh folder of the program (with a folder Puzzels) and a fresh home with a folder
/// Pictures, a clock that doesn't wait, scripted messages. Made anew for each test function. A test that leaves the
/// hourglass behind fails.
class Testbank
{
public:
    Testbank();
    ~Testbank();

    QString Map() const;                                               ///< for AppPath
    QString Thuis() const;                                             ///< the user's home
    QByteArray Inhoud(const QString &naam) const;                      ///< of a file below Map
    void Schrijf(const QString &naam, const QByteArray &inhoud) const; ///< a file below Map
    QStringList Bestanden(const QString &onderMap) const;              ///< names of the files there, sorted

    DirecteKlok TestKlok;
    BerichtenScript Script;

private:
    QTemporaryDir map_;
};

/// A row of a test's table: its name, and a value for each column.
template <class... Waarden> void Geval(const QByteArray &naam, const Waarden &...waarden)
{
    (void)(QTest::newRow(naam.constData()) << ... << waarden);
}

/// Whether the pointer is the hourglass.
bool Zandloper();

/// Whether something other than the colour stands in a rectangle of the picture, in pixels.
bool HeeftInkt(const QImage &beeld, QRect vlak, QRgb achtergrond = qRgb(255, 255, 255));
/// The smallest rectangle round all pixels within `vlak` that are not of the colour; empty when there are none.
QRect InktVlak(const QImage &beeld, QRect vlak, QRgb achtergrond = qRgb(255, 255, 255));

/// What is seen of a widget and what lies over it.
QImage Getoond(QWidget &widget);

/// The names of all that is below a window.
QString NamenIn(const QObject &venster);

/// The control of that name below a window; when there is none the test ends with a list of what is there.
template <class Control> Control *Vind(const QObject &venster, const QString &naam)
{
    if (auto *control = venster.findChild<Control *>(naam))
        return control;
    qFatal("%s heeft geen %s, wel: %s", qPrintable(venster.objectName()), qPrintable(naam),
           qPrintable(NamenIn(venster)));
    return nullptr;
}

/// Runs a statement and gives the number of the failure that it raised; 0 when it raised none.
template <class Opdracht> int FoutVan(Opdracht &&opdracht)
{
    try {
        opdracht();
    } catch (const Fout &fout) {
        return fout.nummer();
    }
    return 0;
}

/// What the failure of a command says; empty when there is none.
template <class Opdracht> QString TekstVanFout(Opdracht &&opdracht)
{
    try {
        opdracht();
    } catch (const Fout &fout) {
        return fout.tekst();
    }
    return {};
}

/// The main function of a test program with windows, under the program's own style.
int TestMain(int argc, char *argv[], int (*voer)(int, char **));

#define RASTER_TEST(Klasse)                                                                                            \
    int main(int argc, char *argv[])                                                                                   \
    {                                                                                                                  \
        return TestMain(argc, argv, [](int c, char **v) {                                                              \
            Klasse test;                                                                                               \
            return QTest::qExec(&test, c, v);                                                                          \
        });                                                                                                            \
    }
