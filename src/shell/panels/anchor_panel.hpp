#pragma once

#include "panels/anchor_calculator.hpp"
#include "shell/live/live_view.hpp"
#include "shell/masks/base2_32.hpp"
#include "shell/panels/side_panel.hpp"

class QLabel;

namespace korven::shell {

class CampiTirante;
class TabellaTiri;

/// Beside the table of anchors: the calculator for the row in use, which writes into its cells, and
/// the force of that anchor in each stage, which follows what is typed.
class PannelloTiranti : public PannelloLaterale {
    Q_OBJECT
 public:
    /// All must outlive the panel.
    /// @param vita      follows the form already
    /// @param ingressi  of the calculator, from one form to the next
    PannelloTiranti(Base2_32& forma, VitaProgetto& vita, panels::IngressiCalcolo& ingressi);

 private:
    QWidget* fareCalcolo();
    QWidget* fareTiri();
    void scrivi(int colonna, const std::string& testo);
    void torna(bool avanti);
    void aggiorna();

    Base2_32& forma_;
    VitaProgetto& vita_;
    panels::IngressiCalcolo& ingressi_;
    QLabel* discorde_;  // shown while the row is of another kind than what is calculated
    CampiTirante* campi_;
    QLabel* titolo_;
    TabellaTiri* tiri_;
    QLabel* perche_;
};

}  // namespace korven::shell
