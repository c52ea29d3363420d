#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/dialogo.hpp"

namespace korven::test {

/// Keeps what the program told its user and gives one answer to every question.
class DialogRecord : public base::Dialogo {
 public:
    struct Box {
        std::string testo, titolo;
        base::Icona icona;
        bool operator==(const Box&) const = default;
    };

    void messaggio(std::string_view testo, std::string_view titolo, base::Icona icona) override {
        messaggi.push_back({std::string(testo), std::string(titolo), icona});
    }
    base::Risposta domanda(std::string_view testo, std::string_view titolo, base::Pulsanti,
                           base::Icona icona) override {
        domande.push_back({std::string(testo), std::string(titolo), icona});
        return risposta;
    }
    void puntatore(base::Puntatore forma) override { ultimoPuntatore = forma; }

    base::Risposta risposta = base::Risposta::annulla;
    std::vector<Box> messaggi, domande;
    base::Puntatore ultimoPuntatore = base::Puntatore::normale;
};

}  // namespace korven::test
