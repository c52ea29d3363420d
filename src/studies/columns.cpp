#include "studies/columns.hpp"

#include <algorithm>
#include <cmath>

#include "base/filled_text.hpp"
#include "base/similar_name.hpp"
#include "base/translated_texts.hpp"
#include "project/program_numbers.hpp"

namespace korven::studies {

namespace {

using equilibrium::Estremo;
using project::kN;
using R = RisultatoVariante;

constexpr int tutti = -1;  // a column for each anchor

struct Riga {
    const char* nome;
    double (*valore)(const R&, int);
    const std::vector<std::string_view>& (*parole)() = nullptr;
    bool riduzione = false, lunghezza = false;
    int tirante = 0;
};

// Of a curve that is 0 all along the largest value is nowhere.
double dove(const R& r, const Estremo& e) {
    return r.sta() && e.fase > 0 ? project::arrotondato(e.z) : vuoto;
}
double fase(const R& r, const Estremo& e) { return r.sta() && e.fase > 0 ? e.fase : vuoto; }
double intero(int numero) { return numero > 0 ? numero : vuoto; }

// The design value over the resistance, as the tables of checks have it.
double uso(const R& r, double progetto, double resistenza) {
    return r.sta() && resistenza != 0 ? project::arrotondato(progetto / resistenza) : vuoto;
}
double usoTaglio(const R& r, double structure::ConfrontoTaglio::*resistenza) {
    return r.taglio ? uso(r, r.taglio->Vsd, (*r.taglio).*resistenza) : vuoto;
}

double esito(const R& r) {
    return r.lunghezzaMinima ? static_cast<double>(r.lunghezzaMinima->esito) : vuoto;
}

const std::vector<std::string_view>& paroleLunghezza() {
    static const std::vector<std::string_view> parole = {"trovata", "sempre", "mai", "vincolata"};
    return parole;
}

const Riga tabella[] = {
    {"causa", [](const R& r, int) { return static_cast<double>(r.causa); }, paroleCausa},
    {"motivo",
     [](const R& r, int) {
         return r.motivo == Motivo::nessuno ? vuoto : static_cast<double>(r.motivo);
     },
     paroleMotivo},
    {"fase_caduta", [](const R& r, int) { return intero(r.faseCaduta); }},

    {"spostamento_massimo_m",
     [](const R& r, int) { return r.sta() ? std::fabs(r.estremi.spostamento.valore) : vuoto; }},
    {"z_spostamento_m", [](const R& r, int) { return dove(r, r.estremi.spostamento); }},
    {"fase_spostamento", [](const R& r, int) { return fase(r, r.estremi.spostamento); }},
    {"momento_massimo_kNm",
     [](const R& r, int) { return r.sta() ? kN(r.estremi.momentoMassimo.valore) : vuoto; }},
    {"z_momento_massimo_m", [](const R& r, int) { return dove(r, r.estremi.momentoMassimo); }},
    {"fase_momento_massimo", [](const R& r, int) { return fase(r, r.estremi.momentoMassimo); }},
    {"momento_minimo_kNm",
     [](const R& r, int) { return r.sta() ? kN(r.estremi.momentoMinimo.valore) : vuoto; }},
    {"z_momento_minimo_m", [](const R& r, int) { return dove(r, r.estremi.momentoMinimo); }},
    {"fase_momento_minimo", [](const R& r, int) { return fase(r, r.estremi.momentoMinimo); }},
    {"taglio_massimo_kN",
     [](const R& r, int) { return r.sta() ? kN(std::fabs(r.estremi.taglio.valore)) : vuoto; }},
    {"z_taglio_m", [](const R& r, int) { return dove(r, r.estremi.taglio); }},
    {"fase_taglio", [](const R& r, int) { return fase(r, r.estremi.taglio); }},

    {"tiro_%_kN",
     [](const R& r, int tirante) {
         const auto j = static_cast<std::size_t>(tirante) - 1;
         return r.sta() && j < r.tiri.size() ? kN(r.tiri[j]) : vuoto;
     },
     nullptr, false, false, tutti},

    {"momento_resistente_positivo_kNm",
     [](const R& r, int) { return r.flessione ? kN(r.flessione->mrPos) : vuoto; }},
    {"momento_resistente_negativo_kNm",
     [](const R& r, int) { return r.flessione ? kN(r.flessione->mrNeg) : vuoto; }},
    {"uso_momento_positivo",
     [](const R& r, int) {
         return r.flessione ? uso(r, r.flessione->mdMax, r.flessione->mrPos) : vuoto;
     }},
    {"uso_momento_negativo",
     [](const R& r, int) {
         return r.flessione && r.flessione->negativo
                    ? uso(r, r.flessione->mdMin, r.flessione->mrNeg)
                    : vuoto;
     }},
    {"Vrd2_kN",
     [](const R& r, int) { return r.taglio ? project::arrotondato(r.taglio->Vrd2) : vuoto; }},
    {"Vrd3_kN",
     [](const R& r, int) { return r.taglio ? project::arrotondato(r.taglio->Vrd3) : vuoto; }},
    {"uso_bielle", [](const R& r, int) { return usoTaglio(r, &structure::ConfrontoTaglio::Vrd2); }},
    {"uso_armatura_taglio",
     [](const R& r, int) { return usoTaglio(r, &structure::ConfrontoTaglio::Vrd3); }},

    {"passiva_usata",
     [](const R& r, int) {
         return r.sta() && r.passiva ? project::arrotondato(*r.passiva) : vuoto;
     }},
    {"fase_passiva", [](const R& r, int) { return r.sta() ? intero(r.fasePassiva) : vuoto; }},

    {"riduzione",
     [](const R& r, int) {
         return r.riduzione && r.riduzione->F ? project::arrotondato(*r.riduzione->F) : vuoto;
     },
     nullptr, true},
    {"riduzione_oltre_10",
     [](const R& r, int) { return r.riduzione ? static_cast<double>(r.riduzione->oltre) : vuoto; },
     nullptr, true},
    {"fase_riduzione",
     [](const R& r, int) { return r.riduzione ? intero(r.riduzione->fase) : vuoto; }, nullptr,
     true},
    {"lunghezza_minima_m",
     [](const R& r, int) {
         return r.lunghezzaMinima && r.lunghezzaMinima->lunghezza
                    ? project::arrotondato(*r.lunghezzaMinima->lunghezza)
                    : vuoto;
     },
     nullptr, false, true},
    {"lunghezza_minima_esito", [](const R& r, int) { return esito(r); }, paroleLunghezza, false,
     true},
};

bool comincia(const Riga& riga, std::string_view inizio) {
    return std::string_view(riga.nome).starts_with(inizio);
}

// The names say it.
Specie specie(const Riga& riga) {
    if (riga.parole != nullptr) return Specie::parola;
    if (comincia(riga, "z_") || comincia(riga, "fase_") || comincia(riga, "riduzione_oltre"))
        return Specie::dove;
    return comincia(riga, "uso_") || comincia(riga, "passiva_") ? Specie::uso : Specie::numero;
}

Colonna colonna(const Riga& riga, int tirante) {
    std::string nome = riga.nome;
    if (tirante > 0) nome.replace(nome.find('%'), 1, std::to_string(tirante));
    return {nome,          riga.parole != nullptr ? &riga.parole() : nullptr,
            riga.valore,   specie(riga),
            tirante,       riga.riduzione,
            riga.lunghezza};
}

}  // namespace

std::vector<Colonna> colonne(int tiranti, bool sicurezza) {
    std::vector<Colonna> tutte;
    for (const Riga& riga : tabella) {
        if (!sicurezza && (riga.riduzione || riga.lunghezza)) continue;
        if (riga.tirante == 0) tutte.push_back(colonna(riga, 0));
        for (int j = 1; riga.tirante == tutti && j <= tiranti; ++j)
            tutte.push_back(colonna(riga, j));
    }
    return tutte;
}

Scelta scegliColonne(const std::vector<std::string>& nomi, int tiranti, bool sicurezza,
                     std::span<const std::string> oltre) {
    Scelta scelta;
    std::vector<Colonna> tutte = colonne(tiranti, true);
    const auto tra = [](std::span<const std::string> quali, const Colonna& colonna) {
        return std::ranges::find(quali, colonna.nome) != quali.end();
    };
    for (const std::string& nome : nomi)
        if (std::ranges::find(tutte, nome, &Colonna::nome) == tutte.end()) return {{}, nome};
    for (Colonna& colonna : tutte) {
        const bool margine = colonna.riduzione || colonna.lunghezza;
        const bool chiesta = margine ? sicurezza : nomi.empty() || colonna.nome == colonnaCausa;
        if (chiesta || tra(nomi, colonna) || tra(oltre, colonna))
            scelta.colonne.push_back(std::move(colonna));
    }
    return scelta;
}

std::vector<Colonna> conQuelleContate(std::vector<Colonna> scelte, int tiranti) {
    std::vector<Colonna> insieme;
    auto prossima = scelte.begin();  // they are in the order of the table
    for (Colonna& colonna : colonne(tiranti, true)) {
        if (prossima != scelte.end() && prossima->nome == colonna.nome) {
            insieme.push_back(std::move(*prossima++));
        } else if (colonna.specie == Specie::uso || colonna.nome == colonnaCaduta) {
            colonna.scritta = false;
            insieme.push_back(std::move(colonna));
        }
    }
    return insieme;
}

std::string nessunaColonna(std::string_view nome, int tiranti) {
    std::vector<std::string> nomi;
    for (const Colonna& colonna : colonne(tiranti, true)) nomi.push_back(colonna.nome);
    if (const auto vicino = base::nomeVicino(nome, nomi))
        return base::riempito(base::traduttore("nessun risultato si chiama così; forse %1?"),
                              {*vicino});
    std::string elenco;
    for (const std::string& uno : nomi) elenco.append(elenco.empty() ? "" : ", ").append(uno);
    return base::riempito(base::traduttore("nessun risultato si chiama così: ci sono %1"),
                          {elenco});
}

bool disegnabile(const Colonna& colonna) {
    return colonna.specie == Specie::numero || colonna.specie == Specie::uso;
}

int tirantiPossibili(const project::DatiProgetto& dati,
                     std::span<const project::CampoNominato> campi) {
    for (const auto& [campo, riga] : campi)
        if (campo->membro == project::Membro(&project::DatiProgetto::nTiranti))
            return project::massimoTiranti;
    return dati.nTiranti;
}

}  // namespace korven::studies
