#include "documents/SaveForm.h"

#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "documents/PuzzelBestand.h"
#include "platform/Berichten.h"
#include "platform/Files.h"
#include "platform/Getallen.h"
#include "platform/Kleur.h"
#include "platform/Screen.h"

#include <QStandardPaths>

static QString PuzzelPad(const QString &bestand)
{
    return Files::Pad(AppPath, {QStringLiteral("Puzzels"), bestand});
}

SaveForm::SaveForm()
    : Form(QStringLiteral("SaveForm"), QStringLiteral("Puzzel opslaan"), 4800, 1560, qRgb(170, 240, 240))
{
    Text1 = Maak<LineBox>("Text1", QStringLiteral("Naam van de puzzel"), nullptr);
    Bar = Maak<PictureBox>("Bar", QStringLiteral("Voortgang"), nullptr);
    Label1 = MaakLabel("Label1", QStringLiteral("0%"));
    CancelKnop =
        Maak<ImageButton>("CancelKnop", QStringLiteral("Annuleren"), nullptr, QStringLiteral("knop-annuleren-laag"));
    SaveKnop = Maak<ImageButton>("SaveKnop", QStringLiteral("Opslaan"), nullptr, QStringLiteral("knop-opslaan"));

    Zet(Text1, 120, 150, 4470, 330);
    Zet(Bar, 120, 150, 4500, 330);
    Zet(Label1, 150, 540);
    Zet(CancelKnop, 2700, 600, 960, 330);
    Zet(SaveKnop, 3720, 600, 840, 330);

    Kleur(Text1, RGB(40, 0, 0), RGB(220, 220, 220));
    Bar->ScaleMode = ScaleModes::Pixels;
    Bar->hide();
    const QString naam = Main().Bestandsnaam->text();
    Text1->setText(naam == QLatin1String("Puzzelnaam") ? QString() : naam);
    Text1->setFocus();

    bij(CancelKnop, &ImageButton::clicked, [this] { CancelKnop_Click(); });
    bij(SaveKnop, &ImageButton::clicked, [this] { SaveKnop_Click(); });
}

void SaveForm::CancelKnop_Click()
{
    CancelKnop->Druk();
    Unload();
}

// Whatever came of the save, the puzzle counts as saved and the dialog closes: also when the user refused to overwrite.
void SaveForm::SaveKnop_Click()
{
    SaveKnop->Druk();
    if (Text1->text().trimmed().isEmpty()) {
        MsgBox(QStringLiteral("Naam Puzzel ontbreekt!"), Knoppen::Ok, Icoon::Kritiek, QStringLiteral("Error"));
        Text1->setFocus();
        return;
    }
    QString naam = Text1->text(); // with its outer blanks
    OpslaanPuzzel(naam);
    PuzzelGewijzigd = false;
    Unload();
}

void SaveForm::OpslaanPuzzel(QString &Naam)
{
    GebruikersNaam = HaalGebruiker();
    bool bestaat = false;
    negeer([&] { bestaat = BestandBestaat(PuzzelPad(Naam + QStringLiteral(".lst"))); });
    if (bestaat && MsgBox(QStringLiteral("Naam puzzel bestaat al, overschrijven?"), Knoppen::JaNee, Icoon::Geen,
                          QStringLiteral(" Exist")) != Antwoord::Ja)
        return;
    Screen::MousePointer(Screen::Hourglass);
    Text1->hide();
    Bar->show();
    negeer([&] { Files::SavePicture(Main().Pic->Image(), PuzzelPad(Naam + QStringLiteral("1.bmp"))); });
    negeer([&] { Files::SavePicture(Main().PicGroot->Image(), PuzzelPad(Naam + QStringLiteral("2.bmp"))); });
    SaveLijstPuzzel(Naam);
    if (!MaakJpeg(Naam))
        return; // the hourglass stays on
    ToonVoortgang();
}

void SaveForm::SaveLijstPuzzel(QString &Naam)
{
    Naam = EersteHoofdletter(Naam);
    QList<QStringList> rijen;
    for (int i = 0; i < Main().ListView1->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *rij = Main().ListView1->topLevelItem(i);
        rijen += QStringList{rij->text(0), rij->text(1), rij->text(2), rij->text(3)};
    }
    negeer([&] {
        const QString bestand = Naam + QStringLiteral(".lst");
        const QString pad = PuzzelPad(bestand);
        Files::Schrijf(pad, SchrijfPuzzelLijst(PuzzelType, BoardWidth, BoardHeight, rijen));
        Files::Hernoem(pad, bestand); // an older file of the name may be spelled otherwise
    });
}

/// @return false when there was no bitmap to make it of
bool SaveForm::MaakJpeg(const QString &naam)
{
    const QString tussenNaam = QStringLiteral("mydummy.bmp");
    const QString tussen = Files::Pad(AppPath, {tussenNaam});
    negeer([&] { Files::SavePicture(Main().PicGroot->Image(), tussen); });
    if (Files::Dir(tussen) != tussenNaam) {
        MsgBox(QStringLiteral("Fout bij opslaan als JPG!"));
        return false;
    }
    const QString map = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    negeer([&] { Files::BmpToJpeg(tussen, Files::Pad(map, {naam + QStringLiteral(".jpg")}), 100); });
    negeer([&] { Files::Kill(tussen); });
    return true;
}

// It comes when all is written, and reports no work: some three seconds, whatever the puzzle. Clicks and keys wait, so
// that nothing is changed meanwhile that would then count as saved.
void SaveForm::ToonVoortgang()
{
    for (int i = 0; i <= 300; i += 2) {
        Bar->BoxFull(0, 0, i, 20, RGB(0, 240, 0));
        Label1->SetCaption(QStringLiteral("%1%").arg(Getallen::RondEven(i / 3.0)));
        Wachten(0.02, QEventLoop::ExcludeUserInputEvents);
    }
    Screen::MousePointer(Screen::Arrow);
    Label1->SetCaption(QStringLiteral("100%"));
    Wachten(1, QEventLoop::ExcludeUserInputEvents);
}
