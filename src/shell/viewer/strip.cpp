// The strip of buttons of the viewer: which there are and what each does.

#include <QFrame>
#include <QGridLayout>
#include <QToolButton>

#include "base/translated_texts.hpp"
#include "device/text_painting.hpp"
#include "plot/plot_engine.hpp"
#include "plot/zoom_window.hpp"
#include "shell/failure_box.hpp"
#include "shell/icons/icon_set.hpp"
#include "shell/qt_text.hpp"
#include "shell/viewer/grafica.hpp"

namespace korven::shell {

using plot::Direzione;
using plot::PassoSpostamento;

namespace {

constexpr int latoIcona = 22;
constexpr int margine = 3;
constexpr int distacco = 7;  // between the groups of buttons

constexpr const char* ingrandimento = "Ingrandimento di una sezione di immagine";

}  // namespace

struct GRAFICA::Pulsante {
    enum Posto { sotto, nuovoGruppo, sopraIlPrecedente, inFondo };

    const char* nome;
    const char* suggerimento;  // Italian
    const char* icona;
    std::function<void()> azione;
    Posto posto = sotto;
    bool conZoom = false;  // of use only while a zoom is in force
};

std::vector<GRAFICA::Pulsante> GRAFICA::pulsanti() {
    const auto sposta = [](Direzione direzione, PassoSpostamento passo) {
        return [=] { plot::plotSposta(direzione, passo); };
    };
    constexpr auto breve = PassoSpostamento::breve;
    constexpr auto lungo = PassoSpostamento::lungo;
    using enum Pulsante::Posto;
    return {
        {"Picture1", ingrandimento, "zoom_in", [this] { arma(); }},
        {"Picture8", ingrandimento, "zoom_in", [this] { disarma(); }, sopraIlPrecedente},
        {"Picture2", "Ritorno all'immagine a tutto schermo", "whole", [this] { tutto(); }},
        {"Picture3", "Invio dell'immagine alla stampante", "print", [this] { stampa(false); },
         nuovoGruppo},
        {"Picture5",
         "Invio alla stampante dell'immagine ridotta alle dimensioni del foglio disponibile",
         "print_fitted", [this] { stampa(true); }},
        {"Picture4", "Esportazione dell'immagine in formato DXF", "dxf", [this] { esportaDxf(); }},
        {"Picture17", "Salvataggio dell'immagine in formato PDF, SVG o PNG", "picture_file",
         [this] { esportaImmagine(); }},
        {"Picture9", "Spostamento a sinistra di 1/4 della finestra di zoom", "left",
         sposta(Direzione::sinistra, breve), nuovoGruppo, true},
        {"Picture10", "Spostamento a destra di 1/4 della finestra di zoom", "right",
         sposta(Direzione::destra, breve), sotto, true},
        {"Picture11", "Spostamento in alto di 1/4 della finestra di zoom", "up",
         sposta(Direzione::alto, breve), sotto, true},
        {"Picture12", "Spostamento in basso di 1/4 della finestra di zoom", "down",
         sposta(Direzione::basso, breve), sotto, true},
        {"Picture13", "Spostamento a sinistra della finestra di zoom", "far_left",
         sposta(Direzione::sinistra, lungo), nuovoGruppo, true},
        {"Picture14", "Spostamento a destra della finestra di zoom", "far_right",
         sposta(Direzione::destra, lungo), sotto, true},
        {"Picture15", "Spostamento in alto della finestra di zoom", "far_up",
         sposta(Direzione::alto, lungo), sotto, true},
        {"Picture16", "Spostamento in basso della finestra di zoom", "far_down",
         sposta(Direzione::basso, lungo), sotto, true},
        {"Picture6", "Uscita dall'anteprima", "exit", [this] { close(); }, inFondo},
    };
}

QToolButton* GRAFICA::farePulsante(const Pulsante& pulsante, QWidget* padre) {
    auto* fatto = new QToolButton(padre);
    const QString suggerimento = qt(base::traduttore(pulsante.suggerimento));
    fatto->setObjectName(QLatin1String(pulsante.nome));
    fatto->setToolTip(suggerimento);
    fatto->setAccessibleName(suggerimento);
    fatto->setIcon(icona(pulsante.icona));
    fatto->setIconSize(QSize(latoIcona, latoIcona));
    fatto->setAutoRaise(true);
    fatto->setFocusPolicy(Qt::StrongFocus);
    connect(fatto, &QToolButton::clicked, this,
            [this, azione = pulsante.azione] { conAvviso(dialogo_, azione); });
    return fatto;
}

QWidget* GRAFICA::fareStriscia() {
    auto* striscia = new QFrame(this);
    striscia->setObjectName(QStringLiteral("striscia"));
    striscia->setFrameShape(QFrame::StyledPanel);
    auto* colonna = new QGridLayout(striscia);
    colonna->setContentsMargins(margine, margine, margine, margine);
    colonna->setVerticalSpacing(0);
    int riga = -1;
    for (const Pulsante& pulsante : pulsanti()) {
        QToolButton* fatto = farePulsante(pulsante, striscia);
        if (pulsante.posto == Pulsante::nuovoGruppo) colonna->setRowMinimumHeight(++riga, distacco);
        if (pulsante.posto == Pulsante::inFondo) colonna->setRowStretch(++riga, 1);
        if (pulsante.posto == Pulsante::sopraIlPrecedente)
            armato_ = fatto;
        else
            ++riga;
        if (riga == 0 && armato_ == nullptr) ingrandisci_ = fatto;
        if (pulsante.conZoom) spostamenti_.push_back(fatto);
        colonna->addWidget(fatto, riga, 0);
    }
    armato_->setCheckable(true);
    armato_->setChecked(true);
    armato_->setAutoFillBackground(true);
    armato_->hide();
    return striscia;
}

}  // namespace korven::shell
