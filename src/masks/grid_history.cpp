#include <utility>

#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "masks/grid_model.hpp"

namespace korven::masks {

namespace {

using Valori = std::vector<std::string>;

std::string nome(std::string_view chiave, const Valori& valori) {
    return base::riempito(base::traduttore(chiave), valori);
}

}  // namespace

std::string ModelloGriglia::passoCella(PostoGriglia posto) const {
    return nome("cella %1, riga %2",
                {senzaUnita(etichetta(posto.colonna)), std::to_string(posto.riga)});
}

std::vector<ModelloGriglia::StoriaCelle::Cambio> ModelloGriglia::cambiDa(
    const CelleGriglia& prima) const {
    std::vector<StoriaCelle::Cambio> cambi;
    for (int r = 1; r <= CelleGriglia::righe; ++r)
        for (int c = 1; c <= colonne(); ++c)
            if (prima.testo(r, c) != celle_.testo(r, c))
                cambi.push_back({{r, c}, prima.testo(r, c), celle_.testo(r, c)});
    return cambi;
}

void ModelloGriglia::passoRiga(std::string_view chiave, const CelleGriglia& prima) {
    storia_.fatto({nome(chiave, {std::to_string(corrente_.riga)}), corrente_, cambiDa(prima)});
}

// Named by the rows that it changed: cells that hold data may have been left alone.
void ModelloGriglia::passoIncolla(const CelleGriglia& prima) {
    auto cambi = cambiDa(prima);
    if (cambi.empty()) return;
    const std::string da = std::to_string(cambi.front().posto.riga);
    const std::string a = std::to_string(cambi.back().posto.riga);
    storia_.fatto(
        {da == a ? nome("riga %1 incollata", {da}) : nome("righe %1-%2 incollate", {da, a}),
         corrente_, std::move(cambi)});
}

void ModelloGriglia::annulla() {
    chiudiEditore(true);
    torna(storia_.annulla(
        [this](PostoGriglia posto, const std::string& testo) { mettiCella(posto, testo); }));
}

void ModelloGriglia::ripeti() {
    chiudiEditore(true);
    torna(storia_.ripeti(
        [this](PostoGriglia posto, const std::string& testo) { mettiCella(posto, testo); }));
}

void ModelloGriglia::torna(std::optional<PostoGriglia> cursore) {
    if (cursore) corrente_ = *cursore;
    comeAppenaEntrato();
}

}  // namespace korven::masks
