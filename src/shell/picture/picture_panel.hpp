#pragma once

#include <QWidget>
#include <functional>

#include "shell/live/live_view.hpp"

class QAction;
class QButtonGroup;
class QLabel;
class QSlider;
class QToolButton;

namespace korven::shell {

class EtichettaAccorciata;
class VistaFigura;

/// The open project in the main form: its picture, a line with what is read on it, and the strip by
/// which stage and curve are chosen. It follows the live project.
///
/// Keys of the window it is in: PgUp and PgDown choose the stage, 1 to 4 the curve, Ctrl+C copies.
/// On the picture F1 leads to its own page of the help.
class PannelloFigura : public QWidget {
    Q_OBJECT
 public:
    /// @param vita   the project; outlives the panel
    /// @param salva  asks for a file and writes the picture
    PannelloFigura(VitaProgetto& vita, std::function<void(const QFont&)> salva,
                   QWidget* genitore = nullptr);

    [[nodiscard]] VistaFigura& vista() const { return *vista_; }

    /// Room for the emblem of the main form at the lower left corner.
    static constexpr int larghezzaEmblema = 62, altezzaEmblema = 36;

 signals:
    /// The picture is in the clipboard: what of the project it shows, "fase 2, Momento".
    void copiata(const QString& che);

 protected:
    bool event(QEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void contextMenuEvent(QContextMenuEvent* evento) override;

 private:
    QWidget* striscia();
    void tasti();
    void aggiorna();
    void scegliFase(int fase);
    void scegliCurva(live::Curva curva);

    VitaProgetto& vita_;
    VistaFigura* vista_;
    EtichettaAccorciata* lettura_;
    QWidget* striscia_ = nullptr;
    QToolButton* pulsanteSalva_ = nullptr;
    QSlider* fasi_ = nullptr;
    QLabel* fase_ = nullptr;
    QButtonGroup* curve_ = nullptr;
    QAction *copia_ = nullptr, *salva_ = nullptr;
};

}  // namespace korven::shell
