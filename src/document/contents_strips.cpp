#include "document/contents_strips.hpp"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "document/line_breaking.hpp"
#include "document/text_strips.hpp"

namespace korven::document {

namespace {

constexpr double corpo = 8;
constexpr double rientro = 10;                         // of a heading of level 2
constexpr double postoNumero = 26;                     // at the right end of a row
constexpr double distacco = 0.8 * puntiPerCentimetro;  // of the two columns
constexpr std::size_t colonne = 2;

Carattere carattere(int livello) { return {corpo, livello == 1}; }

struct Voce {
    int livello = 1;
    std::string testo;
    std::size_t segnalibro = 0;
};

std::vector<Voce> voci(const Documento& documento, std::size_t posto) {
    std::vector<Voce> tutte;
    std::size_t titoli = 0;
    for (std::size_t i = 0; i < documento.blocchi.size(); ++i) {
        const auto* titolo = std::get_if<Titolo>(&documento.blocchi[i]);
        if (titolo == nullptr) continue;
        if (i > posto && titolo->livello <= 2)
            tutte.push_back({titolo->livello, titolo->testo, titoli});
        ++titoli;
    }
    return tutte;
}

void scrivi(const Voce& voce, double x, double larga, double alta, const MisuraCaratteri& misura,
            Pagina& contenuto) {
    const Carattere scelto = carattere(voce.livello);
    const double da = voce.livello == 1 ? 0 : rientro;
    contenuto.scritte.push_back(
        scritta(accorciato(voce.testo, larga - da - postoNumero, scelto, misura), x + da, 0, scelto,
                misura));
    contenuto.rimandi.push_back({x, 0, larga, alta, voce.segnalibro});
    const double base = contenuto.scritte.back().y;
    const double fine = x + da + contenuto.scritte.back().larghezza;
    contenuto.filetti.push_back(
        {fine + 4, base, x + larga - postoNumero + 4, base, 0.4, Tinta::riga});
}

}  // namespace

void aggiungi(const Indice& indice, const Documento& documento, std::size_t posto,
              const Formato& formato, const MisuraCaratteri& misura, Strisce& strisce) {
    const std::vector<Voce> tutte = voci(documento, posto);
    if (tutte.empty()) return;
    if (!indice.titolo.empty()) {
        aggiungi(Paragrafo{indice.titolo, Stile::rilievo}, formato, misura, strisce);
        strisce.back().legata = true;
    }
    const double larga = (formato.larghezzaTesto() - distacco) / colonne;
    const double alta = interlinea(carattere(1));
    const std::size_t righe = (tutte.size() + colonne - 1) / colonne;
    for (std::size_t r = 0; r < righe; ++r) {
        // A list of contents is looked at as a whole.
        Striscia striscia{.altezza = alta, .legata = r + 1 < righe};
        for (std::size_t c = 0; c < colonne && c * righe + r < tutte.size(); ++c)
            scrivi(tutte[c * righe + r], static_cast<double>(c) * (larga + distacco), larga, alta,
                   misura, striscia.contenuto);
        strisce.push_back(std::move(striscia));
    }
    strisce.back().dopo = 8;
}

void numeraIndice(Impaginato& impaginato, const MisuraCaratteri& misura) {
    for (Pagina& pagina : impaginato.pagine)
        for (const Rimando& rimando : pagina.rimandi) {
            const Segnalibro& meta = impaginato.segnalibri.at(rimando.segnalibro);
            const Carattere scelto = carattere(meta.livello);
            const std::string numero = std::to_string(meta.pagina + 1);
            const double fine = rimando.x + rimando.larghezza;
            pagina.scritte.push_back(scritta(numero, fine - misura.larghezza(numero, scelto),
                                             rimando.y, scelto, misura));
        }
}

}  // namespace korven::document
