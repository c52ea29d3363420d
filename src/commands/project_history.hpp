#pragma once

#include <string>
#include <variant>
#include <vector>

#include "masks/history.hpp"
#include "masks/values.hpp"
#include "project/field_table.hpp"

namespace korven::commands {

/// The confirmed forms of the open project, each a step that can be taken back and done again. A
/// step holds the fields that its form changed and no others: what a run has written since, as the
/// stiffness of a wall whose form left it alone, stays; the stiffness
/// of the anchors, which the form of the stages moves, comes back with it.
class StoriaProgetto {
 public:
    /// A form has changed a project; nothing where it changed no field.
    void confermata(masks::NumeroMaschera scheda, const project::DatiProgetto& prima,
                    const project::DatiProgetto& dopo);

    /// The same of what was changed without a form.
    /// @param nome  by which the step is told, translated
    void fatto(const std::string& nome, const project::DatiProgetto& prima,
               const project::DatiProgetto& dopo);

    /// Takes the last step back, or does the last one that was taken back again.
    /// @return false when there is none
    bool annulla(project::DatiProgetto& dati);
    bool ripeti(project::DatiProgetto& dati);

    [[nodiscard]] bool annullabile() const { return storia_.annullabile(); }
    [[nodiscard]] bool ripetibile() const { return storia_.ripetibile(); }
    /// The name of the form that would be taken back or done again; empty without one.
    [[nodiscard]] std::string daAnnullare() const { return storia_.daAnnullare(); }
    [[nodiscard]] std::string daRipetere() const { return storia_.daRipetere(); }
    /// What was taken back or done again last, for the status line; empty after a new step.
    [[nodiscard]] const std::string& detto() const { return storia_.detto(); }

    /// Forgets all steps: another project is open.
    void svuota() { storia_.svuota(); }

 private:
    struct Posto {
        const project::Campo* campo = nullptr;
        int riga = 1;
        bool operator==(const Posto&) const = default;
    };
    using Valore = std::variant<int, double, bool, std::string>;
    using Passi = masks::Storia<Posto, Valore>;

    [[nodiscard]] static std::vector<Passi::Cambio> cambi(const project::DatiProgetto& prima,
                                                          const project::DatiProgetto& dopo);
    static void metti(project::DatiProgetto& dati, const Posto& posto, const Valore& valore);

    Passi storia_;
};

/// How a form is named: the caption of its item in the menu, translated.
[[nodiscard]] std::string nomeScheda(masks::NumeroMaschera scheda);

}  // namespace korven::commands
