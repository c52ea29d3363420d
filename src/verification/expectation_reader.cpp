#include "verification/expectation_reader.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>

#include "base/number_text.hpp"
#include "project/units.hpp"
#include "verification/outcome_names.hpp"

namespace korven::verification {

namespace {

using Parole = std::vector<std::string_view>;
using Passo = Parole::const_iterator;

constexpr std::string_view entro = "entro", solo = "solo", variante = "variante", volte = "x";

double numero(const RigheCaso& righe, std::string_view testo) {
    const auto letto = base::soloUnNumero(testo) ? base::leggiNumero(testo) : std::nullopt;
    if (!letto) righe.rifiuta("un numero, non «%1»", {std::string(testo)});
    return *letto;
}

int contato(const RigheCaso& righe, std::string_view testo, int massimo) {
    const double letto = numero(righe, testo);
    if (letto != std::floor(letto) || letto < 1 || letto > massimo)
        righe.rifiuta("il numero di una fase o di un tirante che c'è, non «%1»",
                      {std::string(testo)});
    return static_cast<int>(letto);
}

void controllaNodo(const RigheCaso& righe, double z, const Parete& parete) {
    constexpr double arrotondamento = 1e-6;  // of the step: depths are typed with few decimals
    const double passi = z * parete.segmenti / parete.dati.lunghezzaParatia;
    if (!(std::fabs(passi - std::round(passi)) < arrotondamento) || passi < -arrotondamento ||
        passi > parete.segmenti + arrotondamento)
        righe.rifiuta("la profondità di un nodo, non «%1»", {base::testoNumero(z)});
}

// Takes the pairs that name a place and ends at the first word that is none.
void prendiLuogo(const RigheCaso& righe, const Parete& parete, Passo& passo, Passo fine,
                 Luogo& luogo) {
    while (passo != fine && std::next(passo) != fine) {
        const auto valore = *std::next(passo);
        if (*passo == "fase")
            luogo.fase = contato(righe, valore, parete.dati.nFasi);
        else if (*passo == "z")
            controllaNodo(righe, luogo.z.emplace(numero(righe, valore)), parete);
        else if (*passo == "tirante")
            luogo.tirante = contato(righe, valore, parete.dati.nTiranti);
        else
            return;
        passo += 2;
    }
}

void controllaLuogo(const RigheCaso& righe, const Grandezza& g, const Luogo& luogo) {
    if (g.conZ != luogo.z.has_value() || g.conTirante != (luogo.tirante > 0))
        righe.rifiuta(g.conZ         ? "una profondità: «z 2.5»"
                      : g.conTirante ? "un tirante: «tirante 1»"
                                     : "una grandezza senza profondità e senza tirante");
    if (!g.diFase && luogo.fase > 0) righe.rifiuta("una grandezza senza fase");
}

int decimali(std::string_view testo) {
    const auto punto = testo.find('.');
    if (punto == std::string_view::npos) return 0;
    return static_cast<int>(testo.substr(punto + 1).find_first_of("eE") == std::string_view::npos
                                ? testo.size() - punto - 1
                                : 0);
}

std::string unite(Passo da, Passo a) {
    std::string testo;
    for (; da != a; ++da) testo.append(testo.empty() ? "" : " ").append(*da);
    return testo;
}

// "%" of the expected value, or the quantity's own unit.
Tolleranza tolleranza(const RigheCaso& righe, const Grandezza& g, Passo da, Passo a) {
    if (da == a) righe.rifiuta("una tolleranza: «entro 0.1 %»");
    Tolleranza t{.valore = numero(righe, *da), .testo = unite(da, a)};
    const std::string unita = unite(std::next(da), a);
    t.relativa = unita == "%";
    if (t.relativa)
        t.valore /= project::unita::percento.fattore;
    else if (unita != (g.unita.mostrata == "-" ? "" : g.unita.mostrata))
        righe.rifiuta("una tolleranza in % o in %1", {std::string(g.unita.mostrata)});
    if (!(t.valore > 0)) righe.rifiuta("una tolleranza maggiore di 0");
    return t;
}

ConRun confronto(const RigheCaso& righe, const Caso& caso, const Luogo& suo, Passo passo,
                 Passo fine) {
    if (!caso.variante) righe.rifiuta("una parete variante, con la quale si confronta");
    ConRun c{.variante = true, .luogo = suo};
    prendiLuogo(righe, *caso.variante, ++passo, fine, c.luogo);
    if (c.luogo.z) controllaNodo(righe, *c.luogo.z, *caso.variante);
    if (passo != fine && *passo == volte && std::next(passo) != fine) {
        c.fattore = numero(righe, *std::next(passo));
        passo += 2;
    }
    if (passo != fine) righe.rifiuta("la variante, un luogo e un fattore");
    return c;
}

// What stands between the sign and the tolerance.
void prendiValore(const RigheCaso& righe, const Caso& caso, Passo passo, Passo fine,
                  Attesa& attesa) {
    if (passo == fine) righe.rifiuta("un valore");
    const Grandezza& g = *attesa.grandezza;
    if (*passo == variante) {
        attesa.confronto = confronto(righe, caso, attesa.luogo, passo, fine);
    } else if (aParole(g)) {
        attesa.parola = *passo;
        if (!esito(attesa.parola) || std::next(passo) != fine)
            righe.rifiuta("un esito, non «%1»", {attesa.parola});
    } else {
        attesa.valore = numero(righe, *passo);
        attesa.decimali = decimali(*passo);
        const auto unita = g.unita.mostrata == "-" ? "" : g.unita.mostrata;
        if (unite(std::next(passo), fine) != unita)
            righe.rifiuta("l'unità «%1»", {std::string(unita)});
    }
}

std::optional<Metodo> metodo(const RigheCaso& righe, const Grandezza& g, std::string_view nome) {
    if (nome == "corsa" && g.corsa) return Metodo::corsa;
    if (nome == "equilibrio" && g.equilibrio) return Metodo::equilibrio;
    righe.rifiuta("un calcolo che conosce la grandezza, non «%1»", {std::string(nome)});
}

}  // namespace

Attesa leggiAttesa(const RigheCaso& righe, std::string_view riga, const Caso& caso) {
    const auto lati = divisa(riga, '=');
    if (!lati) righe.rifiuta("una grandezza, «=» e un valore");
    const Parole sinistra = parole(lati->first), destra = parole(lati->second);
    Attesa attesa{.riga = righe.numero()};
    attesa.grandezza = sinistra.empty() ? nullptr : grandezza(sinistra.front());
    if (attesa.grandezza == nullptr)
        righe.rifiuta("il nome di una grandezza, non «%1»", {std::string(lati->first)});

    if (attesa.grandezza->diFase) attesa.luogo.fase = 0;
    auto passo = sinistra.begin() + 1;
    prendiLuogo(righe, caso.parete, passo, sinistra.end(), attesa.luogo);
    if (passo != sinistra.end())
        righe.rifiuta("fase, z o tirante, non «%1»", {std::string(*passo)});
    controllaLuogo(righe, *attesa.grandezza, attesa.luogo);
    if (attesa.grandezza->diFase && attesa.luogo.fase == 0)
        attesa.luogo.fase = caso.parete.dati.nFasi;

    auto fine = destra.end();
    if (destra.size() >= 2 && destra[destra.size() - 2] == solo) {
        attesa.solo = metodo(righe, *attesa.grandezza, destra.back());
        fine -= 2;
    }
    const auto confine = std::find(destra.begin(), fine, entro);
    prendiValore(righe, caso, destra.begin(), confine, attesa);
    if (!aParole(*attesa.grandezza))
        attesa.tolleranza =
            tolleranza(righe, *attesa.grandezza, confine == fine ? fine : std::next(confine), fine);
    return attesa;
}

}  // namespace korven::verification
