#include "report/annex/file_lines.hpp"

#include <gtest/gtest.h>

#include "project/project_file.hpp"
#include "support/sample_projects.hpp"

namespace korven::report {
namespace {

// What somebody types who reads the numbered lines from a page.
std::string riscritto(const std::string& pagina, std::size_t righe) {
    std::string file;
    std::size_t da = 0;
    for (std::size_t i = 1; i <= righe; ++i) {
        const std::string numero = std::to_string(i) + ":";
        da = pagina.find(numero, da);
        if (da == std::string::npos) return file + "no line " + std::to_string(i);
        da += numero.size();
        if (pagina[da] == ' ') ++da;  // none behind an empty value that ends a row
        std::size_t fine = std::min(pagina.find('\n', da), pagina.size());
        if (i < righe) {
            const auto altro = pagina.find(" " + std::to_string(i + 1) + ":", da - 1);
            if (altro < fine) fine = altro;
        }
        std::string valore = pagina.substr(da, fine - da);
        valore.erase(valore.find_last_not_of(' ') + 1);
        if (valore.starts_with("«") && valore.ends_with("»"))
            valore = valore.substr(2, valore.size() - 4);
        file += valore + "\r\n";
    }
    return file;
}

TEST(RigheNumerate, StandBehindTheirNumbersInColumns) {
    EXPECT_EQ(righeNumerate("6\r\n2.5\r\n"), "1: 6              2: 2.5");
    EXPECT_EQ(righeNumerate(""), "");
}

TEST(RigheNumerate, ShowBlanksAtTheEndsOfALine) {
    EXPECT_EQ(righeNumerate(" a\r\nb \r\nc d\r\n"), "1: « a»           2: «b »           3: c d");
}

TEST(RigheNumerate, GiveTheFileAgainToWhoTypesThem) {
    auto dati = test::progettoSemplice();
    dati.titoli[1] = " Muro di prova ";
    dati.titoli[2] = "Argilla e sabbia, tratto da 0+120 a 0+260, con le sezioni tipo";
    const std::string testo = project::testoProgetto(dati);
    EXPECT_EQ(riscritto(righeNumerate(testo), numeroRighe(testo)), testo);
}

}  // namespace
}  // namespace korven::report
