#include "shell/panels/anchor_fields.hpp"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "shell/icons/icon_set.hpp"
#include "shell/qt_text.hpp"
#include "shell/wrapped_text.hpp"

namespace korven::shell {

namespace {

using panels::VoceCalcolo;

constexpr int larghezzaCampo = 8;  // digits

void menoLargo(QComboBox& scelta) {
    scelta.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    scelta.setMinimumContentsLength(larghezzaCampo);
}

}  // namespace

CampiTirante::CampiTirante(panels::IngressiCalcolo& ingressi)
    : ingressi_(ingressi), storia_(ingressi), griglia_(new QGridLayout(this)) {
    griglia_->setContentsMargins(0, 0, 0, 0);
    constexpr int fitto = 2;
    griglia_->setVerticalSpacing(fitto);
    griglia_->setColumnStretch(0, 3);
    griglia_->setColumnStretch(1, 2);
    fareScelte();
    fareRiga(VoceCalcolo::modulo, fareModulo());
    for (const auto voce : {VoceCalcolo::numero, VoceCalcolo::misura, VoceCalcolo::lunghezza,
                            VoceCalcolo::interasse, VoceCalcolo::inclinazione})
        fareRiga(voce, fareCasella(voce));
    area_ = fareConto("calcoloArea");
    rigidezza_ = fareConto("calcoloRigidezza");
    scriviRigidezza_ = farePulsante("scriviRigidezza");
    fareRiga(VoceCalcolo::forza, fareCasella(VoceCalcolo::forza));
    pretensione_ = fareConto("calcoloPretensione");
    scriviPretensione_ = farePulsante("scriviPretensione");
    // What is typed next is meant for the calculation, not for the row of the table.
    connect(scriviRigidezza_, &QPushButton::clicked, this, [this] {
        emit scriviRigidezza(panels::rigidezza(ingressi_).testo());
        campi_[static_cast<std::size_t>(VoceCalcolo::forza)]->setFocus();
    });
    connect(scriviPretensione_, &QPushButton::clicked, this, [this] {
        emit scriviPretensione(panels::pretensione(ingressi_).testo());
        scriviPretensione_->setFocus();
    });
    ordinaTab();
    mostra();
}

// As they stand: the choice of area or diameter is beside its value.
void CampiTirante::ordinaTab() {
    const auto campo = [this](VoceCalcolo voce) { return campi_[static_cast<std::size_t>(voce)]; };
    QWidget* prima = genere_;
    for (QWidget* dopo :
         {campo(VoceCalcolo::modulo), campo(VoceCalcolo::numero), static_cast<QWidget*>(misura_),
          campo(VoceCalcolo::misura), campo(VoceCalcolo::lunghezza), campo(VoceCalcolo::interasse),
          campo(VoceCalcolo::inclinazione), static_cast<QWidget*>(scriviRigidezza_),
          campo(VoceCalcolo::forza), static_cast<QWidget*>(scriviPretensione_)}) {
        setTabOrder(prima, dopo);
        prima = dopo;
    }
}

// The list of moduli says what each is of; chosen, it is a number.
QComboBox* CampiTirante::fareModulo() {
    auto* modulo = new QComboBox(this);
    modulo->setObjectName(QStringLiteral("calcolo0"));
    modulo->setEditable(true);
    modulo->setInsertPolicy(QComboBox::NoInsert);
    for (const auto proposto : panels::moduliProposti) modulo->addItem(qt(proposto));
    menoLargo(*modulo);
    const QString quali = tradotto("195000 trefoli, 200000 barre, 210000 profili e tubi");
    modulo->setToolTip(quali);
    modulo->setAccessibleDescription(quali);
    modulo->lineEdit()->setAlignment(Qt::AlignRight);
    modulo->setEditText(qt(ingressi_.testo(VoceCalcolo::modulo)));
    connect(modulo, &QComboBox::editTextChanged, this,
            [this](const QString& testo) { scritta(VoceCalcolo::modulo, testo); });
    return modulo;
}

void CampiTirante::fareScelte() {
    genere_ = new QComboBox(this);
    genere_->setObjectName(QStringLiteral("calcoloGenere"));
    genere_->setAccessibleName(tradotto("Che cosa si calcola"));
    genere_->setAccessibleDescription(genere_->accessibleName());
    genere_->setWhatsThis(
        tradotto("Che cosa sta nella riga: un tirante, un puntone contro un "
                 "appoggio che non si muove, o un puntone tra due pareti uguali."));
    genere_->addItems({tradotto("Tirante"), tradotto("Puntone contro un appoggio fisso"),
                       tradotto("Puntone tra due paratie uguali: conta metà lunghezza")});
    genere_->setCurrentIndex(static_cast<int>(ingressi_.genere));
    misura_ = new QComboBox(this);
    misura_->setObjectName(QStringLiteral("calcoloMisura"));
    misura_->setAccessibleName(tradotto("Come si dà l'area"));
    misura_->setAccessibleDescription(misura_->accessibleName());
    misura_->setWhatsThis(
        tradotto("Se si dà l'area di un trefolo, di una barra o di un profilo, o "
                 "il diametro di una barra piena."));
    auto ingressi = ingressi_;
    for (const auto misura : {panels::MisuraArea::area, panels::MisuraArea::diametro}) {
        ingressi.misuraArea = misura;
        misura_->addItem(qt(panels::etichetta(VoceCalcolo::misura, ingressi)));
    }
    misura_->setCurrentIndex(static_cast<int>(ingressi_.misuraArea));
    for (auto* scelta : {genere_, misura_}) menoLargo(*scelta);
    connect(genere_, &QComboBox::currentIndexChanged, this, [this](int quale) {
        storia_.scegli(static_cast<panels::GenereAncoraggio>(quale));
        cambiata();
    });
    connect(misura_, &QComboBox::currentIndexChanged, this, [this](int quale) {
        storia_.scegli(static_cast<panels::MisuraArea>(quale));
        cambiata();
    });
    griglia_->addWidget(genere_, 0, 0, 1, 2);
}

// The choice of area or diameter stands in place of a label.
void CampiTirante::fareRiga(VoceCalcolo voce, QWidget* campo) {
    const int riga = griglia_->rowCount();
    campi_[static_cast<std::size_t>(voce)] = campo;
    griglia_->addWidget(campo, riga, 1);
    if (voce == VoceCalcolo::misura) {
        griglia_->addWidget(misura_, riga, 0);
        return;
    }
    auto* etichetta = new QLabel(this);
    etichetta->setWordWrap(true);
    etichetta->setBuddy(campo);
    etichette_[static_cast<std::size_t>(voce)] = etichetta;
    griglia_->addWidget(etichetta, riga, 0);
}

QLineEdit* CampiTirante::fareCasella(VoceCalcolo voce) {
    auto* casella = new QLineEdit(qt(ingressi_.testo(voce)), this);
    casella->setObjectName(QStringLiteral("calcolo%1").arg(static_cast<int>(voce)));
    casella->setAlignment(Qt::AlignRight);
    connect(casella, &QLineEdit::textChanged, this,
            [this, voce](const QString& testo) { scritta(voce, testo); });
    return casella;
}

QLabel* CampiTirante::fareConto(const char* nome) {
    auto* conto = new QLabel(this);
    conto->setObjectName(QLatin1String(nome));
    conto->setWordWrap(true);
    conto->setTextInteractionFlags(Qt::TextSelectableByMouse);
    griglia_->addWidget(conto, griglia_->rowCount(), 0, 1, 2);
    return conto;
}

QPushButton* CampiTirante::farePulsante(const char* nome) {
    auto* pulsante = new QPushButton(icona("calculator"), {}, this);
    pulsante->setObjectName(QLatin1String(nome));
    pulsante->setAutoDefault(false);
    pulsante->setFocusPolicy(Qt::TabFocus);
    griglia_->addWidget(pulsante, griglia_->rowCount(), 0, 1, 2);
    return pulsante;
}

void CampiTirante::perRiga(int riga) {
    const std::string numero = std::to_string(riga);
    scriviRigidezza_->setText(
        qt(base::riempito(base::traduttore("Scrivi la rigidezza nella riga %1"), {numero})));
    scriviPretensione_->setText(
        qt(base::riempito(base::traduttore("Scrivi la pretensione nella riga %1"), {numero})));
}

// Also by what takes a text back, which stands in the inputs already.
void CampiTirante::scritta(VoceCalcolo voce, const QString& testo) {
    if (testo.toStdString() == ingressi_.testo(voce)) return;
    storia_.scrivi(voce, testo.toStdString());
    cambiata();
}

bool CampiTirante::torna(std::optional<std::size_t> posto) {
    if (!posto) return false;
    const QSignalBlocker scelte[] = {QSignalBlocker(genere_), QSignalBlocker(misura_)};
    genere_->setCurrentIndex(static_cast<int>(ingressi_.genere));
    misura_->setCurrentIndex(static_cast<int>(ingressi_.misuraArea));
    for (std::size_t i = 0; i < panels::numeroVoci; ++i) {
        auto* scelta = qobject_cast<QComboBox*>(campi_[i]);
        auto* casella = scelta != nullptr ? scelta->lineEdit() : static_cast<QLineEdit*>(campi_[i]);
        if (casella->text() != qt(ingressi_.testi[i])) casella->setText(qt(ingressi_.testi[i]));
    }
    QWidget* dove = *posto == panels::StoriaCalcolo::genere   ? genere_
                    : *posto == panels::StoriaCalcolo::misura ? misura_
                                                              : campi_[*posto];
    dove->setFocus();
    cambiata();
    return true;
}

void CampiTirante::cambiata() {
    mostra();
    emit digitata();
}

void CampiTirante::mostra() {
    for (std::size_t i = 0; i < panels::numeroVoci; ++i) {
        const QString nome = qt(panels::etichetta(static_cast<VoceCalcolo>(i), ingressi_));
        if (etichette_[i] != nullptr) etichette_[i]->setText(nome);
        campi_[i]->setAccessibleName(nome);
        campi_[i]->setWhatsThis(qt(panels::spiegazione(static_cast<VoceCalcolo>(i), ingressi_)));
        if (auto* scelta = qobject_cast<QComboBox*>(campi_[i]))
            scelta->lineEdit()->setAccessibleName(nome);
    }
    const auto k = panels::rigidezza(ingressi_), p = panels::pretensione(ingressi_);
    const auto A = panels::area(ingressi_);
    area_->setVisible(A.valore.has_value());  // what it lacks is told by the stiffness
    area_->setText(inRighe(A.conto));
    rigidezza_->setText(inRighe(k.conto));
    pretensione_->setText(inRighe(p.conto));
    scriviRigidezza_->setEnabled(k.valore.has_value());
    scriviPretensione_->setEnabled(p.valore.has_value());
}

}  // namespace korven::shell
