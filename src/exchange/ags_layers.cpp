#include "exchange/ags_layers.hpp"

#include <optional>
#include <string>
#include <utility>

#include "base/code_page.hpp"
#include "base/decimal_commas.hpp"
#include "base/translated_texts.hpp"
#include "exchange/ags_ranges.hpp"
#include "exchange/fault_texts.hpp"
#include "exchange/layer_checks.hpp"

namespace korven::exchange {

namespace {

// The head of the wall below the ground level of the hole, nothing with a fault.
std::optional<double> profonditaTesta(const Foro& foro, const TestaAlForo& testa,
                                      StratiLetti& letti) {
    const auto dato = soloNumero(base::conIlPunto(testa.testo).value_or(std::string(testa.testo)));
    if (!dato) {
        letti.difetti.push_back(
            frase("testa della paratia: «%1» non è un numero", {std::string(testa.testo)}));
        return {};
    }
    if (testa.modo == TestaAlForo::Modo::profondita) return dato;
    const auto terreno = soloNumero(foro.quota);
    if (!terreno) {
        letti.difetti.push_back(
            base::traduttore("la quota del terreno al foro (LOCA_GL) manca o non è un numero: dare "
                             "la profondità della testa"));
        return {};
    }
    return *terreno - *dato;
}

// A line of the project: no line end, no tab, no character that its file can't hold.
std::string descrizioneLetta(std::string_view testo) {
    std::string riga;
    for (const char c : testo) {
        const bool spazio = c == '\r' || c == '\n' || c == '\t' || c == ' ';
        if (!spazio)
            riga += c;
        else if (!riga.empty() && !riga.ends_with(' '))
            riga += ' ';
    }
    return base::comeNeiFile(base::senzaSpaziEsterni(riga));
}

// Puts the ranges under each other, measured from the head.
class Pila {
 public:
    Pila(double testa, StratiLetti& letti) : testa_(testa), letti_(letti) {}

    void metti(const Tratto& tratto) {
        if (tratto.tetto > fondo_ + stessoConfine) vuoto(tratto.tetto);
        strato(tratto.base, descrizioneLetta(tratto.letto->descrizione), tratto.letto->riga);
    }
    void concludi() {
        if (tolti_ > 0)
            letti_.avvertenze.push_back(
                frase("strati tolti perché stanno sopra la testa della paratia: %1",
                      {std::to_string(tolti_)}));
        if (testa_ < -stessoConfine)
            letti_.avvertenze.push_back(
                frase("la testa della paratia sta %1 m sopra il terreno del foro: il primo strato "
                      "comincia dalla testa",
                      {testoProfondita(-testa_)}));
        if (letti_.righe.empty() && letti_.riuscita())
            letti_.difetti.push_back(
                frase("la testa della paratia sta sotto il fondo del foro, a %1 m",
                      {testoProfondita(fondo_)}));
    }

 private:
    void vuoto(double fino) {
        if (fino - testa_ >= stessoConfine)
            letti_.avvertenze.push_back(
                frase("tra %1 e %2 m il foro non ha descrizione: diventa uno strato a sé",
                      {testoProfondita(fondo_), testoProfondita(fino)}));
        strato(fino, base::traduttore("Senza descrizione nel foro"), 0);
    }
    void strato(double base, std::string testo, long riga) {
        fondo_ = base;
        if (base - testa_ < stessoConfine) {
            ++tolti_;
            return;
        }
        RigaStrato nuovo;
        nuovo[profondita] = testoProfondita(base - testa_);
        nuovo[descrizione] = std::move(testo);
        if (const auto cosa = difettoCella(profondita, nuovo[profondita]); !cosa.empty())
            letti_.difetti.push_back(inRiga(riga, 0, cosa));
        letti_.righe.push_back(std::move(nuovo));
    }

    double testa_;
    StratiLetti& letti_;
    double fondo_ = 0;  // of what was put [m below ground level]
    int tolti_ = 0;
};

}  // namespace

StratiLetti stratiForo(const Foro& foro, const TestaAlForo& testa) {
    StratiLetti letti;
    letti.difetti = foro.difetti;
    letti.avvertenze = foro.avvertenze;
    letti.descrizioniConCodice = false;
    letti.assenti.set();
    letti.assenti.reset(profondita).reset(descrizione);
    const auto tratti = trattiOrdinati(foro, letti);
    const auto profonda = profonditaTesta(foro, testa, letti);
    if (!profonda || !letti.riuscita()) return letti;
    Pila pila(*profonda, letti);
    for (const Tratto& tratto : tratti) pila.metti(tratto);
    pila.concludi();
    controllaTabella(letti);
    return letti;
}

}  // namespace korven::exchange
