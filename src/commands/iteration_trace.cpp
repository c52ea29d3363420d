#include "commands/iteration_trace.hpp"

#include "base/number_text.hpp"
#include "base/translated_texts.hpp"

namespace korven::commands {

namespace {

using analysis::StatoIterazione;
using analysis::StatoLato;
using base::traduttore;

std::string parola(StatoLato stato) {
    switch (stato) {
        case StatoLato::elastico:
            return traduttore("elastico");
        case StatoLato::attivo:
            return traduttore("attivo");
        case StatoLato::passivo:
            return traduttore("passivo");
    }
    return {};
}

std::string conteggio(int cambi, int ultima) {
    return traduttore("cambi") + ": " + std::to_string(cambi) + ", " +
           traduttore("ultimo all'iterazione") + " " + std::to_string(ultima);
}

std::string frase(const TracciaIterazioni::CambioNodo& cambio) {
    return traduttore("nodo") + " " + std::to_string(cambio.nodo) + " (" +
           base::testoNumero(cambio.profondita) + " m), " +
           traduttore(cambio.monte ? "lato monte" : "lato valle") + ": " + parola(cambio.da) +
           " -> " + parola(cambio.a) + ", " + conteggio(cambio.cambi, cambio.ultimaIterazione);
}

std::string frase(const TracciaIterazioni::CambioTirante& cambio) {
    return traduttore("tirante") + " " + std::to_string(cambio.tirante) + " (" +
           traduttore("nodo") + " " + std::to_string(cambio.nodo) +
           "): " + traduttore(cambio.agisce ? "rientra" : "esce") + ", " +
           conteggio(cambio.cambi, cambio.ultimaIterazione);
}

void confrontaLato(StatoLato prima, StatoLato ora, int iterazione,
                   TracciaIterazioni::CambioNodo& cambio) {
    if (prima == ora) return;
    cambio.da = prima;
    cambio.a = ora;
    ++cambio.cambi;
    cambio.ultimaIterazione = iterazione;
}

}  // namespace

void TracciaIterazioni::registra(const StatoIterazione& stato) {
    if (stato.iterazione == 1) {
        *this = {};
        fase_ = stato.fase;
        for (std::size_t i = 0; i < stato.stati.size(); ++i) {
            CambioNodo cambio;
            cambio.nodo = static_cast<int>(i) + 1;
            cambio.profondita = static_cast<double>(i) * stato.passoNodi;
            monte_.push_back(cambio);
            cambio.monte = false;
            valle_.push_back(cambio);
        }
        for (std::size_t a = 0; a < stato.tiranti.size(); ++a)
            tiranti_.push_back({static_cast<int>(a) + 1, stato.tiranti[a].nodo, false, 0, 0});
    } else {
        confronta(stato);
    }
    iterazioni_ = stato.iterazione;
    stati_.assign(stato.stati.begin(), stato.stati.end());
    agenti_.assign(stato.tiranti.begin(), stato.tiranti.end());
}

void TracciaIterazioni::confronta(const StatoIterazione& stato) {
    for (std::size_t i = 0; i < stato.stati.size(); ++i) {
        confrontaLato(stati_[i].monte, stato.stati[i].monte, stato.iterazione, monte_[i]);
        confrontaLato(stati_[i].valle, stato.stati[i].valle, stato.iterazione, valle_[i]);
    }
    for (std::size_t a = 0; a < stato.tiranti.size(); ++a) {
        if (agenti_[a].agisce == stato.tiranti[a].agisce) continue;
        tiranti_[a].agisce = stato.tiranti[a].agisce;
        ++tiranti_[a].cambi;
        tiranti_[a].ultimaIterazione = stato.iterazione;
    }
}

std::vector<TracciaIterazioni::CambioNodo> TracciaIterazioni::nodi(int da) const {
    std::vector<CambioNodo> scelti;
    for (std::size_t i = 0; i < monte_.size(); ++i)
        for (const auto* cambio : {&monte_[i], &valle_[i]})
            if (cambio->cambi > 0 && cambio->ultimaIterazione >= da) scelti.push_back(*cambio);
    return scelti;
}

std::vector<TracciaIterazioni::CambioTirante> TracciaIterazioni::tiranti(int da) const {
    std::vector<CambioTirante> scelti;
    for (const auto& cambio : tiranti_)
        if (cambio.cambi > 0 && cambio.ultimaIterazione >= da) scelti.push_back(cambio);
    return scelti;
}

std::vector<std::string> TracciaIterazioni::righe(int da) const {
    std::vector<std::string> testo;
    for (const auto& cambio : nodi(da)) testo.push_back(frase(cambio));
    for (const auto& cambio : tiranti(da)) testo.push_back(frase(cambio));
    if (testo.empty()) testo.push_back(traduttore("nessun nodo e nessun tirante cambia stato"));
    return testo;
}

}  // namespace korven::commands
