#pragma once

#include <QEventLoop>
#include <QObject>
#include <memory>

#include "base/dialogo.hpp"
#include "device/drawing_fonts.hpp"
#include "device/screen_surface.hpp"
#include "shell/viewer/drawing_watch_qt.hpp"
#include "shell/viewer/grafica.hpp"
#include "shell/viewer/ports.hpp"

class QWidget;

namespace korven::shell {

/// The viewer of the program. While it lives every drawing appears on the form `GRAFICA`, which is
/// made by the first one. While that form is open the main form is disabled, and the window system
/// can't close it either; when `GRAFICA` closes, the main form comes back.
class VisoreDisegni : public QObject {
 public:
    /// All three are not owned and must outlive the viewer.
    VisoreDisegni(QWidget& principale, PorteGrafica& porte, base::Dialogo& dialogo);
    VisoreDisegni(const VisoreDisegni&) = delete;
    VisoreDisegni& operator=(const VisoreDisegni&) = delete;
    ~VisoreDisegni() override;

    /// Returns when the form has been closed; at once when it is not open.
    void attendi();

    /// Closes the form, if it is open.
    void chiudi();

    /// The form; nullptr as long as nothing was drawn. It is hidden when it was closed.
    [[nodiscard]] GRAFICA* forma() { return forma_.get(); }
    [[nodiscard]] const QImage& immagine() const { return superficie_.immagine(); }

 protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
    plot::SpazioDisegno apri();
    void chiusa();

    QWidget& principale_;
    PorteGrafica& porte_;
    base::Dialogo& dialogo_;
    const device::MetricaQt metrica_;
    SorveglianzaQt sorveglianza_{[this] { return forma_.get(); }};
    device::SuperficieSchermo superficie_;
    std::unique_ptr<GRAFICA> forma_;
    QEventLoop attesa_;
    bool fineSessione_ = false;
};

}  // namespace korven::shell
