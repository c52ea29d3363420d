#include "shell/masks/form_frame.hpp"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <algorithm>
#include <utility>
#include <vector>

#include "base/code_page.hpp"
#include "help/contexts.hpp"
#include "masks/field_model.hpp"
#include "shell/form_sizes.hpp"
#include "shell/place_beside.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

namespace {

constexpr int larghezzaCarattere = 4;  // 60 twips at 96 dots an inch; more where a style needs it

}  // namespace

FormaMaschera::FormaMaschera(const masks::Maschera& maschera, base::Dialogo& dialogo,
                             GuidaForme guida, const QString& nome, QWidget* padre)
    : QDialog(padre), maschera_(maschera), dialogo_(dialogo), guida_(std::move(guida)) {
    setObjectName(QStringLiteral("%1_%2").arg(nome).arg(maschera.contesto));
    setWindowTitle(qt(maschera.titolo));
    setProperty("contestoGuida", help::contestoGuida(maschera.contesto));
    connect(this, &QDialog::finished, this, [this] { ricordaMisure(*this); });
}

QWidget* FormaMaschera::farePulsanti(const std::function<void(std::size_t)>& premuto) {
    auto* riga = new QWidget(this);
    auto* fila = new QHBoxLayout(riga);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->addStretch();
    std::vector<QPushButton*> tutti;
    int larghezza = 0;
    for (std::size_t i = 0; i < maschera_.pulsanti.size(); ++i) {
        const std::string& testo = maschera_.pulsanti[i];
        auto* pulsante = new QPushButton(qt(testo), riga);
        pulsante->setObjectName(QStringLiteral("Command1_%1").arg(i));
        pulsante->setAutoDefault(false);  // Enter belongs to the fields
        pulsante->setFocusPolicy(Qt::TabFocus);
        pulsante->installEventFilter(this);
        connect(pulsante, &QPushButton::clicked, this, [premuto, i] { premuto(i); });
        larghezza = std::max({larghezza, pulsante->sizeHint().width(),
                              larghezzaCarattere * static_cast<int>(base::numeroCaratteri(testo))});
        fila->addWidget(pulsante);
        tutti.push_back(pulsante);
    }
    for (auto* pulsante : tutti) pulsante->setMinimumWidth(larghezza);
    return riga;
}

void FormaMaschera::disponi(QSize comoda) {
    prendiMisura(*this, comoda);
    if (!isMaximized()) move(screen()->availableGeometry().center() - rect().center());
}

void FormaMaschera::disponiAccanto(QSize comoda) {
    if (!prendiMisura(*this, comoda) && !collocaAccanto(*this))
        move(screen()->availableGeometry().center() - rect().center());
}

bool FormaMaschera::apriGuida() {
    return guida_ && guida_(help::contestoGuida(maschera_.contesto));
}

void FormaMaschera::mostraGuida() {
    if (!guida_ || !guida_(help::contestoGuida(masks::voceGuida(maschera_))))
        masks::mostraRiferimento(maschera_, dialogo_);
}

// Without a default button Enter would do nothing on a button that has the focus.
bool FormaMaschera::eventFilter(QObject* oggetto, QEvent* evento) {
    auto* pulsante = qobject_cast<QAbstractButton*>(oggetto);
    if (pulsante != nullptr && evento->type() == QEvent::KeyPress) {
        const int tasto = static_cast<QKeyEvent*>(evento)->key();
        if (tasto == Qt::Key_Return || tasto == Qt::Key_Enter) {
            pulsante->click();
            return true;
        }
    }
    return QDialog::eventFilter(oggetto, evento);
}

}  // namespace korven::shell
