#include "review/remark_list.hpp"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <utility>

#include "base/number_text.hpp"
#include "base/translated_texts.hpp"

namespace korven::review {

namespace {

using project::DatiProgetto;
using project::Sezione;

constexpr project::Membro dettiPerEsteso[] = {
    &DatiProgetto::coeffM,       &DatiProgetto::sforzoNormale, &DatiProgetto::gammaAcqua,
    &Sezione::spessoreDiaframma, &Sezione::paliInterasse,      &Sezione::palancolaBase,
    &Sezione::armInterasse,
};

}  // namespace

std::vector<Rilievo> ElencoRilievi::ordinato() {
    std::stable_partition(rilievi_.begin(), rilievi_.end(),
                          [](const Rilievo& r) { return r.impedisce; });
    return std::exchange(rilievi_, {});
}

std::string rigaNumerata(std::string_view nome, int numero, std::string_view testo) {
    return base::traduttore(nome) + " " + std::to_string(numero) + ": " + base::traduttore(testo);
}

std::string conValoreTraParentesi(std::string testo, double valore) {
    return std::move(testo) + " (" + base::testoNumero(valore) + ")";
}

std::string nomeCampo(const project::Campo& campo) {
    const bool detto =
        !campo.codici.empty() || std::find(std::begin(dettiPerEsteso), std::end(dettiPerEsteso),
                                           campo.membro) != std::end(dettiPerEsteso);
    return base::traduttore(detto ? std::string(campo.cosa) : project::etichetta(campo));
}

// The shown value may be too large for a number; the review must still be able to tell it.
std::string campoEValore(const project::Membro& membro, double conservato) {
    constexpr double massimo = std::numeric_limits<double>::max();
    const project::Campo& riga = project::campo(membro);
    return nomeCampo(riga) + " = " +
           base::testoNumero(std::clamp(project::mostrato(riga, conservato), -massimo, massimo));
}

std::string nomeRiga(const project::Campo& colonna, int numero) {
    const char* nome = colonna.parte == project::Parte::strati    ? "strato"
                       : colonna.parte == project::Parte::tiranti ? "tirante"
                                                                  : "fase";
    return base::traduttore(nome) + " " + std::to_string(numero);
}

std::string rigaCampo(const project::DatiProgetto& dati, const project::Membro& colonna, int numero,
                      std::string_view testo) {
    const project::Campo& riga = project::campo(colonna);
    return nomeRiga(riga, numero) + ": " +
           campoEValore(colonna, project::numeroConservato(dati, riga, numero)) + ": " +
           base::traduttore(testo);
}

bool intero(double valore) { return valore == std::floor(valore); }

}  // namespace korven::review
