#pragma once

#include "platform/PagedCanvas.h"

#include <memory>

class QPagedPaintDevice;

/// A printer: A4 upright, one copy. A queue of the system, or the one that writes a PDF file.
///
/// That one asks for its file when a document begins. When the answer is none, or when the queue is gone, nothing of
/// the document is drawn and nothing is said.
class Printer : public PagedCanvas
{
public:
    /// @param wachtrij the system's name of the queue; empty for the printer that writes a PDF file
    explicit Printer(QString wachtrij);
    ~Printer() override; ///< a document that has not ended gives no PDF file

    QString DeviceName() const;

    void Cls() override; ///< wipes the page
    void NewPage() override;
    /// Raises Fout when the PDF file cannot be written; a file that was there is as it was then.
    void EndDoc() override;

protected:
    QSize MaatInPixels() const override;
    void MetPainter(const std::function<void(QPainter &)> &teken) override;
    void Vul(QRect vlak, QRgb kleur) override;
    void Plak(const QImage &bron, QRect deel, QRect doel, PlakWijze wijze) override;

private:
    class Document;

    Document &Begonnen();

    QString wachtrij_;
    std::unique_ptr<Document> document_;
};
