#include "drawings/margin_drawing.hpp"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "base/code_page.hpp"
#include "base/colon.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "base/value_error.hpp"
#include "drawings/filled_lines.hpp"
#include "drawings/margin_bars.hpp"
#include "drawings/margin_section.hpp"
#include "plot/plot_engine.hpp"
#include "plot/sheet.hpp"
#include "project/units.hpp"
#include "safety/margin_words.hpp"

namespace korven::drawings {

namespace {

using base::traduttore;
using safety::Margine;
using safety::MargineFase;

constexpr double xDestra = plot::x0 + plot::larghQuadro;
constexpr double xBarre = 10.2;  // left of the bars
constexpr double ySopra = plot::y0 + plot::altQuadro - 0.4;
constexpr double yMezzo = 13.3, ySotto = 5.2;  // between the two diagrams, and below both
constexpr double massimaLunghezza = 1e4;       // [m]
constexpr double fineAsseF = 3;                // what is beyond is safe, however far

double inPercento(double quota) { return mostrato(project::unita::percento, quota); }

int tratteggio(double valore, double scarso, double modesto, bool sotto) {
    const auto oltre = [&](double limite) { return sotto ? valore < limite : valore > limite; };
    return oltre(scarso) ? 2 : oltre(modesto) ? 1 : 0;
}

Barra barraF(const MargineFase& fase, const SegniMargine& segni) {
    const safety::Riduzione& r = fase.riduzione;
    const double F = r.oltre ? safety::massimaRiduzione : r.F.value_or(0);
    return {.fase = fase.fase,
            .valore = F,
            .fine = r.oltre         ? FineBarra::freccia
                    : F > fineAsseF ? FineBarra::interrotta
                                    : FineBarra::chiusa,
            .numero = testoRiduzione(r),
            .tratteggio = tratteggio(F, segni.riduzioneScarsa, segni.riduzioneModesta, true)};
}

Barra barraUso(const MargineFase& fase, const SegniMargine& segni) {
    const double uso = fase.passiva.quota.value_or(0);
    return {.fase = fase.fase,
            .valore = inPercento(uso),
            .numero = safety::testoQuota(fase.passiva.quota),
            .tratteggio = tratteggio(uso, segni.passivaMoltoAlta, segni.passivaAlta, false)};
}

void barre(const Margine& margine, const SegniMargine& segni) {
    Barre F{.titolo = traduttore("RIDUZIONE DELLA RESISTENZA F [-]"),
            .massimo = fineAsseF,
            .passo = 0.5,
            .limiti = {segni.riduzioneScarsa, segni.riduzioneModesta},
            .barre = {}};
    Barre uso{.titolo = traduttore("PASSIVA USATA [%]"),
              .massimo = inPercento(1),
              .passo = 20,
              .limiti = {inPercento(segni.passivaAlta), inPercento(segni.passivaMoltoAlta)},
              .barre = {}};
    for (const MargineFase& fase : margine.fasi) {
        F.barre.push_back(barraF(fase, segni));
        uso.barre.push_back(barraUso(fase, segni));
    }
    disegnaBarre(F, xBarre, yMezzo + 0.2, xDestra, ySopra);
    disegnaBarre(uso, xBarre, ySotto, xDestra, yMezzo - 0.4);
}

std::string legenda(const SegniMargine& segni) {
    const auto limiti = [](double F, double uso) {
        return ": F < " + base::testoNumero(F) + ", " + traduttore("passiva usata") + " > " +
               safety::testoQuota(uso) + " %";
    };
    return traduttore("Tratteggio rado") + limiti(segni.riduzioneModesta, segni.passivaAlta) +
           base::puntoEVirgola() + traduttore("fitto") +
           limiti(segni.riduzioneScarsa, segni.passivaMoltoAlta);
}

std::string legendaMuro(const Margine& margine) {
    const MargineFase* fase = margine.decisiva();
    if (!fase || !fase->riduzione.moto) return {};
    return traduttore(
               "Lungo la paratia: rigato dove la passiva è al limite, a tratti il movimento "
               "con F; fase") +
           " " + std::to_string(fase->fase);
}

// The lines below the drawing, broken at the width of the sheet and drawn together if they are
// many.
void piede(const Margine& margine, const SegniMargine& segni) {
    constexpr double altezza = 0.25, riga = 0.42, rientro = 0.4;
    constexpr double ySopraRighe = ySotto - 0.75, ySottoRighe = 0.6;
    constexpr double interlinea = 1.4;  // pitch of the tightest lines, in heights
    plot::plotPenna(4);
    plot::linea(plot::x0, ySotto - 0.3, xDestra, ySotto - 0.3);
    plot::plotPenna(6);
    std::vector<std::pair<double, std::string>> righe;
    for (const std::string& testo :
         {paroleDecisiva(margine), paroleLunghezza(margine), paroleMaglia(margine),
          notaPendenza(margine), notaOltre(margine), legenda(segni), legendaMuro(margine),
          paroleMetodo(margine)}) {
        if (testo.empty()) continue;
        double x = plot::x0;
        for (std::string& parte :
             righePiene(base::conMaiuscola(testo), altezza, plot::larghQuadro, rientro)) {
            righe.emplace_back(x, std::move(parte));
            x = plot::x0 + rientro;
        }
    }
    const double passo =
        std::min(riga, (ySopraRighe - ySottoRighe) / static_cast<double>(righe.size()));
    double y = ySopraRighe;
    for (const auto& [x, testo] : righe) {
        const double stretta = (xDestra - x) / std::max(plot::larghezzaTesto(altezza, testo), 1e-9);
        plot::testoDa(x, y, std::min({altezza, altezza * stretta, passo / interlinea}), testo);
        y -= passo;
    }
}

}  // namespace

void disegnaSicurezza(const project::DatiProgetto& dati, const Margine& margine,
                      const SegniMargine& segni) {
    if (!(dati.lunghezzaParatia <= massimaLunghezza)) throw base::ErroreValore();
    plot::apriFoglio(dati.titoli, traduttore("SICUREZZA DELLA PARATIA"));
    plot::statoPlot.nome = "sicurezza";
    disegnaMuro(dati, margine.decisiva(), plot::x0, ySotto, xBarre - 0.7, ySopra);
    barre(margine, segni);
    piede(margine, segni);
    plot::plotMuovi(0, 0, plot::fineDisegno);
}

}  // namespace korven::drawings
