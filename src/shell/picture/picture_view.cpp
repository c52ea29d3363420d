#include "shell/picture/picture_view.hpp"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "scene/reading.hpp"
#include "shell/picture/picture_files.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

namespace {

scene::Rgb rgb(const QColor& colore) {
    const auto parte = [](int c) { return static_cast<std::uint8_t>(c); };
    return {parte(colore.red()), parte(colore.green()), parte(colore.blue())};
}

scene::Tavolozza tavolozzaDi(const QPalette& palette) {
    return scene::tavolozza(rgb(palette.color(QPalette::WindowText)),
                            rgb(palette.color(QPalette::Window)));
}

// A picture with a value: what is read on it.
class AccessoFigura : public QAccessibleWidget {
 public:
    explicit AccessoFigura(VistaFigura* vista) : QAccessibleWidget(vista, QAccessible::Graphic) {}
    [[nodiscard]] QString text(QAccessible::Text cosa) const override {
        if (cosa == QAccessible::Value) return static_cast<VistaFigura*>(widget())->lettura();
        return QAccessibleWidget::text(cosa);
    }
};

QAccessibleInterface* fabbrica(const QString&, QObject* oggetto) {
    auto* vista = qobject_cast<VistaFigura*>(oggetto);
    return vista != nullptr ? new AccessoFigura(vista) : nullptr;
}

}  // namespace

void insegnaAccessoFigura() { QAccessible::installFactory(fabbrica); }

VistaFigura::VistaFigura(const live::ProgettoVivo& vivo, QWidget* genitore)
    : QWidget(genitore), vivo_(vivo), misura_(font()), pittore_(font(), tavolozzaDi(palette())) {
    setObjectName("figura");
    setAccessibleName(tradotto("Figura del progetto"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);  // all of it is painted: nothing shows in between
    setMinimumSize(240, 160);
}

void VistaFigura::aggiorna() {
    if (!vivo_.aperto()) return;
    if (std::exchange(apertura_, vivo_.apertura()) != apertura_) leggi({});
    ridisponi();
    setAccessibleDescription(qt(scene::descrizione(vivo_.parete(), vivo_.vista())) + '\n' +
                             tradotto("I valori stanno nelle tabelle di Risultati (Ctrl+R)"));
    rileggi();
}

// What is told beside the picture, as the margin, leaves it as it is: laying out tells, for a
// fraction of what painting costs. One that waits for its painting is laid out there.
void VistaFigura::ridisponi() {
    if (immagineVecchia_) return invalida();
    scene::Scena nuova = disponi();
    if (nuova == scena_) return;
    scena_ = std::move(nuova);
    immagineVecchia_ = true;
    update();
}

void VistaFigura::invalida() {
    scenaVecchia_ = immagineVecchia_ = true;
    update();
}

scene::Scena VistaFigura::disponi() const {
    return scene::scena(vivo_.parete(), vivo_.vista(),
                        {static_cast<double>(width()), static_cast<double>(height())}, misura_,
                        {.impedimento = vivo_.impedimento()});
}

const scene::Scena& VistaFigura::scena() {
    if (scenaVecchia_) scena_ = disponi();
    scenaVecchia_ = false;
    return scena_;
}

void VistaFigura::prepara() {
    const double rapporto = devicePixelRatioF();
    const QSize misura = (QSizeF(size()) * rapporto).toSize();
    if (!immagineVecchia_ && immagine_.size() == misura) return;
    if (immagine_.size() != misura) immagine_ = QPixmap(misura);
    immagine_.setDevicePixelRatio(rapporto);
    pittore_.tavolozza(tavolozzaDi(palette()));
    QPainter pittore(&immagine_);
    pittore_.dipingi(pittore, scena());
    immagineVecchia_ = false;
}

void VistaFigura::paintEvent(QPaintEvent*) {
    QPainter p(this);
    if (!vivo_.aperto()) {
        p.fillRect(rect(), device::qColore({scene::Ruolo::sfondo}, pittore_.tavolozza()));
        return;
    }
    prepara();
    p.drawPixmap(0, 0, immagine_);
    const QColor evidenza = device::qColore({scene::Ruolo::evidenza}, pittore_.tavolozza());
    if (z_ && scena_.paratia > 0) {
        p.setRenderHint(QPainter::Antialiasing);
        const double y = scena_.y(*z_);
        p.setPen(QPen(evidenza, 1.4));
        p.drawLine(QPointF(scena_.lettura.sinistra, y), QPointF(scena_.lettura.destra, y));
    }
    if (hasFocus()) {
        p.setRenderHint(QPainter::Antialiasing, false);
        p.setPen(evidenza);
        p.setBrush(Qt::NoBrush);
        p.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void VistaFigura::resizeEvent(QResizeEvent*) { invalida(); }

void VistaFigura::changeEvent(QEvent* evento) {
    if (evento->type() == QEvent::PaletteChange) invalida();
    if (evento->type() == QEvent::FontChange) {
        misura_ = device::MisuraTestiQt(font());
        pittore_ = device::PittoreScena(font(), tavolozzaDi(palette()));
        invalida();
    }
    QWidget::changeEvent(evento);
}

void VistaFigura::leggi(std::optional<double> z) {
    if (z == z_) return;
    z_ = z;
    rileggi();
    update();
}

void VistaFigura::rileggi() {
    const bool leggibile = z_ && vivo_.aperto() && vivo_.parete().dati.lunghezzaParatia > 0;
    const QString nuova =
        leggibile ? qt(scene::parole(scene::lettura(vivo_.parete(), vivo_.vista(), *z_)))
                  : QString();
    if (nuova == lettura_) return;
    lettura_ = nuova;
    emit letto(lettura_);
    QAccessibleValueChangeEvent cambio(this, lettura_);
    QAccessible::updateAccessibility(&cambio);
}

bool VistaFigura::leggeTasto(int tasto) {
    if (!vivo_.aperto() || scena().paratia <= 0) return false;
    const double L = scena_.paratia;
    const double passo = vivo_.parete().h > 0 ? vivo_.parete().h : L / 50;
    const double ora = z_.value_or(tasto == Qt::Key_Down ? -passo : passo);
    daTasti_ = true;
    switch (tasto) {
        case Qt::Key_Up:
            leggi(std::max(ora - passo, 0.0));
            return true;
        case Qt::Key_Down:
            leggi(std::min(ora + passo, L));
            return true;
        case Qt::Key_Home:
            leggi(0);
            return true;
        case Qt::Key_End:
            leggi(L);
            return true;
        default:
            return false;
    }
}

void VistaFigura::keyPressEvent(QKeyEvent* evento) {
    if (evento->matches(QKeySequence::Copy))
        copia();
    else if (!leggeTasto(evento->key()))
        QWidget::keyPressEvent(evento);
}

void VistaFigura::mouseMoveEvent(QMouseEvent* evento) {
    if (!vivo_.aperto() || scena().paratia <= 0) return;
    const QPointF p = evento->position();
    const scene::Riquadro& r = scena_.lettura;
    const bool sopra = p.x() >= r.sinistra && p.y() >= r.alto && p.y() <= r.basso;
    if (!sopra && daTasti_) return;
    daTasti_ = false;
    leggi(sopra ? std::optional(scena_.z(p.y())) : std::nullopt);
}

void VistaFigura::leaveEvent(QEvent*) {
    if (!daTasti_) leggi(std::nullopt);
}

void VistaFigura::focusInEvent(QFocusEvent* evento) {
    QWidget::focusInEvent(evento);
    update();
}

void VistaFigura::focusOutEvent(QFocusEvent* evento) {
    QWidget::focusOutEvent(evento);
    update();
}

void VistaFigura::copia() {
    if (!vivo_.aperto()) return;
    copiaFigura(vivo_, font());
    emit copiata();
}

}  // namespace korven::shell
