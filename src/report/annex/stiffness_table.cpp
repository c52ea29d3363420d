#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "base/translated_texts.hpp"
#include "project/units.hpp"
#include "report/annex/formula_rows.hpp"
#include "report/annex/section_rows.hpp"
#include "report/annex/soil_tables.hpp"
#include "report/annex/sources.hpp"

namespace korven::report {

using base::traduttore;
using dossier::Fascicolo;
using project::Sezione;
using tables::Prospetto;

namespace {

const std::string mm = "mm";
const std::string mm2 = "mm²/mm";
const std::string mm3 = "mm³";
const std::string mm4 = "mm⁴";
const std::string kNm2(project::unita::rigidezzaFlessionaleAlMetro.mostrata);

// N mm2 per metre in kN m2.
double inKilonewtonMetri(double EJ) {
    return EJ / project::newtonKilonewton / project::millimetriMetro / project::millimetriMetro;
}

// The rows of a type of section: the sentence above them, and how each number comes about.
class Righe {
 public:
    Righe(const Sezione& sezione, Prospetto& p) : s_(sezione), p_(p) {}

    void operator()(std::monostate) const {}

    void operator()(const structure::EJDiaframma& d) {
        p_.note.push_back(
            traduttore("Sezione di calcestruzzo intera, non fessurata, con le barre omogeneizzate; "
                       "x è il baricentro dalla faccia a monte, e l'armatura a monte vi entra con "
                       "il solo copriferro."));
        const Termine n = termine("n", d.n, 3), H = termine("H", d.misure.spessore, 1);
        const Termine Am = termine("Am", d.Am, 4), Av = termine("Av", d.Av, 4);
        const Termine x = termine("x", d.x, 2);
        const Termine am = termine("c1", d.misure.monte.copriferro, 1);
        const Termine fm = termine("d1", d.misure.monte.diametro, 1);
        const Termine av = termine("c2", d.misure.valle.copriferro, 1);
        const Termine fv = termine("d2", d.misure.valle.diametro, 1);
        riga("Rapporto dei moduli", "n", "%1 / %2", {Es(), Ec()}, d.n, 3, "");
        area("Armatura a monte", "Am", d.misure.monte, "1", d.Am);
        area("Armatura a valle", "Av", d.misure.valle, "2", d.Av);
        riga("Baricentro", "x",
             "(%1²/2 + (%2 − 1) · (%3 · (%1 − %4 − %5/2) + %6 · %7)) / (%1 + (%2 − 1) · (%6 + %3))",
             {H, n, Av, av, fv, Am, am}, d.x, 2, mm);
        riga("Inerzia dell'armatura a monte", "Jm", "%1 · (%2 − %3 − %4/2)²", {Am, x, am, fm}, d.Jm,
             1, mm3);
        riga("Inerzia dell'armatura a valle", "Jv", "%1 · (%2 − %3 − %4 − %5/2)²",
             {Av, H, x, av, fv}, d.Jv, 1, mm3);
        EJ("%1 · (%2³/12 + (%3 − 1) · (%4 + %5)) / 10⁶",
           {Ec(), H, n, termine("Jm", d.Jm, 1), termine("Jv", d.Jv, 1)}, d.EJ);
    }

    void operator()(const structure::EJPali& d) {
        p_.note.push_back(
            traduttore("Tubo d'acciaio e calcestruzzo che lo riempie, intero e non "
                       "fessurato, insieme."));
        EJ("(π/4) · (%1 · (%2/2)⁴ + %3 · ((%4/2)⁴ − (%2/2)⁴)) / %5 / 10⁶",
           {Ec(), termine("d", d.misure.diamInt, 1), Es(), termine("D", d.misure.diamEst, 1),
            termine("i", d.misure.interasse, 1)},
           d.EJ);
    }

    void operator()(const structure::EJPalancola& d) {
        p_.note.push_back(
            traduttore("Due rettangoli, l'esterno meno l'interno, su un'onda del "
                       "profilo: i giunti non scorrono."));
        const Termine b = termine("b", d.misure.base, 1), t = termine("t", d.misure.spessore, 1);
        const Termine a = termine("a", d.misure.largAla, 1);
        const Termine h = termine("h", d.misure.altAla, 1), c = termine("c", d.sAla, 3);
        const Termine Be = termine("Be", d.Be, 3), He = termine("He", d.He, 2);
        riga("Spessore dell'ala lungo la paratia", "c", "%1 / cos(arctan(%2 / %3))",
             {termine("s", d.misure.spessAla, 2), a, h}, d.sAla, 2, mm);
        riga("Base esterna", "Be", "%1 + %2", {b, c}, d.Be, 2, mm);
        riga("Altezza esterna", "He", "2 · %1 + %2", {h, t}, d.He, 2, mm);
        riga("Base interna", "Bi", "%1 - 2 · %2", {Be, c}, d.Bi, 2, mm);
        riga("Altezza interna", "Hi", "%1 - 2 · %2", {He, t}, d.Hi, 2, mm);
        riga("Lunghezza di un'onda", "i", "4 · %1 + 2 · %2", {a, b}, d.passo, 1, mm);
        EJ("%1 · (%2 · %3³ − %4 · %5³) / 12 / %6 / 10⁶",
           {Es(), Be, He, termine("Bi", d.Bi, 3), termine("Hi", d.Hi, 2), termine("i", d.passo, 1)},
           d.EJ);
    }

    void operator()(const structure::EJPaliArmati& d) {
        p_.note.push_back(
            traduttore("Palo di calcestruzzo intero, non fessurato, con ogni barra al posto del "
                       "suo calcestruzzo; a è la distanza della barra dall'asse di flessione."));
        riga("numero delle barre", "n", "", {}, d.ferri, 0, "");
        riga("Raggio della corona di barre", "R", "%1/2 − %2 − %3/2",
             {termine("D", d.misure.diamPalo, 1), termine("c", d.misure.copriferro, 1),
              termine("dl", d.misure.diamLong, 1)},
             d.raggio, 2, mm);
        riga("Inerzia delle barre", "Jb", "Σ (a² π dl²/4 + π dl⁴/64)", {}, d.Jb, 0, mm4);
        EJ("(%1 · π · %2⁴/64 + (%3 − %1) · %4) / %5 / 10⁶",
           {Ec(), termine("D", d.misure.diamPalo, 1), Es(), termine("Jb", d.Jb, 0),
            termine("i", d.misure.interasse, 1)},
           d.EJ);
    }

 private:
    [[nodiscard]] Termine Es() const { return termine("Es", s_.modEacciaio, 0); }
    [[nodiscard]] Termine Ec() const { return termine("Ec", s_.modEcls, 0); }

    void riga(const char* cosa, std::string simbolo, std::string formula,
              std::vector<Termine> termini, double valore, int decimali, const std::string& unita) {
        const bool senzaValori = termini.empty() && !formula.empty();
        aggiungi({cosa, std::move(simbolo), std::move(formula), std::move(termini), valore,
                  decimali, unita},
                 p_);
        if (senzaValori) p_.righe.back()[2] = {};
    }

    void area(const char* cosa, std::string simbolo, const structure::FacciaMm& f,
              const std::string& lato, double A) {
        if (A == 0)
            riga(cosa, std::move(simbolo), "", {}, 0, 4, mm2);
        else
            riga(cosa, std::move(simbolo), "π · %1² / 4 / %2",
                 {termine("d" + lato, f.diametro, 1), termine("i" + lato, f.interasse, 1)}, A, 4,
                 mm2);
    }

    void EJ(std::string formula, std::vector<Termine> termini, double valore) {
        riga("Rigidezza di un metro di paratia", "EJ", std::move(formula), std::move(termini),
             inKilonewtonMetri(valore), 1, kNm2);
    }

    const Sezione& s_;
    Prospetto& p_;
};

}  // namespace

Prospetto prospettoRigidezza(const Fascicolo& f) {
    Prospetto p = prospettoFormule("Rigidezza EJ dalla sezione");
    const auto& [passi, offerta] = f.rigidezza;
    if (!offerta) return p;
    const Sezione& sezione = f.parete.dati.sezione;
    std::visit(Righe(sezione, p), passi);
    p.note.push_back(legendaMisure(sezione));
    p.note.push_back(traduttore(sezione.tipoPalancola
                                    ? "Es: modulo elastico dell'acciaio."
                                    : "Es, Ec: moduli elastici dell'acciaio e del calcestruzzo."));
    aggiungi({"Troncata a tonnellate forza intere, come il calcolo la prende",
              "EJ",
              "",
              {},
              mostrato(project::unita::rigidezzaFlessionaleAlMetro, *offerta),
              0,
              kNm2},
             p);
    return p;
}

}  // namespace korven::report
