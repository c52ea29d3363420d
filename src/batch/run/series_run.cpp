#include "batch/run/series_run.hpp"

#include <unistd.h>

#include <algorithm>
#include <cassert>
#include <filesystem>
#include <iostream>
#include <iterator>
#include <optional>
#include <thread>

#include "base/colon.hpp"
#include "base/file_error.hpp"
#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/option_names.hpp"
#include "base/partial_file.hpp"
#include "base/translated_texts.hpp"
#include "batch/options/series_options.hpp"
#include "batch/run/console_run.hpp"
#include "batch/run/drawing_formats.hpp"
#include "batch/run/failure.hpp"
#include "batch/run/interruption.hpp"
#include "batch/run/output_names.hpp"
#include "batch/run/series_progress.hpp"
#include "batch/run/series_size.hpp"
#include "dossier/identity.hpp"
#include "project/project_data.hpp"
#include "project/shown_number.hpp"
#include "studies/charts/study_chart.hpp"
#include "studies/inert_fields.hpp"
#include "studies/resume.hpp"
#include "studies/summary/row_conditions.hpp"
#include "studies/summary/study_count.hpp"

namespace korven::batch {

namespace {

using base::riempito;
using base::traduttore;
using project::Progetto;

studies::Scelta colonne(const Opzioni& opzioni, const studies::Varianti& varianti) {
    std::vector<std::string> oltre{opzioni.serie.grafico};
    std::ranges::transform(opzioni.serie.fallisce, std::back_inserter(oltre), studies::risultatoDi);
    return studies::scegliColonne(opzioni.serie.colonne,
                                  studies::tirantiPossibili(Progetto, varianti.campi()),
                                  opzioni.serie.sicurezza, oltre);
}

studies::RigheStudio righeDi(const Opzioni& opzioni, const studies::Varianti& varianti) {
    return {varianti.campi(),
            studies::conQuelleContate(colonne(opzioni, varianti).colonne,
                                      studies::tirantiPossibili(Progetto, varianti.campi())),
            opzioni.json ? studies::Formato::json : studies::Formato::csv};
}

studies::Domanda domanda(const Opzioni& opzioni, int nSeg,
                         const std::vector<studies::Colonna>& colonne) {
    studies::Domanda d{.nSeg = nSeg, .ricalcolaEJ = opzioni.ricalcolaEJ};
    if (opzioni.serie.iterazione) d.soluzione = studies::Soluzione::iterazione;
    for (const studies::Colonna& c : colonne) {
        d.riduzione = d.riduzione || c.riduzione;
        d.lunghezza = d.lunghezza || c.lunghezza;
    }
    return d;
}

int fili(const OpzioniSerie& serie) {
    if (serie.fili > 0) return serie.fili;
    return std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
}

// Takes the rows to their file or to standard output.
class UscitaSerie : public studies::UscitaStudio, public studies::LettoreRigheStudio {
 public:
    UscitaSerie(const studies::RigheStudio& righe, const studies::DomandaConto& domanda,
                base::FileParziale* file)
        : quanti_(righe.quanti()), file_(file), conto_(Progetto, righe, domanda) {}

    void comincia(std::string_view testata, AvanzamentoSerie& avanzamento) {
        avanzamento_ = &avanzamento;
        scrivi(testata);
    }
    void riga(std::uint64_t i, std::span<const double> valori) override {
        conto_.riletta(i, valori);
    }
    void prendi(const studies::Righe& righe) override {
        scrivi(righe.byte);
        std::uint64_t i = righe.primo;
        for (std::size_t da = 0; da < righe.valori.size(); da += quanti_)
            conto_.riga(i++, std::span(righe.valori).subspan(da, quanti_));
        conto_.limitati(righe.limitati);
        conto_.controllate(righe.controllate);
    }
    // A reader that has gone ends the study, and is told of at the end of the program.
    bool prosegui(std::uint64_t fatte) override {
        avanzamento_->aggiorna(fatte);
        return Interruzioni::chiesta() == 0 && std::cout.good();
    }

    [[nodiscard]] studies::ContoStudio& conto() { return conto_; }

 private:
    void scrivi(std::string_view byte) {
        if (file_ != nullptr)
            file_->scrivi(byte);
        else
            std::cout.write(byte.data(), static_cast<std::streamsize>(byte.size())).flush();
    }

    const std::size_t quanti_;
    base::FileParziale* file_;
    studies::ContoStudio conto_;
    AvanzamentoSerie* avanzamento_ = nullptr;
};

// The rows that are there already; none, and an empty file, for a study that begins.
studies::Ripresa riprese(const Opzioni& opzioni, const studies::Studio& studio,
                         studies::Tratto tratto, base::FileParziale& file, UscitaSerie& uscita) {
    studies::Ripresa ripresa;
    if (opzioni.serie.riprendi) {
        const auto trovata = studies::riprendi(file, studio, tratto, uscita);
        if (!trovata)
            throw base::ErroreFile(
                file.nome(), 0,
                traduttore("contiene righe di un altro studio: senza --riprendi questo comincia da "
                           "capo e le cancella"));
        ripresa = *trovata;
        std::vector<double> valori(studio.varianti.campi().size());
        for (std::uint64_t i = tratto.da; i < tratto.da + ripresa.righe; ++i)
            for (const auto& limite : studio.varianti.valori(i, valori))
                uscita.conto().limitati({{limite, 1}});
    }
    file.tieni(ripresa.byte);
    return ripresa;
}

// What varies without a meaning is easily taken for a result.
void avvisaCampi(const studies::Studio& studio, Esito& esito) {
    const auto campi = studio.varianti.campi();
    std::vector<std::string> avvisi;
    for (const auto& [quale, da, a] :
         studies::campiSenzaEffetto(studio.varianti, studio.dati, studio.domanda))
        avvisi.push_back(riempito(
            traduttore("%1: da %2 a %3 nessun risultato cambia, in questo progetto com'è."),
            {project::nomeStabile(*campi[quale].campo, campi[quale].riga), base::testoNumero(da),
             base::testoNumero(a)}));
    if (studies::rigidezzaScrittaResta(studio.varianti, studio.dati, studio.domanda))
        avvisi.push_back(riempito(
            traduttore("La rigidezza EJ resta quella scritta, %1 kN m²/m, anche dove la "
                       "sezione ne darebbe un'altra: con %2 ogni variante ha la sua."),
            {project::numeroMostrato(studio.dati.rigidezzaEJ, 0,
                                     project::unita::rigidezzaFlessionale),
             base::nomeOpzioneEJ.mostrato() + ' ' + base::rigidezzaRicalcolata.mostrato()}));
    racconta(avvisi, esito);
}

void raccontaInterruzione(const base::FileParziale* file, std::uint64_t fatte, std::uint64_t quante,
                          Esito& esito) {
    esito.causa = safety::Causa::fermato;
    const std::string righe = std::to_string(fatte), tutte = std::to_string(quante);
    racconta(
        {file == nullptr
             ? riempito(traduttore("Studio interrotto: %1 varianti di %2."), {righe, tutte})
             : riempito(traduttore("Studio interrotto: %1 varianti di %2 in %3; con --riprendi "
                                   "continua da lì."),
                        {righe, tutte, file->nome()})},
        esito);
}

void raccontaFine(const Opzioni& opzioni, const studies::Studio& studio,
                  const studies::ContoStudio& conto) {
    const OpzioniSerie& serie = opzioni.serie;
    if (!opzioni.silenzioso && conto.riassunto().numero() == 0 && serie.parti > 1)
        std::cerr << riempito(traduttore("Alla parte %1 di %2 non toccano varianti: in tutto sono "
                                         "%3."),
                              {std::to_string(serie.parte), std::to_string(serie.parti),
                               std::to_string(studio.varianti.numero())})
                  << '\n';
    else if (!opzioni.silenzioso)
        for (const auto& riga : conto.righe()) std::cerr << riga << '\n';
    if (!opzioni.silenzioso || conto.diverse())
        for (const auto& riga : conto.righeControllo()) std::cerr << riga << '\n';
}

void controllaUscita(const Opzioni& opzioni, const base::Disco& disco) {
    const OpzioniSerie& serie = opzioni.serie;
    if (!opzioni.disegno.nessuna()) controllaUscite(opzioni.disegno);
    if (serie.uscita.empty()) return;
    const std::vector<std::string> file{serie.uscita, base::nomeParziale(serie.uscita)};
    controllaFile(file, disco);
    controllaNomi(file, opzioni.disegno.file());
    if (!serie.piano.empty()) controllaNomi(file, {serie.piano});
}

// Of one result, once all rows are there.
int disegnaRisultato(const Opzioni& opzioni, const base::Disco& disco,
                     const studies::RigheStudio& righe, const studies::ContoStudio& conto,
                     Esito& esito) {
    if (opzioni.serie.grafico.empty()) return fatto;
    const auto& nomi = righe.nomi();
    const auto quale = std::find(nomi.begin(), nomi.end(), opzioni.serie.grafico);
    const studies::GraficoStudio grafico{
        .risultato = static_cast<std::size_t>(quale - nomi.begin()),
        .valori = studies::valoriMostrati(righe),
        .campioni = opzioni.serie.campioni > 0,
        .progetto = std::filesystem::path(opzioni.progetto).filename().string(),
        .data = dossier::data(dossier::fontiDiSistema(opzioni.data))};
    return disegna(opzioni.disegno, disco, esito, [&] {
        const auto foglio = studies::formatoGrafico(conto.riassunto(), conto.forma(), grafico);
        studies::disegnaGrafico(conto.riassunto(), conto.forma(), grafico, foglio.larghezza,
                                foglio.altezza);
        return true;
    });
}

int corri(const Opzioni& opzioni, const PorteComando& porte, const studies::Studio& studio,
          const studies::DomandaConto& domanda, studies::Tratto tratto, base::FileParziale* file,
          Esito& esito) {
    UscitaSerie uscita(studio.righe, domanda, file);
    studies::Ripresa ripresa;
    if (file != nullptr) ripresa = riprese(opzioni, studio, tratto, *file, uscita);
    AvanzamentoSerie avanzamento(std::cerr, !opzioni.silenzioso, ::isatty(STDERR_FILENO) == 1,
                                 tratto.numero(), ripresa.righe);
    uscita.comincia(ripresa.byte == 0 ? studies::testata(studio, tratto) : std::string_view(),
                    avanzamento);
    const auto fatte =
        studies::esegui(studio, {tratto.da + ripresa.righe, tratto.a}, fili(opzioni.serie), uscita);
    avanzamento.chiudi();
    raccontaFine(opzioni, studio, uscita.conto());
    if (ripresa.righe + fatte < tratto.numero()) {
        raccontaInterruzione(file, ripresa.righe + fatte, tratto.numero(), esito);
        return nonEseguito;
    }
    if (file != nullptr) {
        file->concludi();
        esito.fileScritti.push_back(opzioni.serie.uscita);
    }
    esito.causa = safety::Causa::eseguito;
    const int disegno = disegnaRisultato(opzioni, porte.disco, studio.righe, uscita.conto(), esito);
    return uscita.conto().diverse() ? nonEseguito : disegno;
}

}  // namespace

std::string colonnaSbagliata(const Opzioni& opzioni, const studies::Varianti& varianti) {
    const int tiranti = studies::tirantiPossibili(Progetto, varianti.campi());
    const auto male = [](const base::Gemelli& opzione, const std::string& nome,
                         const std::string& perche) {
        return base::conDuePunti(opzione.mostrato() + ' ' + nome, perche);
    };
    const studies::Scelta scelta = colonne(opzioni, varianti);
    if (!scelta.sconosciuto.empty())
        return male(opzioneColonne, scelta.sconosciuto,
                    studies::nessunaColonna(scelta.sconosciuto, tiranti));
    const std::string& grafico = opzioni.serie.grafico;
    if (grafico.empty()) return {};
    const auto sua = std::ranges::find(scelta.colonne, grafico, &studies::Colonna::nome);
    if (sua == scelta.colonne.end())
        return male(opzioneGrafico, grafico, studies::nessunaColonna(grafico, tiranti));
    if (disegnabile(*sua)) return {};
    return male(opzioneGrafico, grafico,
                traduttore("si disegnano i numeri, non le parole né le profondità e le fasi in cui "
                           "stanno"));
}

std::string condizioneSbagliata(const Opzioni& opzioni, const studies::Varianti& varianti) {
    const auto lette = studies::leggiCondizioni(opzioni.serie.fallisce, righeDi(opzioni, varianti));
    if (!lette.difetto) return {};
    const auto& [testo, difetto] = *lette.difetto;
    // The name may be near to that of a column that was not asked for.
    const bool ignoto =
        difetto.motivo == studies::DifettoCondizione::Motivo::sconosciuto && difetto.atteso.empty();
    return base::conDuePunti(
        opzioneFallisce.mostrato() + ' ' + testo,
        ignoto ? base::conDuePunti(
                     difetto.testo,
                     studies::nessunaColonna(difetto.testo,
                                             studies::tirantiPossibili(Progetto, varianti.campi())))
               : studies::parole(difetto));
}

int eseguiSerie(const Opzioni& opzioni, const PorteComando& porte, const VariantiScelte& scelte,
                int nSeg, Esito& esito) {
    assert(scelte.varianti);
    const studies::Varianti& varianti = *scelte.varianti;
    const OpzioniSerie& serie = opzioni.serie;
    controllaUscita(opzioni, porte.disco);
    const studies::RigheStudio righe = righeDi(opzioni, varianti);
    const studies::Domanda chiesto = domanda(opzioni, nSeg, righe.colonne());
    const studies::Studio studio{varianti, Progetto, chiesto, righe,
                                 static_cast<std::uint64_t>(serie.controllo)};
    const auto tratto = studies::parte(varianti.numero(), serie.parte, serie.parti);
    if (!serie.senzaLimite)
        if (const auto perche = troppeVarianti(studio, tratto, fili(serie)); !perche.empty()) {
            fallisci(usoErrato, perche, esito);
            return usoErrato;
        }
    avvisaCampi(studio, esito);
    std::optional<base::FileParziale> file;
    if (!serie.uscita.empty()) file.emplace(serie.uscita, porte.disco);
    esito.righeVersate = true;
    const studies::DomandaConto domanda{.seme = serie.seme,
                                        .campioni = scelte.campioni,
                                        .indipendenti = scelte.indipendenti,
                                        .condizioni = serie.fallisce};
    return corri(opzioni, porte, studio, domanda, tratto, file ? &*file : nullptr, esito);
}

}  // namespace korven::batch
