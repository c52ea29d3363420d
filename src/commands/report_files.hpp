#pragma once

#include <string>
#include <vector>

#include "analysis/calcolo_paratia.hpp"
#include "base/disk.hpp"

namespace korven::commands {

/// The output of a command line: writes the report and remembers where; makes no diagrams.
class UscitaRelazione : public analysis::UscitaCalcolo {
 public:
    /// @param testo      the text export will follow: its name is looked at too before a run
    /// @param documento  so will the word-processor file
    /// @param disco      takes the report
    explicit UscitaRelazione(bool scrive, bool testo = false, bool documento = false,
                             const base::Disco& disco = base::discoDiSistema())
        : scrive_(scrive), testo_(testo), documento_(documento), disco_(disco) {}
    [[nodiscard]] std::vector<std::string> file(analysis::ModoUscita modoUscita,
                                                const std::string& risultati) const override;
    void scriviRelazione() override;
    void disegnaDiagramma(analysis::Diagramma) override {}

    /// Path of the mark-up file; empty while none was written.
    [[nodiscard]] const std::string& relazione() const { return relazione_; }

 private:
    bool scrive_;
    bool testo_, documento_;
    const base::Disco& disco_;
    std::string relazione_;
};

/// Path of a mark-up file's text export: "txt" for its last three characters.
[[nodiscard]] std::string nomeTesto(const std::string& relazione);

/// Writes a mark-up file as plain text beside it, replacing a file of that name.
/// @return the path of the text file
/// @throws base::ErroreFile if one can't be read or the other not be written, if the mark-up opens
///         document, or if the text would take the place of the project or of the mark-up
std::string scriviTesto(const std::string& relazione,
                        const base::Disco& disco = base::discoDiSistema());

/// The report, its text, its word-processor and PDF file and the annex in all its forms that lie
/// where a run of this project writes them, if they are plain files: a failed run must not seem to
/// have made them.
[[nodiscard]] std::vector<std::string> relazioniRimaste(const std::string& progetto);

/// True if the first point of the path, which ends the name of the report, is not that of the
/// project's extension: the report then lands under another name, or in another folder.
[[nodiscard]] bool relazioneAltrove(const std::string& progetto);

}  // namespace korven::commands
