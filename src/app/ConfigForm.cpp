#include "app/ConfigForm.h"

#include "board/Algemeen.h"
#include "board/Kleuren.h"
#include "platform/Kleur.h"

using namespace Qt::StringLiterals;

static constexpr std::array VakjesKleuren{RGB(230, 250, 190), RGB(190, 230, 230), RGB(250, 150, 150)}; // of KleurVakjes

ConfigForm::ConfigForm() : Form(u"ConfigForm"_s, u"Instellingen"_s, 6900, 4200, Kleuren::Paneel)
{
    Label2 = MaakLabel("Label2", QString());
    MaakKleurBalken();
    Label3 = MaakLabel("Label3", QString());
    Label4 = MaakLabel("Label4", u"Kleur vakjes orgineel puzzelveld"_s);
    Text1 = Maak<LineBox>("Text1", u"Tekst op alle afdrukpagina's"_s);
    Label8 = MaakLabel("Label8", u"Tekst op alle afdrukpagina's"_s);
    Label1 = MaakLabel("Label1", QString());
    HScroll2 = MaakSchuif("HScroll2", u"Kleur vakjes zichtbaar puzzelveld"_s, 1, VakjesKleuren.size());
    Label6 = MaakLabel("Label6", u"Kleur vakjes zichtbaar puzzelveld"_s);
    Label7 = MaakLabel("Label7", QString());
    Image1 = MaakBeeld("Image1", QString(), u"instellingen"_s);
    ResetKnop = MaakKnop("ResetKnop", u"Reset alle gemaakte wijzigingen"_s, u"knop-reset"_s);
    Label5 = MaakLabel("Label5", u"Reset alle gemaakte wijzigingen"_s);
    CancelKnop = MaakCancelKnop();
    OkKnop = MaakKnopMetTip("OkKnop", u" Wijzigingen Opslaan "_s, u"knop-ok"_s);

    Zet(Label2, 210, 240, 1800, 960);
    Zet(Label3, 2070, 240, 450, 960);
    Zet(Label4, 210, 1260);
    Zet(Text1, 3600, 240, 3000, 300);
    Zet(Label8, 3600, 600);
    Zet(Label1, 210, 1800, 1800, 360);
    Zet(HScroll2, 240, 1830, 1740, 300);
    Zet(Label6, 2070, 1860);
    Zet(Label7, 210, 2220, 1800, 330);
    Zet(Image1, 5100, 1950, 1080, 1080);
    Zet(ResetKnop, 240, 3210);
    Zet(Label5, 1290, 3285);
    Zet(CancelKnop, 4560, 3210);
    Zet(OkKnop, 5580, 3210);

    for (Label *plaat : {Label1, Label2})
        plaat->SetBackColor(RGB(150, 180, 180));
    Kleur(Text1, RGB(0, 0, 30), RGB(230, 230, 230));
    HScroll2->setTracking(false);
    ToonKleuren();
    Text1->setText(PaginaTekst);

    bij(HScroll2, &QScrollBar::valueChanged, &ConfigForm::HScroll2_Change);
    bij(ResetKnop, &ImageButton::clicked, &ConfigForm::ResetKnop_Click);
    bij(CancelKnop, &ImageButton::clicked, &ConfigForm::CancelKnop_Click);
    bij(OkKnop, &ImageButton::clicked, &ConfigForm::OkKnop_Click);
}

void ConfigForm::MaakKleurBalken()
{
    const QStringList namen{u"Rood"_s, u"Groen"_s, u"Blauw"_s};
    for (int i = 0; i < namen.size(); ++i) {
        QScrollBar *schuif = MaakSchuif("", namen[i], 0, 255);
        schuif->setObjectName(u"HScroll1(%1)"_s.arg(i));
        Zet(schuif, 240, 270 + i * 300, 1740, 300);
        Label *waarde = MaakLabel("", QString());
        waarde->setObjectName(u"ColorLabel(%1)"_s.arg(i));
        Zet(waarde, 2640, 315 + i * 300);
        HScroll1.at(static_cast<size_t>(i)) = schuif;
        ColorLabel.at(static_cast<size_t>(i)) = waarde;
        bij(schuif, &QScrollBar::valueChanged, &ConfigForm::HScroll1_Change);
    }
}

/// Shows the colours as the globals have them; a part that no bar reaches shows as the nearest one. A choice that there
/// isn't leaves its bar and its sample as they stand.
void ConfigForm::ToonKleuren()
{
    const std::array kleuren{OrgineelRood, OrgineelGroen, OrgineelBlauw};
    for (size_t i = 0; i < kleuren.size(); ++i)
        HScroll1[i]->setValue(kleuren[i]);
    HScroll1_Change();
    if (KleurVakjes < HScroll2->minimum() || KleurVakjes > HScroll2->maximum())
        return;
    HScroll2->setValue(KleurVakjes);
    HScroll2_Change();
}

void ConfigForm::HScroll1_Change()
{
    for (size_t i = 0; i < HScroll1.size(); ++i)
        ColorLabel[i]->SetCaption(QString::number(HScroll1[i]->value()));
    Label3->SetBackColor(RGB(HScroll1[0]->value(), HScroll1[1]->value(), HScroll1[2]->value()));
}

void ConfigForm::HScroll2_Change()
{
    const int keuze = HScroll2->value();
    Label7->SetBackColor(VakjesKleuren.at(static_cast<size_t>(keuze) - 1));
    Label7->SetCaption(u' ' + QString::number(keuze));
}

// The colours change at once, the text only at Ok: after a cancel they are the defaults, and it is what it was. Wanted
// so.
void ConfigForm::ResetKnop_Click()
{
    ResetKnop->Druk();
    BeginKleuren();
    ToonKleuren();
    Text1->setText(BeginPaginaTekst());
}

void ConfigForm::CancelKnop_Click()
{
    Sluit(CancelKnop, 0.2);
}

void ConfigForm::OkKnop_Click()
{
    OkKnop->Druk();
    Wacht(0.2);
    OrgineelRood = static_cast<qint16>(HScroll1[0]->value());
    OrgineelGroen = static_cast<qint16>(HScroll1[1]->value());
    OrgineelBlauw = static_cast<qint16>(HScroll1[2]->value());
    KleurVakjes = static_cast<quint8>(HScroll2->value());
    PaginaTekst = Text1->text();
    Unload();
}
