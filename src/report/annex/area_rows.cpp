#include <cmath>
#include <numbers>
#include <utility>
#include <vector>

#include "base/translated_texts.hpp"
#include "report/annex/formula_rows.hpp"
#include "report/annex/section_rows.hpp"
#include "structure/section_millimetres.hpp"
#include "structure/section_type.hpp"
#include "structure/strip_model.hpp"

namespace korven::report {

using base::traduttore;
using dossier::ValoriFlessione;
using project::Sezione;
using structure::FacciaMm;
using structure::TipoSezione;
using tables::Prospetto;

namespace {

constexpr double metro = structure::bStrisciaMetro;
// More than this apart, the strips cut something off that a formula counts whole [mm2].
constexpr double stessaArea = 0.5;

// An area and how it comes about from the measures.
struct Area {
    std::string formula;
    std::vector<Termine> termini;
    double valore = 0;
};

double cerchio(double diametro) { return std::numbers::pi * diametro * diametro / 4; }

Termine acciaio(double As) { return termine("As", As, 2); }

Area barre(const structure::DiaframmaMm& d) {
    Area a;
    std::string somma;
    const auto faccia = [&](const FacciaMm& f, const std::string& lato) {
        if (!armata(f)) return;
        const std::string n = "%" + std::to_string(a.termini.size() + 1);
        const std::string m = "%" + std::to_string(a.termini.size() + 2);
        somma += (somma.empty() ? "" : " + ") + n + "² / " + m;
        a.termini.push_back(termine("d" + lato, f.diametro, 2));
        a.termini.push_back(termine("i" + lato, f.interasse, 2));
        a.valore += metro * cerchio(f.diametro) / f.interasse;
    };
    faccia(d.monte, "1");
    faccia(d.valle, "2");
    if (!somma.empty()) a.formula = "1000 · π / 4 · (" + somma + ")";
    return a;
}

Area anello(const structure::PaliMm& p) {
    return {"1000 · π · (%1² - %2²) / 4 / %3",
            {termine("D", p.diamEst, 1), termine("d", p.diamInt, 1), termine("i", p.interasse, 1)},
            metro * (cerchio(p.diamEst) - cerchio(p.diamInt)) / p.interasse};
}

Area riempimento(const structure::PaliMm& p) {
    return {"1000 · π · %1² / 4 / %2",
            {termine("d", p.diamInt, 1), termine("i", p.interasse, 1)},
            metro * cerchio(p.diamInt) / p.interasse};
}

// Two plates between the webs, and two webs over the whole height.
Area onda(const structure::PalancolaMm& p) {
    const double c = spessoreOrizzontaleAla(p), H = altezza(p), passo = passoOnda(p);
    return {"1000 · 2 · ((%1 - %2) · %3 + %2 · %4) / %5",
            {termine("b", p.base, 1), termine("c", c, 5), termine("t", p.spessore, 2),
             termine("He", H, 2), termine("i", passo, 1)},
            metro * 2 * ((p.base - c) * p.spessore + c * H) / passo};
}

Area ferri(const structure::PaliArmatiMm& p) {
    const int n = numeroFerri(p);
    return {"1000 · %1 · π · %2² / 4 / %3",
            {termine("n", n, 0), termine("dl", p.diamLong, 2), termine("i", p.interasse, 1)},
            metro * n * cerchio(p.diamLong) / p.interasse};
}

// Of concrete: what is left beside the bars.
Area accantoAlleBarre(const Sezione& s, double As) {
    if (structure::tipoSezione(s) == TipoSezione::diaframma) {
        const double H = structure::diaframmaMm(s).spessore;
        return {"1000 · %1 - %2", {termine("H", H, 1), acciaio(As)}, metro * H - As};
    }
    const auto p = structure::paliArmatiMm(s);
    return {"1000 · π · %1² / 4 / %2 - %3",
            {termine("D", p.diamPalo, 1), termine("i", p.interasse, 1), acciaio(As)},
            metro * cerchio(p.diamPalo) / p.interasse - As};
}

Area diAcciaio(const Sezione& s) {
    switch (structure::tipoSezione(s)) {
        case TipoSezione::diaframma:
            return barre(structure::diaframmaMm(s));
        case TipoSezione::pali:
            return anello(structure::paliMm(s));
        case TipoSezione::palancola:
            return onda(structure::palancolaMm(s));
        case TipoSezione::paliArmati:
            return ferri(structure::paliArmatiMm(s));
        case TipoSezione::nessuno:
            break;
    }
    return {};
}

Area diCalcestruzzo(const Sezione& s, double As) {
    if (structure::tipoSezione(s) == TipoSezione::pali) return riempimento(structure::paliMm(s));
    return accantoAlleBarre(s, As);
}

void riga(const char* cosa, const char* simbolo, Area area, double valore, Prospetto& p) {
    if (!(std::fabs(area.valore - valore) < stessaArea)) area = {};
    aggiungi(
        {cosa, simbolo, std::move(area.formula), std::move(area.termini), valore, 0, unitaArea}, p);
}

}  // namespace

void aggiungiAree(const Sezione& s, const ValoriFlessione& v, Prospetto& p) {
    riga("Area dell'acciaio in un metro", "As", diAcciaio(s), v.As, p);
    if (v.Ac > 0) riga("Area del calcestruzzo in un metro", "Ac", diCalcestruzzo(s, v.As), v.Ac, p);
}

std::string legendaMisure(const Sezione& s) {
    switch (structure::tipoSezione(s)) {
        case TipoSezione::diaframma:
            return traduttore(
                "H: spessore; c1, d1, i1: copriferro, diametro e interasse delle "
                "barre a monte; c2, d2, i2: delle barre a valle.");
        case TipoSezione::pali:
            return traduttore(
                "D, d: diametro esterno e interno del tubo; i: interasse dei "
                "pali.");
        case TipoSezione::palancola:
            return traduttore(
                "b, t: larghezza e spessore del piatto; a, h, s: larghezza, "
                "altezza e spessore dell'ala; c: spessore di un'ala inclinata, "
                "misurato lungo la paratia; He: altezza; i: lunghezza di un'onda.");
        case TipoSezione::paliArmati:
            return traduttore(
                "D: diametro del palo; c: copriferro; n, dl: numero e diametro "
                "delle barre, come il calcolo le prende; i: interasse dei pali.");
        case TipoSezione::nessuno:
            break;
    }
    return {};
}

}  // namespace korven::report
