#include "project/field_table.hpp"

#include <gtest/gtest.h>

#include <set>
#include <utility>

#include "project/codes.hpp"

namespace korven::project {
namespace {

struct Qualsiasi {
    template <class T>
    operator T() const;  // NOLINT(google-explicit-constructor): takes the place of any member
};

template <class T, std::size_t... i>
constexpr bool fatto(std::index_sequence<i...>) {
    return requires { T{(static_cast<void>(i), Qualsiasi{})...}; };
}

// How many members a plain record has: as many values as it can be made of.
template <class T, std::size_t n = 1>
constexpr std::size_t membri() {
    if constexpr (fatto<T>(std::make_index_sequence<n + 1>()))
        return membri<T, n + 1>();
    else
        return n;
}

TEST(TabellaCampi, HasOneRowForEachMemberOfTheProjectAndItsSection) {
    static_assert(membri<Limiti>() == 2);
    const std::size_t tutti = membri<DatiProgetto>() - 1 + membri<Sezione>();  // but the section
    std::set<std::string_view> nomi;
    for (const Campo& c : campi()) {
        EXPECT_TRUE(nomi.insert(c.nome).second) << c.nome;
        EXPECT_EQ(&campo(c.membro), &c) << c.nome << " is in two rows";
    }
    EXPECT_EQ(nomi.size(), tutti) << "a member has no row in project/field_table.cpp";
}

TEST(TabellaCampi, NamesAFieldAsTheCodeDoes) {
    EXPECT_EQ(campo(&DatiProgetto::phiStrato).nome, "phiStrato");
    EXPECT_EQ(campo(&Sezione::spessoreDiaframma).nome, "sezione.spessoreDiaframma");
    EXPECT_EQ(campo(&DatiProgetto::titoli).nome, "titoli");
}

TEST(TabellaCampi, PutsTheShownUnitAfterTheCaption) {
    EXPECT_EQ(etichetta(campo(&DatiProgetto::gammaSat)), "Gamma Sat. [kN/m³]");
    EXPECT_EQ(etichetta(campo(&DatiProgetto::gammaAcqua)), "Peso specifico dell'acqua [t/m³]");
    EXPECT_EQ(etichetta(campo(&DatiProgetto::tirantiFase)), "Numero tot. tiranti");
    EXPECT_EQ(etichetta(campo(&Sezione::armNumLong)), "Numero armature logitudinali [-]");
}

TEST(TabellaCampi, ShowsTenfoldWhatIsStoredInTonnesOrCentimetresAndAllElseAsItIs) {
    DatiProgetto d;
    d.nStrati = 2;
    d.gammaN[2] = 1.8;
    d.phiStrato[2] = 30.5;
    d.rigidezzaEJ = 12000;
    d.gammaAcqua = 1.03;
    d.sezione.spessoreDiaframma = 80;
    d.sezione.armNumLong = 0.8;  // no length, but typed among them
    d.sezione.fck = 28.5;
    EXPECT_EQ(mostrato(d, campo(&DatiProgetto::gammaN), 2), 18);
    EXPECT_EQ(mostrato(d, campo(&DatiProgetto::phiStrato), 2), 30.5);
    EXPECT_EQ(mostrato(d, campo(&DatiProgetto::rigidezzaEJ)), 120000);
    EXPECT_EQ(mostrato(d, campo(&DatiProgetto::gammaAcqua)), 1.03);
    EXPECT_EQ(mostrato(d, campo(&Sezione::spessoreDiaframma)), 800);
    EXPECT_EQ(mostrato(d, campo(&Sezione::armNumLong)), 8);
    EXPECT_EQ(mostrato(d, campo(&Sezione::fck)), 28.5);
    EXPECT_EQ(conservato(campo(&DatiProgetto::gammaN), 18), 1.8);
    EXPECT_EQ(conservato(campo(&DatiProgetto::phiStrato), 30.5), 30.5);
}

// A factor belongs to two units, not to a field.
TEST(TabellaCampi, HasAFactorOfTenWhereTheTwoUnitsDifferAndForTheBarsOfAPile) {
    for (const Campo& c : campi()) {
        const bool diverse = c.unita.conservata != c.unita.mostrata;
        const bool barre = c.membro == Membro(&Sezione::armNumLong);
        EXPECT_EQ(c.unita.fattore, diverse || barre ? 10 : 1) << c.nome;
    }
}

TEST(TabellaCampi, CountsTheRowsOfEachTable) {
    DatiProgetto d;
    d.nStrati = 3;
    d.nTiranti = 2;
    d.nFasi = 4;
    EXPECT_EQ(righe(d, Parte::strati), 3);
    EXPECT_EQ(righe(d, Parte::tiranti), 2);
    EXPECT_EQ(righe(d, Parte::fasi), 4);
    EXPECT_EQ(righe(d, Parte::titoli), 6);
    EXPECT_EQ(righe(d, Parte::paratia), 1);
    EXPECT_TRUE(colonna(campo(&DatiProgetto::descrStrato)));
    EXPECT_FALSE(colonna(campo(&DatiProgetto::nStrati)));
    EXPECT_FALSE(colonna(campo(&Sezione::fyk)));
}

TEST(TabellaCampi, NamesTheCodesOfAFieldByTheirEnumerators) {
    const auto codici = campo(&DatiProgetto::metodoKs).codici;
    ASSERT_EQ(codici.size(), 4u);
    EXPECT_EQ(codici[1].nome, "lancellotta");
    EXPECT_EQ(codici[1].valore, 2);
    EXPECT_EQ(campo(&DatiProgetto::tipoTirante).codici[0].valore, 0);
    for (const Campo& c : campi())
        for (std::size_t i = 1; i < c.codici.size(); ++i)
            EXPECT_EQ(c.codici[i].valore, c.codici[i - 1].valore + 1) << c.nome;
}

TEST(TabellaCampi, LetsTheKindOfAnAnchorBeTypedAsOneOfItsCodes) {
    const auto limiti = campo(&DatiProgetto::tipoTirante).limiti;
    ASSERT_TRUE(limiti);
    EXPECT_EQ(limiti->minimo, 0);
    EXPECT_EQ(limiti->massimo, 1);
}

TEST(TabellaCampi, HasAPartInForceForTheFirstTypeOfASection) {
    EXPECT_EQ(parteInVigore({}), std::nullopt);
    const Parte attese[] = {Parte::diaframma, Parte::pali, Parte::palancola, Parte::paliArmati};
    for (std::size_t i = 0; i < std::size(tipiSezione); ++i) {
        Sezione sezione;
        for (std::size_t j = i; j < std::size(tipiSezione); ++j) sezione.*tipiSezione[j] = true;
        EXPECT_EQ(parteInVigore(sezione), attese[i]) << i;
    }
}

TEST(TabellaCampi, FindsTheCodeThatANumberIs) {
    const Campo& metodo = campo(&DatiProgetto::metodoSpinte);
    EXPECT_EQ(codice(metodo, 3), &metodo.codici[2]);
    EXPECT_EQ(codice(metodo, 3)->nome, "bell");
    for (const double nessuno : {0.0, 1.5, 4.0, -1.0}) EXPECT_EQ(codice(metodo, nessuno), nullptr);
    EXPECT_EQ(codice(campo(&DatiProgetto::coeffM), 1), nullptr) << "a field without codes";
}

TEST(Codici, AreUnequalToANumberThatIsNoneOfThemAndKeepItsOrder) {
    EXPECT_TRUE(2.0 == VincoloPiede::cerniera);
    EXPECT_FALSE(2.5 == VincoloPiede::cerniera);
    EXPECT_FALSE(0.0 == VincoloTesta::libera);
    EXPECT_TRUE(2.5 < MetodoSpinte::bell);
    EXPECT_FALSE(3.0 < MetodoSpinte::bell);
    EXPECT_TRUE(4.0 >= MetodoKs::costante);
    EXPECT_EQ(valore(TipoTirante::trazioneCompressione), 1);
}

TEST(CampoNominato, IsTheFieldAndTheRowOfItsStableName) {
    for (const Campo& campo : campi())
        for (const int riga : {1, 12}) {
            const auto trovato = campoNominato(nomeStabile(campo, riga));
            ASSERT_TRUE(trovato) << campo.nome;
            EXPECT_EQ(trovato->campo, &campo);
            EXPECT_EQ(trovato->riga, colonna(campo) ? riga : 1);
        }
}

TEST(CampoNominato, IsNoneForAnotherText) {
    for (const char* nome : {"", "phi", "phiStrato", "phiStrato[", "phiStrato[x]", "phiStrato[2",
                             "phiStrato[2] ", "rigidezzaEJ[1]", "fck", "titoli[01]"})
        EXPECT_FALSE(campoNominato(nome)) << nome;
}

TEST(Unita, MoveTheDecimalPointByThePlacesOfTheirFactor) {
    EXPECT_EQ(posti(unita::metri), 0);
    EXPECT_EQ(posti(unita::momento), 1);
    EXPECT_EQ(posti(unita::spostamento), 2);
}

TEST(Unita, AreShownInBracketsAfterACaption) {
    EXPECT_EQ(etichetta("Momento", unita::momento), "Momento [kN m]");
    EXPECT_EQ(etichetta("Descrizione", unita::nessuna), "Descrizione");
    EXPECT_EQ(traParentesi(unita::pressione), "[kN/m²]");
    EXPECT_EQ(traParentesi(unita::nessuna), "");
}

// 1 t m2 = 1e4 N x 1e6 mm2.
TEST(Unita, OfTheSectionAreNewtonsAndMillimetres) {
    EXPECT_EQ(millimetriMetro, 1000);
    EXPECT_EQ(newton, 1e4);
    EXPECT_EQ(newtonMillimetri, 1e7);
    EXPECT_EQ(newtonMillimetri2, 1e10);
}

TEST(Unita, ConvertByOneProductEach) {
    EXPECT_EQ(mostrato(unita::spostamento, 0.0123), 0.0123 * 100);

    EXPECT_EQ(inKilonewton(1.23), 1.23 * 10);
    EXPECT_EQ(inMillimetri(0.21), 0.21 * 10);
    EXPECT_EQ(inCentimetri(0.0123), 0.0123 * 100);
}

}  // namespace
}  // namespace korven::project
