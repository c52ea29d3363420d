#include "project/depth_order.hpp"

#include <gtest/gtest.h>

#include "support/wall_builder.hpp"

namespace korven::project {
namespace {

const Campo* const strati = &campo(&DatiProgetto::profStrato);
const Campo* const tiranti = &campo(&DatiProgetto::profTirante);
const Campo* const fasi = &campo(&DatiProgetto::profFase);

DatiProgetto inOrdine() {
    DatiProgetto d = test::progettoVuoto();
    for (const double fondo : {3.0, 3.0, 12.0}) test::aggiungiStrato(d, {.fondo = fondo});
    for (const double prof : {1.0, 4.0}) test::aggiungiTirante(d, prof, 500);
    for (const double scavo : {2.0, 5.0, 8.0}) test::aggiungiFase(d, {.scavo = scavo});
    return d;
}

TEST(OrdineProfondita, HoldsForDepthsThatGrowOrStay) { EXPECT_TRUE(disordini(inOrdine()).empty()); }

TEST(OrdineProfondita, NamesEachPairOfEachTableByItsSecondRow) {
    DatiProgetto d = inOrdine();
    d.profStrato[3] = 2.9;
    d.profTirante[1] = 4.5;
    d.profFase[2] = 9;
    EXPECT_EQ(disordini(d), (std::vector<Disordine>{{strati, 3}, {tiranti, 2}, {fasi, 3}}));
}

TEST(OrdineProfondita, DoesNotCountRowsBeyondTheTable) {
    DatiProgetto d = inOrdine();
    d.profFase[2] = 9;
    d.nFasi = 2;
    EXPECT_TRUE(disordini(d).empty());
}

TEST(OrdineProfondita, LeavesAloneWhatWasOutOfOrderAndDidNotChange) {
    DatiProgetto prima = inOrdine();
    prima.profFase[3] = 4;  // filled up again
    DatiProgetto dopo = prima;
    dopo.profTirante[2] = 4.5;
    EXPECT_TRUE(nuoviDisordini(prima, dopo).empty());
    dopo.profFase[3] = 4.5;
    EXPECT_EQ(nuoviDisordini(prima, dopo), (std::vector<Disordine>{{fasi, 3}}));
}

TEST(OrdineProfondita, NamesARowThatHasJustCome) {
    const DatiProgetto prima = inOrdine();
    DatiProgetto dopo = prima;
    test::aggiungiTirante(dopo, 0, 0);
    EXPECT_EQ(nuoviDisordini(prima, dopo), (std::vector<Disordine>{{tiranti, 3}}));
}

}  // namespace
}  // namespace korven::project
