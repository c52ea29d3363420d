#include "studies/plan/study_fields.hpp"

#include <set>
#include <string>
#include <utility>

#include "base/code_page.hpp"
#include "base/decimal_commas.hpp"
#include "base/number_text.hpp"
#include "project/field_kind.hpp"

namespace korven::studies {

namespace {

DifettoPiano rifiutato(project::Rifiuto rifiuto) {
    return {.motivo = MotivoPiano::campo, .rifiuto = std::move(rifiuto)};
}

}  // namespace

Letto<project::CampoNominato> campoDiStudio(const project::DatiProgetto& dati,
                                            std::string_view nome) {
    auto scritto = project::campoScritto(dati, nome);
    if (auto* rifiuto = std::get_if<project::Rifiuto>(&scritto))
        return rifiutato(std::move(*rifiuto));
    const auto campo = std::get<project::CampoNominato>(scritto);
    if (project::tiene<std::string>(*campo.campo))
        return DifettoPiano{.motivo = MotivoPiano::testo, .testo = std::string(nome)};
    return campo;
}

Letto<double> numeroScritto(std::string_view testo) {
    const std::string interno(base::senzaSpaziEsterni(testo));
    if (base::soloUnNumero(interno))
        if (const auto numero = base::leggiNumero(interno)) return *numero;
    if (const auto punto = base::conIlPunto(interno))
        return DifettoPiano{.motivo = MotivoPiano::virgola, .testo = interno, .atteso = *punto};
    return DifettoPiano{.motivo = MotivoPiano::nonNumero, .testo = interno};
}

Letto<double> valoreDiStudio(const project::CampoNominato& campo, std::string_view testo) {
    auto scritto = project::valoreScritto(campo, testo);
    if (auto* rifiuto = std::get_if<project::Rifiuto>(&scritto))
        return rifiutato(std::move(*rifiuto));
    // A number as typed; the stored one has been through another unit.
    const auto numero = numeroScritto(testo);
    const double valore =
        std::holds_alternative<double>(numero)
            ? std::get<double>(numero)
            : project::mostrato(*campo.campo,
                                std::get<double>(std::get<project::ValoreCampo>(scritto)));
    if (auto difetto = difettoValore(campo, valore)) return *std::move(difetto);
    return valore;
}

std::optional<DifettoPiano> difettoValore(const project::CampoNominato& campo, double mostrato) {
    auto motivo = project::motivoRifiuto(*campo.campo, mostrato);
    if (!motivo &&
        !project::tornaDalFile(*campo.campo, project::conservatoNelFile(*campo.campo, mostrato)))
        motivo = project::MotivoRifiuto::nonConservato;
    if (!motivo) return {};
    return rifiutato({.motivo = *motivo,
                      .nome = project::nomeStabile(*campo.campo, campo.riga),
                      .scritto = base::tutteLeCifre(mostrato),
                      .campo = campo.campo});
}

std::optional<std::string> campoRipetuto(std::span<const project::CampoNominato> campi) {
    std::set<std::string> visti;
    for (const auto& [campo, riga] : campi) {
        const std::string nome = project::nomeStabile(*campo, riga);
        if (!visti.insert(nome).second) return nome;
    }
    return {};
}

}  // namespace korven::studies
