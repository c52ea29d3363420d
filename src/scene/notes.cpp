#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "base/bound_units.hpp"
#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "safety/words.hpp"
#include "scene/first_steps.hpp"
#include "scene/parts.hpp"
#include "scene/shown_values.hpp"
#include "scene/text_fitting.hpp"
#include "scene/verdict.hpp"

namespace korven::scene {

namespace {

using base::riempito;
using base::traduttore;

const std::string punto = "  \u00B7  ";

// That the stage shown stands, or all do, with the largest values of what is shown.
std::string conclusione(const Mostrata& m) {
    const auto e = m.parete.estremiDi(m.vista.fase == 0 ? 0 : m.fase);
    if (!e) return {};
    const std::string dove =
        m.vista.fase == 0
            ? traduttore("la paratia è in equilibrio; massimi di tutte le fasi")
            : riempito(traduttore("la fase %1 è in equilibrio"), {std::to_string(m.fase)});
    return base::conDuePunti(
        dove, traduttore("spostamento") + " " +
                  conUnita(e->spostamento.valore, project::unita::spostamentoFine) + ", " +
                  traduttore("momento") + " " +
                  conUnita(e->momento().valore, project::unita::momentoAlMetro) + ", " +
                  traduttore("taglio") + " " +
                  conUnita(e->taglio.valore, project::unita::forzaAlMetro));
}

}  // namespace

std::string titolo(const Mostrata& m) {
    if (nonCominciato(m.dati())) return traduttore("progetto ancora vuoto");
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
        tutti.push_back(
            {base::conDuePunti(impedimento, traduttore("la figura mostra i valori precedenti")),
             Ruolo::avviso});
    const live::PareteViva& parete = m.parete;
    if (!parete.rifiuto.empty() && !nonCominciato(parete.dati))
        tutti.push_back({parete.rifiuto, Ruolo::avviso});
    if (std::string passi = primiPassi(parete); !passi.empty())
        tutti.push_back({std::move(passi), Ruolo::testo});
    if (parete.perche && (m.cade || m.dopo || m.vista.fase == 0))
        tutti.push_back({safety::frase(*parete.perche), Ruolo::meccanismo});
    if (m.dopo)
        tutti.push_back({riempito(traduttore("la fase %1 viene dopo la fase %2, che non è in "
                                             "equilibrio: non è calcolabile"),
                                  {std::to_string(m.fase), std::to_string(parete.fasi.size())}),
                         Ruolo::meccanismo});
    if (!tutti.empty()) return tutti;
    if (!parete.senzaRelazione.empty()) tutti.push_back({parete.senzaRelazione, Ruolo::avviso});
    if (std::string sta = conclusione(m); !sta.empty())
        tutti.push_back({std::move(sta), Ruolo::testoTenue});
    return tutti;
}

namespace {

// Rows of text from a height down; each sentence has one at least while there are any.
class Righe {
 public:
    Righe(const Misura& misura, double y, int righe, Tela& tela)
        : em_(corpo(misura)),
          larghezza_(misura.larghezza - 2 * rientro * em_),
          y_(y),
          libere_(righe),
          tela_(tela) {}

    // @param poi  sentences that come after it
    void scrivi(const Verdetto& v, int poi) {
        if (libere_ == 0) return;
        for (std::string& testo : inRighe(base::unitaUnite(v.testo), larghezza_, em_,
                                          std::max(1, libere_ - poi), tela_.misura())) {
            tela_.scrivi({.testo = std::move(testo),
                          .tinta = {v.ruolo},
                          .corpo = em_,
                          .posti = {{{rientro * em_, y_ + 0.6 * em_}, Ancora::sinistra}}});
            y_ += riga * em_;
            --libere_;
        }
    }

    static constexpr double rientro = 0.8, riga = 1.45;  // [font sizes]

 private:
    double em_, larghezza_, y_;
    int libere_;
    Tela& tela_;
};

// Whatever is said, and while it changes with each key, the picture stays where it is.
int righeDelVerdetto(const Misura& misura) {
    const double em = corpo(misura);
    if (misura.altezza < 24 * em) return 1;
    return misura.larghezza < 60 * em ? 3 : 2;
}

}  // namespace

double scriviNote(const Mostrata& m, const Misura& misura, const Opzioni& opzioni, Tela& tela) {
    const double em = corpo(misura), x = Righe::rientro * em, riga = Righe::riga * em;
    double y = 0.3 * em;
    if (!opzioni.parole) {
        if (opzioni.didascalia.empty()) return y;
        constexpr int righe = 3;
        Righe(misura, y, righe, tela).scrivi({opzioni.didascalia, Ruolo::testo}, 0);
        return y + righe * riga;
    }
    tela.scrivi(
        {.testo = accorciato(titolo(m), misura.larghezza - 2 * x, 1.08 * em, true, tela.misura()),
         .tinta = {Ruolo::testo},
         .corpo = 1.08 * em,
         .grassetto = true,
         .posti = {{{x, y + 0.9 * em}, Ancora::sinistra}}});
    y += 1.2 * riga;
    const int quante = righeDelVerdetto(misura);
    Righe righe(misura, y, quante, tela);
    const auto tutti = verdetti(m, opzioni.impedimento);
    for (std::size_t i = 0; i < tutti.size(); ++i)
        righe.scrivi(tutti[i], static_cast<int>(tutti.size() - 1 - i));
    return y + quante * riga;
}

void scriviPiede(const Mostrata& m, const Inquadratura& q, Tela& tela) {
    const double corpo = 0.9 * q.em;
    const double ej = m.dati().rigidezzaEJ;
    if (!std::isfinite(ej) || ej == 0) return;
    std::string testo = "EJ " + breve(ej, project::unita::rigidezzaFlessionaleAlMetro, 0);
    if (m.parete.ejDellaSezione) testo += " " + traduttore("dalla sezione");
    tela.scrivi({.testo = accorciato(testo, q.larghezza - 1.6 * q.em, corpo, false, tela.misura()),
                 .tinta = {Ruolo::testoTenue},
                 .corpo = corpo,
                 .posti = {{{0.8 * q.em, q.altezza - 0.9 * q.em}, Ancora::sinistra}}});
}

}  // namespace korven::scene
