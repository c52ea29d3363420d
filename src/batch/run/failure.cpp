#include "batch/run/failure.hpp"

#include <algorithm>
#include <cassert>
#include <exception>
#include <filesystem>
#include <iostream>

#include "base/colon.hpp"
#include "base/file_error.hpp"
#include "base/file_identity.hpp"
#include "base/files.hpp"
#include "base/folders/file_names.hpp"
#include "base/table.hpp"
#include "base/translated_texts.hpp"
#include "base/value_error.hpp"
#include "batch/run/output_names.hpp"
#include "commands/fatal_error.hpp"
#include "commands/report_files.hpp"
#include "plot/drawing_stop.hpp"
#include "project/project_data.hpp"

namespace korven::batch {

namespace {

// As after a singular system: what can't be shown must not be taken for up to date.
void togliRisultati(analysis::GuardiaRisultati& guardia, Esito& esito) {
    esito.calcolo.reset();
    if (esito.calcola) esito.causa = safety::Causa::nessunNumero;
    if (esito.corsa) guardia.togliNonMostrabili(base::nomeRisultati(project::fileCorrente));
}

// Of a file that has no room beside the project, as beside an example that is installed: how to
// place it elsewhere.
std::string doveAltro(const base::ErroreScrittura& errore, const Esito& esito) {
    const auto cartella = [](const std::string& file) {
        return std::filesystem::path(file).parent_path();
    };
    if (esito.altrove.empty() || cartella(errore.percorso()) != cartella(esito.progetto)) return {};
    return base::puntoEVirgola() + esito.altrove;
}

}  // namespace

void raccontaGuasto(analysis::GuardiaRisultati& guardia, Esito& esito) {
    assert(std::current_exception());
    try {
        throw;
    } catch (const base::ErroreValore& errore) {
        togliRisultati(guardia, esito);
        fallisci(
            nonEseguito,
            esito.progetto + ": " + errore.what() + base::puntoEVirgola() +
                base::traduttore("il comando verifica nomina i campi con valori troppo grandi"),
            esito);
    } catch (const NomiInConflitto& errore) {
        fallisci(usoErrato, errore.what(), esito);
    } catch (const base::ErroreIndice& errore) {
        fallisci(ingressoRotto, esito.progetto + ": " + commands::spiegazione(errore), esito);
    } catch (const plot::DisegnoInterrotto& errore) {
        fallisci(nonEseguito, errore.what(), esito);
    } catch (const base::ErroreScrittura& errore) {
        fallisci(ingressoRotto, errore.what() + doveAltro(errore, esito), esito);
    } catch (const std::exception& errore) {
        fallisci(ingressoRotto, errore.what(), esito);
    }
}

void fallisci(int codice, const std::string& perche, Esito& esito) {
    std::cerr << "korven32c: " << perche << '\n';
    esito.messaggi.push_back(perche);
    esito.codice = codice;
    esito.guasto = true;
}

void avvisaRimasti(const std::vector<std::string>& rimasti, Esito& esito) {
    for (const auto& file : rimasti) {
        const auto& scritti = esito.fileScritti;
        if (std::any_of(scritti.begin(), scritti.end(), [&file](const std::string& scritto) {
                return base::stessoFile(scritto, file);
            }))
            continue;
        const std::string avviso =
            base::traduttore("File di un calcolo precedente, non aggiornato da questo") +
            base::duePunti() + file;
        std::cerr << avviso << '\n';
        esito.messaggi.push_back(avviso);
    }
}

void avvisaRelazioniRimaste(Esito& esito) {
    avvisaRimasti(commands::relazioniRimaste(project::fileCorrente), esito);
}

}  // namespace korven::batch
