#include "report/annex/section_rows.hpp"

#include "report/annex/formula_rows.hpp"

namespace korven::report {

using tables::Prospetto;
namespace unita = project::unita;

void aggiungiResistenzaCls(double fck, double fs, double fcd, Prospetto& p) {
    aggiungi({"Resistenza di progetto del calcestruzzo",
              "fcd",
              "%1 / %2",
              {termine("fck", fck, 2), termine("γc", fs, 2)},
              fcd,
              3,
              unitaTensione},
             p);
}

void aggiungiResistenzaAcciaio(double fyk, double fs, double fyd, Prospetto& p) {
    aggiungi({"Resistenza di progetto dell'acciaio",
              "fyd",
              "%1 / %2",
              {termine("fyk", fyk, 2), termine("γs", fs, 2)},
              fyd,
              2,
              unitaTensione},
             p);
}

void aggiungiAzione(const AzioneDiProgetto& a, Prospetto& p) {
    aggiungi({a.cosa,
              a.simbolo,
              "%1 · %2",
              {termine("γF", a.fs, 2), termine(a.simboloAzione, a.azione, 3)},
              a.progetto,
              2,
              a.unita},
             p);
}

void aggiungiSfruttamento(const RigaSfruttamento& s, Prospetto& p) {
    aggiungi(
        {s.cosa,
         "η",
         "%1 / %2",
         {termine(s.simboloAzione, s.azione, 2), termine(s.simboloResistenza, s.resistenza, 2)},
         mostrato(unita::percento, s.quota),
         1,
         std::string(unita::percento.mostrata)},
        p);
}

}  // namespace korven::report
