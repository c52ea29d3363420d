#pragma once

#include "analysis/progress.hpp"
#include "base/dialogo.hpp"
#include "commands/document.hpp"
#include "commands/program_forms.hpp"

namespace korven::commands {

/// The menu commands of the desktop program, each by its road: documents, editors, outputs, help.
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
          documento_(dialogo, nomi, finestra) {}

    /// Carries a command out. @return true when the program is to end
    bool esegui(Comando comando);

    /// The desktop ends its session: the question about unsaved work where its user may be asked, a
    /// rescue file (fatal_error.hpp) where nobody can be. A run stops when the program is to end.
    /// @return false to ask the desktop to stay
    bool fineSessione(bool chiedibile);

    /// False when the form of a command is not plugged in.
    [[nodiscard]] bool puo(Comando comando) const { return haForma(comando, forme_); }

    /// Shows the help of the menu item with this entry of the table of help contexts.
    void aiuto(int voce) const;

    [[nodiscard]] Documento& documento() { return documento_; }

 private:
    void produciSeguendo(Comando comando);

    base::Dialogo& dialogo_;
    analysis::Avanzamento& avanzamento_;
    masks::Maschere& maschere_;
    FormeProgramma forme_;
    FinestraPrincipale& finestra_;
    bool diceArresto_ = false;  // the status line tells of a stop
    Documento documento_;
};

}  // namespace korven::commands
