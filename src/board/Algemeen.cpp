#include "board/Algemeen.h"

#include "Adressen.h"

#include "platform/Berichten.h"
#include "platform/Files.h"
#include "platform/Gebruiker.h"
#include "platform/Klok.h"
#include "platform/Teksten.h"

#include <QDesktopServices>
#include <QUrl>

using namespace Qt::StringLiterals;

quint8 PuzzelType;
qint32 BoardWidth, BoardHeight;
qint32 CurCol, CurRow, CurCell;
QString PuzzelNaam;
bool PuzzelGewijzigd;
quint8 PijlSoort;
quint8 KleurVakjes;
qint16 OrgineelRood, OrgineelGroen, OrgineelBlauw;
QString PaginaTekst;
QString GebruikersNaam;
qint32 PosX, PosY;
QString AppPath;
std::array<bool, 305> VakZwart;

void BeginWaarden()
{
    PijlSoort = 1;
    BoardWidth = 16;
    BoardHeight = 19;
    BeginKleuren();
    PuzzelType = Zweeds;
    PaginaTekst = BeginPaginaTekst();
    CurCol = CurRow = CurCell = 0;
    PosX = PosY = 0;
    PuzzelNaam.clear();
    PuzzelGewijzigd = false;
    VakZwart.fill(false);
}

void BeginKleuren()
{
    OrgineelRood = 230;
    OrgineelGroen = 250;
    OrgineelBlauw = 190;
    KleurVakjes = 1;
}

QString BeginPaginaTekst()
{
    return Adressen::Uitgever;
}

int VoerUit(const QString &doel)
{
    return QDesktopServices::openUrl(QUrl::fromUserInput(doel)) ? 0 : -1;
}

void OpenDocument(const QString &doel)
{
    VoerUit(doel);
}

void Wachten(double seconden, QEventLoop::ProcessEventsFlags welke)
{
    Klok::Huidig().Wacht(seconden, welke);
}

QString HaalGebruiker()
{
    return UserName();
}

bool BestandBestaat(const QString &pad)
{
    return Files::FileExists(pad);
}

void MeldGeenDatabase()
{
    MsgBox(u"Kan database niet vinden..."_s, Knoppen::Ok, Icoon::Kritiek, u"Error"_s);
}

void ToonSpecialeTekens()
{
    MsgBox(u"Bijzondere combinaties\r\n"
           "-------------------------\r\n"
           "á  = Ctrl-Alt - a / 160\r\n"
           "é  = Ctrl-Alt - e / 130\r\n"
           "ó  = Ctrl-Alt - o / 162\r\n"
           "ä  = Ctrl-Alt - q / 132\r\n"
           "ü  = Ctrl-Alt - y / 129\r\n"
           "ö  = Ctrl-Alt - p / 148\r\n"
           "ú  = Ctrl-Alt - u / 163\r\n"
           "µ  = Ctrl-Alt - m / 230\r\n"
           "© = Ctrl-Alt - c\r\n"
           " ²  = Ctrl-Alt - 2\r\n"
           " ³  = Ctrl-Alt - 3\r\n"
           "€   = Ctrl-Alt - 5\r\n"
           "¼ = Ctrl-Alt - 6 / 172\r\n"
           "½ = Ctrl-Alt - 7 / 171\r\n"
           "¾ = Ctrl-Alt - 8"_s);
}

QString EersteHoofdletter(const QString &tekst)
{
    return Hoofdletters(tekst.left(1)) + KleineLetters(tekst.mid(1));
}

int LetterVerschuiving(QChar letter)
{
    if (letter == u'W')
        return -45;
    if (letter == u'I')
        return 60;
    return 0;
}
