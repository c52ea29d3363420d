#include "review/project_review.hpp"

#include "project/codes.hpp"
#include "review/bench.hpp"
#include "support/wall_builder.hpp"

namespace korven::review {
namespace {

using project::MetodoKs;
using project::MetodoSpinte;
using project::ModoKs;
using project::ModoSpinte;
using project::ModoTensioni;
using project::TipoTirante;
using project::VincoloPiede;
using project::VincoloTesta;

TEST(EsaminaProgetto, FindsNothingInASoundProject) {
    EXPECT_EQ(righe(test::progettoSemplice()), std::vector<std::string>{});
    EXPECT_TRUE(calcolabile({}));
}

TEST(EsaminaProgetto, TellsEveryFailedInputCheckOfARunNotTheFirstAlone) {
    DatiProgetto d = test::progettoVuoto();
    test::primiCodici(d);
    EXPECT_EQ(
        righe(d),
        (std::vector<std::string>{
            "! Non è ancora stata definita la lunghezza della paratia, i calcoli non possono "
            "pertanto essere eseguiti.",
            "! Non è ancora stata definita la stratigrafia del terreno, i calcoli non possono "
            "pertanto essere eseguiti.",
            "! Non sono ancora state definite le fasi di scavo, i calcoli non possono "
            "pertanto essere eseguiti.",
            "! Il valore di EJ non è ancora stato definito."}));
}

TEST(EsaminaProgetto, NamesTheFieldOfEachFailedInputCheck) {
    DatiProgetto d = test::progettoVuoto();
    test::primiCodici(d);
    std::vector<std::vector<std::string>> campi;
    for (const auto& o : osservazioni(d)) campi.push_back(o.campi);
    EXPECT_EQ(campi, (std::vector<std::vector<std::string>>{
                         {"lunghezzaParatia"}, {"nStrati"}, {"nFasi"}, {"rigidezzaEJ"}}));
}

TEST(EsaminaProgetto, RefusesBowlesOnALayerWithoutFriction) {
    aspetta({{[](DatiProgetto& d) {
                  d.metodoKs = valore(MetodoKs::bowles);
                  d.ksStrato[1] = d.ksStrato[2] = d.phiStrato[2] = 0;
              },
              {"! Con il metodo scelto per il calcolo di Ks non sono ammessi angoli di attrito "
               "nulli."}},
             {[](DatiProgetto& d) { d.phiStrato[2] = 0; }, {}}});
}

TEST(EsaminaProgetto, RefusesAnUnusableNumberOfSegmentsInTheMannerOfTheInputChecks) {
    const std::vector<std::string> rifiuto = {
        "! Il numero di segmenti indicato con l'opzione --nseg non è ammesso (un intero da 3 a "
        "249, "
        "con il piede incastrato da 3 a 248), i calcoli non possono pertanto essere eseguiti."};
    for (const char* nSeg : {"2", "250", "-5", "0", "dieci", "", "20.5"})
        EXPECT_EQ(righe(test::progettoSemplice(), nSeg), rifiuto) << nSeg;
    for (const char* nSeg : {"3", "249", " 20", "20 segmenti"})
        EXPECT_TRUE(calcolabile(osservazioni(test::progettoSemplice(), nSeg))) << nSeg;
    const auto incastro =
        conModifica([](DatiProgetto& d) { d.vincoloPiede = valore(VincoloPiede::incastro); });
    EXPECT_EQ(righe(incastro, "249"), rifiuto);
    EXPECT_TRUE(calcolabile(osservazioni(incastro, "248")));
}

TEST(EsaminaProgetto, NamesEachCodeOutOfRangeAndWhatItComesTo) {
    aspetta({
        {[](DatiProgetto& d) { d.vincoloTesta = 3; },
         {"vincolo in testa = 3: codice non previsto: la testa conta come libera (1)"}},
        {[](DatiProgetto& d) { d.vincoloPiede = 4; },
         {"vincolo al piede = 4: codice non previsto: il piede conta come libero (1)"}},
        {[](DatiProgetto& d) { d.modoSpinte = 0; },
         {"opzione delle spinte = 0: codice non previsto: le spinte sono ricalcolate ad ogni fase "
          "(1)"}},
        {[](DatiProgetto& d) { d.modoKs = -1; },
         {"opzione di ks = -1: codice non previsto: ks è ricalcolato ad ogni fase (1)"}},
        {[](DatiProgetto& d) { d.modoTensioni = 1.5; },
         {"opzione delle tensioni = 1.5: codice non previsto: si calcola in tensioni totali (2)",
          "opzione delle tensioni = 1.5, strati 1, 2: Phi [°] = 30, 34: con attrito sotto l'acqua "
          "le "
          "tensioni totali contano l'acqua due volte, nel peso del terreno e come spinta: usare le "
          "tensioni efficaci, o Phi = 0 con la coesione non drenata"}},
        {[](DatiProgetto& d) { d.metodoSpinte = 4; },
         {"metodo delle spinte = 4: codice non previsto: i coefficienti di spinta attiva e passiva "
          "restano nulli"}},
        {[](DatiProgetto& d) { d.metodoKs = 5; },
         {"metodo di ks = 5: codice non previsto: il terreno non ha rigidezza"}},
        {[](DatiProgetto& d) { d.tipoTirante[1] = 2; },
         {"tirante 1: tipo non previsto: il calcolo lo fa agire solo a trazione, la relazione lo "
          "dice a trazione e compressione (2)"}},
        {[](DatiProgetto& d) {
             d.vincoloTesta = valore(VincoloTesta::cerniera);
             d.vincoloPiede = valore(VincoloPiede::incastro);
             d.modoSpinte = valore(ModoSpinte::comeMonte);
             d.modoKs = valore(ModoKs::comeMonte);
             d.modoTensioni = valore(ModoTensioni::totali);
             d.faldaMonte = d.faldaFase[1] = d.faldaFase[2] = 13;  // below the toe
             d.metodoSpinte = valore(MetodoSpinte::coulomb);
             d.metodoKs = valore(MetodoKs::lineare);
             d.profStrato[1] = 12;
             d.tipoTirante[1] = valore(TipoTirante::trazioneCompressione);
         },
         {}},
    });
}

// What the review says of an unknown code is what a run makes of it.
TEST(EsaminaProgetto, SaysOfUnknownCodesWhatTheRunDoesWithThem) {
    const std::pair<Modifica, Modifica> coppie[] = {
        {[](DatiProgetto& d) { d.vincoloTesta = 3; },
         [](DatiProgetto& d) { d.vincoloTesta = valore(VincoloTesta::libera); }},
        {[](DatiProgetto& d) { d.vincoloPiede = 4; },
         [](DatiProgetto& d) { d.vincoloPiede = valore(VincoloPiede::libero); }},
        {[](DatiProgetto& d) { d.modoSpinte = 0; },
         [](DatiProgetto& d) { d.modoSpinte = valore(ModoSpinte::ricalcolate); }},
        {[](DatiProgetto& d) { d.modoKs = -1; },
         [](DatiProgetto& d) { d.modoKs = valore(ModoKs::ricalcolato); }},
        {[](DatiProgetto& d) { d.modoTensioni = 1.5; },
         [](DatiProgetto& d) { d.modoTensioni = valore(ModoTensioni::totali); }},
    };
    for (const auto& [ignoto, noto] : coppie) {
        std::vector<double> spostamenti[2];
        for (int i = 0; i < 2; ++i) {
            test::Banco banco(conModifica(i == 0 ? ignoto : noto), 20);
            banco.calcola();
            for (const auto& fase : banco.leggi())
                for (int nodo = 1; nodo <= 21; ++nodo) spostamenti[i].push_back(fase.yNodo[nodo]);
        }
        EXPECT_EQ(spostamenti[0], spostamenti[1]);
    }
}

// Shown in kN such values are too large for a number.
TEST(EsaminaProgetto, BearsTheLargestNumbersInAnyField) {
    project::Sezione paliArmati;
    paliArmati.tipoPaliArmati = true;
    for (const double enorme : {1.7e308, -1.7e308}) {
        for (const auto colonna :
             {&DatiProgetto::profStrato, &DatiProgetto::gammaN, &DatiProgetto::gammaSat,
              &DatiProgetto::phiStrato, &DatiProgetto::coesione, &DatiProgetto::ksStrato})
            EXPECT_NO_THROW(righe(conModifica([&](auto& d) { (d.*colonna)[1] = enorme; })));
        for (const auto colonna : {&DatiProgetto::profTirante, &DatiProgetto::rigTirante,
                                   &DatiProgetto::pretTirante, &DatiProgetto::tipoTirante})
            EXPECT_NO_THROW(righe(conModifica([&](auto& d) { (d.*colonna)[1] = enorme; })));
        for (const auto campo :
             {&DatiProgetto::rigidezzaEJ, &DatiProgetto::sovraccMonte, &DatiProgetto::gammaAcqua,
              &DatiProgetto::lunghezzaParatia, &DatiProgetto::inclinazioneMonte,
              &DatiProgetto::faldaMonte, &DatiProgetto::coeffM, &DatiProgetto::metodoKs})
            EXPECT_NO_THROW(righe(conModifica([&](auto& d) { d.*campo = enorme; })));
        EXPECT_NO_THROW(righe(conModifica([&](auto& d) {
            d.profFase[1] = d.tirantiFase[1] = d.sovraccFase[1] = d.faldaFase[1] = -enorme;
            d.sezione = paliArmati;
            d.sezione.armDiamPalo = 1;
            d.sezione.armCopriferro = d.sezione.armPassoStaffe = d.sezione.armNumLong = enorme;
        })));
    }
}

TEST(EsaminaProgetto, PutsWhatPreventsARunInFrontOfTheRest) {
    const auto d = conModifica([](DatiProgetto& p) {
        p.vincoloTesta = 9;
        p.rigidezzaEJ = 0;
    });
    const auto rilievi = esaminaProgetto(d);
    ASSERT_EQ(rilievi.size(), 2u);
    EXPECT_TRUE(rilievi[0].impedisce());
    EXPECT_FALSE(rilievi[1].impedisce());
    EXPECT_FALSE(calcolabile(rilievi));
}

}  // namespace
}  // namespace korven::review
