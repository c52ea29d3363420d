#include <optional>
#include <string>

#include "base/translated_texts.hpp"
#include "report/annex/formula_rows.hpp"
#include "report/annex/section_rows.hpp"
#include "report/annex/section_tables.hpp"

namespace korven::report {

using base::traduttore;
using dossier::ValoriTaglio;
using tables::Prospetto;

namespace {

using project::inMillimetri;
using project::Sezione;

// Depth and width that count for the shear of a pile.
void misure(const Sezione& s, const structure::ValoriTaglio& w, Prospetto& p) {
    const auto D = [&] { return termine("D", inMillimetri(s.armDiamPalo), 1); };
    aggiungi({"Altezza utile",
              "d",
              "%1 - %2 - %3 / 2",
              {D(), termine("c", inMillimetri(s.armCopriferro), 1),
               termine("dl", inMillimetri(s.armDiamLong), 1)},
              w.d,
              2,
              unitaLunghezza},
             p);
    aggiungi(
        {"Larghezza dell'anima, il diametro intero", "bw", "%1", {D()}, w.bw, 1, unitaLunghezza},
        p);
}

// What the share of the concrete is made of.
void fattori(const Sezione& s, const ValoriTaglio& v, Prospetto& p) {
    const structure::ValoriTaglio& w = v.palo;
    aggiungi({"Resistenza a trazione del calcestruzzo",
              "fctk",
              "0.7 · 0.3 · %1^(2/3)",
              {termine("fck", v.fck, 2)},
              w.fctk,
              3,
              unitaTensione},
             p);
    aggiungi({"Resistenza unitaria a taglio",
              "τRd",
              "0.25 · %1 / %2",
              {termine("fctk", w.fctk, 5), termine("γc", v.fsCalcestruzzo, 2)},
              w.tauRd,
              4,
              unitaTensione},
             p);
    aggiungi({"Coefficiente k, senza limite",
              "k",
              "1.6 - %1 / 1000",
              {termine("d", w.d, 2)},
              w.k,
              4,
              "-"},
             p);
    aggiungi({"Area delle barre",
              "Asl",
              "%1 · π · (%2 / 2)²",
              {termine("n", s.armNumLong, 3), termine("dl", inMillimetri(s.armDiamLong), 1)},
              w.Asl,
              1,
              unitaArea},
             p);
    aggiungi({"Percentuale geometrica delle barre, senza limite",
              "ρl",
              "%1 / (%2 · %3)",
              {termine("Asl", w.Asl, 2), termine("d", w.d, 2), termine("bw", w.bw, 1)},
              w.rhoL,
              6,
              "-"},
             p);
}

void calcestruzzo(const ValoriTaglio& v, Prospetto& p) {
    const structure::ValoriTaglio& w = v.palo;
    aggiungi({"Contributo del calcestruzzo",
              "VRd1",
              "%1 · %2 · (1.2 + 40 · %3 + 0.15 · %4) · %5 · %6 / 1000",
              {termine("τRd", w.tauRd, 6), termine("k", w.k, 5), termine("ρl", w.rhoL, 7),
               termine("σcp", w.sigmaCp, 2), termine("bw", w.bw, 1), termine("d", w.d, 2)},
              inKilonewton(w.Vrd1),
              2,
              "kN"},
             p);
}

void bielle(const ValoriTaglio& v, Prospetto& p) {
    const structure::ValoriTaglio& w = v.palo;
    aggiungi({"Coefficiente delle bielle, non sotto 0.5",
              "ν",
              "0.7 - %1 / 200",
              {termine("fck", v.fck, 2)},
              w.nu,
              4,
              "-"},
             p);
    aggiungiResistenzaCls(v.fck, v.fsCalcestruzzo, w.fcd, p);
    aggiungi({"Bielle di calcestruzzo, un palo",
              "VRd2",
              "0.5 · %1 · %2 · %3 · 0.9 · %4 / 1000",
              {termine("ν", w.nu, 5), termine("fcd", w.fcd, 5), termine("bw", w.bw, 1),
               termine("d", w.d, 2)},
              inKilonewton(w.resistente.Vrd2),
              2,
              "kN"},
             p);
}

void staffe(const Sezione& s, const ValoriTaglio& v, Prospetto& p) {
    const structure::ValoriTaglio& w = v.palo;
    aggiungi({"Area di una staffa, due bracci",
              "Asw",
              "2 · π · (%1 / 2)²",
              {termine("ds", inMillimetri(s.armDiamStaffe), 1)},
              w.Asw,
              1,
              unitaArea},
             p);
    aggiungiResistenzaAcciaio(v.fyk, v.fsAcciaio, w.fyd, p);
    aggiungi({"Contributo delle staffe",
              "Vwd",
              "%1 · %2 · 0.9 · %3 / %4 / 1000",
              {termine("fyd", w.fyd, 4), termine("d", w.d, 2), termine("Asw", w.Asw, 4),
               termine("p", w.passo, 1)},
              inKilonewton(w.Vwd),
              2,
              "kN"},
             p);
    aggiungi({"Armatura d'anima, un palo",
              "VRd3",
              "%1 + %2",
              {termine("VRd1", inKilonewton(w.Vrd1), 3), termine("Vwd", inKilonewton(w.Vwd), 3)},
              inKilonewton(w.resistente.Vrd3),
              2,
              "kN"},
             p);
}

void alMetroDiParatia(const ValoriTaglio& v, Prospetto& p) {
    const double i = v.interasse / project::millimetriMetro;
    const auto perMetro = [&](const char* cosa, const char* simbolo, double VRd, double valore) {
        aggiungi({cosa,
                  std::string(simbolo) + "'",
                  "%1 / %2",
                  {termine(simbolo, inKilonewton(VRd), 4), termine("i", i, 4)},
                  valore,
                  2,
                  unitaForza},
                 p);
    };
    perMetro("Bielle di calcestruzzo, un metro", "VRd2", v.palo.resistente.Vrd2, v.metro.Vrd2);
    perMetro("Armatura d'anima, un metro", "VRd3", v.palo.resistente.Vrd3, v.metro.Vrd3);
    aggiungiAzione({"Taglio di progetto", "VSd", "V", v.metro.fsAzioni, v.metro.taglioMassimo,
                    v.metro.Vsd, unitaForza},
                   p);
    const auto uso = [&](const char* cosa, const char* simbolo, double VRd,
                         const std::optional<double>& quota) {
        if (quota) aggiungiSfruttamento({cosa, "VSd", simbolo, v.metro.Vsd, VRd, *quota}, p);
    };
    uso("Sfruttamento delle bielle", "VRd2'", v.metro.Vrd2, v.usoBielle);
    uso("Sfruttamento dell'armatura", "VRd3'", v.metro.Vrd3, v.usoArmatura);
}

}  // namespace

Prospetto prospettoTaglio(const Sezione& sezione, const ValoriTaglio& valori) {
    Prospetto p = prospettoFormule("Resistenza a taglio");
    misure(sezione, valori.palo, p);
    fattori(sezione, valori, p);
    calcestruzzo(valori, p);
    bielle(valori, p);
    staffe(sezione, valori, p);
    alMetroDiParatia(valori, p);
    p.note.push_back(traduttore(
        "D: diametro del palo; c: copriferro; dl, ds: diametro delle barre e "
        "delle staffe; p: passo delle staffe; i: interasse dei pali; n: barre come il calcolo "
        "le prende, un decimo di quelle scritte. La verifica non prende lo sforzo "
        "normale. Regole di CEN, ENV 1992-1-1 (1991), 4.3.2."));
    return p;
}

}  // namespace korven::report
