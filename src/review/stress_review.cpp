#include <algorithm>
#include <cmath>

#include "analysis/layer_soil.hpp"
#include "project/codes.hpp"
#include "project/shown_number.hpp"
#include "review/at_rest_rule.hpp"
#include "review/remark_list.hpp"

// What the kind of stresses and the method of the pressures leave out or count twice.

namespace korven::review {

namespace {

using project::DatiProgetto;
using project::MetodoSpinte;
using project::ModoTensioni;

bool raggiunto(const DatiProgetto& d, int j) { return d.profStrato[j - 1] < d.lunghezzaParatia; }

// The depth from which stresses under water are computed anywhere: in front only below the
// excavation.
double inizioSottAcqua(const DatiProgetto& d) {
    double z = d.faldaMonte;
    for (int k = 1; k <= d.nFasi; ++k) z = std::min(z, std::max(d.faldaFase[k], d.profFase[k]));
    return z;
}

bool conAttritoSottAcqua(const DatiProgetto& d, int j) {
    const double acqua = inizioSottAcqua(d);
    const bool bagnato = j == d.nStrati || d.profStrato[j] > acqua;
    return d.phiStrato[j] > 0 && bagnato && raggiunto(d, j) && acqua < d.lunghezzaParatia;
}

bool conCoesione(const DatiProgetto& d, int j) { return d.coesione[j] > 0; }

bool conSu(const DatiProgetto& d, int j) { return d.suStrato[j] > 0; }

std::vector<int> strati(const DatiProgetto& d, bool (*inQuestione)(const DatiProgetto&, int)) {
    std::vector<int> trovati;
    for (int j = 1; j <= d.nStrati; ++j)
        if (inQuestione(d, j)) trovati.push_back(j);
    return trovati;
}

void controlloTensioniTotali(const DatiProgetto& d, ElencoOsservazioni& elenco) {
    if (d.modoTensioni == ModoTensioni::efficaci) return;  // a run takes all else for total
    const auto attriti = strati(d, conAttritoSottAcqua);
    if (attriti.empty()) return;
    elenco.aggiungi("tensioni-totali-con-attrito",
                    insieme(campoConValore(&DatiProgetto::modoTensioni, d.modoTensioni),
                            righeConValori(d, &DatiProgetto::phiStrato, attriti)));
}

void controlloBell(const DatiProgetto& d, ElencoOsservazioni& elenco) {
    if (d.metodoSpinte != MetodoSpinte::bell) return;
    const Soggetto bell = campoConValore(&DatiProgetto::metodoSpinte, d.metodoSpinte);
    if (const auto coesivi = strati(d, conCoesione); !coesivi.empty())
        elenco.aggiungi("coesione-con-bell",
                        insieme(bell, righeConValori(d, &DatiProgetto::coesione, coesivi)));
    if (d.inclinazioneMonte != 0)
        elenco.aggiungi(
            "pendio-con-bell",
            insieme(bell, campoConValore(&DatiProgetto::inclinazioneMonte, d.inclinazioneMonte)));
}

// Equal but for rounding, as without friction, is not below.
constexpr double uguali = 1e-9;

// Of a slope above the friction angle more is told elsewhere.
void controlloRiposo(const DatiProgetto& d, ElencoOsservazioni& elenco) {
    const auto suolo = analysis::suoloStrati(d);
    std::vector<int> sotto;
    for (int j = 1; j <= d.nStrati; ++j)
        if (raggiunto(d, j) && d.phiStrato[j] >= std::abs(d.inclinazioneMonte) &&
            suolo[j].motivoM == analysis::Indefinito::no && suolo[j].k0m < suolo[j].kam - uguali)
            sotto.push_back(j);
    if (sotto.empty()) return;
    const auto& primo = suolo[sotto.front()];
    elenco.aggiungi("k0-sotto-ka",
                    insieme(campoConValore(&DatiProgetto::inclinazioneMonte, d.inclinazioneMonte),
                            righeConValori(d, &DatiProgetto::phiStrato, sotto)),
                    {project::numeroMostrato(primo.k0m, 3), project::numeroMostrato(primo.kam, 3)});
}

// Where it is active the soil is not asked for its pressure at rest, but no one knows before a run.
void controlloPendio(const DatiProgetto& d, ElencoOsservazioni& elenco) {
    if (!(d.inclinazioneMonte > 0)) return;
    const auto suolo = analysis::suoloStrati(d);
    const double gradi = analysis::pi / 180;
    for (int j = 1; j <= d.nStrati; ++j) {
        if (!raggiunto(d, j) || d.phiStrato[j] < d.inclinazioneMonte) continue;
        const double norma = riposoDelPendio(d.phiStrato[j] * gradi, d.inclinazioneMonte * gradi);
        elenco.aggiungi(
            "riposo-del-pendio",
            insieme(campoConValore(&DatiProgetto::inclinazioneMonte, d.inclinazioneMonte),
                    rigaConValore(d, &DatiProgetto::phiStrato, j)),
            {project::numeroMostrato(suolo[j].k0m, 3), project::numeroMostrato(norma, 3)});
        return;  // of the uppermost layer: the others differ by the same factor
    }
}

}  // namespace

void controlloTensioni(const DatiProgetto& dati, ElencoOsservazioni& elenco) {
    controlloTensioniTotali(dati, elenco);
    if (const auto conResistenza = strati(dati, conSu); !conResistenza.empty())
        elenco.aggiungi("su-non-usata",
                        righeConValori(dati, &DatiProgetto::suStrato, conResistenza));
    controlloBell(dati, elenco);
    controlloRiposo(dati, elenco);
    controlloPendio(dati, elenco);
}

}  // namespace korven::review
