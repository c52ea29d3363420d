// The names of commands, options and values in two languages: either is understood, that of the
// language in use is shown.

#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <tuple>

#include "base/files.hpp"
#include "batch/options/common_options.hpp"
#include "reading_bench.hpp"

namespace korven::batch {
namespace {

using test::InLingua;
using test::leggi;

using base::Gemelli;
using Coppia = std::pair<std::string, std::string>;
using Nome = std::string_view Gemelli::*;

// A value that the option takes, by the name in one of the languages if it has any.
std::string valoreDi(const RigaOpzione& opzione, Nome nome) {
    static const test::CartellaProvvisoria cartella;
    if (!opzione.valori.empty()) return std::string(opzione.valori.back().*nome);
    if (opzione.nome.italiano == nomeOpzioneCartella.italiano) return cartella.percorso();
    if (opzione.nome.italiano == "--formati") return "svg";
    if (opzione.nome.italiano == nomeOpzioneData.italiano) return "2026-11-22";
    if (opzione.valore.italiano == "campo=valore") return "nFasi=1";
    for (const char* positivo : {"F", "M", "KN"})
        if (opzione.valore.italiano == positivo) return "1.5";
    if (opzione.nome.italiano == "--parte") return "2/3";
    return opzione.valore.italiano == "N" ? "20" : "nome";
}

// The command with all its options, named by `nome`.
std::vector<std::string> interoComando(const RigaComando& riga, Nome nome) {
    std::vector<std::string> argomenti = {std::string(riga.nome.*nome)};
    for (const auto& opzione : riga.opzioni) {
        if (!opzione.perPosto()) argomenti.emplace_back(opzione.nome.*nome);
        if (!std::holds_alternative<Segna>(opzione.azione))
            argomenti.push_back(valoreDi(opzione, nome));
    }
    return argomenti;
}

auto tutte(const Opzioni& o) {
    return std::tuple(
        o.comando, o.progetto, o.uscita, o.ricalcolaEJ, o.metodoSpinte, o.nseg, o.json,
        o.silenzioso, o.traccia, o.maxIterazioni, o.tipo, o.fase, o.relazione.testo,
        o.relazione.documento, o.relazione.pdf, o.relazione.stampante, o.disegno.file(),
        o.disegno.dpi, o.disegno.foglio.larghezza, o.disegno.foglio.altezza, o.formati, o.csv,
        o.allegato.file(), o.allegato.righe, o.data, o.tabelle.xlsx, o.tabelle.csv, o.assegnazioni,
        o.progettoNuovo, o.lunghezza.riduzione, o.lunghezza.finoA, o.bloccaggio.forza, o.norma,
        o.natura.monte, o.natura.scavo, o.natura.testa, o.serie.piano, o.serie.griglie,
        o.serie.leggi, o.serie.rho, o.serie.campioni, o.serie.seme, o.serie.ipercubo,
        o.serie.uscita, o.serie.riprendi, o.serie.senzaLimite, o.serie.parte, o.serie.parti,
        o.serie.fili, o.serie.colonne, o.serie.grafico, o.serie.sicurezza, o.serie.iterazione,
        o.serie.controllo);
}

// Words of a help: names are parted by blanks, commas, bars and brackets.
std::set<std::string, std::less<>> parole(const std::string& testo) {
    std::set<std::string, std::less<>> trovate;
    for (std::size_t da = 0;
         (da = testo.find_first_not_of(" \n,|[]():=", da)) != std::string::npos;) {
        const auto fine = std::min(testo.find_first_of(" \n,|[]():=", da), testo.size());
        trovate.insert(testo.substr(da, fine - da));
        da = fine;
    }
    return trovate;
}

// All names that differ, of commands, options and values.
std::set<Coppia> coppie() {
    std::set<Coppia> trovate = {{"--aiuto", "--help"}, {"--versione", "--version"}};
    const auto metti = [&](const Gemelli& g) {
        if (g.italiano != g.inglese) trovate.emplace(g.italiano, g.inglese);
    };
    for (const auto& riga : comandi()) {
        metti(riga.nome);
        for (const auto& opzione : riga.opzioni) {
            if (opzione.perPosto()) continue;
            metti(opzione.nome);
            for (const auto& valore : opzione.valori) metti(valore);
        }
    }
    return trovate;
}

TEST(Nomi, OfEitherLanguageAskForTheSameInEveryLanguage) {
    for (const char* sigla : {"ita", "eng", "fra"}) {
        const InLingua lingua(sigla);
        for (const auto& riga : comandi()) {
            const auto italiana = leggi(interoComando(riga, &Gemelli::italiano));
            const auto inglese = leggi(interoComando(riga, &Gemelli::inglese));
            ASSERT_TRUE(italiana.esito.opzioni) << italiana.errori;
            ASSERT_TRUE(inglese.esito.opzioni) << inglese.errori;
            EXPECT_EQ(italiana.esito.opzioni->comando, &riga);
            EXPECT_EQ(tutte(*italiana.esito.opzioni), tutte(*inglese.esito.opzioni))
                << riga.nome.italiano;
        }
    }
}

TEST(Nomi, OfEveryValueOfAClosedListAreTwins) {
    for (const auto& riga : comandi())
        for (const auto& opzione : riga.opzioni)
            for (const auto& valore : opzione.valori)
                for (const auto& nome : {valore.italiano, valore.inglese}) {
                    auto argomenti = interoComando(riga, &Gemelli::inglese);
                    const auto posto =
                        std::find(argomenti.begin(), argomenti.end(), opzione.nome.inglese);
                    ASSERT_NE(posto, argomenti.end());
                    *(posto + 1) = nome;
                    EXPECT_TRUE(leggi(argomenti).esito.opzioni) << nome;
                }
}

TEST(Nomi, ThatTheHelpShowsAreThoseOfTheLanguageInUseAndNoOthers) {
    const std::map<std::string, bool> lingue = {{"ita", true},  {"eng", false}, {"deu", false},
                                                {"fra", false}, {"esp", false}, {"por", false}};
    for (const auto& [sigla, italiano] : lingue) {
        const InLingua lingua(sigla);
        const auto generale = parole(leggi({"--help"}).uscita);
        for (const auto& riga : comandi()) {
            EXPECT_TRUE(generale.contains(riga.nome.mostrato())) << sigla;
            const auto aiuto = parole(leggi({std::string(riga.nome.italiano), "--aiuto"}).uscita);
            EXPECT_EQ(parole(leggi({std::string(riga.nome.inglese), "--help"}).uscita), aiuto);
            EXPECT_EQ(aiuto.contains("--aiuto"), italiano);
            EXPECT_TRUE(aiuto.contains("--help"));
            for (const auto& opzione : riga.opzioni) {
                const auto& [ita, eng] = opzione.nome;
                EXPECT_TRUE(aiuto.contains(italiano ? ita : eng)) << sigla << ' ' << ita;
                if (ita != eng && !opzione.perPosto()) {
                    EXPECT_FALSE(aiuto.contains(italiano ? eng : ita)) << sigla << ' ' << ita;
                }
                for (const auto& [uno, altro] : opzione.valori)
                    EXPECT_TRUE(aiuto.contains(italiano ? uno : altro)) << sigla << ' ' << uno;
            }
        }
    }
}

TEST(Nomi, OfTheHelpHaveTheirExplanationInEveryLanguage) {
    const auto italiano = leggi({"tutto", "--help"}).uscita;
    EXPECT_TRUE(test::dice(italiano, "formati dei disegni")) << italiano;
    const InLingua lingua("deu");
    const auto tedesco = leggi({"tutto", "--help"}).uscita;
    EXPECT_TRUE(test::dice(tedesco, "korven32c all [")) << tedesco;
    EXPECT_TRUE(test::dice(tedesco, "Punkte je Zoll der PNG-Dateien")) << tedesco;
    EXPECT_FALSE(test::dice(tedesco, "formati dei disegni")) << tedesco;
}

TEST(Nomi, InMessagesAreThoseOfTheLanguageInUseWhicheverWereTyped) {
    const auto italiano = leggi({"calculate", "muro.kvd", "--pressures", "culmann"}).errori;
    EXPECT_TRUE(test::dice(italiano, "--metodo-spinte culmann (bell|coulomb|rankine)"));
    EXPECT_TRUE(test::dice(leggi({"diagram", "muro.kvd", "--dxf", "m.dxf"}).errori,
                           "manca un argomento: --tipo\n"));
    EXPECT_TRUE(test::dice(leggi({"all", "muro.kvd", "--output"}).errori,
                           "manca il valore di un'opzione: --uscita\n"));
    const InLingua lingua("eng");
    EXPECT_TRUE(test::dice(leggi({"diagramma", "muro.kvd", "--dxf", "m.dxf"}).errori,
                           "an argument is missing: --type\n"));
    EXPECT_TRUE(test::dice(leggi({"calcola", "muro.kvd", "--ej", "forse"}).errori,
                           "value not allowed: --ej forse (keep|recalculate)\n"));
    EXPECT_TRUE(test::dice(leggi({"calcola"}).errori, "PROJECT.kvd\n"));
    EXPECT_TRUE(test::dice(
        leggi({"disegna"}).errori,
        ": calculate, report, annex, check, equilibrium, safety, combinations, tables, diagram, "
        "section, log, hatches, all, compare, fields, set, length, lockoff, series, selfcheck\n"));
}

TEST(Nomi, GivenTwiceAreOneOptionGivenTwice) {
    EXPECT_TRUE(
        test::dice(leggi({"calcola", "m.kvd", "--lingua", "ita", "--language", "eng"}).errori,
                   "un'opzione è data più volte: --lingua\n"));
}

TEST(Nomi, AreInTheTableOfTheManualAllOfThemAndNoOthers) {
    const std::string manuale = base::leggiFile(KORVEN_DOCS "/batch.md");
    const std::string titolo = "\n## Names in two languages\n";
    const auto inizio = manuale.find(titolo);
    ASSERT_NE(inizio, std::string::npos);
    const auto fine = manuale.find("\n## ", inizio + titolo.size());
    const auto sezione = manuale.substr(inizio, fine - inizio);
    std::set<Coppia> scritte;
    for (std::size_t da = sezione.find("\n| `"); da != std::string::npos;
         da = sezione.find("\n| `", da + 1)) {
        const auto meta = sezione.find("` | `", da), capo = sezione.find("` |\n", meta + 1);
        ASSERT_NE(capo, std::string::npos);
        scritte.emplace(sezione.substr(da + 4, meta - da - 4),
                        sezione.substr(meta + 5, capo - meta - 5));
    }
    EXPECT_EQ(scritte, coppie());
}

}  // namespace
}  // namespace korven::batch
