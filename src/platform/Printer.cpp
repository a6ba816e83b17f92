#include "platform/Printer.h"

#include "platform/Berichten.h"
#include "platform/Files.h"
#include "platform/Screen.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>

#include <utility>

using namespace Qt::StringLiterals;

// --- where a PDF file comes ---

/// What is proposed: the name of the document in the user's folder of documents.
static QString Voorstel(const QString &titel)
{
    QString map = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (!QFileInfo(map).isDir())
        map = QDir::homePath();
    return map + u'/' + (Files::IsGoedeNaam(titel) ? titel : u"Afdruk"_s) + u".pdf"_s;
}

/// @return the path for the PDF file, which ends in ".pdf"; empty when the user wants none
static QString VraagPdf(const QString &titel)
{
    const Screen::Vraagt vraagt; // printing is busy work
    QString pad = Voorstel(titel);
    for (;;) {
        pad = Berichten::Huidig().VraagBestand(u"Afdrukken naar een PDF-bestand"_s, pad, u"PDF-bestanden (*.pdf)"_s);
        if (pad.isEmpty() || pad.endsWith(".pdf"_L1, Qt::CaseInsensitive))
            return pad;
        pad += ".pdf"_L1; // of this one nothing has been asked yet
        const QFileInfo bestand(pad);
        if (!bestand.exists() || JaNee(bestand.fileName() + u" bestaat al, vervangen?"_s, u"Afdrukken"_s))
            return pad;
    }
}

// --- a document on its way ---

/// Pages that are being drawn; when there is nowhere to draw them, nothing happens.
class Printer::Document
{
public:
    Document(const QString &wachtrij, const QString &titel)
    {
        if (wachtrij.isEmpty())
            BeginPdf(titel);
        else if (!QPrinterInfo::printerInfo(wachtrij).isNull()) // else it would go to another queue
            BeginAfdruk(wachtrij, titel);
        if (!Apparaat || !Schilder.begin(Apparaat.get()))
            return;
        Schilder.setRenderHint(QPainter::LosslessImageRendering);
        Schilder.scale(Apparaat->logicalDpiX() / static_cast<double>(Twips::PerInch),
                       Apparaat->logicalDpiY() / static_cast<double>(Twips::PerInch));
    }

    /// Raises Fout when the PDF file cannot be written.
    void Voltooi()
    {
        if (!Schilder.isActive())
            return;
        Schilder.end();
        if (!pad_.isEmpty())
            Files::Schrijf(pad_, inhoud_.data());
    }

private:
    void BeginPdf(const QString &titel);
    void BeginAfdruk(const QString &wachtrij, const QString &titel);

    // In this order: the painter ends before its device goes, and that before what it writes to.
    QString pad_;
    QBuffer inhoud_; ///< of the PDF file

public:
    std::unique_ptr<QPagedPaintDevice> Apparaat;
    QPainter Schilder; ///< not active: nowhere to draw
};

void Printer::Document::BeginPdf(const QString &titel)
{
    pad_ = VraagPdf(titel);
    if (pad_.isEmpty())
        return;
    constexpr double Rand = 240.0 / Twips::PerPunt; // points; as a common laser printer
    auto pdf = std::make_unique<QPdfWriter>(&inhoud_);
    pdf->setTitle(titel);
    pdf->setCreator(u"Rasteratelier"_s);
    pdf->setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(Rand, Rand, Rand, Rand)));
    inhoud_.open(QIODevice::WriteOnly);
    Apparaat = std::move(pdf);
}

void Printer::Document::BeginAfdruk(const QString &wachtrij, const QString &titel)
{
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setPrinterName(wachtrij);
    printer->setDocName(titel);
    printer->setCopyCount(1);
    printer->setPageSize(QPageSize(QPageSize::A4));
    printer->setPageOrientation(QPageLayout::Portrait);
    printer->setPageMargins(printer->pageLayout().minimumMargins(), printer->pageLayout().units());
    Apparaat = std::move(printer);
}

// --- printer ---

Printer::Printer(QString wachtrij) : wachtrij_(std::move(wachtrij)) {}

Printer::~Printer() = default;

QString Printer::DeviceName() const
{
    return wachtrij_.isEmpty() ? u"PDF-bestand"_s : wachtrij_;
}

Printer::Document &Printer::Begonnen()
{
    if (!document_)
        document_ = std::make_unique<Document>(wachtrij_, Titel);
    return *document_;
}

QSize Printer::MaatInPixels() const
{
    if (!document_ || !document_->Schilder.isActive())
        return {};
    return document_->Apparaat->pageLayout().paintRectPixels(Twips::PerInch).size();
}

void Printer::MetPainter(const std::function<void(QPainter &)> &teken)
{
    Document &document = Begonnen();
    if (document.Schilder.isActive())
        teken(document.Schilder);
}

void Printer::Vul(QRect vlak, QRgb kleur)
{
    MetPainter([&](QPainter &schilder) { schilder.fillRect(vlak, QColor(kleur)); });
}

void Printer::Plak(const QImage &bron, QRect deel, QRect doel, PlakWijze /*wijze*/)
{
    MetPainter([&](QPainter &schilder) { schilder.drawImage(doel, bron, deel); });
}

void Printer::Cls()
{
    Vul(QRect(QPoint(0, 0), MaatInPixels()), qRgb(255, 255, 255));
}

void Printer::NewPage()
{
    Document &document = Begonnen();
    if (document.Schilder.isActive())
        document.Apparaat->newPage();
    CurrentX = CurrentY = 0;
}

void Printer::EndDoc()
{
    const std::unique_ptr<Document> document = std::move(document_);
    CurrentX = CurrentY = 0;
    if (document)
        document->Voltooi();
}
