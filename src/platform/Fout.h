#pragma once

#include <QString>

#include <exception>
#include <utility>

/// A run-time failure: its number and its Dutch text. Handlers let it pass; the form shows it once (Form::bij).
class Fout : public std::exception
{
public:
    enum Nummer {
        OngeldigArgument = 5,
        Overloop = 6,
        GeheugenVol = 7,
        IndexBuitenBereik = 9,
        TypeOnjuist = 13,
        InterneFout = 51,
        OngeldigeNaam = 52,
        BestandNietGevonden = 53,
        SchijfFout = 57,
        EindeBestand = 62,
        GeenToegang = 70,
        OngeldigeWaarde = 380,
        SleutelBestaatAl = 457,
        OngeldigeAfbeelding = 481,
    };

    /// @param waarbij what the failure is about, such as a file's name; shown behind the text, may be empty.
    explicit Fout(Nummer nummer, QString waarbij = {});
    /// A failure that a component raises, with a number and a text of its own.
    /// @param bron who raises it
    Fout(qint32 nummer, QString bron, QString tekst);

    /// The failure that an exception amounts to: a Fout is itself, one of the standard library gets its number.
    static Fout Van(const std::exception &exception);

    qint32 nummer() const { return nummer_; }
    const QString &bron() const { return bron_; } ///< empty but for a failure of a component
    /// The Dutch text of the number, with what it is about.
    QString tekst() const;
    const char *what() const noexcept override { return "run-time failure"; }

private:
    qint32 nummer_;
    QString waarbij_;
    QString bron_, eigenTekst_; ///< of a component
};

/// Leaves a handler without a word: its window was closed, or the program ends, while it waited.
struct Afgebroken
{
};

/// Runs one statement and drops its failure: "errors are ignored from here on, the next statement runs".
/// @return whether the statement ended without a failure
template <class Opdracht> bool negeer(Opdracht &&opdracht)
{
    try {
        std::forward<Opdracht>(opdracht)();
        return true;
    } catch (const std::exception &) { // a Fout, or what the standard library raised: out of memory is one of these
        return false;
    }
}
