#pragma once

#include <deque>
#include <string_view>

#include "support/dialog_record.hpp"

namespace korven::test {

/// Keeps what the program told its user and answers each question by the next answer of a script;
/// behind its end nobody answers.
class DialogScript : public DialogRecord {
 public:
    explicit DialogScript(std::deque<base::Risposta> script = {}) : risposte(std::move(script)) {}

    base::Risposta domanda(std::string_view testo, std::string_view titolo, base::Pulsanti pulsanti,
                           base::Icona icona) override {
        risposta = base::Risposta::annulla;
        if (!risposte.empty()) {
            risposta = risposte.front();
            risposte.pop_front();
        }
        return DialogRecord::domanda(testo, titolo, pulsanti, icona);
    }

    std::deque<base::Risposta> risposte;
};

}  // namespace korven::test
