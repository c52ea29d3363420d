#pragma once

#include "shell/live/live_view.hpp"
#include "shell/masks/base2_32.hpp"
#include "shell/panels/side_panel.hpp"
#include "shell/panels/stage_sketch.hpp"

namespace korven::shell {

/// Beside the table of stages: the sketch of the stage of the row in use, and below it in words
/// what it comes to; both follow what is typed.
class PannelloFasi : public PannelloLaterale {
    Q_OBJECT
 public:
    /// Both must outlive the panel.
    /// @param vita  follows the form already
    PannelloFasi(Base2_32& forma, VitaProgetto& vita);

 private:
    void aggiorna();

    Base2_32& forma_;
    VitaProgetto& vita_;
    SchizzoConParole* schizzo_;
};

}  // namespace korven::shell
