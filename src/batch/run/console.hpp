#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "analysis/progress.hpp"
#include "base/dialogo.hpp"

namespace korven::batch {

/// One line a stage on standard error: redrawn in place on a terminal, written once the stage has
/// come to rest elsewhere.
class AvanzamentoConsole : public analysis::Avanzamento {
 public:
    explicit AvanzamentoConsole(bool mostra);

    void apri() override {}
    void iterazione(const analysis::StatoIterazione& stato) override;
    void chiudi() override;
    /// Says once what is waited for.
    void attendi(std::string_view detto) override;
    void fineAttesa() override { attesaDetta_ = false; }

 private:
    bool mostra_;
    bool terminale_;
    bool rigaAperta_ = false;
    bool attesaDetta_ = false;
};

/// Tells messages on standard error and answers the one question of a run as the command line said.
class DialogoConsole : public base::Dialogo {
 public:
    /// @param vista  its line is ended before a message, which has a line of its own
    DialogoConsole(bool ricalcolaEJ, AvanzamentoConsole& vista)
        : ricalcolaEJ_(ricalcolaEJ), vista_(vista) {}

    void messaggio(std::string_view testo, std::string_view titolo, base::Icona icona) override;
    base::Risposta domanda(std::string_view testo, std::string_view titolo, base::Pulsanti pulsanti,
                           base::Icona icona) override;
    /// Writes the information to standard error.
    base::Risposta domandaInformata(std::string_view testo, std::string_view titolo,
                                    base::Pulsanti pulsanti, base::Icona icona,
                                    std::string_view informazione) override;
    void puntatore(base::Puntatore) override {}

    /// All messages shown so far.
    [[nodiscard]] const std::vector<std::string>& messaggi() const { return messaggi_; }

 private:
    bool ricalcolaEJ_;
    AvanzamentoConsole& vista_;
    std::vector<std::string> messaggi_;
};

}  // namespace korven::batch
