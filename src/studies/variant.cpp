#include "studies/variant.hpp"

#include <algorithm>
#include <cmath>

#include "analysis/input_checks.hpp"
#include "analysis/run_arrays.hpp"
#include "analysis/run_closing.hpp"
#include "base/table.hpp"
#include "base/value_error.hpp"
#include "equilibrium/staged_equilibrium.hpp"
#include "project/depth_order.hpp"
#include "project/program_numbers.hpp"
#include "project/project_file.hpp"
#include "project/typed_field.hpp"
#include "safety/passive_use.hpp"
#include "safety/strength_reduction.hpp"
#include "safety/told_stages.hpp"
#include "structure/bending_resistance.hpp"
#include "structure/offered_stiffness.hpp"
#include "structure/section_validity.hpp"

namespace korven::studies {

namespace {

using equilibrium::EsitoFase;
using equilibrium::FaseEquilibrio;
using project::DatiProgetto;
using safety::Causa;

// The same as `analysis::motivoDati`, without the words.
Motivo datiRifiutati(const DatiProgetto& dati) {
    const auto motivi = analysis::motiviRifiuto(dati);
    if (!motivi.empty()) {
        const project::Membro campo = motivi.front().campo;
        if (campo == project::Membro(&DatiProgetto::lunghezzaParatia)) return Motivo::lunghezza;
        if (campo == project::Membro(&DatiProgetto::nStrati)) return Motivo::strati;
        if (campo == project::Membro(&DatiProgetto::nFasi)) return Motivo::fasi;
        return Motivo::metodoKs;
    }
    for (int k = 1; k <= dati.nFasi; ++k)
        if (!(dati.tirantiFase[k] < project::massimoTiranti + 1)) return Motivo::tiranti;
    return structure::troppiFerri(dati.sezione) ? Motivo::ferri : Motivo::nessuno;
}

Motivo motivo(equilibrium::Instabile che) {
    using enum equilibrium::Instabile;
    switch (che) {
        case modulo:
            return Motivo::modulo;
        case limiti:
            return Motivo::limiti;
        case tirante:
            return Motivo::tirante;
        case parete:
            return Motivo::parete;
        case no:
            break;
    }
    return Motivo::nessuno;
}

Motivo motivo(equilibrium::EsitoNewton newton) {
    switch (newton) {
        case equilibrium::EsitoNewton::senzaMisura:
            return Motivo::senzaMisura;
        case equilibrium::EsitoNewton::nonRaggiunto:
            return Motivo::nonRaggiunto;
        default:
            return Motivo::nessunNumero;
    }
}

void cade(RisultatoVariante& r, Causa causa, Motivo motivo, int fase = 0) {
    r.causa = causa;
    r.motivo = motivo;
    r.faseCaduta = fase;
}

// A stage of the equilibrium solution that does not stand.
void cade(RisultatoVariante& r, const FaseEquilibrio& f) {
    if (f.rifiuto) return cade(r, Causa::rifiutato, Motivo::suolo, f.fase);
    switch (f.esito) {
        case EsitoFase::meccanismo:
            return cade(r, Causa::meccanismo,
                        f.moto->traslazione ? Motivo::traslazione : Motivo::rotazione, f.fase);
        case EsitoFase::nonDefinito:
            return cade(r, Causa::nonDefinito, motivo(f.instabile.che), f.fase);
        case EsitoFase::nessunNumero:
            return cade(r, Causa::nessunNumero, motivo(f.newton), f.fase);
        case EsitoFase::equilibrio:
            cade(r, Causa::nessunNumero, Motivo::nessunNumero, f.fase);
    }
}

void aggiungiTiri(const std::vector<double>& tiri, std::vector<double>& massimi) {
    if (massimi.size() < tiri.size()) massimi.resize(tiri.size());
    for (std::size_t j = 0; j < tiri.size(); ++j)
        if (std::fabs(tiri[j]) > std::fabs(massimi[j])) massimi[j] = tiri[j];
}

bool conteggio(const project::CampoNominato& c) {
    return std::holds_alternative<int DatiProgetto::*>(c.campo->membro);
}

bool cambiaRighe(const std::vector<project::CampoNominato>& campi) {
    return std::any_of(campi.begin(), campi.end(), conteggio);
}

// As the file gives it back, but for a method of the pressures that was chosen for this once.
DatiProgetto riletto(const DatiProgetto& dati) {
    DatiProgetto letti = project::comeRiletto(dati);
    letti.metodoSpinte = dati.metodoSpinte;
    return letti;
}

}  // namespace

CalcoloVariante::CalcoloVariante(const DatiProgetto& dati,
                                 std::span<const project::CampoNominato> campi,
                                 const Domanda& domanda)
    : base_(riletto(dati)),
      campi_(campi.begin(), campi.end()),
      domanda_(domanda),
      dati_(base_),
      scritti_(campi.size()) {}

const RisultatoVariante& CalcoloVariante::calcola(std::span<const double> valori,
                                                  analysis::OsservatoreCorsa& osservatore) {
    risultato_ = {};
    try {
        if (const Motivo perche = scrivi(valori); perche != Motivo::nessuno)
            cade(risultato_, Causa::rifiutato, perche);
        else
            calcolaFasi(osservatore);
    } catch (const base::ErroreIndice&) {
        cade(risultato_, Causa::rifiutato, Motivo::tabella);
    } catch (const base::ErroreValore&) {
        cade(risultato_, Causa::nessunNumero, Motivo::nessunNumero);
    }
    return risultato_;
}

Motivo CalcoloVariante::scrivi(std::span<const double> valori) {
    if (cambiaRighe(campi_)) dati_ = base_;
    // Which the variant before may have taken from its section.
    dati_.rigidezzaEJ = base_.rigidezzaEJ;
    std::copy(valori.begin(), valori.end(), scritti_.begin());
    Motivo perche = Motivo::nessuno;
    for (const bool conteggi : {true, false})  // rows come before what stands in them
        for (std::size_t j = 0; j < campi_.size(); ++j) {
            if (conteggio(campi_[j]) != conteggi || perche != Motivo::nessuno) continue;
            perche = scrivi(campi_[j], valori[j], scritti_[j]);
        }
    if (perche != Motivo::nessuno) return perche;
    return project::nuoviDisordini(base_, dati_).empty() ? Motivo::nessuno : Motivo::ordine;
}

Motivo CalcoloVariante::scrivi(const project::CampoNominato& nominato, double valore,
                               double& scritto) {
    const project::Campo& campo = *nominato.campo;
    if (project::motivoRifiuto(campo, valore)) return Motivo::valore;
    const double conservato = project::conservatoNelFile(campo, valore);
    if (!project::tornaDalFile(campo, conservato)) return Motivo::valore;
    if (project::colonna(campo) && nominato.riga > project::righe(dati_, campo.parte))
        return Motivo::riga;
    project::metti(dati_, nominato, conservato);
    scritto = project::valoreCampo(project::mostrato(campo, conservato));
    return Motivo::nessuno;
}

void CalcoloVariante::calcolaFasi(analysis::OsservatoreCorsa& osservatore) {
    if (const Motivo perche = datiRifiutati(dati_); perche != Motivo::nessuno)
        return cade(risultato_, Causa::rifiutato, perche);
    prendiSezione();
    if (const Motivo perche = rifiuto(); perche != Motivo::nessuno)
        return cade(risultato_, Causa::rifiutato, perche);
    if (domanda_.soluzione == Soluzione::iterazione)
        iterazione(osservatore);
    else
        equilibrio();
    if (risultato_.causa != Causa::rifiutato && risultato_.causa != Causa::fermato) margine();
}

Motivo CalcoloVariante::rifiuto() const {
    if (dati_.rigidezzaEJ == 0) return Motivo::rigidezza;
    const bool incastro = analysis::vincoli(dati_).incastroPiede;
    return incastro && domanda_.nSeg > analysis::massimoSegmentiIncastro ? Motivo::segmenti
                                                                         : Motivo::nessuno;
}

void CalcoloVariante::prendiSezione() {
    if (!resistenze_ || resistenze_->sezione != dati_.sezione ||
        resistenze_->sforzoNormale != dati_.sforzoNormale)
        resistenze_ = {dati_.sezione, dati_.sforzoNormale,
                       structure::rigidezzaOfferta(dati_.sezione),
                       structure::resistenze(dati_.sezione, dati_.sforzoNormale)};
    if (resistenze_->EJ && (dati_.rigidezzaEJ == 0 || domanda_.ricalcolaEJ))
        dati_.rigidezzaEJ = *resistenze_->EJ;
}

void CalcoloVariante::equilibrio() {
    equilibrium::EquilibrioParete parete(dati_, domanda_.nSeg);
    RisultatoVariante& r = risultato_;
    for (int k = 1; k <= dati_.nFasi; ++k) {
        const FaseEquilibrio& f = parete.calcola(k);
        if (f.esito != EsitoFase::equilibrio || !safety::mostrabile(f)) {
            cade(r, f);
            break;
        }
        equilibrium::aggiungi(f, parete.problema().h, r.estremi);
        aggiungiTiri(f.tiri, r.tiri);
        const auto uso = safety::usoPassiva(parete.problema(), f, dati_.profFase[k]).quota;
        if (!uso || (r.passiva && *uso <= *r.passiva)) continue;
        r.passiva = uso;
        r.fasePassiva = k;
    }
    verifiche();
}

void CalcoloVariante::verifiche() {
    RisultatoVariante& r = risultato_;
    const auto chiusura =
        analysis::chiusura(resistenze_->MRd, {.fasi = {},
                                              .mMaxTotale = r.estremi.momentoMassimo.valore,
                                              .mMinTotale = r.estremi.momentoMinimo.valore});
    r.flessione = results::verificaMomenti(dati_.sezione, chiusura);
    r.taglio = results::verificaAlTaglio(dati_.sezione, std::fabs(r.estremi.taglio.valore));
}

void CalcoloVariante::margine() {
    if (domanda_.lunghezza)
        risultato_.lunghezzaMinima = safety::lunghezzaMinima(dati_, domanda_.nSeg);
    if (!domanda_.riduzione) return;
    RiduzioneVariante& minima = risultato_.riduzione.emplace();
    // A wall that stands may still be one whose iteration falls.
    const bool sta = risultato_.sta() || risultato_.causa == Causa::oscilla;
    const int prima = sta ? 1 : risultato_.faseCaduta;
    const int ultima = sta ? dati_.nFasi : risultato_.faseCaduta;
    minima.oltre = true;
    for (int k = prima; k <= ultima; ++k) {
        const safety::Riduzione r = safety::riduzione(dati_, domanda_.nSeg, k);
        minima.oltre = minima.oltre && r.oltre;
        if (!r.F || (minima.F && *minima.F <= *r.F)) continue;
        minima.F = r.F;
        minima.fase = k;
    }
}

}  // namespace korven::studies
