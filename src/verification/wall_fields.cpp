#include "verification/wall_fields.hpp"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <memory>

#include "analysis/run_arrays.hpp"
#include "base/number_text.hpp"
#include "base/text_lines.hpp"
#include "project/codes.hpp"
#include "project/field_table.hpp"
#include "project/project_file.hpp"

namespace korven::verification {

namespace {

using project::Campo;
using project::DatiProgetto;
using project::Parte;

constexpr double senzaFalda = 100;  // deeper than any wall of a case

double numero(const RigheCaso& righe, std::string_view testo) {
    const auto letto = base::soloUnNumero(testo) ? base::leggiNumero(testo) : std::nullopt;
    if (!letto) righe.rifiuta("un numero, non «%1»", {std::string(testo)});
    return *letto;
}

double conservato(const RigheCaso& righe, const Campo& campo, std::string_view testo) {
    const auto codice = std::find_if(campo.codici.begin(), campo.codici.end(),
                                     [testo](const auto& c) { return c.nome == testo; });
    if (codice != campo.codici.end()) return codice->valore;
    return project::conservato(campo, numero(righe, testo));
}

int* conteggio(DatiProgetto& dati, Parte parte) {
    switch (parte) {
        case Parte::strati:
            return &dati.nStrati;
        case Parte::tiranti:
            return &dati.nTiranti;
        case Parte::fasi:
            return &dati.nFasi;
        default:
            return nullptr;
    }
}

int massimo(Parte parte) {
    if (parte == Parte::strati) return project::massimoStrati;
    return parte == Parte::tiranti ? project::massimoTiranti : project::massimoFasi;
}

void metti(const RigheCaso& righe, const Campo& campo, int riga, std::string_view testo,
           DatiProgetto& dati) {
    if (int* numeroRighe = conteggio(dati, campo.parte)) {
        if (riga < 1 || riga > massimo(campo.parte)) righe.rifiuta("una riga che la tabella ha");
        *numeroRighe = std::max(*numeroRighe, riga);
    }
    const double valore = conservato(righe, campo, testo);
    project::conValore(dati, campo, riga, [&](auto& cella) {
        using Valore = std::remove_cvref_t<decltype(cella)>;
        if constexpr (std::is_same_v<Valore, double>) {
            cella = valore;
        } else if constexpr (std::is_same_v<Valore, bool>) {
            // One kind of section at a time.
            if (valore != 0)
                for (const auto tipo : project::tipiSezione) dati.sezione.*tipo = false;
            cella = valore != 0;
        } else {
            righe.rifiuta("un campo di numeri, non «%1»", {std::string(campo.nome)});
        }
    });
}

// "profStrato": the rows from the first on, as many as there are values.
const Campo* colonnaIntera(std::string_view nome) {
    const auto trovato = project::campoNominato(std::string(nome) + "[1]");
    return trovato ? trovato->campo : nullptr;
}

void prendiBase(const RigheCaso& righe, std::string_view nome, const std::string& basi,
                Parete& parete) {
    const auto file = std::filesystem::path(basi) / (std::string(nome) + ".kvd");
    if (nome.find('/') != std::string_view::npos || !std::filesystem::exists(file))
        righe.rifiuta("un progetto di esempio, non «%1»", {std::string(nome)});
    project::azzera(parete.dati);
    auto lettore = base::LettoreRighe::apri(file.string());
    project::leggiDati(lettore, parete.dati);
}

void prendiSegmenti(const RigheCaso& righe, std::string_view testo, Parete& parete) {
    constexpr int moltissimi = 10000;  // of the equilibrium solution, which knows no bound
    const double letto = numero(righe, testo);
    if (letto != std::floor(letto) || letto < analysis::minimoSegmenti || letto > moltissimi)
        righe.rifiuta("un numero intero di segmenti, da 3 in su");
    parete.segmenti = static_cast<int>(letto);
}

}  // namespace

Parete pareteVuota() {
    Parete parete;
    DatiProgetto& d = parete.dati;
    project::azzera(d);
    d.vincoloTesta = valore(project::VincoloTesta::libera);
    d.vincoloPiede = valore(project::VincoloPiede::libero);
    d.modoSpinte = valore(project::ModoSpinte::ricalcolate);
    d.modoKs = valore(project::ModoKs::ricalcolato);
    d.modoTensioni = valore(project::ModoTensioni::efficaci);
    d.metodoSpinte = valore(project::MetodoSpinte::coulomb);
    d.metodoKs = valore(project::MetodoKs::costante);
    d.faldaMonte = senzaFalda;
    for (int k = 1; k <= project::massimoFasi; ++k) d.faldaFase[k] = senzaFalda;
    return parete;
}

void prendiCampo(const RigheCaso& righe, std::string_view nome, std::string_view valori,
                 const std::string& basi, Parete& parete) {
    if (nome == "base") return prendiBase(righe, valori, basi, parete);
    if (nome == "segmenti") return prendiSegmenti(righe, valori, parete);
    const auto trovato = project::campoNominato(nome);
    const Campo* intera = trovato ? nullptr : colonnaIntera(nome);
    if (!trovato && intera == nullptr)
        righe.rifiuta("il nome di un campo, non «%1»", {std::string(nome)});
    const auto testi = parole(valori);
    if (testi.empty() || (trovato && testi.size() != 1)) righe.rifiuta("un valore");
    int riga = trovato ? trovato->riga : 1;
    for (const auto testo : testi)
        metti(righe, trovato ? *trovato->campo : *intera, riga++, testo, parete.dati);
}

}  // namespace korven::verification
