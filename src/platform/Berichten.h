#pragma once

#include <QString>

enum class Knoppen { Ok, JaNee };
enum class Antwoord { Ok, Ja, Nee };
enum class Icoon { Geen, Kritiek, Waarschuwing, Informatie };

/// Message boxes with Dutch buttons. One object is in use at a time; tests put their own in its place.
class Berichten
{
public:
    virtual ~Berichten();
    /// What MsgBox shows, and InputBox: the text and the title as they are given.
    virtual Antwoord Vraag(const QString &tekst, Knoppen knoppen, Icoon icoon, const QString &titel);
    virtual QString VraagTekst(const QString &vraag, const QString &titel);
    /// Asks where a file is to be saved, with the system's own dialog; of one that is there it asks whether it may be
    /// replaced.
    /// @param voorstel the path that is proposed
    /// @param soort which files are shown, such as "PDF-bestanden (*.pdf)"
    /// @return the path as it was typed; empty when the dialog was closed without one
    virtual QString VraagBestand(const QString &titel, const QString &voorstel, const QString &soort);

    static Berichten &Huidig();
    /// Puts other messages in use, nullptr the real ones. The caller keeps them alive.
    static void Gebruik(Berichten *berichten);
};

/// Shows a message box and waits for its answer; closing a Yes/No box without an answer is a No. At most 1024
/// characters of the text are shown.
/// @param titel the program's own name when it is empty
Antwoord MsgBox(const QString &tekst, Knoppen knoppen = Knoppen::Ok, Icoon icoon = Icoon::Geen,
                const QString &titel = {});

/// Asks for a line of text. @return what was typed; empty when the box was closed without an answer
/// @param titel the program's own name when it is empty
QString InputBox(const QString &vraag, const QString &titel = {});

/// Asks a question. @return whether the answer was Yes
bool JaNee(const QString &vraag, const QString &titel);
