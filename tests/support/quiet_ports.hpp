#pragma once

#include "analysis/progress.hpp"
#include "base/dialogo.hpp"

namespace korven::test {

/// Ports of a run that nobody watches. Every question is answered with no.
class PorteMute : public base::Dialogo, public analysis::Avanzamento {
 public:
    void messaggio(std::string_view, std::string_view, base::Icona) override {}
    base::Risposta domanda(std::string_view, std::string_view, base::Pulsanti,
                           base::Icona) override {
        return base::Risposta::no;
    }
    void puntatore(base::Puntatore) override {}
    void apri() override {}
    void iterazione(const analysis::StatoIterazione&) override { ++iterazioni; }
    void chiudi() override {}

    int iterazioni = 0;
};

}  // namespace korven::test
