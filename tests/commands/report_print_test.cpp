#include "commands/report_print.hpp"

#include <gtest/gtest.h>

#include "support/dialog_double.hpp"
#include "support/page_record.hpp"
#include "support/temporary_folder.hpp"

namespace korven::commands {
namespace {

/// Hands its pages on to a record that outlives it, and may be out of paper.
class Printer : public test::PageRecord {
 public:
    Printer(test::PageRecord& record, bool refuses, bool loses)
        : record_(record), refuses_(refuses), loses_(loses) {}
    ~Printer() override { record_ = *this; }
    void startPage() override {
        if (refuses_) throw markup::PrinterError("Ufficio", 0, "senza carta");
        PageRecord::startPage();
    }
    void endJob() override {
        if (loses_) throw markup::PrinterError("Ufficio", 0, "sparita");
        PageRecord::endJob();
    }

 private:
    test::PageRecord& record_;
    bool refuses_, loses_;
};

class ReportPrint : public testing::Test {
 protected:
    void write(const std::vector<std::string>& lines) { test::metti(report, test::markup(lines)); }
    void print() {
        stampaRelazione(
            report,
            [this]() -> std::unique_ptr<markup::ReportPrinter> {
                ++asked;
                pointerWhenAsked = dialog.ultimoPuntatore();
                if (noPrinter) return nullptr;
                return std::make_unique<Printer>(pages, refuses, loses);
            },
            dialog);
    }

    test::CartellaProvvisoria folder;
    const std::string report = folder / "muro.TAB";
    test::DialogoFinto dialog;
    test::PageRecord pages;
    bool noPrinter = false, refuses = false, loses = false;
    int asked = 0;
    base::Puntatore pointerWhenAsked = base::Puntatore::clessidra;
};

const std::vector<std::string> oneLine{"#RESET 2,2,2,2,2,2,12,Arial", "testo", "#ENDDOCUMENT"};

TEST_F(ReportPrint, PrintsTheReport) {
    write(oneLine);
    print();
    EXPECT_EQ(pages.onPage(1), "testo");
    EXPECT_EQ(pages.calls.back(), "job");
    EXPECT_TRUE(dialog.messaggi.empty());
}

TEST_F(ReportPrint, GivesThePointerBackBeforeItMayAskForAPrinter) {
    write(oneLine);
    dialog.puntatore(base::Puntatore::clessidra);
    print();
    EXPECT_EQ(pointerWhenAsked, base::Puntatore::normale);
}

TEST_F(ReportPrint, AsksForNoPrinterWithoutAReport) {
    print();
    EXPECT_EQ(asked, 0);
}

TEST_F(ReportPrint, PrintsNothingWhenTheUserGivesUp) {
    write(oneLine);
    noPrinter = true;
    print();
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(pages.calls.empty());
    EXPECT_TRUE(dialog.messaggi.empty());
}

TEST_F(ReportPrint, PrintsNoPageOfAnEmptyReportAndOfOneWithoutReset) {
    for (const auto& lines : {std::vector<std::string>{}, {"testo", "#STARTTABLE", "a\tb"}}) {
        write(lines);
        print();
        EXPECT_TRUE(pages.calls.empty());
    }
    EXPECT_TRUE(dialog.messaggi.empty());
}

TEST_F(ReportPrint, TellsOfAPrinterThatRefusesOrVanishesAndGoesOn) {
    write(oneLine);
    refuses = true;
    print();
    refuses = false;
    loses = true;
    print();
    ASSERT_EQ(dialog.messaggi.size(), 2u);
    EXPECT_EQ(dialog.messaggi[0], (test::DialogoFinto::Detto{"Ufficio: senza carta", "ATTENZIONE!",
                                                             base::Icona::avviso}));
    EXPECT_EQ(dialog.messaggi[1].testo, "Ufficio: sparita");
    EXPECT_EQ(dialog.ultimoPuntatore(), base::Puntatore::normale);
}

TEST_F(ReportPrint, LetsABrokenReportEndTheProgramWithoutAJob) {
    std::vector<std::string> lines{oneLine[0], "testo", "#STARTTABLE"};
    for (int row = 1; row <= 2001; ++row) lines.emplace_back("a");
    write(lines);
    EXPECT_THROW(print(), base::ErroreFile);
    EXPECT_NE(pages.calls.back(), "job");
    std::string columns = "a";
    for (int column = 2; column <= 31; ++column) columns += "\ta";
    write({oneLine[0], "#STARTTABLE", columns, "#ENDTABLE"});
    EXPECT_THROW(print(), base::ErroreFile);
    EXPECT_TRUE(dialog.messaggi.empty());
}

}  // namespace
}  // namespace korven::commands
