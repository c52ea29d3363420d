#pragma once

#include <functional>

#include "analysis/progress.hpp"
#include "base/dialogo.hpp"
#include "commands/desktop_forms.hpp"
#include "commands/document.hpp"
#include "commands/menu_tree.hpp"
#include "commands/output_commands.hpp"
#include "masks/field_places.hpp"

namespace korven::commands {

/// The desktop program behind its menu: documents, editors, outputs, help.
class Programma {
 public:
    /// The ports must outlive the program.
    Programma(base::Dialogo& dialogo, DialogoFile& nomi, FinestraPrincipale& finestra,
              analysis::Avanzamento& avanzamento, masks::Maschere& maschere, FormeProgramma forme)
        : dialogo_(dialogo),
          avanzamento_(avanzamento),
          maschere_(maschere),
          forme_(std::move(forme)),
          finestra_(finestra),
          documento_(dialogo, nomi, finestra) {
        documento_.offriCon(forme_.recupero);
    }

    /// Carries the command of an item out; what it has changed is then in the rescue file.
    /// @pre `puo`: asserted
    /// @return true when the program is to end
    bool esegui(const VoceMenu& voce);

    /// False when the item opens a menu, or the form of its command is not plugged in.
    [[nodiscard]] bool puo(const VoceMenu& voce) const;

    /// False when a command that `puo` has nothing to do just now.
    [[nodiscard]] bool possibile(const VoceMenu& voce) const;

    /// The desktop ends its session: the question about unsaved work where its user may be asked, a
    /// rescue file (fatal_error.hpp) where nobody can be. A run stops when the program is to end.
    /// @return false to ask the desktop to stay
    bool fineSessione(bool chiedibile);

    /// Shows the help of the menu item with this entry of the table of help contexts.
    void apriGuida(int voce) const;

    /// An editing command (edit_commands.hpp).
    void edita(masks::NumeroMaschera maschera, const char* rifiuto);

    /// Opens the form that edits a field, at the field; nothing without an open project, or where
    /// the form is missing.
    void editaDa(const masks::PostoCampo& posto);

    /// Makes other data those of the open project, as a step of its history.
    /// @param dati  read from a project, or by the rules of one
    /// @param nome  by which the step is told, translated
    /// @return false without an open project, and while an output is shown, which is of the data
    ///         before; nothing has changed then
    bool prendi(const project::DatiProgetto& dati, const std::string& nome);

    /// Takes the last confirmed form back, does it again (project_history.hpp). The status line
    /// tells which, until the next form or output; the project counts as modified.
    void annulla();
    void ripeti();

    /// An output command (output_commands.hpp). Of a run that was stopped, or that found no
    /// solution, the status line tells where and why, until another output goes through.
    void produci(void (*uscita)(const PorteUscita&));

    /// To be called now and then, also while a form is open: brings the rescue file up to what is
    /// unsaved (rescue/kept_rescue.hpp), as every command does that has changed the project, and an
    /// output before it shows what was computed. During a run, and once the program is to end,
    /// nothing happens.
    void tieniAlSicuro();

    [[nodiscard]] Documento& documento() { return documento_; }
    [[nodiscard]] const Documento& documento() const { return documento_; }
    [[nodiscard]] const FormeProgramma& forme() const { return forme_; }

 private:
    void custodisci();
    void nellaStoria(masks::NumeroMaschera scheda, const std::function<void()>& apri);
    void torna(bool (StoriaProgetto::*verso)(project::DatiProgetto&));

    base::Dialogo& dialogo_;
    analysis::Avanzamento& avanzamento_;
    masks::Maschere& maschere_;
    FormeProgramma forme_;
    FinestraPrincipale& finestra_;
    bool inUscita_ = false;     // an output is being produced
    bool inCorsa_ = false;      // its run may be going on
    bool congedata_ = false;    // the question about unsaved work has been answered for the end
    bool diceArresto_ = false;  // the status line tells of a stop
    bool diceStoria_ = false;   // the status line tells what was taken back or done again
    Documento documento_;
};

}  // namespace korven::commands
