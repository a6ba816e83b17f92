#include "documents/HtmlMod.h"

#include "Adressen.h"

#include "board/Algemeen.h"
#include "platform/CodePage.h"
#include "platform/Fout.h"
#include "platform/Getallen.h"
#include "platform/Teksten.h"

using namespace Qt::StringLiterals;

static QString AlsRegels(const QStringList &regels)
{
    const QString einde = u"\r\n"_s;
    return regels.join(einde) + einde;
}

static QString Meta(const QString &naam, const QString &inhoud)
{
    return u"<meta name=\""_s + naam + u"\" content=\""_s + inhoud + u"\"></meta>"_s;
}

QString HtmlStijl()
{
    return AlsRegels({
        u""_s,
        u"<style type=\"text/css\">"_s,
        u"<!--"_s,
        u"  SPAN.kop {"_s,
        u"       color:#000000;"_s,
        u"       font-size:16px;"_s,
        u"       font-family: Arial, Helvetia;"_s,
        u"       font-weight: bold;"_s,
        u"  }"_s,
        u"  SPAN.tekst { "_s,
        u"       color:#666666;"_s,
        u"       font-size:12px;"_s,
        u"       font-family: Arial, Helvetia;"_s,
        u"  }"_s,
        u"-->"_s,
        u"</style>"_s,
    });
}

static QString Kop()
{
    return AlsRegels({
               u"<html>"_s,
               u"<head>"_s,
               u"<title>Rasteratelier</title>"_s,
               Meta(u"author"_s, u"Tessel Hoeksma, Rasteratelier"_s),
               Meta(u"generator"_s, u"Rasteratelier "_s + Versie),
               Meta(u"description"_s, Adressen::Product),
               Meta(u"language"_s, u"Dutch,Holland,Netherlands,Doetinchem,Gelderland"_s),
               u""_s,
               u"<SCRIPT LANGUAGE=\"JavaScript\">"_s,
               u"<!--"_s,
               u"  self.moveTo(0,0)"_s,
               u"  self.resizeTo(screen.availWidth,screen.availHeight)"_s,
               u"//-->"_s,
               u"</SCRIPT>"_s,
           }) +
           HtmlStijl() + AlsRegels({u"</head>"_s});
}

/// The picture, in the size that suits its kind.
static QString BeeldRegel(const QString &naam, quint8 soort)
{
    QString maat;
    if (soort == Zweeds)
        maat = u" width=\"75%\" height=\"75%\""_s;
    else if (soort == Kruiswoord)
        maat = u" width=\"542\" height=\"722\""_s;
    return u"      <img src=\"Images\\"_s + naam + u".bmp\""_s + maat + u"> "_s;
}

/// What is told of a row. @param nummer of the row before; comes back as that of this row
static QString LijstTekst(quint8 soort, const Rij &rij, quint8 &nummer)
{
    if (soort == Woordzoeker)
        return Hoofdletters(rij.Oplossing);
    negeer([&] { nummer = Getallen::ValByte(soort == Kruiswoord ? rij.Nr : rij.Vaknummer); });
    const QString begin = QString::number(nummer);
    if (soort == Kruiswoord)
        return begin + u" - "_s + rij.Vaknummer.right(1) + u". "_s + rij.Omschrijving;
    return begin + u".  "_s + rij.Omschrijving;
}

QString HtmlLijst(quint8 soort, const QList<Rij> &rijen)
{
    if (soort != Woordzoeker && soort != Kruiswoord && soort != Filippine)
        return {};
    QString lijst;
    quint8 nummer = 0;
    for (const Rij &rij : rijen)
        lijst += AlsRegels({u"      <SPAN class=tekst><b>"_s + LijstTekst(soort, rij, nummer) + u"</b></SPAN><br>"_s});
    return lijst;
}

QByteArray HtmlPagina(const QString &naam, quint8 soort, const QList<Rij> &rijen)
{
    const QString boven = AlsRegels({
        u"<body bgcolor=\"#FFFFEE\" topmargin=\"10\" leftmargin=\"10\">"_s,
        u"<table border=\"0\" cellpadding=\"10\" cellspacing=\"0\">"_s,
        u"  <tr>"_s,
        u"    <td>"_s,
        u"      <SPAN class=kop>Puzzelnaam : "_s + naam + u"</SPAN>"_s,
        u"    </td>"_s,
        u"  </tr>"_s,
        u"  <tr>"_s,
        u"    <td valign=\"top\">"_s,
        BeeldRegel(naam, soort),
        u"    </td>"_s,
        u"    <td width=\"5\"></td>"_s,
        u"    <td valign=\"top\">"_s,
    });
    const QString onder = AlsRegels({
        u"    </td>"_s,
        u"  </tr>"_s,
        u"</table>"_s,
        u""_s,
        u"</body>"_s,
        u"</html>"_s,
    });
    return Files::NaarBytes(Kop() + boven + HtmlLijst(soort, rijen) + onder);
}
