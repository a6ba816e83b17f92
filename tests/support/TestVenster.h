#pragma once

#include "platform/Form.h"

#include <QLineEdit>
#include <QPushButton>

/// A form with a button and a box, that lets a test place controls.
class TestVenster : public Form
{
public:
    explicit TestVenster(int breedte = 4590, int hoogte = 3450, bool menuBalk = false)
        : Form(QStringLiteral("TestVenster"), QStringLiteral("Een titel"), breedte, hoogte, qRgb(10, 200, 30), menuBalk)
    {
        Knop = Maak<QPushButton>("ZoekKnop", QStringLiteral("Zoeken"), nullptr, QStringLiteral("..."));
        Vak = Maak<QLineEdit>("Text1", QStringLiteral("Woord"), nullptr);
    }

    using Form::Gekozen;
    using Form::Kleur;
    using Form::Maak;
    using Form::MaakBeeld;
    using Form::MaakKnop;
    using Form::MaakKnopMetTip;
    using Form::MaakLabel;
    using Form::MaakMenu;
    using Form::MaakNummers;
    using Form::MaakOpties;
    using Form::MaakSchuif;
    using Form::MaakUitleg;
    using Form::MenuBalk;
    using Form::PasOpScherm;
    using Form::Sluit;
    using Form::Wacht;
    using Form::Zet;

    void Knop_Click() { ++Geklikt; }
    void Vak_Change(const QString &tekst) { Getypt += tekst; }
    void Optie_Click(int index) { Gekozen_ += index; }

    QPushButton *Knop;
    QLineEdit *Vak;
    int Geklikt = 0;
    QStringList Getypt;
    QList<int> Gekozen_;
};
