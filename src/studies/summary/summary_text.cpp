#include "studies/summary/summary_text.hpp"

#include <algorithm>
#include <cassert>
#include <charconv>
#include <cmath>
#include <iterator>

#include "base/code_page.hpp"
#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "studies/summary/row_conditions.hpp"
#include "studies/summary/summary_tables.hpp"

namespace korven::studies {

namespace {

using base::riempito;
using base::traduttore;
using Righe = std::vector<std::string>;
using Tabella = std::vector<Righe>;

std::string numero(std::uint64_t n) { return std::to_string(n); }

// Rows as lines: the first column flush left, the others flush right.
void allinea(const Tabella& tabella, Righe& testo) {
    std::vector<std::size_t> larghe(tabella.front().size());
    for (const auto& riga : tabella)
        for (std::size_t j = 0; j < riga.size(); ++j)
            larghe[j] = std::max(larghe[j], base::numeroCaratteri(riga[j]));
    for (const auto& riga : tabella) {
        std::string linea = "  ";
        for (std::size_t j = 0; j < riga.size(); ++j) {
            const std::string vuoto(larghe[j] - base::numeroCaratteri(riga[j]), ' ');
            linea += j == 0 ? riga[j] + vuoto : "  " + vuoto + riga[j];
        }
        testo.push_back(linea);
    }
}

void rifiutate(const Riassunto& r, Righe& testo) {
    if (r.rifiutate() > 0)
        testo.push_back(
            riempito(traduttore("Varianti con dati che nessun calcolo accetta: %1. Non sono "
                                "pareti, e non contano tra quelle che falliscono."),
                     {numero(r.rifiutate())}));
}

void cedimenti(const Riassunto& r, const NomiRiassunto& nomi, Righe& testo) {
    const std::string volte = numero(r.fallite()), prove = numero(r.calcolate());
    if (r.calcolate() == 0) return;
    if (!nomi.campioni) {
        testo.push_back(riempito(traduttore("Varianti che falliscono: %1 su %2."), {volte, prove}));
        return;
    }
    const std::string p = cinqueCifre(r.probabilita());
    if (!nomi.indipendenti) {
        testo.push_back(riempito(
            traduttore("Campioni che falliscono: %1 su %2, probabilità %3; un ipercubo non dà un "
                       "intervallo."),
            {volte, prove, p}));
        return;
    }
    const auto i = r.intervallo();
    testo.push_back(riempito(
        traduttore("Campioni che falliscono: %1 su %2, probabilità %3, con il 95 % di confidenza "
                   "tra %4 e %5."),
        {volte, prove, p, cinqueCifre(i.da), cinqueCifre(i.a)}));
}

void cadute(const Riassunto& r, const NomiRiassunto& nomi, Righe& testo) {
    for (const auto& [dove, quante] : r.cadute()) {
        const auto& [motivo, fase] = dove;
        const std::string perche(nomi.motivi.at(static_cast<std::size_t>(motivo)));
        testo.push_back(
            "  " + base::conDuePunti(
                       fase == 0 ? perche
                                 : riempito(traduttore("%1, fase %2"),
                                            {perche, numero(static_cast<std::uint64_t>(fase))}),
                       numero(quante)));
    }
}

void superamenti(const Riassunto& r, const FormaRiga& forma, const NomiRiassunto& nomi,
                 Righe& testo) {
    for (std::size_t k = 0; k < forma.condizioni.size(); ++k)
        testo.push_back("  " +
                        base::conDuePunti(riempito(traduttore("in equilibrio con %1"),
                                                   {detta(forma.condizioni[k], nomi.valori)}),
                                          numero(r.oltre()[k])));
}

void governo(const Riassunto& r, const FormaRiga& forma, const NomiRiassunto& nomi, Righe& testo) {
    const auto& volte = r.governano();
    if (std::ranges::all_of(volte, [](std::uint64_t n) { return n == 0; })) return;
    testo.push_back(traduttore("Varianti in equilibrio, per l'uso che in ciascuna è il maggiore:"));
    for (std::size_t k = 0; k < volte.size(); ++k)
        if (volte[k] > 0)
            testo.push_back("  " +
                            base::conDuePunti(nomi.valori[forma.usi[k]].titolo, numero(volte[k])));
}

// What stands, and is no wall to be built.
void riserve(const Riassunto& r, Righe& testo) {
    if (r.superano() > 0)
        testo.push_back(
            riempito(traduttore("Varianti in equilibrio, ma con un uso maggiore di 100 %: %1. "
                                "Falliscono solo se un criterio lo dice."),
                     {numero(r.superano())}));
    if (r.piediScavati() > 0)
        testo.push_back(
            riempito(traduttore("Varianti in equilibrio, ma con lo scavo che raggiunge o supera il "
                                "piede: %1. Non sono pareti da costruire."),
                     {numero(r.piediScavati())}));
}

std::string dueCifre(const std::optional<double>& valore) {
    constexpr int decimali = 2;
    return valore ? base::testoDecimali(*valore, decimali) : "-";
}
std::string cinqueCifreONessuno(const std::optional<double>& valore) {
    return valore ? cinqueCifre(*valore) : "-";
}

// With the names of its rows, as texts.
Tabella inTesti(const TavolaRiassunto& tavola, std::string (*testo)(const std::optional<double>&)) {
    Tabella tabella{{""}};
    tabella[0].insert(tabella[0].end(), tavola.testa.begin(), tavola.testa.end());
    for (const auto& [nome, valori] : tavola.righe) {
        Righe riga{nome};
        std::ranges::transform(valori, std::back_inserter(riga), testo);
        tabella.push_back(std::move(riga));
    }
    return tabella;
}

}  // namespace

std::string cinqueCifre(double valore) {
    constexpr int cifre = 5;
    constexpr double interi = 1e5, troppi = 1e15;  // between them all digits before the point
    if (!std::isfinite(valore)) return "-";
    char testo[32];
    const double v = valore == 0 ? 0 : valore;  // no -0
    const bool grande = std::fabs(v) >= interi && std::fabs(v) < troppi;
    const auto fine = std::to_chars(std::begin(testo), std::end(testo), v,
                                    grande ? std::chars_format::fixed : std::chars_format::general,
                                    grande ? 0 : cifre);
    return {testo, fine.ptr};
}

std::vector<std::string> fattiRiassunto(const Riassunto& riassunto, const FormaRiga& forma,
                                        const NomiRiassunto& nomi) {
    assert(nomi.valori.size() == forma.valori);
    Righe testo;
    if (riassunto.numero() == 0) return testo;
    rifiutate(riassunto, testo);
    cedimenti(riassunto, nomi, testo);
    cadute(riassunto, nomi, testo);
    superamenti(riassunto, forma, nomi, testo);
    governo(riassunto, forma, nomi, testo);
    riserve(riassunto, testo);
    return testo;
}

std::vector<std::string> tavoleInTesto(const Riassunto& riassunto, const FormaRiga& forma,
                                       const NomiRiassunto& nomi) {
    Righe testo;
    if (!nomi.campioni || riassunto.numero() == 0) return testo;
    const auto tavole = tavoleRiassunto(riassunto, forma, nomi.valori);
    testo.push_back(riempito(traduttore("Valori; quantili e correlazioni da %1 varianti:"),
                             {numero(riassunto.tenute())}));
    allinea(inTesti(tavole.distribuzioni, cinqueCifreONessuno), testo);
    if (!tavole.correlazioni.righe.empty()) {
        testo.push_back(traduttore("Correlazione tra i ranghi (Spearman):"));
        allinea(inTesti(tavole.correlazioni, dueCifre), testo);
    }
    return testo;
}

}  // namespace korven::studies
