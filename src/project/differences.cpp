#include "project/differences.hpp"

#include <algorithm>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/anchor_names.hpp"
#include "project/code_words.hpp"
#include "project/field_table.hpp"
#include "project/units_per_metre.hpp"

namespace korven::project {

namespace {

using base::traduttore;

// A value twice: as the file holds it, and as people see it.
struct Valore {
    std::string scritto, mostrato;
};

Valore valore(const DatiProgetto& dati, const Campo& campo, int riga) {
    Valore letto;
    if (riga > righe(dati, campo.parte) && colonna(campo)) return letto;
    conValore(dati, campo, riga, [&](const auto& v) {
        using Tipo = std::remove_cvref_t<decltype(v)>;
        if constexpr (std::is_same_v<Tipo, std::string>) {
            letto = {v, v};
        } else if constexpr (std::is_same_v<Tipo, bool>) {
            const std::string detto = traduttore(v ? "sì" : "no");
            letto = {detto, detto};
        } else {
            const auto numero = static_cast<double>(v);
            const Codice* codice = project::codice(campo, numero);
            letto = {base::formattaNumero(numero),
                     codice != nullptr ? voceTradotta(campo, *codice)
                                       : base::testoNumero(mostrato(campo, numero))};
        }
    });
    return letto;
}

bool bandiera(const Campo& campo) { return std::holds_alternative<bool Sezione::*>(campo.membro); }

// Of a strut in place of an anchor.
constexpr std::pair<Membro, std::string_view> deiPuntoni[] = {
    {&DatiProgetto::profTirante, "profondità del puntone"},
    {&DatiProgetto::rigTirante, "rigidezza del puntone"},
    {&DatiProgetto::pretTirante, "pretensione del puntone"},
};

bool puntoneDove(const DatiProgetto& dati, bool ceLaRiga, int riga) {
    return !ceLaRiga || puntone(dati, riga);
}

std::string_view cosa(const CampoDiverso& diverso, const DatiProgetto& prima,
                      const DatiProgetto& dopo) {
    const Campo& campo = *diverso.campo;
    // Of a flag the file's own name says how it is written there.
    if (bandiera(campo)) return campo.didascalia;
    for (const auto& [membro, nome] : deiPuntoni)
        if (membro == campo.membro && puntoneDove(prima, diverso.prima, diverso.riga) &&
            puntoneDove(dopo, diverso.dopo, diverso.riga))
            return nome;
    return campo.cosa;
}

}  // namespace

std::vector<CampoDiverso> campiDiversi(const DatiProgetto& prima, const DatiProgetto& dopo) {
    std::vector<CampoDiverso> diversi;
    for (const Campo& campo : campi()) {
        const int unaHa = righe(prima, campo.parte), altraHa = righe(dopo, campo.parte);
        const bool inColonna = colonna(campo);
        for (int i = 1; i <= (inColonna ? std::max(unaHa, altraHa) : 1); ++i)
            if (valore(prima, campo, i).scritto != valore(dopo, campo, i).scritto)
                diversi.push_back(
                    {&campo, i, !inColonna || i <= unaHa, !inColonna || i <= altraHa});
    }
    return diversi;
}

Differenza inParole(const CampoDiverso& diverso, const DatiProgetto& prima,
                    const DatiProgetto& dopo, const std::string& nome) {
    const Campo& campo = *diverso.campo;
    std::string detto = traduttore(cosa(diverso, prima, dopo));
    if (colonna(campo)) detto += ' ' + std::to_string(diverso.riga);
    if (!nome.empty()) detto += " (" + nome + ')';
    if (const std::string_view unita = unitaScritta(campo); !unita.empty())
        detto.append(" [").append(unita).append("]");
    return {std::move(detto), valore(prima, campo, diverso.riga).mostrato,
            valore(dopo, campo, diverso.riga).mostrato};
}

std::vector<Differenza> differenze(const DatiProgetto& prima, const DatiProgetto& dopo) {
    std::vector<Differenza> trovate;
    for (const CampoDiverso& campo : campiDiversi(prima, dopo))
        trovate.push_back(inParole(campo, prima, dopo));
    return trovate;
}

}  // namespace korven::project
