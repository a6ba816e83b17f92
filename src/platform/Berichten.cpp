#include "platform/Berichten.h"

#include "platform/BeginVan.h"
#include "platform/Uiterlijk.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QHeaderView>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeView>

using namespace Qt::StringLiterals;

static Berichten *vervanger = nullptr;

Berichten::~Berichten() = default;

Berichten &Berichten::Huidig()
{
    static Berichten echte;
    return vervanger ? *vervanger : echte;
}

void Berichten::Gebruik(Berichten *berichten)
{
    vervanger = berichten;
}

Antwoord Berichten::Vraag(const QString &tekst, Knoppen knoppen, Icoon icoon, const QString &titel)
{
    QMessageBox box(Eigenaar());
    box.setWindowTitle(titel);
    AlsDialoog(box);
    box.setTextFormat(Qt::PlainText);
    box.setText(tekst);
    // Wide enough for its title.
    if (auto *opmaak = qobject_cast<QGridLayout *>(box.layout()))
        opmaak->addItem(new QSpacerItem(280, 0), opmaak->rowCount(), 0, 1, opmaak->columnCount());
    if (icoon == Icoon::Kritiek)
        box.setIcon(QMessageBox::Critical);
    else if (icoon == Icoon::Waarschuwing)
        box.setIcon(QMessageBox::Warning);
    else if (icoon == Icoon::Informatie)
        box.setIcon(QMessageBox::Information);
    else if (knoppen == Knoppen::JaNee)
        box.setIcon(QMessageBox::Question);
    if (knoppen == Knoppen::Ok) {
        box.addButton(u"OK"_s, QMessageBox::AcceptRole);
        box.exec();
        return Antwoord::Ok;
    }
    QPushButton *ja = box.addButton(u"&Ja"_s, QMessageBox::YesRole);
    box.addButton(u"&Nee"_s, QMessageBox::NoRole); // the one that closing the box stands for
    box.setDefaultButton(ja);
    box.exec();
    return box.clickedButton() == ja ? Antwoord::Ja : Antwoord::Nee;
}

QString Berichten::VraagTekst(const QString &vraag, const QString &titel)
{
    QInputDialog box(Eigenaar());
    box.setWindowTitle(titel);
    AlsDialoog(box);
    box.setLabelText(vraag);
    box.setOkButtonText(u"OK"_s);
    box.setCancelButtonText(u"Annuleren"_s);
    for (QPushButton *knop : box.findChildren<QPushButton *>())
        knop->setIcon(QIcon()); // as in the other boxes
    box.findChild<QLineEdit *>()->setMinimumWidth(330);
    box.layout()->setSizeConstraint(QLayout::SetFixedSize);
    return box.exec() == QDialog::Accepted ? box.textValue() : QString();
}

static QString Titel(const QString &titel)
{
    return titel.isEmpty() ? u"Rasteratelier"_s : titel;
}

QString Berichten::VraagBestand(const QString &titel, const QString &voorstel, const QString &soort)
{
    const QFileInfo bestand(voorstel);
    QFileDialog dialoog(Eigenaar(), titel, bestand.path(), soort);
    dialoog.setAcceptMode(QFileDialog::AcceptSave);
    dialoog.selectFile(bestand.fileName());
    if (const auto *lijst = dialoog.findChild<QTreeView *>()) { // not in the system's own dialog
        lijst->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        lijst->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    }
    return dialoog.exec() == QDialog::Accepted ? dialoog.selectedFiles().value(0) : QString();
}

Antwoord MsgBox(const QString &tekst, Knoppen knoppen, Icoon icoon, const QString &titel)
{
    constexpr int MostCharacters = 1024;
    return Berichten::Huidig().Vraag(BeginVan(tekst, MostCharacters), knoppen, icoon, Titel(titel));
}

QString InputBox(const QString &vraag, const QString &titel)
{
    return Berichten::Huidig().VraagTekst(vraag, Titel(titel));
}

bool JaNee(const QString &vraag, const QString &titel)
{
    return MsgBox(vraag, Knoppen::JaNee, Icoon::Geen, titel) == Antwoord::Ja;
}
