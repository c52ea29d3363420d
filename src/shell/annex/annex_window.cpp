#include "shell/annex/annex_window.hpp"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QShowEvent>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <exception>
#include <utility>

#include "base/colon.hpp"
#include "base/pointer_guard.hpp"
#include "base/translated_texts.hpp"
#include "device/document_files.hpp"
#include "document/markup_text.hpp"
#include "outdoc/document_renderer.hpp"
#include "project/output_guard.hpp"
#include "shell/annex/document_view.hpp"
#include "shell/companions/button_row.hpp"
#include "shell/failure_box.hpp"
#include "shell/norms/code_choice.hpp"
#include "shell/qt_text.hpp"
#include "shell/viewer/export.hpp"
#include "shell/viewer/output_saving.hpp"

namespace korven::shell {

namespace {

constexpr QSize misuraComoda(820, 900);
constexpr const char* paginaGuida = "finestra_allegato";

// The choices of the size: two that follow the window, then these [%].
constexpr int vociAdattate = 2;
constexpr std::array percentuali = {50, 75, 100, 125, 150, 200, 300};

// What a work in another thread throws is told in that of the forms.
ComposizioneAllegato conGuasto(const CalcoloAllegato& calcola, const std::atomic<bool>& fermata) {
    try {
        return calcola(fermata);
    } catch (...) {
        return [guasto = std::current_exception()]() -> document::Documento {
            std::rethrow_exception(guasto);
        };
    }
}

}  // namespace

FinestraAllegato::FinestraAllegato(QWidget& principale, VitaProgetto& vita, PorteAllegato porte,
                                   std::function<void(const std::string&)> guida)
    : FinestraCompagna(principale, QStringLiteral("allegato"), tradotto("Allegato"), misuraComoda),
      vita_(vita),
      porte_(std::move(porte)) {
    auto* colonna = new QVBoxLayout(this);
    vista_ = new VistaDocumento(this);
    colonna->addWidget(fareRiga());
    // The kinds of loads have no keys: those of the window are taken.
    norma_ = new SceltaNorma({.etichetta = "Con la &norma", .nessuna = true, .tastiNatura = false},
                             this);
    colonna->addWidget(norma_);
    colonna->addWidget(vista_, 1);
    nota_ = new QLabel(this);
    nota_->setObjectName(QStringLiteral("nota"));
    nota_->setTextFormat(Qt::PlainText);
    nota_->setWordWrap(true);
    colonna->addWidget(nota_);
    colonna->addWidget(fareAttesa());
    colonna->addWidget(farePulsanti(guida));
    lavoro_ = new LavoroInDisparte<CalcoloAllegato, ComposizioneAllegato>(
        conGuasto, [this](const auto&, const auto& componi) { preparata(componi); }, this);
    vista_->setFocus();
    connect(vista_, &VistaDocumento::girata, this, [this] { seguiVista(); });
    // A size that keys or wheel made is none of the list.
    connect(vista_, &VistaDocumento::ingrandita, this, [this] {
        zoom_->setCurrentIndex(-1);
        seguiVista();
    });
    connect(norma_, &SceltaNorma::cambiata, this, [this] { ricomincia(); });
    connect(&vita, &VitaProgetto::cambiata, this, [this] {
        // Another stage on the screen, or slow results that come in, are no other project.
        const live::ProgettoVivo& vivo = vita_.vivo();
        cambiato_ = cambiato_ || (vivo.aperto() && vivo.dati() != preparati_);
        lasciaAltri();
        if (isVisible()) segui();
    });
}

QWidget* FinestraAllegato::fareRiga() {
    auto* riga = new QWidget(this);
    auto* disposizione = new QHBoxLayout(riga);
    disposizione->setContentsMargins(0, 0, 0, 0);
    const auto etichetta = [&](const char* testo, QWidget* di) {
        auto* fatta = new QLabel(tradotto(testo), riga);
        fatta->setBuddy(di);
        disposizione->addWidget(fatta);
        disposizione->addWidget(di);
    };
    pagina_ = new QSpinBox(riga);
    pagina_->setObjectName(QStringLiteral("pagina"));
    pagina_->setAccessibleName(tradotto("pagina"));
    etichetta("&Pagina", pagina_);
    quante_ = new QLabel(riga);
    quante_->setObjectName(QStringLiteral("quante"));
    disposizione->addWidget(quante_);
    disposizione->addStretch();
    zoom_ = new QComboBox(riga);
    zoom_->setObjectName(QStringLiteral("zoom"));
    zoom_->addItem(tradotto("Pagina intera"));
    zoom_->addItem(tradotto("Larghezza della pagina"));
    for (const int percento : percentuali) zoom_->addItem(QStringLiteral("%1 %").arg(percento));
    zoom_->setCurrentIndex(1);
    zoom_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    etichetta("&Ingrandimento", zoom_);
    connect(pagina_, &QSpinBox::valueChanged, vista_, &VistaDocumento::vaiA);
    connect(zoom_, &QComboBox::activated, this, &FinestraAllegato::scegliZoom);
    return riga;
}

QWidget* FinestraAllegato::fareAttesa() {
    attesa_ = new QWidget(this);
    attesa_->setObjectName(QStringLiteral("attesa"));
    auto* disposizione = new QHBoxLayout(attesa_);
    disposizione->setContentsMargins(0, 0, 0, 0);
    disposizione->addWidget(new QLabel(tradotto("L'allegato è in preparazione..."), attesa_));
    auto* barra = new QProgressBar(attesa_);
    barra->setObjectName(QStringLiteral("avanzamento"));
    barra->setAccessibleName(tradotto("Preparazione dell'allegato"));
    barra->setRange(0, 0);  // how long it takes nobody knows
    disposizione->addWidget(barra, 1);
    auto* ferma = new QPushButton(tradotto("Fer&ma"), attesa_);
    ferma->setObjectName(QStringLiteral("ferma"));
    ferma->setAutoDefault(false);
    connect(ferma, &QPushButton::clicked, this, [this] { this->ferma(); });
    disposizione->addWidget(ferma);
    attesa_->hide();
    return attesa_;
}

QWidget* FinestraAllegato::farePulsanti(const std::function<void(const std::string&)>& guida) {
    auto* riga = new FilaPulsanti(*this);
    aggiorna_ = riga->aggiungi("aggiorna", "&Aggiorna", "redo", [this] { prepara(); });
    stampa_ = riga->aggiungi("stampa", "&Stampa...", "print", [this] { stampa(); });
    pdf_ = riga->aggiungi("pdf", "PD&F...", "picture_file", [this] { salvaPdf(); });
    doc_ = riga->aggiungi("doc", "&DOC...", "doc", [this] { salvaDocumento(); });
    riga->aggiungiGuida(guida ? [guida] { guida(paginaGuida); } : std::function<void()>());
    riga->finisci();
    return riga;
}

void FinestraAllegato::showEvent(QShowEvent* evento) {
    FinestraCompagna::showEvent(evento);
    if (evento->spontaneous()) return;
    leggiNorme();
    lasciaAltri();
    if (cambiato_) prepara();
    segui();
}

// The same by its name, as its factors are now. Of files with a fault none is used: a combination
// that is missing might be the one that governs.
void FinestraAllegato::leggiNorme() {
    const auto prima = norma();
    catalogo_ = porte_.norme();
    if (!catalogo_.guaste.empty()) catalogo_.norme.clear();
    const auto stessa = std::ranges::find(
        catalogo_.norme, prima ? prima->norma.nome : std::string(), &factors::Norma::nome);
    const bool ancora = stessa != catalogo_.norme.end();
    norma_->offri(catalogo_.norme,
                  ancora ? static_cast<int>(stessa - catalogo_.norme.begin()) : -1);
    const bool altra = prima && (!ancora || !(*stessa == prima->norma));
    cambiato_ = cambiato_ || altra;
}

std::optional<factors::NormaChiesta> FinestraAllegato::norma() const {
    if (norma_->scelta() < 0) return {};
    return factors::NormaChiesta{catalogo_.norme[static_cast<std::size_t>(norma_->scelta())],
                                 norma_->natura()};
}

void FinestraAllegato::ricomincia() {
    lavoro_->ferma();
    inCorso_ = false;
    cambiato_ = true;
    prepara();
}

void FinestraAllegato::prepara() {
    if (!vita_.vivo().aperto() || inCorso_) return segui();
    fermato_ = false;
    conAvviso(porte_.dialogo, [this] {
        CalcoloAllegato calcola = porte_.prepara(norma());
        inPreparazione_ = project::progettoAperto();
        preparati_ = project::Progetto;
        cambiato_ = false;  // what changes from now on is in none of its numbers
        inCorso_ = true;
        lavoro_->chiedi(std::move(calcola));
    });
    segui();
}

void FinestraAllegato::preparata(const ComposizioneAllegato& componi) {
    inCorso_ = false;
    const bool mostrata = conAvviso(porte_.dialogo, [&] {
        const base::GuardiaPuntatore attesa(porte_.dialogo);
        vista_->mostra(device::impaginato(componi()));
        diPagine_ = inPreparazione_;
    });
    if (!mostrata) cambiato_ = true;
    segui();
}

void FinestraAllegato::ferma() {
    lavoro_->ferma();
    inCorso_ = false;
    fermato_ = cambiato_ = true;
    aggiorna_->setFocus();
    segui();
}

bool FinestraAllegato::lasciaAltri() {
    const std::string& aperto = project::progettoAperto();
    if (inCorso_ && inPreparazione_ != aperto) {
        lavoro_->ferma();
        inCorso_ = false;
        cambiato_ = true;
    }
    if (inPreparazione_ != aperto) fermato_ = false;
    if (vista_->pagine() == 0 || diPagine_ == aperto) return false;
    vista_->mostra({});
    cambiato_ = true;
    return true;
}

void FinestraAllegato::segui() {
    lasciaAltri();
    const bool aperto = vita_.vivo().aperto();
    const bool pronto = aperto && vista_->pagine() > 0;
    aggiorna_->setEnabled(aperto && !inCorso_);
    attesa_->setVisible(inCorso_);
    for (QWidget* w : {static_cast<QWidget*>(stampa_), static_cast<QWidget*>(pdf_),
                       static_cast<QWidget*>(doc_), static_cast<QWidget*>(pagina_)})
        w->setEnabled(pronto);
    if (!aperto)
        nota_->setText(tradotto("Nessun progetto aperto"));
    else if (fermato_)
        nota_->setText(tradotto("La preparazione è stata fermata: Aggiorna la ricomincia."));
    else if (!pronto && !inCorso_)
        nota_->setText(
            tradotto("L'allegato di questo progetto non è ancora preparato: Aggiorna lo prepara."));
    else if (cambiato_ && !inCorso_)
        nota_->setText(
            tradotto("Il progetto è cambiato da quando l'allegato è stato preparato: "
                     "Aggiorna lo prepara di nuovo."));
    else
        nota_->clear();
    seguiVista();
}

void FinestraAllegato::seguiVista() {
    const QSignalBlocker muta(pagina_);
    pagina_->setRange(vista_->pagine() > 0 ? 1 : 0, vista_->pagine());
    pagina_->setValue(vista_->pagina());
    quante_->setText(QStringLiteral("/ %1").arg(vista_->pagine()));
}

void FinestraAllegato::scegliZoom(int voce) {
    if (voce == 0)
        vista_->adattaPagina();
    else if (voce == 1)
        vista_->adattaLarghezza();
    else
        vista_->ingrandisci(percentuali[static_cast<std::size_t>(voce - vociAdattate)]);
    seguiVista();
}

void FinestraAllegato::stampa() {
    if (lasciaAltri()) return segui();
    conAvviso(porte_.dialogo, [this] { porte_.stampa(*vista_->impaginato().documento); });
}

void FinestraAllegato::salva(const char* titolo, const TipoFile& tipo,
                             const std::function<void(const std::string&)>& scrivi) {
    if (lasciaAltri()) return segui();
    const auto scritto = salvaUscita(richiestaUscita(titolo, diPagine_, "allegato", {tipo}),
                                     *porte_.file, porte_.dialogo, [&](const std::string& dove) {
                                         project::controllaUscita(dove, diPagine_);
                                         nota_->clear();
                                         scrivi(dove);
                                     });
    if (!scritto) return;
    QString detto = qt(base::conDuePunti(base::traduttore("File scritto"), *scritto));
    if (!nota_->text().isEmpty()) detto += QStringLiteral("\n") + nota_->text();
    nota_->setText(detto);
}

void FinestraAllegato::salvaPdf() {
    salva("Salvataggio dell'allegato in formato PDF", tipoPdf(), [this](const std::string& dove) {
        // On the paper of files, whatever the screen shows.
        device::scriviPdf(dove, *vista_->impaginato().documento, porte_.file->disco());
    });
}

void FinestraAllegato::salvaDocumento() {
    salva("Salvataggio dell'allegato in formato DOC", {"DOC (*.doc)", "doc"},
          [this](const std::string& dove) {
              const auto scritto = outdoc::writeDocument(
                  dove,
                  document::inMarkup(*vista_->impaginato().documento, document::Uso::documento),
                  document::corpiTitoli, porte_.file->disco());
              if (!scritto.kept.empty())
                  nota_->setText(qt(base::conDuePunti(
                      base::traduttore("Il documento che c'era è conservato in"), scritto.kept)));
          });
}

}  // namespace korven::shell
