#include "shell/tools/pattern_choice.hpp"

#include <QHBoxLayout>
#include <QListWidget>
#include <QVBoxLayout>
#include <utility>

#include "base/colon.hpp"
#include "base/file_error.hpp"
#include "project/project_data.hpp"
#include "shell/form_sizes.hpp"
#include "shell/forms/confirm_buttons.hpp"
#include "shell/forms/headed_item.hpp"
#include "shell/picture/state_picture.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

namespace {

constexpr int datoDescrizione = Qt::UserRole + 1;
constexpr QSize misuraComoda(940, 540);
constexpr int larghezzaLista = 400;  // at least, so that headings take two lines

}  // namespace

SceltaModello::SceltaModello(std::vector<commands::Modello> modelli, QWidget* genitore)
    : QDialog(genitore), modelli_(std::move(modelli)), lista_(new QListWidget(this)) {
    setObjectName(QStringLiteral("modelli"));
    setWindowTitle(tradotto("Punto di partenza del nuovo progetto"));
    lista_->setObjectName(QStringLiteral("lista"));
    lista_->setAccessibleName(windowTitle());
    lista_->setItemDelegate(
        new DelegatoIntestato({.titolo = Qt::DisplayRole, .testo = datoDescrizione}, lista_));
    lista_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lista_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    lista_->setResizeMode(QListView::Adjust);
    aggiungi(tradotto("Valori iniziali"), tradotto("Nessuno strato, nessun tirante, nessuna fase"));
    for (const auto& modello : modelli_) aggiungi(qt(modello.nome), qt(modello.descrizione));
    lista_->setCurrentRow(0);
    connect(lista_, &QListWidget::itemActivated, this, &QDialog::accept);
    lista_->setMinimumWidth(larghezzaLista);
    auto* fila = new QHBoxLayout;
    fila->addWidget(lista_, 1);
    quadro_ = new QVBoxLayout;
    fila->addLayout(quadro_, 1);
    connect(lista_, &QListWidget::currentRowChanged, this, &SceltaModello::mostraFigura);
    mostraFigura();
    auto* colonna = new QVBoxLayout(this);
    colonna->addLayout(fila, 1);
    colonna->addWidget(pulsantiConferma(*this, [this] { accept(); }));
    prendiMisura(*this, misuraComoda);
    connect(this, &QDialog::finished, this, [this] { ricordaMisure(*this); });
    lista_->setFocus();
}

void SceltaModello::aggiungi(const QString& nome, const QString& descrizione) {
    auto* voce = new QListWidgetItem(nome, lista_);
    voce->setData(datoDescrizione, descrizione);
    voce->setData(Qt::AccessibleTextRole, nome + qt(base::duePunti()) + descrizione);
}

// A pattern that can't be read any more is told when it is taken.
void SceltaModello::mostraFigura() {
    project::DatiProgetto dati;
    project::azzera(dati);
    try {
        if (const std::string percorso = scelto(); !percorso.empty())
            dati = commands::leggiModello(percorso);
    } catch (const base::ErroreFile&) {
        project::azzera(dati);
    }
    if (const auto* prima = quadro_->takeAt(0)) {
        delete prima->widget();
        delete prima;
    }
    quadro_->addWidget(new QuadroStato(dati, this));
}

std::string SceltaModello::scelto() const {
    const int riga = lista_->currentRow();
    return riga < 1 ? std::string() : modelli_.at(static_cast<std::size_t>(riga - 1)).percorso;
}

std::optional<std::string> chiediModello(std::vector<commands::Modello> modelli, QWidget* sopra) {
    SceltaModello forma(std::move(modelli), sopra);
    if (forma.exec() != QDialog::Accepted) return std::nullopt;
    return forma.scelto();
}

}  // namespace korven::shell
