#pragma once

#include <QMessageBox>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>
#include <string_view>

#include "analysis/progress.hpp"
#include "safety/slow_stage.hpp"
#include "shell/run/redraw_rhythm.hpp"
#include "shell/run/temp_calc.hpp"

namespace korven::shell {

/// Shows a run on its two surfaces, the window `TempCalc` and the caption of the main form, and
/// serves the event queue once per iteration, so that the stop button can be pressed. The surfaces
/// are redrawn at most 30 times a second, and with the last state in any case. Of a stage that
/// finds no rest the window says what becomes of the wall.
class AvanzamentoQt : public analysis::Avanzamento {
 public:
    using Orologio = std::function<RitmoRidisegno::Istante()>;
    explicit AvanzamentoQt(Orologio orologio = std::chrono::steady_clock::now)
        : orologio_(std::move(orologio)) {}

    /// The main form, whose caption tells the state of the run.
    void sopra(QWidget* principale) { principale_ = principale; }

    void apri() override;
    void iterazione(const analysis::StatoIterazione& stato) override;
    void chiudi() override;
    /// A box with a button to give up; the other windows are closed to the user meanwhile.
    void attendi(std::string_view detto) override;
    void fineAttesa() override { attesa_.reset(); }

    /// The progress window while a run lasts, else nullptr.
    [[nodiscard]] TempCalc* finestra() const { return finestra_.get(); }

 private:
    void mostra();
    void apriAttesa(std::string_view detto);

    Orologio orologio_;
    QPointer<QWidget> principale_;
    QString didascaliaPrima_;
    RitmoRidisegno ritmo_;
    safety::FaseSenzaRiposo lenta_;
    std::unique_ptr<TempCalc> finestra_;
    std::unique_ptr<QMessageBox> attesa_;
    QuadroAvanzamento quadro_;
    QString didascalia_, riga_;
    bool daMostrare_ = false;
};

}  // namespace korven::shell
