#include "scene/reading.hpp"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <vector>

#include "base/name_in_sentence.hpp"
#include "base/translated_texts.hpp"
#include "drawings/log/layer_name.hpp"
#include "live/envelope.hpp"
#include "project/shown_number.hpp"
#include "scene/shown_values.hpp"
#include "scene/shown_wall.hpp"

namespace korven::scene {

namespace {

// Between which two nodes a depth lies, and where.
struct Luogo {
    std::size_t nodo = 0;
    double parte = 0;

    [[nodiscard]] double operator()(const std::vector<double>& v) const { return (*this)(v, v); }
    /// Of a line with two values at a node: down to the next one it goes from that below the node.
    [[nodiscard]] double operator()(const std::vector<double>& sopra,
                                    const std::vector<double>& sotto) const {
        const double a = sotto[nodo], b = sopra[std::min(nodo + 1, sopra.size() - 1)];
        return a + parte * (b - a);
    }
    [[nodiscard]] Letto uno(const std::vector<double>& v) const { return {(*this)(v), (*this)(v)}; }
    [[nodiscard]] Letto uno(const std::vector<double>& sopra,
                            const std::vector<double>& sotto) const {
        if (const auto i = nodoEsatto()) {
            const auto [minimo, massimo] = std::minmax(sopra[*i], sotto[*i]);
            return {minimo, massimo};
        }
        return {(*this)(sopra, sotto), (*this)(sopra, sotto)};
    }
    [[nodiscard]] Letto due(const live::Fascia& f) const {
        return {(*this)(f.minimo), (*this)(f.massimo)};
    }
    [[nodiscard]] Letto taglio(const live::Inviluppo& e) const {
        if (nodoEsatto()) return due(e.taglio);
        return {(*this)(e.taglioSopra.minimo, e.taglioSotto.minimo),
                (*this)(e.taglioSopra.massimo, e.taglioSotto.massimo)};
    }

 private:
    // Depths and distances of nodes are no round numbers of the processor.
    [[nodiscard]] std::optional<std::size_t> nodoEsatto() const {
        constexpr double arrotondamento = 1e-9;
        if (parte < arrotondamento) return nodo;
        if (parte > 1 - arrotondamento) return nodo + 1;
        return std::nullopt;
    }
};

Luogo luogo(const live::PareteViva& parete, double z) {
    const double passi = std::clamp<double>(z / parete.h, 0, parete.nSeg);
    const auto nodo = static_cast<std::size_t>(std::min<double>(passi, parete.nSeg - 1));
    return {nodo, passi - static_cast<double>(nodo)};
}

std::string strato(const Mostrata& m, double z) {
    const int i = stratoMostrato(m, z);
    if (i == 0) return {};
    const std::string testo = drawings::descrizioneMostrata(m.dati().descrStrato[i]).testo;
    return testo.substr(0, testo.find('|'));
}

// "12.3", of an envelope "-1.5 … 4.5"; empty for no number.
std::string numeri(const std::optional<Letto>& letto, const project::Unita& unita) {
    if (!letto || !std::isfinite(letto->minimo) || !std::isfinite(letto->massimo)) return {};
    const std::string minimo = project::numeroMostrato(letto->minimo, 1, unita);
    const std::string massimo = project::numeroMostrato(letto->massimo, 1, unita);
    return minimo == massimo ? massimo : minimo + " \u2026 " + massimo;
}

// The values of one unit, which is told once.
struct Valore {
    std::string_view nome;
    const std::optional<Letto>& letto;
};
void aggiungi(std::string& testo, std::initializer_list<Valore> valori,
              const project::Unita& unita) {
    bool detti = false;
    for (const auto& [nome, letto] : valori) {
        const std::string scritti = numeri(letto, unita);
        if (scritti.empty()) continue;
        testo.append("  \u00B7  ").append(nome).append(" ").append(scritti);
        detti = true;
    }
    if (detti) testo.append(" ").append(unita.mostrata);
}

}  // namespace

Lettura lettura(const live::PareteViva& parete, const live::Vista& vista, double z) {
    const Mostrata m = mostrata(parete, vista);
    Lettura letta;
    letta.z = std::clamp(z, 0.0, m.lunghezza);
    letta.strato = strato(m, letta.z);
    if (vista.fase == 0 && parete.fasiInEquilibrio() > 0) {
        const Luogo dove = luogo(parete, letta.z);
        const live::Inviluppo tutte = live::inviluppo(parete);
        letta.y = dove.due(tutte.y);
        letta.momento = dove.due(tutte.momento);
        letta.taglio = dove.taglio(tutte);
        letta.pressione = dove.due(tutte.pressione);
    } else if (const auto* fase = parete.fase(vista.fase)) {
        const Luogo dove = luogo(parete, letta.z);
        letta.y = dove.uno(fase->y);
        letta.momento = dove.uno(fase->momento);
        letta.taglio = dove.uno(fase->taglioSopra, fase->taglioSotto);
        letta.monte = dove.uno(fase->monte);
        letta.valle = dove.uno(fase->valle);
        letta.acqua = dove.uno(fase->acqua);
    }
    return letta;
}

std::string parole(const Lettura& letta) {
    namespace unita = project::unita;
    using base::traduttore;
    std::string testo = quota(letta.z);
    aggiungi(testo, {{"y", letta.y}}, unita::spostamentoFine);
    aggiungi(testo, {{"M", letta.momento}}, unita::momentoAlMetro);
    aggiungi(testo, {{"T", letta.taglio}}, unita::forzaAlMetro);
    const std::string monte = traduttore("monte"), valle = traduttore("valle");
    const std::string acqua = traduttore("acqua"),
                      netta = base::nellaFrase(traduttore("Pressione netta"));
    aggiungi(testo,
             {{monte, letta.monte},
              {valle, letta.valle},
              {acqua, letta.acqua},
              {netta, letta.pressione}},
             unita::pressione);
    if (!letta.strato.empty()) testo += "  \u00B7  " + letta.strato;
    return testo;
}

}  // namespace korven::scene
