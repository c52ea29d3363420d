#include "panels/calculator_history.hpp"

#include <gtest/gtest.h>

namespace korven::panels {
namespace {

TEST(StoriaDelCalcolo, TakesWhatWasTypedIntoOneInputBackInOneStep) {
    IngressiCalcolo ingressi;
    StoriaCalcolo storia(ingressi);
    for (const char* testo : {"1", "14", "140"}) storia.scrivi(VoceCalcolo::misura, testo);
    storia.scrivi(VoceCalcolo::interasse, "2.4");
    EXPECT_EQ(storia.annulla(), static_cast<std::size_t>(VoceCalcolo::interasse));
    EXPECT_EQ(storia.detto(), "Annullato: campo Interasse s");
    EXPECT_EQ(ingressi.testo(VoceCalcolo::interasse), "");
    EXPECT_EQ(ingressi.testo(VoceCalcolo::misura), "140");
    EXPECT_EQ(storia.annulla(), static_cast<std::size_t>(VoceCalcolo::misura));
    EXPECT_EQ(ingressi.testo(VoceCalcolo::misura), "");
    EXPECT_FALSE(storia.annulla());
    EXPECT_EQ(storia.ripeti(), static_cast<std::size_t>(VoceCalcolo::misura));
    EXPECT_EQ(ingressi.testo(VoceCalcolo::misura), "140");
    storia.scrivi(VoceCalcolo::forza, "480");
    EXPECT_FALSE(storia.ripeti());
}

TEST(StoriaDelCalcolo, TakesAChoiceBackToo) {
    IngressiCalcolo ingressi;
    StoriaCalcolo storia(ingressi);
    storia.scegli(GenereAncoraggio::puntoneTraPareti);
    storia.scegli(MisuraArea::diametro);
    EXPECT_EQ(storia.annulla(), StoriaCalcolo::misura);
    EXPECT_EQ(ingressi.misuraArea, MisuraArea::area);
    EXPECT_EQ(storia.annulla(), StoriaCalcolo::genere);
    EXPECT_EQ(ingressi.genere, GenereAncoraggio::tirante);
    EXPECT_EQ(storia.ripeti(), StoriaCalcolo::genere);
    EXPECT_EQ(ingressi.genere, GenereAncoraggio::puntoneTraPareti);
}

TEST(StoriaDelCalcolo, LetsTheTableDoAgainFirstWhatWasTakenBackThereLast) {
    IngressiCalcolo ingressi;
    StoriaCalcolo storia(ingressi);
    storia.scrivi(VoceCalcolo::numero, "7");
    EXPECT_TRUE(storia.annulla());
    EXPECT_FALSE(storia.annulla());
    storia.annullatoInTabella();
    EXPECT_FALSE(storia.ripeti(true));
    EXPECT_EQ(ingressi.testo(VoceCalcolo::numero), "");
    EXPECT_EQ(storia.ripeti(true), static_cast<std::size_t>(VoceCalcolo::numero));
    EXPECT_EQ(ingressi.testo(VoceCalcolo::numero), "7");
    // What the table forgot, or did again by itself, is in nobody's way.
    EXPECT_TRUE(storia.annulla());
    storia.annullatoInTabella();
    EXPECT_TRUE(storia.ripeti(false));
}

TEST(StoriaDelCalcolo, EndsWhereAResultGoesIntoTheTable) {
    IngressiCalcolo ingressi;
    StoriaCalcolo storia(ingressi);
    storia.scrivi(VoceCalcolo::forza, "480");
    storia.usata();
    EXPECT_FALSE(storia.annulla());
    EXPECT_EQ(ingressi.testo(VoceCalcolo::forza), "480");
    EXPECT_EQ(storia.detto(), "");
}

}  // namespace
}  // namespace korven::panels
