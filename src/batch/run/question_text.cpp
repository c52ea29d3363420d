#include <algorithm>
#include <string>
#include <vector>

#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "batch/run/question_outcome.hpp"
#include "batch/run/text_table.hpp"
#include "project/shown_number.hpp"
#include "project/units.hpp"
#include "safety/margin_words.hpp"
#include "safety/strength_reduction.hpp"
#include "safety/words.hpp"
#include "studies/questions/question_words.hpp"

namespace korven::batch {

namespace {

using base::traduttore;
using studies::Criteri;
using studies::DiFase;
using studies::LunghezzaProvata;
namespace unita = project::unita;

std::string numero(const std::optional<DiFase>& valore, const project::Unita& u) {
    return valore ? project::numeroMostrato(valore->valore, 1, u) : "-";
}

std::string riduzione(const std::optional<DiFase>& F, std::optional<double> chiesta) {
    if (!F) return "-";
    if (F->valore < safety::massimaRiduzione) return safety::testoF(F->valore, chiesta);
    return "> " + project::numeroMostrato(safety::massimaRiduzione, 0);
}

std::vector<std::string> titoli(const Criteri& criteri) {
    std::vector<std::string> tutti{traduttore("Lunghezza") + ' ' + traParentesi(unita::metri)};
    if (criteri.riduzione) tutti.emplace_back("F");
    tutti.push_back(traduttore("Spostamento max. [mm]"));
    if (criteri.resistenza)
        for (const char* verifica : {"Flessione", "Taglio"})
            tutti.push_back(traduttore(verifica) + ' ' + traParentesi(unita::percento));
    tutti.push_back(traduttore("Esito"));
    return tutti;
}

std::vector<std::string> celle(const LunghezzaProvata& p, const Criteri& criteri) {
    std::vector<std::string> tutte{safety::metriAllineati(p.lunghezza)};
    if (criteri.riduzione) tutte.push_back(riduzione(p.riduzione, criteri.riduzione));
    tutte.push_back(numero(p.spostamento, unita::spostamentoFine));
    if (criteri.resistenza)
        for (const auto& uso : {p.flessione, p.taglio})
            tutte.push_back(numero(uso, unita::percento));
    tutte.push_back(inBreve(p));
    return tutte;
}

// Of those that fall before the first that stands all but the last, which is a row: how many.
std::size_t tropCorte(const std::vector<LunghezzaProvata>& provate) {
    const auto prima = std::ranges::find_if(
        provate, [](const LunghezzaProvata& p) { return p.spostamento.has_value(); });
    const auto cadono = static_cast<std::size_t>(prima - provate.begin());
    return cadono > 2 ? cadono - 1 : 0;  // a line for one is no shorter than its row
}

struct Tratto {
    std::size_t da, a;  // without `a`
};

// What a line is enough for: between the ends of a long run of lengths that miss the criteria.
std::vector<Tratto> tralasciate(const std::vector<LunghezzaProvata>& provate, std::size_t da) {
    constexpr std::size_t capi = 8;
    std::vector<Tratto> tratti;
    while (da < provate.size()) {
        std::size_t fine = da;
        while (fine < provate.size() && !provate[fine].basta()) ++fine;
        if (fine - da > 2 * capi + 1) tratti.push_back({da + capi, fine - capi});
        for (da = fine; da < provate.size() && provate[da].basta();) ++da;
    }
    return tratti;
}

std::string tabellaLunghezze(const RispostaLunghezza& r, std::size_t da) {
    const auto& provate = r.ricerca.provate;
    const std::vector<Tratto> tratti = tralasciate(provate, da);
    TabellaTesto tabella(titoli(r.criteri), true);
    for (std::size_t i = da; i < provate.size(); ++i)
        if (std::ranges::none_of(tratti, [i](const Tratto& t) { return t.da <= i && i < t.a; }))
            tabella.riga(celle(provate[i], r.criteri));
    std::string testo = tabella.testo();
    for (const Tratto& t : tratti)
        testo += base::riempito(
                     traduttore("Anche le %1 lunghezze da %2 m a %3 m non soddisfano i criteri; "
                                "--json le ha tutte."),
                     {std::to_string(t.a - t.da), safety::metri(provate[t.da].lunghezza),
                      safety::metri(provate[t.a - 1].lunghezza)}) +
                 '\n';
    return testo;
}

}  // namespace

std::string risposta(const RispostaLunghezza& r) {
    if (r.ricerca.trovata() == nullptr) return {};
    return studies::risposta(r.ricerca, r.criteri, r.scala) + '\n';
}

std::string risposta(const RispostaBloccaggio& r) {
    if (r.bloccaggio.esito != studies::EsitoBloccaggio::trovato) return {};
    return studies::risposta(r.bloccaggio, r.tirante, r.forza) + '\n';
}

std::string testoLunghezza(const RispostaLunghezza& r) {
    const auto& provate = r.ricerca.provate;
    if (provate.empty()) return {};
    const std::size_t corte = tropCorte(provate);
    std::string testo;
    if (corte > 0)
        testo = base::riempito(
                    traduttore("%1 lunghezze da %2 m a %3 m: nessun equilibrio in qualche fase."),
                    {std::to_string(corte), safety::metri(provate.front().lunghezza),
                     safety::metri(provate[corte - 1].lunghezza)}) +
                "\n\n";
    testo += tabellaLunghezze(r, corte);
    const std::string detta = risposta(r);
    return detta.empty() ? testo : testo + '\n' + detta;
}

std::string testoBloccaggio(const RispostaBloccaggio& r) {
    std::string testo = risposta(r);
    if (testo.empty()) return {};
    TabellaTesto tabella(
        {traduttore("Fase"), traduttore("Forza") + ' ' + traParentesi(unita::forzaAlMetro)});
    int fase = r.bloccaggio.fase;
    for (const double forza : r.bloccaggio.forze)
        tabella.riga(
            {std::to_string(fase++), project::numeroMostrato(forza, 2, unita::forzaAlMetro)});
    testo += '\n' + tabella.testo();
    if (!r.bloccaggio.perche.empty()) testo += '\n' + r.bloccaggio.perche + '\n';
    return testo;
}

}  // namespace korven::batch
