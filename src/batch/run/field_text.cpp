#include "batch/run/field_text.hpp"

#include <optional>
#include <string_view>
#include <vector>

#include "base/code_page.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "batch/run/csv.hpp"
#include "batch/run/text_table.hpp"
#include "project/code_words.hpp"
#include "project/differences.hpp"
#include "project/typed_field.hpp"
#include "project/units_per_metre.hpp"
#include "studies/field_words.hpp"

namespace korven::batch {

namespace {

using base::traduttore;
using project::CampoNominato;

std::string ammesso(const project::Campo& campo) {
    if (!campo.codici.empty()) return studies::codiciAmmessi(campo);
    const auto limiti = project::limitiScritti(campo);
    if (!limiti) return {};
    return base::testoNumero(limiti->minimo) + " ... " + base::testoNumero(limiti->massimo);
}

// A heading or a description would push the other columns away.
std::string breve(const std::string& testo) {
    constexpr std::size_t massimo = 24;
    if (base::numeroCaratteri(testo) <= massimo) return testo;
    std::size_t fine = 0;
    for (std::size_t n = 3; n < massimo; ++n)
        fine += base::lunghezzaPrimoCarattere(std::string_view(testo).substr(fine));
    return testo.substr(0, fine) + "...";
}

}  // namespace

std::string testoCampi(const project::DatiProgetto& dati) {
    TabellaTesto tabella({traduttore("Campo"), traduttore("Valore"), traduttore("Unità"),
                          traduttore("Descrizione"), traduttore("Valori ammessi")},
                         std::vector{true, false, true, true, true});
    project::perOgniValore(dati, [&](const CampoNominato& c) {
        tabella.riga({nomeStabile(*c.campo, c.riga), breve(testoDaScrivere(dati, c)),
                      std::string(unitaAlMetro(*c.campo).mostrata),
                      descrizioneTradotta(*c.campo, c.riga), ammesso(*c.campo)});
    });
    return tabella.testo();
}

std::string csvCampi(const project::DatiProgetto& dati) {
    constexpr std::string_view nomi[] = {"campo",  "cosa",    "unita", "valore",
                                         "minimo", "massimo", "codici"};
    RigheCsv righe(nomi);
    project::perOgniValore(dati, [&](const CampoNominato& c) {
        const auto limiti = project::limitiScritti(*c.campo);
        const auto numero = [&](double project::Limiti::*quale) {
            return limiti ? std::optional(*limiti.*quale) : std::nullopt;
        };
        righe.campo(nomeStabile(*c.campo, c.riga))
            .campo(descrizioneTradotta(*c.campo, c.riga))
            .campo(unitaAlMetro(*c.campo).mostrata)
            .campo(testoDaScrivere(dati, c))
            .campo(numero(&project::Limiti::minimo))
            .campo(numero(&project::Limiti::massimo))
            .campo(studies::codiciAmmessi(*c.campo))
            .fineRiga();
    });
    return righe.testo();
}

std::string testoDiversi(const project::DatiProgetto& prima, const project::DatiProgetto& dopo) {
    const auto diversi = project::campiDiversi(prima, dopo);
    if (diversi.empty()) return traduttore("Nessuna differenza.") + '\n';
    TabellaTesto tabella(
        {traduttore("Campo"), traduttore("Descrizione"), traduttore("Prima"), traduttore("Dopo")},
        std::vector{true, true, false, false});
    for (const project::CampoDiverso& diverso : diversi) {
        const auto [cosa, era, diventa] = inParole(diverso, prima, dopo);
        tabella.riga({nomeStabile(*diverso.campo, diverso.riga), cosa, era, diventa});
    }
    return tabella.testo();
}

}  // namespace korven::batch
