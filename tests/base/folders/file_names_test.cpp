#include "base/folders/file_names.hpp"

#include <gtest/gtest.h>

namespace korven::base {
namespace {

TEST(NomiDeiFile, TheResultFileTakesThePlaceOfTheLastThreeCharacters) {
    EXPECT_EQ(nomeRisultati("/lavori/muro.kvd"), "/lavori/muro.OUT");
    EXPECT_EQ(nomeRisultati("/lavori.1/muro.kvd"), "/lavori.1/muro.OUT");
    EXPECT_EQ(nomeRisultati("/lavori/muro.è€à"), "/lavori/muro.OUT");  // characters, not bytes
    EXPECT_EQ(nomeRisultati("ab"), "OUT");
}

TEST(NomiDeiFile, TheReportCutsThePathAtItsFirstPoint) {
    EXPECT_EQ(nomeRelazione("/lavori/muro.kvd"), "/lavori/muro.TAB");
    EXPECT_EQ(nomeRelazione("/lavori.1/muro.kvd"), "/lavori.TAB");
    EXPECT_EQ(nomeRelazione("/lavori/muro.v2.kvd"), "/lavori/muro.TAB");
    EXPECT_EQ(nomeRelazione("/lavori/muro"), "/lavori/muro.TAB");
}

TEST(NomiDeiFile, TheWordProcessorFileTakesTheNameOfTheReport) {
    EXPECT_EQ(nomeDocumento("/lavori/muro.TAB"), "/lavori/muro.doc");
    EXPECT_EQ(nomeDocumento("/lavori.TAB"), "/lavori.doc");
}

TEST(NomiDeiFile, FurtherFilesLieBesideTheProjectWithAWordAfterItsStem) {
    EXPECT_EQ(nomeUscita("/lavori.1/muro.v2.kvd", "momenti", "pdf"),
              "/lavori.1/muro.v2-momenti.pdf");
    EXPECT_EQ(nomePdfRelazione("/lavori/muro.kvd"), "/lavori/muro-relazione.pdf");
    EXPECT_EQ(nomePdfRelazione("/lavori/muro"), "/lavori/muro-relazione.pdf");
}

}  // namespace
}  // namespace korven::base
