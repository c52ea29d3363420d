#include "equilibrium/band_system.hpp"

#include <cassert>
#include <cstddef>
#include <limits>

namespace korven::equilibrium {

namespace {

// A pivot of this part of its diagonal cell is what rounding leaves of 0.
constexpr double nulloPerArrotondamento = 8 * std::numeric_limits<double>::epsilon();

// Cells of D'D by the distance of their row from the nearer end.
double diagonale(std::size_t dalBordo) { return dalBordo == 0 ? 1 : dalBordo == 1 ? 5 : 6; }
double accanto(std::size_t dalBordo) { return dalBordo == 0 ? -2 : -4; }

// What rows already taken out subtract: from the next row, by the row before it and by the one
// before that, and from the row after it.
struct Sottratto {
    double prossima = 0, prossimaAncora = 0;
    double dopo = 0;

    [[nodiscard]] double da(double valore) const { return (valore - prossimaAncora) - prossima; }
};

// In the middle the row that is next from above comes after the one that is next from below.
Sottratto nelMezzo(const Sottratto& su, const Sottratto& giu) {
    return {su.prossima, su.prossimaAncora + giu.dopo,
            su.dopo + (giu.prossima + giu.prossimaAncora)};
}

struct Tolto {
    Sottratto diagonale;
    double fraLoro = 0;  // from the cell that joins the next row and the one after it
};

// Takes a row out: its diagonal cell, and those that join it to the next two. Returns whether its
// pivot is more than rounding.
bool togli(double cella, double uno, double due, Tolto& tolto, RigaBanda& riga) {
    const double perno = tolto.diagonale.da(cella);
    const double inverso = 1 / perno;
    uno -= tolto.fraLoro;
    riga = {inverso, uno * inverso, due * inverso};
    tolto = {{(uno * uno) * inverso, tolto.diagonale.dopo, (due * due) * inverso},
             (due * uno) * inverso};
    return perno > nulloPerArrotondamento * cella;
}

// Forward substitution of one row.
double avanti(double noto, const RigaBanda& riga, Sottratto& sottratto) {
    const double x = sottratto.da(noto);
    sottratto = {riga.l1 * x, sottratto.dopo, riga.l2 * x};
    return x;
}

// Back substitution of one row, from what forward substitution has left there.
void indietro(double& x, const RigaBanda& riga, double& vicina, double& lontana) {
    x = (x * riga.inverso - riga.l2 * lontana) - riga.l1 * vicina;
    lontana = vicina;
    vicina = x;
}

}  // namespace

SistemaBanda::SistemaBanda(int n) : righe_(static_cast<std::size_t>(n)) { assert(n >= 4); }

// Each row waits for the division of the one before it. So rows are taken out from both ends, in
// two chains that do not wait for each other, until the two in the middle are left.
bool SistemaBanda::fattorizza(double e, std::span<const double> k) {
    const std::size_t n = righe_.size(), centro = (n - 1) / 2;
    RigaBanda* const riga = righe_.data();
    const double* const molla = k.data();
    const auto cella = [&](std::size_t i, std::size_t dalBordo) {
        return e * diagonale(dalBordo) + molla[i];
    };
    Tolto su, giu;
    std::size_t i = 0;
    for (std::size_t j = n - 1; j > centro + 1; ++i, --j) {
        const bool sopra = togli(cella(i, i), e * accanto(i), e, su, riga[i]);
        const bool sotto = togli(cella(j, i), e * accanto(i), e, giu, riga[j]);
        if (!(sopra && sotto)) return false;
    }
    if (i < centro && !togli(cella(i, i), e * accanto(i), e, su, riga[i])) return false;
    Tolto mezzo{nelMezzo(su.diagonale, giu.diagonale), su.fraLoro + giu.fraLoro};
    const std::size_t dalFondo = n - 2 - centro;
    return togli(cella(centro, centro), e * accanto(centro), 0, mezzo, riga[centro]) &&
           togli(cella(centro + 1, dalFondo), 0, 0, mezzo, riga[centro + 1]);
}

// From both ends to the middle, and from there to both ends.
void SistemaBanda::risolvi(std::span<const double> b, std::span<double> x) const {
    const std::size_t n = righe_.size(), centro = (n - 1) / 2;
    const RigaBanda* const riga = righe_.data();
    const double* const noto = b.data();
    double* const y = x.data();
    Sottratto su, giu;
    std::size_t i = 0;
    for (std::size_t j = n - 1; j > centro + 1; ++i, --j) {
        y[i] = avanti(noto[i], riga[i], su);
        y[j] = avanti(noto[j], riga[j], giu);
    }
    if (i < centro) y[i] = avanti(noto[i], riga[i], su);
    Sottratto mezzo = nelMezzo(su, giu);
    y[centro] = avanti(noto[centro], riga[centro], mezzo);
    y[centro + 1] = avanti(noto[centro + 1], riga[centro + 1], mezzo);

    double sopra = 0, sopraAncora = 0;
    indietro(y[centro + 1], riga[centro + 1], sopra, sopraAncora);
    indietro(y[centro], riga[centro], sopra, sopraAncora);
    double sotto = sopraAncora, sottoAncora = sopra;
    i = centro;
    for (std::size_t j = centro + 2; j < n; ++j) {
        --i;
        indietro(y[i], riga[i], sopra, sopraAncora);
        indietro(y[j], riga[j], sotto, sottoAncora);
    }
    if (i > 0) indietro(y[0], riga[0], sopra, sopraAncora);
}

}  // namespace korven::equilibrium
