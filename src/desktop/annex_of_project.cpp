#include "desktop/annex_of_project.hpp"

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "analysis/run_arrays.hpp"
#include "analysis/segment_count.hpp"
#include "base/file_error.hpp"
#include "base/folders/file_names.hpp"
#include "base/process/program_questions.hpp"
#include "base/value_error.hpp"
#include "dossier/annex_command.hpp"
#include "dossier/dossier.hpp"
#include "factors/requested_code.hpp"
#include "project/project_data.hpp"
#include "project/project_file.hpp"
#include "report/annex/annex.hpp"
#include "review/project_review.hpp"

namespace korven::desktop {

namespace {

using project::DatiProgetto;

// What the command line would compute of a project; nothing of one that no file can hold.
std::optional<DatiProgetto> comeDaFile(const DatiProgetto& dati) {
    try {
        return project::comeRiletto(dati);
    } catch (const base::ErroreValore&) {
        return {};
    }
}

// Whether the file on the disk is that project.
bool salvato(const std::string& file, const DatiProgetto& riletto) {
    if (file.empty()) return false;
    try {
        return project::testoProgetto(project::leggiDaFile(file)) ==
               project::testoProgetto(riletto);
    } catch (const base::ErroreFile&) {
        return false;
    }
}

// A method that no file keeps has to be asked for.
dossier::AlPostoDelProgetto alPosto(const DatiProgetto& usati, const DatiProgetto& scritti) {
    dossier::AlPostoDelProgetto opzioni;
    if (usati.metodoSpinte != scritti.metodoSpinte) opzioni.metodoSpinte = usati.metodoSpinte;
    return opzioni;
}

// Of a project that was never saved the file has no name yet.
std::string comando(dossier::AlPostoDelProgetto opzioni, const dossier::Richiesta& tutto) {
    const std::string& file = tutto.identita.file;
    opzioni.nSeg = std::to_string(*tutto.nSeg);
    dossier::ComandoAllegato suo{.progetto = base::argomentoProgetto.mostrato(),
                                 .alPosto = std::move(opzioni),
                                 .norma = tutto.norma,
                                 .data = tutto.identita.data};
    if (!file.empty()) {
        suo.progetto = file;
        suo.pdf = base::nomeUscita(file, base::parolaAllegato.italiano, "pdf");
    }
    return dossier::comando(suo);
}

dossier::Richiesta richiesta(const std::optional<factors::NormaChiesta>& norma) {
    const std::string& file = project::fileCorrente;
    const std::optional<DatiProgetto> riletto = comeDaFile(project::Progetto);
    dossier::Richiesta tutto{.scritti = riletto.value_or(project::Progetto),
                             .usati = {},
                             .nSeg = {},
                             .identita = {},
                             .sulProgetto = {},
                             .norma = norma};
    tutto.usati = tutto.scritti;
    tutto.usati.metodoSpinte = project::Progetto.metodoSpinte;
    tutto.nSeg = analysis::leggiNSeg(analysis::vincoli(tutto.usati).incastroPiede);
    tutto.identita.file = file;
    tutto.identita.data = dossier::data(dossier::fontiDiSistema({}));
    tutto.identita.nonSalvato = !riletto || !salvato(file, *riletto);
    const auto opzioni = alPosto(tutto.usati, tutto.scritti);
    tutto.identita.opzioni = dossier::opzioniDette(opzioni, tutto.nSeg);
    if (riletto && tutto.nSeg) tutto.identita.comando = comando(opzioni, tutto);
    // The lines of the file count among the remarks, as they do for the command.
    if (!tutto.identita.nonSalvato) tutto.sulProgetto = review::esaminaFile(file, tutto.usati);
    return tutto;
}

class FinoAllaFermata : public analysis::OsservatoreCorsa {
 public:
    explicit FinoAllaFermata(const std::atomic<bool>& fermata) : fermata_(fermata) {}
    [[nodiscard]] bool fermata() override { return fermata_; }

 private:
    const std::atomic<bool>& fermata_;
};

}  // namespace

shell::CalcoloAllegato allegatoDelProgetto(const std::optional<factors::NormaChiesta>& norma) {
    return [richiesta =
                richiesta(norma)](const std::atomic<bool>& fermata) -> shell::ComposizioneAllegato {
        FinoAllaFermata osservatore(fermata);
        const auto fascicolo =
            std::make_shared<dossier::Fascicolo>(dossier::fascicolo(richiesta, osservatore));
        return [fascicolo] { return report::allegato(*fascicolo); };
    };
}

}  // namespace korven::desktop
