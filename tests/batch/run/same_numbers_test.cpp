// One wall told in four ways: JSON, CSV, the annex and the sheets of `tabelle` hold the same
// numbers.

#include <algorithm>
#include <charconv>
#include <cmath>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <sstream>
#include <variant>

#include "batch/batch_bench.hpp"
#include "dossier/dossier.hpp"
#include "report/annex/annex.hpp"
#include "support/result_tables.hpp"
#include "support/wall_files.hpp"
#include "workbook/sheets.hpp"

namespace korven::batch {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;
using tables::Prospetto;

// Half of the last digit of the JSON, in kN.
constexpr double arrotondamento = 6e-7;

// The quantities of a node in the JSON, and what they are multiplied by in the tables of people.
struct Grandezza {
    const char* json;
    double fattore;
};
constexpr Grandezza grandezze[] = {
    {"spostamento_m", 1000}, {"momento_kNm", 1},         {"taglio_sopra_kN", 1},
    {"taglio_sotto_kN", 1},  {"pressione_monte_kPa", 1}, {"pressione_valle_kPa", 1},
    {"acqua_kPa", 1}};

class StessiNumeri : public test::BancoConsole {
 protected:
    void leggi(const std::string& file) {
        fs::copy_file(file, progetto, fs::copy_options::overwrite_existing);
        const std::string csv = cartella / "e.csv";
        const auto esito = console({"equilibrio", progetto, "--json", "--silenzioso", "--csv", csv},
                                   base::discoDiSistema());
        fasi = Json::parse(esito.uscita)["equilibrio"]["fasi"];
        tabella = test::contenuto(csv);
        f = dossier::fascicolo(test::leggiMuro(file));
    }

    // The numbers of a node in a row of a table that begins with node and depth at column `da`.
    void uguale(const std::vector<tables::Cella>& riga, std::size_t da, const Json& nodi) const {
        const auto i = static_cast<std::size_t>(riga[da].numero.value() - 1);
        EXPECT_EQ(riga[da + 1].numero, nodi["z_m"][i].get<double>());
        const auto vicini = [&](std::size_t colonna, const Grandezza& g) {
            EXPECT_NEAR(riga.at(colonna).numero.value(), g.fattore * nodi[g.json][i].get<double>(),
                        arrotondamento)
                << g.json << " nodo " << i + 1;
        };
        std::size_t colonna = da + 2;
        for (const Grandezza& g : grandezze) {
            vicini(colonna, g);
            // Of a wall without anchors one column holds both shears.
            if (f.tiranti.empty() && std::string_view(g.json) == "taglio_sopra_kN") continue;
            ++colonna;
        }
        EXPECT_EQ(std::fabs(nodi["taglio_kN"][i].get<double>()),
                  std::max(std::fabs(nodi["taglio_sopra_kN"][i].get<double>()),
                           std::fabs(nodi["taglio_sotto_kN"][i].get<double>())));
    }

    class InSilenzio : public analysis::OsservatoreCorsa {
    } osservatore;
    Json fasi;
    std::string tabella;
    dossier::Fascicolo f;
};

// The tables of an annex whose first columns are those.
std::vector<Prospetto> tavole(const document::Documento& documento,
                              const std::vector<std::string>& colonne) {
    std::vector<Prospetto> trovate;
    for (const auto& blocco : documento.blocchi) {
        const auto* tavola = std::get_if<document::Tavola>(&blocco);
        if (tavola == nullptr || tavola->prospetto.colonne.size() < colonne.size()) continue;
        if (std::equal(colonne.begin(), colonne.end(), tavola->prospetto.colonne.begin(),
                       [](const auto& titolo, const auto& c) { return titolo == c.titolo; }))
            trovate.push_back(tavola->prospetto);
    }
    return trovate;
}

TEST_F(StessiNumeri, StandInJsonAndAnnexForEveryNodeOfEveryExample) {
    for (const std::string& file : test::muriIn(KORVEN_EXAMPLES)) {
        SCOPED_TRACE(file);
        leggi(file);
        const auto annesso = tavole(report::allegato(f), {"Nodo", "z", "Spostamento"});
        ASSERT_EQ(annesso.size(), fasi.size());
        for (std::size_t k = 0; k < fasi.size(); ++k) {
            EXPECT_LE(annesso[k].righe.size(), 51U);
            EXPECT_GT(annesso[k].righe.size(), 10U);
            for (const auto& riga : annesso[k].righe) uguale(riga, 0, fasi[k]["nodi"]);
        }
    }
}

TEST_F(StessiNumeri, StandInTheTableOfTheEquilibriumWithAllTheirDigits) {
    for (const std::string& file : test::muriIn(KORVEN_EXAMPLES)) {
        SCOPED_TRACE(file);
        leggi(file);
        std::istringstream righe(tabella);
        std::string riga;
        std::getline(righe, riga);
        EXPECT_EQ(riga.substr(0, 30), "fase,nodo,z_m,y_m,M_kNm,T_kN,p");
        for (const auto& fase : f.parete.fasi)
            for (std::size_t i = 0; i < fase.y.size(); ++i) {
                ASSERT_TRUE(std::getline(righe, riga));
                const double attesi[] = {static_cast<double>(fase.fase),
                                         static_cast<double>(i + 1),
                                         static_cast<double>(i) * f.parete.h,
                                         fase.y[i],
                                         10 * fase.momento[i],
                                         10 * fase.taglio[i],
                                         10 * fase.monte[i],
                                         10 * fase.valle[i],
                                         10 * fase.acqua[i],
                                         10 * fase.costante};
                const char* da = riga.data();
                for (const double atteso : attesi) {
                    double letto = -1;
                    da = std::from_chars(da, riga.data() + riga.size(), letto).ptr + 1;
                    EXPECT_EQ(letto, atteso) << riga;
                }
            }
        EXPECT_FALSE(std::getline(righe, riga));
    }
}

TEST_F(StessiNumeri, AreThoseOfTheAnchorsInEachStageAndAtTheirLargest) {
    int tiranti = 0;
    for (const std::string& file : test::muriIn(KORVEN_EXAMPLES)) {
        SCOPED_TRACE(file);
        leggi(file);
        if (f.tiranti.empty()) continue;
        const auto documento = report::allegato(f);
        const auto elenco = tavole(documento, {"Elemento", "A fine fase di posa", "Massima"});
        ASSERT_EQ(elenco.size(), 1U);
        // "Tirante 1" or "Puntone 1".
        const auto perFase = tavole(documento, {"Fase", elenco[0].righe.at(0).at(0).testo});
        ASSERT_EQ(perFase.size(), 1U);
        for (std::size_t t = 0; t < f.tiranti.size(); ++t) {
            double massimo = 0;
            for (std::size_t k = 0; k < fasi.size(); ++k) {
                const Json& tiri = fasi[k]["tiri_kN"];
                const auto& cella = perFase[0].righe.at(k).at(t + 1);
                EXPECT_EQ(cella.numero.has_value(), t < tiri.size());
                if (t >= tiri.size()) continue;
                EXPECT_NEAR(*cella.numero, tiri[t].get<double>(), arrotondamento);
                massimo = std::max(massimo, tiri[t].get<double>());
                ++tiranti;
            }
            const auto massima = [&](const Prospetto& p) {
                for (std::size_t c = 0; c < p.colonne.size(); ++c)
                    if (p.colonne[c].titolo.rfind("Massima", 0) == 0)
                        return p.righe.at(t)[c].numero.value_or(-1);
                ADD_FAILURE() << "nessuna colonna";
                return -1.0;
            };
            EXPECT_NEAR(massima(elenco[0]), massimo, arrotondamento);
        }
    }
    EXPECT_GT(tiranti, 10);
}

TEST_F(StessiNumeri, AreThoseOfTheEnvelopes) {
    for (const std::string& file : test::muriIn(KORVEN_EXAMPLES)) {
        SCOPED_TRACE(file);
        leggi(file);
        const auto annesso = tavole(report::allegato(f), {"Nodo", "z", "Spostamento min."});
        ASSERT_EQ(annesso.size(), 1U);
        ASSERT_EQ(annesso[0].righe.size(), 51U);
        for (std::size_t i = 0; i < 51; ++i) {
            std::size_t colonna = 2;
            for (const std::vector<Grandezza>& lati :
                 {std::vector{grandezze[0]}, {grandezze[1]}, {grandezze[2], grandezze[3]}}) {
                double minimo = 1e30, massimo = -1e30;
                for (const Json& fase : fasi)
                    for (const auto& [nome, fattore] : lati) {
                        const double valore = fattore * fase["nodi"][nome][i].get<double>();
                        minimo = std::min(minimo, valore);
                        massimo = std::max(massimo, valore);
                    }
                EXPECT_NEAR(annesso[0].righe[i][colonna++].numero.value(), minimo, arrotondamento);
                EXPECT_NEAR(annesso[0].righe[i][colonna++].numero.value(), massimo, arrotondamento);
            }
        }
    }
}

// Whatever the mesh, the heads of a printed page have room for no more.
TEST_F(StessiNumeri, StandInAtMost51RowsOfTheAnnexWhateverTheMesh) {
    const auto dati = test::leggiMuro(std::string(KORVEN_EXAMPLES) + "/diaframma_due_ordini.kvd");
    for (const int nSeg : {3, 50, 100, 249}) {
        const auto piu = dossier::fascicolo(
            {.scritti = dati, .usati = dati, .nSeg = nSeg, .identita = {}, .sulProgetto = {}},
            osservatore);
        const auto documento = report::allegato(piu);
        auto tutte = tavole(documento, {"Nodo", "z", "Spostamento"});
        const auto inviluppi = tavole(documento, {"Nodo", "z", "Spostamento min."});
        EXPECT_EQ(tutte.size(), piu.parete.fasi.size());
        EXPECT_EQ(inviluppi.size(), 1U);
        tutte.insert(tutte.end(), inviluppi.begin(), inviluppi.end());
        for (const auto& tavola : tutte) {
            EXPECT_LE(tavola.righe.size(), 51U) << nSeg;
            EXPECT_GE(tavola.righe.size(), std::min<std::size_t>(nSeg + 1, 26)) << nSeg;
            EXPECT_EQ(tavola.righe.back()[0].numero, nSeg + 1) << "the toe is among them";
        }
    }
}

// A sheet by its name in files; nothing where a workbook lacks it.
const Prospetto& foglio(const workbook::CartellaFogli& libro, std::string_view nome) {
    for (const auto& f : libro.fogli)
        if (f.nome.italiano == nome) return f.prospetto;
    throw std::out_of_range(std::string(nome));
}

// By its title: further columns may stand between them.
const tables::Cella& sotto(const Prospetto& p, std::size_t riga, std::string_view titolo) {
    for (std::size_t c = 0; c < p.colonne.size(); ++c)
        if (p.colonne[c].titolo == titolo) return p.righe.at(riga).at(c);
    throw std::out_of_range(std::string(titolo));
}

TEST_F(StessiNumeri, StandInTheSheetsForEveryNodeOfEveryStage) {
    for (const std::string& file : test::muriIn(KORVEN_EXAMPLES)) {
        SCOPED_TRACE(file);
        leggi(file);
        const auto libro = workbook::fogli(f);
        const Prospetto& nodi = foglio(libro, "nodi");
        std::size_t r = 0;
        for (std::size_t k = 0; k < fasi.size(); ++k) {
            const Json& suoi = fasi[k]["nodi"];
            for (std::size_t i = 0; i < suoi["z_m"].size(); ++i, ++r) {
                EXPECT_EQ(sotto(nodi, r, "Fase").numero, k + 1);
                EXPECT_EQ(sotto(nodi, r, "Nodo").numero, i + 1);
                EXPECT_EQ(sotto(nodi, r, "z").numero, suoi["z_m"][i].get<double>());
                const bool tiranti = !f.tiranti.empty();  // shear has two columns then
                for (const auto& [titolo, g] : {std::pair{"Spostamento", 0},
                                                {"Momento", 1},
                                                {tiranti ? "Taglio sopra" : "Taglio", 2},
                                                {tiranti ? "Taglio sotto" : "Taglio", 3},
                                                {"Acqua", 6}})
                    EXPECT_NEAR(sotto(nodi, r, titolo).numero.value(),
                                grandezze[g].fattore * suoi[grandezze[g].json][i].get<double>(),
                                arrotondamento)
                        << titolo << " riga " << r;
            }
        }
        EXPECT_EQ(nodi.righe.size(), r) << "and no other rows";
    }
}

TEST_F(StessiNumeri, StandInTheSheetOfTheEnvelope) {
    for (const std::string& file : test::muriIn(KORVEN_EXAMPLES)) {
        SCOPED_TRACE(file);
        leggi(file);
        const auto libro = workbook::fogli(f);
        const Prospetto& inviluppo = foglio(libro, "inviluppo");
        ASSERT_EQ(inviluppo.righe.size(), fasi[0]["nodi"]["z_m"].size());
        for (std::size_t i = 0; i < inviluppo.righe.size(); ++i)
            for (const auto& [titolo, g] : {std::pair{"Spostamento", 0}, {"Momento", 1}}) {
                double minimo = 1e30, massimo = -1e30;
                for (const Json& fase : fasi) {
                    const double valore =
                        grandezze[g].fattore * fase["nodi"][grandezze[g].json][i].get<double>();
                    minimo = std::min(minimo, valore);
                    massimo = std::max(massimo, valore);
                }
                const std::string quale = titolo;
                EXPECT_NEAR(sotto(inviluppo, i, quale + " min.").numero.value(), minimo,
                            arrotondamento);
                EXPECT_NEAR(sotto(inviluppo, i, quale + " max.").numero.value(), massimo,
                            arrotondamento);
            }
    }
}

TEST_F(StessiNumeri, StandInTheSheetOfTheAnchors) {
    int tiranti = 0;
    for (const std::string& file : test::muriIn(KORVEN_EXAMPLES)) {
        SCOPED_TRACE(file);
        leggi(file);
        const auto libro = workbook::fogli(f);
        const Prospetto& elenco = foglio(libro, "tiranti");
        ASSERT_EQ(elenco.righe.size(), f.tiranti.size());
        for (std::size_t t = 0; t < elenco.righe.size(); ++t)
            for (std::size_t k = 0; k < fasi.size(); ++k) {
                const Json& tiri = fasi[k]["tiri_kN"];
                const auto& cella = sotto(elenco, t, "Fase " + std::to_string(k + 1));
                EXPECT_EQ(cella.numero.has_value(), t < tiri.size());
                if (t >= tiri.size()) {
                    EXPECT_FALSE(cella.perche.empty()) << "says why it is empty";
                    continue;
                }
                EXPECT_NEAR(*cella.numero, tiri[t].get<double>(), arrotondamento);
                ++tiranti;
            }
    }
    EXPECT_GT(tiranti, 10);
}

// A number as it is printed.
double stampato(const tables::Cella& cella) { return std::stod(cella.testo); }

const std::vector<tables::Cella>* rigaDi(const Prospetto& p, const std::string& nome) {
    for (const auto& riga : p.righe)
        if (riga[0].testo == nome) return &riga;
    return nullptr;
}

// A checker with the printed pressures and a pencil: p h, half of it at both ends, gives the lines
// of the balance, and its lines add up to nothing. What is allowed is half of the last digit of
// each number that goes in.
TEST_F(StessiNumeri, LetTheBalanceBeRedoneFromThePrintedPressures) {
    struct Parte {
        const char *colonna, *riga;
    };
    int incastri = 0;
    for (const std::string& file : test::muriIn(KORVEN_EXAMPLES)) {
        f = dossier::fascicolo(test::leggiMuro(file));
        const auto documento = report::allegato(f, {.righe = 1000});
        const auto nodi = tavole(documento, {"Nodo", "z", "Spostamento"});
        const auto bilanci = tavole(documento, {"Che cosa agisce", "Forza", "Momento", "z"});
        ASSERT_EQ(nodi.size(), bilanci.size());
        const double L = f.parete.dati.lunghezzaParatia, h = f.parete.h, mezza = 0.0051;
        for (std::size_t k = 0; k < nodi.size(); ++k) {
            SCOPED_TRACE(file + " fase " + std::to_string(k + 1));
            for (const auto& [colonna, nome] :
                 {Parte{"Monte", "Terreno a monte"}, Parte{"Valle", "Terreno a valle"},
                  Parte{"Acqua", "Acqua"}}) {
                const auto* riga = rigaDi(bilanci[k], nome);
                ASSERT_NE(riga, nullptr);
                const std::size_t c = test::posto(nodi[k], colonna);
                double forza = 0, momento = 0;
                for (std::size_t i = 0; i < nodi[k].righe.size(); ++i) {
                    const bool estremo = i == 0 || i + 1 == nodi[k].righe.size();
                    const double F = stampato(nodi[k].righe[i][c]) * (estremo ? h / 2 : h);
                    forza += F;
                    momento += F * static_cast<double>(i) * h;
                }
                EXPECT_NEAR(forza, stampato((*riga)[1]), mezza * L + mezza) << nome;
                EXPECT_NEAR(momento, stampato((*riga)[2]), mezza * L * L / 2 + mezza) << nome;
            }
            double somma = 0, momenti = 0;
            for (const auto& riga : bilanci[k].righe) {
                somma += stampato(riga[1]);
                momenti += stampato(riga[2]);
            }
            const double entro = mezza * static_cast<double>(bilanci[k].righe.size());
            EXPECT_NEAR(somma, 0, entro);
            EXPECT_NEAR(momenti, 0, entro);
            if (rigaDi(bilanci[k], "Momento d'incastro al piede") != nullptr) ++incastri;
        }
    }
    EXPECT_GT(incastri, 3);
}

}  // namespace
}  // namespace korven::batch
