#pragma once

#include <QFile>
#include <QList>

/// Files of one folder that are put in place whole: after a kill at any moment all are the old ones, or all the new.
///
/// Each is written beside its place under a name of its own and brought to the disk. Then a note says what is to get
/// which name, and the names are changed back to back, by one writer in a folder at a time. A writer holds its note for
/// as long as it runs, so that others see whether the work is still going on; if it isn't, MaakAf finishes it.
///
///     .rasteratelier-0123456789abcdef      the note, empty until all is written
///     .rasteratelier-0123456789abcdef-1    the first file
///     .rasteratelier.slot                  whose turn it is
class BestandenSet
{
public:
    /// What is there for a moment only need not come to the disk.
    enum class Duur { Blijvend, Vluchtig };

    explicit BestandenSet(Duur duur = Duur::Blijvend) : blijvend_(duur == Duur::Blijvend) {}
    ~BestandenSet(); ///< what was not put in place is removed
    Q_DISABLE_COPY_MOVE(BestandenSet)

    /// Writes a file, parts one behind the other; the rights of an older one are kept.
    /// Raises Fout when that fails, and the others of the set are as they were.
    /// @param pad where it is to come, in the same folder for the whole set
    /// @param spelling the name that it is to have there: that of the path, spelled otherwise. Empty: as in the path
    void Zet(const QString &pad, std::initializer_list<QByteArrayView> delen, const QString &spelling = {});
    /// Puts in place what was written. Raises Fout when one of the files stays behind; the others are in place then.
    void PlaatsAlles();

private:
    struct Deel
    {
        QString Tijdelijk; ///< path of what was written
        QString Naam;      ///< of the file that it replaces
        QString Spelling;  ///< the name that this gets
    };

    void BeginNota(const QString &map);
    void SchrijfNota();
    void SluitNota();
    bool Plaats(const Deel &deel) const;

    bool blijvend_;
    QString map_;
    QFile nota_;
    int geteld_ = 0;
    QList<Deel> delen_;
};

/// Finishes in a folder what writers that run no more have left: files of which the note was written get their names,
/// others are removed. Waits a moment for a writer that is changing names. Never fails; what cannot be done now stays
/// for the next time.
void MaakAf(const QString &map);
