#include "results/structure_checks.hpp"

#include "project/units.hpp"
#include "structure/section_validity.hpp"

namespace korven::results {

ConfrontoMomenti confrontaMomenti(const analysis::ChiusuraRisultati& chiusura) {
    ConfrontoMomenti c;
    c.mrPos = -chiusura.mrd1 / project::newtonMillimetri;
    c.mrNeg = -chiusura.mrd2 / project::newtonMillimetri;
    c.mMax = chiusura.mMaxTotale;
    c.mMin = chiusura.mMinTotale;
    c.fsAzioni = chiusura.fsAzioni;
    c.mdMax = c.fsAzioni * c.mMax;
    c.mdMin = c.fsAzioni * c.mMin;
    c.negativo = c.mMin < 0;
    c.verificatoPos = c.mrPos > c.mdMax;
    c.verificatoNeg = c.mrNeg < c.mdMin;
    return c;
}

std::optional<ConfrontoMomenti> verificaMomenti(const project::Sezione& sezione,
                                                const analysis::ChiusuraRisultati& chiusura) {
    if (!structure::sezioneDefinita(sezione)) return std::nullopt;
    return confrontaMomenti(chiusura);
}

std::optional<ConfrontoMomenti> verificaMomenti(const DatiRelazione& dati) {
    return verificaMomenti(dati.progetto.sezione, dati.chiusura);
}

std::optional<structure::ConfrontoTaglio> verificaAlTaglio(const project::Sezione& s, double Vmax,
                                                           double fsAzioni) {
    if (!structure::sezioneDefinita(s) || !structure::staffePresenti(s)) return std::nullopt;
    return structure::confrontaTaglio(structure::verificaTaglio(s, 0), s.armInterasse, Vmax,
                                      fsAzioni);
}

std::optional<structure::ConfrontoTaglio> verificaAlTaglio(const DatiRelazione& dati) {
    return verificaAlTaglio(dati.progetto.sezione, dati.Vmax);
}

std::string_view sentenza(bool positivo, bool verificato) {
    if (positivo)
        return verificato ? "Condizioni di sicurezza verificate (momento positivo)"
                          : "CONDIZIONI DI SICUREZZA NON VERIFICATE (momento positivo)";
    return verificato ? "Condizioni di sicurezza verificate (momento negativo)"
                      : "CONDIZIONI DI SICUREZZA NON VERIFICATE (momento negativo)";
}

std::vector<std::string_view> verificheFallite(const DatiRelazione& dati) {
    std::vector<std::string_view> fallite;
    if (const auto momenti = verificaMomenti(dati)) {
        if (momenti->fallitaPos()) fallite.push_back(sentenza(true, false));
        if (momenti->fallitaNeg()) fallite.push_back(sentenza(false, false));
    }
    if (const auto taglio = verificaAlTaglio(dati))
        for (const auto rottura : structure::righeRotturaTaglio(*taglio))
            fallite.push_back(rottura);
    return fallite;
}

}  // namespace korven::results
