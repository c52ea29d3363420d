#include "report/annex/twin_words.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/code_page.hpp"
#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "project/anchor_names.hpp"
#include "project/shown_number.hpp"
#include "report/annex/columns.hpp"
#include "report/annex/table_pieces.hpp"
#include "tables/check_table.hpp"
#include "tables/check_words.hpp"
#include "tables/quantities.hpp"

namespace korven::report {

using base::riempito;
using base::traduttore;
using dossier::Doppio;
using dossier::Fascicolo;
using dossier::LatoVerifica;
using dossier::NumeroDoppio;
using dossier::VerificaDoppia;
using tables::Cella;
using tables::Prospetto;
namespace unita = project::unita;

namespace {

const project::Unita& unitaDi(Doppio cosa) {
    return cosa == Doppio::momentoMassimo || cosa == Doppio::momentoMinimo ? unita::momentoAlMetro
                                                                           : unita::forzaAlMetro;
}

std::string nome(const project::DatiProgetto& dati, const NumeroDoppio& d) {
    switch (d.cosa) {
        case Doppio::momentoMassimo:
            return base::conMaiuscola(traduttore("momento massimo"));
        case Doppio::momentoMinimo:
            return base::conMaiuscola(traduttore("momento minimo"));
        case Doppio::taglio:
            return traduttore("Taglio");
        case Doppio::tiro:
            break;
    }
    return nomeTirante(dati, d.tirante);
}

// Gives each reason a number, the same for the same words.
class Motivi {
 public:
    Cella numero(const std::string& perche) {
        if (perche.empty()) return {.testo = "", .numero = {}};
        auto i = std::find(tutti_.begin(), tutti_.end(), perche);
        if (i == tutti_.end()) i = tutti_.insert(tutti_.end(), perche);
        return tables::cella(static_cast<int>(i - tutti_.begin()) + 1);
    }
    void note(Prospetto& p) const {
        for (std::size_t i = 0; i < tutti_.size(); ++i)
            p.note.push_back(inFrase(base::conDuePunti(std::to_string(i + 1), tutti_[i])));
    }

 private:
    std::vector<std::string> tutti_;
};

Cella profondita(const NumeroDoppio& d, double z) {
    return d.cosa == Doppio::tiro ? Cella{.testo = ""} : tables::profondita(z);
}

// "Taglio 182.66 kN/m a 1.60 m invece di 181.97 a 1.60 m: at the anchor ..."
std::string parole(const project::DatiProgetto& dati, const NumeroDoppio& d) {
    const project::Unita& u = unitaDi(d.cosa);
    return riempito(
        traduttore("%1 %2 %3 a %4 m, invece di %5 a %6 m: %7"),
        {nome(dati, d), tables::cifre(mostrato(u, d.relazione)).testo, std::string(u.mostrata),
         tables::profondita(d.zRelazione).testo, project::numeroMostrato(d.equilibrio, 2, u),
         tables::profondita(d.zEquilibrio).testo, d.perche});
}

// Of two values at one place and of one sign: else it would be of no curve.
Cella differenza(const NumeroDoppio& d, const project::Unita& u) {
    if (!d.diverso()) return {.testo = ""};
    const bool stessoPosto =
        profondita(d, d.zEquilibrio).testo == profondita(d, d.zRelazione).testo;
    if (!stessoPosto || d.relazione * d.equilibrio < 0) return {};
    return tables::cella(d.relazione - d.equilibrio, 2, u);
}

// The largest of all stages, each way by itself.
std::vector<NumeroDoppio> massimi(const Fascicolo& f) {
    std::vector<NumeroDoppio> tutti;
    for (const Doppio cosa : {Doppio::momentoMassimo, Doppio::momentoMinimo, Doppio::taglio}) {
        const double segno = cosa == Doppio::momentoMinimo ? -1 : 1;
        const auto misura = [&](double v) {
            return cosa == Doppio::taglio ? std::fabs(v) : segno * v;
        };
        const NumeroDoppio *e = nullptr, *r = nullptr;
        for (const NumeroDoppio& d : f.doppi) {
            if (d.cosa != cosa) continue;
            if (e == nullptr || misura(d.equilibrio) > misura(e->equilibrio)) e = &d;
            if (r == nullptr || misura(d.relazione) > misura(r->relazione)) r = &d;
        }
        if (e == nullptr) continue;
        NumeroDoppio& d = tutti.emplace_back(*r);
        d.equilibrio = e->equilibrio;
        d.zEquilibrio = e->zEquilibrio;
    }
    return tutti;
}

std::vector<NumeroDoppio> diFase(const Fascicolo& f, int fase) {
    if (fase == 0) return massimi(f);
    std::vector<NumeroDoppio> suoi;
    for (const NumeroDoppio& d : f.doppi)
        if (d.fase == fase && d.cosa != Doppio::tiro) suoi.push_back(d);
    return suoi;
}

std::vector<Cella> celle(const LatoVerifica& lato, Cella (*numero)(double)) {
    return {numero(lato.progetto), tables::uso(lato.progetto, lato.resistenza),
            tables::cella(lato.dove.fase), tables::dove(lato.dove.fase, lato.dove.z)};
}

}  // namespace

Prospetto prospettoDoppi(const Fascicolo& f) {
    Prospetto p{.titolo = traduttore("Equilibrio e relazione"),
                .colonne = {numeri("Fase"), colonna("Massimi"), numeri("Equilibrio"),
                            simboli(unita::metri, "z"), numeri("Relazione"),
                            simboli(unita::metri, "z"), numeri("Differenza"), numeri("Nota")}};
    Motivi motivi;
    for (const NumeroDoppio& d : f.doppi) {
        const project::Unita& u = unitaDi(d.cosa);
        const Cella equilibrio = tables::cella(d.equilibrio, 2, u);
        const Cella relazione = tables::cifre(mostrato(u, d.relazione));
        if (stampataNulla(equilibrio) && stampataNulla(relazione)) continue;
        p.righe.push_back({tables::cella(d.fase),
                           tables::parola(nome(f.parete.dati, d) + " " + traParentesi(u)),
                           equilibrio, profondita(d, d.zEquilibrio), relazione,
                           profondita(d, d.zRelazione), differenza(d, u), motivi.numero(d.perche)});
    }
    motivi.note(p);
    if (!p.righe.empty())
        p.note.push_back(
            traduttore("Differenza: relazione meno equilibrio; un trattino dove i due valori hanno "
                       "segno opposto o stanno a profondità diverse."));
    return p;
}

std::string fraseDoppi(const Fascicolo& f, int fase) {
    std::string testo;
    for (const NumeroDoppio& d : diFase(f, fase))
        if (d.diverso() ||
            std::fabs(project::inKilonewton(d.relazione - d.equilibrio)) >= dossier::ultimaCifra)
            testo +=
                (testo.empty() ? std::string() : base::puntoEVirgola()) + parole(f.parete.dati, d);
    if (testo.empty()) return testo;
    return inFrase(riempito(traduttore("La relazione ha qui altri numeri. %1"), {testo}));
}

Prospetto prospettoVerificheDoppie(const Fascicolo& f) {
    Prospetto p{.titolo = traduttore("Le stesse verifiche, dove la relazione ha altri numeri"),
                .colonne = {colonna("Verifica"), colonna("Numeri di"), numeri("Di progetto"),
                            numeri(unita::percento, "Sfruttamento"), numeri("Fase"),
                            simboli(unita::metri, "z"), colonna("Perché")}};
    for (const VerificaDoppia& v : f.verifiche) {
        if (v.perche.empty()) continue;
        const auto riga = [&](const char* chi, const LatoVerifica& lato, Cella (*numero)(double),
                              const std::string& perche) {
            auto& celle_ = p.righe.emplace_back(
                std::vector<Cella>{conUnita(tables::unitaDi(v.cosa), tables::nome(v.cosa)),
                                   tables::parola(traduttore(chi))});
            for (Cella& c : celle(lato, numero)) celle_.push_back(std::move(c));
            celle_.push_back(tables::parola(perche));
        };
        riga(
            "Equilibrio", *v.equilibrio,
            [](double x) { return tables::cella(x, 2, unita::nessuna); }, "");
        riga("Relazione", *v.relazione, tables::cifre, v.perche);
    }
    return p;
}

}  // namespace korven::report
