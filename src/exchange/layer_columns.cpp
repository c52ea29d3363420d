#include "exchange/layer_columns.hpp"

#include <cassert>

#include "base/text_table.hpp"
#include "base/translated_texts.hpp"
#include "exchange/fault_texts.hpp"
#include "exchange/known_columns.hpp"
#include "masks/edited_fields.hpp"

namespace korven::exchange {

namespace {

constexpr std::string_view spessore = "Spessore";

std::string inLingua(int lingua, std::string_view chiave) {
    return base::traduci(base::tabellaTesti, lingua, chiave, nullptr, &base::testiAggiunti);
}

}  // namespace

const project::Campo& campoColonna(Colonna colonna) {
    static const auto campi = masks::campiEditati(masks::NumeroMaschera::strati);
    assert(campi.size() == numeroColonne);
    return *campi.at(colonna);
}

std::string nomeColonna(Colonna colonna) {
    return base::traduttore(project::etichetta(campoColonna(colonna)));
}

std::string nomeColonna(Colonna colonna, int lingua) {
    return inLingua(lingua, project::etichetta(campoColonna(colonna)));
}

std::string nomeSpessore(int lingua) { return inLingua(lingua, spessore); }

PostiColonne postiSenzaNomi() {
    PostiColonne posti;
    for (std::size_t i = 0; i < numeroColonne; ++i) posti.cella[i] = i;
    posti.celle = numeroColonne;
    return posti;
}

namespace {

// Takes the place of one column over, with what is wrong with its name.
void mettiColonna(PostiColonne& posti, const RigaLetta& riga, std::size_t cella) {
    const std::string scritto(riga.cella(cella));
    const NomeColonna letto = leggiNomeColonna(scritto);
    const auto dove = [&](const std::string& cosa) { return inRiga(riga.riga, cella + 1, cosa); };
    if (!letto.colonna) {
        if (!scritto.empty())
            posti.avvertenze.push_back(dove(
                frase("la colonna «%1» non è di questa tabella e non viene letta", {scritto})));
        return;
    }
    std::size_t& posto = letto.spessore ? posti.spessore : posti.cella[*letto.colonna];
    if (posto != PostiColonne::nessuno)
        posti.difetti.push_back(dove(frase("la colonna «%1» c'è già", {scritto})));
    if (!letto.unitaGiusta)
        posti.difetti.push_back(dove(frase(
            "l'unità %1 non è quella della tabella: convertire i valori in %2",
            {'[' + letto.unita + ']', project::traParentesi(campoColonna(*letto.colonna).unita)})));
    posto = cella;
    if (letto.colonna == descrizione) posti.descrizioneConCodice = letto.delCampo;
}

// All columns with their units in the order of the editor, in one language: as they are written.
bool comeScritti(const RigaLetta& riga) {
    const auto in = [&riga](int lingua) {
        for (std::size_t c = 0; c < numeroColonne; ++c)
            if (riga.cella(c) != nomeColonna(static_cast<Colonna>(c), lingua)) return false;
        return true;
    };
    for (int lingua = 1; lingua <= base::numeroLingue; ++lingua)
        if (in(lingua)) return true;
    return false;
}

}  // namespace

PostiColonne postiDaNomi(const RigaLetta& riga) {
    PostiColonne posti;
    posti.cella.fill(PostiColonne::nessuno);
    posti.celle = riga.celle.size();
    for (std::size_t i = 0; i < riga.celle.size(); ++i) mettiColonna(posti, riga, i);
    posti.descrizioneConCodice = posti.descrizioneConCodice || comeScritti(riga);
    const bool profondi = posti.cella[profondita] != PostiColonne::nessuno;
    const bool spessi = posti.spessore != PostiColonne::nessuno;
    if (!profondi && !spessi)
        posti.difetti.push_back(
            inRiga(riga.riga, 0,
                   frase("tra i nomi delle colonne manca la profondità (%1) o lo spessore (%2)",
                         {nomeColonna(profondita), base::traduttore(spessore) + " [m]"})));
    if (profondi && spessi)
        posti.avvertenze.push_back(
            base::traduttore("ci sono profondità e spessori: valgono le profondità"));
    return posti;
}

int nomiNoti(const RigaLetta& riga) {
    int noti = 0;
    for (std::size_t i = 0; i < riga.celle.size(); ++i)
        noti += leggiNomeColonna(riga.cella(i)).colonna ? 1 : 0;
    return noti;
}

}  // namespace korven::exchange
