#include "shell/companions/button_row.hpp"

#include "shell/icons/icon_set.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

FilaPulsanti::FilaPulsanti(QWidget& finestra) : QWidget(&finestra), fila_(new QHBoxLayout(this)) {
    fila_->setContentsMargins(0, 0, 0, 0);
}

QPushButton* FilaPulsanti::nuovo(const char* nome, const char* testo, std::string_view figura) {
    auto* fatto = new QPushButton(icona(figura), tradotto(testo), this);
    fatto->setObjectName(QLatin1String(nome));
    fatto->setAutoDefault(true);
    fila_->addWidget(fatto);
    return fatto;
}

}  // namespace korven::shell
