#include "plot/configuration_editor.hpp"

#include <utility>

#include "base/number_text.hpp"
#include "plot/plot_engine.hpp"

namespace korven::plot {

namespace {

double numeroScritto(std::string_view testo) { return base::leggiNumero(testo).value_or(0); }

}  // namespace

ModelloPenne::ModelloPenne(std::string percorso)
    : percorso_(std::move(percorso)), configurazione_(leggiConfigurazione(percorso_)) {}

void ModelloPenne::scegliPenna(std::string_view etichetta,
                               const std::function<void(const PennaConfigurata&)>& mostra) {
    const int numero = pennaConEtichetta(configurazione_, etichetta);
    if (numero == 0) return;
    etichetta_ = etichetta;
    scelta_ = true;
    mostrando_ = true;
    mostra(configurazione_.penne[numero]);
    mostrando_ = false;
}

PennaConfigurata* ModelloPenne::pennaDaCambiare() {
    if (!scelta_ || mostrando_) return nullptr;
    return &configurazione_.penne[pennaConEtichetta(configurazione_, etichetta_)];
}

void ModelloPenne::cambiaColore(int indice) {
    if (auto* penna = pennaDaCambiare()) penna->colore = indice;
}

void ModelloPenne::cambiaSpessore(std::string_view testo) {
    if (auto* penna = pennaDaCambiare()) penna->spessoreMm = numeroScritto(testo);
}

void ModelloPenne::cambiaCarattere(std::string_view nome) {
    if (auto* penna = pennaDaCambiare()) penna->carattere = nome;
}

bool ModelloPenne::siPuoCambiareValore(int indice) const { return indice != 0 && !mostrando_; }

bool ModelloPenne::cambiaValore(int indice, Colore valore) {
    if (configurazione_.colori[indice].valore == valore) return false;
    configurazione_.colori[indice].valore = valore;
    return true;
}

void ModelloPenne::cambiaNome(int indice, std::string_view nome) {
    configurazione_.colori[indice].nome = nome;
}

std::optional<ValoreFuori> ModelloPenne::valoreFuori(std::string_view margineSinistro,
                                                     std::string_view margineSuperiore) const {
    const auto fuori = [](double valore, double minimo, double massimo) {
        return !(valore >= minimo && valore <= massimo);
    };
    for (int i = 1; i <= numeroPenne; ++i)
        if (fuori(configurazione_.penne[i].spessoreMm, 0, massimoSpessoreMm))
            return ValoreFuori{ValoreFuori::Campo::spessore, i, 0, massimoSpessoreMm};
    for (const auto& [campo, testo] :
         {std::pair{ValoreFuori::Campo::margineSinistro, margineSinistro},
          std::pair{ValoreFuori::Campo::margineSuperiore, margineSuperiore}})
        if (fuori(numeroScritto(testo), minimoMargineCm, massimoMargineCm))
            return ValoreFuori{campo, 0, minimoMargineCm, massimoMargineCm};
    return {};
}

void ModelloPenne::conferma(std::string_view margineSinistro, std::string_view margineSuperiore,
                            const base::Disco& disco) {
    configurazione_.margineSinistro = numeroScritto(margineSinistro);
    configurazione_.margineSuperiore = numeroScritto(margineSuperiore);
    // A file that can't be read back would end the program at the next drawing.
    base::LettoreRighe daScrivere(percorso_, testoConfigurazione(configurazione_));
    static_cast<void>(leggiConfigurazione(daScrivere));
    scriviConfigurazione(percorso_, configurazione_, disco);
    statoPlot.scostamentoX = configurazione_.margineSinistro;
    statoPlot.scostamentoY = configurazione_.margineSuperiore;
}

}  // namespace korven::plot
