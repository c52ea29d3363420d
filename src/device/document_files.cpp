#include "device/document_files.hpp"

#include <QBuffer>
#include <QHashSeed>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <algorithm>
#include <exception>
#include <utility>

#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/translated_texts.hpp"
#include "base/version.hpp"
#include "device/document_painter.hpp"
#include "device/pdf_finishing.hpp"
#include "device/print_outcome.hpp"
#include "device/qt_text.hpp"
#include "document/layout.hpp"

namespace korven::device {

namespace {

using document::Impaginato;

constexpr double puntiPerPollice = 72;
constexpr int dpiPdf = 720;  // a tenth of a point is the unit: texts are scaled beyond it

[[noreturn]] void fallita(const std::string& dove) {
    throw base::ErroreFile(dove, 0, base::traduttore("la stampa non è riuscita"));
}

// Pages from `da` up to `a`, on a device whose origin is the corner of the sheet.
void dipingi(const Impaginato& impaginato, std::size_t da, std::size_t a, QPagedPaintDevice& carta,
             QPainter& pittore, const std::string& dove) {
    const CaratteriPagine caratteri;
    for (std::size_t i = da; i < a; ++i) {
        if (i > da && !carta.newPage()) fallita(dove);
        pittore.save();
        pittore.scale(carta.logicalDpiX() / puntiPerPollice, carta.logicalDpiY() / puntiPerPollice);
        PittorePagine(pittore, caratteri).dipingi(impaginato.pagine[i]);
        pittore.restore();
    }
}

ProprietaPdf proprieta(const Impaginato& impaginato) {
    const document::Documento& d = *impaginato.documento;
    ProprietaPdf p{d.titolo, d.autore, std::string(base::nomeEVersione),
                   d.data,   d.lingua, impaginato.formato.altezza,
                   {},       {},       d.allegati};
    std::copy_if(impaginato.segnalibri.begin(), impaginato.segnalibri.end(),
                 std::back_inserter(p.segnalibri),
                 [](const document::Segnalibro& s) { return s.livello <= 2; });
    for (std::size_t i = 0; i < impaginato.pagine.size(); ++i)
        for (const document::Rimando& r : impaginato.pagine[i].rimandi)
            p.collegamenti.push_back(
                {i, r.x, r.y, r.larghezza, r.altezza, impaginato.segnalibri.at(r.segnalibro)});
    return p;
}

// Qt numbers the fonts of a PDF file in the order of a hash table, which is another one in each
// process unless the seed is fixed while it writes.
class OrdineFisso {
 public:
    OrdineFisso() { QHashSeed::setDeterministicGlobalSeed(); }
    OrdineFisso(const OrdineFisso&) = delete;
    OrdineFisso& operator=(const OrdineFisso&) = delete;
    ~OrdineFisso() { QHashSeed::resetRandomGlobalSeed(); }
};

// The printer as it was, whatever ends the job.
class FoglioIntero {
 public:
    explicit FoglioIntero(QPrinter& stampante)
        : stampante_(stampante), diPrima_(stampante.fullPage()) {
        stampante_.setFullPage(true);
    }
    FoglioIntero(const FoglioIntero&) = delete;
    FoglioIntero& operator=(const FoglioIntero&) = delete;
    ~FoglioIntero() { stampante_.setFullPage(diPrima_); }

 private:
    QPrinter& stampante_;
    const bool diPrima_;
};

}  // namespace

document::Formato formatoPagina(const QPageLayout& pagina) {
    const QRectF foglio = pagina.fullRect(QPageLayout::Point);
    document::Formato formato;
    formato.larghezza = foglio.width();
    formato.altezza = foglio.height();
    return formato;
}

Impaginato impaginato(document::Documento documento, const document::Formato& formato) {
    return document::impagina(std::move(documento), formato, CaratteriPagine());
}

void scriviPdf(const std::string& percorso, const Impaginato& impaginato,
               const base::Disco& disco) {
    QBuffer byte;
    byte.open(QIODevice::WriteOnly);
    {
        const OrdineFisso ordine;
        QPdfWriter scrittore(&byte);
        scrittore.setResolution(dpiPdf);
        scrittore.setPageSize(
            QPageSize(QSizeF(impaginato.formato.larghezza, impaginato.formato.altezza),
                      QPageSize::Point, {}, QPageSize::ExactMatch));
        scrittore.setPageMargins(QMarginsF());
        QPainter pittore;
        if (!pittore.begin(&scrittore)) fallita(percorso);
        dipingi(impaginato, 0, impaginato.pagine.size(), scrittore, pittore, percorso);
    }
    std::string rifinita;
    try {
        rifinita = rifinito(byte.data().toStdString(), proprieta(impaginato));
    } catch (const base::ErroreFile&) {
        throw;
    } catch (const std::exception& errore) {
        throw base::ErroreFile(percorso, 0, errore.what());
    }
    base::scriviFile(percorso, rifinita, disco);
}

void scriviPdf(const std::string& percorso, document::Documento documento,
               const base::Disco& disco) {
    scriviPdf(percorso, impaginato(std::move(documento)), disco);
}

void stampa(const Impaginato& impaginato, QPrinter& stampante) {
    const std::string dove = destinazionePagine(stampante);
    if (!conosciuta(stampante)) fallita(dove);
    const FoglioIntero foglio(stampante);
    stampante.setDocName(qt(impaginato.documento->titolo));
    const auto quante = static_cast<int>(impaginato.pagine.size());
    const bool tutte = stampante.fromPage() <= 0;
    const int da = tutte ? 1 : std::min(stampante.fromPage(), quante);
    const int a = tutte ? quante : std::clamp(stampante.toPage(), da, quante);
    QPainter pittore;
    if (!pittore.begin(&stampante)) fallita(dove);
    try {
        dipingi(impaginato, static_cast<std::size_t>(da) - 1, static_cast<std::size_t>(a),
                stampante, pittore, dove);
    } catch (...) {
        stampante.abort();
        pittore.end();
        throw;
    }
    if (!pittore.end() || !consegnata(stampante)) fallita(dove);
}

}  // namespace korven::device
