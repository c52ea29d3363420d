#include "analysis/watch/iteration_trace.hpp"

#include <algorithm>

#include "base/number_text.hpp"
#include "base/translated_texts.hpp"

namespace korven::analysis {

namespace {

// A stage without rest is told by what still changed in its last iterations.
constexpr int ultimeIterazioni = 20;

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

struct Intervallo {
    int da, a;
    void comprendi(int valore) {
        da = std::min(da, valore);
        a = std::max(a, valore);
    }
    [[nodiscard]] std::string testo() const {
        return da == a ? std::to_string(da) : std::to_string(da) + "-" + std::to_string(a);
    }
};

std::string conteggio(const Intervallo& cambi, const Intervallo& ultima) {
    return traduttore("cambi") + ": " + cambi.testo() + ", " +
           traduttore(ultima.da == ultima.a ? "ultimo all'iterazione" : "ultimo alle iterazioni") +
           " " + ultima.testo();
}

// Neighbours of one side that change between the same two states: one line, since a long wall that
// finds no rest may flip at hundreds of nodes.
struct NodiVicini {
    explicit NodiVicini(const TracciaIterazioni::CambioNodo& cambio)
        : primo(cambio),
          ultimo(cambio),
          cambi{cambio.cambi, cambio.cambi},
          iterazioni{cambio.ultimaIterazione, cambio.ultimaIterazione} {}

    [[nodiscard]] bool prosegue(const TracciaIterazioni::CambioNodo& cambio) const {
        const bool uguali = cambio.da == primo.da && cambio.a == primo.a;
        const bool scambiati = cambio.da == primo.a && cambio.a == primo.da;
        return cambio.monte == primo.monte && cambio.nodo == ultimo.nodo + 1 &&
               (uguali || scambiati);
    }
    void aggiungi(const TracciaIterazioni::CambioNodo& cambio) {
        ultimo = cambio;
        cambi.comprendi(cambio.cambi);
        iterazioni.comprendi(cambio.ultimaIterazione);
        if (cambio.da != primo.da) versi = " <-> ";
    }

    TracciaIterazioni::CambioNodo primo, ultimo;
    Intervallo cambi, iterazioni;
    std::string_view versi = " -> ";
};

std::string frase(const NodiVicini& tratto) {
    const auto& [primo, ultimo, cambi, iterazioni, versi] = tratto;
    const bool uno = primo.nodo == ultimo.nodo;
    std::string testo = traduttore(uno ? "nodo" : "nodi") + " " +
                        Intervallo{primo.nodo, ultimo.nodo}.testo() + " (" +
                        base::testoNumero(primo.profondita);
    if (!uno) testo += "-" + base::testoNumero(ultimo.profondita);
    testo += " m), " + traduttore(primo.monte ? "lato monte" : "lato valle") + ": ";
    testo.append(parola(primo.da)).append(versi).append(parola(primo.a));
    return testo + ", " + conteggio(cambi, iterazioni);
}

std::vector<NodiVicini> uniti(const std::vector<TracciaIterazioni::CambioNodo>& nodi) {
    std::vector<NodiVicini> tratti;
    for (const bool monte : {true, false})
        for (const auto& cambio : nodi) {
            if (cambio.monte != monte) continue;
            if (!tratti.empty() && tratti.back().prosegue(cambio))
                tratti.back().aggiungi(cambio);
            else
                tratti.emplace_back(cambio);
        }
    std::stable_sort(tratti.begin(), tratti.end(), [](const NodiVicini& x, const NodiVicini& y) {
        return x.primo.nodo < y.primo.nodo;
    });
    return tratti;
}

std::string frase(const TracciaIterazioni::CambioTirante& cambio) {
    return traduttore("tirante") + " " + std::to_string(cambio.tirante) + " (" +
           traduttore("nodo") + " " + std::to_string(cambio.nodo) +
           "): " + traduttore(cambio.agisce ? "rientra" : "esce") + ", " +
           conteggio({cambio.cambi, cambio.cambi},
                     {cambio.ultimaIterazione, cambio.ultimaIterazione});
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
    for (const auto& tratto : uniti(nodi(da))) testo.push_back(frase(tratto));
    for (const auto& cambio : tiranti(da)) testo.push_back(frase(cambio));
    if (testo.empty()) testo.push_back(traduttore("nessun nodo e nessun tirante cambia stato"));
    return testo;
}

std::vector<std::string> TracciaIterazioni::ultimeRighe() const {
    return righe(std::max(2, iterazioni_ - ultimeIterazioni + 1));
}

std::string TracciaIterazioni::dove(std::string_view motivo) const {
    return traduttore(motivo) + " (" + traduttore("fase") + " " + std::to_string(fase_) + ", " +
           std::to_string(iterazioni_) + " " + traduttore("iterazioni") + ")";
}

std::vector<std::string> TracciaIterazioni::arresto(std::string_view motivo) const {
    std::vector<std::string> testo = ultimeRighe();
    testo.insert(testo.begin(),
                 dove(motivo) + ". " + traduttore("Nelle ultime iterazioni cambiano stato") + ":");
    return testo;
}

std::string TracciaIterazioni::arrestoInBreve(std::string_view motivo) const {
    std::string testo = dove(motivo) + ": ";
    const auto ultime = ultimeRighe();
    for (std::size_t i = 0; i < ultime.size(); ++i) testo += (i > 0 ? "; " : "") + ultime[i];
    return testo;
}

}  // namespace korven::analysis
