#include "exchange/layer_checks.hpp"

#include "base/code_page.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "exchange/fault_texts.hpp"
#include "exchange/layer_columns.hpp"
#include "masks/field_check.hpp"
#include "project/project_data.hpp"

namespace korven::exchange {

namespace {

void controllaOrdine(StratiLetti& letti) {
    bool fuoriOrdine = false;
    for (std::size_t i = 1; i < letti.righe.size(); ++i) {
        const double sopra = numero(letti.righe[i - 1][profondita]);
        const double sotto = numero(letti.righe[i][profondita]);
        fuoriOrdine = fuoriOrdine || sotto < sopra;
        if (sotto == sopra)
            letti.avvertenze.push_back(frase(
                "gli strati %1 e %2 finiscono alla stessa profondità: il secondo ha spessore 0",
                {std::to_string(i), std::to_string(i + 1)}));
    }
    if (fuoriOrdine)
        letti.avvertenze.push_back(base::traduttore(
            "gli strati non sono in ordine di profondità: la conferma della tabella li ordina"));
}

}  // namespace

std::string difettoCella(Colonna colonna, std::string_view testo) {
    if (colonna == descrizione) return {};
    if (testo.empty())
        return colonna == profondita ? base::traduttore("manca la profondità dello strato")
                                     : std::string();
    const std::string scritto = "«" + std::string(testo) + "»";
    if (!base::soloUnNumero(testo))
        return frase("%1 non è un numero (%2)", {scritto, nomeColonna(colonna)});
    const auto& limiti = campoColonna(colonna).limiti;
    if (limiti &&
        masks::controllaNumero(testo, limiti->minimo, limiti->massimo) != masks::Vizio::nessuno)
        return frase("%1 non sta tra %2 e %3 (%4)",
                     {scritto, base::testoNumero(limiti->minimo),
                      base::testoNumero(limiti->massimo), nomeColonna(colonna)});
    return {};
}

std::optional<double> soloNumero(std::string_view testo) {
    return base::soloUnNumero(testo) ? base::leggiNumero(testo) : std::nullopt;
}

double numero(std::string_view testo) { return base::leggiNumero(testo).value_or(0); }

std::string testoProfondita(double metri) {
    constexpr int decimali = 6;
    return base::testoNumero(numero(base::testoDecimali(metri, decimali)));
}

void controllaTabella(StratiLetti& letti) {
    const std::size_t quanti = letti.righe.size();
    if (letti.difetti.empty() && quanti == 0)
        letti.difetti.push_back(base::traduttore("il file non contiene strati"));
    if (quanti > project::massimoStrati)
        letti.difetti.push_back(
            frase("gli strati sono %1: un progetto ne tiene al massimo %2",
                  {std::to_string(quanti), std::to_string(project::massimoStrati)}));
    if (letti.riuscita())
        controllaOrdine(letti);
    else
        letti.righe.clear();
}

}  // namespace korven::exchange
