// That no row of the table on what is typed is dead: each is brought by a project of its own.

#include <gtest/gtest.h>

#include "base/code_page.hpp"
#include "project/codes.hpp"
#include "project/field_table.hpp"
#include "project/project_file.hpp"
#include "review/bench.hpp"
#include "review/remark_table.hpp"
#include "support/sample_sections.hpp"

namespace korven::review {
namespace {

using project::Sezione;

// The section of a sample, with a change.
template <class Cambio>
Modifica conSezione(const Sezione& sezione, Cambio cambio) {
    return [=](DatiProgetto& d) {
        d.sezione = sezione;
        d.rigidezzaEJ = 10000;
        cambio(d.sezione);
    };
}

const auto diaframma = structure::diaframmaSimmetrico();
const auto tubi = structure::paliTubolari();
const auto palancole = structure::palancola();
const auto pali = structure::paliArmati();

struct Scenario {
    std::string_view codice;
    Modifica modifica;
};

const Scenario scenari[] = {
    {"dati-mancanti", [](auto& d) { d.lunghezzaParatia = 0; }},
    {"suolo-non-calcolabile", [](auto& d) { d.phiStrato[1] = 90; }},
    {"valore-non-mostrabile", [](auto& d) { d.rigTirante[1] = 1e308; }},
    {"codice-non-previsto", [](auto& d) { d.vincoloTesta = 9; }},
    {"valore-negativo", [](auto& d) { d.sovraccMonte = -1; }},
    {"coesione-negativa", [](auto& d) { d.coesione[1] = -1; }},
    {"rigidezza-negativa", [](auto& d) { d.rigTirante[1] = -1; }},

    {"strato-in-disordine", [](auto& d) { d.profStrato[1] = 25; }},
    {"strato-nullo", [](auto& d) { d.profStrato[1] = 20; }},
    {"strato-profondo", [](auto& d) { d.profStrato[2] = 300; }},
    {"strato-prolungato", [](auto& d) { d.profStrato[2] = 11; }},
    {"terreno-finito",
     [](auto& d) {
         d.lunghezzaParatia = 120;
         d.profStrato[2] = 19;
     }},
    {"peso-mancante", [](auto& d) { d.gammaN[1] = 0; }},
    {"peso-in-kilonewton", [](auto& d) { d.gammaN[1] = 18; }},
    {"peso-saturo-minore", [](auto& d) { d.gammaSat[1] = 1; }},
    {"strato-senza-resistenza", [](auto& d) { d.phiStrato[1] = 0; }},
    {"angolo-non-ammissibile", [](auto& d) { d.phiStrato[1] = 95; }},
    {"angolo-minore-del-pendio", [](auto& d) { d.inclinazioneMonte = 31; }},
    {"angolo-insolito", [](auto& d) { d.phiStrato[1] = 45.5; }},
    {"coesione-insolita", [](auto& d) { d.coesione[1] = 10.1; }},
    {"polo-passivo",
     [](auto& d) {
         d.phiStrato[1] = d.phiStrato[2] = 50;
         d.inclinazioneMonte = 45;
     }},

    {"acqua-a-zero", [](auto& d) { d.faldaMonte = d.faldaFase[1] = 0; }},
    {"acqua-piu-alta-davanti", [](auto& d) { d.faldaMonte = 10; }},
    {"acqua-sopra-lo-scavo", [](auto& d) { d.faldaFase[2] = 4; }},

    {"tensioni-totali-con-attrito", [](auto& d) { d.modoTensioni = 2; }},
    {"su-non-usata", [](auto& d) { d.suStrato[1] = 3; }},
    {"coesione-con-bell", [](auto& d) { d.metodoSpinte = 3; }},
    {"pendio-con-bell",
     [](auto& d) {
         d.metodoSpinte = 3;
         d.inclinazioneMonte = 5;
     }},
    {"k0-sotto-ka", [](auto& d) { d.inclinazioneMonte = 20; }},
    {"riposo-del-pendio", [](auto& d) { d.inclinazioneMonte = 5; }},

    {"ks-mancante", [](auto& d) { d.ksStrato[1] = 0; }},
    {"ks-negativo", [](auto& d) { d.ksStrato[1] = -1; }},
    {"terreno-senza-rigidezza", [](auto& d) { d.metodoKs = 2; }},
    {"modulo-negativo",
     [](auto& d) {
         d.metodoKs = 1;
         d.sovraccMonte = 0;
         d.faldaMonte = -2;
         d.gammaN[1] = 0.5;
         d.gammaSat[1] = 0.9;
     }},
    {"modulo-lineare-negativo",
     [](auto& d) {
         d.metodoKs = 4;
         d.profStrato[2] = 8;
         d.ksStrato[2] = 100;
     }},
    {"ks-ultimo-strato",
     [](auto& d) {
         d.metodoKs = 4;
         d.ksStrato[2] = 2 * d.ksStrato[1];
     }},
    {"bowles-senza-tensione",
     [](auto& d) {
         d.metodoKs = 1;
         d.modoSpinte = 2;
     }},
    {"relazione-con-coulomb", [](auto& d) { d.metodoSpinte = 2; }},
    {"valore-senza-effetto", [](auto& d) { d.coeffM = 500; }},

    {"troppi-tiranti", [](auto& d) { d.tirantiFase[2] = 21; }},
    {"tiranti-non-definiti", [](auto& d) { d.tirantiFase[2] = 2; }},
    {"tiranti-negativi", [](auto& d) { d.tirantiFase[1] = -1; }},
    {"tiranti-non-interi", [](auto& d) { d.tirantiFase[1] = 0.5; }},
    {"tiranti-in-meno",
     [](auto& d) {
         d.tirantiFase[1] = 1;
         d.tirantiFase[2] = 0;
     }},
    {"tirante-sotto-il-piede", [](auto& d) { d.profTirante[1] = 13; }},
    {"tirante-sopra-la-testa", [](auto& d) { d.profTirante[1] = -1; }},
    {"tirante-in-disordine", [](auto& d) { test::aggiungiTirante(d, 1, 500); }},
    {"tirante-mai-in-opera", [](auto& d) { d.tirantiFase[2] = 0; }},
    {"tirante-sotto-lo-scavo", [](auto& d) { d.profTirante[1] = 6; }},
    {"tirante-spostato", [](auto& d) { d.profTirante[1] = 1.56; }},
    {"tirante-sul-vincolo",
     [](auto& d) {
         d.profTirante[1] = 0;
         d.vincoloTesta = 2;
     }},
    {"tirante-inerte", [](auto& d) { d.rigTirante[1] = d.pretTirante[1] = 0; }},
    {"tirante-mai-teso",
     [](auto& d) {
         d.rigTirante[1] = 0;
         d.pretTirante[1] = -1;
     }},
    {"tipo-tirante", [](auto& d) { d.tipoTirante[1] = 2; }},

    {"scavo-sopra-la-testa", [](auto& d) { d.profFase[1] = -1; }},
    {"scavo-che-risale", [](auto& d) { d.profFase[1] = 6; }},
    {"scavo-al-piede", [](auto& d) { d.profFase[2] = 12; }},

    {"senza-rigidezza", [](auto& d) { d.rigidezzaEJ = 0; }},
    {"ej-negativa", [](auto& d) { d.rigidezzaEJ = -1; }},
    {"ej-lontana", conSezione(diaframma, [](auto& s) { s.spessoreDiaframma = 200; })},
    {"piu-tipi", conSezione(tubi, [](auto& s) { s.tipoPalancola = true; })},
    {"pali-senza-interno", conSezione(tubi, [](auto& s) { s.paliDiamInt = 0; })},
    {"sezione-senza-tipo", conSezione(tubi, [](auto& s) { s.tipoPali = false; })},
    {"sezione-incompleta", conSezione(tubi, [](auto& s) { s.fyk = 0; })},
    {"faccia-non-armata", conSezione(diaframma, [](auto& s) { s.diametroMonte = 0; })},
    {"senza-copriferro", conSezione(diaframma, [](auto& s) { s.copriferroMonte = 0; })},
    {"ferri-a-meta", conSezione(diaframma, [](auto& s) { s.copriferroMonte = 39; })},
    {"staffe-incomplete", conSezione(pali, [](auto& s) { s.armDiamStaffe = 1; })},
    {"diametri-invertiti", conSezione(tubi, [](auto& s) { s.paliDiamInt = 60; })},
    {"troppi-ferri", conSezione(pali, [](auto& s) { s.armNumLong = 100001; })},
    {"ferri-meno-di-uno", conSezione(pali, [](auto& s) { s.armNumLong = 0.8; })},
    {"ferri-da-relazione", conSezione(pali, [](auto& s) { s.armNumLong = 120; })},
    {"ferri-non-interi", conSezione(pali, [](auto& s) { s.armNumLong = 1.2; })},
    {"ferri-troppo-pochi", conSezione(pali, [](auto& s) { s.armNumLong = 1; })},
    {"ferri-scritti-e-calcolati", conSezione(pali, [](auto&) {})},
    {"fck-insolita", conSezione(diaframma, [](auto& s) { s.fck = 250; })},
    {"fyk-insolita", conSezione(palancole, [](auto& s) { s.fyk = 2400; })},
    {"modulo-acciaio", conSezione(palancole, [](auto& s) { s.modEacciaio = 21000; })},
    {"modulo-calcestruzzo", conSezione(diaframma, [](auto& s) { s.modEcls = 300000; })},
    {"misura-non-costruibile", conSezione(diaframma, [](auto& s) { s.copriferroMonte = 0.5; })},
    {"ferri-fitti", conSezione(diaframma, [](auto& s) { s.interasseMonte = 4; })},
    {"pali-sovrapposti", conSezione(tubi, [](auto& s) { s.paliInterasse = 50; })},
    {"sforzo-oltre-la-sezione",
     [](auto& d) {
         d.sezione = diaframma;
         d.sforzoNormale = 900;
     }},
    {"sezione-senza-resistenza", conSezione(palancole, [](auto& s) { s.fyk = 0.24; })},
    {"taglio-al-piede",
     [](auto& d) {
         d.sezione = pali;
         d.sezione.armDiamStaffe = 1;
         d.sezione.armPassoStaffe = 20;
         d.vincoloPiede = 3;
     }},
    {"taglio-in-testa",
     [](auto& d) {
         d.sezione = pali;
         d.sezione.armDiamStaffe = 1;
         d.sezione.armPassoStaffe = 20;
         d.forzaTesta = 2;
     }},

    {"titolo-comando", [](auto& d) { d.titoli[1] = "#1"; }},
    {"titolo-largo", [](auto& d) { d.titoli[1] = std::string(100, 'W'); }},
    {"titoli-sovrapposti", [](auto& d) { d.titoli[2] = "Seconda riga"; }},
    {"descrizione-lunga",
     [](auto& d) {
         d.descrStrato[2] = "1 ";
         for (int i = 0; i < 52; ++i) d.descrStrato[2] += "sabbia|";
     }},
    {"descrizione-senza-posto",
     [](auto& d) {
         d.descrStrato[2] = "1 ";
         for (int i = 0; i < 120; ++i) d.descrStrato[2] += "sabbia|";
     }},
};

// A line of the file and what stands there instead.
struct ScenarioFile {
    std::string_view codice;
    std::string vecchio, nuovo;
};

const ScenarioFile scenariFile[] = {
    {"resto-della-riga", "\r\n12000\r\n", "\r\n12000,5\r\n"},
    {"metodo-riaperto", "\r\n0\r\n1\r\n3\r\n12\r\n", "\r\n0\r\n2\r\n3\r\n12\r\n"},
    {"righe-in-piu", "", "7\r\n"},
};

// Those that are told by the commands that know of outputs and segments.
const std::set<std::string_view> altrove = {"uscita-in-conflitto", "segmenti-non-ammessi"};

bool conCodice(const Osservazioni& trovate, std::string_view codice) {
    return std::any_of(trovate.begin(), trovate.end(),
                       [codice](const auto& o) { return o.codice == codice; });
}

Osservazioni delFile(const ScenarioFile& scenario) {
    std::string testo = project::testoProgetto(test::progettoSemplice());
    const auto dove = scenario.vecchio.empty() ? testo.size() : testo.find(scenario.vecchio);
    testo.replace(dove, scenario.vecchio.size(), scenario.nuovo);
    const test::CartellaProvvisoria cartella;
    const std::string percorso = cartella / "muro.kvd";
    base::scriviFile(percorso, base::inCp1252(testo));
    DatiProgetto dati;
    auto file = base::LettoreRighe::apri(percorso);
    project::leggiDati(file, dati);
    return esaminaFile(percorso, dati);
}

TEST(RigheOsservazioni, AreEachBroughtByAProjectAndNotByTheSoundOne) {
    const auto sano = osservazioni(test::progettoSemplice());
    for (const auto& [codice, modifica] : scenari) {
        EXPECT_TRUE(conCodice(osservazioni(conModifica(modifica)), codice)) << codice;
        EXPECT_FALSE(conCodice(sano, codice)) << codice;
    }
    for (const auto& scenario : scenariFile)
        EXPECT_TRUE(conCodice(delFile(scenario), scenario.codice)) << scenario.codice;
}

// The first that an editor shows is what the window of remarks leads to.
TEST(RigheOsservazioni, NameFieldsOfTheProject) {
    for (const auto& [codice, modifica] : scenari)
        for (const auto& o : osservazioni(conModifica(modifica))) {
            EXPECT_EQ(o.campi.empty(), o.codice == "descrizione-senza-posto") << o.codice;
            for (const auto& campo : o.campi)
                EXPECT_TRUE(project::campoNominato(campo)) << o.codice << ' ' << campo;
        }
}

TEST(RigheOsservazioni, HaveAProjectEach) {
    std::set<std::string_view> portati = altrove;
    for (const auto& scenario : scenari) portati.insert(scenario.codice);
    for (const auto& scenario : scenariFile) portati.insert(scenario.codice);
    std::set<std::string_view> scritti;
    for (const auto& voce : vociProgetto) scritti.insert(voce.codice);
    for (const auto& voce : vociSezione) scritti.insert(voce.codice);
    EXPECT_EQ(portati, scritti);
}

}  // namespace
}  // namespace korven::review
