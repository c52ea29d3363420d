#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <memory>
#include <set>
#include <string>
#include <utility>

#include "report/annex/section_bench.hpp"
#include "safety/mesh_words.hpp"

namespace korven::report {
namespace {

using test::conStaffe;
using test::contesto;
using test::haTavola;
using test::muro;
using test::numero;
using test::riga;
using test::sezione;
using test::tavola;
using test::testo;

constexpr double kN = 1e3;  // N

TEST(CapitoloSezione, NamesTheStrainsThatEndTheResistance) {
    const auto detto = [](const project::Sezione& s) { return testo(sezione(contesto(muro(s)))); };
    const auto trova = [](const std::string& testo, const char* frase) {
        return testo.find(frase) != std::string::npos;
    };
    const std::string diaframma = detto(structure::diaframmaSimmetrico());
    EXPECT_TRUE(trova(diaframma, "si accorcia di 0.0035 o l'acciaio si allunga di 0.010."));
    EXPECT_TRUE(trova(diaframma, "al bordo esterno delle barre e non al loro asse"));
    EXPECT_TRUE(trova(diaframma, "calcestruzzo 1.60"));
    const std::string palancola = detto(structure::palancola());
    EXPECT_TRUE(trova(palancola, "si accorcia di 0.0035 o si allunga di 0.010."));
    EXPECT_TRUE(trova(palancola, "EN 1993-5"));
    EXPECT_FALSE(trova(palancola, "calcestruzzo"));
    EXPECT_TRUE(trova(detto(structure::paliTubolari()), "riempie il tubo"));
}

// Whoever opens the document here must not sign what its cover calls open.
TEST(CapitoloSezione, SaysOfADirectionAndItsStageWhatTheCoverSays) {
    Contesto c = contesto(muro(structure::diaframmaSimmetrico()));
    dossier::Fascicolo f = *c.fascicolo;
    ASSERT_TRUE(f.margine && f.margine->maglia);
    const std::string fase = std::to_string(f.controlli.positivo.fase);
    EXPECT_EQ(riga(tavola(sezione(c), "Le fasi nel dominio"), fase).back().testo, "verificata");

    const auto con = [&](double fine, double finissima) {
        const auto uso = [](double u) { return results::Uso{u, 100, u > 100}; };
        f.margine->maglia->usi = {
            {results::Verifica::momentoPositivo, {uso(90.2), uso(fine), uso(finissima)}}};
        c.fascicolo = std::make_shared<const dossier::Fascicolo>(f);
    };
    con(94.5, 98.2);
    const Blocchi b = sezione(c);
    EXPECT_NE(testo(b).find("Non a convergenza."), std::string::npos);
    EXPECT_EQ(riga(tavola(b, "Le fasi nel dominio"), fase).back().testo, "non a convergenza");
    con(101, 102);
    EXPECT_NE(testo(sezione(c)).find("Cambia con la maglia."), std::string::npos);
}

TEST(CapitoloSezione, HoldsTheChecksOfTheDossier) {
    const Contesto c = contesto(muro(structure::diaframmaSimmetrico()));
    const auto p = tavola(sezione(c), "Verifiche");
    const auto& flessione = *c.fascicolo->controlli.flessione;
    ASSERT_EQ(p.righe.size(), 2U);
    EXPECT_EQ(numero(p, 0, 1), 10 * flessione.mdMax);
    EXPECT_EQ(numero(p, 0, 2), 10 * flessione.mrPos);
    EXPECT_NEAR(numero(p, 0, 3), 100 * flessione.mdMax / flessione.mrPos, 1e-9);
    EXPECT_EQ(numero(p, 0, 4), c.fascicolo->controlli.positivo.fase);
    EXPECT_EQ(numero(p, 0, 5), c.fascicolo->controlli.positivo.z);
    EXPECT_EQ(p.righe[0][6].testo, flessione.fallitaPos() ? "NON verificata" : "verificata");
    EXPECT_EQ(numero(p, 1, 1), 10 * flessione.mdMin);
}

// A reader adds the rows up with a pencil: forces to the axial force, moments to the resistance.
TEST(CapitoloSezione, HasForcesThatAddUpToTheResistance) {
    for (const double N : {0.0, 30.0}) {
        const Contesto c = contesto(muro(structure::diaframmaArmatoAValle(), N));
        const auto b = sezione(c);
        for (int verso = 1; verso <= 2; ++verso) {
            const auto p = tavola(b, "Forze nella sezione alla sua resistenza", verso);
            ASSERT_GE(p.righe.size(), 3U);
            double forza = 0, momento = 0;
            for (std::size_t i = 0; i + 1 < p.righe.size(); ++i) {
                forza += numero(p, i, 2);
                momento += numero(p, i, 5);
                EXPECT_NEAR(numero(p, i, 2) * numero(p, i, 4) / 1000, numero(p, i, 5), 1e-9);
            }
            const auto& lato =
                verso == 1 ? c.fascicolo->flessione->positivo : c.fascicolo->flessione->negativo;
            const std::size_t ultima = p.righe.size() - 1;
            EXPECT_NEAR(forza, numero(p, ultima, 2), 0.01);
            EXPECT_EQ(numero(p, ultima, 2), c.fascicolo->flessione->Nd / kN);
            EXPECT_NEAR(momento, numero(p, ultima, 5), 0.01);
            EXPECT_EQ(numero(p, ultima, 5), lato.MRd / kN / 1000);
        }
    }
}

TEST(CapitoloSezione, PutsTheValuesIntoTheFormulas) {
    const auto p = tavola(sezione(contesto(muro(structure::diaframmaSimmetrico(), 12))),
                          "Materiali e sforzo normale");
    const auto fcd = riga(p, "Resistenza di progetto del calcestruzzo");
    EXPECT_EQ(fcd[1].testo, "fcd = fck / γc");
    EXPECT_EQ(fcd[2].testo, "25.00 / 1.60");
    EXPECT_EQ(fcd[3].numero, 15.625);
    const auto Nd = riga(p, "Sforzo normale di progetto");
    EXPECT_EQ(Nd[2].testo, "1.40 · 120.000");
    EXPECT_NEAR(Nd[3].numero.value_or(0), 168, 1e-9);
    EXPECT_EQ(Nd[4].testo, "kN/m");
}

// Reads a formula as it is printed: "0.5 · (1.2 - 0.3) / 2^(2/3)", with π and ² too.
class Matita {
 public:
    static double conta(std::string testo) {
        for (const auto& [segno, ascii] :
             {std::pair("·", "*"), {"π", "3.14159265358979"}, {"²", "^2"}, {" ", ""}})
            for (std::size_t i; (i = testo.find(segno)) != std::string::npos;)
                testo.replace(i, std::string(segno).size(), ascii);
        Matita m(testo);
        const double valore = m.somma();
        EXPECT_EQ(*m.qui_, '\0') << testo;
        return valore;
    }

 private:
    explicit Matita(const std::string& testo) : qui_(testo.c_str()) {}
    bool segue(char c) { return *qui_ == c ? (++qui_, true) : false; }
    double somma() {
        double v = prodotto();
        for (;;)
            if (segue('+'))
                v += prodotto();
            else if (segue('-'))
                v -= prodotto();
            else
                return v;
    }
    double prodotto() {
        double v = potenza();
        for (;;)
            if (segue('*'))
                v *= potenza();
            else if (segue('/'))
                v /= potenza();
            else
                return v;
    }
    double potenza() {
        const double v = fattore();
        return segue('^') ? std::pow(v, potenza()) : v;
    }
    double fattore() {
        if (segue('-')) return -fattore();
        if (segue('(')) {
            const double v = somma();
            EXPECT_TRUE(segue(')'));
            return v;
        }
        char* fine = nullptr;
        const double v = std::strtod(qui_, &fine);
        EXPECT_NE(qui_, fine);
        qui_ = fine;
        return v;
    }
    const char* qui_;
};

// With the printed digits alone: what comes out is what is printed, half a digit apart at most.
TEST(CapitoloSezione, HasFormulasThatAPencilComesToTheEndOf) {
    auto grande = conStaffe();
    grande.armDiamPalo = 147;
    grande.armInterasse = 173;
    grande.armCopriferro = 7.3;
    grande.fck = 37;
    int formule = 0;
    std::set<std::string> simboli;
    for (const auto& sezione_ :
         {conStaffe(), grande, structure::diaframmaSimmetrico(), structure::diaframmaArmatoAValle(),
          structure::paliTubolari(), structure::palancola()})
        for (const auto& t :
             test::tutti<document::Tavola>(sezione(contesto(muro(sezione_, 12.345))))) {
            const tables::Prospetto& p = t.prospetto;
            if (p.colonne.size() != 5 || p.colonne[2].titolo != "Con i valori") continue;
            for (const auto& riga : p.righe) {
                if (riga[2].testo.empty()) continue;
                const double volte = riga[4].testo == "%" ? 100 : 1;
                const auto punto = riga[3].testo.find('.');
                const int decimali = punto == std::string::npos
                                         ? 0
                                         : static_cast<int>(riga[3].testo.size() - punto) - 1;
                EXPECT_NEAR(volte * Matita::conta(riga[2].testo), std::stod(riga[3].testo),
                            0.51 * std::pow(10, -decimali))
                    << riga[1].testo << "   " << riga[2].testo;
                simboli.insert(riga[1].testo.substr(0, riga[1].testo.find(' ')));
                ++formule;
            }
        }
    EXPECT_GE(formule, 80);
    for (const char* simbolo : {"As", "Ac", "NRd,c", "NRd,t", "Nd", "MRd", "VRd3"})
        EXPECT_TRUE(simboli.contains(simbolo)) << simbolo;
}

// What the strips have, from the measures alone: two layers, a tube, a wave, a ring of bars.
TEST(CapitoloSezione, TellsTheAreasOfEverySection) {
    for (const auto& s :
         {structure::diaframmaSimmetrico(), structure::diaframmaArmatoAValle(),
          structure::paliTubolari(), structure::palancola(), structure::paliArmati()}) {
        const Contesto c = contesto(muro(s));
        const auto p = tavola(sezione(c), "Materiali e sforzo normale");
        const auto As = riga(p, "Area dell'acciaio in un metro");
        EXPECT_FALSE(As[2].testo.empty());
        EXPECT_EQ(As[3].numero, c.fascicolo->flessione->As);
        if (c.fascicolo->flessione->fcd > 0) {
            EXPECT_FALSE(riga(p, "Area del calcestruzzo in un metro")[2].testo.empty());
        }
        ASSERT_GE(p.note.size(), 2U);
        EXPECT_NE(p.note.back().find("σs = Es ε"), std::string::npos);
    }
}

// Compression helps a lightly loaded section: with less of it the use grows, and is told.
TEST(CapitoloSezione, TellsTheUseWithoutAnAxialForceThatHelps) {
    constexpr const char* titolo = "Con un altro sforzo normale";
    EXPECT_FALSE(haTavola(sezione(contesto(muro(structure::diaframmaSimmetrico()))), titolo));
    EXPECT_FALSE(haTavola(sezione(contesto(muro(structure::diaframmaSimmetrico(), -12))), titolo));
    const Contesto c = contesto(muro(structure::diaframmaSimmetrico(), 12));
    const auto b = sezione(c);
    const auto p = tavola(b, titolo);
    ASSERT_EQ(p.righe.size(), 3U);
    EXPECT_EQ(p.righe[0][0].testo, "1.40");
    EXPECT_NEAR(numero(p, 0, 1), 168, 1e-9);
    EXPECT_NEAR(numero(p, 1, 1), 120, 1e-9);
    EXPECT_EQ(numero(p, 2, 1), 0);
    const auto senza = contesto(muro(structure::diaframmaSimmetrico(), 0)).fascicolo;
    EXPECT_NEAR(numero(p, 2, 2), senza->flessione->positivo.MRd / kN / 1000, 1e-9);
    EXPECT_NEAR(numero(p, 2, 3), 100 * *senza->flessione->positivo.uso, 1e-9);
    EXPECT_GT(numero(p, 2, 3), numero(p, 0, 3));
    EXPECT_NE(tavola(b, "Verifiche").note.front().find("arriva al " + p.righe[2][3].testo + " %"),
              std::string::npos);
    EXPECT_EQ(testo(b).find("non è verificata."), std::string::npos);
}

// Who opens this chapter alone must not take for verified what finer meshes judge otherwise.
TEST(CapitoloSezione, SaysAboveTheChecksThatFinerMeshesJudgeOtherwise) {
    Contesto c = contesto(muro(structure::diaframmaSimmetrico()));
    auto fascicolo = std::make_shared<dossier::Fascicolo>(*c.fascicolo);
    c.fascicolo = fascicolo;
    const auto uso = [](double u) { return results::Uso{u, 100, u > 100}; };
    fascicolo->margine->maglia->usi = {
        {dossier::Verifica::momentoPositivo, {uso(98.0), uso(98.9), uso(101)}}};
    const std::string avviso = safety::avvisiMaglia(*fascicolo->margine).front().testo;
    const std::string detto = testo(sezione(c));
    const auto posto = detto.find(avviso);
    ASSERT_NE(posto, std::string::npos) << detto;
    EXPECT_LT(posto, detto.find("Momento positivo, che tende"));
    fascicolo->margine->maglia->usi.clear();
    EXPECT_EQ(testo(sezione(c)).find(avviso), std::string::npos);
}

// A check that holds with the factored compression alone says so.
TEST(CapitoloSezione, WarnsWhereTheCheckHoldsByTheAxialForceAlone) {
    auto debole = structure::diaframmaSimmetrico();
    const double N = 30;
    bool trovata = false;
    for (double d = 2.4; d > 0.2 && !trovata; d -= 0.05) {
        debole.diametroMonte = debole.diametroValle = d;
        const Contesto c = contesto(muro(debole, N));
        const auto& l = c.fascicolo->flessione->positivo;
        if (!l.verificato || !(l.usoMaggiore().value_or(0) >= 1)) continue;
        trovata = true;
        EXPECT_NE(testo(sezione(c)).find("così moltiplicato la sezione non è verificata."),
                  std::string::npos);
    }
    EXPECT_TRUE(trovata);
}

// A pencil finds the same product everywhere: rounded, not cut as in the report.
TEST(CapitoloSezione, RoundsOneProductOnce) {
    const auto b = sezione(contesto(muro(structure::diaframmaSimmetrico())));
    const auto verifica = tavola(b, "Verifiche").righe[0][1].testo;
    EXPECT_EQ(riga(tavola(b, "Confronto"), "Momento di progetto")[3].testo, verifica);
    bool trovato = false;
    for (const auto& riga : tavola(b, "Le fasi nel dominio").righe)
        trovato = trovato || riga[2].testo == verifica;
    EXPECT_TRUE(trovato);
}

TEST(CapitoloSezione, SetsTheReportsChecksBesideWhereTheyAreOthers) {
    const Contesto c = contesto(muro(conStaffe()));
    std::size_t diverse = 0;
    for (const auto& v : c.fascicolo->verifiche) diverse += v.perche.empty() ? 0 : 1;
    const auto b = sezione(c);
    constexpr const char* titolo = "Le stesse verifiche, dove la relazione ha altri numeri";
    EXPECT_EQ(haTavola(b, titolo), diverse > 0);
    ASSERT_GT(diverse, 0U);
    const auto p = tavola(b, titolo);
    ASSERT_EQ(p.righe.size(), 2 * diverse);
    EXPECT_NE(p.righe[1][6].testo, "");
}

TEST(CapitoloSezione, DrawsTheDomainAndNamesTheStagesInIt) {
    const Contesto c = contesto(muro(structure::palancola()));
    const auto b = sezione(c);
    EXPECT_EQ(test::tutti<document::Figura>(b).size(), 1U);
    const auto p = tavola(b, "Le fasi nel dominio");
    ASSERT_EQ(p.righe.size(), 2U);
    EXPECT_NEAR(numero(p, 1, 2), 10 * c.fascicolo->nelDominio[1].momenti.mdMax, 1e-9);
    EXPECT_EQ(testo(b).find("calcestruzzo senza trazione"), std::string::npos);  // it has none
}

TEST(CapitoloSezione, SetsTheChecksOfTheReportBeside) {
    const Contesto c = contesto(muro(conStaffe()));
    ASSERT_TRUE(c.fascicolo->conRelazione());
    EXPECT_NE(testo(sezione(c)).find("Le verifiche della relazione"), std::string::npos);
}

TEST(CapitoloSezione, OfAWeakSectionSaysThatItFails) {
    auto debole = structure::diaframmaSimmetrico();
    debole.diametroMonte = debole.diametroValle = 0.2;
    const auto dati = muro(debole);
    const Contesto c = contesto(dati);
    ASSERT_TRUE(c.fascicolo->controlli.conAzioni);
    const auto b = sezione(c);
    EXPECT_NE(testo(b).find("NON verificata"), std::string::npos);
}

TEST(CapitoloSezione, OfAWallThatDoesNotStandHasTheResistancesAlone) {
    auto dati = muro(conStaffe());
    dati.profFase[1] = dati.profFase[2] = 11.9;
    dati.tirantiFase[2] = 0;
    const Contesto c = contesto(dati);
    ASSERT_EQ(c.fascicolo->parete.fasiInEquilibrio(), 0);
    const auto b = sezione(c);
    EXPECT_NE(testo(b).find("Azioni non note: la paratia non è in equilibrio."), std::string::npos);
    const auto p = tavola(b, "Verifiche");
    ASSERT_EQ(p.righe.size(), 4U);
    EXPECT_EQ(p.righe[0][1].testo, "-");
    EXPECT_GT(numero(p, 0, 2), 0);
    EXPECT_FALSE(haTavola(b, "Confronto"));
}

TEST(CapitoloSezione, OfAnAxialForceBeyondTheSectionSaysThatNothingIsLeft) {
    const auto b = sezione(contesto(muro(structure::diaframmaSimmetrico(), 5000)));
    EXPECT_NE(testo(b).find("Nessun equilibrio con questo sforzo normale"), std::string::npos);
    EXPECT_FALSE(haTavola(b, "Forze nella sezione alla sua resistenza"));
}

TEST(CapitoloSezione, WithoutASectionSaysWhatIsMissing) {
    const auto b = sezione(contesto(test::progettoSemplice()));
    EXPECT_NE(testo(b).find("Sezione non definita"), std::string::npos);
    EXPECT_NE(testo(b).find("Nessuna verifica: la sezione non è definita."), std::string::npos);
    EXPECT_TRUE(test::tutti<document::Tavola>(b).empty());
}

// A cantilever without ground, fixed at its toe, bends one way only under a force at its head.
TEST(CapitoloSezione, SaysThatNoMomentOfTheOtherSignActs) {
    auto dati = test::muro()
                    .lungo(4)
                    .strato({.fondo = 30, .gammaN = 0, .gammaSat = 0, .ks = 0})
                    .fase({.scavo = 5})
                    .con(&project::DatiProgetto::forzaTesta, -3)
                    .con(&project::DatiProgetto::vincoloPiede, 3)
                    .dati();
    dati.sezione = structure::diaframmaSimmetrico();
    const Contesto c = contesto(dati);
    const auto& flessione = *c.fascicolo->controlli.flessione;
    const auto p = tavola(sezione(c), "Verifiche");
    bool detto = false;
    for (const auto& nota : p.note) detto = detto || nota == "Nessun momento negativo agisce.";
    EXPECT_FALSE(flessione.negativo);
    EXPECT_TRUE(detto);
}

}  // namespace
}  // namespace korven::report
