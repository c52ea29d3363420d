#include "shell/masks/base1.hpp"

#include <QAbstractButton>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "shell/forms/help_strip.hpp"
#include "shell/forms/history_keys.hpp"
#include "shell/forms/key_event.hpp"
#include "shell/forms/leader_label.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

namespace {

constexpr int altezzaRiga = 16;             // 240 twips at 96 dots an inch; controls need more
constexpr QColor grigio(0x80, 0x80, 0x80);  // colour 8 of the classic palette

// Read-only values are grey, whatever the style does to controls that can't be changed.
void ingrigisci(QWidget& controllo) {
    QPalette tinte = controllo.palette();
    for (const auto ruolo : {QPalette::Text, QPalette::ButtonText, QPalette::WindowText})
        tinte.setColor(ruolo, grigio);
    controllo.setPalette(tinte);
}

QString nome(const char* gruppo, std::size_t indice) {
    return QStringLiteral("%1_%2").arg(QLatin1String(gruppo)).arg(indice);
}

}  // namespace

Base1::Base1(const masks::Maschera& maschera, std::vector<double> combo,
             std::vector<std::string> testi, base::Dialogo& dialogo, GuidaForme guida,
             QWidget* padre)
    : FormaMaschera(maschera, dialogo, std::move(guida), QStringLiteral("base1"), padre),
      modello_(maschera, std::move(combo), std::move(testi)) {
    QStringList aiuti;
    for (const auto& campo : maschera.campi) aiuti << qt(campo.aiuto);
    aiuto_ = new StrisciaAiuto(
        aiuti, [this] { modello_.mostraAiuto(this->dialogo()); }, this);
    aiuto_->setObjectName(QStringLiteral("Labelhelp"));
    auto* colonna = new QVBoxLayout(this);
    fila_ = new QHBoxLayout;
    fila_->addWidget(fareCampi(), 1);
    colonna->addLayout(fila_, 1);
    colonna->addWidget(aiuto_);
    colonna->addWidget(farePulsanti([this](std::size_t pulsante) { azione(pulsante); }));
    aiuto_->installEventFilter(this);
    setTabOrder(controlli_.back(), aiuto_);
    new TastiStoria(
        *this, [this] { mostraTornato(modello_.annulla()); },
        [this] { mostraTornato(modello_.ripeti()); });
    disponi(misuraComoda());
    mostraAttivo();
}

void Base1::affianca(QWidget* pannello) {
    const QSize campi = misuraComoda();
    // The fields come first: what the panel has more than it needs at least is theirs.
    area_->setMinimumWidth(area_->minimumWidth() +
                           style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    fila_->addWidget(pannello);
    for (auto* pulsante : pannello->findChildren<QAbstractButton*>())
        pulsante->installEventFilter(this);  // Enter presses them as it does those of the form
    disponi({campi.width() + fila_->spacing() + pannello->sizeHint().width(), campi.height()});
}

QWidget* Base1::fareCampi() {
    auto* tutti = new QWidget;
    auto* griglia = new QGridLayout(tutti);
    griglia->setContentsMargins(0, 0, 0, 0);
    griglia->setVerticalSpacing(3);
    griglia->setColumnStretch(0, 1);
    for (std::size_t i = 0; i < modello_.campi(); ++i) {
        const int riga = static_cast<int>(i);
        auto* etichetta = new EtichettaPuntinata(qt(modello_.didascalia(i)),
                                                 qt(maschera().campi[i].etichetta), tutti);
        etichetta->setObjectName(nome("Label1", i));
        QWidget* controllo = nullptr;
        if (modello_.scelta(i))
            controllo = fareScelta(i, tutti);
        else
            controllo = fareTesto(i, tutti);
        controllo->setAccessibleName(qt(modello_.titoloMessaggio(i)));
        controllo->setAccessibleDescription(qt(maschera().campi[i].aiuto));
        controllo->installEventFilter(this);
        controlli_.push_back(controllo);
        griglia->addWidget(etichetta, riga, 0);
        griglia->addWidget(controllo, riga, 1,
                           modello_.scelta(i) ? Qt::Alignment() : Qt::AlignLeft);
        griglia->setRowMinimumHeight(riga, altezzaRiga);
    }
    griglia->setRowStretch(static_cast<int>(modello_.campi()), 1);
    area_ = new QScrollArea(this);
    area_->setFrameShape(QFrame::NoFrame);
    area_->setWidgetResizable(true);
    area_->setFocusPolicy(Qt::NoFocus);
    area_->setWidget(tutti);
    area_->setMinimumWidth(
        std::min(tutti->minimumSizeHint().width(), screen()->availableSize().width() * 3 / 4));
    return area_;
}

QComboBox* Base1::fareScelta(std::size_t campo, QWidget* genitore) {
    auto* scelta = new QComboBox(genitore);
    scelta->setObjectName(nome("Combo1", campo));
    scelta->setFocusPolicy(Qt::StrongFocus);
    scelta->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    for (const auto& voce : modello_.voci(campo)) scelta->addItem(qt(voce));
    scelta->setCurrentIndex(static_cast<int>(modello_.voceMostrata(campo)));
    if (modello_.soloLettura(campo)) {
        scelta->setEnabled(false);
        ingrigisci(*scelta);
    }
    connect(scelta, &QComboBox::currentIndexChanged, this, [this, campo](int voce) {
        modello_.scegli(campo, static_cast<std::size_t>(voce));
        if (campo == modello_.attivo()) spiega();
        emit digitata();
    });
    return scelta;
}

QLineEdit* Base1::fareTesto(std::size_t campo, QWidget* genitore) {
    auto* testo = new QLineEdit(qt(modello_.testo(campo)), genitore);
    testo->setObjectName(nome("Text1", campo - maschera().scelte.size()));
    testo->setCursorPosition(0);
    const int carattere = testo->fontMetrics().averageCharWidth();
    constexpr int bordi = 20;
    testo->setFixedWidth(std::min(carattere * static_cast<int>(modello_.larghezzaCaselle()) + bordi,
                                  screen()->availableSize().width() * 6 / 10));
    // A text from a file may be too long: it is shown whole, then told and cut when it is left.
    if (const auto limite = static_cast<int>(modello_.lunghezzaMassima(campo)); limite > 0)
        testo->setMaxLength(std::max(limite, static_cast<int>(testo->text().size())));
    if (modello_.numerica(campo)) testo->setAlignment(Qt::AlignRight);
    if (modello_.soloLettura(campo)) {
        testo->setReadOnly(true);
        ingrigisci(*testo);
    }
    connect(testo, &QLineEdit::textChanged, this,
            [this, campo](const QString& scritto_) { scritto(campo, scritto_); });
    return testo;
}

QSize Base1::misuraComoda() const {
    const QMargins bordi = layout()->contentsMargins();
    const QSize campi = area_->widget()->sizeHint();
    constexpr int larghezzaComoda = 640;
    const int larghezza = std::max({larghezzaComoda, layout()->minimumSize().width(),
                                    campi.width() + bordi.left() + bordi.right()});
    const int altezzaAltro = layout()->totalHeightForWidth(larghezza) - area_->sizeHint().height();
    return {larghezza, altezzaAltro + campi.height()};
}

// A picture takes no more than its decimals: the rest goes while it is typed, and a character that
// can't be saved shows as what will be saved.
void Base1::scritto(std::size_t campo, const QString& testo) {
    modello_.scrivi(campo, testo.toStdString());
    auto* casella = static_cast<QLineEdit*>(controlli_[campo]);
    const QString tenuto = qt(modello_.testo(campo));
    if (tenuto != testo) {
        const int cursore = casella->cursorPosition();
        casella->setText(tenuto);
        casella->setCursorPosition(cursore);
    }
    if (campo == modello_.attivo()) spiega();
    emit digitata();
}

live::ValoriForma Base1::valori() const {
    return {.combo = modello_.valoriCombo(), .testi = modello_.valoriTesto()};
}

bool Base1::entra(std::size_t campo) {
    if (controllando_) return true;
    {
        const QScopedValueRollback<bool> durante(controllando_, true);
        const bool lasciato = campo < controlli_.size() ? modello_.passaA(campo, dialogo())
                                                        : modello_.lascia(dialogo());
        if (lasciato) {
            spiega();
            return true;
        }
    }
    mostraAttivo();
    return false;
}

// A text that is longer than its box takes, from a file, is shown whole.
void Base1::mostraValore(std::size_t campo) {
    auto* casella = qobject_cast<QLineEdit*>(controlli_[campo]);
    if (casella == nullptr) {
        auto* scelta = static_cast<QComboBox*>(controlli_[campo]);
        return scelta->setCurrentIndex(static_cast<int>(modello_.voceMostrata(campo)));
    }
    const QString testo = qt(modello_.testo(campo));
    if (casella->text() == testo) return;
    // A box never holds more than its limit: it must have room for either text while they change.
    casella->setMaxLength(std::max(casella->maxLength(), static_cast<int>(testo.size())));
    casella->setText(testo);
    if (const auto limite = static_cast<int>(modello_.lunghezzaMassima(campo)); limite > 0)
        casella->setMaxLength(std::max(limite, static_cast<int>(testo.size())));
}

// The model has gone to another field by itself, or has had nowhere to go.
void Base1::mostraTornato(bool tornato) {
    if (!tornato) return spiega();
    mostraAttivo();
    emit digitata();  // of a choice not all that comes back can be seen
}

void Base1::mostraAttivo() {
    const std::size_t campo = modello_.attivo();
    auto* casella = qobject_cast<QLineEdit*>(controlli_[campo]);
    mostraValore(campo);
    controlli_[campo]->setFocus(Qt::TabFocusReason);
    // After a box the focus comes back in another way, which would leave nothing selected.
    if (casella != nullptr) casella->selectAll();
    spiega();
}

void Base1::spiega() {
    area_->ensureWidgetVisible(controlli_[modello_.attivo()]);
    aiuto_->mostra(qt(modello_.aiuto()),
                   qt(modello_.detto().empty() ? modello_.lettura() : modello_.detto()));
}

bool Base1::premuto(std::size_t campo, const QKeyEvent& evento) {
    const auto tasto = tastoDi(evento);
    if (!tasto) return false;
    using enum masks::Tasto;
    if (*tasto == f1) return true;
    if (*tasto == su || *tasto == giu || *tasto == invio) {
        {
            const QScopedValueRollback<bool> durante(controllando_, true);
            modello_.premi(*tasto, dialogo());
        }
        mostraAttivo();
        return true;
    }
    if (auto* scelta = qobject_cast<QComboBox*>(controlli_[campo]);
        scelta != nullptr && (*tasto == sinistra || *tasto == destra)) {
        const int voce = scelta->currentIndex() + (*tasto == destra ? 1 : -1);
        scelta->setCurrentIndex(std::clamp(voce, 0, scelta->count() - 1));
        return true;
    }
    if (virgolaDelTastierino(evento) && modello_.numerica(campo)) {
        static_cast<QLineEdit*>(controlli_[campo])->insert(QStringLiteral("."));
        return true;
    }
    return false;
}

bool Base1::eventFilter(QObject* oggetto, QEvent* evento) {
    const auto trovato = std::find(controlli_.begin(), controlli_.end(), oggetto);
    const auto campo = static_cast<std::size_t>(trovato - controlli_.begin());
    if (evento->type() == QEvent::FocusIn && !entra(campo)) return true;
    if (trovato != controlli_.end()) switch (evento->type()) {
            case QEvent::KeyPress:
                if (premuto(campo, *static_cast<QKeyEvent*>(evento))) return true;
                break;
            // The field with the focus could not be left, so a press on another one does nothing.
            case QEvent::MouseButtonPress:
            case QEvent::MouseButtonDblClick:
                if (campo != modello_.attivo()) return true;
                break;
            // Over a choice without the focus the wheel scrolls the form: no value changes unseen.
            case QEvent::Wheel:
                if (static_cast<QWidget*>(oggetto)->hasFocus()) break;
                evento->ignore();
                return true;
            default:
                break;
        }
    return FormaMaschera::eventFilter(oggetto, evento);
}

void Base1::azione(std::size_t pulsante) {
    if (pulsante == 1) return reject();
    if (pulsante > 1) return mostraGuida();
    bool confermato = false;
    {
        const QScopedValueRollback<bool> durante(controllando_, true);
        confermato = modello_.conferma(dialogo());
    }
    if (confermato)
        accept();
    else
        mostraAttivo();
}

}  // namespace korven::shell
