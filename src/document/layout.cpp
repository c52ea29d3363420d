#include "document/layout.hpp"

#include <algorithm>
#include <utility>

#include "document/contents_strips.hpp"
#include "document/kept_together.hpp"
#include "document/line_breaking.hpp"
#include "document/table_strips.hpp"
#include "document/text_strips.hpp"

namespace korven::document {

namespace {

constexpr Carattere carattereBordo{7.5};
constexpr double distanzaFiletto = 0.45 * puntiPerCentimetro;  // from the text
constexpr double distanzaScritta = 4;                          // from that line

Strisce strisce(const Documento& documento, const Formato& formato, const MisuraCaratteri& misura) {
    Strisce tutte;
    std::vector<std::size_t> inizi;
    bool salto = false;
    for (std::size_t i = 0; i < documento.blocchi.size(); ++i) {
        const std::size_t prima = tutte.size();
        inizi.push_back(prima);
        std::visit(
            [&](const auto& b) {
                using B = std::decay_t<decltype(b)>;
                if constexpr (std::is_same_v<B, SaltoPagina>)
                    salto = true;
                else if constexpr (std::is_same_v<B, Indice>)
                    aggiungi(b, documento, i, formato, misura, tutte);
                else
                    aggiungi(b, formato, misura, tutte);
            },
            documento.blocchi[i]);
        if (tutte.size() != prima) tutte[prima].nuovaPagina = std::exchange(salto, false);
    }
    inizi.push_back(tutte.size());
    lega(documento, inizi, tutte);
    return tutte;
}

// Two texts on one line, at its left and at its right end; the right one is kept whole up to half.
void duePosti(const std::string& sinistra, const std::string& destra, double base,
              const Formato& formato, const MisuraCaratteri& misura, Pagina& pagina) {
    constexpr double distacco = 12;
    const double larga = formato.larghezzaTesto();
    const std::string aDestra = accorciato(destra, larga / 2, carattereBordo, misura);
    const double larghezzaDestra = misura.larghezza(aDestra, carattereBordo);
    const std::string aSinistra =
        accorciato(sinistra, larga - larghezzaDestra - distacco, carattereBordo, misura);
    const auto scrivi = [&](double x, const std::string& testo) {
        if (!testo.empty())
            pagina.scritte.push_back({x, base, misura.larghezza(testo, carattereBordo), testo,
                                      carattereBordo, Tinta::tenue});
    };
    scrivi(formato.sinistra, aSinistra);
    scrivi(formato.sinistra + larga - larghezzaDestra, aDestra);
}

void incornicia(Impaginato& impaginato, const MisuraCaratteri& misura) {
    const Documento& documento = *impaginato.documento;
    const Formato& formato = impaginato.formato;
    const double sopra = formato.sopra - distanzaFiletto;
    const double sotto = formato.altezza - formato.sotto + distanzaFiletto;
    const double fine = formato.larghezza - formato.destra;
    for (std::size_t i = 0; i < impaginato.pagine.size(); ++i) {
        Pagina& pagina = impaginato.pagine[i];
        pagina.filetti.push_back({formato.sinistra, sopra, fine, sopra});
        pagina.filetti.push_back({formato.sinistra, sotto, fine, sotto});
        duePosti(documento.testata[0], documento.testata[1], sopra - distanzaScritta, formato,
                 misura, pagina);
        duePosti(documento.piede,
                 std::to_string(i + 1) + " / " + std::to_string(impaginato.pagine.size()),
                 sotto + distanzaScritta + carattereBordo.corpo, formato, misura, pagina);
    }
}

}  // namespace

Impaginato impagina(Documento documento, const Formato& formato, const MisuraCaratteri& misura) {
    Impaginato impaginato{std::make_shared<const Documento>(std::move(documento)), formato, {}, {}};
    impaginato.pagine =
        riempi(strisce(*impaginato.documento, formato, misura), formato, impaginato.segnalibri);
    if (impaginato.pagine.empty()) impaginato.pagine.emplace_back();
    numeraIndice(impaginato, misura);
    if (formato.cornice) incornicia(impaginato, misura);
    return impaginato;
}

}  // namespace korven::document
