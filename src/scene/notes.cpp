#include <cmath>
#include <string>

#include "base/bound_units.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "safety/words.hpp"
#include "scene/parts.hpp"
#include "scene/shown_values.hpp"
#include "scene/text_fitting.hpp"
#include "scene/verdict.hpp"

namespace korven::scene {

namespace {

using base::riempito;
using base::traduttore;

const std::string punto = "  \u00B7  ";

}  // namespace

std::string titolo(const Mostrata& m) {
    if (m.fase == 0) return traduttore("nessuna fase di scavo");
    const std::string scavo = punto + traduttore("scavo") + " " + quota(m.scavo);
    const std::string fase =
        riempito(traduttore("fase %1 di %2"), {std::to_string(m.fase), std::to_string(m.nFasi())}) +
        scavo;
    if (m.vista.fase != 0) return fase;
    const int stanno = m.parete.fasiInEquilibrio();
    if (stanno == 0)
        return traduttore("inviluppo") + punto +
               riempito(traduttore("disegnata la fase %1 di %2"),
                        {std::to_string(m.fase), std::to_string(m.nFasi())}) +
               scavo;
    // The ground and the water are those of the stage that falls, the numbers of those before it.
    if (m.cade)
        return fase + punto +
               riempito(traduttore("curve e tiranti: inviluppo delle fasi da 1 a %1"),
                        {std::to_string(stanno)});
    return riempito(traduttore("inviluppo delle fasi da 1 a %1"), {std::to_string(stanno)}) + scavo;
}

std::vector<Verdetto> verdetti(const Mostrata& m, const std::string& impedimento) {
    std::vector<Verdetto> tutti;
    if (!impedimento.empty())
        tutti.push_back({impedimento + ": " + traduttore("la figura mostra i valori precedenti"),
                         Ruolo::avviso});
    const live::PareteViva& parete = m.parete;
    if (!parete.rifiuto.empty()) tutti.push_back({parete.rifiuto, Ruolo::avviso});
    if (parete.perche && (m.cade || m.dopo || m.vista.fase == 0))
        tutti.push_back({safety::frase(*parete.perche), Ruolo::meccanismo});
    if (m.dopo)
        tutti.push_back({riempito(traduttore("la fase %1 viene dopo la fase %2, che non è in "
                                             "equilibrio: non è calcolabile"),
                                  {std::to_string(m.fase), std::to_string(parete.fasi.size())}),
                         Ruolo::meccanismo});
    return tutti;
}

double scriviNote(const Mostrata& m, const Misura& misura, const Opzioni& opzioni, Tela& tela) {
    const double em = corpo(misura), x = 0.8 * em;
    double y = 0.3 * em;
    if (!opzioni.parole) return y;
    const double riga = 1.45 * em;
    const int righe = misura.altezza > 40 * em ? 3 : 2;
    tela.scrivi(
        {.testo = accorciato(titolo(m), misura.larghezza - 2 * x, 1.08 * em, true, tela.misura()),
         .tinta = {Ruolo::testo},
         .corpo = 1.08 * em,
         .grassetto = true,
         .posti = {{{x, y + 0.9 * em}, Ancora::sinistra}}});
    y += 1.2 * riga;
    for (const Verdetto& v : verdetti(m, opzioni.impedimento))
        for (const std::string& testo : inRighe(base::unitaUnite(v.testo), misura.larghezza - 2 * x,
                                                em, righe, tela.misura())) {
            tela.scrivi({.testo = testo,
                         .tinta = {v.ruolo},
                         .corpo = em,
                         .posti = {{{x, y + 0.6 * em}, Ancora::sinistra}}});
            y += riga;
        }
    return y;
}

void scriviPiede(const Mostrata& m, const Inquadratura& q, Tela& tela) {
    const double corpo = 0.9 * q.em;
    const double ej = m.dati().rigidezzaEJ;
    if (!std::isfinite(ej) || ej == 0) return;
    std::string testo = "EJ " + breve(ej, project::unita::rigidezzaFlessionale, 0);
    if (m.parete.ejDellaSezione) testo += " " + traduttore("dalla sezione");
    tela.scrivi({.testo = accorciato(testo, q.larghezza - 1.6 * q.em, corpo, false, tela.misura()),
                 .tinta = {Ruolo::testoTenue},
                 .corpo = corpo,
                 .posti = {{{0.8 * q.em, q.altezza - 0.9 * q.em}, Ancora::sinistra}}});
}

}  // namespace korven::scene
