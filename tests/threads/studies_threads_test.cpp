// A study with several threads, which hand their rows to the one that waits for them.

#include <gtest/gtest.h>

#include "studies/small_study.hpp"
#include "support/wall_builder.hpp"

namespace korven::studies {
namespace {

class Raccolta : public UscitaStudio {
 public:
    explicit Raccolta(std::uint64_t basta) : basta_(basta) {}
    void prendi(const Righe& righe) override { byte += righe.byte; }
    bool prosegui(std::uint64_t fatte) override { return fatte < basta_; }

    std::string byte;

 private:
    std::uint64_t basta_;
};

TEST(StudiInsieme, HaveTheRowsOfOneThread) {
    const test::VariantiLineari varianti({{"phiStrato[1]", 20, 0.01}}, 1000);
    const auto dati = test::muro().lungo(10).fase({.scavo = 2}).fase({.scavo = 4}).dati();
    const RigheStudio righe(varianti.campi(), colonne(0, false), Formato::csv);
    const Studio studio{varianti, dati, {.nSeg = 20}, righe, 50};
    const std::string attese = calcolaRighe(studio, {0, 1000}).byte;
    for (const int fili : {2, 8}) {
        Raccolta raccolta(1000);
        EXPECT_EQ(esegui(studio, {0, 1000}, fili, raccolta), 1000u);
        EXPECT_EQ(raccolta.byte, attese);
        Raccolta interrotta(300);
        const auto fatte = esegui(studio, {0, 1000}, fili, interrotta);
        EXPECT_EQ(interrotta.byte, calcolaRighe(studio, {0, fatte}).byte);
    }
}

}  // namespace
}  // namespace korven::studies
