#include "batch/run/sheet_files.hpp"

#include <filesystem>
#include <string_view>

#include "base/folders/file_names.hpp"
#include "base/number_text.hpp"
#include "batch/run/csv.hpp"
#include "project/project_data.hpp"
#include "workbook/sheets.hpp"

namespace korven::batch {

std::vector<std::string> fileFogli(const std::string& cartella) {
    namespace fs = std::filesystem;
    const std::string accanto =
        (fs::path(cartella) / fs::path(project::fileCorrente).filename()).string();
    std::vector<std::string> file;
    for (const base::Gemelli& nome : workbook::nomiFogli())
        file.push_back(base::nomeUscita(accanto, nome.mostrato(), "csv"));
    return file;
}

std::string csvFoglio(const tables::Prospetto& prospetto) {
    std::vector<std::string> teste;
    for (const tables::Colonna& colonna : prospetto.colonne) teste.push_back(colonna.testa());
    const std::vector<std::string_view> nomi(teste.begin(), teste.end());
    RigheCsv csv(nomi);
    for (const auto& riga : prospetto.righe) {
        for (const tables::Cella& cella : riga)
            if (cella.numero)
                csv.campo(base::quindiciCifre(*cella.numero));
            else
                csv.campo(cella.testo == tables::nessuno ? std::string_view() : cella.testo);
        csv.fineRiga();
    }
    return csv.testo();
}

}  // namespace korven::batch
