#include "shell/panels/side_panel.hpp"

#include <QToolButton>
#include <QVBoxLayout>

#include "base/colon.hpp"
#include "shell/form_sizes.hpp"
#include "shell/forms/scrolled_part.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

namespace {

QString chiave(const QWidget& pannello) {
    return pannello.objectName() + QStringLiteral("_chiuso");
}

}  // namespace

PannelloLaterale::PannelloLaterale(const QString& nome, const QString& titolo)
    : titolo_(titolo), mostra_(new QToolButton(this)), parte_(new QWidget(this)) {
    setObjectName(nome);
    mostra_->setObjectName(nome + QStringLiteral("_mostra"));
    mostra_->setAutoRaise(true);
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->addWidget(mostra_, 0, Qt::AlignLeft);
    colonna->addWidget(parte_, 1);
    colonna->addStretch();  // below the button of a panel that is folded away
    apri(!ricordiFinestre().value(chiave(*this)).toBool());
    connect(mostra_, &QToolButton::clicked, this, [this] { cambia(!aperto()); });
}

void PannelloLaterale::riempi(QWidget* scorre, QWidget* fisso) {
    auto* colonna = new QVBoxLayout(parte_);
    colonna->setContentsMargins(0, 0, 0, 0);
    if (scorre != nullptr) colonna->addWidget(new ParteScorrevole(scorre, parte_), 1);
    colonna->addWidget(fisso, scorre == nullptr ? 1 : 0);
}

bool PannelloLaterale::aperto() const { return !parte_->isHidden(); }

void PannelloLaterale::apri(bool aperto) {
    parte_->setVisible(aperto);
    mostra_->setArrowType(aperto ? Qt::DownArrow : Qt::LeftArrow);
    mostra_->setToolButtonStyle(aperto ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly);
    mostra_->setText(aperto ? titolo_ : QString());
    const QString cosa = tradotto(aperto ? "Nascondi il pannello" : "Mostra il pannello");
    mostra_->setToolTip(cosa);
    mostra_->setAccessibleName(cosa + qt(base::duePunti()) + titolo_);
}

// The table keeps its width: the form gives up or takes that of the panel, as far as the screen
// goes.
void PannelloLaterale::cambia(bool aperto) {
    const int prima = width();
    apri(aperto);
    ricordiFinestre().setValue(chiave(*this), !aperto);
    const int ora = layout()->totalSizeHint().expandedTo(layout()->totalMinimumSize()).width();
    QWidget& forma = *window();
    if (forma.isMaximized() || forma.isFullScreen()) return;
    const QSize voluta(forma.width() + ora - prima, forma.height());
    forma.resize(voluta.boundedTo(misuraMassima(forma)));
}

}  // namespace korven::shell
