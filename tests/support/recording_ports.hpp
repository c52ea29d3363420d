#pragma once

#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/calcolo_paratia.hpp"
#include "base/dialogo.hpp"

namespace korven::test {

/// Writes down what it is told and answers questions from a script.
class DialogoFinto : public base::Dialogo {
 public:
    struct Detto {
        std::string testo, titolo;
        base::Icona icona;
    };

    void messaggio(std::string_view testo, std::string_view titolo, base::Icona icona) override {
        messaggi.push_back({std::string(testo), std::string(titolo), icona});
    }
    base::Risposta domanda(std::string_view testo, std::string_view titolo, base::Pulsanti,
                           base::Icona icona) override {
        domande.push_back({std::string(testo), std::string(titolo), icona});
        if (risposte.empty()) return base::Risposta::annulla;
        const auto risposta = risposte.front();
        risposte.pop_front();
        return risposta;
    }
    void puntatore(base::Puntatore forma) override { puntatori.push_back(forma); }

    std::vector<Detto> messaggi, domande;
    std::deque<base::Risposta> risposte;
    std::vector<base::Puntatore> puntatori;
};

/// Counts what a run reports and may act at each iteration.
class AvanzamentoFinto : public analysis::Avanzamento {
 public:
    void apri() override { ++aperture; }
    void iterazione(const analysis::StatoIterazione& stato) override {
        ++iterazioni;
        if (adOgniIterazione) adOgniIterazione(stato);
    }
    void chiudi() override { ++chiusure; }
    /// No time passes.
    void attendi(std::string_view detto) override {
        attese.emplace_back(detto);
        if (allaPausa) allaPausa(static_cast<int>(attese.size()));
    }
    void fineAttesa() override { ++fineAttese; }

    int aperture = 0, chiusure = 0, iterazioni = 0, fineAttese = 0;
    std::vector<std::string> attese;
    std::function<void(int volta)> allaPausa;
    std::function<void(const analysis::StatoIterazione&)> adOgniIterazione;
};

/// Counts the outputs asked for.
class UscitaFinta : public analysis::UscitaCalcolo {
 public:
    [[nodiscard]] std::vector<std::string> file(analysis::ModoUscita,
                                                const std::string&) const override {
        return daScrivere;
    }
    void scriviRelazione() override { ++relazioni; }
    void disegnaDiagramma(analysis::Diagramma diagramma) override {
        diagrammi.push_back(diagramma);
    }

    int relazioni = 0;
    std::vector<analysis::Diagramma> diagrammi;
    std::vector<std::string> daScrivere;
};

}  // namespace korven::test
