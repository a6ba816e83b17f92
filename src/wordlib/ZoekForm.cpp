#include "wordlib/ZoekForm.h"

#include "board/Algemeen.h"
#include "board/Kleuren.h"
#include "board/MainForm.h"
#include "board/WoordPaden.h"
#include "platform/Berichten.h"
#include "platform/CodePage.h"
#include "platform/Files.h"
#include "platform/Fout.h"
#include "platform/Getallen.h"
#include "platform/Kleur.h"
#include "platform/Printers.h"
#include "platform/Screen.h"
#include "platform/Teksten.h"
#include "wordlib/DrukLijst.h"

#include <QMenu>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

/// The ways of searching, by the index of their option.
enum Wijze { Letters, Begin, Eind, Trefwoord, Klinkers };

ZoekForm::ZoekForm() : Form(u"ZoekForm"_s, u"Database doorzoeken"_s, 9000, 5100, Kleuren::Paneel, true)
{
    List1 = Maak<ListBox>("List1", u"Gevonden woorden"_s);
    Label5 = MaakLabel("Label5", u"Gevonden woorden (0)"_s);
    Text1 = Maak<LineBox>("Text1", u"Trefwoord"_s);
    Label4 = MaakLabel("Label4", u"Trefwoord (0)"_s);
    Label3 = MaakUitleg("Label3",
                        u"Typ hierboven een willekeurig trefwoord van minimaal 3 tot maximaal 19 letters in, maak dan "
                        "een keuze uit de eerste 4 opties, druk daarna op de button 'Starten' om te zoeken."_s);
    Option1 = MaakOpties({u"Woorden uit bovenstaande letters"_s, u"Woorden die beginnen met..."_s,
                          u"Woorden die eindigen op..."_s, u"Woorden waar het trefwoord in voorkomt"_s,
                          u"Minimaal 3 klinkers achter elkaar"_s});
    Picture1 = Maak<PictureBox>("Picture1", u"Wacht"_s);
    Label1 = MaakLabel("Label1", QString());
    Knop = Maak<QPushButton>("Knop", u"Starten"_s, nullptr, u"Starten"_s);
    ExportKnop = MaakKnopMetTip("ExportKnop", u" Copy woorden t/m 20 letters "_s, u"knop-export"_s);
    Label7 = MaakLabel("Label7", u"Copyeer lijst naar hoofdscherm"_s);
    Image1 = MaakBeeld("Image1", QString(), u"database"_s);
    QMenu *bestand = MaakMenu("Bestand", u"Bestand"_s);
    FilePrint = MaakItem(*bestand, "FilePrint", u"Lijst afdrukken"_s);
    PasOpScherm();
    Schik();

    Kleur(List1, RGB(30, 0, 0), RGB(230, 230, 230));
    List1->Sorted = true;
    Text1->setMaxLength(19);
    for (QRadioButton *optie : Option1) {
        QPalette palet = optie->palette();
        palet.setColor(QPalette::WindowText, RGB(0, 110, 0));
        optie->setPalette(palet);
    }
    Picture1->BackColor = RGB(30, 0, 0);
    Picture1->ZetLetter({.Punten = 20, .Vet = true, .Kleur = RGB(240, 240, 240)});
    Picture1->PrintOp(0, 0, u"Wacht"_s);
    Picture1->hide();
    Label1->SetBackColor(RGB(150, 180, 180));
    Knop->setDefault(true);
    Text1->setFocus();

    bij(Text1, &LineBox::textChanged, &ZoekForm::Text1_Change);
    bij(Knop, &QPushButton::clicked, &ZoekForm::Knop_Click);
    bij(ExportKnop, &ImageButton::clicked, &ZoekForm::ExportKnop_Click);
    bij(FilePrint, &QAction::triggered, &ZoekForm::FilePrint_Click);

    LaadDatabase();
    Main().Label2->hide();
    Screen::MousePointer(Screen::Own);
}

void ZoekForm::Schik()
{
    Zet(List1, 210, 210, 3000, 3660);
    Zet(Label5, 240, 3900);
    Zet(Text1, 3450, 300, 3390, 360);
    Zet(Label4, 6990, 360);
    Zet(Label3, 3510, 750, 3300, 1500);
    for (int i = 0; i < Option1.size(); ++i) {
        Option1[i]->setObjectName(u"Option1(%1)"_s.arg(i));
        Zet(Option1[i], 3600, 1800 + 300 * i, 3450, 300);
    }
    Zet(Picture1, 990, 1770, 1440, 450);
    Zet(Label1, 3450, 3480, 1200, 390);
    Zet(Knop, 3480, 3510, 1140, 330);
    Zet(ExportKnop, 7800, 3810, 810, 330);
    Zet(Label7, 5430, 3870);
    Zet(Image1, 7050, 1950, 1680, 1680);
}

void ZoekForm::LaadDatabase()
{
    Wachten(0, QEventLoop::ExcludeUserInputEvents); // shows the notice of the main window
    PosX = 0;
    const bool gelukt = negeer([this] {
        inhoud_ = Files::Lees(DatabasePad());
        Words = LeesWoorden(inhoud_);
        PosX = static_cast<qint32>(Words.size()) - 1;
        SortStrings(Words, false);
        BuildHashTable(Words, WordHash);
        MaakLetterIndex(Words, PosX, LetterStart);
    });
    if (!gelukt)
        MeldGeenDatabase();
}

// Blanks can't be typed at the ends.
void ZoekForm::Text1_Change()
{
    const QString tekst = Trim(Text1->text());
    if (tekst != Text1->text())
        Text1->setText(tekst);
    Label4->SetCaption(u"Trefwoord (%1)"_s.arg(tekst.size()));
}

void ZoekForm::ToonGevonden()
{
    Label5->SetCaption(u"Gevonden woorden (%1)"_s.arg(List1->ListCount()));
}

void ZoekForm::Knop_Click()
{
    const auto verberg = qScopeGuard([this] { Picture1->hide(); });
    if (Gekozen(Option1) == Klinkers) {
        const Screen::Bezig bezig;
        Picture1->show();
        Wacht(0.2);
        ZoekKlinkers();
        ToonGevonden();
        return;
    }
    if (Gekozen(Option1) != Trefwoord) {
        if (Text1->text().size() < 3) {
            MsgBox(u"Minimaal 3 letters intypen a.u.b."_s);
            Text1->setFocus();
            return;
        }
        Picture1->show();
    }
    List1->Clear();
    Wacht(0.2);
    switch (Gekozen(Option1)) { // another one may have been chosen meanwhile
    case Letters:
        ZoekLetters();
        break;
    case Begin:
        ZoekBegin();
        break;
    case Eind:
        ZoekEind();
        break;
    case Trefwoord:
        ZoekTrefwoord();
        break;
    }
    ToonGevonden();
}

Zoekgebied ZoekForm::Gebied() const
{
    return {Words, PosX};
}

void ZoekForm::Lijst(const std::function<void(const Vondst &)> &zoek)
{
    QStringList gevonden;
    try {
        zoek([&](std::string_view woord) {
            gevonden += Files::NaarTekst({woord.data(), static_cast<qsizetype>(woord.size())});
        });
    } catch (const Fout &) {
        List1->SetItems(gevonden);
        throw;
    }
    List1->SetItems(gevonden);
}

void ZoekForm::MeldAlsLeeg() const
{
    if (List1->ListCount() > 0)
        return;
    Screen::MousePointer(Screen::Own);
    MsgBox(u"Kan helaas geen woorden vinden!"_s);
}

void ZoekForm::ZoekLetters()
{
    const Screen::Bezig bezig;
    const QByteArray letters = Files::NaarBytes(KleineLetters(Text1->text()));
    const qsizetype N = letters.size();
    if (N == 0)
        return;
    if (N == 1) {
        MsgBox(u"Typ meer dan 1 letter."_s);
        return;
    }
    if (N > 19) {
        MsgBox(u"Te veel letters, maximaal 19 letters."_s);
        return;
    }
    Lijst([&](const Vondst &vondst) { unscramble(Gebied(), LetterStart, letters.toStdString(), N, 0, vondst); });
    MeldAlsLeeg();
}

// The key counts as it was typed: a capital finds nothing.
void ZoekForm::ZoekBegin()
{
    const Screen::Bezig bezig;
    const QByteArray key = Files::NaarBytes(Text1->text());
    Lijst([&](const Vondst &vondst) { ::ZoekBegin(Gebied(), key.toStdString(), vondst); });
    MeldAlsLeeg();
}

void ZoekForm::ZoekEind()
{
    const Screen::Bezig bezig;
    const QByteArray key = Files::NaarBytes(KleineLetters(Text1->text()));
    Lijst([&](const Vondst &vondst) { ::ZoekEind(Gebied(), key.toStdString(), vondst); });
    MeldAlsLeeg();
}

// This one reads the file again, and never says that nothing was found.
void ZoekForm::ZoekTrefwoord()
{
    const bool gelukt = negeer([this] {
        const Screen::Bezig bezig;
        const QByteArray key = Files::NaarBytes(KleineLetters(Text1->text()));
        const QByteArray database = Files::Lees(DatabasePad());
        Lijst([&](const Vondst &vondst) { ::ZoekTrefwoord(database, key, vondst); });
    });
    if (!gelukt)
        MeldGeenDatabase();
}

void ZoekForm::ZoekKlinkers()
{
    Wacht(0);
    List1->Clear();
    Lijst([&](const Vondst &vondst) { ::ZoekKlinkers(Gebied(), vondst); });
}

void ZoekForm::ZoekLengte(qint16 Lengte)
{
    const Screen::Bezig bezig;
    Lijst([&](const Vondst &vondst) { ::ZoekLengte(Gebied(), Lengte, vondst); });
}

void ZoekForm::ExportKnop_Click()
{
    ExportKnop->Druk();
    const Screen::Bezig bezig;
    QStringList woorden = List1->Items();
    woorden.removeIf([](const QString &woord) { return woord.size() >= 20; }); // one less than the tip says, wanted so
    Main().GeefWoorden(woorden);
    Unload();
}

// The number of pages is a rough one: four columns of 53 rows are 212 words.
void ZoekForm::FilePrint_Click()
{
    constexpr double WoordenPerPagina = 240;
    const qint64 paginas = Getallen::RondEven(List1->ListCount() / WoordenPerPagina) + 1;
    if (JaNee(u"Het aantal pagina's is.. %1, wil je verder gaan met afdrukken?"_s.arg(paginas), u"Afdrukken"_s))
        DrukLijst();
}

// Whatever the printer makes of it, nothing is said.
void ZoekForm::DrukLijst()
{
    negeer([this] { ::DrukLijst(Printers::Huidig(), windowTitle(), List1->Items()); });
}
