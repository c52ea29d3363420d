#include "tables/safety_summary.hpp"

#include <gtest/gtest.h>

#include "support/sample_projects.hpp"
#include "tables/margin_table.hpp"

namespace korven::tables {
namespace {

using Stato = Riassunto::Stato;

TEST(Riassunto, WithoutAProjectSaysThatNoneIsOpen) {
    const live::ProgettoVivo vivo;
    EXPECT_EQ(riassunto(vivo).stato, Stato::nulla);
    EXPECT_EQ(riassunto(vivo).verdetto, "Niente da calcolare: nessun progetto aperto");
}

TEST(Riassunto, IsOnItsWayUntilTheAnswerComes) {
    live::ProgettoVivo vivo;
    const auto dati = test::progettoSemplice();
    vivo.guarda(&dati);
    EXPECT_EQ(riassunto(vivo).stato, Stato::inCorso);
    ASSERT_TRUE(vivo.rispondi(vivo.domanda()->numero, calcolaLenti(*vivo.domanda())));
    const Riassunto noto = riassunto(vivo);
    EXPECT_EQ(noto.stato, Stato::noto);
    ASSERT_NE(noto.margine, nullptr);
    EXPECT_EQ(noto.verdetto, verdetto(*noto.margine));
    EXPECT_EQ(noto.frasi, frasi(*noto.margine));
}

TEST(Riassunto, OfDataThatAreRefusedSaysWhy) {
    live::ProgettoVivo vivo;
    const auto dati = test::progettoVuoto();
    vivo.guarda(&dati);
    const Riassunto r = riassunto(vivo);
    EXPECT_EQ(r.stato, Stato::nulla);
    EXPECT_EQ(r.verdetto, "Niente da calcolare: " + vivo.parete().rifiuto);
    EXPECT_EQ(r.margine, nullptr);
}

}  // namespace
}  // namespace korven::tables
