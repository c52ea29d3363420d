#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "base/dialogo.hpp"

namespace korven::test {

/// Keeps what the program told and asked its user. A question takes the next answer of the script;
/// after its end every question takes the same one: nobody answers, unless a test says otherwise.
class DialogoFinto : public base::Dialogo {
 public:
    struct Detto {
        std::string testo, titolo;
        base::Icona icona;
        bool operator==(const Detto&) const = default;
    };

    explicit DialogoFinto(base::Risposta sempre = base::Risposta::annulla) : risposta(sempre) {}

    void messaggio(std::string_view testo, std::string_view titolo, base::Icona icona) override {
        messaggi.push_back({std::string(testo), std::string(titolo), icona});
    }
    base::Risposta domanda(std::string_view testo, std::string_view titolo, base::Pulsanti offerti,
                           base::Icona icona) override {
        domande.push_back({std::string(testo), std::string(titolo), icona});
        pulsanti.push_back(offerti);
        if (risposte.empty()) return risposta;
        const auto data = risposte.front();
        risposte.pop_front();
        return data;
    }
    base::Risposta domandaInformata(std::string_view testo, std::string_view titolo,
                                    base::Pulsanti offerti, base::Icona icona,
                                    std::string_view informazione) override {
        informazioni.emplace_back(informazione);
        return domanda(testo, titolo, offerti, icona);
    }
    void puntatore(base::Puntatore forma) override { puntatori.push_back(forma); }

    [[nodiscard]] base::Puntatore ultimoPuntatore() const {
        return puntatori.empty() ? base::Puntatore::normale : puntatori.back();
    }

    std::deque<base::Risposta> risposte;  ///< the script
    base::Risposta risposta;              ///< the answer after its end
    std::vector<Detto> messaggi, domande;
    std::vector<base::Pulsanti> pulsanti;   ///< what each question offered
    std::vector<std::string> informazioni;  ///< of the questions that came with one
    std::vector<base::Puntatore> puntatori;
};

}  // namespace korven::test
