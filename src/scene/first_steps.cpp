#include "scene/first_steps.hpp"

#include <algorithm>
#include <string_view>

#include "analysis/input_checks.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"

namespace korven::scene {

namespace {

using base::traduttore;
using project::DatiProgetto;

constexpr std::string_view menu = "&Edizione";

struct Passo {
    project::Membro campo;
    std::string_view voce;  // of the menu
};
constexpr Passo passi[] = {{&DatiProgetto::nStrati, "&Stratigrafia"},
                           {&DatiProgetto::lunghezzaParatia, "&Parametri Diaframma"},
                           {&DatiProgetto::rigidezzaEJ, "&Descrizione Struttura"},
                           {&DatiProgetto::nFasi, "&Fasi di Scavo"}};

bool manca(const DatiProgetto& dati, const project::Membro& campo) {
    if (campo == project::Membro(&DatiProgetto::rigidezzaEJ)) return dati.rigidezzaEJ == 0;
    const auto motivi = analysis::motiviRifiuto(dati);
    return std::any_of(motivi.begin(), motivi.end(),
                       [&](const auto& motivo) { return motivo.campo == campo; });
}

std::string comeSiLegge(std::string_view voce) {
    std::string testo = traduttore(voce);
    std::erase(testo, '&');
    return testo;
}

}  // namespace

bool nonCominciato(const DatiProgetto& dati) {
    return manca(dati, &DatiProgetto::nStrati) && manca(dati, &DatiProgetto::lunghezzaParatia) &&
           manca(dati, &DatiProgetto::nFasi);
}

std::string primiPassi(const live::PareteViva& parete) {
    std::string mancanti;
    for (const Passo& passo : passi)
        if (manca(parete.dati, passo.campo))
            mancanti += (mancanti.empty() ? "" : ", ") + comeSiLegge(passo.voce);
    if (mancanti.empty()) return {};
    const std::string frase = nonCominciato(parete.dati)
                                  ? traduttore("per cominciare, nel menu %1: %2")
                                  : traduttore("ancora da compilare nel menu %1: %2");
    return base::riempito(frase, {comeSiLegge(menu), mancanti});
}

}  // namespace korven::scene
