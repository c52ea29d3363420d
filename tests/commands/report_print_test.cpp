#include "commands/report_print.hpp"

#include <gtest/gtest.h>

#include "support/dialog_double.hpp"
#include "support/page_record.hpp"
#include "support/temporary_folder.hpp"

namespace korven::commands {
namespace {

/// Hands its pages on to a record that outlives it, and may be out of paper.
class StampanteDiProva : public test::PageRecord {
 public:
    StampanteDiProva(test::PageRecord& pagine, bool rifiuta, bool perde)
        : pagine_(pagine), rifiuta_(rifiuta), perde_(perde) {}
    ~StampanteDiProva() override { pagine_ = *this; }
    void startPage() override {
        if (rifiuta_) throw markup::PrinterError("Ufficio", 0, "senza carta");
        PageRecord::startPage();
    }
    void endJob() override {
        if (perde_) throw markup::PrinterError("Ufficio", 0, "sparita");
        PageRecord::endJob();
    }

 private:
    test::PageRecord& pagine_;
    bool rifiuta_, perde_;
};

class StampaRelazione : public testing::Test {
 protected:
    void scrivi(const std::vector<std::string>& righe) {
        test::metti(relazione, test::markup(righe));
    }
    void stampa() {
        stampaRelazione(
            relazione,
            [this]() -> std::unique_ptr<markup::ReportPrinter> {
                ++chiesta;
                puntatoreAllaRichiesta = dialogo.ultimoPuntatore();
                if (senzaStampante) return nullptr;
                return std::make_unique<StampanteDiProva>(pagine, rifiuta, perde);
            },
            dialogo);
    }

    test::CartellaProvvisoria cartella;
    const std::string relazione = cartella / "muro.TAB";
    test::DialogoFinto dialogo;
    test::PageRecord pagine;
    bool senzaStampante = false, rifiuta = false, perde = false;
    int chiesta = 0;
    base::Puntatore puntatoreAllaRichiesta = base::Puntatore::clessidra;
};

const std::vector<std::string> unaRiga{"#RESET 2,2,2,2,2,2,12,Arial", "testo", "#ENDDOCUMENT"};

TEST_F(StampaRelazione, PrintsTheReport) {
    scrivi(unaRiga);
    stampa();
    EXPECT_EQ(pagine.onPage(1), "testo");
    EXPECT_EQ(pagine.calls.back(), "job");
    EXPECT_TRUE(dialogo.messaggi.empty());
}

TEST_F(StampaRelazione, GivesThePointerBackBeforeItMayAskForAPrinter) {
    scrivi(unaRiga);
    dialogo.puntatore(base::Puntatore::clessidra);
    stampa();
    EXPECT_EQ(puntatoreAllaRichiesta, base::Puntatore::normale);
}

TEST_F(StampaRelazione, AsksForNoPrinterWithoutAReport) {
    stampa();
    EXPECT_EQ(chiesta, 0);
}

TEST_F(StampaRelazione, PrintsNothingWhenTheUserGivesUp) {
    scrivi(unaRiga);
    senzaStampante = true;
    stampa();
    EXPECT_EQ(chiesta, 1);
    EXPECT_TRUE(pagine.calls.empty());
    EXPECT_TRUE(dialogo.messaggi.empty());
}

TEST_F(StampaRelazione, PrintsNoPageOfAnEmptyReportAndOfOneWithoutReset) {
    for (const auto& righe : {std::vector<std::string>{}, {"testo", "#STARTTABLE", "a\tb"}}) {
        scrivi(righe);
        stampa();
        EXPECT_TRUE(pagine.calls.empty());
    }
    EXPECT_TRUE(dialogo.messaggi.empty());
}

TEST_F(StampaRelazione, TellsOfAPrinterThatRefusesOrVanishesAndGoesOn) {
    scrivi(unaRiga);
    rifiuta = true;
    stampa();
    rifiuta = false;
    perde = true;
    stampa();
    ASSERT_EQ(dialogo.messaggi.size(), 2u);
    EXPECT_EQ(dialogo.messaggi[0], (test::DialogoFinto::Detto{"Ufficio: senza carta", "ATTENZIONE!",
                                                              base::Icona::avviso}));
    EXPECT_EQ(dialogo.messaggi[1].testo, "Ufficio: sparita");
    EXPECT_EQ(dialogo.ultimoPuntatore(), base::Puntatore::normale);
}

TEST_F(StampaRelazione, LetsABrokenReportEndTheProgramWithoutAJob) {
    std::vector<std::string> righe{unaRiga[0], "testo", "#STARTTABLE"};
    for (int riga = 1; riga <= 2001; ++riga) righe.emplace_back("a");
    scrivi(righe);
    EXPECT_THROW(stampa(), base::ErroreFile);
    EXPECT_NE(pagine.calls.back(), "job");
    std::string colonne = "a";
    for (int colonna = 2; colonna <= 31; ++colonna) colonne += "\ta";
    scrivi({unaRiga[0], "#STARTTABLE", colonne, "#ENDTABLE"});
    EXPECT_THROW(stampa(), base::ErroreFile);
    EXPECT_TRUE(dialogo.messaggi.empty());
}

}  // namespace
}  // namespace korven::commands
