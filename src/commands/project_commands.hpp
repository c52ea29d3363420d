#pragma once

#include <optional>
#include <string>
#include <vector>

#include "analysis/calcolo_paratia.hpp"
#include "analysis/result_file.hpp"

namespace korven::commands {

/// Opens a project for a command: reads `percorso` into `Progetto` and makes `fileCorrente` the
/// name under which results are written, that of the project or of the same name in another folder.
/// Both are absolute, without "." and "..", since the rules for names cut paths at points.
/// @param uscita  folder for the results, made if it does not exist; empty: beside the project
/// @throws base::ErroreFile if the project is missing, unreadable or broken; nothing is then made
void apriProgetto(const std::string& percorso, const std::string& uscita);

/// The extremes of one stage, from the result file.
struct EsitoFase {
    int fase = 0;
    double profFase = 0;        ///< excavation depth [m]
    double spostamentoMax = 0;  ///< largest absolute displacement [m]
    double momentoMax = 0;      ///< largest signed moment [t m]
    double momentoMin = 0;      ///< smallest signed moment [t m]
};

struct EsitoCalcolo {
    int nSeg = 0;
    std::string fileRisultati;
    std::vector<EsitoFase> fasi;
    analysis::ChiusuraRisultati chiusura;
};

/// The outcome of the last run of the current project, read back from its result file. Changes
/// nothing in memory.
/// @throws base::ErroreFile if the file is cut short or of another mesh
[[nodiscard]] EsitoCalcolo leggiEsito();

/// The output of a command line: writes the report and remembers where; makes no diagrams.
class UscitaRelazione : public analysis::UscitaCalcolo {
 public:
    explicit UscitaRelazione(bool scrive) : scrive_(scrive) {}
    void scriviRelazione() override;
    void disegnaDiagramma(int) override {}

    /// Path of the mark-up file; empty while none was written.
    [[nodiscard]] const std::string& relazione() const { return relazione_; }

 private:
    bool scrive_;
    std::string relazione_;
};

/// Writes a mark-up file as plain text beside it, under its name with "txt" for its last three
/// characters, replacing a file of that name.
/// @return the path of the text file
/// @throws base::ErroreFile if one can't be read or the other not be written
std::string scriviTesto(const std::string& relazione);

}  // namespace korven::commands
