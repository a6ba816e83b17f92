#include "wordlib/FormMain.h"

#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "board/WoordPaden.h"
#include "platform/Berichten.h"
#include "platform/CodePage.h"
#include "platform/Files.h"
#include "platform/Kleur.h"
#include "platform/Screen.h"
#include "platform/Teksten.h"
#include "wordlib/Wisseling.h"

#include <QScopeGuard>

using namespace Qt::StringLiterals;

FormMain::FormMain() : Form(u"FormMain"_s, u"Woorden Wisseling"_s, 6300, 3510, RGB(230, 250, 200))
{
    Text1 = Maak<LineBox>("Text1", u"Trefwoord"_s);
    Label1 = MaakLabel("Label1", u"Trefwoord (b.v. Streek)"_s);
    List1 = Maak<ListBox>("List1", u"Gevonden woorden"_s);
    Label2 = MaakUitleg("Label2",
                        u"Typ een woord in van minimaal 2 tot maximaal 9 letters. Druk daarna op de button 'Ok' om "
                        "woorden te zoeken bestaande uit alle letters van het trefwoord in willekeurige volgorde."_s);
    Image1 = MaakBeeld("Image1", QString(), u"wisseling"_s);
    OkKnop = MaakKnopMetTip("OkKnop", u" Start zoeken "_s, u"knop-ok"_s);
    ExportKnop = MaakKnopMetTip("ExportKnop", u" Copyeer de gevonden woorden "_s, u"knop-export"_s);

    Zet(Text1, 150, 180, 2400, 360);
    Zet(Label1, 2700, 240);
    Zet(List1, 150, 690, 2400, 2220);
    Zet(Label2, 2700, 1200, 2100, 1500);
    Zet(Image1, 4800, 300, 1260, 1680);
    Zet(OkKnop, 2700, 705);
    Zet(ExportKnop, 5160, 2550);

    Kleur(Text1, RGB(40, 30, 0), RGB(230, 230, 230));
    Kleur(List1, RGB(40, 30, 0), RGB(230, 230, 230));
    Text1->setMaxLength(9);
    List1->Sorted = true;

    connect(Text1, &LineBox::returnPressed, OkKnop, &ImageButton::click);
    bij(OkKnop, &ImageButton::clicked, &FormMain::OkKnop_Click);
    bij(ExportKnop, &ImageButton::clicked, &FormMain::ExportKnop_Click);
}

void FormMain::OkKnop_Click()
{
    OkKnop->Druk();
    const auto lengte = Text1->text().size();
    if (lengte > 9 || lengte < 2) {
        MsgBox(u"Aleen woorden van 2 t/m 9 letters!"_s, Knoppen::Ok, Icoon::Waarschuwing, u"Error"_s);
        return;
    }
    const Screen::Bezig bezig;
    Wacht(0);
    List1->Clear();
    List1->hide();
    const auto toon = qScopeGuard([this] { List1->show(); });
    const QByteArray key = Files::NaarBytes(KleineLetters(Text1->text()));
    QStringList woorden;
    ZoekWisselingen(Files::Lees(DatabasePad()), key,
                    [&](QByteArrayView woord) { woorden += EersteHoofdletter(Files::NaarTekst(woord)); });
    List1->SetItems(woorden);
}

void FormMain::ExportKnop_Click()
{
    ExportKnop->Druk();
    Main().GeefWoorden(List1->Items());
    Unload();
}
