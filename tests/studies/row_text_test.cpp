#include "studies/row_text.hpp"

#include <gtest/gtest.h>

#include "studies/small_study.hpp"

namespace korven::studies {
namespace {

RigheStudio righe(Formato formato) {
    const std::vector campi{test::campoDi("lunghezzaParatia"), test::campoDi("phiStrato[1]")};
    return {campi, scegliColonne({"motivo", "momento_massimo_kNm"}, 0, false).colonne, formato};
}

const std::vector<double> sta{12.5, 31, 0, vuoto, 123.456789};
const std::vector<double> cade{10, 28.25, 2, static_cast<double>(Motivo::rotazione), vuoto};

TEST(RigheStudio, AreATableThatSpreadsheetsRead) {
    const RigheStudio r = righe(Formato::csv);
    EXPECT_EQ(r.testata(),
              "variante,lunghezzaParatia [m],phiStrato[1] [°],causa,motivo,"
              "momento_massimo_kNm\r\n");
    std::string testo;
    r.scrivi(0, sta, testo);
    r.scrivi(1, cade, testo);
    EXPECT_EQ(testo,
              "1,12.5,31,eseguito,,123.456789\r\n"
              "2,10,28.25,meccanismo,rotazione,\r\n");
}

TEST(RigheStudio, AreObjectsALine) {
    const RigheStudio r = righe(Formato::json);
    EXPECT_EQ(r.testata(), "");
    std::string testo;
    r.scrivi(6, cade, testo);
    EXPECT_EQ(testo,
              R"({"variante":7,"lunghezzaParatia":10,"phiStrato[1]":28.25,"causa":"meccanismo",)"
              R"("motivo":"rotazione","momento_massimo_kNm":null})"
              "\n");
}

TEST(RigheStudio, ComeBackAsTheyWereWritten) {
    for (const Formato formato : {Formato::csv, Formato::json}) {
        const RigheStudio r = righe(formato);
        for (const auto& valori : {sta, cade}) {
            std::string testo;
            r.scrivi(41, valori, testo);
            testo.resize(testo.size() - (formato == Formato::csv ? 2 : 1));
            std::vector<double> letti(valori.size());
            ASSERT_EQ(r.leggi(testo, letti), 41u);
            for (std::size_t j = 0; j < letti.size(); ++j)
                EXPECT_TRUE(letti[j] == valori[j] || std::isnan(valori[j])) << j;
            EXPECT_EQ(std::isnan(letti[3]), std::isnan(valori[3]));
        }
    }
}

TEST(RigheStudio, LeaveOutWhatIsNotWritten) {
    EXPECT_TRUE(righe(Formato::csv).tutteScritte());
    for (const Formato formato : {Formato::csv, Formato::json}) {
        const RigheStudio intere = righe(formato);
        auto colonne = intere.colonne();
        colonne[1].scritta = false;
        const RigheStudio senza(intere.nominati(), colonne, formato);
        EXPECT_FALSE(senza.tutteScritte());
        ASSERT_EQ(senza.nomi(), intere.nomi());
        std::string testo;
        senza.scrivi(6, cade, testo);
        EXPECT_EQ(testo, formato == Formato::csv
                             ? "7,10,28.25,meccanismo,\r\n"
                             : R"({"variante":7,"lunghezzaParatia":10,"phiStrato[1]":28.25,)"
                               R"("causa":"meccanismo","momento_massimo_kNm":null})"
                               "\n");
        testo.resize(testo.size() - senza.fineRiga().size());
        std::vector<double> letti(cade.size());
        ASSERT_EQ(senza.leggi(testo, letti), 6u);
        EXPECT_EQ(letti[2], cade[2]);
        EXPECT_TRUE(std::isnan(letti[3]));
        EXPECT_EQ(senza.testata(), formato == Formato::csv
                                       ? "variante,lunghezzaParatia [m],phiStrato[1] [°],causa,"
                                         "momento_massimo_kNm\r\n"
                                       : "");
    }
}

TEST(RigheStudio, AreRefusedWhereSomethingIsMissingOrWrong) {
    const RigheStudio csv = righe(Formato::csv), json = righe(Formato::json);
    std::vector<double> letti(5);
    for (const char* riga :
         {"", "1", "0,12.5,31,eseguito,,1", "1,12.5,31,eseguito,", "1,12.5,31,eseguito,,1,2",
          "1,12.5,31,sospeso,,1", "1,12,5,31,eseguito,,1", "1,12.5,x,eseguito,,1",
          "x,12.5,31,eseguito,,1", "1,12.5,31,eseguito,,inf", "1,nan,31,eseguito,,1",
          "variante,lunghezzaParatia [m],phiStrato[1] [°],causa,motivo,x"})
        EXPECT_FALSE(csv.leggi(riga, letti)) << riga;
    EXPECT_TRUE(csv.leggi("1,12.5,31,eseguito,,1", letti));
    for (const char* riga :
         {R"({"variante":7,"lunghezzaParatia":10})", "{}",
          R"({"variante":7,"lunghezzaParatia":10,"phiStrato[2]":28.25,"causa":"meccanismo",)"
          R"("motivo":"rotazione","momento_massimo_kNm":null})",
          R"({"variante":7,"lunghezzaParatia":10,"phiStrato[1]":28.25,"causa":meccanismo,)"
          R"("motivo":"rotazione","momento_massimo_kNm":null})"})
        EXPECT_FALSE(json.leggi(riga, letti)) << riga;
}

}  // namespace
}  // namespace korven::studies
