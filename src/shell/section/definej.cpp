#include "shell/section/definej.hpp"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "base/number_reading.hpp"
#include "commands/menu_tree.hpp"
#include "help/contexts.hpp"
#include "project/field_table.hpp"
#include "shell/form_sizes.hpp"
#include "shell/forms/confirm_buttons.hpp"
#include "shell/forms/help_strip.hpp"
#include "shell/forms/history_keys.hpp"
#include "shell/forms/scrolled_part.hpp"
#include "shell/live/live_view.hpp"
#include "shell/place_beside.hpp"
#include "shell/qt_text.hpp"
#include "shell/section/definej_fields.hpp"
#include "shell/section/section_sketch_view.hpp"

namespace korven::shell {

namespace {

using project::Parte;

struct TipoForma {
    Parte parte;
    const char* opzione;
    const char* riquadro;
    const char* titolo;  // Italian key; nullptr for the caption of the type and the unit
};

// In the order of `project::tipiSezione`; the materials last.
constexpr TipoForma tipi[] = {
    {Parte::diaframma, "Option1", "Frame1", nullptr},
    {Parte::pali, "Option2", "Frame2", nullptr},
    {Parte::palancola, "Option3", "Frame5", "Palancola [mm] (misurati sull'asse del profilato)"},
    {Parte::paliArmati, "Option4", "Frame6", nullptr},
    {Parte::materiali, "", "Frame4", "Caratteristiche dei materiali"},
};

std::string_view didascalia(std::size_t tipo) {
    return project::campo(project::tipiSezione[tipo]).didascalia;
}

std::string titolo(std::size_t riquadro) {
    if (tipi[riquadro].titolo != nullptr) return tipi[riquadro].titolo;
    return project::etichetta(didascalia(riquadro), project::unita::misura);
}

constexpr const char* aiutoTipo =
    "Il tipo di sezione con cui si calcola. I dati degli altri tipi restano nel progetto. "
    "Il segno decimale è il punto.";

std::size_t indice(Parte riquadro) {
    const auto* trovato = std::find_if(std::begin(tipi), std::end(tipi),
                                       [=](const auto& tipo) { return tipo.parte == riquadro; });
    return static_cast<std::size_t>(trovato - std::begin(tipi));
}

QLabel* etichetta(const QString& testo, Qt::Alignment posto, QWidget* padre) {
    auto* fatta = new QLabel(testo, padre);
    fatta->setAlignment(posto);
    return fatta;
}

}  // namespace

DefinEJ::DefinEJ(project::Sezione& sezione, bool& modificato, QWidget* padre)
    : QDialog(padre), modello_(sezione, modificato) {
    setObjectName(QStringLiteral("DefinEJ"));
    setWindowTitle(tradotto("Calcolo di EJ e verifica strutturale"));
    setProperty("contestoGuida", help::contestoGuida(commands::voceMenu("EditRigidezza").guida));
    auto* colonna = new QVBoxLayout(this);
    area_ = new ParteScorrevole(fareTutto(), this);
    fila_ = new QHBoxLayout;
    fila_->addWidget(area_, 1);
    colonna->addLayout(fila_, 1);
    colonna->addWidget(fareStriscia());
    colonna->addWidget(pulsantiConferma(*this, [this] {
        modello_.conferma();
        accept();
    }));
    new TastiStoria(
        *this, [this] { mostraTornato(modello_.annulla()); },
        [this] { mostraTornato(modello_.ripeti()); });
    if (!prendiMisura(*this, colonna->sizeHint())) collocaAccanto(*this);
    connect(this, &QDialog::finished, this, [this] { ricordaMisure(*this); });
    mostraTipo();
    opzioni_[indice(modello_.tipo())]->setFocus();
    entraOpzioni();
}

void DefinEJ::affianca(QWidget* pannello) {
    fila_->addWidget(pannello);
    // Where the screen is too narrow for both, the fields scroll.
    const QMargins bordi = layout()->contentsMargins();
    const int resta = misuraMassima(*this).width() - bordi.left() - bordi.right() -
                      fila_->spacing() - pannello->minimumSizeHint().width();
    area_->setMinimumWidth(std::min(area_->minimumSizeHint().width(), resta));
    if (!prendiMisura(*this, layout()->sizeHint())) collocaAccanto(*this);
}

void DefinEJ::prendi(const std::string& nome, const masks::SezioneEditata::Testi& testi) {
    if (testi.empty()) return;
    modello_.scrivi(nome, testi);
    mostraTornato(testi.front().first);
}

void DefinEJ::comincia(std::size_t campo) {
    const Parte riquadro = masks::campiSezione[campo].riquadro();
    if (riquadro != modello_.tipo() && riquadro != Parte::materiali) return;
    campi_[campo]->setFocus();
    campi_[campo]->selectAll();
    entra(campo);
}

QWidget* DefinEJ::fareTutto() {
    auto* tutto = new QWidget(this);
    auto* colonna = new QVBoxLayout(tutto);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->addWidget(fareOpzioni());
    colonna->addWidget(fareRiquadri(), 1);
    colonna->addWidget(fareRiquadro(Parte::materiali));
    return tutto;
}

QWidget* DefinEJ::fareOpzioni() {
    auto* riga = new QWidget(this);
    auto* disposizione = new QHBoxLayout(riga);
    disposizione->setContentsMargins(4, 0, 4, 0);
    auto* gruppo = new QButtonGroup(riga);
    for (std::size_t i = 0; i < opzioni_.size(); ++i) {
        auto* opzione = opzioni_[i] = new QRadioButton(tradotto(didascalia(i)), riga);
        opzione->setObjectName(QLatin1String(tipi[i].opzione));
        opzione->setAccessibleName(opzione->text());
        opzione->installEventFilter(this);
        gruppo->addButton(opzione, static_cast<int>(i));
        disposizione->addWidget(opzione);
    }
    disposizione->addStretch();
    opzioni_[indice(modello_.tipo())]->setChecked(true);
    connect(gruppo, &QButtonGroup::idToggled, this, [this](int scelto, bool acceso) {
        if (!acceso) return;
        modello_.scegli(tipi[scelto].parte);
        mostraTipo();
        if (!tornando_) entraOpzioni();
    });
    return riga;
}

QWidget* DefinEJ::fareRiquadri() {
    riquadri_ = new QStackedWidget(this);
    for (std::size_t i = 0; i < schizzi_.size(); ++i) {
        auto* riquadro = fareRiquadro(tipi[i].parte);
        auto* griglia = static_cast<QGridLayout*>(riquadro->layout());
        auto* schizzo = schizzi_[i] = new VistaSchizzo(
            [this](std::size_t campo) {
                campi_[campo]->setFocus();
                campi_[campo]->selectAll();
            },
            riquadro);
        schizzo->setObjectName(QStringLiteral("schizzo"));
        schizzo->setAccessibleName(riquadro->title());
        griglia->setRowStretch(griglia->rowCount(), 1);
        griglia->addWidget(schizzo, 0, griglia->columnCount(), griglia->rowCount(), 1);
        griglia->setColumnStretch(griglia->columnCount() - 1, 1);
        riquadri_->addWidget(riquadro);
    }
    return riquadri_;
}

QGroupBox* DefinEJ::fareRiquadro(Parte riquadro) {
    auto* fatto = new QGroupBox(tradotto(titolo(indice(riquadro))), this);
    fatto->setObjectName(QLatin1String(tipi[indice(riquadro)].riquadro));
    auto* griglia = new QGridLayout(fatto);
    fareCampi(*griglia, riquadro);
    if (riquadro == Parte::materiali) griglia->setColumnStretch(griglia->columnCount(), 1);
    return fatto;
}

// Each row of fields has its caption in the first column; from there each column of fields takes
// two, one for the symbols. The headings of the columns are in row 0.
void DefinEJ::fareCampi(QGridLayout& griglia, Parte riquadro) {
    QStringList righe;
    auto* padre = griglia.parentWidget();
    for (std::size_t i = 0; i < campi_.size(); ++i) {
        if (masks::campiSezione[i].riquadro() != riquadro) continue;
        const CampoForma& forma = campiForma[i];
        auto* campo = fareCampo(i);
        const QString riga = tradotto(forma.didascalia());
        if (!righe.contains(riga)) {
            righe << riga;
            auto* didascalia = etichetta(riga, Qt::AlignLeft | Qt::AlignVCenter, padre);
            didascalia->setBuddy(campo);
            griglia.addWidget(didascalia, static_cast<int>(righe.size()), 0);
        }
        if (const auto titolo = forma.intestazione();
            !titolo.empty() && griglia.itemAtPosition(0, 2 * forma.colonna + 2) == nullptr)
            griglia.addWidget(etichetta(tradotto(titolo), Qt::AlignCenter, padre), 0,
                              2 * forma.colonna + 2);
        const int y = static_cast<int>(righe.indexOf(riga)) + 1;
        auto* simbolo =
            etichetta(qt(masks::campiSezione[i].simbolo), Qt::AlignRight | Qt::AlignVCenter, padre);
        simbolo->setContentsMargins(8, 0, 2, 0);
        griglia.addWidget(simbolo, y, 2 * forma.colonna + 1);
        griglia.addWidget(campo, y, 2 * forma.colonna + 2);
    }
}

QLineEdit* DefinEJ::fareCampo(std::size_t campo) {
    const CampoForma& forma = campiForma[campo];
    auto* fatto = campi_[campo] = new QLineEdit(qt(modello_.testo(campo)), this);
    fatto->setObjectName(QLatin1String(forma.controllo));
    QStringList nome{tradotto(forma.didascalia())};
    if (const auto titolo = forma.intestazione(); !titolo.empty()) nome << tradotto(titolo);
    fatto->setAccessibleName(nome.join(QLatin1Char(' ')));
    fatto->setAccessibleDescription(tradotto(forma.aiuto));
    fatto->setAlignment(Qt::AlignRight);
    constexpr int cifreMostrate = 9;
    fatto->setMinimumWidth(fatto->fontMetrics().averageCharWidth() * cifreMostrate + 16);
    fatto->setMaximumWidth(fatto->minimumWidth() * 3 / 2);
    fatto->installEventFilter(this);
    connect(fatto, &QLineEdit::textChanged, this, [this, campo](const QString& testo) {
        modello_.scrivi(campo, testo.toStdString());
        spiega(campo);
        aggiornaSchizzo();
    });
    return fatto;
}

QWidget* DefinEJ::fareStriscia() {
    QStringList testi{tradotto(aiutoTipo)};
    for (const auto& campo : campiForma) testi << tradotto(campo.aiuto);
    aiuto_ = new StrisciaAiuto(testi, {}, this);
    aiuto_->setObjectName(QStringLiteral("Labelhelp"));
    return aiuto_;
}

void DefinEJ::mostraTipo() {
    riquadri_->setCurrentIndex(static_cast<int>(indice(modello_.tipo())));
    aggiornaSchizzo();
}

void DefinEJ::aggiornaSchizzo() {
    schizzi_[indice(modello_.tipo())]->mostra(
        drawings::schizzoSezione(modello_.tipo(), modello_.letta()));
    emit digitata();
}

void DefinEJ::entra(std::size_t campo) {
    area_->ensureWidgetVisible(campi_[campo]);
    nelModello(campo);
    spiega(campo);
    for (auto* schizzo : schizzi_) schizzo->evidenzia(campo);
}

void DefinEJ::spiega(std::size_t campo) {
    const std::string& detto = modello_.detto();
    aiuto_->mostra(tradotto(campiForma[campo].aiuto),
                   qt(detto.empty() ? base::letturaMostrata(modello_.testo(campo)) : detto));
}

void DefinEJ::nelModello(std::size_t campo) {
    if (!tornando_) modello_.entra(campo);
}

void DefinEJ::mostraValori() {
    for (std::size_t i = 0; i < campi_.size(); ++i)
        if (campi_[i]->text() != qt(modello_.testo(i))) campi_[i]->setText(qt(modello_.testo(i)));
    opzioni_[indice(modello_.tipo())]->setChecked(true);
}

// The model has gone to a field by itself, or has had nowhere to go.
void DefinEJ::mostraTornato(std::optional<std::size_t> campo) {
    const QScopedValueRollback<bool> durante(tornando_, true);
    if (campo) mostraValori();
    const std::size_t dove = campo.value_or(modello_.dove());
    if (dove == masks::SezioneEditata::sceltaTipo) {
        opzioni_[indice(modello_.tipo())]->setFocus();
        return entraOpzioni();
    }
    campi_[dove]->setFocus();
    if (campo) campi_[dove]->selectAll();
    entra(dove);
}

void DefinEJ::entraOpzioni() {
    nelModello(masks::SezioneEditata::sceltaTipo);
    aiuto_->mostra(tradotto(aiutoTipo), qt(modello_.detto()));
    for (auto* schizzo : schizzi_) schizzo->evidenzia({});
}

bool DefinEJ::eventFilter(QObject* controllo, QEvent* evento) {
    const auto campo = std::find(campi_.begin(), campi_.end(), controllo);
    if (evento->type() == QEvent::FocusIn) {
        if (campo == campi_.end())
            entraOpzioni();
        else
            entra(static_cast<std::size_t>(campo - campi_.begin()));
    } else if (evento->type() == QEvent::KeyPress && campo != campi_.end()) {
        const int tasto = static_cast<QKeyEvent*>(evento)->key();
        if (tasto == Qt::Key_Up || tasto == Qt::Key_Down)
            return focusNextPrevChild(tasto == Qt::Key_Down);
    }
    return QDialog::eventFilter(controllo, evento);
}

void collegaSezione(commands::FormeProgramma& forme, QWidget* padre, VitaProgetto* vita,
                    const PannelloAccanto& pannello) {
    forme.sezioneDa = [=](std::size_t campo) {
        DefinEJ forma(project::Progetto.sezione, project::modificato, padre);
        if (pannello) forma.affianca(pannello(forma));
        if (campo < masks::numeroCampiSezione) forma.comincia(campo);
        if (vita != nullptr)
            QObject::connect(&forma, &DefinEJ::digitata, vita,
                             [&forma, vita] { vita->digita(forma.letta()); });
        forma.exec();
    };
    forme.sezione = [apri = forme.sezioneDa] { apri(masks::numeroCampiSezione); };
}

}  // namespace korven::shell
