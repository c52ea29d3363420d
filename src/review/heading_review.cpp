#include "review/heading_review.hpp"

#include <algorithm>

#include "base/code_page.hpp"
#include "base/translated_texts.hpp"
#include "drawings/log/depth_scale.hpp"
#include "drawings/log/table.hpp"
#include "masks/field_check.hpp"
#include "plot/sheet.hpp"
#include "plot/text_width.hpp"
#include "review/remark_list.hpp"

namespace korven::review {

namespace {

using base::traduttore;

constexpr std::size_t titoli = project::numeroTitoli;

bool vuota(const std::string& riga) { return base::senzaSpaziEsterni(riga).empty(); }

// Centred texts run off on both sides at once.
bool sta(const plot::PostoTitolo& posto, double larghezzaFoglio, std::string_view testo) {
    return plot::MetricaStimata().larghezza(plot::carattereConsegnato, posto.altezza, testo) <=
           2 * std::min(posto.x, larghezzaFoglio - posto.x);
}

bool staOvunque(int riga, std::string_view testo) {
    return sta(plot::titoloFoglio(riga), plot::larghFoglio, testo) &&
           sta(drawings::titoloStratigrafia(riga), drawings::larghezzaStratigrafia, testo);
}

bool siSovrappongono(std::size_t riga, const std::vector<std::string>& righe) {
    if (riga < 1 || riga >= std::min(righe.size(), titoli)) return false;
    if (vuota(righe[riga - 1]) || vuota(righe[riga])) return false;
    const auto sopra = drawings::titoloStratigrafia(static_cast<int>(riga));
    const auto sotto = drawings::titoloStratigrafia(static_cast<int>(riga) + 1);
    return sopra.y - sotto.y < sotto.altezza;
}

}  // namespace

std::size_t caratteriNelFoglio(std::size_t riga, const std::string& testo) {
    std::size_t caratteri = base::numeroCaratteri(testo);
    while (caratteri > 0 && !staOvunque(static_cast<int>(riga), masks::tagliato(testo, caratteri)))
        --caratteri;
    return caratteri;
}

std::vector<std::string> stranezzeTitolo(std::size_t riga, const std::vector<std::string>& righe) {
    std::vector<std::string> trovate;
    if (riga < 1 || riga > std::min(righe.size(), titoli) || vuota(righe[riga - 1])) return trovate;
    const std::string& testo = righe[riga - 1];
    if (base::senzaSpaziEsterni(testo).starts_with('#'))
        trovate.push_back(
            traduttore("comincia con #: la relazione la prende per un comando, non la stampa e può "
                       "finire lì; farla cominciare con un altro segno"));
    if (const auto ci = caratteriNelFoglio(riga, testo); ci < base::numeroCaratteri(testo))
        trovate.push_back(conValoreTraParentesi(
            traduttore("nei disegni esce dal foglio: numero di caratteri che ci stanno"),
            static_cast<double>(ci)));
    if (siSovrappongono(riga - 1, righe) || siSovrappongono(riga, righe))
        trovate.push_back(
            traduttore("nella stratigrafia si sovrappone alla riga vicina: lasciare una riga vuota "
                       "tra due titoli"));
    return trovate;
}

std::string notaTitolo(std::size_t campo, const std::vector<std::string>& righe) {
    std::string nota;
    for (const auto& stranezza : stranezzeTitolo(campo + 1, righe))
        nota += (nota.empty() ? "" : "; ") + stranezza;
    return nota;
}

void controlloTitoli(const project::DatiProgetto& dati, ElencoRilievi& elenco) {
    std::vector<std::string> righe;
    for (int i = 1; i <= static_cast<int>(titoli); ++i) righe.push_back(dati.titoli[i]);
    for (std::size_t i = 1; i <= titoli; ++i)
        for (const auto& stranezza : stranezzeTitolo(i, righe))
            elenco.avviso(traduttore("titolo") + " " + std::to_string(i) + ": " + stranezza);
}

}  // namespace korven::review
