#include <string>
#include <utility>

#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "project/shown_number.hpp"
#include "report/annex/columns.hpp"
#include "report/annex/formula_rows.hpp"
#include "report/annex/section_rows.hpp"
#include "report/annex/section_tables.hpp"
#include "report/annex/table_pieces.hpp"

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

// The forces of the strips about the place of the axial force, those of one direction of bending.
class ForzeInterne {
 public:
    ForzeInterne(double yNd, int verso, Prospetto& p) : yNd_(yNd), verso_(verso), p_(p) {}

    /// @param segno  1 for a compression
    void aggiungi(const char* cosa, const Interna& interna, int segno) {
        if (interna.forza == 0) return;
        const double braccio = verso_ * (interna.y - yNd_);
        p_.righe.push_back({tables::parola(traduttore(cosa)),
                            numero(inKilonewton(segno * interna.forza), 2), numero(interna.y, 2),
                            numero(braccio, 2),
                            numero(inKilonewtonMetri(segno * interna.forza * braccio), 2)});
    }

    static Cella numero(double valore, int decimali) {
        return tables::cella(valore, decimali, unita::nessuna);
    }

 private:
    double yNd_;
    int verso_;
    Prospetto& p_;
};

void materiali(const ValoriFlessione& v, Prospetto& p) {
    if (v.fcd > 0) aggiungiResistenzaCls(v.fck, v.fsCalcestruzzo, v.fcd, p);
    aggiungiResistenzaAcciaio(v.fyk, v.fsAcciaio, v.fyd, p);
    aggiungi({"modulo elastico dell'acciaio", "Es", "", {}, v.modEacciaio, 0, unitaTensione}, p);
    if (v.Ac > 0)
        aggiungi({"Area del calcestruzzo in un metro", "Ac", "", {}, v.Ac, 0, unitaArea}, p);
    aggiungi({"Area dell'acciaio in un metro", "As", "", {}, v.As, 0, unitaArea}, p);
}

void sforzoNormale(const ValoriFlessione& v, Prospetto& p) {
    aggiungiAzione({"Sforzo normale di progetto", "Nd", "N", v.fsAzioni,
                    project::inKilonewton(v.sforzoNormale), inKilonewton(v.Nd), unitaForza},
                   p);
    const auto resistenza = [&](const char* cosa, const char* simbolo, double N) {
        aggiungi({cosa, simbolo, "", {}, inKilonewton(N), 2, unitaForza}, p);
    };
    resistenza("Resistenza alla compressione semplice", "NRd,c", v.assiali.compressione);
    resistenza("Resistenza alla trazione semplice", "NRd,t", v.assiali.trazione);
}

}  // namespace

Prospetto prospettoMateriali(const ValoriFlessione& v) {
    Prospetto p = prospettoFormule("Materiali e sforzo normale");
    materiali(v, p);
    sforzoNormale(v, p);
    return p;
}

Prospetto prospettoFlessione(const ValoriFlessione& v, bool positivo, double M) {
    const LatoFlessione& l = lato(v, positivo);
    const double Md = inKilonewtonMetri(l.Md), MRd = inKilonewtonMetri(l.MRd);
    Prospetto p = prospettoFormule("Confronto");
    aggiungiAzione(
        {"Momento di progetto", "Md", "M", v.fsAzioni, project::inKilonewton(M), Md, unitaMomento},
        p);
    aggiungi({"Momento resistente", "MRd", "", {}, MRd, 2, unitaMomento}, p);
    if (l.uso) aggiungiSfruttamento({"Sfruttamento", "Md", "MRd", Md, MRd, *l.uso}, p);
    return p;
}

Prospetto prospettoForzeInterne(const ValoriFlessione& v, bool positivo) {
    const LatoFlessione& l = lato(v, positivo);
    Prospetto p{.titolo = traduttore("Forze nella sezione alla sua resistenza"),
                .colonne = {colonna("Che cosa agisce"), numeri(unita::forzaAlMetro, "Forza"),
                            simboli(unita::misura, "y"), numeri(unita::misura, "Braccio"),
                            numeri(unita::momentoAlMetro, "Momento")}};
    if (l.limite == dossier::LimiteSezione::nessuno) return p;
    // Moments that bend it this way are positive: the compression lies on the far side of yNd.
    ForzeInterne forze(v.yNd, positivo ? 1 : -1, p);
    forze.aggiungi("Calcestruzzo compresso", l.calcestruzzo, 1);
    forze.aggiungi("Acciaio compresso", l.acciaioCompresso, 1);
    forze.aggiungi("Acciaio teso", l.acciaioTeso, -1);
    p.righe.push_back({tables::parola(traduttore("Nd e momento resistente")),
                       ForzeInterne::numero(inKilonewton(v.Nd), 2), ForzeInterne::numero(v.yNd, 2),
                       ForzeInterne::numero(0, 2),
                       ForzeInterne::numero(inKilonewtonMetri(l.MRd), 2)});
    p.note.push_back(base::riempito(
        traduttore("y dalla faccia verso lo scavo, su un'altezza di %1 mm; compressione positiva; "
                   "bracci dal punto in cui agisce lo sforzo normale. Le forze delle altre righe "
                   "sommano a Nd, i loro momenti al momento resistente."),
        {project::numeroMostrato(v.H, 0)}));
    return p;
}

}  // namespace korven::report
