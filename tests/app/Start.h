#pragma once

#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "support/Testbank.h"

/// The window as the program makes it, on a folder of its own.
struct Start
{
    Testbank Bank;
    MainForm Venster;

    Start() { AppPath = Bank.Map(); }
    QByteArray Instellingen() const { return Bank.Inhoud(QStringLiteral("Rasteratelier.ini")); }
};
