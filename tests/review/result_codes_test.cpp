#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <set>

#include "results/section_uses.hpp"
#include "review/margins.hpp"
#include "review/project_review.hpp"
#include "review/result_review.hpp"
#include "structure/partial_factors.hpp"
#include "support/sample_sections.hpp"
#include "support/wall_files.hpp"

namespace korven::review {
namespace {

using project::DatiProgetto;
using safety::Margine;

using Controllo = void (*)(const DatiProgetto&, const Margine&, ElencoOsservazioni&);

// What a check makes of a sound margin of two stages with one thing changed.
Osservazioni cambiato(Controllo controllo, const DatiProgetto& dati,
                      const std::function<void(Margine&)>& cambia) {
    Margine m = margineSano(dati);
    cambia(m);
    ElencoOsservazioni elenco;
    controllo(dati, m, elenco);
    return elenco.ordinate();
}

Osservazioni delMuro(const std::string& nome) {
    return esaminaRisultati(test::leggiMuro(std::string(KORVEN_WALLS) + "/" + nome + ".kvd"), 50);
}

Osservazioni dellaProva(const std::string& nome) {
    const auto dati = test::leggiMuro(std::string(KORVEN_WALLS) + "/" + nome + ".kvd");
    const auto motivo = provaCalcolo(dati, 200);
    return motivo ? Osservazioni{*motivo} : Osservazioni{};
}

const DatiProgetto dueFasi = paratia({{.scavo = 2}, {.scavo = 4}});

DatiProgetto con(const std::function<void(DatiProgetto&)>& cambia) {
    DatiProgetto dati = dueFasi;
    cambia(dati);
    return dati;
}

Osservazioni conPassiva(double quota) {
    return cambiato(controlloMargine, dueFasi,
                    [&](Margine& m) { m.fasi[1].passiva.quota = quota; });
}

Osservazioni conSpostamento(double y, double piede) {
    return cambiato(controlloMargine, dueFasi, [&](Margine& m) {
        m.fasi[1].estremi.spostamento = {y, 0, 2};
        m.fasi[1].piede.spostamento = piede;
    });
}

Osservazioni conTiri(double rigidezza, double pretensione, double tipo, double vero,
                     double relazione) {
    const DatiProgetto dati =
        con([&](DatiProgetto& d) { test::aggiungiTirante(d, 1, rigidezza, pretensione, tipo); });
    return cambiato(controlloTiri, dati, [&](Margine& m) {
        conTiro(m, 2, vero, -5);
        m.relazione = results::NumeriRelazione{};
        m.relazione->tiriMassimi = {relazione};
    });
}

Osservazioni conStatica(safety::Confronto Margine::*quale, double relazione) {
    return cambiato(controlloStatica, dueFasi, [&](Margine& m) {
        m.*quale = {{20, 3, 2}, results::NumeroRelazione{relazione, 3, 2}};
    });
}

Osservazioni conStaffe() {
    const DatiProgetto dati = con([](DatiProgetto& d) {
        d.sezione = structure::paliArmati();
        d.sezione.armDiamStaffe = 1;
        d.sezione.armPassoStaffe = 20;
    });
    return cambiato(controlloStatica, dati, [](Margine& m) {
        m.taglio.statica = {20, 3, 1};
        m.fasi[1].confronto.taglio.relazione = results::NumeroRelazione{10, 3, 2};
    });
}

Osservazioni conFerriSottili() {
    auto dati = test::leggiMuro(std::string(KORVEN_EXAMPLES) + "/diaframma_due_ordini.kvd");
    dati.sezione.diametroMonte = dati.sezione.diametroValle = 1;
    return esaminaRisultati(dati, 50);
}

Osservazioni conSforzoFavorevole() {
    const DatiProgetto dati = con([](DatiProgetto& d) {
        d.sezione = structure::diaframmaSimmetrico();
        d.sforzoNormale = 20;
    });
    const auto MRd = results::momentiResistenti(dati);
    return cambiato(controlloVerifiche, dati, [&](Margine& m) {
        m.relazione = results::NumeriRelazione{};
        m.relazione->fasi.resize(2);
        const double quasi = 0.99 * std::abs(MRd[1]) / project::newtonMillimetri;
        m.relazione->flessione =
            results::controlli(dati.sezione, MRd, quasi / structure::fsAzioniSezione, 0, 0)
                .flessione;
    });
}

Osservazioni fallitaInEquilibrio() {
    Margine m = margineSano(dueFasi);
    m.maglia = safety::ErroreMaglia{};
    m.verifiche = {
        {results::Verifica::bielle, results::Uso{101, 100, true}, results::Uso{99, 100, false}}};
    ElencoOsservazioni elenco;
    controlloGiudizi(m, elenco);
    return elenco.ordinate();
}

Osservazioni dellEsempio(const std::string& nome) {
    return esaminaRisultati(test::leggiMuro(std::string(KORVEN_EXAMPLES) + "/" + nome + ".kvd"),
                            50);
}

Osservazioni conIncastro() {
    const DatiProgetto dati = con([](DatiProgetto& d) { d.vincoloPiede = 3; });
    return cambiato(controlloIncastro, dati, [](Margine& m) {
        auto& c = m.fasi[1].confronto;
        c.momentoPiede.relazione = results::NumeroRelazione{};
        c.taglioPiede.relazione = results::NumeroRelazione{20, 10, 2};
        m.fasi[1].piede.cedimento = 0.02;
    });
}

Osservazioni conFalda() {
    const DatiProgetto dati = con([](DatiProgetto& d) {
        d.lunghezzaParatia = 20;
        d.faldaMonte = 5.7;
    });
    return cambiato(controlloMaglia, dati, [](Margine& m) {
        m.maglia = safety::ErroreMaglia{};
        m.maglia->tiro.quota = 0.06;
    });
}

Osservazioni conEJNegativa() {
    return esaminaRisultati(con([](DatiProgetto& d) { d.rigidezzaEJ = -1; }), 50);
}

Osservazioni conForzaEnorme() {
    return esaminaRisultati(con([](DatiProgetto& d) {
                                d.vincoloTesta = 2;
                                d.vincoloPiede = 3;
                                d.pressioneOrizz = 1e14;
                            }),
                            50);
}

// A row that no wall can bring would be a promise that nobody keeps.
TEST(VociRisultati, AreEachBroughtBySomeWall) {
    const std::vector<Osservazioni> casi = {
        dellaProva("singolare_1"),
        dellaProva("oscilla_1"),
        delMuro("oscilla_1"),
        delMuro("oscilla_3"),
        delMuro("meccanismo"),
        delMuro("banchina"),
        dellEsempio("pali_armati_staffe"),
        dellEsempio("paratia_lunga_incastro"),
        conEJNegativa(),
        conForzaEnorme(),
        conPassiva(0.85),
        conPassiva(0.95),
        conSpostamento(0.05, 0.02),
        delMuro("puntone_rigidissimo"),
        conTiri(1e7, 0, 1, 8, 8.09),
        conTiri(500, 0, 0, 8, 9),
        conTiri(500, 10, 1, -5, 10),
        conTiri(500, 10, 1, 5, 10),
        conTiri(500, 5, 0, 0, 5),
        conStatica(&Margine::momento, 18),
        conStatica(&Margine::momento, 22),
        conStatica(&Margine::taglio, 18),
        conStatica(&Margine::taglio, 22),
        conStaffe(),
        conFerriSottili(),
        conSforzoFavorevole(),
        fallitaInEquilibrio(),
        conIncastro(),
        conFalda(),
    };
    std::set<std::string_view> portate;
    for (const auto& caso : casi)
        for (const auto& o : caso) portate.insert(o.codice);
    // Guards the report against numbers beyond all; no wall is known that comes to rest with them.
    portate.insert("risultato-non-mostrabile");
    for (const auto& voce : vociRisultati)
        EXPECT_TRUE(portate.contains(voce.codice)) << voce.codice;
}

}  // namespace
}  // namespace korven::review
