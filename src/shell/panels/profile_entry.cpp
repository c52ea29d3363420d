#include "shell/panels/profile_entry.hpp"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>

#include "profiles/catalogue.hpp"
#include "shell/forms/wrapped_label.hpp"
#include "shell/qt_text.hpp"
#include "shell/wrapped_text.hpp"

namespace korven::shell {

namespace {

QLineEdit* fareRiga(const char* nome, const QString& didascalia, QFormLayout& righe) {
    auto* riga = new QLineEdit(righe.parentWidget());
    riga->setObjectName(QLatin1String(nome));
    riga->setMinimumWidth(riga->fontMetrics().averageCharWidth() * 44);
    righe.addRow(didascalia, riga);
    return riga;
}

}  // namespace

NuovoProfilo::NuovoProfilo(project::Parte tipo, const project::Sezione& sezione, QWidget* padre)
    : QDialog(padre), tipo_(tipo), sezione_(sezione) {
    setObjectName(QStringLiteral("NuovoProfilo"));
    setWindowTitle(tradotto("Nuovo profilo del catalogo"));
    auto* righe = new QFormLayout(this);
    righe->setRowWrapPolicy(QFormLayout::DontWrapRows);
    nome_ = fareRiga("nome", tradotto("&Nome:"), *righe);
    fonte_ = fareRiga("fonte", tradotto("&Fonte:"), *righe);
    fonte_->setPlaceholderText(tradotto("tavola del fornitore, edizione, pagina"));
    materiali_ = new QCheckBox(tradotto("anche i &materiali"), this);
    materiali_->setObjectName(QStringLiteral("materiali"));
    materiali_->setChecked(true);
    righe->addRow(QString(), materiali_);
    misure_ = etichettaInRighe("misure", this);
    righe->addRow(tradotto("Misure"), misure_);
    perche_ = etichettaInRighe("perche", this);
    righe->addRow(perche_);
    auto* pulsanti = new QDialogButtonBox(this);
    auto* conferma = pulsanti->addButton(tradotto("&Conferma"), QDialogButtonBox::AcceptRole);
    conferma->setObjectName(QStringLiteral("conferma"));
    auto* annulla = pulsanti->addButton(tradotto("&Annulla"), QDialogButtonBox::RejectRole);
    annulla->setObjectName(QStringLiteral("annulla"));
    righe->addRow(pulsanti);
    connect(pulsanti, &QDialogButtonBox::accepted, this, [this] { tieni(); });
    connect(pulsanti, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(materiali_, &QCheckBox::toggled, this, [this] { mostra(); });
    mostra();
}

profiles::Profilo NuovoProfilo::profilo() const {
    auto p = profiles::profiloDi(tipo_, sezione_, materiali_->isChecked());
    p.nome = nome_->text().trimmed().toStdString();
    p.fonte = fonte_->text().trimmed().toStdString();
    return p;
}

void NuovoProfilo::mostra() { misure_->setText(inRighe(profiles::misureMostrate(profilo()))); }

void NuovoProfilo::tieni() {
    const std::string perche = profiles::aggiungiProfilo(profilo());
    if (perche.empty()) return accept();
    perche_->setText(inRighe(perche));
    (nome_->text().trimmed().isEmpty() || !fonte_->text().trimmed().isEmpty() ? nome_ : fonte_)
        ->setFocus();
}

}  // namespace korven::shell
