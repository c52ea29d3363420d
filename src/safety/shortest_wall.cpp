#include "safety/shortest_wall.hpp"

#include <algorithm>
#include <cmath>

#include "analysis/layer_soil.hpp"
#include "analysis/run_arrays.hpp"
#include "equilibrium/stage_setup.hpp"
#include "equilibrium/verdict.hpp"
#include "project/deepest_excavation.hpp"

namespace korven::safety {

namespace {

using project::DatiProgetto;

// Lengths are whole numbers of `passoLunghezza`, so that the same wall is never tried at two
// lengths that differ by rounding.
class Ricerca {
 public:
    Ricerca(const DatiProgetto& dati, int nSeg)
        : dati_(dati), strati_(analysis::suoloStrati(dati)), nSeg_(nSeg) {}

    [[nodiscard]] bool sta(long passi) {
        dati_.lunghezzaParatia = lunghezza(passi);
        equilibrium::ImpostazioneFasi fasi(dati_, nSeg_, strati_);
        const std::vector<double> fermi(fasi.problema().nodi.size());
        for (int k = 1; k <= dati_.nFasi; ++k) {
            if (fasi.prepara(k, fermi)) return false;
            if (datoInstabile(fasi.problema()).che != equilibrium::Instabile::no) return false;
            if (meccanismo(fasi.problema())) return false;
        }
        return true;
    }

    [[nodiscard]] static double lunghezza(long passi) {
        return static_cast<double>(passi) * passoLunghezza;
    }

    // The first length that stands above one that does not.
    [[nodiscard]] long stringi(long cade, long regge) {
        while (regge - cade > 1) {
            const long mezzo = (cade + regge) / 2;
            (sta(mezzo) ? regge : cade) = mezzo;
        }
        return regge;
    }

    // Looks for lengths that fall within two steps of the mesh above one that stands.
    [[nodiscard]] long senzaRicadute(long regge, long fino) {
        const auto maglia =
            static_cast<long>(std::ceil(2 * lunghezza(regge) / nSeg_ / passoLunghezza));
        const long ultimo = std::min(fino, regge + maglia);
        for (long passi = ultimo; passi > regge; --passi)
            if (!sta(passi)) return passi + 1;
        return regge;
    }

 private:
    DatiProgetto dati_;
    analysis::SuoloStrati strati_;
    int nSeg_;
};

}  // namespace

LunghezzaMinima lunghezzaMinima(const DatiProgetto& dati, int nSeg) {
    if (analysis::vincoli(dati).bloccoPiede) return {EsitoLunghezza::vincolata, {}};
    Ricerca ricerca(dati, nSeg);
    const auto passi = [](double metri) {
        return std::max(1L, std::lround(std::ceil(metri / passoLunghezza - 1e-9)));
    };
    const long minimo = passi(project::scavoMassimo(dati));
    const long suo = std::max(minimo, passi(dati.lunghezzaParatia));
    const long massimo = std::max(suo, passi(massimaLunghezzaRelativa * dati.lunghezzaParatia));
    const long salto = std::max(1L, suo / 100);

    long regge = suo;
    while (!ricerca.sta(regge)) {
        if (regge == massimo) return {EsitoLunghezza::mai, {}};
        regge = std::min(massimo, regge + salto);
    }
    long cade = regge;
    while (cade > minimo) {
        cade = std::max(minimo, cade - salto);
        if (!ricerca.sta(cade)) break;
        regge = cade;
    }
    if (cade == regge) return {EsitoLunghezza::sempre, Ricerca::lunghezza(regge)};
    regge = ricerca.senzaRicadute(ricerca.stringi(cade, regge), massimo);
    return {EsitoLunghezza::trovata, Ricerca::lunghezza(regge)};
}

}  // namespace korven::safety
