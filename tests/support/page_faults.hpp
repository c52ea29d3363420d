#pragma once

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "document/page.hpp"

// What a reader would call badly parted, found from what stands on the pages alone. Each gives a
// line a fault, none for pages that can be handed in.

namespace korven::test {

/// The part of a table that stands on a page.
struct ParteTavola {
    double testa = 0, fine = 0;  ///< upper end of its head, lower end of its last row
    std::size_t righe = 0;
    bool finisce = false;  ///< with the last row of the table
};

/// The tables of a page from its head downward: a head has a ground, a row a line below it, the
/// last row of all the strong line of the head's upper end.
inline std::vector<ParteTavola> parti(const document::Pagina& pagina) {
    using document::Tinta;
    std::vector<ParteTavola> tutte;
    std::vector<double> fineTesta;
    for (const auto& f : pagina.fondi)
        if (f.tinta == Tinta::fondoTesta) {
            tutte.push_back({f.y, f.y + f.altezza});
            fineTesta.push_back(f.y + f.altezza);
        }
    std::sort(tutte.begin(), tutte.end(), [](auto& a, auto& b) { return a.testa < b.testa; });
    for (const auto& f : pagina.filetti) {
        if (f.tinta != Tinta::riga && f.tinta != Tinta::filetto) continue;
        const auto sotto = [&](const ParteTavola& p) { return p.testa < f.y1 - 0.1; };
        const auto parte = std::find_if(tutte.rbegin(), tutte.rend(), sotto);
        const bool testa = std::any_of(fineTesta.begin(), fineTesta.end(),
                                       [&](double y) { return f.y1 < y + 0.1 && f.y1 > y - 0.1; });
        if (parte == tutte.rend() || testa || f.spessore == 0.5) continue;  // 0.5: of the frame
        ++parte->righe;
        parte->fine = std::max(parte->fine, f.y1);
        parte->finisce |= f.tinta == Tinta::filetto;
    }
    return tutte;
}

/// Tables with fewer than three rows at a page's foot or at the head of the next one, and tables
/// with something else between two of their parts.
inline std::string tavoleTorte(const document::Impaginato& muro) {
    constexpr std::size_t poche = 3;
    std::string trovate;
    bool continua = false;
    for (std::size_t n = 0; n < muro.pagine.size(); ++n) {
        const document::Pagina& pagina = muro.pagine[n];
        const auto tutte = parti(pagina);
        const std::string dove = "page " + std::to_string(n + 1) + ": ";
        if (continua && !tutte.empty()) {
            const ParteTavola& prima = tutte.front();
            if (prima.finisce && prima.righe < poche)
                trovate += dove + std::to_string(prima.righe) + " rows at the head\n";
            for (const auto& d : pagina.disegni)
                if (d.y < prima.testa) trovate += dove + "a drawing within a table\n";
        }
        for (std::size_t i = 0; i + 1 < tutte.size(); ++i)
            if (!tutte[i].finisce) trovate += dove + "a table that breaks off\n";
        continua = !tutte.empty() && !tutte.back().finisce;
        if (continua && tutte.back().righe < poche)
            trovate += dove + std::to_string(tutte.back().righe) + " rows at the foot\n";
    }
    return trovate;
}

/// Headings below which nothing stands on their page but headings.
inline std::string titoliSoli(const document::Impaginato& muro) {
    std::string trovati;
    for (const auto& titolo : muro.segnalibri) {
        const auto& pagina = muro.pagine.at(titolo.pagina);
        const double foglio = muro.formato.altezza - muro.formato.sotto;
        const bool sotto =
            std::any_of(pagina.disegni.begin(), pagina.disegni.end(),
                        [&](auto& d) { return d.y > titolo.y; }) ||
            std::any_of(pagina.scritte.begin(), pagina.scritte.end(), [&](auto& s) {
                return s.y > titolo.y && s.y < foglio && s.tinta != document::Tinta::titolo;
            });
        if (!sotto)
            trovati += "page " + std::to_string(titolo.pagina + 1) + ": " + titolo.testo + "\n";
    }
    return trovati;
}

/// Pages without a drawing and with fewer lines than so many, but for the last one.
inline std::string pagineVuote(const document::Impaginato& muro, std::size_t righe) {
    std::string trovate;
    for (std::size_t n = 0; n + 1 < muro.pagine.size(); ++n) {
        const auto& pagina = muro.pagine[n];
        std::set<int> viste;
        for (const auto& s : pagina.scritte)
            if (s.y > muro.formato.sopra && s.y < muro.formato.altezza - muro.formato.sotto)
                viste.insert(static_cast<int>(s.y));
        if (pagina.disegni.empty() && viste.size() < righe)
            trovate +=
                "page " + std::to_string(n + 1) + ": " + std::to_string(viste.size()) + " lines\n";
    }
    return trovate;
}

}  // namespace korven::test
