#include <optional>
#include <string>

#include "base/translated_texts.hpp"
#include "report/annex/formula_rows.hpp"
#include "report/annex/section_tables.hpp"
#include "report/annex/table_pieces.hpp"

namespace korven::report {

using base::traduttore;
using dossier::ValoriTaglio;
using tables::Prospetto;
namespace unita = project::unita;

namespace {

const std::string tensione(unita::tensione.mostrata);
const std::string area = "mm²";
const std::string alMetro(unita::forzaAlMetro.mostrata);

double kN(double N) { return N / project::newtonKilonewton; }

// What the concrete of a pile carries, and its struts.
void calcestruzzo(const project::Sezione& s, const ValoriTaglio& v, Prospetto& p) {
    const structure::ValoriTaglio& w = v.palo;
    const auto mm = [](double cm) { return project::inMillimetri(cm); };
    aggiungi({"Altezza utile",
              "d",
              "%1 - %2 - %3 / 2",
              {termine("D", mm(s.armDiamPalo), 1), termine("c", mm(s.armCopriferro), 1),
               termine("dl", mm(s.armDiamLong), 1)},
              w.d,
              1,
              "mm"},
             p);
    aggiungi({"Larghezza dell'anima, il diametro intero",
              "bw",
              "%1",
              {termine("D", mm(s.armDiamPalo), 1)},
              w.bw,
              1,
              "mm"},
             p);
    aggiungi({"Resistenza a trazione del calcestruzzo",
              "fctk",
              "0.7 · 0.3 · %1^(2/3)",
              {termine("fck", v.fck, 2)},
              w.fctk,
              3,
              tensione},
             p);
    aggiungi({"Resistenza unitaria a taglio",
              "τRd",
              "0.25 %1 / %2",
              {termine("fctk", w.fctk, 3), termine("γc", v.fsCalcestruzzo, 2)},
              w.tauRd,
              4,
              tensione},
             p);
    aggiungi({"Coefficiente k, senza limite",
              "k",
              "1.6 - %1 / 1000",
              {termine("d", w.d, 1)},
              w.k,
              4,
              "-"},
             p);
    aggiungi({"Area delle barre",
              "Asl",
              "%1 π (%2 / 2)²",
              {termine("n", s.armNumLong, 3), termine("dl", mm(s.armDiamLong), 1)},
              w.Asl,
              1,
              area},
             p);
    aggiungi({"Quota delle barre, senza limite",
              "ρl",
              "%1 / (%2 · %3)",
              {termine("Asl", w.Asl, 1), termine("d", w.d, 1), termine("bw", w.bw, 1)},
              w.rhoL,
              6,
              "-"},
             p);
    aggiungi({"Quota del calcestruzzo",
              "VRd1",
              "%1 · %2 · (1.2 + 40 · %3 + 0.15 · %4) · %5 · %6 / 1000",
              {termine("τRd", w.tauRd, 4), termine("k", w.k, 4), termine("ρl", w.rhoL, 6),
               termine("σcp", w.sigmaCp, 2), termine("bw", w.bw, 1), termine("d", w.d, 1)},
              kN(w.Vrd1),
              2,
              "kN"},
             p);
    aggiungi({"Coefficiente delle bielle, non sotto 0.5",
              "ν",
              "0.7 - %1 / 200",
              {termine("fck", v.fck, 2)},
              w.nu,
              4,
              "-"},
             p);
    aggiungi({"Resistenza di progetto del calcestruzzo",
              "fcd",
              "%1 / %2",
              {termine("fck", v.fck, 2), termine("γc", v.fsCalcestruzzo, 2)},
              w.fcd,
              3,
              tensione},
             p);
    aggiungi({"Bielle di calcestruzzo, un palo",
              "VRd2",
              "0.5 · %1 · %2 · %3 · 0.9 · %4 / 1000",
              {termine("ν", w.nu, 4), termine("fcd", w.fcd, 3), termine("bw", w.bw, 1),
               termine("d", w.d, 1)},
              kN(w.resistente.Vrd2),
              2,
              "kN"},
             p);
}

void staffe(const project::Sezione& s, const ValoriTaglio& v, Prospetto& p) {
    const structure::ValoriTaglio& w = v.palo;
    aggiungi({"Area di una staffa, due bracci",
              "Asw",
              "2 π (%1 / 2)²",
              {termine("dw", project::inMillimetri(s.armDiamStaffe), 1)},
              w.Asw,
              1,
              area},
             p);
    aggiungi({"Resistenza di progetto dell'acciaio",
              "fyd",
              "%1 / %2",
              {termine("fyk", v.fyk, 2), termine("γs", v.fsAcciaio, 2)},
              w.fyd,
              2,
              tensione},
             p);
    aggiungi({"Quota delle staffe",
              "Vwd",
              "%1 · %2 · 0.9 · %3 / %4 / 1000",
              {termine("fyd", w.fyd, 2), termine("d", w.d, 1), termine("Asw", w.Asw, 1),
               termine("s", w.passo, 1)},
              kN(w.Vwd),
              2,
              "kN"},
             p);
    aggiungi({"Armatura d'anima, un palo",
              "VRd3",
              "%1 + %2",
              {termine("VRd1", kN(w.Vrd1), 2), termine("Vwd", kN(w.Vwd), 2)},
              kN(w.resistente.Vrd3),
              2,
              "kN"},
             p);
}

void uso(const char* cosa, const std::string& simbolo, double Vsd, double VRd,
         const std::optional<double>& quota, Prospetto& p) {
    if (!quota) return;
    aggiungi({cosa,
              "η",
              "%1 / %2",
              {termine("VSd", Vsd, 2), termine(simbolo, VRd, 2)},
              mostrato(unita::percento, *quota),
              1,
              "%"},
             p);
}

void alMetroDiParatia(const ValoriTaglio& v, Prospetto& p) {
    const double i = v.interasse / project::millimetriMetro;
    const auto perMetro = [&](const char* cosa, const char* simbolo, double VRd, double valore) {
        aggiungi({cosa,
                  std::string(simbolo) + "'",
                  "%1 / %2",
                  {termine(simbolo, kN(VRd), 2), termine("i", i, 3)},
                  valore,
                  2,
                  alMetro},
                 p);
    };
    perMetro("Bielle di calcestruzzo, un metro", "VRd2", v.palo.resistente.Vrd2, v.metro.Vrd2);
    perMetro("Armatura d'anima, un metro", "VRd3", v.palo.resistente.Vrd3, v.metro.Vrd3);
    aggiungi({"Taglio di progetto",
              "VSd",
              "%1 · %2",
              {termine("γF", v.metro.fsAzioni, 2), termine("V", v.metro.taglioMassimo, 2)},
              v.metro.Vsd,
              2,
              alMetro},
             p);
    uso("Sfruttamento delle bielle", "VRd2'", v.metro.Vsd, v.metro.Vrd2, v.usoBielle, p);
    uso("Sfruttamento dell'armatura", "VRd3'", v.metro.Vsd, v.metro.Vrd3, v.usoArmatura, p);
}

}  // namespace

Prospetto prospettoTaglio(const project::Sezione& sezione, const ValoriTaglio& valori) {
    Prospetto p = prospettoFormule("Resistenza a taglio");
    calcestruzzo(sezione, valori, p);
    staffe(sezione, valori, p);
    alMetroDiParatia(valori, p);
    p.note.push_back(
        traduttore("D: diametro del palo; c: copriferro; dl, dw: diametro delle barre e delle "
                   "staffe; s: passo delle staffe; i: interasse dei pali; n: barre come il calcolo "
                   "le prende, un decimo di quelle scritte. La verifica non prende lo sforzo "
                   "normale. Regole di CEN, ENV 1992-1-1 (1991), 4.3.2."));
    return p;
}

}  // namespace korven::report
