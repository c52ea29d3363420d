#include "studies/summary/failure_rule.hpp"

#include <algorithm>

#include "base/code_page.hpp"
#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/similar_name.hpp"
#include "base/translated_texts.hpp"
#include "studies/plan/study_fields.hpp"

namespace korven::studies {

namespace {

using Motivo = DifettoCondizione::Motivo;

struct Segno {
    std::string_view testo;
    Confronto confronto;
};

// The longer ones first.
constexpr Segno segni[] = {{"<=", Confronto::minoreUguale},
                           {">=", Confronto::maggioreUguale},
                           {"<", Confronto::minore},
                           {">", Confronto::maggiore}};

constexpr std::string_view iniziali = "<>";

DifettoCondizione difettoLimite(const DifettoPiano& difetto, std::size_t carattere) {
    const bool virgola = difetto.motivo == MotivoPiano::virgola;
    return {virgola ? Motivo::virgola : Motivo::nonNumero, difetto.testo, difetto.atteso,
            carattere};
}

}  // namespace

std::string_view segno(Confronto confronto) {
    return std::ranges::find(segni, confronto, &Segno::confronto)->testo;
}

bool Condizione::vale(std::span<const double> riga) const {
    const double x = riga[posto];
    switch (confronto) {
        case Confronto::minore:
            return x < limite;
        case Confronto::minoreUguale:
            return x <= limite;
        case Confronto::maggiore:
            return x > limite;
        case Confronto::maggioreUguale:
            break;
    }
    return x >= limite;
}

std::string risultatoDi(std::string_view testo) {
    const auto dove = testo.find_first_of(iniziali);
    if (dove == std::string_view::npos) return {};
    return std::string(base::senzaSpaziEsterni(testo.substr(0, dove)));
}

std::variant<Condizione, DifettoCondizione> leggiCondizione(std::string_view testo,
                                                            std::span<const std::string> nomi) {
    const std::string nome = risultatoDi(testo);
    if (nome.empty()) return DifettoCondizione{Motivo::forma, std::string(testo)};
    const auto trovato = std::ranges::find(nomi, nome);
    if (trovato == nomi.end())
        return DifettoCondizione{Motivo::sconosciuto, nome,
                                 base::nomeVicino(nome, nomi).value_or(std::string())};

    const std::string_view dopo = testo.substr(testo.find_first_of(iniziali));
    const auto* segno =
        std::ranges::find_if(segni, [dopo](const Segno& s) { return dopo.starts_with(s.testo); });
    const std::string_view limite = dopo.substr(segno->testo.size());
    const auto numero = numeroScritto(limite);
    if (const auto* difetto = std::get_if<DifettoPiano>(&numero))
        return difettoLimite(*difetto, testo.size() - limite.size() + 1);
    return Condizione{static_cast<std::size_t>(trovato - nomi.begin()), segno->confronto,
                      std::get<double>(numero)};
}

std::string parole(const DifettoCondizione& difetto) {
    const auto frase = [](std::string_view chiave, std::string valore) {
        return base::riempito(base::traduttore(chiave), {std::move(valore)});
    };
    const auto dove = frase("carattere %1", std::to_string(difetto.carattere));
    const auto male = base::conDuePunti(difetto.testo, [&] {
        switch (difetto.motivo) {
            case Motivo::forma:
                return frase("atteso come in %1", "spostamento_massimo_m>0.03");
            case Motivo::sconosciuto:
                return difetto.atteso.empty()
                           ? frase("nessun risultato si chiama così", {})
                           : frase("nessun risultato si chiama così; forse %1?", difetto.atteso);
            case Motivo::virgola:
                return frase("il segno decimale è il punto: %1", difetto.atteso);
            case Motivo::parola:
                return frase("è una parola, non un numero", {});
            case Motivo::nonNumero:
                break;
        }
        return frase("non è un numero", {});
    }());
    return base::conDuePunti(dove, male);
}

}  // namespace korven::studies
