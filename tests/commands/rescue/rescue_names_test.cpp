#include "commands/rescue/rescue_names.hpp"

#include <gtest/gtest.h>

#include <set>

#include "support/document_ports.hpp"

namespace korven::commands {
namespace {

TEST(NomeRecupero, LiesBesideTheProjectAndReplacesNoFile) {
    std::set<std::string> presenti;
    const auto esiste = [&](const std::string& nome) { return presenti.contains(nome); };
    EXPECT_EQ(nomeRecupero("/lavori/muro.kvd", esiste), "/lavori/muro_recuperato.kvd");
    presenti = {"/lavori/muro_recuperato.kvd", "/lavori/muro_recuperato_2.kvd"};
    EXPECT_EQ(nomeRecupero("/lavori/muro.kvd", esiste), "/lavori/muro_recuperato_3.kvd");
}

TEST(NomeRecupero, IsKnownWithAnyNumberThatItGives) {
    for (const char* nome : {"muro_recuperato.kvd", "/altrove/muro_recuperato.kvd",
                             "muro_recuperato_2.kvd", "muro_recuperato_10.kvd"})
        EXPECT_TRUE(eNomeRecupero(nome, "/lavori/muro.kvd")) << nome;
    for (const char* nome :
         {"muro.kvd", "muro_recuperato", "muro_recuperato.kv", "muro_recuperato.KVD",
          "muro_recuperato_.kvd", "muro_recuperato_1.kvd", "muro_recuperato_02.kvd",
          "muro_recuperato_x.kvd", "muro_recuperato2.kvd", "muro_recuperato_2_3.kvd",
          "muro_recuperato_recuperato.kvd", "muretto_recuperato.kvd", "_recuperato.kvd"})
        EXPECT_FALSE(eNomeRecupero(nome, "/lavori/muro.kvd")) << nome;
}

TEST(ProgettoAperto, IsTheProjectAlsoWhileARunNamesItsResults) {
    const test::AmbienteDocumento ambiente;
    EXPECT_EQ(progettoAperto(), "");
    project::fileCorrente = "/lavori/muro.kvd";
    EXPECT_EQ(progettoAperto(), "/lavori/muro.kvd");
    project::progettiProtetti.corrente = project::fileCorrente;
    project::fileCorrente = "/lavori/muro.OUT";
    EXPECT_EQ(progettoAperto(), "/lavori/muro.kvd");
}

}  // namespace
}  // namespace korven::commands
