#include "shell/pens/editacfg.hpp"

#include <QButtonGroup>
#include <QEvent>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPixmap>
#include <QRadioButton>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include "base/language.hpp"
#include "base/number_reading.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "device/text_painting.hpp"
#include "masks/field_check.hpp"
#include "shell/failure_box.hpp"
#include "shell/form_sizes.hpp"
#include "shell/forms/confirm_buttons.hpp"
#include "shell/forms/help_strip.hpp"
#include "shell/forms/scrolled_part.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

namespace {

constexpr QSize campione(28, 14);  // of a colour beside its name [pixels]

constexpr const char* aiutoColori = "Doppio clic o F2 per cambiare il colore";
constexpr const char* aiutoSpessore =
    "Spessore delle linee della penna scelta, in millimetri, da 0 a 100.";
constexpr const char* aiutoMargine =
    "Spostamento dei disegni sul foglio, in centimetri, da -10 a 100.";

std::string testoDi(const QString& testo) { return testo.toStdString(); }

QIcon iconaColore(plot::Colore colore, const QWidget& accanto) {
    const double rapporto = accanto.devicePixelRatioF();
    QPixmap immagine(campione * rapporto);
    immagine.setDevicePixelRatio(rapporto);
    immagine.fill(device::qColore(colore));
    QPainter pittore(&immagine);
    pittore.setPen(Qt::gray);
    pittore.drawRect(QRectF(0.5, 0.5, campione.width() - 1, campione.height() - 1));
    pittore.end();
    return immagine;
}

QLineEdit* campoNumero(const char* nome, const QString& descrizione, QWidget* padre) {
    auto* campo = new QLineEdit(padre);
    campo->setObjectName(QLatin1String(nome));
    campo->setAccessibleName(descrizione);
    campo->setAlignment(Qt::AlignRight);
    constexpr int cifreMostrate = 7;
    campo->setFixedWidth(campo->fontMetrics().averageCharWidth() * cifreMostrate + 24);
    return campo;
}

// Makes a list as wide as its longest row needs, but on a small screen leaves room for the rest.
void mostraIntere(QListWidget& lista) {
    constexpr int corniceEBarra = 40;
    const int quota = lista.screen()->availableSize().width() / 3;
    lista.setMinimumWidth(std::min(lista.sizeHintForColumn(0) + corniceEBarra, quota));
}

QLabel* etichetta(const char* testo, QWidget* controllo) {
    auto* fatta = new QLabel(tradotto(testo));
    fatta->setBuddy(controllo);
    return fatta;
}

}  // namespace

Editacfg::Editacfg(PorteEditacfg& porte, base::Dialogo& dialogo, QWidget* padre)
    : QDialog(padre),
      porte_(porte),
      dialogo_(dialogo),
      modello_(plot::fileConfigurazione(base::siglaLingua(base::linguaCorrente()))) {
    setObjectName(QStringLiteral("Editacfg"));
    setWindowTitle(tradotto("SELEZIONE COLORI"));
    auto* colonna = new QVBoxLayout(this);
    colonna->addWidget(new ParteScorrevole(fareTutto(), this), 1);
    colonna->addWidget(fareStriscia());
    colonna->addWidget(pulsantiConferma(*this, [this] { conferma(); }));
    prendiMisura(*this, colonna->sizeHint());
    connect(this, &QDialog::finished, this, [this] { ricordaMisure(*this); });
    penne_->setCurrentRow(0);
    penne_->setFocus();
}

QWidget* Editacfg::fareTutto() {
    auto* tutto = new QWidget(this);
    auto* griglia = new QGridLayout(tutto);
    griglia->setContentsMargins(0, 0, 0, 0);
    griglia->addWidget(farePenne(), 0, 0, 2, 1);
    griglia->addWidget(fareColori(), 0, 1, 2, 1);
    griglia->addWidget(fareCaratteri(), 0, 2);
    griglia->addWidget(fareMargini(), 1, 2);
    griglia->setColumnStretch(0, 3);
    griglia->setColumnStretch(2, 2);
    griglia->setRowStretch(0, 1);
    return tutto;
}

QWidget* Editacfg::farePenne() {
    auto* riquadro = new QGroupBox(tradotto("Penne"), this);
    penne_ = new QListWidget(riquadro);
    penne_->setObjectName(QStringLiteral("List1"));
    penne_->setAccessibleName(riquadro->title());
    for (int i = 1; i <= plot::numeroPenne; ++i)
        penne_->addItem(qt(modello_.configurazione().penne[i].etichetta));
    mostraIntere(*penne_);
    connect(penne_, &QListWidget::currentTextChanged, this, [this](const QString& testo) {
        modello_.scegliPenna(testoDi(testo),
                             [this](const plot::PennaConfigurata& penna) { mostraPenna(penna); });
    });
    spessore_ = campoNumero("Text1", tradotto("Spessore (mm)"), riquadro);
    connect(spessore_, &QLineEdit::textChanged, this,
            [this](const QString& testo) { modello_.cambiaSpessore(testoDi(testo)); });
    auto* griglia = new QGridLayout(riquadro);
    griglia->addWidget(penne_, 0, 0, 1, 2);
    griglia->addWidget(etichetta("Spessore (mm)", spessore_), 1, 0);
    griglia->addWidget(spessore_, 1, 1, Qt::AlignLeft);
    griglia->setColumnStretch(1, 1);
    return riquadro;
}

QWidget* Editacfg::fareColori() {
    auto* riquadro = new QGroupBox(tradotto("Colori"), this);
    riquadro->setToolTip(tradotto(aiutoColori));
    auto* colonna = new QVBoxLayout(riquadro);
    auto* gruppo = new QButtonGroup(riquadro);
    for (int i = 0; i <= plot::numeroColori; ++i) {
        auto* opzione = new QRadioButton(riquadro);
        colori_[static_cast<std::size_t>(i)] = opzione;
        opzione->setObjectName(QStringLiteral("Option1_%1").arg(i));
        opzione->setIconSize(campione);
        opzione->installEventFilter(this);
        gruppo->addButton(opzione, i);
        colonna->addWidget(opzione);
        dipingiColore(i);
    }
    connect(gruppo, &QButtonGroup::idToggled, this, [this](int indice, bool scelto) {
        if (scelto) modello_.cambiaColore(indice);
    });
    return riquadro;
}

void Editacfg::dipingiColore(int indice) {
    QRadioButton* opzione = colori_[static_cast<std::size_t>(indice)];
    if (indice == 0) {
        opzione->setText(tradotto("Non disegnato"));
        return;
    }
    const plot::ColoreConfigurato& colore = modello_.configurazione().colori[indice];
    // In a name "&" is a letter, in a caption it marks the access key.
    opzione->setText(qt(colore.nome).replace(QLatin1Char('&'), QLatin1String("&&")));
    opzione->setIcon(iconaColore(colore.valore, *this));
}

QWidget* Editacfg::fareCaratteri() {
    auto* riquadro = new QGroupBox(tradotto("Set di caratteri"), this);
    caratteri_ = new QListWidget(riquadro);
    caratteri_->setObjectName(QStringLiteral("List2"));
    caratteri_->setAccessibleName(riquadro->title());
    // The fonts of the machine, and those in the file: where one of these is missing, a drawing is
    // written in another of the same widths, and the pen must keep its font all the same.
    QStringList nomi = QFontDatabase::families();
    for (int i = 1; i <= plot::numeroPenne; ++i)
        nomi << qt(modello_.configurazione().penne[i].carattere);
    nomi.removeDuplicates();
    nomi.sort(Qt::CaseInsensitive);
    caratteri_->addItems(nomi);
    mostraIntere(*caratteri_);
    connect(caratteri_, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* scelto) {
        if (scelto != nullptr) modello_.cambiaCarattere(testoDi(scelto->text()));
    });
    auto* colonna = new QVBoxLayout(riquadro);
    colonna->addWidget(caratteri_);
    return riquadro;
}

QWidget* Editacfg::fareMargini() {
    auto* riquadro = new QGroupBox(tradotto("Margini (cm)"), this);
    riquadro->setObjectName(QStringLiteral("Frame2"));
    sinistro_ = campoNumero("Text2", tradotto("Sinistro"), riquadro);
    superiore_ = campoNumero("Text3", tradotto("Superiore"), riquadro);
    sinistro_->setText(qt(base::testoNumero(modello_.configurazione().margineSinistro)));
    superiore_->setText(qt(base::testoNumero(modello_.configurazione().margineSuperiore)));
    auto* griglia = new QGridLayout(riquadro);
    griglia->addWidget(etichetta("Sinistro", sinistro_), 0, 0);
    griglia->addWidget(sinistro_, 0, 1, Qt::AlignLeft);
    griglia->addWidget(etichetta("Superiore", superiore_), 1, 0);
    griglia->addWidget(superiore_, 1, 1, Qt::AlignLeft);
    griglia->setColumnStretch(1, 1);
    return riquadro;
}

QWidget* Editacfg::fareStriscia() {
    QStringList testi;
    for (const char* testo : {aiutoColori, aiutoSpessore, aiutoMargine}) testi << tradotto(testo);
    aiuto_ = new StrisciaAiuto(testi, {}, this);
    aiuto_->setObjectName(QStringLiteral("Labelhelp"));
    for (auto* campo : {spessore_, sinistro_, superiore_}) segui(campo);
    for (auto* lista : {penne_, caratteri_}) lista->installEventFilter(this);
    return aiuto_;
}

void Editacfg::segui(QLineEdit* campo) {
    campo->installEventFilter(this);
    connect(campo, &QLineEdit::textEdited, this, [this, campo] { spiega(campo); });
}

void Editacfg::spiega(const QObject* controllo) {
    const auto* campo = qobject_cast<const QLineEdit*>(controllo);
    if (campo == nullptr) return aiuto_->mostra(tradotto(aiutoColori));
    aiuto_->mostra(tradotto(campo == spessore_ ? aiutoSpessore : aiutoMargine),
                   qt(base::letturaMostrata(testoDi(campo->text()))));
}

void Editacfg::mostraPenna(const plot::PennaConfigurata& penna) {
    colori_[static_cast<std::size_t>(penna.colore)]->setChecked(true);
    spessore_->setText(qt(base::testoNumero(penna.spessoreMm)));
    const auto trovati = caratteri_->findItems(qt(penna.carattere), Qt::MatchExactly);
    caratteri_->setCurrentItem(trovati.isEmpty() ? nullptr : trovati.front());
    if (!trovati.isEmpty()) caratteri_->scrollToItem(trovati.front());
}

bool Editacfg::eventFilter(QObject* controllo, QEvent* evento) {
    if (evento->type() == QEvent::FocusIn) spiega(controllo);
    const bool f2 =
        evento->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(evento)->key() == Qt::Key_F2;
    if (!f2 && evento->type() != QEvent::MouseButtonDblClick)
        return QDialog::eventFilter(controllo, evento);
    const auto opzione = std::find(colori_.begin(), colori_.end(), controllo);
    if (opzione == colori_.end()) return QDialog::eventFilter(controllo, evento);
    cambiaValore(static_cast<int>(opzione - colori_.begin()));
    return true;
}

void Editacfg::cambiaValore(int indice) {
    if (!modello_.siPuoCambiareValore(indice)) return;
    const plot::ColoreConfigurato colore = modello_.configurazione().colori[indice];
    const auto scelto = porte_.scegliColore(this, colore.valore);
    if (!scelto || !modello_.cambiaValore(indice, *scelto)) return;
    dipingiColore(indice);
    const auto nome = porte_.chiediTesto(this, base::traduttore("DESCRIZIONE COLORI"),
                                         base::traduttore("Nome colore:"), colore.nome);
    if (!nome) return;
    modello_.cambiaNome(indice, *nome);
    dipingiColore(indice);
}

// The field and its limits, as in the other forms; the focus goes back to it.
bool Editacfg::segnalaFuori() {
    using enum plot::ValoreFuori::Campo;
    const auto fuori =
        modello_.valoreFuori(testoDi(sinistro_->text()), testoDi(superiore_->text()));
    if (!fuori) return false;
    if (fuori->campo == spessore) penne_->setCurrentRow(fuori->penna - 1);
    QLineEdit* campo = fuori->campo == spessore          ? spessore_
                       : fuori->campo == margineSinistro ? sinistro_
                                                         : superiore_;
    std::string titolo = testoDi(campo->accessibleName());
    if (fuori->penna > 0) titolo += ": " + modello_.configurazione().penne[fuori->penna].etichetta;
    masks::CampoMaschera limiti;
    limiti.minimo = fuori->minimo;
    limiti.massimo = fuori->massimo;
    masks::segnala(masks::Vizio::intervallo, limiti, titolo, "\r\n", dialogo_);
    campo->setFocus();
    campo->selectAll();
    return true;
}

void Editacfg::conferma() {
    if (segnalaFuori()) return;
    const bool scritta = conAvviso(dialogo_, [this] {
        modello_.conferma(testoDi(sinistro_->text()), testoDi(superiore_->text()));
    });
    if (scritta) accept();
}

}  // namespace korven::shell
