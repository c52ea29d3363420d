#include <algorithm>
#include <cmath>

#include "base/translated_texts.hpp"
#include "project/codes.hpp"
#include "project/shown_number.hpp"
#include "review/limits.hpp"
#include "review/result_checks.hpp"

namespace korven::review {

namespace {

using base::traduttore;
using project::DatiProgetto;
using project::numeroMostrato;
namespace unita = project::unita;

/// A force and the stage that it is of.
struct TiroFase {
    double valore = 0;
    int fase = 0;  ///< 0: of none
};

/// What becomes of one anchor in all stages that have it.
struct Storia {
    TiroFase massimo, minimo;  ///< the true forces
    TiroFase lento;            ///< slack, with the most that the shear counts for it
    bool neiMassimi = false;   ///< the largest shear counts it too
};

Storia storia(const DatiProgetto& dati, const safety::Margine& margine, std::size_t j) {
    Storia s;
    const bool soloTrazione =
        dati.tipoTirante[static_cast<int>(j) + 1] != project::TipoTirante::trazioneCompressione;
    for (const auto& fase : margine.fasi) {
        if (fase.confronto.tiri.size() <= j) continue;
        const safety::ConfrontoTiro& tiro = fase.confronto.tiri[j];
        const TiroFase vero{tiro.statica, fase.fase};
        if (s.massimo.fase == 0 || vero.valore > s.massimo.valore) s.massimo = vero;
        if (s.minimo.fase == 0 || vero.valore < s.minimo.valore) s.minimo = vero;
        if (!soloTrazione || vero.valore != 0 || !tiro.relazione) continue;
        if (tiro.relazione->valore >= s.lento.valore) continue;
        s.lento = {tiro.relazione->valore, fase.fase};
        s.neiMassimi = tiro.relazione->nelTaglio;
    }
    return s;
}

bool lontani(double relazione, double vero) {
    const double scarto = std::fabs(relazione - vero);
    return scarto > scartoTiroForza ||
           (scarto > scartoTiro * std::fabs(vero) && scarto > tiroTrascurabile);
}

// To two digits: no more is known of a stiffness that only bounds an error.
double arrotondata(double rigidezza) {
    const double passo = std::pow(10, std::floor(std::log10(rigidezza)) - 1);
    return passo * std::round(rigidezza / passo);
}

std::string kilonewton(double tiro) { return numeroMostrato(tiro, 2, unita::forza); }

/// Checks one anchor of those that the report prints.
class ControlloTiro {
 public:
    ControlloTiro(const DatiProgetto& dati, int j, const Storia& storia, double relazione,
                  ElencoOsservazioni& elenco)
        : dati_(dati), j_(j), s_(storia), relazione_(relazione), elenco_(elenco) {}

    void controlla() const {
        const double pretensione = dati_.pretTirante[j_];
        const double attesa = std::max(pretensione, s_.massimo.valore);
        if (std::fabs(relazione_ - attesa) > incertezzaSpostamento * rigidezza())
            diverso();
        else if (lontani(relazione_, attesa))
            impreciso();
        else if (inDueSensi())
            nascosto();
    }

 private:
    [[nodiscard]] double rigidezza() const { return std::fabs(dati_.rigTirante[j_]); }
    [[nodiscard]] bool inDueSensi() const {
        return dati_.tipoTirante[j_] == project::TipoTirante::trazioneCompressione;
    }
    [[nodiscard]] std::string fase(const TiroFase& tiro) const { return std::to_string(tiro.fase); }

    [[nodiscard]] double sgravio() const {
        return std::max(scartoTiroForza, sgravioPuntone * dati_.pretTirante[j_]);
    }

    // The stiffness up to which rounding stays within the limits.
    void impreciso() const {
        const double vero = std::fabs(s_.massimo.valore);
        const double ammesso =
            std::min(scartoTiroForza, std::max(scartoTiro * vero, tiroTrascurabile));
        const bool grave = s_.massimo.valore - relazione_ > scartoTiroGrave * vero;
        elenco_.aggiungi(
            grave ? Voce("tiro-sbagliato") : "tiro-impreciso",
            rigaConValore(dati_, &DatiProgetto::rigTirante, j_),
            {kilonewton(relazione_), kilonewton(s_.massimo.valore), fase(s_.massimo),
             numeroMostrato(arrotondata(ammesso / cifraSpostamento), 0, unita::rigidezza)});
    }

    void diverso() const {
        if (lontani(relazione_, s_.massimo.valore))
            elenco_.aggiungi(
                "tiro-diverso", riga(dati_, &DatiProgetto::profTirante, j_),
                {kilonewton(relazione_), kilonewton(s_.massimo.valore), fase(s_.massimo)});
    }

    void nascosto() const {
        const double opposto = std::max(scartoTiroForza, scartoTiro * std::fabs(s_.massimo.valore));
        if (s_.minimo.valore < -opposto)
            elenco_.aggiungi(
                "tiro-di-segno-opposto", riga(dati_, &DatiProgetto::tipoTirante, j_),
                {fase(s_.minimo), kilonewton(s_.minimo.valore), kilonewton(relazione_)});
        else if (relazione_ - s_.massimo.valore > sgravio())
            elenco_.aggiungi(
                "puntone-scaricato", rigaConValore(dati_, &DatiProgetto::pretTirante, j_),
                {kilonewton(relazione_), kilonewton(s_.massimo.valore), fase(s_.massimo)});
    }

    const DatiProgetto& dati_;
    int j_;
    const Storia& s_;
    double relazione_;
    ElencoOsservazioni& elenco_;
};

void controlloLento(const DatiProgetto& dati, int j, const Storia& s, ElencoOsservazioni& elenco) {
    if (s.lento.valore >= -scartoTiroForza) return;
    elenco.aggiungi(
        "tirante-lento-nel-taglio", riga(dati, &DatiProgetto::tipoTirante, j),
        {std::to_string(s.lento.fase), kilonewton(s.lento.valore),
         traduttore(s.neiMassimi ? "il taglio massimo del diagramma" : "il diagramma del taglio")});
}

}  // namespace

void controlloTiri(const DatiProgetto& dati, const safety::Margine& margine,
                   ElencoOsservazioni& elenco) {
    if (!margine.sta() || !margine.relazione) return;
    const auto& stampati = margine.relazione->tiriMassimi;
    for (int j = 1; j <= dati.nTiranti; ++j) {
        const auto indice = static_cast<std::size_t>(j) - 1;
        const Storia s = storia(dati, margine, indice);
        if (s.massimo.fase > 0 && indice < stampati.size())
            ControlloTiro(dati, j, s, stampati[indice], elenco).controlla();
        controlloLento(dati, j, s, elenco);
    }
}

}  // namespace korven::review
