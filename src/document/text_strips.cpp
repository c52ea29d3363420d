#include "document/text_strips.hpp"

#include <algorithm>
#include <array>
#include <utility>

#include "document/line_breaking.hpp"

namespace korven::document {

namespace {

// Shares of the size of a font: a line, and the base line from its upper end.
constexpr double altezzaRiga = 1.32, discesa = 1.02;

// How a text is set.
struct Veste {
    Carattere carattere;
    Tinta tinta;
    double prima, dopo;             // [pt]
    double costo = 8, dentro = 16;  // of a page that begins with it, or within it
};

constexpr std::array<Veste, 3> titoli = {{
    {{16, true}, Tinta::titolo, 22, 6, 0},
    {{12, true}, Tinta::titolo, 15, 4, 2},
    {{10, true}, Tinta::titolo, 10, 3, 5},
}};
constexpr double costoFigura = 8;

Veste veste(Stile stile) {
    switch (stile) {
        case Stile::normale:
            break;
        case Stile::nota:
            return {{8}, Tinta::tenue, 3, 3};
        case Stile::rilievo:
            return {{9.5, true}, Tinta::testo, 5, 5};
        case Stile::pericolo:
            return {{9.5, true}, Tinta::pericolo, 5, 5};
        case Stile::fisso:
            return {{7, false, false, true}, Tinta::testo, 5, 5, 8, 6};
    }
    return {{9.5}, Tinta::testo, 5, 5};
}

Strisce righe(const std::vector<std::string>& testi, const Veste& v,
              const MisuraCaratteri& misura) {
    Strisce fatte;
    for (const auto& testo : testi) {
        Striscia riga{.altezza = interlinea(v.carattere), .costo = v.dentro};
        if (!testo.empty())
            riga.contenuto.scritte.push_back(scritta(testo, 0, 0, v.carattere, misura, v.tinta));
        fatte.push_back(std::move(riga));
    }
    fatte.front().prima = v.prima;
    fatte.front().costo = v.costo;
    fatte.back().dopo = v.dopo;
    return fatte;
}

void accoda(Strisce&& nuove, Strisce& strisce) {
    std::move(nuove.begin(), nuove.end(), std::back_inserter(strisce));
}

}  // namespace

double interlinea(const Carattere& carattere) { return altezzaRiga * carattere.corpo; }

Scritta scritta(std::string testo, double x, double y, const Carattere& carattere,
                const MisuraCaratteri& misura, Tinta tinta) {
    const double larga = misura.larghezza(testo, carattere);
    return {x, y + discesa * carattere.corpo, larga, std::move(testo), carattere, tinta};
}

void aggiungi(const Titolo& titolo, const Formato& formato, const MisuraCaratteri& misura,
              Strisce& strisce) {
    // A chapter that begins where hardly a paragraph fits looks lost.
    constexpr double postoCapitolo = 0.28;
    const int livello = std::clamp(titolo.livello, 1, static_cast<int>(titoli.size()));
    const Veste& v = titoli[static_cast<std::size_t>(livello) - 1];
    Strisce nuove =
        righe(inRighe(titolo.testo, formato.larghezzaTesto(), v.carattere, misura), v, misura);
    for (auto& striscia : nuove) striscia.legata = true;
    nuove.front().segnalibro = Segnalibro{livello, titolo.testo, 0, 0};
    nuove.front().posto = titolo.posto * puntiPerCentimetro;
    if (livello == 1) {
        nuove.front().posto = std::max(nuove.front().posto, postoCapitolo * formato.altezzaTesto());
        Striscia& ultima = nuove.back();
        ultima.altezza += 2;
        ultima.contenuto.filetti.push_back(
            {0, ultima.altezza, formato.larghezzaTesto(), ultima.altezza, 0.8, Tinta::titolo});
    }
    accoda(std::move(nuove), strisce);
}

void aggiungi(const Paragrafo& paragrafo, const Formato& formato, const MisuraCaratteri& misura,
              Strisce& strisce) {
    const Veste v = veste(paragrafo.stile);
    const auto spezza = paragrafo.stile == Stile::fisso ? inRigheFisse : inRighe;
    Strisce nuove =
        righe(spezza(paragrafo.testo, formato.larghezzaTesto(), v.carattere, misura), v, misura);
    if (nuove.size() > 1) nuove.front().legata = nuove[nuove.size() - 2].legata = true;
    accoda(std::move(nuove), strisce);
}

void aggiungi(const Figura& figura, const Formato& formato, const MisuraCaratteri& misura,
              Strisce& strisce) {
    const Veste v{{8, false, true}, Tinta::tenue, 4, 10};
    Strisce sotto;
    if (!figura.didascalia.empty())
        sotto = righe(inRighe(figura.didascalia, formato.larghezzaTesto(), v.carattere, misura), v,
                      misura);
    double didascalia = sotto.empty() ? 0 : v.prima;
    for (const auto& riga : sotto) didascalia += riga.altezza;

    const double larga = figura.larghezza * puntiPerCentimetro;
    const double alta = figura.altezza * puntiPerCentimetro;
    if (!(larga > 0 && alta > 0)) return accoda(std::move(sotto), strisce);
    // The headings of a chapter and of its first part may stand above it.
    const double titoliSopra = strisce.empty() ? 0 : 68;
    const double posto = formato.altezzaTesto() - didascalia - titoliSopra;
    const double scala = std::min({1.0, formato.larghezzaTesto() / larga, posto / alta});
    Striscia disegno{.altezza = alta * scala, .prima = 8, .dopo = 8, .legata = !sotto.empty()};
    disegno.costo = costoFigura;
    disegno.puoAttendere = true;
    disegno.contenuto.disegni.push_back(
        {(formato.larghezzaTesto() - larga * scala) / 2, 0, scala, &figura, figura.altezza});
    if (figura.disegnaBassa)
        disegno.cede =
            std::max(0.0, figura.altezza - figura.altezzaMinima) * puntiPerCentimetro * scala;
    for (auto& riga : sotto) riga.legata = &riga != &sotto.back();
    strisce.push_back(std::move(disegno));
    accoda(std::move(sotto), strisce);
}

}  // namespace korven::document
