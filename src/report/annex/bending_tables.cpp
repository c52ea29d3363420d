#include <string>
#include <utility>

#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "project/shown_number.hpp"
#include "report/annex/columns.hpp"
#include "report/annex/formula_rows.hpp"
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

const std::string tensione(unita::tensione.mostrata);
const std::string area = "mm²";
const std::string forza(unita::forzaAlMetro.mostrata);
const std::string momento(unita::momentoAlMetro.mostrata);

double kN(double N) { return N / project::newtonKilonewton; }
double kNm(double Nmm) { return kN(Nmm) / project::millimetriMetro; }

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
        p_.righe.push_back({tables::parola(traduttore(cosa)), numero(kN(segno * interna.forza), 2),
                            numero(interna.y, 1), numero(braccio, 1),
                            numero(kNm(segno * interna.forza * braccio), 2)});
    }

    static Cella numero(double valore, int decimali) {
        return tables::cella(valore, decimali, unita::nessuna);
    }

 private:
    double yNd_;
    int verso_;
    Prospetto& p_;
};

}  // namespace

Prospetto prospettoMateriali(const ValoriFlessione& v) {
    Prospetto p = prospettoFormule("Materiali e sforzo normale");
    if (v.fcd > 0)
        aggiungi({"Resistenza di progetto del calcestruzzo",
                  "fcd",
                  "%1 / %2",
                  {termine("fck", v.fck, 2), termine("γc", v.fsCalcestruzzo, 2)},
                  v.fcd,
                  2,
                  tensione},
                 p);
    aggiungi({"Resistenza di progetto dell'acciaio",
              "fyd",
              "%1 / %2",
              {termine("fyk", v.fyk, 2), termine("γs", v.fsAcciaio, 2)},
              v.fyd,
              2,
              tensione},
             p);
    aggiungi({"modulo elastico dell'acciaio", "Es", "", {}, v.modEacciaio, 0, tensione}, p);
    if (v.Ac > 0) aggiungi({"Area del calcestruzzo in un metro", "Ac", "", {}, v.Ac, 0, area}, p);
    aggiungi({"Area dell'acciaio in un metro", "As", "", {}, v.As, 0, area}, p);
    aggiungi(
        {"Sforzo normale di progetto",
         "Nd",
         "%1 · %2",
         {termine("γF", v.fsAzioni, 2), termine("N", project::inKilonewton(v.sforzoNormale), 2)},
         kN(v.Nd),
         2,
         forza},
        p);
    aggiungi({"Resistenza alla compressione semplice",
              "NRd,c",
              "",
              {},
              kN(v.assiali.compressione),
              2,
              forza},
             p);
    aggiungi(
        {"Resistenza alla trazione semplice", "NRd,t", "", {}, kN(v.assiali.trazione), 2, forza},
        p);
    return p;
}

Prospetto prospettoFlessione(const ValoriFlessione& v, bool positivo, double M) {
    const LatoFlessione& l = lato(v, positivo);
    Prospetto p = prospettoFormule("Confronto");
    aggiungi({"Momento di progetto",
              "Md",
              "%1 · %2",
              {termine("γF", v.fsAzioni, 2), termine("M", project::inKilonewton(M), 2)},
              kNm(l.Md),
              2,
              momento},
             p);
    aggiungi({"Momento resistente", "MRd", "", {}, kNm(l.MRd), 2, momento}, p);
    if (l.uso)
        aggiungi({"Sfruttamento",
                  "η",
                  "%1 / %2",
                  {termine("Md", kNm(l.Md), 2), termine("MRd", kNm(l.MRd), 2)},
                  mostrato(unita::percento, *l.uso),
                  1,
                  "%"},
                 p);
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
                       ForzeInterne::numero(kN(v.Nd), 2), ForzeInterne::numero(v.yNd, 1),
                       ForzeInterne::numero(0, 1), ForzeInterne::numero(kNm(l.MRd), 2)});
    p.note.push_back(base::riempito(
        traduttore("y dalla faccia verso lo scavo, su un'altezza di %1 mm; compressione positiva; "
                   "bracci dal punto in cui agisce lo sforzo normale. Le forze delle altre righe "
                   "sommano a Nd, i loro momenti al momento resistente."),
        {project::numeroMostrato(v.H, 0)}));
    return p;
}

}  // namespace korven::report
