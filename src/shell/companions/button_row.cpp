#include "shell/companions/button_row.hpp"

#include <utility>

#include "shell/icons/icon_set.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

FilaPulsanti::FilaPulsanti(QWidget& finestra)
    : QWidget(&finestra), finestra_(finestra), fila_(new QHBoxLayout(this)) {
    fila_->setContentsMargins(0, 0, 0, 0);
}

QPushButton* FilaPulsanti::aggiungiGuida(std::function<void()> apre) {
    const bool guida = static_cast<bool>(apre);
    auto* fatto = aggiungi("guida", "&Help", "help", std::move(apre));
    fatto->setVisible(guida);
    return fatto;
}

void FilaPulsanti::finisci() {
    fila_->addStretch();
    aggiungi("chiudi", "&Chiudi", "close", [this] { finestra_.close(); });
}

QPushButton* FilaPulsanti::nuovo(const char* nome, const char* testo, std::string_view figura) {
    auto* fatto = new QPushButton(icona(figura), tradotto(testo), this);
    fatto->setObjectName(QLatin1String(nome));
    fatto->setAutoDefault(true);
    fila_->addWidget(fatto);
    return fatto;
}

}  // namespace korven::shell
