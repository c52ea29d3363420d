#include "shell/panels/hatch_chooser.hpp"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "base/code_page.hpp"
#include "base/colon.hpp"
#include "base/translated_texts.hpp"
#include "shell/form_sizes.hpp"
#include "shell/forms/scrolled_part.hpp"
#include "shell/panels/hatch_picture.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

namespace {

using drawings::SceltaCampitura;

constexpr QSize tassello(48, 48), cella(104, 94), campione(144, 96), misuraComoda(760, 500);
constexpr QSize tasselloColore(32, 16);

}  // namespace

SceglieCampitura::SceglieCampitura(std::string descrStrato, QWidget* padre)
    : QDialog(padre),
      scelta_(std::move(descrStrato)),
      voci_(drawings::vociCampitura()),
      colori_(drawings::vociColore()) {
    setObjectName(QStringLiteral("SceglieCampitura"));
    setWindowTitle(tradotto("Campitura dello strato"));
    auto* fila = new QHBoxLayout;
    fila->addWidget(fareLista(), 1);
    fila->addWidget(new ParteScorrevole(fareScelta(), this));
    auto* pulsanti = new QDialogButtonBox(this);
    auto* conferma = pulsanti->addButton(tradotto("&Conferma"), QDialogButtonBox::AcceptRole);
    conferma->setObjectName(QStringLiteral("conferma"));
    auto* annulla = pulsanti->addButton(tradotto("&Annulla"), QDialogButtonBox::RejectRole);
    annulla->setObjectName(QStringLiteral("annulla"));
    connect(pulsanti, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(pulsanti, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* colonna = new QVBoxLayout(this);
    colonna->addLayout(fila, 1);
    descrizione_ = new QLabel(this);
    descrizione_->setObjectName(QStringLiteral("descrizione"));
    descrizione_->setTextFormat(Qt::PlainText);
    descrizione_->setWordWrap(true);
    colonna->addWidget(descrizione_);
    colonna->addWidget(pulsanti);
    prendiMisura(*this, misuraComoda.expandedTo(sizeHint()));
    dipingiLista();
    seguiLivello();
    mostra();
    cerca_->setFocus();
}

QWidget* SceglieCampitura::fareLista() {
    auto* parte = new QWidget(this);
    auto* colonna = new QVBoxLayout(parte);
    colonna->setContentsMargins(0, 0, 0, 0);
    cerca_ = new QLineEdit(parte);
    cerca_->setObjectName(QStringLiteral("cerca"));
    cerca_->setPlaceholderText(tradotto("nome o numero della campitura"));
    cerca_->setClearButtonEnabled(true);
    auto* etichetta = new QLabel(tradotto("Ce&rca:"), parte);
    etichetta->setBuddy(cerca_);
    auto* riga = new QHBoxLayout;
    riga->addWidget(etichetta);
    riga->addWidget(cerca_, 1);
    colonna->addLayout(riga);
    lista_ = new QListWidget(parte);
    lista_->setObjectName(QStringLiteral("campiture"));
    lista_->setAccessibleName(tradotto("Campiture"));
    lista_->setViewMode(QListView::IconMode);
    lista_->setMovement(QListView::Static);
    lista_->setResizeMode(QListView::Adjust);
    lista_->setIconSize(tassello);
    lista_->setGridSize(cella);
    lista_->setWordWrap(true);
    lista_->setTextElideMode(Qt::ElideRight);
    for (const auto& voce : voci_) {
        const QString nome = qt(voce.nome);
        auto* posto = new QListWidgetItem(nome, lista_);
        posto->setToolTip(nome);
        posto->setTextAlignment(Qt::AlignHCenter | Qt::AlignTop);
    }
    colonna->addWidget(lista_, 1);
    connect(cerca_, &QLineEdit::textChanged, this, [this](const QString& t) { filtra(t); });
    connect(lista_, &QListWidget::currentRowChanged, this, [this] { scegli(); });
    connect(lista_, &QListWidget::itemActivated, this, &QDialog::accept);
    cerca_->installEventFilter(this);
    return parte;
}

QWidget* SceglieCampitura::fareScelta() {
    auto* parte = new QWidget(this);
    auto* colonna = new QVBoxLayout(parte);
    colonna->setContentsMargins(0, 0, 0, 0);
    immagine_ = new QLabel(parte);
    immagine_->setObjectName(QStringLiteral("immagine"));
    immagine_->setFixedSize(campione);
    colonna->addWidget(immagine_, 0, Qt::AlignHCenter);
    colonna->addWidget(fareLivello(SceltaCampitura::sotto, tradotto("Ca&mpitura")));
    colonna->addWidget(fareLivello(SceltaCampitura::sopra, tradotto("Sopra di e&ssa")));
    livelli_[SceltaCampitura::sotto].scelto->setChecked(true);
    auto* modulo = new QFormLayout;
    colore_ = new QComboBox(parte);
    colore_->setObjectName(QStringLiteral("colore"));
    riempiColori();
    modulo->addRow(tradotto("C&olore:"), colore_);
    colonna->addLayout(modulo);
    linea_ = new QCheckBox(tradotto("&Linea al piede dello strato"), parte);
    linea_->setObjectName(QStringLiteral("linea"));
    linea_->setChecked(scelta_.lineaAlPiede());
    colonna->addWidget(linea_);
    colonna->addStretch();
    connect(colore_, &QComboBox::currentIndexChanged, this, [this](int indice) {
        scelta_.colora(indice + 1);
        dipingiLista();
        mostra();
    });
    connect(linea_, &QCheckBox::toggled, this, [this](bool si) {
        scelta_.traccia(si);
        mostra();
    });
    return parte;
}

QWidget* SceglieCampitura::fareLivello(SceltaCampitura::Livello quale, const QString& nome) {
    Livello& l = livelli_[quale];
    auto* parte = new QWidget(this);
    auto* colonna = new QVBoxLayout(parte);
    colonna->setContentsMargins(0, 0, 0, 0);
    const QString numero = QString::number(static_cast<int>(quale));
    l.scelto = new QRadioButton(nome, parte);
    l.scelto->setObjectName("livello_" + numero);
    l.scelto->setAutoExclusive(false);  // they have different parents
    l.nome = new QLabel(parte);
    l.nome->setObjectName("nome_" + numero);
    l.nome->setTextFormat(Qt::PlainText);
    l.nome->setWordWrap(true);
    l.grandezza = new QSpinBox(parte);
    l.grandezza->setObjectName("grandezza_" + numero);
    l.grandezza->setAccessibleName(qt(
        base::conDuePunti(QString(nome).remove('&').toStdString(), base::traduttore("Grandezza"))));
    l.grandezza->setRange(0, drawings::massimoPasso);
    l.grandezza->setValue(scelta_.gruppo(quale).passo);
    l.grandezza->setToolTip(tradotto("1: la misura normale; ogni quattro passi il doppio"));
    auto* riga = new QHBoxLayout;
    riga->addWidget(
        new QLabel(qt(base::conDuePunti(base::traduttore("Grandezza"), {})).trimmed(), parte));
    riga->addWidget(l.grandezza);
    riga->addStretch();
    colonna->addWidget(l.scelto);
    colonna->addWidget(l.nome);
    colonna->addLayout(riga);
    connect(l.scelto, &QRadioButton::clicked, this, [this, quale] {
        livelli_[0].scelto->setChecked(quale == SceltaCampitura::sotto);
        livelli_[1].scelto->setChecked(quale == SceltaCampitura::sopra);
        seguiLivello();
    });
    connect(l.grandezza, &QSpinBox::valueChanged, this, [this, quale](int passo) {
        scelta_.scegli(quale, {scelta_.gruppo(quale).campitura, passo});
        if (quale == livello()) dipingiLista();
        mostra();
    });
    return parte;
}

void SceglieCampitura::riempiColori() {
    colore_->setIconSize(tasselloColore);
    for (const auto& voce : colori_) {
        QPixmap tinta(tasselloColore);
        tinta.fill(
            QColor(plot::rosso(voce.valore), plot::verde(voce.valore), plot::blu(voce.valore)));
        const QString nome = QString::number(voce.numero);
        colore_->addItem(QIcon(tinta), voce.nome.empty() ? nome : nome + ' ' + qt(voce.nome));
    }
    colore_->setCurrentIndex(scelta_.colore() - 1);
}

plot::Colore SceglieCampitura::coloreScelto() const {
    return colori_.at(static_cast<std::size_t>(scelta_.colore() - 1)).valore;
}

SceltaCampitura::Livello SceglieCampitura::livello() const {
    return livelli_[SceltaCampitura::sopra].scelto->isChecked() ? SceltaCampitura::sopra
                                                                : SceltaCampitura::sotto;
}

// Each picture in the colour and size in force.
void SceglieCampitura::dipingiLista() {
    const int passo = scelta_.gruppo(livello()).passo;
    for (int i = 0; i < lista_->count(); ++i) {
        const int numero = voci_[static_cast<std::size_t>(i)].numero;
        lista_->item(i)->setIcon(immagineCampitura(drawings::codiceCampitura({numero, passo}),
                                                   coloreScelto(), tassello, devicePixelRatioF()));
    }
}

void SceglieCampitura::seguiLivello() {
    const QSignalBlocker durante(lista_);
    const int numero = scelta_.gruppo(livello()).campitura;
    const auto voce = std::find_if(voci_.begin(), voci_.end(),
                                   [numero](const auto& v) { return v.numero == numero; });
    // A number that has no pattern has no picture either.
    lista_->setCurrentRow(voce == voci_.end() ? -1 : static_cast<int>(voce - voci_.begin()));
    if (lista_->currentItem() != nullptr) lista_->scrollToItem(lista_->currentItem());
    dipingiLista();
}

void SceglieCampitura::filtra(const QString& cercato) {
    const std::string parole = cercato.toStdString();
    for (int i = 0; i < lista_->count(); ++i)
        lista_->item(i)->setHidden(!drawings::trovata(voci_[static_cast<std::size_t>(i)], parole));
}

void SceglieCampitura::scegli() {
    const int riga = lista_->currentRow();
    if (riga < 0) return;
    scelta_.scegli(livello(),
                   {voci_[static_cast<std::size_t>(riga)].numero, scelta_.gruppo(livello()).passo});
    mostra();
}

void SceglieCampitura::mostra() {
    for (std::size_t i = 0; i < livelli_.size(); ++i) {
        const auto quale = static_cast<SceltaCampitura::Livello>(i);
        livelli_[i].nome->setText(qt(drawings::nomeCampitura(scelta_.gruppo(quale).campitura)));
    }
    linea_->setEnabled(scelta_.puoTogliereLinea());
    immagine_->setPixmap(
        immagineCampitura(scelta_.campitura(), coloreScelto(), campione, devicePixelRatioF()));
    immagine_->setAccessibleName(tradotto("Campitura dello strato"));
    immagine_->setAccessibleDescription(livelli_[0].nome->text() + ", " + livelli_[1].nome->text());
    descrizione_->setText(qt(base::conDuePunti(
        base::conMaiuscola(base::traduttore("descrizione dello strato")), scelta_.descrizione())));
}

// To the picture that is chosen, or the first one that the search has left.
void SceglieCampitura::entraNellaLista() {
    const auto* qui = lista_->currentItem();
    for (int i = 0; i < lista_->count() && (qui == nullptr || qui->isHidden()); ++i)
        if (!lista_->item(i)->isHidden()) {
            lista_->setCurrentRow(i);
            qui = lista_->item(i);
        }
    lista_->setFocus();
}

void SceglieCampitura::done(int esito) {
    ricordaMisure(*this);
    QDialog::done(esito);
}

bool SceglieCampitura::eventFilter(QObject* oggetto, QEvent* evento) {
    if (oggetto == cerca_ && evento->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(evento)->key() == Qt::Key_Down) {
        entraNellaLista();
        return true;
    }
    return QDialog::eventFilter(oggetto, evento);
}

}  // namespace korven::shell
