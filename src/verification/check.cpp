#include "verification/check.hpp"

#include <algorithm>
#include <cmath>

#include "verification/computed_wall.hpp"
#include "verification/outcome_names.hpp"

namespace korven::verification {

namespace {

Grandezza::Valore funzione(const Grandezza& g, Metodo metodo) {
    switch (metodo) {
        case Metodo::corsa:
            return g.corsa;
        case Metodo::equilibrio:
            return g.equilibrio;
        case Metodo::sezione:
            return g.sezione;
    }
    return nullptr;
}

// A second wall is computed where one is compared with it.
struct Pareti {
    PareteCalcolata prima;
    std::optional<PareteCalcolata> seconda;
};

std::optional<double> mostrato(const Grandezza& g, Metodo metodo, PareteCalcolata& parete,
                               const Luogo& luogo) {
    const auto valore = funzione(g, metodo)(parete, luogo);
    if (!valore || !std::isfinite(*valore)) return {};
    return project::mostrato(g.unita, *valore) + 0.0;
}

Confronto confronta(const Attesa& attesa, Metodo metodo, Pareti& pareti) {
    Confronto c{.attesa = &attesa, .metodo = metodo};
    const Grandezza& g = *attesa.grandezza;
    c.ottenuto = mostrato(g, metodo, pareti.prima, attesa.luogo);
    if (aParole(g)) {
        const auto atteso = esito(attesa.parola);
        c.buono = c.ottenuto && *c.ottenuto == static_cast<double>(*atteso);
        return c;
    }
    c.atteso = attesa.valore;
    if (attesa.confronto) {
        c.atteso = mostrato(g, metodo, *pareti.seconda, attesa.confronto->luogo);
        if (c.atteso) *c.atteso *= attesa.confronto->fattore;
    }
    if (!c.atteso || !c.ottenuto) return c;
    c.differenza = *c.ottenuto - *c.atteso;
    const Tolleranza& t = attesa.tolleranza;
    c.buono = std::fabs(*c.differenza) <= t.valore * (t.relativa ? std::fabs(*c.atteso) : 1);
    return c;
}

}  // namespace

std::optional<double> Confronto::quota() const {
    if (!differenza || *atteso == 0) return {};
    return *differenza / std::fabs(*atteso);
}

int EsitoVerifica::conta(Verdetto verdetto) const {
    int numero = 0;
    for (const auto& gruppo : gruppi)
        numero += static_cast<int>(
            std::count_if(gruppo.casi.begin(), gruppo.casi.end(),
                          [verdetto](const EsitoCaso& c) { return c.verdetto == verdetto; }));
    return numero;
}

bool EsitoCaso::incontrato() const {
    return std::all_of(confronti.begin(), confronti.end(),
                       [](const Confronto& c) { return c.buono; });
}

int EsitoVerifica::rientrati() const {
    int numero = 0;
    for (const EsitoGruppo& gruppo : gruppi)
        numero +=
            static_cast<int>(std::count_if(gruppo.casi.begin(), gruppo.casi.end(),
                                           [](const auto& caso) { return caso.rientrato(); }));
    return numero;
}

EsitoCaso esegui(const Caso& caso) {
    EsitoCaso esito{.caso = &caso};
    Pareti pareti{PareteCalcolata(caso.parete), {}};
    if (caso.variante) pareti.seconda.emplace(*caso.variante);
    for (const Attesa& attesa : caso.attese)
        for (const Metodo metodo : {Metodo::corsa, Metodo::equilibrio, Metodo::sezione})
            if (funzione(*attesa.grandezza, metodo) && attesa.solo.value_or(metodo) == metodo)
                esito.confronti.push_back(confronta(attesa, metodo, pareti));
    esito.verdetto = !caso.noto.empty()   ? Verdetto::noto
                     : esito.incontrato() ? Verdetto::buono
                                          : Verdetto::fallito;
    return esito;
}

EsitoVerifica esegui(const std::vector<Gruppo>& gruppi, const std::function<bool()>& fermata) {
    EsitoVerifica esito;
    for (const Gruppo& gruppo : gruppi) {
        EsitoGruppo& suo = esito.gruppi.emplace_back();
        suo.gruppo = &gruppo;
        for (const Caso& caso : gruppo.casi) {
            if (fermata && fermata()) return esito;
            suo.casi.push_back(esegui(caso));
        }
    }
    return esito;
}

}  // namespace korven::verification
