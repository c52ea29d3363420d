#include "panels/anchor_calculator.hpp"

#include <cmath>
#include <limits>
#include <utility>

#include "base/code_page.hpp"
#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "panels/anchor_stiffness.hpp"
#include "project/units.hpp"

namespace korven::panels {

namespace {

using base::riempito;
using base::testoNumero;
using base::traduttore;

/// What may stand in an input.
struct Regola {
    double minimo;
    bool compreso;         // whether that itself is allowed
    double sotto;          // below this
    std::string_view che;  // what to do, Italian key
    bool intero = false;
};

constexpr double senzaLimite = std::numeric_limits<double>::infinity();

Regola regola(VoceCalcolo voce) {
    switch (voce) {
        case VoceCalcolo::numero:
            return {1, true, senzaLimite, "deve essere un numero intero, da 1 in su", true};
        case VoceCalcolo::inclinazione:
            return {0, true, 90,
                    "deve essere da 0 a meno di 90: in verticale non tiene la paratia"};
        case VoceCalcolo::forza:
            return {0, true, senzaLimite, "deve essere 0 o maggiore"};
        default:
            return {0, false, senzaLimite, "deve essere maggiore di 0"};
    }
}

bool dentro(const Regola& r, double valore) {
    if (r.intero && valore != std::floor(valore)) return false;
    return valore < r.sotto && (r.compreso ? valore >= r.minimo : valore > r.minimo);
}

// Reads one input after the other; the first that is at fault is the one that is told.
class Lettura {
 public:
    explicit Lettura(const IngressiCalcolo& ingressi) : ingressi_(ingressi) {}

    double operator()(VoceCalcolo voce) {
        const std::string testo(base::senzaSpaziEsterni(ingressi_.testo(voce)));
        if (testo.empty()) return manca(voce, traduttore("da scrivere"));
        const auto valore = base::leggiNumero(testo);
        if (!base::soloUnNumero(testo) || !valore)
            return manca(voce, riempito(traduttore("«%1» non è un numero; il segno decimale è il "
                                                   "punto"),
                                        {testo}));
        const Regola r = regola(voce);
        return dentro(r, *valore) ? *valore : manca(voce, traduttore(r.che));
    }

    [[nodiscard]] const std::optional<EsitoCalcolo>& vizio() const { return vizio_; }

 private:
    double manca(VoceCalcolo voce, const std::string& perche) {
        if (!vizio_) vizio_ = {{}, base::conDuePunti(etichetta(voce, ingressi_), perche), voce};
        return 1;
    }

    const IngressiCalcolo& ingressi_;
    std::optional<EsitoCalcolo> vizio_;
};

// Five digits: more than any stiffness of an anchor is known by, and a text that fits its cell.
double cinqueCifre(double valore) {
    if (valore == 0) return valore;
    const double posti = std::pow(10, 4 - std::floor(std::log10(std::fabs(valore))));
    if (!std::isfinite(posti)) return valore;
    return std::round(valore * posti) / posti;
}

std::string cifre(double valore) { return testoNumero(cinqueCifre(valore)); }

// Sizes beyond all use leave the doubles.
EsitoCalcolo smisurato() {
    return {{}, traduttore("valori fuori scala: controllare le unità"), {}};
}

EsitoCalcolo conValore(double valore, std::string conto) {
    return {cinqueCifre(valore), std::move(conto), {}};
}

double areaLetta(const IngressiCalcolo& in, Lettura& leggi) {
    const double n = leggi(VoceCalcolo::numero);
    const double misura = leggi(VoceCalcolo::misura);
    return in.misuraArea == MisuraArea::area ? n * misura : areaBarre(n, misura);
}

bool conta(const IngressiCalcolo& in) { return in.genere != GenereAncoraggio::puntoneTraPareti; }

std::string formulaRigidezza(const IngressiCalcolo& in) {
    return conta(in) ? "k = E A cos²α / (L s)" : "k = E A cos²α / (L/2 s)";
}

}  // namespace

std::string EsitoCalcolo::testo() const { return valore ? testoNumero(*valore) : std::string(); }

std::string etichetta(VoceCalcolo voce, const IngressiCalcolo& in) {
    switch (voce) {
        case VoceCalcolo::modulo:
            return traduttore("Modulo elastico E [N/mm²]");
        case VoceCalcolo::numero:
            return traduttore("Numero di trefoli, barre o profili n");
        case VoceCalcolo::misura:
            return traduttore(in.misuraArea == MisuraArea::area ? "Area di ciascuno [mm²]"
                                                                : "Diametro di ciascuno d [mm]");
        case VoceCalcolo::lunghezza:
            return traduttore(in.genere == GenereAncoraggio::tirante ? "Lunghezza libera L [m]"
                              : in.genere == GenereAncoraggio::puntone
                                  ? "Lunghezza del puntone L [m]"
                                  : "Distanza tra le paratie L [m]");
        case VoceCalcolo::interasse:
            return traduttore("Interasse s [m]");
        case VoceCalcolo::inclinazione:
            return traduttore("Inclinazione sull'orizzontale") + " α [°]";
        case VoceCalcolo::forza:
            break;
    }
    return traduttore(in.genere == GenereAncoraggio::tirante ? "Tesatura di un tirante F [kN]"
                                                             : "Precarico di un puntone F [kN]");
}

std::string spiegazione(VoceCalcolo voce, const IngressiCalcolo& in) {
    const bool tirante = in.genere == GenereAncoraggio::tirante;
    switch (voce) {
        case VoceCalcolo::modulo:
            return traduttore(
                "Modulo elastico dell'acciaio, in N/mm²: 195000 per trefoli, 200000 "
                "per barre, 210000 per profili e tubi.");
        case VoceCalcolo::numero:
            return traduttore("Quanti trefoli, barre o profili formano un tirante o un puntone.");
        case VoceCalcolo::misura:
            return traduttore(in.misuraArea == MisuraArea::area
                                  ? "Area della sezione di un trefolo, di una barra o di un "
                                    "profilo, come la dà il catalogo."
                                  : "Diametro di una barra piena. Di un trefolo va data l'area: è "
                                    "minore di quella del cerchio.");
        case VoceCalcolo::lunghezza:
            return traduttore(tirante ? "Lunghezza libera, più la parte del bulbo che si allunga "
                                        "con essa."
                              : conta(in)
                                  ? "Da un appoggio all'altro: il puntone si accorcia tutto."
                                  : "Da una parete all'altra: il mezzo resta fermo e ne "
                                    "conta metà.");
        case VoceCalcolo::interasse:
            return traduttore("Distanza tra due tiranti o puntoni lungo la paratia.");
        case VoceCalcolo::inclinazione:
            return traduttore(
                "Angolo tra l'asse e l'orizzontale: la rigidezza conta con il quadrato "
                "del coseno, la pretensione con il coseno.");
        case VoceCalcolo::forza:
            break;
    }
    return traduttore(tirante ? "Forza di bloccaggio di un solo tirante, lungo il suo asse."
                              : "Precarico di un solo puntone, lungo il suo asse.");
}

EsitoCalcolo area(const IngressiCalcolo& in) {
    Lettura leggi(in);
    const double A = areaLetta(in, leggi);
    if (leggi.vizio()) return *leggi.vizio();
    const std::string n = testoNumero(leggi(VoceCalcolo::numero));
    const std::string misura = testoNumero(leggi(VoceCalcolo::misura));
    const bool tondo = in.misuraArea == MisuraArea::diametro;
    if (!std::isfinite(A)) return smisurato();
    return conValore(A, (tondo ? "A = n π d² / 4 = " + n + " π × " + misura + "² / 4"
                               : "A = " + n + " × " + misura) +
                            " = " + cifre(A) + " mm²");
}

EsitoCalcolo rigidezza(const IngressiCalcolo& in) {
    Lettura leggi(in);
    Ancoraggio uno;
    uno.modulo = leggi(VoceCalcolo::modulo);
    uno.area = areaLetta(in, leggi);
    const double L = leggi(VoceCalcolo::lunghezza);
    uno.lunghezza = conta(in) ? L : L / 2;
    uno.interasse = leggi(VoceCalcolo::interasse);
    uno.inclinazione = leggi(VoceCalcolo::inclinazione);
    if (leggi.vizio()) return *leggi.vizio();
    const double c = coseno(uno.inclinazione);
    const double k = rigidezzaPerMetro(uno);
    if (!std::isfinite(k)) return smisurato();
    return conValore(k, formulaRigidezza(in) + " = " + testoNumero(uno.modulo) + " × " +
                            cifre(uno.area) + " × " + base::testoDecimali(c * c, 4) + " / (" +
                            testoNumero(uno.lunghezza) + " × " + testoNumero(uno.interasse) +
                            " × " + testoNumero(project::newtonKilonewton) + ") = " + cifre(k) +
                            " kN/m/m");
}

EsitoCalcolo pretensione(const IngressiCalcolo& in) {
    Lettura leggi(in);
    const double F = leggi(VoceCalcolo::forza);
    const double s = leggi(VoceCalcolo::interasse);
    const double alfa = leggi(VoceCalcolo::inclinazione);
    if (leggi.vizio()) return *leggi.vizio();
    const double p = forzaPerMetro(F, s, alfa);
    if (!std::isfinite(p)) return smisurato();
    return conValore(p, "F cos α / s = " + testoNumero(F) + " × " +
                            base::testoDecimali(coseno(alfa), 4) + " / " + testoNumero(s) + " = " +
                            cifre(p) + " kN/m");
}

std::optional<double> forzaDiUno(const IngressiCalcolo& in, double perMetro) {
    Lettura leggi(in);
    const double s = leggi(VoceCalcolo::interasse);
    const double alfa = leggi(VoceCalcolo::inclinazione);
    if (leggi.vizio()) return {};
    return forzaDiUno(perMetro, s, alfa);
}

}  // namespace korven::panels
