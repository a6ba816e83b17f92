#pragma once

#include "generators/clsWord.h"

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
    /// @param sKey none when it is empty. Raises Fout::SleutelBestaatAl for one that is there already
    clsWord &Add(const QString &Word, const QString &sKey = {});
    /// Raises Fout::IndexBuitenBereik for an index that is not there, Fout::OngeldigArgument for a key that is not.
    clsWord &Item(qint32 index);
    clsWord &Item(const QString &sleutel);
    qint32 Count() const { return static_cast<qint32>(elementen_.size()); }
    /// Raises what Item raises.
    void Remove(qint32 index);
    void Remove(const QString &sleutel);
    void Clear();
    /// Adds each line of a text: also the empty one behind a line end at its end.
    void AddFromString(const QString &strWords);
    /// The words with line ends between them. Raises Fout::OngeldigArgument when there are none.
    QString JoinWords() const;

    /// Goes through the words in order.
    class Enumerator
    {
    public:
        explicit Enumerator(std::list<Element>::const_iterator plaats) : plaats_(plaats) {}
        const clsWord &operator*() const { return plaats_->Woord; }
        Enumerator &operator++()
        {
            ++plaats_;
            return *this;
        }
        bool operator==(const Enumerator &) const = default;

    private:
        std::list<Element>::const_iterator plaats_;
    };
    Enumerator begin() const { return Enumerator(elementen_.begin()); }
    Enumerator end() const { return Enumerator(elementen_.end()); }

private:
    std::list<Element>::iterator Zoek(qint32 index);
    std::list<Element>::iterator Zoek(const QString &sleutel);

    std::list<Element> elementen_;
};
