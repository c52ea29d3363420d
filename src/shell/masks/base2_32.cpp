#include "shell/masks/base2_32.hpp"

#include <QAbstractButton>
#include <QApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QVBoxLayout>
#include <utility>

#include "masks/column_keys.hpp"
#include "shell/forms/help_strip.hpp"
#include "shell/forms/history_keys.hpp"
#include "shell/masks/grid_view.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

namespace {

constexpr int righeMostrate = 14;
constexpr int larghezzaMinima = 400;

}  // namespace

Base2_32::Base2_32(const masks::Maschera& maschera, const std::vector<std::string>& testi,
                   base::Dialogo& dialogo, GuidaForme guida, QWidget* padre, int capienza)
    : FormaMaschera(maschera, dialogo, std::move(guida), QStringLiteral("base2_32"), padre),
      modello_(maschera, testi, capienza) {
    setWindowTitle(qt(modello_.titolo()));
    QStringList aiuti;
    for (const auto& colonna : maschera.campi) aiuti << qt(masks::aiutoMostrato(colonna.aiuto));
    aiuto_ = new StrisciaAiuto(
        aiuti, [this] { mostraSpiegazione(); }, this);
    aiuto_->setObjectName(QStringLiteral("Label1"));
    griglia_ = new VistaGriglia(
        modello_, dialogo, [this] { cambiata(); }, this);
    digitati_ = modello_.valoriDigitati();
    auto* colonna = new QVBoxLayout(this);
    fila_ = new QHBoxLayout;
    fila_->addWidget(griglia_, 1);
    colonna->addLayout(fila_, 1);
    colonna->addWidget(aiuto_);
    colonna->addWidget(farePulsanti([this](std::size_t pulsante) { azione(pulsante); }));
    setTabOrder(griglia_, aiuto_);
    new TastiStoria(
        *this, [this] { annulla(); }, [this] { ripeti(); });

    const QMargins bordi = colonna->contentsMargins();
    const int larghezza =
        std::max(larghezzaMinima, griglia_->larghezzaColonne() + bordi.left() + bordi.right());
    const int altezza = colonna->totalHeightForWidth(larghezza) - griglia_->sizeHint().height() +
                        griglia_->horizontalHeader()->sizeHint().height() +
                        righeMostrate * griglia_->verticalHeader()->defaultSectionSize();
    disponiAccanto({larghezza, altezza});
    griglia_->aggiorna();
}

void Base2_32::comincia(masks::PostoGriglia posto) {
    modello_.comincia(posto);
    griglia_->aggiorna();
}

// Only now the grid knows how many rows it shows: none is to be scrolled away without need.
void Base2_32::showEvent(QShowEvent* evento) {
    FormaMaschera::showEvent(evento);
    griglia_->scrollToTop();
    griglia_->aggiorna();
}

void Base2_32::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_F1)
        apriGuida();
    else
        FormaMaschera::keyPressEvent(evento);
}

live::ValoriForma Base2_32::valori() const { return {.testi = modello_.valoriDigitati()}; }

void Base2_32::affianca(QWidget* pannello) {
    const int altro = layout()->totalHeightForWidth(width()) - griglia_->sizeHint().height();
    fila_->addWidget(pannello);
    pannello_ = pannello;
    connect(qApp, &QApplication::focusChanged, &ascoltoFuoco_,
            [this](const QWidget* /*prima*/, const QWidget* ora) { segui(ora); });
    for (auto* pulsante : pannello->findChildren<QAbstractButton*>())
        pulsante->installEventFilter(this);  // Enter presses them as it does those of the form
    // As wide as before, and the panel beside it at its whole height, as far as the screen goes.
    const QSize voluta = pannello->sizeHint();
    disponiAccanto(
        {width() + fila_->spacing() + voluta.width(),
         std::max({height(), layout()->minimumSize().height(), voluta.height() + altro})});
}

bool Base2_32::scrivi(masks::PostoGriglia posto, std::string_view testo) {
    const bool scritta = modello_.scrivi(posto, testo, dialogo());
    griglia_->aggiorna();
    return scritta;
}

void Base2_32::sostituisci(const std::vector<std::vector<std::string>>& righe, std::string passo) {
    modello_.sostituisci(righe, std::move(passo), dialogo());
    griglia_->aggiorna();
}

void Base2_32::annulla() {
    griglia_->annulla();
    emit tornata();
}

void Base2_32::ripeti() {
    griglia_->ripeti();
    emit tornata();
}

void Base2_32::nota(const QString& testo) {
    if (testo == nota_) return;
    nota_ = testo;
    spiega();
}

void Base2_32::taci() {
    if (modello_.detto().empty()) return;
    modello_.taci();
    spiega();
}

void Base2_32::vai(masks::PostoGriglia posto) {
    modello_.vaiA(posto, dialogo());
    griglia_->aggiorna();
}

// On its way to the strip, to be read or clicked, and out of the window the text stays.
void Base2_32::segui(const QWidget* fuoco) {
    if (fuoco == nullptr || fuoco == aiuto_ || !isAncestorOf(fuoco)) return;
    const bool pannello = pannello_->isAncestorOf(fuoco);
    spiegato_ = pannello ? fuoco->whatsThis() : QString();
    nomeSpiegato_ = pannello ? fuoco->accessibleName() : QString();
    spiega();
}

void Base2_32::mostraSpiegazione() {
    if (spiegato_.isEmpty()) return modello_.mostraAiuto(dialogo());
    dialogo().messaggio(spiegato_.toStdString(), nomeSpiegato_.toStdString(),
                        base::Icona::informazione);
}

// The grid says that something may have changed: what it was is told to those who follow the form.
void Base2_32::cambiata() {
    spiega();
    auto digitati = modello_.valoriDigitati();
    if (digitati != digitati_) {
        digitati_ = std::move(digitati);
        emit digitata();
    }
    if (posto_ == modello_.corrente()) return;
    posto_ = modello_.corrente();
    emit postoCambiato();
}

void Base2_32::spiega() {
    setWindowTitle(qt(modello_.titolo()));
    const bool inGriglia = spiegato_.isEmpty();
    const bool letto = inGriglia && modello_.detto().empty();
    QStringList note;
    if (!nota_.isEmpty()) note << nota_;
    for (const std::string& nota :
         {modello_.eccesso(), letto ? modello_.lettura() : modello_.detto()})
        if (!nota.empty()) note << qt(nota);
    aiuto_->mostra(inGriglia ? qt(modello_.aiuto()) : spiegato_, note.join(QLatin1Char('\n')));
}

void Base2_32::reject() {
    if (modello_.siPuoLasciare(dialogo())) FormaMaschera::reject();
}

void Base2_32::azione(std::size_t pulsante) {
    switch (masks::azionePulsante(maschera(), pulsante)) {
        case masks::AzioneGriglia::conferma:
            if (modello_.conferma(dialogo())) return accept();
            break;
        case masks::AzioneGriglia::annulla:
            return FormaMaschera::reject();
        case masks::AzioneGriglia::inserisciRiga:
            modello_.inserisciRiga(dialogo());
            break;
        case masks::AzioneGriglia::eliminaRiga:
            modello_.eliminaRiga();
            break;
        case masks::AzioneGriglia::guida:
            mostraGuida();
            break;
    }
    griglia_->aggiorna();
}

}  // namespace korven::shell
