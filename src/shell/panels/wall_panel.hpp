#pragma once

#include "shell/live/live_view.hpp"
#include "shell/panels/side_panel.hpp"

namespace korven::shell {

class SchizzoConParole;

/// Beside the fields of the wall: its picture in the stage that the main form shows, and below it
/// in words what it comes to; both follow what is typed. Where the screen has no room for fields
/// and panel it begins folded away.
class PannelloParatia : public PannelloLaterale {
    Q_OBJECT
 public:
    /// Both must outlive the panel.
    /// @param forma  the form that it goes beside, as wide as it is without it
    /// @param vita   follows the form already
    PannelloParatia(const QWidget& forma, VitaProgetto& vita);

 private:
    void aggiorna();

    VitaProgetto& vita_;
    SchizzoConParole* schizzo_;
};

}  // namespace korven::shell
