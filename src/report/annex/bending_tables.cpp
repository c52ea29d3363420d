#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/shown_number.hpp"
#include "report/annex/columns.hpp"
#include "report/annex/formula_rows.hpp"
#include "report/annex/section_rows.hpp"
#include "report/annex/section_tables.hpp"
#include "report/annex/table_pieces.hpp"
#include "structure/limit_search.hpp"

namespace korven::report {

using base::traduttore;
using dossier::Interna;
using dossier::LatoFlessione;
using dossier::ValoriFlessione;
using tables::Cella;
using tables::Prospetto;
namespace unita = project::unita;

namespace {

const LatoFlessione& lato(const ValoriFlessione& v, bool positivo) {
    return positivo ? v.positivo : v.negativo;
}

Cella numero(double valore, int decimali) {
    return tables::cella(valore, decimali, unita::nessuna);
}

// A force of the strips, about the place of the axial force.
struct Forza {
    const char* cosa;     // Italian key
    const char* simbolo;  // its arm has the same letters behind a b
    double F;             // compression positive [N]
    double y, b;          // [mm]

    [[nodiscard]] double momento() const { return F * b; }
};

// Those of one direction of bending. Moments that bend the section this way are positive: the
// compression lies on the far side of yNd.
std::vector<Forza> forzeInterne(const ValoriFlessione& v, bool positivo) {
    const LatoFlessione& l = lato(v, positivo);
    std::vector<Forza> forze;
    const auto aggiungi = [&](const char* cosa, const char* simbolo, const Interna& f, int segno) {
        if (f.forza != 0)
            forze.push_back(
                {cosa, simbolo, segno * f.forza, f.y, (positivo ? 1 : -1) * (f.y - v.yNd)});
    };
    if (l.limite == dossier::LimiteSezione::nessuno) return forze;
    aggiungi("Calcestruzzo compresso", "c", l.calcestruzzo, 1);
    aggiungi("Acciaio compresso", "sc", l.acciaioCompresso, 1);
    aggiungi("Acciaio teso", "st", l.acciaioTeso, -1);
    return forze;
}

// "(Fc · bc + Fst · bst) / 1000" with so many digits that the moment comes out to its last one.
void momentoResistente(const ValoriFlessione& v, bool positivo, Prospetto& p) {
    constexpr int cifre = 4;
    std::string somma;
    std::vector<Termine> termini;
    for (const Forza& f : forzeInterne(v, positivo)) {
        const std::size_t n = termini.size();
        somma += (n == 0 ? "%" : " + %") + std::to_string(n + 1) + " · %" + std::to_string(n + 2);
        termini.push_back(termine(std::string("F") + f.simbolo, inKilonewton(f.F), cifre));
        termini.push_back(termine(std::string("b") + f.simbolo, f.b, cifre));
    }
    aggiungi({"Momento resistente", "MRd", termini.empty() ? "" : "(" + somma + ") / 1000",
              std::move(termini), inKilonewtonMetri(lato(v, positivo).MRd), 2, unitaMomento},
             p);
}

void materiali(const project::Sezione& sezione, const ValoriFlessione& v, Prospetto& p) {
    if (v.fcd > 0) aggiungiResistenzaCls(v.fck, v.fsCalcestruzzo, v.fcd, p);
    aggiungiResistenzaAcciaio(v.fyk, v.fsAcciaio, v.fyd, p);
    aggiungi({"modulo elastico dell'acciaio", "Es", "", {}, v.modEacciaio, 0, unitaTensione}, p);
    aggiungiAree(sezione, v, p);
}

// All of the section at its limit of strain, the steel at its strength: without a formula where
// the limit comes first.
void sforzoNormale(const ValoriFlessione& v, Prospetto& p) {
    aggiungiAzione({"Sforzo normale di progetto", "Nd", "N", v.fsAzioni,
                    project::inKilonewton(v.sforzoNormale), inKilonewton(v.Nd), unitaForza},
                   p);
    const Termine As = termine("As", v.As, 2), fyd = termine("fyd", v.fyd, 4);
    const auto resistenza = [&](const char* cosa, const char* simbolo, double limite,
                                std::string formula, std::vector<Termine> termini, double N) {
        const bool snervato = std::fabs(limite) * v.modEacciaio >= v.fyd;
        if (!snervato) formula.clear();
        aggiungi(
            {cosa, simbolo, std::move(formula), std::move(termini), inKilonewton(N), 1, unitaForza},
            p);
        if (!snervato) p.righe.back()[2] = {};
    };
    resistenza("Resistenza alla compressione semplice", "NRd,c", structure::accorciamentoLimite,
               v.Ac > 0 ? "(%1 · %2 + 0.85 · %3 · %4) / 1000" : "%1 · %2 / 1000",
               {As, fyd, termine("fcd", v.fcd, 5), termine("Ac", v.Ac, 2)}, v.assiali.compressione);
    resistenza("Resistenza alla trazione semplice", "NRd,t", structure::allungamentoLimite,
               "%1 · %2 / 1000", {As, fyd}, v.assiali.trazione);
}

// Stress over strain, tension positive, as the strips have it.
std::string leggi(const ValoriFlessione& v) {
    std::string acciaio = "σs = Es ε,  -fyd ≤ σs ≤ fyd";
    if (!(v.fcd > 0)) return acciaio;
    return "σc = 0.85 fcd · 1000 ε · (1 + 250 ε),  -0.002 ≤ ε < 0;   σc = -0.85 fcd,  ε < -0.002;  "
           " "
           "σc = 0,  ε ≥ 0;   " +
           acciaio;
}

std::string coefficiente(double volte) { return base::testoDecimali(volte, 2); }

}  // namespace

Prospetto prospettoMateriali(const project::Sezione& sezione, const ValoriFlessione& v) {
    Prospetto p = prospettoFormule("Materiali e sforzo normale");
    materiali(sezione, v, p);
    sforzoNormale(v, p);
    p.note.push_back(legendaMisure(sezione));
    p.note.push_back(leggi(v));
    return p;
}

Prospetto prospettoFlessione(const ValoriFlessione& v, bool positivo, double M) {
    const LatoFlessione& l = lato(v, positivo);
    const double Md = inKilonewtonMetri(l.Md), MRd = inKilonewtonMetri(l.MRd);
    Prospetto p = prospettoFormule("Confronto");
    aggiungiAzione(
        {"Momento di progetto", "Md", "M", v.fsAzioni, project::inKilonewton(M), Md, unitaMomento},
        p);
    momentoResistente(v, positivo, p);
    if (l.uso) aggiungiSfruttamento({"Sfruttamento", "Md", "MRd", Md, MRd, *l.uso}, p);
    return p;
}

Prospetto prospettoAltriSforzi(const ValoriFlessione& v, bool positivo) {
    const LatoFlessione& l = lato(v, positivo);
    Prospetto p{
        .titolo = traduttore("Con un altro sforzo normale"),
        .colonne = {colonna("Coefficiente dello sforzo normale"), numeri(unita::forzaAlMetro, "Nd"),
                    numeri(unita::momentoAlMetro, "Momento resistente"),
                    numeri(unita::percento, "Sfruttamento")}};
    if (l.altri.empty()) return p;
    const auto riga = [&](double volte, double Nd, double MRd, const std::optional<double>& uso) {
        p.righe.push_back(
            {tables::parola(coefficiente(volte)), numero(inKilonewton(Nd), 2),
             numero(inKilonewtonMetri(MRd), 2),
             uso ? numero(mostrato(unita::percento, *uso), 1)
                 : tables::senza(traduttore("In questo verso la sezione non resiste a nulla."))});
    };
    riga(v.fsAzioni, v.Nd, l.MRd, l.uso);
    for (const dossier::ConAltroSforzo& a : l.altri) riga(a.volte, a.Nd, a.MRd, a.uso);
    p.note.push_back(base::riempito(
        traduttore("Come la relazione di calcolo, la verifica moltiplica lo sforzo normale per %1 "
                   "anche dove aumenta la resistenza: qui non è dalla parte sicura. Se lo sforzo "
                   "può essere minore o mancare, vale lo sfruttamento maggiore."),
        {coefficiente(v.fsAzioni)}));
    return p;
}

Prospetto prospettoForzeInterne(const ValoriFlessione& v, bool positivo) {
    Prospetto p{
        .titolo = traduttore("Forze nella sezione alla sua resistenza"),
        .colonne = {colonna("Che cosa agisce"), colonna("Simboli"),
                    numeri(unita::forzaAlMetro, "Forza"), simboli(unita::misura, "y"),
                    numeri(unita::misura, "Braccio"), numeri(unita::momentoAlMetro, "Momento")}};
    const auto forze = forzeInterne(v, positivo);
    if (forze.empty()) return p;
    for (const Forza& f : forze)
        p.righe.push_back({tables::parola(traduttore(f.cosa)),
                           tables::parola(std::string("F") + f.simbolo + ", b" + f.simbolo),
                           numero(inKilonewton(f.F), 2), numero(f.y, 2), numero(f.b, 2),
                           numero(inKilonewtonMetri(f.momento()), 2)});
    p.righe.push_back({tables::parola(traduttore("Nd e momento resistente")),
                       tables::parola("Nd, MRd"), numero(inKilonewton(v.Nd), 2), numero(v.yNd, 2),
                       numero(0, 2), numero(inKilonewtonMetri(lato(v, positivo).MRd), 2)});
    p.note.push_back(base::riempito(
        traduttore("y dalla faccia verso lo scavo, su un'altezza di %1 mm; compressione positiva; "
                   "bracci dal punto in cui agisce lo sforzo normale. Le forze delle altre righe "
                   "sommano a Nd, i loro momenti al momento resistente."),
        {project::numeroMostrato(v.H, 0)}));
    return p;
}

}  // namespace korven::report
