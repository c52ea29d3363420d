#include "plot/drawing_store.hpp"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <limits>

#include "base/file_error.hpp"
#include "base/table.hpp"
#include "base/value_error.hpp"
#include "plot/spill_files.hpp"
#include "support/failing_disk.hpp"
#include "support/temporary_folder.hpp"

namespace korven::plot {
namespace {

namespace fs = std::filesystem;

// Spill files by the name of their drive lie in the working folder of a system without drives: a
// folder of the test's own, in which a file can be kept from being written.
class ArchivioConUnita : public testing::Test {
 protected:
    ArchivioConUnita() : prima_(fs::current_path()) {
        fs::current_path(cartella_.percorso());
        ::setenv("windir", "Z:\\WINDOWS", 1);
    }
    ~ArchivioConUnita() override {
        ::unsetenv("windir");
        fs::current_path(prima_);
    }

    static bool esisteFile(int numero) { return fs::exists(nomeFileScarico("Z:", numero)); }

 private:
    const test::CartellaProvvisoria cartella_;
    const fs::path prima_;
};

Segmento linea(int k) { return {static_cast<double>(k), 0, static_cast<double>(k), 1, 255, 0.05}; }

ArchivioDisegno conLinee(int quante) {
    ArchivioDisegno archivio;
    for (int k = 1; k <= quante; ++k) archivio.aggiungi(linea(k));
    return archivio;
}

// True when the archive hands out lines 1 to `quante` in order.
bool rende(const ArchivioDisegno& archivio, int quante) {
    int k = 0;
    bool giuste = true;
    archivio.perOgniLinea([&](const Segmento& s) { giuste = giuste && s == linea(++k); });
    return giuste && k == quante;
}

TEST_F(ArchivioConUnita, Line32000ExactlyCreatesNoFile) {
    ArchivioDisegno archivio = conLinee(32000);
    archivio.chiudi();
    EXPECT_EQ(archivio.nFileScarico(), 0);
    EXPECT_FALSE(esisteFile(1));
    EXPECT_EQ(archivio.lineeInMemoria().size(), 32000U);
    EXPECT_TRUE(rende(archivio, 32000));
}

TEST_F(ArchivioConUnita, Line32001CreatesFile1With32000RecordsAndRow1InMemory) {
    ArchivioDisegno archivio = conLinee(32001);
    EXPECT_EQ(archivio.nFileScarico(), 1);
    EXPECT_EQ(leggiScarico("Z:\\plttmp1.tmp").size(), 32000U);
    ASSERT_EQ(archivio.lineeInMemoria().size(), 1U);
    EXPECT_EQ(archivio.lineeInMemoria()[0], linea(32001));
    EXPECT_FALSE(esisteFile(2));
    // The lines in memory are on no file yet, and the files alone are read.
    EXPECT_TRUE(rende(archivio, 32000));
}

TEST_F(ArchivioConUnita, EndWritesWhatIsInMemoryToOneMoreFileAndKeepsIt) {
    ArchivioDisegno archivio = conLinee(32003);
    archivio.chiudi();
    EXPECT_EQ(archivio.nFileScarico(), 2);
    EXPECT_EQ(leggiScarico("Z:\\plttmp2.tmp"),
              (std::vector<Segmento>{linea(32001), linea(32002), linea(32003)}));
    EXPECT_EQ(archivio.lineeInMemoria().size(), 3U);
    EXPECT_TRUE(rende(archivio, 32003));
}

TEST_F(ArchivioConUnita, DrawingThatEndsAtExactly64000LinesHasTwoFiles) {
    ArchivioDisegno archivio = conLinee(64000);
    EXPECT_EQ(archivio.nFileScarico(), 1);
    archivio.chiudi();
    EXPECT_EQ(archivio.nFileScarico(), 2);
    EXPECT_FALSE(esisteFile(3));
    EXPECT_TRUE(rende(archivio, 64000));
}

TEST_F(ArchivioConUnita, EndingTwiceChangesNothingAndDrawingGoesOnAfterIt) {
    ArchivioDisegno archivio = conLinee(32001);
    archivio.chiudi();
    archivio.chiudi();
    EXPECT_EQ(archivio.nFileScarico(), 2);
    archivio.aggiungi(linea(32002));
    archivio.chiudi();
    EXPECT_EQ(archivio.nFileScarico(), 3);
    EXPECT_TRUE(rende(archivio, 32002));
}

TEST_F(ArchivioConUnita, NewDrawingNumbersFromOneAndWritesOverTheOldFiles) {
    ArchivioDisegno archivio = conLinee(64001);
    archivio.chiudi();
    archivio.svuota();
    EXPECT_TRUE(rende(archivio, 0));
    EXPECT_TRUE(esisteFile(3));  // never deleted
    for (int k = 1; k <= 32001; ++k) archivio.aggiungi(linea(k));
    archivio.chiudi();
    EXPECT_EQ(archivio.nFileScarico(), 2);
    EXPECT_EQ(leggiScarico("Z:\\plttmp2.tmp").size(), 1U);
}

TEST_F(ArchivioConUnita, FileThatCannotBeWrittenIsAnErrorAndLeavesNoBrokenDrawing) {
    fs::create_directory("Z:\\plttmp2.tmp");
    ArchivioDisegno archivio = conLinee(64000);
    archivio.aggiungi(TestoPlot{1, 1, 0.5, 0, 3, "abc", 0, "Arial"});
    EXPECT_THROW(archivio.aggiungi(linea(64001)), base::ErroreFile);
    EXPECT_TRUE(rende(archivio, 0));
    EXPECT_TRUE(archivio.testi().empty());
    EXPECT_EQ(archivio.nFileScarico(), 0);
}

TEST_F(ArchivioConUnita, FileThatCannotBeWrittenAtTheEndIsAnErrorToo) {
    fs::create_directory("Z:\\plttmp2.tmp");
    ArchivioDisegno archivio = conLinee(32001);
    EXPECT_THROW(archivio.chiudi(), base::ErroreFile);
    EXPECT_TRUE(rende(archivio, 0));
}

TEST_F(ArchivioConUnita, FullDiskIsAnErrorThatLeavesNeitherADrawingNorAPartOfAFile) {
    const test::DiscoPieno disco(5000);
    ArchivioDisegno archivio(disco);
    for (int k = 1; k <= 32000; ++k) archivio.aggiungi(linea(k));
    std::string motivo;
    try {
        archivio.aggiungi(linea(32001));
    } catch (const base::ErroreFile& errore) {
        motivo = errore.what();
    }
    EXPECT_NE(motivo.find("plttmp1.tmp: impossibile scrivere il file"), std::string::npos)
        << motivo;
    EXPECT_TRUE(rende(archivio, 0));
    EXPECT_TRUE(fs::is_empty(fs::current_path()));
    // The store can be drawn into again once there is room.
    disco.spazio = test::DiscoPieno::senzaFine;
    for (int k = 1; k <= 32001; ++k) archivio.aggiungi(linea(k));
    archivio.chiudi();
    EXPECT_TRUE(rende(archivio, 32001));
}

TEST_F(ArchivioConUnita, NumberThatIsNotFiniteCannotBeSpilledAndLeavesNoBrokenDrawing) {
    ArchivioDisegno archivio = conLinee(31999);
    archivio.aggiungi(Segmento{0, std::numeric_limits<double>::infinity(), 1, 1, 255, 0.05});
    EXPECT_THROW(archivio.aggiungi(linea(32001)), base::ErroreValore);
    EXPECT_TRUE(rende(archivio, 0));
    EXPECT_FALSE(esisteFile(1));
}

TEST_F(ArchivioConUnita, SpillFileThatIsGoneIsAnError) {
    ArchivioDisegno archivio = conLinee(32001);
    archivio.chiudi();
    fs::remove("Z:\\plttmp1.tmp");
    EXPECT_THROW(archivio.perOgniLinea([](const Segmento&) {}), base::ErroreFile);
}

TEST(ArchivioDisegno, Text2001IsOutOfRange) {
    ArchivioDisegno archivio;
    for (int i = 1; i <= 2000; ++i) archivio.aggiungi(TestoPlot{});
    EXPECT_THROW(archivio.aggiungi(TestoPlot{}), base::ErroreIndice);
    EXPECT_EQ(archivio.testi().size(), 2000U);
}

TEST(ArchivioDisegno, Polygon64001IsOutOfRange) {
    ArchivioDisegno archivio;
    for (int i = 1; i <= 64000; ++i) archivio.aggiungi(PoligonoPlot{});
    EXPECT_THROW(archivio.aggiungi(PoligonoPlot{}), base::ErroreIndice);
}

}  // namespace
}  // namespace korven::plot
