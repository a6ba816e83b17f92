#pragma once

#include "generators/clsWord.h"

#include <iterator>
#include <list>

/// The words of a word search, in the order of their coming. Indices run from 1; keys are compared ignoring case.
class clsWords
{
    struct Element
    {
        clsWord Woord;
        QString Sleutel; ///< empty when it has none
    };

public:
    /// Between words in a text, and behind each line of a file.
    static constexpr QLatin1String LineEnd = QLatin1String("\r\n");

    /// Goes through the words in order.
    class Enumerator
    {
    public:
        explicit Enumerator(const std::list<Element> &elementen) : nu_(elementen.begin()), einde_(elementen.end()) {}
        const clsWord &operator*() const { return nu_->Woord; }
        void operator++() { ++nu_; }
        bool operator==(std::default_sentinel_t) const { return nu_ == einde_; }

    private:
        std::list<Element>::const_iterator nu_, einde_;
    };

    /// @param sKey none when it is empty. Raises Fout::SleutelBestaatAl for one that is there already
    clsWord &Add(const QString &Word, const QString &sKey = {});
    /// Raises Fout::IndexBuitenBereik for an index that is not there, Fout::OngeldigArgument for a key that is not.
    clsWord &Item(qint32 index);
    clsWord &Item(const QString &sleutel);
    qint32 Count() const { return static_cast<qint32>(elementen_.size()); }
    /// Raises what Item raises.
    void Remove(qint32 index);
    void Remove(const QString &sleutel);
    Enumerator NewEnum() const { return Enumerator(elementen_); } ///< at the first word
    void Clear();
    /// Adds each line of a text: also the empty one behind a line end at its end.
    void AddFromString(const QString &strWords);
    /// The words with line ends between them. Raises Fout::OngeldigArgument when there are none.
    QString JoinWords() const;

    Enumerator begin() const { return NewEnum(); }
    std::default_sentinel_t end() const { return {}; }

private:
    std::list<Element>::iterator Zoek(qint32 index);
    std::list<Element>::iterator Zoek(const QString &sleutel);

    std::list<Element> elementen_;
};
