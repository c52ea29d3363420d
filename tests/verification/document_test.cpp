#include "verification/document.hpp"

#include <gtest/gtest.h>

#include <algorithm>

#include "base/files.hpp"
#include "verification/case_reader.hpp"

namespace korven::verification {
namespace {

using namespace document;

const std::string sbagliato = std::string(KORVEN_CASES_OF_TESTS) + "/deve_fallire.txt";

template <class Tipo>
std::vector<const Tipo*> blocchi(const Documento& documento) {
    std::vector<const Tipo*> trovati;
    for (const auto& blocco : documento.blocchi)
        if (const auto* suo = std::get_if<Tipo>(&blocco)) trovati.push_back(suo);
    return trovati;
}

Documento conNoto(const std::string& noto) {
    static std::vector<Gruppo> gruppi;
    gruppi = {{.nome = "g", .titolo = "Mensole", .descrizione = "Poche."}};
    gruppi[0].casi.push_back(
        leggiCaso(sbagliato, noto + base::leggiFile(sbagliato), KORVEN_EXAMPLES));
    return documento(esegui(gruppi), "2026-11-22");
}

TEST(DocumentoVerifica, TellsOfEachCaseWhereItsValuesComeFrom) {
    const Documento d = conNoto("");
    EXPECT_EQ(d.piede, "2026-11-22");
    EXPECT_EQ(d.data, "2026-11-22");
    EXPECT_EQ(d.lingua, "it");
    const auto titoli = blocchi<Titolo>(d);
    ASSERT_EQ(titoli.size(), 4U);
    EXPECT_EQ(titoli[1]->testo, "Mensole");
    EXPECT_EQ(titoli[3]->testo, "deve_fallire · Mensola con una forza in testa");
    EXPECT_EQ(blocchi<Paragrafo>(d).back()->testo,
              "Fonte: A wrong value on purpose\nTolleranza: as of the right one");
    ASSERT_EQ(blocchi<Tavola>(d).size(), 1U);
    EXPECT_EQ(blocchi<Tavola>(d)[0]->prospetto.righe.size(), 4U);
}

TEST(DocumentoVerifica, HasTheFigureOfAGroupAboveItsTable) {
    Gruppo g{.nome = "g", .titolo = "Mensole", .figura = "deve_fallire", .curva = "momento"};
    g.casi.push_back(leggiCaso(sbagliato, base::leggiFile(sbagliato), KORVEN_EXAMPLES));
    const std::vector<Gruppo> gruppi{g};
    const Documento d = documento(esegui(gruppi), "2026-11-22");
    const auto figure = blocchi<Figura>(d);
    ASSERT_EQ(figure.size(), 1U);
    EXPECT_EQ(figure[0]->didascalia, "deve_fallire · Mensola con una forza in testa");
    EXPECT_FALSE(figure[0]->descrizione.empty());
    EXPECT_TRUE(blocchi<Figura>(conNoto("")).empty());  // of a group that names none
}

TEST(DocumentoVerifica, ShowsInTheColourOfDangerThatACaseIsNotMet) {
    const auto stile = [](const Documento& d) { return blocchi<Paragrafo>(d)[1]->stile; };
    EXPECT_EQ(stile(conNoto("")), Stile::pericolo);
    const Documento noto = conNoto("noto: because\n");
    EXPECT_EQ(stile(noto), Stile::rilievo);
    EXPECT_TRUE(blocchi<Paragrafo>(noto).back()->testo.ends_with("Differenza nota: because"));
}

TEST(DocumentoVerifica, BreaksNoLineBetweenANumberAndItsUnit) {
    const Documento d = conNoto("");
    const auto& riga = blocchi<Tavola>(d)[0]->prospetto.righe[2];
    EXPECT_EQ(riga[1].testo, "Momento, z\u00a03\u00a0m [kN\u00a0m/m]");
}

}  // namespace
}  // namespace korven::verification
