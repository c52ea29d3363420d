#include "live/section_checks.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "safety/short_margin.hpp"
#include "structure/interaction_domain.hpp"
#include "support/sample_projects.hpp"
#include "support/sample_sections.hpp"

namespace korven::live {
namespace {

project::DatiProgetto muro() {
    auto dati = test::progettoSemplice();
    dati.sezione = structure::diaframmaSimmetrico();
    dati.sforzoNormale = 10;
    return dati;
}

TEST(ControlliSezioneTest, AreTheReportsWhereThereIsOne) {
    const auto parete = calcola(muro());
    const auto breve = safety::margineBreve(muro(), parete.nSeg);
    ASSERT_TRUE(breve && breve->margine.relazione);
    const auto& relazione = *breve->margine.relazione;
    const auto controlli = controlliSezione(parete, &breve->margine);
    EXPECT_TRUE(controlli.dellaRelazione);
    ASSERT_TRUE(controlli.flessione);
    EXPECT_EQ(controlli.flessione->mrPos, relazione.flessione->mrPos);
    EXPECT_EQ(controlli.flessione->mdMax, relazione.flessione->mdMax);
    EXPECT_EQ(controlli.positivo.fase, relazione.momentoMassimo().fase);
    const auto fasi = fasiNelDominio(parete, &breve->margine);
    ASSERT_EQ(fasi.size(), relazione.fasi.size());
    for (std::size_t i = 0; i < fasi.size(); ++i) {
        EXPECT_EQ(fasi[i].fase, static_cast<int>(i) + 1);
        EXPECT_EQ(fasi[i].momenti.mMax, relazione.fasi[i].momentoMassimo.valore);
        EXPECT_EQ(fasi[i].Nd, 140000);  // 1.4 x 10 t
    }
}

TEST(ControlliSezioneTest, AreOfTheCertainEquilibriumUntilTheReportIsKnown) {
    const auto parete = calcola(muro());
    const auto controlli = controlliSezione(parete, nullptr);
    EXPECT_FALSE(controlli.dellaRelazione);
    EXPECT_TRUE(controlli.conAzioni);
    ASSERT_TRUE(controlli.flessione);
    EXPECT_EQ(controlli.flessione->mMax, parete.estremi.momentoMassimo.valore);
    EXPECT_EQ(controlli.flessione->mdMax, 1.4 * parete.estremi.momentoMassimo.valore);
    EXPECT_EQ(fasiNelDominio(parete, nullptr).size(), parete.fasi.size());
}

TEST(ControlliSezioneTest, HaveTheResistancesOfASectionWhoseWallIsRefused) {
    auto dati = muro();
    dati.nStrati = 0;
    const auto controlli = controlliSezione(calcola(dati), nullptr);
    EXPECT_FALSE(controlli.conAzioni);
    ASSERT_TRUE(controlli.flessione);
    EXPECT_EQ(controlli.flessione->mrPos,
              controlliSezione(calcola(muro()), nullptr).flessione->mrPos);
    EXPECT_TRUE(fasiNelDominio(calcola(dati), nullptr).empty());
}

TEST(ControlliSezioneTest, LieInTheDomainIfTheyAreVerified) {
    auto dati = muro();
    for (const double diametro : {2.4, 0.6}) {
        dati.sezione.diametroMonte = dati.sezione.diametroValle = diametro;
        const auto dominio = structure::dominioNM(dati.sezione);
        for (const auto& fase : fasiNelDominio(calcola(dati), nullptr)) {
            const auto dopo = std::find_if(dominio.begin() + 1, dominio.end() - 1,
                                           [&](const auto& p) { return p.Nd >= fase.Nd; });
            const double quota = (fase.Nd - (dopo - 1)->Nd) / (dopo->Nd - (dopo - 1)->Nd);
            const double MRd = -std::lerp((dopo - 1)->MRd1, dopo->MRd1, quota) / 1e7;
            EXPECT_NEAR(fase.momenti.mrPos, MRd, 0.02 * MRd);
        }
    }
}

TEST(ControlliSezioneTest, AreNoneWithoutASection) {
    auto dati = muro();
    dati.sezione = {};
    const auto controlli = controlliSezione(calcola(dati), nullptr);
    EXPECT_FALSE(controlli.flessione);
    EXPECT_FALSE(controlli.taglio);
    EXPECT_TRUE(fasiNelDominio(calcola(dati), nullptr).empty());
    EXPECT_FALSE(sezioneCalcolabile(dati.sezione));
}

}  // namespace
}  // namespace korven::live
