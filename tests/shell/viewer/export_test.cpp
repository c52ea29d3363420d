// What leaves the viewer: printed pages and files.

#include "shell/viewer/export.hpp"

#include <algorithm>
#include <filesystem>

#include "base/file_error.hpp"
#include "support/viewer_setup.hpp"

namespace korven::shell {
namespace {

class UsciteVisore : public test::ProvaVisore {
 protected:
    [[nodiscard]] long pagine() const {
        return std::count(porte.carta.eventi.begin(), porte.carta.eventi.end(), "page");
    }
    [[nodiscard]] bool stampato(const std::string& evento) const {
        return std::count(porte.carta.eventi.begin(), porte.carta.eventi.end(), evento) > 0;
    }
    const test::CartellaProvvisoria cartella;
};

TEST_F(UsciteVisore, PrintAtFullSizeByButtonAndKey) {
    disegna(40, 5);
    premi("Picture3");
    EXPECT_EQ(pagine(), 2) << "2 x 21 - 1 >= 40";
    EXPECT_TRUE(stampato("line 0 0 0 500")) << "the left side of the frame, 100 pixels a cm";
    tasto('S');
    EXPECT_EQ(pagine(), 4);
    EXPECT_EQ(porte.titoli.front(), "KORVEN 32 - muro.kvd");
}

TEST_F(UsciteVisore, PrintADrawingTwoCentimetresWiderThanTheSheetOnTwoSheets) {
    disegna(23, 5);
    tasto('S');
    EXPECT_EQ(pagine(), 2);
}

TEST_F(UsciteVisore, PrintFittedByButtonAndKey) {
    disegna(40, 5);
    premi("Picture5");
    EXPECT_EQ(pagine(), 1);
    // 21 / 40.2 makes the margin of 0.1 cm 5.2 pixels wide.
    EXPECT_TRUE(std::any_of(porte.carta.eventi.begin(), porte.carta.eventi.end(),
                            [](const std::string& e) { return e.starts_with("line 5 "); }));
    tasto('I');
    EXPECT_EQ(pagine(), 2);
}

TEST_F(UsciteVisore, PrintColoursOnAPrinterOfOnePlaneWhenAFileSaysSo) {
    configura(test::configurazioneDiProva());  // pen 1 is red
    plot::MisureStampante grigia = porte.carta.misure();
    grigia.pianiColore = 1;
    porte.carta = test::StampanteRegistrata(grigia);
    disegna();
    tasto('S');
    EXPECT_TRUE(stampato("pen 0 width 1"));
    EXPECT_FALSE(stampato("pen 255 width 1"));
    test::metti(programma / "forcecol", "");
    tasto('S');
    EXPECT_TRUE(stampato("pen 255 width 1"));
}

TEST_F(UsciteVisore, PrintNothingWhenTheUserGivesUp) {
    disegna();
    porte.conStampante = false;
    tasto('S');
    tasto('I');
    EXPECT_TRUE(porte.carta.eventi.empty());
    EXPECT_TRUE(dialogo.messaggi.empty());
}

TEST_F(UsciteVisore, WriteDxfUnderTheNameOfTheProject) {
    disegna();
    porte.risposta = cartella / "muro.DXF";
    premi("Picture4");
    ASSERT_EQ(porte.richieste.size(), 1U);
    const FileDaSalvare& r = porte.richieste.front();
    EXPECT_EQ(r.nome, "muro.DXF");
    ASSERT_EQ(r.tipi.size(), 1U);
    EXPECT_EQ(r.tipi.front(), (TipoFile{"AutoCAD(*.DXF)", "DXF"}));
    const std::string dxf = test::contenuto(cartella / "muro.DXF");
    EXPECT_NE(dxf.find("LINE"), std::string::npos);
    EXPECT_TRUE(dxf.ends_with("EOF\r\n"));
}

TEST_F(UsciteVisore, EndADxfExportInTheFullViewWhateverStartedItAndHoweverItEnds) {
    disegna();
    for (const bool annullato : {true, false})
        for (const bool conTasto : {true, false}) {
            porte.risposta = std::nullopt;
            if (!annullato) porte.risposta = cartella / "muro.DXF";
            plot::plotZoom(4, 2, 8, 4);
            premi("Picture1");
            if (conTasto)
                tasto('D');
            else
                premi("Picture4");
            EXPECT_EQ(finestra(), "0.00 0.00 10.00 5.00");
            EXPECT_FALSE(visibile("Picture8"));
            EXPECT_FALSE(plot::statoPlot.zoom);
        }
    EXPECT_EQ(porte.richieste.size(), 4U);
}

TEST_F(UsciteVisore, WriteNoDxfWhenTheDialogIsCancelled) {
    disegna();
    premi("Picture4");
    EXPECT_TRUE(std::filesystem::is_empty(cartella.percorso()));
}

TEST_F(UsciteVisore, WriteAPictureOfTheKindThatItsExtensionNames) {
    disegna();
    const std::pair<const char*, const char*> inizi[] = {
        {"a.pdf", "%PDF"}, {"b.SVG", "<?xml"}, {"c.png", "\x89PNG"}};
    for (const auto& [nome, inizio] : inizi) {
        porte.risposta = cartella / nome;
        premi("Picture17");
        EXPECT_TRUE(test::contenuto(cartella / nome).starts_with(inizio)) << nome;
    }
    const FileDaSalvare& r = porte.richieste.front();
    EXPECT_EQ(r.nome, "muro.pdf");
    EXPECT_EQ(r.tipi.size(), 3U);
}

TEST_F(UsciteVisore, ProposeANameOfTheDrawingsOwnForAPictureButThatOfTheProjectForDxf) {
    disegna();
    plot::statoPlot.nome = "momenti";
    premi("Picture17");
    premi("Picture4");
    ASSERT_EQ(porte.richieste.size(), 2U);
    EXPECT_EQ(porte.richieste[0].nome, "muro-momenti.pdf");
    EXPECT_EQ(porte.richieste[1].nome, "muro.DXF");
}

TEST_F(UsciteVisore, TellWhichFileWasWrittenAndNothingOfOneThatWasNot) {
    disegna();
    premi("Picture17");  // cancelled
    porte.risposta = cartella / "manca/a.pdf";
    premi("Picture17");  // fails
    EXPECT_TRUE(porte.scritti.empty());
    porte.risposta = cartella / "a.svg";
    premi("Picture17");
    porte.risposta = cartella / "a.DXF";
    premi("Picture4");
    EXPECT_EQ(porte.scritti, (std::vector<std::string>{cartella / "a.svg", cartella / "a.DXF"}));
}

TEST_F(UsciteVisore, LeaveTheViewAsItIsAfterAPicture) {
    disegna();
    plot::plotZoom(4, 2, 8, 4);
    porte.risposta = cartella / "a.png";
    premi("Picture17");
    EXPECT_EQ(finestra(), "4.00 2.00 8.00 4.00");
}

TEST_F(UsciteVisore, TellOfAFileThatCannotBeWrittenAndGoOn) {
    disegna();
    porte.risposta = cartella / "manca/muro";
    premi("Picture4");
    premi("Picture17");
    ASSERT_EQ(dialogo.messaggi.size(), 2U);
    for (const auto& box : dialogo.messaggi) {
        EXPECT_EQ(box.titolo, "ATTENZIONE!");
        EXPECT_TRUE(box.testo.starts_with(cartella / "manca/muro"));
    }
    EXPECT_TRUE(forma().isVisible());
}

TEST_F(UsciteVisore, TellOfAFullDiskAndLeaveNoHalfFile) {
    disegna();
    for (const char* nome : {"a.DXF", "a.pdf", "a.svg", "a.png"}) {
        porte.risposta = cartella / nome;
        porte.guasto.spazio = 200;
        premi(std::string(nome).ends_with("DXF") ? "Picture4" : "Picture17");
        ASSERT_FALSE(dialogo.messaggi.empty()) << nome;
        EXPECT_EQ(dialogo.messaggi.back().testo,
                  cartella / nome + ": impossibile scrivere il file (" + test::nonCeSpazio + ")");
        EXPECT_TRUE(std::filesystem::is_empty(cartella.percorso())) << nome;
    }
    EXPECT_EQ(dialogo.messaggi.size(), 4U);
    EXPECT_TRUE(porte.scritti.empty());
}

TEST_F(UsciteVisore, TellOfAnOverlapAsLargeAsTheSheetAndGoOn) {
    disegna();
    test::metti(programma / "overlap.cfg", "21\r\n");
    tasto('S');
    ASSERT_EQ(dialogo.messaggi.size(), 1U);
    EXPECT_NE(dialogo.messaggi.front().testo.find("la sovrapposizione deve essere minore"),
              std::string::npos);
    EXPECT_EQ(dialogo.ultimoPuntatore(), base::Puntatore::normale);
    EXPECT_TRUE(porte.carta.eventi.empty());
}

TEST_F(UsciteVisore, MarkThePageOfThePrinter) {
    porte.foglio = {29.7, 21};
    disegna();
    EXPECT_EQ(plot::statoPlot.foglioStampante, (plot::Foglio{29.7, 21}));
}

TEST_F(UsciteVisore, ProposeANameForAProjectInAFolderWithAPointInIt) {
    project::fileCorrente = "/lavori.2024/muro nord.v2.kvd";
    EXPECT_EQ(richiestaDxf().nome, "muro nord.v2.DXF");
    EXPECT_EQ(richiestaImmagine().nome, "muro nord.v2.pdf");
    project::fileCorrente = "/lavori/muro";
    EXPECT_EQ(richiestaDxf().nome, "muro.DXF");
}

}  // namespace
}  // namespace korven::shell
