#include "shell/annex/annex_wiring.hpp"

#include <QApplication>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <memory>
#include <utility>

#include "device/document_files.hpp"
#include "factors/catalogue.hpp"
#include "project/output_guard.hpp"
#include "project/project_data.hpp"
#include "shell/annex/annex_window.hpp"
#include "shell/viewer/dialogs.hpp"
#include "shell/viewer/export.hpp"
#include "shell/viewer/output_saving.hpp"

namespace korven::shell {

namespace {

// All pages again for what is printed next.
class TutteLePagine {
 public:
    explicit TutteLePagine(QPrinter& stampante) : stampante_(stampante) { tutte(); }
    TutteLePagine(const TutteLePagine&) = delete;
    TutteLePagine& operator=(const TutteLePagine&) = delete;
    ~TutteLePagine() { tutte(); }

 private:
    void tutte() {
        stampante_.setPrintRange(QPrinter::AllPages);
        stampante_.setFromTo(0, 0);
    }
    QPrinter& stampante_;
};

// On the printer that the system's dialog chooses; where there is none, into a PDF file of its
// sheet.
void stampaAllegato(const document::Documento& documento, PorteDesktop& porte, QPrinter& stampante,
                    QWidget* sopra) {
    const TutteLePagine dopo(stampante);
    if (!porte.haStampante()) {
        const auto percorso =
            porte.fileDaSalvare(richiestaUscita("Salvataggio dell'allegato in formato PDF",
                                                project::fileCorrente, "allegato", {tipoPdf()}));
        if (!percorso) return;
        project::controllaUscita(*percorso, project::fileCorrente);
        device::scriviPdf(
            *percorso, device::impaginato(documento, device::formatoPagina(stampante.pageLayout())),
            porte.disco());
        return porte.scritto(*percorso);
    }
    if (stampante.outputFileName().isEmpty() &&
        QPrintDialog(&stampante, sopra).exec() != QDialog::Accepted)
        return;
    device::stampa(device::impaginato(documento, device::formatoPagina(stampante.pageLayout())),
                   stampante);
}

}  // namespace

void collegaAllegato(commands::FormeProgramma& forme, QWidget& principale, VitaProgetto& vita,
                     base::Dialogo& dialogo, const std::function<QPrinter&()>& stampante,
                     const InizioAllegato& prepara,
                     const std::function<void(const std::string&)>& annuncia) {
    const auto file = std::make_shared<PorteDesktop>(stampante, annuncia);
    const PorteAllegato porte{dialogo, prepara, [] { return factors::leggiCombinazioni(); }, file,
                              [file, stampante, &principale](const document::Documento& documento) {
                                  // Above the annex: after it the keyboard goes back there.
                                  QWidget* sopra = QApplication::activeWindow();
                                  stampaAllegato(documento, *file, stampante(),
                                                 sopra != nullptr ? sopra : &principale);
                              }};
    forme.allegato = [finestra = std::make_shared<QPointer<FinestraAllegato>>(), &principale, &vita,
                      porte, guida = forme.paginaGuida] {
        if (*finestra == nullptr) *finestra = new FinestraAllegato(principale, vita, porte, guida);
        (*finestra)->mostraDavanti();
    };
}

}  // namespace korven::shell
