#include "plot/print_setup.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "base/code_page.hpp"
#include "base/files.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "plot/plot_engine.hpp"

namespace korven::plot {

namespace {

constexpr std::string_view caratterePredefinito = "Courier New";

// The number fields that the file begins with, with the label that the user knows them by.
struct CampoIntero {
    const char* etichetta;
    int ImpostazioniStampa::*valore;
};
constexpr CampoIntero interi[] = {
    {"Margine sinistro (car.)", &ImpostazioniStampa::margineSinistro},
    {"Margine superiore (righe)", &ImpostazioniStampa::margineSuperiore},
    {"Margine inferiore (righe)", &ImpostazioniStampa::margineInferiore},
    {"Lunghezza pagina (righe)", &ImpostazioniStampa::lunghezzaPagina},
    {"Altezza caratteri (punti)", &ImpostazioniStampa::altezzaCaratteri},
};

struct CampoTesto {
    const char* etichetta;
    std::string ImpostazioniStampa::*valore;
};
constexpr CampoTesto testi[] = {
    {"Intestazione", &ImpostazioniStampa::intestazione},
    {"Piè di pagina", &ImpostazioniStampa::piePagina},
    {"Set di caratteri", &ImpostazioniStampa::carattere},
};

int aSediciBit(double valore) {
    using Limiti = std::numeric_limits<std::int16_t>;
    return static_cast<int>(
        std::clamp(std::trunc(valore), double{Limiti::min()}, double{Limiti::max()}));
}

int indice(std::span<const std::string> caratteri, std::string_view nome) {
    const auto trovato = std::find(caratteri.begin(), caratteri.end(), nome);
    return trovato == caratteri.end() ? -1 : static_cast<int>(trovato - caratteri.begin());
}

}  // namespace

ImpostazioniStampa leggiImpostazioni(const std::string& percorso) {
    if (!base::esisteFile(percorso)) return {};
    auto file = base::LettoreRighe::apri(percorso);
    return leggiImpostazioni(file);
}

ImpostazioniStampa leggiImpostazioni(base::LettoreRighe& file) {
    ImpostazioniStampa lette;
    for (const auto& campo : interi)
        lette.*campo.valore = aSediciBit(file.numero(base::traduttore(campo.etichetta)));
    for (const auto& campo : testi)
        lette.*campo.valore = file.riga(base::traduttore(campo.etichetta));
    if (!file.fine())
        lette.offsetSuperiore = file.numero(base::traduttore("Offset superiore (righe)"));
    return lette;
}

std::string testoImpostazioni(const ImpostazioniStampa& impostazioni) {
    std::string testo;
    for (const auto& campo : interi)
        testo.append(base::formattaNumero(impostazioni.*campo.valore)).append("\r\n");
    for (const auto& campo : testi)
        testo.append(base::inCp1252(impostazioni.*campo.valore)).append("\r\n");
    return testo.append(base::formattaNumero(impostazioni.offsetSuperiore)).append("\r\n");
}

void salvaImpostazioni(const std::string& percorso, const ImpostazioniStampa& impostazioni,
                       const base::Disco& disco) {
    base::scriviFile(percorso, testoImpostazioni(impostazioni), disco);
    statoPlot.penna.carattere = impostazioni.carattere;
}

CampiStampa campiStampa(const ImpostazioniStampa& impostazioni) {
    CampiStampa campi;
    std::size_t i = 0;
    for (const auto& campo : interi) campi[i++] = base::testoNumero(impostazioni.*campo.valore);
    for (const auto& campo : testi) campi[i++] = impostazioni.*campo.valore;
    campi[i] = base::testoNumero(impostazioni.offsetSuperiore);
    return campi;
}

ImpostazioniStampa impostazioniScritte(const CampiStampa& campi) {
    ImpostazioniStampa scritte;
    std::size_t i = 0;
    for (const auto& campo : interi)
        scritte.*campo.valore = aSediciBit(base::leggiNumero(campi[i++]).value_or(0));
    for (const auto& campo : testi) scritte.*campo.valore = campi[i++];
    scritte.offsetSuperiore = base::leggiNumero(campi[i]).value_or(0);
    return scritte;
}

int carattereDaScegliere(std::span<const std::string> caratteri, std::string_view salvato) {
    for (const std::string_view nome : {salvato, caratterePredefinito})
        if (const int i = indice(caratteri, nome); i >= 0) return i;
    return caratteri.empty() ? -1 : 0;
}

}  // namespace korven::plot
