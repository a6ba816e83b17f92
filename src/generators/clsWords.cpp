#include "generators/clsWords.h"

#include "platform/Fout.h"

#include <QStringList>

#include <algorithm>

std::list<clsWords::Element>::iterator clsWords::Zoek(qint32 index)
{
    if (index < 1 || index > Count())
        throw Fout(Fout::IndexBuitenBereik);
    return index <= Count() / 2 ? std::next(elementen_.begin(), index - 1)
                                : std::prev(elementen_.end(), Count() - index + 1);
}

std::list<clsWords::Element>::iterator clsWords::Zoek(const QString &sleutel)
{
    if (sleutel.isEmpty())
        return elementen_.end();
    return std::find_if(elementen_.begin(), elementen_.end(), [&](const Element &element) {
        return element.Sleutel.compare(sleutel, Qt::CaseInsensitive) == 0;
    });
}

clsWord &clsWords::Add(const QString &Word, const QString &sKey)
{
    if (Zoek(sKey) != elementen_.end())
        throw Fout(Fout::SleutelBestaatAl, sKey);
    elementen_.push_back({{Word}, sKey});
    return elementen_.back().Woord;
}

clsWord &clsWords::Item(qint32 index)
{
    return Zoek(index)->Woord;
}

clsWord &clsWords::Item(const QString &sleutel)
{
    const auto element = Zoek(sleutel);
    if (element == elementen_.end())
        throw Fout(Fout::OngeldigArgument, sleutel);
    return element->Woord;
}

void clsWords::Remove(qint32 index)
{
    elementen_.erase(Zoek(index));
}

void clsWords::Remove(const QString &sleutel)
{
    Item(sleutel); // raises when there is none
    elementen_.erase(Zoek(sleutel));
}

void clsWords::Clear()
{
    while (Count() > 0)
        Remove(Count());
}

void clsWords::AddFromString(const QString &strWords)
{
    for (const QString &woord : strWords.split(LineEnd))
        Add(woord);
}

QString clsWords::JoinWords() const
{
    if (elementen_.empty())
        throw Fout(Fout::OngeldigArgument);
    QString tekst;
    for (const Element &element : elementen_)
        tekst += element.Woord.Word + LineEnd;
    tekst.chop(LineEnd.size());
    return tekst;
}
