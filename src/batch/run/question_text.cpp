#include <string>
#include <vector>

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

std::string riduzione(const std::optional<DiFase>& F) {
    if (!F) return "-";
    if (F->valore < safety::massimaRiduzione) return safety::testoF(F->valore);
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
    if (criteri.riduzione) tutte.push_back(riduzione(p.riduzione));
    tutte.push_back(numero(p.spostamento, unita::spostamentoFine));
    if (criteri.resistenza)
        for (const auto& uso : {p.flessione, p.taglio})
            tutte.push_back(numero(uso, unita::percento));
    tutte.push_back(inBreve(p));
    return tutte;
}

}  // namespace

std::string testoLunghezza(const RispostaLunghezza& r) {
    TabellaTesto tabella(titoli(r.criteri), true);
    for (const LunghezzaProvata& provata : r.ricerca.provate)
        tabella.riga(celle(provata, r.criteri));
    if (r.ricerca.trovata() == nullptr) return tabella.testo();
    return tabella.testo() + '\n' + studies::risposta(r.ricerca, r.criteri, r.scala) + '\n';
}

std::string testoBloccaggio(const RispostaBloccaggio& r) {
    if (r.bloccaggio.esito != studies::EsitoBloccaggio::trovato) return {};
    std::string testo = studies::risposta(r.bloccaggio, r.tirante, r.forza) + '\n';
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
