#pragma once

#include <QByteArray>
#include <QString>

/// Typed fields in the bytes of a text file, which is in code page 1252.
namespace Files {

/// Typed reading: fields that end at a comma or a line end, quotes taken off, blanks before a field passed over. All
/// raise Fout::EindeBestand when nothing is left; the numbers Fout::TypeOnjuist and Fout::Overloop.
class VeldLezer
{
public:
    explicit VeldLezer(QByteArrayView inhoud) : rest_(inhoud) {}

    bool Einde() const { return rest_.isEmpty(); }
    QString Tekst();
    /// A word of a word file, in bytes of the code page: the blanks behind it go too, unless it stood in quotes.
    QByteArrayView Item();
    quint8 Byte();
    qint16 Int16();
    qint32 Int32();

private:
    struct Veld
    {
        QByteArrayView Bytes;
        bool InQuotes;
    };

    Veld LeesVeld();
    QByteArrayView Neem(qsizetype aantal);
    void SlaScheidingOver();

    QByteArrayView rest_;
};

/// Typed writing: strings in double quotes, numbers bare, commas between the values of a line, CR LF behind each line.
class VeldSchrijver
{
public:
    void Regel(const QString &tekst);
    void Regel(std::initializer_list<int> getallen);
    const QByteArray &Inhoud() const { return inhoud_; }

private:
    QByteArray inhoud_;
};

} // namespace Files
