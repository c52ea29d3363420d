#include "shell/panels/section_panel.hpp"

#include <QHeaderView>
#include <QPushButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <utility>

#include "base/translated_texts.hpp"
#include "live/section_checks.hpp"
#include "profiles/catalogue.hpp"
#include "shell/forms/wrapped_label.hpp"
#include "shell/icons/icon_set.hpp"
#include "shell/live/live_view.hpp"
#include "shell/panels/domain_view.hpp"
#include "shell/panels/profile_chooser.hpp"
#include "shell/panels/profile_entry.hpp"
#include "shell/qt_text.hpp"
#include "shell/tables/table_view.hpp"
#include "shell/wrapped_text.hpp"

namespace korven::shell {

namespace {

QPushButton* farePulsante(const char* nome, const char* figura, const QString& testo,
                          const QString& suggerimento, QWidget* padre) {
    auto* fatto = new QPushButton(icona(figura), testo, padre);
    fatto->setObjectName(QLatin1String(nome));
    fatto->setToolTip(suggerimento);
    fatto->setAutoDefault(false);  // Enter confirms the form
    return fatto;
}

}  // namespace

PannelloSezione::PannelloSezione(DefinEJ& forma, VitaProgetto& vita, base::Dialogo& dialogo)
    : QWidget(&forma), forma_(forma), vita_(vita), dialogo_(dialogo) {
    setObjectName(QStringLiteral("PannelloSezione"));
    valori_ = etichettaInRighe("valori", this);
    verifiche_ = new VistaProspetto(QStringLiteral("verifiche"), this);
    verifiche_->setWordWrap(false);
    origine_ = etichettaInRighe("origine", this);
    // However long their words are, the panel stays where it is.
    for (QLabel* frasi : {valori_, origine_})
        frasi->setSizePolicy(QSizePolicy::Ignored, frasi->sizePolicy().verticalPolicy());
    auto* quadri = new QTabWidget(this);
    quadri->setObjectName(QStringLiteral("quadri"));
    quadri->setAccessibleName(tradotto("Dominio N–M"));
    dominio_ = new VistaDominio(quadri);
    fasi_ = new VistaProspetto(QStringLiteral("fasi"), quadri);
    quadri->addTab(dominio_, tradotto("Dominio N–M"));
    quadri->addTab(fasi_, tradotto("Fasi"));
    auto* catalogo =
        farePulsante("catalogo", "catalogue", tradotto("Ca&talogo..."),
                     tradotto("Ferri, tubi e profili propri che riempiono i campi"), this);
    auto* aggiungi = farePulsante("aggiungi", "insert_row", tradotto("A&ggiungi al catalogo..."),
                                  tradotto("Conserva le misure scritte per altri progetti"), this);
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->addWidget(valori_);
    colonna->addWidget(verifiche_);
    colonna->addWidget(origine_);
    colonna->addWidget(quadri, 1);
    // One below the other: on a small screen the panel is narrow.
    colonna->addWidget(catalogo);
    colonna->addWidget(aggiungi);
    // All rows that there can be, and heads of two lines: the picture below would jump with the
    // stirrups otherwise.
    constexpr int righe = 4;
    constexpr int intorno = 8;  // of the heads [px]
    verifiche_->setFixedHeight(2 * fontMetrics().lineSpacing() + intorno +
                               righe * verifiche_->verticalHeader()->defaultSectionSize() +
                               verifiche_->horizontalScrollBar()->sizeHint().height() +
                               2 * verifiche_->frameWidth());
    connect(catalogo, &QPushButton::clicked, this, [this] { scegliProfilo(); });
    connect(aggiungi, &QPushButton::clicked, this, [this] { aggiungiProfilo(); });
    connect(&vita_, &VitaProgetto::cambiata, this, [this] { mostra(); });
    mostra();
}

void PannelloSezione::mostra() {
    const live::ProgettoVivo& vivo = vita_.vivo();
    if (!vivo.aperto()) return;
    const auto* lenti = vivo.lenti();
    const safety::Margine* margine =
        lenti != nullptr && lenti->margine ? &*lenti->margine : nullptr;
    const auto quadro = tables::quadroSezione(vivo.dati(), vivo.parete(), margine);
    valori_->setText(inRighe(insieme(quadro.righe)));
    const bool calcolabile = live::sezioneCalcolabile(vivo.dati().sezione);
    const bool provvisorie = calcolabile && lenti == nullptr;
    // One short line meanwhile: what stands below would jump otherwise.
    const QString origine = inRighe(insieme(quadro.verifiche.note));
    origine_->setText(provvisorie ? tradotto("Calcolo in corso") + QStringLiteral("...") : origine);
    origine_->setToolTip(origine);
    verifiche_->mostra(quadro.verifiche);
    // Until the report's numbers come those shown are of the equilibrium, and will move.
    verifiche_->sospendi(provvisorie);
    fasi_->sospendi(provvisorie);
    auto dominio = lenti != nullptr ? lenti->dominio : dominio_->dominio();
    if (!calcolabile) dominio.clear();
    fasi_->mostra(tables::prospettoDominio(vivo.parete(), margine, dominio));
    dominio_->mostra(std::move(dominio), live::fasiNelDominio(vivo.parete(), margine),
                     calcolabile ? "..." : base::traduttore("Sezione non definita."));
}

void PannelloSezione::scegliProfilo() {
    ScegliProfilo scelta(forma_.tipo(), forma_.letta(), forma_.campo(), dialogo_, this);
    if (scelta.exec() != QDialog::Accepted) return;
    forma_.prendi(base::traduttore("profilo dal catalogo"), scelta.testi());
}

void PannelloSezione::aggiungiProfilo() {
    if (profiles::profiloDi(forma_.tipo(), forma_.letta(), false).misure.empty()) {
        dialogo_.messaggio(
            base::traduttore("Non ci sono misure da conservare: i campi sono vuoti o 0."),
            base::traduttore("ATTENZIONE") + "!", base::Icona::avviso);
        return;
    }
    NuovoProfilo(forma_.tipo(), forma_.letta(), this).exec();
}

PannelloAccanto pannelloSezione(VitaProgetto& vita, base::Dialogo& dialogo) {
    return [&vita, &dialogo](DefinEJ& forma) -> QWidget* {
        return new PannelloSezione(forma, vita, dialogo);
    };
}

}  // namespace korven::shell
