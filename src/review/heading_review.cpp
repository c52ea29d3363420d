#include "review/heading_review.hpp"

#include <algorithm>

#include "base/code_page.hpp"
#include "base/colon.hpp"
#include "base/translated_texts.hpp"
#include "drawings/log/depth_scale.hpp"
#include "drawings/log/table.hpp"
#include "masks/field_check.hpp"
#include "plot/sheet.hpp"
#include "plot/text_width.hpp"
#include "review/remark_list.hpp"

namespace korven::review {

namespace {

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

std::vector<Stranezza> stranezzeTitolo(std::size_t riga, const std::vector<std::string>& righe) {
    std::vector<Stranezza> trovate;
    if (riga < 1 || riga > std::min(righe.size(), titoli) || vuota(righe[riga - 1])) return trovate;
    const std::string& scritto = righe[riga - 1];
    const auto trovata = [&](Voce voce) { return Stranezza{voce, testo(voce)}; };
    if (base::senzaSpaziEsterni(scritto).starts_with('#'))
        trovate.push_back(trovata("titolo-comando"));
    if (const auto ci = caratteriNelFoglio(riga, scritto); ci < base::numeroCaratteri(scritto))
        trovate.push_back({"titolo-largo",
                           conValoreTraParentesi(testo("titolo-largo"), static_cast<double>(ci))});
    if (siSovrappongono(riga - 1, righe) || siSovrappongono(riga, righe))
        trovate.push_back(trovata("titoli-sovrapposti"));
    return trovate;
}

std::string notaTitolo(std::size_t campo, const std::vector<std::string>& righe) {
    std::string nota;
    for (const auto& stranezza : stranezzeTitolo(campo + 1, righe))
        nota += (nota.empty() ? std::string() : base::puntoEVirgola()) + stranezza.testo;
    return nota;
}

void controlloTitoli(const project::DatiProgetto& dati, ElencoOsservazioni& elenco) {
    std::vector<std::string> righe;
    std::vector<int> sovrapposti;
    for (int i = 1; i <= static_cast<int>(titoli); ++i) righe.push_back(dati.titoli[i]);
    for (int i = 1; i <= static_cast<int>(titoli); ++i) {
        const Soggetto titolo = review::riga(&project::DatiProgetto::titoli, i);
        for (const auto& stranezza : stranezzeTitolo(static_cast<std::size_t>(i), righe)) {
            if (stranezza.voce->codice == Voce("titoli-sovrapposti")->codice)
                sovrapposti.push_back(i);
            else
                elenco.conParole(stranezza.voce, titolo, stranezza.testo);
        }
    }
    // Most projects fill all lines: told once, not of each.
    if (!sovrapposti.empty())
        elenco.conParole(
            "titoli-sovrapposti", review::righe(&project::DatiProgetto::titoli, sovrapposti),
            base::traduttore("nella stratigrafia si sovrappongono: lasciare una riga vuota tra due "
                             "titoli"));
}

}  // namespace korven::review
