#include "device/report_pages.hpp"

#include <QBuffer>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <utility>

#include "base/files.hpp"
#include "base/translated_texts.hpp"
#include "device/dated_pdf.hpp"
#include "device/least_margins.hpp"
#include "device/print_outcome.hpp"
#include "device/qt_text.hpp"
#include "device/report_fonts.hpp"
#include "markup/reset_arguments.hpp"

namespace korven::device {

namespace {

constexpr double puntiPerPollice = 72;
constexpr double millimetriPerPollice = 25.4;

// A report counts its page one centimetre short of the sheet, half of which is the edge that usual
// printers leave: only from there on is it in the middle [points].
constexpr double bordoFoglio = markup::pointsPerCentimetre / 2;

// Further out nothing is on any sheet, and the numbers of a page description end [points].
constexpr double limite = 100000;

// Texts on the pages of a device; what becomes of the pages is for those derived from it.
class PagineRelazione : public markup::ReportPrinter {
 public:
    explicit PagineRelazione(QPagedPaintDevice& carta) : carta_(carta) {
        carattere_ = &caratteri_.carattere({});
    }

    markup::SheetSize sheet() override {
        const QRectF foglio = carta_.pageLayout().fullRect(QPageLayout::Millimeter);
        constexpr double punti = puntiPerPollice / millimetriPerPollice;
        return {foglio.width() * punti, foglio.height() * punti};
    }
    void setFont(const markup::ReportFont& font) override {
        carattere_ = &caratteri_.carattere(font);
        corpo_ = corpoStampato(font.size);
    }
    double textWidth(std::string_view testo) override {
        return carattere_->larghezza(testo, corpo_);
    }
    double textHeight() override { return carattere_->altezza * corpo_; }
    double lineStep() override { return carattere_->interlinea * corpo_; }

    void startPage() override {
        const bool riuscita = pittore_.isActive() ? carta_.newPage() : comincia();
        if (!riuscita) fallita();
    }
    void write(double x, double y, std::string_view testo) override {
        if (!(x > -limite && x < limite && y > -limite && y < limite)) return;
        // Written at the size of the font and scaled: a size in whole pixels would round it.
        const double scala = corpo_ / carattere_->font.pixelSize();
        pittore_.save();
        pittore_.scale(carta_.logicalDpiX() / puntiPerPollice,
                       carta_.logicalDpiY() / puntiPerPollice);
        pittore_.translate(x, y + carattere_->ascendente * corpo_);
        pittore_.scale(scala, scala);
        pittore_.setFont(carattere_->font);
        pittore_.drawText(QPointF(), qt(testo));
        pittore_.restore();
    }
    void endPage() override {}

 protected:
    virtual bool comincia() { return pittore_.begin(&carta_); }
    [[noreturn]] virtual void fallita() const = 0;

    QPainter& pittore() { return pittore_; }

 private:
    QPagedPaintDevice& carta_;
    QPainter pittore_;
    CaratteriRelazione caratteri_;
    CarattereRelazione* carattere_ = nullptr;
    double corpo_ = markup::defaultFontSize;
};

class SuStampante : public PagineRelazione {
 public:
    SuStampante(QPrinter& stampante, const QString& titolo)
        : PagineRelazione(stampante), stampante_(stampante), margini_(stampante, bordoFoglio) {
        stampante_.setDocName(titolo);
    }
    ~SuStampante() override {
        if (!pittore().isActive()) return;
        stampante_.abort();
        pittore().end();
    }
    void endJob() override {
        const bool riuscita = pittore().end();
        if (!riuscita || !consegnata(stampante_)) fallita();
    }

 private:
    bool comincia() override { return conosciuta(stampante_) && PagineRelazione::comincia(); }
    void fallita() const override {
        throw markup::PrinterError(destinazionePagine(stampante_), 0,
                                   base::traduttore("la stampa non è riuscita"));
    }

    QPrinter& stampante_;
    const MarginiMinimi margini_;
};

// The printer is declared before the class that prints on it, and so lives longer.
struct StampanteQtNota {
    explicit StampanteQtNota(const QString& nome)
        : stampante(QPrinterInfo::printerInfo(nome), QPrinter::HighResolution) {}
    QPrinter stampante;
};

class SuStampanteNota : private StampanteQtNota, public SuStampante {
 public:
    SuStampanteNota(const QString& nome, const QString& titolo)
        : StampanteQtNota(nome), SuStampante(stampante, titolo) {}
};

// The file is declared before the class that writes it, and so lives longer.
struct PdfInMemoria {
    PdfInMemoria(const QPageLayout& pagina, const QString& titolo) : scrittore(&byte) {
        scrittore.setPageLayout({pagina.pageSize(), pagina.orientation(),
                                 QMarginsF(bordoFoglio, bordoFoglio, bordoFoglio, bordoFoglio),
                                 QPageLayout::Point});
        scrittore.setTitle(titolo);
        scrittore.setCreator(QStringLiteral("KORVEN 32"));
    }
    QBuffer byte;
    QPdfWriter scrittore;
};

class SuPdf : private PdfInMemoria, public PagineRelazione {
 public:
    SuPdf(std::string percorso, const QPageLayout& pagina, const QString& titolo,
          const base::Disco& disco)
        : PdfInMemoria(pagina, titolo),
          PagineRelazione(scrittore),
          percorso_(std::move(percorso)),
          disco_(disco) {}

    void endJob() override {
        pittore().end();
        byte.close();
        try {
            base::scriviFile(percorso_, conDataVoluta(byte.data().toStdString()), disco_);
        } catch (const base::ErroreFile& errore) {
            throw markup::PrinterError(errore.percorso(), errore.riga(), errore.atteso());
        }
    }

 private:
    bool comincia() override {
        byte.open(QIODevice::WriteOnly | QIODevice::Truncate);
        return PagineRelazione::comincia();
    }
    void fallita() const override {
        throw markup::PrinterError(percorso_, 0, base::traduttore("la stampa non è riuscita"));
    }

    std::string percorso_;
    const base::Disco& disco_;
};

}  // namespace

std::unique_ptr<markup::ReportPrinter> relazioneSuStampante(QPrinter& stampante,
                                                            const QString& titolo) {
    return std::make_unique<SuStampante>(stampante, titolo);
}

void controllaStampante(const std::string& nome) {
    const QStringList note = QPrinterInfo::availablePrinterNames();
    if (note.contains(qt(nome))) return;
    std::string perche = base::traduttore("stampante non trovata");
    if (!note.isEmpty())
        perche += "; " + base::traduttore("stampanti disponibili") + ": " +
                  note.join(QStringLiteral(", ")).toStdString();
    throw markup::PrinterError(nome, 0, perche);
}

std::unique_ptr<markup::ReportPrinter> relazioneSuStampante(const std::string& nome,
                                                            const std::string& titolo) {
    controllaStampante(nome);
    return std::make_unique<SuStampanteNota>(qt(nome), qt(titolo));
}

std::unique_ptr<markup::ReportPrinter> relazioneSuPdf(const std::string& percorso,
                                                      const QPageLayout& pagina,
                                                      const QString& titolo,
                                                      const base::Disco& disco) {
    return std::make_unique<SuPdf>(percorso, pagina, titolo, disco);
}

std::unique_ptr<markup::ReportPrinter> relazioneSuPdf(const std::string& percorso,
                                                      const std::string& titolo,
                                                      const base::Disco& disco) {
    const QPageLayout a4(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF());
    return relazioneSuPdf(percorso, a4, qt(titolo), disco);
}

}  // namespace korven::device
