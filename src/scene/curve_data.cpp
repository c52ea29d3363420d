#include "scene/curve_data.hpp"

#include <algorithm>
#include <array>
#include <cmath>

#include "live/envelope.hpp"

namespace korven::scene {

namespace {

using equilibrium::FaseEquilibrio;
using live::Curva;
using live::Inviluppo;

// What a node has of a stage and of the envelope, above it and below it.
struct Voce {
    Curva curva;
    project::Unita unita;
    std::vector<double> FaseEquilibrio::*sopra, FaseEquilibrio::*sotto;
    live::Fascia Inviluppo::*fasciaSopra, Inviluppo::*fasciaSotto;
    std::string_view titolo;
};
const std::array<Voce, 4> voci{{
    {Curva::pressioni, project::unita::pressione, &FaseEquilibrio::monte, &FaseEquilibrio::monte,
     &Inviluppo::pressione, &Inviluppo::pressione, "Pressioni"},
    {Curva::spostamento, project::unita::spostamentoFine, &FaseEquilibrio::y, &FaseEquilibrio::y,
     &Inviluppo::y, &Inviluppo::y, "Spostamento"},
    {Curva::momento, project::unita::momentoAlMetro, &FaseEquilibrio::momento,
     &FaseEquilibrio::momento, &Inviluppo::momento, &Inviluppo::momento, "Momento"},
    {Curva::taglio, project::unita::forzaAlMetro, &FaseEquilibrio::taglioSopra,
     &FaseEquilibrio::taglioSotto, &Inviluppo::taglioSopra, &Inviluppo::taglioSotto, "Taglio"},
}};

bool numeri(const Serie& serie) {
    return serie.valori.size() > 1 &&
           std::all_of(serie.valori.begin(), serie.valori.end(),
                       [](double v) { return std::isfinite(v) && std::fabs(v) < 1e12; });
}

// Lines of one wall have their points at the same depths, so that stages and envelope go together.
class Linee {
 public:
    Linee(const live::PareteViva& parete, const Voce& voce) : h_(parete.h) {
        if (voce.sopra == voce.sotto || parete.fasiInEquilibrio() == 0) return;
        doppi_.resize(parete.fase(1)->y.size());
        for (int k = 1; k <= parete.fasiInEquilibrio(); ++k) {
            const FaseEquilibrio& fase = *parete.fase(k);
            for (std::size_t i = 0; i < doppi_.size(); ++i)
                if ((fase.*voce.sopra)[i] != (fase.*voce.sotto)[i]) doppi_[i] = true;
        }
    }

    [[nodiscard]] Serie linea(const std::vector<double>& sopra,
                              const std::vector<double>& sotto) const {
        Serie s;
        for (std::size_t i = 0; i < sopra.size(); ++i) {
            punto(sopra[i], i, s);
            if (i < doppi_.size() && doppi_[i]) punto(sotto[i], i, s);
        }
        return s;
    }

    [[nodiscard]] Serie linea(const std::vector<double>& valori, Ruolo linea, Ruolo fondo,
                              bool riempita, std::string_view nome) const {
        Serie s = this->linea(valori, valori);
        s.linea = linea;
        s.fondo = fondo;
        s.riempita = riempita;
        s.nome = nome;
        return s;
    }

 private:
    void punto(double valore, std::size_t nodo, Serie& s) const {
        s.valori.push_back(valore);
        s.z.push_back(h_ * static_cast<double>(nodo));
    }

    double h_;
    std::vector<bool> doppi_;  // nodes with two values; empty: none has
};

std::vector<Serie> serie(const live::PareteViva& parete, int fase, const Voce& voce) {
    const Linee linee(parete, voce);
    if (fase == 0) {
        const live::Inviluppo tutte = live::inviluppo(parete);
        const live::Fascia &sopra = tutte.*voce.fasciaSopra, &sotto = tutte.*voce.fasciaSotto;
        return {linee.linea(sopra.minimo, sotto.minimo), linee.linea(sopra.massimo, sotto.massimo)};
    }
    const FaseEquilibrio* stato = parete.fase(fase);
    if (stato == nullptr) return {};
    if (voce.curva != Curva::pressioni)
        return {linee.linea(stato->*voce.sopra, stato->*voce.sotto)};
    return {linee.linea(stato->monte, Ruolo::curvaMonte, Ruolo::fondoMonte, true, "monte"),
            linee.linea(stato->valle, Ruolo::curvaValle, Ruolo::fondoValle, true, "valle"),
            linee.linea(stato->acqua, Ruolo::acqua, Ruolo::fondoAcqua, false, "acqua")};
}

}  // namespace

DatiCurva datiCurva(const live::PareteViva& parete, int fase, live::Curva curva) {
    const auto& voce = *std::find_if(voci.begin(), voci.end(),
                                     [&](const Voce& una) { return una.curva == curva; });
    const bool pressione = curva == Curva::pressioni;
    DatiCurva dati{voce.unita, voce.titolo, pressione || curva == Curva::spostamento,
                   serie(parete, fase, voce), fase == 0};
    if (pressione && fase == 0) dati.titolo = "Pressione netta";
    // Water that presses nowhere needs no line.
    std::erase_if(dati.serie, [&](const Serie& una) {
        return una.linea == Ruolo::acqua &&
               std::all_of(una.valori.begin(), una.valori.end(), [](double v) { return v == 0; });
    });
    if (!std::all_of(dati.serie.begin(), dati.serie.end(), numeri)) dati.serie.clear();
    return dati;
}

}  // namespace korven::scene
