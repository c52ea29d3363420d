#include "dossier/annex_command.hpp"

#include <gtest/gtest.h>

namespace korven::dossier {
namespace {

TEST(Opzioni, AreThoseThatOverrideTheProjectAndNoOthers) {
    EXPECT_TRUE(opzioni({}).empty());
    EXPECT_EQ(opzioni({.metodoSpinte = 2, .ricalcolaEJ = true, .nSeg = "60"}),
              (std::vector<std::string>{"--metodo-spinte rankine", "--ej ricalcola", "--nseg 60"}));
}

TEST(OpzioniDette, NameTheSegmentsOfTheRunUnlessTheyAreTheProgramsOwn) {
    EXPECT_TRUE(opzioniDette({}, 50).empty());
    EXPECT_TRUE(opzioniDette({.nSeg = "50"}, 50).empty());
    EXPECT_EQ(opzioniDette({}, 60), (std::vector<std::string>{"--nseg 60"}));
    EXPECT_EQ(opzioniDette({.ricalcolaEJ = true, .nSeg = " 60"}, 60),
              (std::vector<std::string>{"--ej ricalcola", "--nseg 60"}));
    EXPECT_TRUE(opzioniDette({}, {}).empty());
}

TEST(Comando, NamesFilesOverridesDateAndLanguage) {
    EXPECT_EQ(comando({.progetto = "muro.kvd",
                       .pdf = "a.pdf",
                       .documento = "a.doc",
                       .testo = "a.txt",
                       .alPosto = {.metodoSpinte = 3, .nSeg = "50"},
                       .righe = 11,
                       .data = "2026-11-22"}),
              "korven32c allegato muro.kvd --pdf a.pdf --doc a.doc --txt a.txt --metodo-spinte "
              "bell --nseg 50 --righe 11 --data 2026-11-22 --lingua ita");
}

TEST(Comando, KeepsEachPathOneWordOfTheShell) {
    EXPECT_EQ(comando({.progetto = "cantiere --nord/l'Aquila.kvd", .data = "2026-11-22"}),
              "korven32c allegato 'cantiere --nord/l'\\''Aquila.kvd' --data 2026-11-22 --lingua "
              "ita");
}

}  // namespace
}  // namespace korven::dossier
