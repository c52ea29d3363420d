#include "masks/values.hpp"

#include <cassert>

#include "base/file_error.hpp"
#include "base/folders/program_folder.hpp"
#include "base/number_text.hpp"
#include "base/table.hpp"
#include "base/translated_texts.hpp"
#include "masks/edited_fields.hpp"
#include "masks/reader.hpp"

namespace korven::masks {

namespace {

constexpr std::size_t capacitaDopoLaPrima = 75000;

// What the commands fill in: the items of each choice field, and the number of other fields.
struct Forma {
    std::vector<std::size_t> scelte;
    int nCampi;
};

Forma formaAttesa(NumeroMaschera numero) {
    if (numero == NumeroMaschera::titoli) return {{}, campoFase};
    const auto editati = campiEditati(numero);
    const int tutti = static_cast<int>(editati.size());
    if (numero != NumeroMaschera::paratia) return {{}, 1 + tutti};  // after the row numbers
    Forma forma{{}, tutti};
    for (const project::Campo* campo : editati) {
        if (campo->codici.empty()) continue;
        forma.scelte.push_back(campo->codici.size());
        --forma.nCampi;
    }
    return forma;
}

bool haForma(const Maschera& maschera, NumeroMaschera numero) {
    const bool campi = numero == NumeroMaschera::titoli || numero == NumeroMaschera::paratia;
    if (campi != (maschera.genere == GenereMaschera::campi)) return false;
    const Forma forma = formaAttesa(numero);
    if (maschera.nCampi() != forma.nCampi || maschera.scelte.size() != forma.scelte.size())
        return false;
    for (std::size_t i = 0; i < forma.scelte.size(); ++i)
        if (maschera.scelte[i].size() != forma.scelte[i]) return false;
    return true;
}

}  // namespace

void Maschere::leggiMaschere(const std::vector<std::string>& percorsi) {
    if (percorsi.size() > massimoMaschere)
        throw base::ErroreIndice(static_cast<long>(percorsi.size()), massimoMaschere);
    maschere_.clear();
    for (const auto& percorso : percorsi) maschere_.push_back(leggiMaschera(percorso));
}

void Maschere::leggiMaschereProgramma() {
    std::vector<std::string> percorsi;
    for (const auto nome : fileMaschere) percorsi.push_back(base::fileProgramma(nome));
    leggiMaschere(percorsi);
    for (std::size_t i = 0; i < percorsi.size(); ++i)
        if (!haForma(maschere_[i], static_cast<NumeroMaschera>(i + 1)))
            throw base::ErroreFile(
                percorsi[i], 0,
                base::traduttore("attesi i campi che il programma chiede a questa maschera"));
}

std::string testoScelta(double tenuta) { return base::testoNumero(tenuta + 1); }

void Maschere::selezionaMaschera(int numero) {
    if (numero < 1 || static_cast<std::size_t>(numero) > maschere_.size())
        throw base::ErroreIndice(numero, maschere_.size());
    corrente_ = static_cast<std::size_t>(numero) - 1;
    valoriCombo_.assign(maschere_[*corrente_].scelte.size(), 0);
    valoriTesto_.clear();
    annullato_ = true;
    inizio_.reset();
}

const Maschera& Maschere::corrente() const {
    assert(corrente_);
    return maschere_[*corrente_];
}

void Maschere::controllaCapacita(std::size_t testi) const {
    if (testi > capacita_) throw base::ErroreIndice(static_cast<long>(testi), capacita_);
}

void Maschere::impostaCampo(int indice, std::string_view testo) {
    assert(indice >= 1);
    const auto i = static_cast<std::size_t>(indice) - 1;
    if (i < valoriCombo_.size()) {
        const double codice = base::leggiNumero(testo).value_or(0);
        valoriCombo_[i] = codice > 0 ? codice - 1 : 0;
        return;
    }
    const std::size_t posto = i - valoriCombo_.size();
    controllaCapacita(posto + 1);
    if (posto >= valoriTesto_.size()) valoriTesto_.resize(posto + 1);
    valoriTesto_[posto] = testo;
}

std::string Maschere::leggiCampo(int indice) const {
    assert(indice >= 1);
    const auto i = static_cast<std::size_t>(indice) - 1;
    if (i < valoriCombo_.size()) return testoScelta(valoriCombo_[i]);
    const std::size_t posto = i - valoriCombo_.size();
    return posto < valoriTesto_.size() ? valoriTesto_[posto] : std::string();
}

void Maschere::conferma(std::vector<double> combo, std::vector<std::string> testi) {
    valoriCombo_ = std::move(combo);
    valoriTesto_ = std::move(testi);
    annullato_ = false;
    controllaCapacita(valoriTesto_.size());
}

void Maschere::rilasciaForm() {
    corrente_.reset();
    valoriCombo_.clear();
    valoriTesto_.clear();
    capacita_ = capacitaDopoLaPrima;
}

}  // namespace korven::masks
