#include "commands/edited_values.hpp"

#include <algorithm>
#include <climits>

#include "base/number_text.hpp"

namespace korven::commands {

namespace {

using project::DatiProgetto;

constexpr int numeroTitoli = 6;

// Tonnes become kilonewtons, exactly ten for one.
constexpr double migliaia = 10;

class Elenco {
 public:
    Elenco& numero(double valore, double fattore = 1) {
        testi_.push_back(base::testoNumero(fattore == 1 ? valore : valore * fattore));
        return *this;
    }
    Elenco& kN(double tonnellate) { return numero(tonnellate, migliaia); }
    Elenco& testo(const std::string& riga) {
        testi_.push_back(riga);
        return *this;
    }
    [[nodiscard]] std::vector<std::string> testi() { return std::move(testi_); }

 private:
    std::vector<std::string> testi_;
};

}  // namespace

std::vector<std::string> testiStrati(const DatiProgetto& dati) {
    Elenco elenco;
    elenco.numero(dati.nStrati);
    for (int i = 1; i <= dati.nStrati; ++i)
        elenco.numero(dati.profStrato[i])
            .kN(dati.gammaN[i])
            .kN(dati.gammaSat[i])
            .numero(dati.phiStrato[i])
            .kN(dati.coesione[i])
            .kN(dati.ksStrato[i])
            .testo(dati.descrStrato[i]);
    return elenco.testi();
}

std::vector<std::string> testiTiranti(const DatiProgetto& dati) {
    Elenco elenco;
    elenco.numero(dati.nTiranti);
    for (int i = 1; i <= dati.nTiranti; ++i)
        elenco.numero(dati.profTirante[i])
            .kN(dati.rigTirante[i])
            .kN(dati.pretTirante[i])
            .numero(dati.tipoTirante[i]);
    return elenco.testi();
}

std::vector<std::string> testiFasi(const DatiProgetto& dati) {
    Elenco elenco;
    elenco.numero(dati.nFasi);
    for (int i = 1; i <= dati.nFasi; ++i)
        elenco.numero(dati.profFase[i])
            .numero(dati.tirantiFase[i])
            .kN(dati.sovraccFase[i])
            .numero(dati.faldaFase[i]);
    return elenco.testi();
}

std::vector<std::string> testiParatia(const DatiProgetto& dati) {
    return Elenco()
        .numero(dati.vincoloTesta)
        .numero(dati.vincoloPiede)
        .numero(dati.modoSpinte)
        .numero(dati.modoKs)
        .numero(dati.modoTensioni)
        .numero(dati.metodoSpinte)
        .numero(dati.metodoKs)
        .numero(dati.lunghezzaParatia)
        .kN(dati.rigidezzaEJ)
        .numero(dati.coeffM)
        .kN(dati.pressioneOrizz)
        .kN(dati.sovraccMonte)
        .kN(dati.momentoTesta)
        .kN(dati.forzaTesta)
        .kN(dati.sforzoNormale)
        .numero(dati.inclinazioneMonte)
        .numero(dati.faldaMonte)
        .numero(dati.gammaAcqua)  // in t/m3 for the user too
        .testi();
}

std::vector<std::string> testiTitoli(const DatiProgetto& dati, int faseGrafico) {
    Elenco elenco;
    for (int i = 1; i <= numeroTitoli; ++i) elenco.testo(dati.titoli[i]);
    return elenco.numero(faseGrafico).testi();
}

int faseDaTitoli(const std::vector<std::string>& testi) {
    if (testi.size() <= numeroTitoli) return 0;
    const double scritto = base::leggiNumero(testi[numeroTitoli]).value_or(0);
    return static_cast<int>(std::clamp<double>(scritto, 0, SHRT_MAX));
}

}  // namespace korven::commands
