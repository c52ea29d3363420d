#include "base/number_text.hpp"
#include "review/remark_list.hpp"

// The water levels. Of what a run does with them: each side counts its head from its own level,
// whatever the depth of the excavation.

namespace korven::review {

namespace {

using project::DatiProgetto;

bool livelliMaiScritti(const DatiProgetto& d) {
    for (int k = 1; k <= d.nFasi; ++k)
        if (d.faldaFase[k] != 0) return false;
    return true;
}

// Ground water may well reach the surface before anything is dug, if later stages lower it.
bool aZero(const DatiProgetto& d, int k) {
    return d.faldaMonte == 0 && d.faldaFase[k] == 0 && (d.profFase[k] > 0 || livelliMaiScritti(d));
}

// Levels below the toe are how a dry wall is told, whichever is the higher.
bool piuAltaDavanti(const DatiProgetto& d, int k) {
    return d.faldaFase[k] < d.faldaMonte && d.faldaFase[k] < d.lunghezzaParatia;
}

bool sopraLoScavo(const DatiProgetto& d, int k) {
    return d.faldaFase[k] < d.profFase[k] && !aZero(d, k);
}

std::vector<int> fasi(const DatiProgetto& d, bool (*inQuestione)(const DatiProgetto&, int)) {
    std::vector<int> trovate;
    for (int k = 1; k <= d.nFasi; ++k)
        if (inQuestione(d, k)) trovate.push_back(k);
    return trovate;
}

}  // namespace

void controlloAcqua(const DatiProgetto& dati, ElencoOsservazioni& elenco) {
    if (!(dati.lunghezzaParatia > 0)) return;
    const std::vector<std::string> lunghezza = {base::testoNumero(dati.lunghezzaParatia)};
    const Soggetto monte = campoConValore(&DatiProgetto::faldaMonte, dati.faldaMonte);
    const auto livelli = [&dati](const std::vector<int>& quali) {
        return righeConValori(dati, &DatiProgetto::faldaFase, quali);
    };
    if (const auto zero = fasi(dati, aZero); !zero.empty())
        elenco.aggiungi("acqua-a-zero", insieme(monte, livelli(zero)), lunghezza);
    if (const auto alta = fasi(dati, piuAltaDavanti); !alta.empty())
        elenco.aggiungi("acqua-piu-alta-davanti", insieme(livelli(alta), monte), lunghezza);
    if (const auto nelloScavo = fasi(dati, sopraLoScavo); !nelloScavo.empty())
        elenco.aggiungi("acqua-sopra-lo-scavo", livelli(nelloScavo));
}

}  // namespace korven::review
