#include <string>
#include <vector>

#include "base/files.hpp"
#include "base/folders/file_names.hpp"
#include "batch/command_table.hpp"
#include "batch/options/common_options.hpp"
#include "batch/run/command_ports.hpp"
#include "batch/run/computed_dossier.hpp"
#include "batch/run/output_names.hpp"
#include "batch/run/sheet_files.hpp"
#include "workbook/sheets.hpp"
#include "workbook/xlsx_file.hpp"

namespace korven::batch {

namespace {

using base::uguali;

bool senzaNomi(const FormatiTabelle& chiesti) {
    return chiesti.xlsx.empty() && chiesti.csv.empty();
}

// Without a name the workbook goes beside the project.
std::string fileXlsx(const FormatiTabelle& chiesti) {
    return senzaNomi(chiesti) ? nomeProprio(base::parolaTabelle, "xlsx") : chiesti.xlsx;
}

std::vector<std::string> fileCsv(const FormatiTabelle& chiesti) {
    return chiesti.csv.empty() ? std::vector<std::string>() : fileFogli(chiesti.csv);
}

void controlla(const FormatiTabelle& chiesti, const base::Disco& disco) {
    const std::vector<std::string> tabelle = fileCsv(chiesti);
    std::vector<std::string> uscite = tabelle, cartella;
    if (!chiesti.csv.empty()) cartella = {chiesti.csv};
    if (const std::string xlsx = fileXlsx(chiesti); !xlsx.empty()) {
        controllaTabella(xlsx, cartella);
        base::controllaScrivibile(xlsx, disco);
        uscite.push_back(xlsx);
    }
    for (const std::string& tabella : tabelle) controllaTabella(tabella);
    controllaNomi(uscite, {});
    if (cartella.empty()) return;
    base::controllaCartella(chiesti.csv);
    if (!base::esisteNome(chiesti.csv)) return;  // a new folder takes all files
    for (const std::string& tabella : tabelle) base::controllaScrivibile(tabella, disco);
}

void scrivi(const FormatiTabelle& chiesti, const workbook::CartellaFogli& cartella,
            const base::Disco& disco, Esito& esito) {
    const auto scrivi = [&](const std::string& file, const std::string& byte) {
        base::scriviFile(file, byte, disco);
        esito.fileScritti.push_back(file);
    };
    if (const std::string file = fileXlsx(chiesti); !file.empty())
        scrivi(file, workbook::xlsx(cartella, file));
    const std::vector<std::string> tabelle = fileCsv(chiesti);
    if (!tabelle.empty()) base::creaCartella(chiesti.csv);
    for (std::size_t i = 0; i < tabelle.size(); ++i)
        scrivi(tabelle[i], csvFoglio(cartella.fogli[i].prospetto));
}

int esegui(const Opzioni& opzioni, const PorteComando& porte, Esito& esito) {
    return conFascicolo(
        opzioni, esito,
        [&] {
            // The workbook that nobody names lies in the folder that is named for the results.
            if (!opzioni.uscita.empty() && senzaNomi(opzioni.tabelle))
                base::creaCartella(opzioni.uscita);
            controlla(opzioni.tabelle, porte.disco);
        },
        {},
        [&](const dossier::Fascicolo& fascicolo) {
            scrivi(opzioni.tabelle, workbook::fogli(fascicolo), porte.disco, esito);
        });
}

template <std::string FormatiTabelle::*uscita>
bool leggiUscita(Opzioni& o, const std::string& valore) {
    o.tabelle.*uscita = valore;
    return percorsoAmmesso(valore);
}

std::vector<RigaOpzione> opzioniTabelle() {
    return {{uguali("--xlsx"), "scrive le tabelle in una cartella di lavoro XLSX",
             leggiUscita<&FormatiTabelle::xlsx>, uguali("FILE")},
            {uguali("--csv"), "scrive ogni tabella come file CSV in questa cartella",
             leggiUscita<&FormatiTabelle::csv>, uguali("DIR")},
            opzioneData()};
}

}  // namespace

RigaComando comandoTabelle() {
    RigaComando riga = {
        base::parolaTabelle,
        "scrive i dati e i risultati come tabelle, per fogli di calcolo e altri programmi",
        insieme({opzioniModello(), {opzioneSevero(), opzioneEJ()}, opzioniTabelle()}), esegui};
    riga.calcola = true;
    return riga;
}

}  // namespace korven::batch
