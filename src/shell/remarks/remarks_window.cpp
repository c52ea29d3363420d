#include "shell/remarks/remarks_window.hpp"

#include <QEvent>
#include <QKeyEvent>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "base/colon.hpp"
#include "shell/companions/button_row.hpp"
#include "shell/forms/wrapped_label.hpp"
#include "shell/qt_text.hpp"
#include "shell/remarks/remark_delegate.hpp"

namespace korven::shell {

namespace {

constexpr const char* proprietaPagina = "paginaGuida";
constexpr QSize misuraComoda(640, 420);

bool stessa(const review::Osservazione& una, const review::Osservazione& altra) {
    return una.codice == altra.codice && una.campi == altra.campi;
}

}  // namespace

FinestraOsservazioni::FinestraOsservazioni(QWidget& principale, Azioni azioni)
    : FinestraCompagna(principale, QStringLiteral("osservazioni"),
                       tradotto("Osservazioni sul progetto"), misuraComoda),
      azioni_(std::move(azioni)) {
    conteggio_ = etichettaInRighe("conteggio", this);
    lista_ = new QListWidget(this);
    lista_->setObjectName(QStringLiteral("lista"));
    lista_->setAccessibleName(windowTitle());
    lista_->setItemDelegate(new DelegatoOsservazioni(lista_));
    lista_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lista_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    lista_->setResizeMode(QListView::Adjust);
    auto* colonna = new QVBoxLayout(this);
    colonna->addWidget(conteggio_);
    colonna->addWidget(lista_, 1);
    colonna->addWidget(farePulsanti());
    connect(lista_, &QListWidget::currentRowChanged, this, [this] { scelta(); });
    connect(lista_, &QListWidget::itemDoubleClicked, this, [this] { apri(); });
    lista_->installEventFilter(this);
    lista_->setFocus();
    scelta();
}

QWidget* FinestraOsservazioni::farePulsanti() {
    auto* riga = new FilaPulsanti(*this);
    apri_ = riga->aggiungi("apri", "&Apri il campo", "look", [this] { apri(); });
    guida_ =
        riga->aggiungiGuida(azioni_.guida ? [this] { mostraGuida(); } : std::function<void()>());
    riga->finisci();
    return riga;
}

void FinestraOsservazioni::mostra(const review::Osservazioni& osservazioni,
                                  const std::string& conteggio) {
    conteggio_->setText(qt(conteggio));
    int riga = std::max(lista_->currentRow(), 0);
    if (const auto* prima = corrente()) {
        const auto ancora = std::find_if(osservazioni.begin(), osservazioni.end(),
                                         [&](const auto& o) { return stessa(o, *prima); });
        if (ancora != osservazioni.end()) riga = static_cast<int>(ancora - osservazioni.begin());
    }
    const QSignalBlocker durante(lista_);
    lista_->clear();
    mostrate_ = osservazioni;
    for (const auto& osservazione : mostrate_) {
        auto* voce = new QListWidgetItem(qt(osservazione.testo), lista_);
        const QString peso = tradotto(parolaMostrata(osservazione.peso));
        voce->setData(datoPeso, peso);
        voce->setData(datoNumeroPeso, static_cast<int>(osservazione.peso));
        voce->setData(Qt::AccessibleTextRole, peso + qt(base::duePunti()) + voce->text());
    }
    lista_->setCurrentRow(std::min(riga, lista_->count() - 1));
    scelta();
}

const review::Osservazione* FinestraOsservazioni::corrente() const {
    const int riga = lista_->currentRow();
    if (riga < 0 || riga >= static_cast<int>(mostrate_.size())) return nullptr;
    return &mostrate_[static_cast<std::size_t>(riga)];
}

// F1 asks for the page of the current remark (porta.hpp).
void FinestraOsservazioni::scelta() {
    const auto* quale = corrente();
    setProperty(proprietaPagina, quale != nullptr ? qt(quale->guida) : QString());
    guida_->setEnabled(quale != nullptr);
    apri_->setEnabled(quale != nullptr && principale().isEnabled() && azioni_.apribile(*quale));
}

void FinestraOsservazioni::apri() {
    // A copy: the form changes the project, and with it the list.
    if (const auto* quale = corrente(); quale != nullptr && apri_->isEnabled())
        azioni_.apri(review::Osservazione(*quale));
}

void FinestraOsservazioni::mostraGuida() {
    if (const auto* quale = corrente()) azioni_.guida(std::string(quale->guida));
}

bool FinestraOsservazioni::eventFilter(QObject* oggetto, QEvent* evento) {
    if (oggetto == &principale() && evento->type() == QEvent::EnabledChange) scelta();
    if (oggetto == lista_ && evento->type() == QEvent::KeyPress) {
        const int tasto = static_cast<QKeyEvent*>(evento)->key();
        if (tasto == Qt::Key_Return || tasto == Qt::Key_Enter) {
            apri();
            return true;
        }
    }
    return FinestraCompagna::eventFilter(oggetto, evento);
}

}  // namespace korven::shell
