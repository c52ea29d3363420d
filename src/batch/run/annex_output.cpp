#include "batch/run/annex_output.hpp"

#include <algorithm>
#include <iostream>
#include <iterator>
#include <utility>
#include <vector>

#include "analysis/run_arrays.hpp"
#include "analysis/segment_count.hpp"
#include "base/colon.hpp"
#include "base/folders/file_names.hpp"
#include "base/language.hpp"
#include "base/translated_texts.hpp"
#include "batch/options/common_options.hpp"
#include "batch/run/document_formats.hpp"
#include "batch/run/interruption.hpp"
#include "batch/run/output_names.hpp"
#include "report/annex/annex.hpp"

namespace korven::batch {

namespace {

constexpr std::string_view programma = "korven32c";

// Plain names as they are; all else between the quote marks of the shell.
std::string perLaShell(const std::string& testo) {
    const auto piano = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               std::string_view("/._-+,:=@%").find(c) != std::string_view::npos;
    };
    if (!testo.empty() && std::all_of(testo.begin(), testo.end(), piano)) return testo;
    std::string cifrato = "'";
    for (const char c : testo) cifrato += c == '\'' ? "'\\''" : std::string(1, c);
    return cifrato + "'";
}

std::vector<std::string> opzioniSulProgetto(const Opzioni& opzioni) {
    std::vector<std::string> tutte;
    if (opzioni.metodoSpinte)
        tutte.push_back(nomeOpzioneMetodo.mostrato() + " " + nomeMetodo(*opzioni.metodoSpinte));
    if (opzioni.ricalcolaEJ)
        tutte.push_back(opzioneEJ().nome.mostrato() + " " + opzioneEJ().valori[1].mostrato());
    return tutte;
}

}  // namespace

FormatiAllegato allegatoAccanto(FormatiAllegato chiesti) {
    chiesti.pdf = nomeProprio(base::parolaAllegato, "pdf");
    chiesti.documento = nomeProprio(base::parolaAllegato, "doc");
    chiesti.testo = nomeProprio(base::parolaAllegato, "txt");
    return chiesti;
}

std::string comandoAllegato(const Opzioni& opzioni, const FormatiAllegato& formati, int nSeg,
                            const std::string& data) {
    std::string comando = std::string(programma) + " " + base::parolaAllegato.mostrato() + " " +
                          perLaShell(opzioni.progetto);
    const auto aggiungi = [&](const std::string& nome, const std::string& valore) {
        if (!valore.empty()) comando += " " + nome + " " + perLaShell(valore);
    };
    aggiungi("--pdf", formati.pdf);
    aggiungi("--doc", formati.documento);
    aggiungi("--txt", formati.testo);
    for (const auto& opzione : opzioniSulProgetto(opzioni)) comando += " " + opzione;
    aggiungi(nomeOpzioneNseg.mostrato(), std::to_string(nSeg));
    if (formati.righe != FormatiAllegato().righe)
        aggiungi(nomeOpzioneRighe.mostrato(), std::to_string(formati.righe));
    aggiungi(nomeOpzioneData.mostrato(), data);
    aggiungi(nomeOpzioneLingua.mostrato(), std::string(base::siglaLingua(base::linguaCorrente())));
    return comando;
}

dossier::Fascicolo fascicoloAllegato(const Opzioni& opzioni, const project::DatiProgetto& usati,
                                     const FormatiAllegato& formati, const Esito& esito) {
    const auto nSeg = analysis::leggiNSeg(analysis::vincoli(usati).incastroPiede);
    const std::string data = dossier::data(dossier::fontiDiSistema(formati.data));
    dossier::Identita identita;
    identita.file = opzioni.progetto;
    identita.data = data;
    identita.opzioni = opzioniSulProgetto(opzioni);
    if (nSeg) identita.comando = comandoAllegato(opzioni, formati, *nSeg, data);
    FinoAllInterruzione osservatore;
    return dossier::fascicolo({.scritti = esito.scritti,
                               .usati = usati,
                               .nSeg = nSeg,
                               .identita = std::move(identita),
                               .sulProgetto = esito.osservazioni},
                              osservatore);
}

void scriviAllegato(dossier::Fascicolo fascicolo, const FormatiAllegato& formati,
                    const base::Disco& disco, Esito& esito) {
    const DocumentoScritto scritto =
        scrivi(report::allegato(std::move(fascicolo), {.righe = formati.righe}),
               {.pdf = formati.pdf, .documento = formati.documento, .testo = formati.testo}, disco);
    esito.fileScritti.insert(esito.fileScritti.end(), scritto.file.begin(), scritto.file.end());
    if (!scritto.conservato.empty())
        std::cerr << base::traduttore("Il documento che c'era è conservato in") << base::duePunti()
                  << scritto.conservato << '\n';
}

}  // namespace korven::batch
