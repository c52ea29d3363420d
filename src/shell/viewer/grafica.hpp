#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "base/dialogo.hpp"
#include "device/screen_surface.hpp"
#include "plot/drawing_surface.hpp"
#include "shell/viewer/ports.hpp"
#include "shell/viewer/surface.hpp"

class QToolButton;

namespace korven::shell {

/// The window in which every drawing appears: the drawing, and beside it a strip of small pictures
/// that act as buttons. It works only on what the plot engine has stored; what a button does to the
/// drawing is worked out in src/plot.
///
/// Keys: S prints, I prints fitted to the sheet, D writes DXF, U leaves. Esc gives up a zoom that
/// is being marked, else it leaves.
class GRAFICA : public QWidget {
 public:
    /// @param disegno  the drawing shown; not owned, like the ports and the dialog
    /// @param chiusa   called after the window was closed
    GRAFICA(device::SuperficieSchermo& disegno, PorteGrafica& porte, base::Dialogo& dialogo,
            std::function<void()> chiusa);

    /// Shows the window, if it is not there yet, and returns its room for a drawing.
    plot::SpazioDisegno apri();

    /// Shows the picture that is now complete.
    void mostraDisegno();

 protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void closeEvent(QCloseEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void showEvent(QShowEvent* evento) override;

 private:
    struct Pulsante;
    [[nodiscard]] std::vector<Pulsante> pulsanti();
    QWidget* fareStriscia();
    QToolButton* farePulsante(const Pulsante& pulsante, QWidget* padre);

    void arma();
    void disarma();
    void tutto();
    void stampa(bool adatta);
    void esportaDxf();
    void esportaImmagine();
    void ridisegna();
    void centra();
    [[nodiscard]] plot::SpazioDisegno spazio() const;

    device::SuperficieSchermo& disegno_;
    PorteGrafica& porte_;
    base::Dialogo& dialogo_;
    std::function<void()> chiusa_;
    QWidget* striscia_ = nullptr;
    QWidget* area_ = nullptr;
    SuperficieGrafica* superficie_ = nullptr;
    QToolButton* ingrandisci_ = nullptr;  // Picture1
    QToolButton* armato_ = nullptr;       // Picture8
    std::vector<QToolButton*> spostamenti_;
    QTimer attesaRidisegno_;
    QSize areaDisegnata_;
    bool schermoSeguito_ = false;
};

}  // namespace korven::shell
