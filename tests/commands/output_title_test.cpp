#include "commands/output_title.hpp"

#include <gtest/gtest.h>

#include "project/output_guard.hpp"
#include "project/project_data.hpp"

namespace korven::commands {
namespace {

class TitoloUscite : public testing::Test {
 protected:
    ~TitoloUscite() override {
        project::fileCorrente.clear();
        project::progettiProtetti = {};
    }
};

TEST_F(TitoloUscite, NamesTheProjectWithoutItsFolder) {
    project::fileCorrente = "/lavori.2024/muro.kvd";
    EXPECT_EQ(titoloUscite(), "KORVEN 32 - muro.kvd");
}

TEST_F(TitoloUscite, NamesTheProjectAlsoWhileARunLasts) {
    project::fileCorrente = "/lavori.2024/muro.OUT";
    project::progettiProtetti.corrente = "/lavori.2024/muro.kvd";
    EXPECT_EQ(titoloUscite(), "KORVEN 32 - muro.kvd");
}

}  // namespace
}  // namespace korven::commands
