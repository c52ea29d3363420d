#include "shell/picture/picture_panel.hpp"

#include <QAction>
#include <QButtonGroup>
#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSlider>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "shell/forms/elided_label.hpp"
#include "shell/icons/icon_set.hpp"
#include "shell/picture/picture_view.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

namespace {

struct Scelta {
    live::Curva curva;
    std::string_view testo;
    const char* icona;
};
// In the order of the keys 1 to 4.
constexpr Scelta scelte[] = {{live::Curva::pressioni, "Pressioni", "pressures"},
                             {live::Curva::spostamento, "Spostamento", "displacements"},
                             {live::Curva::momento, "Momento", "moments"},
                             {live::Curva::taglio, "Taglio", "shear"}};

}  // namespace

PannelloFigura::PannelloFigura(VitaProgetto& vita, std::function<void(const QFont&)> salva,
                               QWidget* genitore)
    : QWidget(genitore),
      vita_(vita),
      vista_(new VistaFigura(vita.vivo(), this)),
      lettura_(new EtichettaAccorciata(this, false)) {
    setObjectName("pannelloFigura");
    setProperty("paginaGuida", QStringLiteral("figura"));
    setFocusProxy(vista_);
    copia_ = new QAction(icona("copy"), tradotto("Copia figura"), this);
    copia_->setObjectName("copiaFigura");
    connect(copia_, &QAction::triggered, vista_, &VistaFigura::copia);
    connect(vista_, &VistaFigura::copiata, this,
            [this] { emit copiata(fase_->text() + ", " + curve_->checkedButton()->text()); });
    salva_ = new QAction(icona("save_picture"), tradotto("Salva figura..."), this);
    salva_->setObjectName("salvaFigura");
    salva_->setIconText(salva_->text());  // Qt takes the dots off
    connect(salva_, &QAction::triggered, this,
            [this, salva = std::move(salva)] { salva(vista_->font()); });
    lettura_->setObjectName("letturaFigura");
    lettura_->setFixedHeight(lettura_->fontMetrics().height() + 6);
    auto* disposizione = new QVBoxLayout(this);
    disposizione->setContentsMargins(0, 0, 0, 0);
    disposizione->setSpacing(0);
    disposizione->addWidget(vista_, 1);
    disposizione->addWidget(lettura_);
    disposizione->addWidget(striscia());
    connect(vista_, &VistaFigura::letto, this, [this](const QString& letto) {
        lettura_->mostra(
            letto.isEmpty() ? tradotto("Lettura dei valori: mouse, oppure tasti Su e Giù") : letto);
    });
    lettura_->mostra(tradotto("Lettura dei valori: mouse, oppure tasti Su e Giù"));
    tasti();
    connect(&vita_, &VitaProgetto::cambiata, this, &PannelloFigura::aggiorna);
    aggiorna();
}

QWidget* PannelloFigura::striscia() {
    auto* striscia = new QWidget(this);
    auto* riga = new QHBoxLayout(striscia);
    riga->setContentsMargins(larghezzaEmblema + 6, 2, 8, 2);
    striscia->setMinimumHeight(altezzaEmblema + 4);
    fasi_ = new QSlider(Qt::Horizontal, striscia);
    fasi_->setObjectName("fasiFigura");
    fasi_->setAccessibleName(tradotto("Fase mostrata"));
    fasi_->setToolTip(tradotto("Fase mostrata") + " (PgUp, PgDown)");
    fasi_->setTickPosition(QSlider::TicksBelow);
    fasi_->setPageStep(1);
    fasi_->setMinimumWidth(60);
    connect(fasi_, &QSlider::valueChanged, this, &PannelloFigura::scegliFase);
    fase_ = new QLabel(striscia);
    fase_->setObjectName("faseFigura");
    fase_->setMinimumWidth(fase_->fontMetrics().horizontalAdvance(tradotto("inviluppo") + "  "));
    riga->addWidget(fasi_, 1);
    riga->addWidget(fase_);
    curve_ = new QButtonGroup(this);
    for (const auto& [curva, testo, figura] : scelte) {
        auto* pulsante = new QToolButton(striscia);
        const int tasto = static_cast<int>(curva) + 1;
        pulsante->setObjectName("curvaFigura" + QString::number(tasto));
        pulsante->setText(tradotto(testo));
        pulsante->setIcon(icona(figura));
        pulsante->setToolButtonStyle(Qt::ToolButtonTextOnly);
        pulsante->setToolTip(tradotto(testo) + " (" + QString::number(tasto) + ")");
        pulsante->setCheckable(true);
        pulsante->setFocusPolicy(Qt::TabFocus);
        curve_->addButton(pulsante, static_cast<int>(curva));
        riga->addWidget(pulsante);
    }
    connect(curve_, &QButtonGroup::idClicked, this,
            [this](int curva) { scegliCurva(static_cast<live::Curva>(curva)); });
    auto* salva = pulsanteSalva_ = new QToolButton(striscia);
    salva->setObjectName("pulsanteSalvaFigura");
    salva->setDefaultAction(salva_);
    salva->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    salva->setFocusPolicy(Qt::TabFocus);
    riga->addWidget(salva);
    striscia_ = striscia;
    return striscia;
}

void PannelloFigura::tasti() {
    const auto fase = [this](const QKeySequence& tasto, int passo) {
        connect(new QShortcut(tasto, this), &QShortcut::activated, this,
                [this, passo] { fasi_->setValue(fasi_->value() + passo); });
    };
    fase(Qt::Key_PageDown, 1);
    fase(Qt::Key_PageUp, -1);
    for (const Scelta& scelta : scelte)
        connect(new QShortcut(Qt::Key_1 + static_cast<int>(scelta.curva), this),
                &QShortcut::activated, this, [this, curva = scelta.curva] { scegliCurva(curva); });
    connect(new QShortcut(QKeySequence::Copy, this), &QShortcut::activated, copia_,
            &QAction::trigger);
}

void PannelloFigura::aggiorna() {
    const live::ProgettoVivo& vivo = vita_.vivo();
    if (!vivo.aperto()) return;
    const live::Vista vista = vivo.vista();
    {
        const QSignalBlocker muto(fasi_);
        fasi_->setRange(0, std::clamp(vivo.dati().nFasi, 0, project::massimoFasi));
        fasi_->setValue(vista.fase);
    }
    fase_->setText(vista.fase == 0 ? tradotto("inviluppo")
                                   : tradotto("fase") + " " + QString::number(vista.fase));
    curve_->button(static_cast<int>(vista.curva))->setChecked(true);
    vista_->aggiorna();
}

void PannelloFigura::scegliFase(int fase) {
    live::Vista vista = vita_.vivo().vista();
    vista.fase = fase;
    vita_.mostra(vista);
}

void PannelloFigura::scegliCurva(live::Curva curva) {
    live::Vista vista = vita_.vivo().vista();
    vista.curva = curva;
    vita_.mostra(vista);
}

// Elsewhere in the main form F1 is the key of a menu item, which would take it first.
bool PannelloFigura::event(QEvent* evento) {
    if (evento->type() == QEvent::ShortcutOverride) {
        const auto* tasto = static_cast<QKeyEvent*>(evento);
        if (tasto->key() == Qt::Key_F1 && tasto->modifiers() == Qt::NoModifier) evento->accept();
    }
    return QWidget::event(evento);
}

// On a narrow form pictures stand for the texts: first that of saving, then those of the curves.
void PannelloFigura::resizeEvent(QResizeEvent* evento) {
    const auto stretta = [this] {
        return striscia_->layout()->totalMinimumSize().width() > width();
    };
    const auto mostraCurve = [this](Qt::ToolButtonStyle come) {
        for (QAbstractButton* pulsante : curve_->buttons())
            static_cast<QToolButton*>(pulsante)->setToolButtonStyle(come);
    };
    pulsanteSalva_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    mostraCurve(Qt::ToolButtonTextOnly);
    if (stretta()) pulsanteSalva_->setToolButtonStyle(Qt::ToolButtonIconOnly);
    if (stretta()) mostraCurve(Qt::ToolButtonIconOnly);
    QWidget::resizeEvent(evento);
}

void PannelloFigura::contextMenuEvent(QContextMenuEvent* evento) {
    QMenu menu(this);
    menu.addAction(copia_);
    menu.addAction(salva_);
    menu.exec(evento->globalPos());
}

}  // namespace korven::shell
