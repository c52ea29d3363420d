#include <algorithm>

#include "drawings/sketch_views.hpp"

namespace korven::drawings {

namespace {

constexpr double sporgenza = 1.5;      // of an extension line beyond its dimension
constexpr double distacco = 1.6;       // of a text from its line
constexpr double distaccoSopra = 2.3;  // clear of the extension lines
constexpr double mezzaLettera = corpoSchizzo * 0.36;

}  // namespace

ValoriSchizzo valoriSchizzo(const project::Sezione& sezione, std::span<const EsempioCampo> esempi,
                            bool (*stannoInsieme)(const project::Sezione&)) {
    const EsempioCampo& primo = esempi.front();
    const double proprio = sezione.*primo.valore;
    const double rapporto = proprio > 0 ? proprio / primo.centimetri : 1;
    ValoriSchizzo valori{sezione, true};
    for (const EsempioCampo& esempio : esempi) {
        double& valore = valori.sezione.*esempio.valore;
        if (!(valore > 0)) valore = esempio.centimetri * rapporto;
    }
    if (stannoInsieme(valori.sezione)) return valori;
    for (const EsempioCampo& esempio : esempi) valori.sezione.*esempio.valore = esempio.centimetri;
    valori.inScala = false;
    return valori;
}

QuotaSchizzo quotaTraverso(double project::Sezione::*campo, double x1, double x2, double y,
                           double yOggetto) {
    const bool sopra = y > yOggetto;
    const double oltre = y + (sopra ? sporgenza : -sporgenza);
    return {masks::campoSezione(campo),
            {{{x1, yOggetto}, {x1, oltre}}, {{x2, yOggetto}, {x2, oltre}}, {{x1, y}, {x2, y}}},
            {{x1, y}, {x2, y}},
            {(x1 + x2) / 2, sopra ? y + distaccoSopra : y - distaccoSopra - 2 * mezzaLettera},
            Appoggio::centro,
            {}};
}

QuotaSchizzo quotaLungo(double project::Sezione::*campo, double y1, double y2, double x,
                        double xOggetto) {
    const bool destra = x > xOggetto;
    const double oltre = x + (destra ? sporgenza : -sporgenza);
    return {masks::campoSezione(campo),
            {{{xOggetto, y1}, {oltre, y1}}, {{xOggetto, y2}, {oltre, y2}}, {{x, y1}, {x, y2}}},
            {{x, y1}, {x, y2}},
            {x + (destra ? distacco : -distacco), (y1 + y2) / 2 - mezzaLettera},
            destra ? Appoggio::inizio : Appoggio::fine,
            {}};
}

QuotaSchizzo quotaRichiamo(double project::Sezione::*campo, bool versoSinistra, double y,
                           const std::vector<double>& estremi) {
    const auto [minimo, massimo] = std::minmax_element(estremi.begin(), estremi.end());
    const double bordo = versoSinistra ? xTestiSinistri : xTestiDestri;
    const double fine = versoSinistra ? *massimo : *minimo;
    QuotaSchizzo quota{masks::campoSezione(campo),
                       {{{bordo, y}, {fine, y}}},
                       {},
                       {bordo, y + distacco},
                       versoSinistra ? Appoggio::inizio : Appoggio::fine,
                       {}};
    for (const double x : estremi) quota.estremi.push_back({x, y});
    return quota;
}

}  // namespace korven::drawings
