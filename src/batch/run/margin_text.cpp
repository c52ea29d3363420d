#include "base/translated_texts.hpp"
#include "batch/run/margin_outcome.hpp"
#include "batch/run/text_table.hpp"
#include "project/anchor_names.hpp"
#include "project/shown_number.hpp"
#include "project/units.hpp"
#include "safety/margin_words.hpp"
#include "safety/mesh_words.hpp"

namespace korven::batch {

namespace {

using base::traduttore;
using project::numeroMostrato;
using project::Unita;
using safety::Margine;
using safety::MargineFase;
namespace unita = project::unita;

constexpr const char* nessuno = "-";

std::string titolo(std::string_view cosa, const Unita& u) { return traduttore(etichetta(cosa, u)); }

std::string tabellaFasi(const Margine& margine) {
    TabellaTesto tabella(
        {traduttore("Fase"), titolo("Scavo", unita::metri), "F", traduttore("Passiva [%]"),
         traduttore("Al limite [m]"), traduttore("Moto con F")},
        true);
    for (const MargineFase& fase : margine.fasi)
        tabella.riga({std::to_string(fase.fase), numeroMostrato(fase.scavo, 2),
                      testoRiduzione(fase.riduzione), safety::testoQuota(fase.passiva.quota),
                      safety::testoTratti(fase.passiva.alLimite), parole(fase, margine.paratia)});
    return tabella.testo();
}

// A moment or a shear of one stage as a row.
void riga(int fase, std::string_view cosa, const Unita& u, const safety::Confronto& c,
          TabellaTesto& tabella) {
    tabella.riga(
        {std::to_string(fase), titolo(cosa, u), numeroMostrato(c.statica.valore, 2, u),
         c.statica.fase > 0 ? numeroMostrato(c.statica.z, 2) : nessuno,
         c.relazione ? project::numeroRelazione(mostrato(u, c.relazione->valore)) : nessuno,
         c.relazione ? numeroMostrato(c.relazione->z, 2) : nessuno});
}

void riga(int fase, const project::DatiProgetto& dati, const safety::ConfrontoTiro& tiro,
          TabellaTesto& tabella) {
    tabella.riga(
        {std::to_string(fase),
         project::nomeTirante(dati, tiro.tirante) + " " + traParentesi(unita::forzaAlMetro),
         numeroMostrato(tiro.statica, 2, unita::forzaAlMetro), nessuno,
         tiro.relazione
             ? project::numeroRelazione(mostrato(unita::forzaAlMetro, tiro.relazione->valore))
             : nessuno,
         nessuno});
}

std::string tabellaStatica(const Margine& margine, const project::DatiProgetto& dati) {
    const std::string z = "z " + traParentesi(unita::metri);
    TabellaTesto tabella({traduttore("Fase"), traduttore("Massimi"), traduttore("Equilibrio"), z,
                          traduttore("Relazione"), z});
    for (const MargineFase& fase : margine.fasi) {
        if (!fase.inEquilibrio()) continue;
        riga(fase.fase, "Momento", unita::momentoAlMetro, fase.confronto.momento, tabella);
        riga(fase.fase, "Taglio", unita::forzaAlMetro, fase.confronto.taglio, tabella);
        for (const safety::ConfrontoTiro& tiro : fase.confronto.tiri)
            riga(fase.fase, dati, tiro, tabella);
    }
    return tabella.testo();
}

}  // namespace

std::string testoMargine(const Margine& margine, const project::DatiProgetto& dati) {
    std::string testo = tabellaFasi(margine);
    for (const std::string& riga :
         {paroleDecisiva(margine), paroleLunghezza(margine), paroleMaglia(margine)})
        if (!riga.empty()) testo += riga + '\n';
    if (const std::string usi = paroleUsiMaglia(margine); !usi.empty()) testo += usi + '\n';
    for (const safety::AvvisoMaglia& avviso : avvisiMaglia(margine)) testo += avviso.testo + '\n';
    if (margine.haNumeri()) testo += tabellaStatica(margine, dati);
    for (const std::string& riga : {paroleRelazione(margine), paroleMetodo(margine)})
        if (!riga.empty()) testo += riga + '\n';
    return testo;
}

}  // namespace korven::batch
