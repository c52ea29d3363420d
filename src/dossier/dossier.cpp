#include "dossier/dossier.hpp"

#include "base/table.hpp"
#include "base/value_error.hpp"
#include "base/version.hpp"
#include "review/project_review.hpp"
#include "review/result_review.hpp"
#include "safety/short_margin.hpp"

namespace korven::dossier {

namespace {

// What is beyond the numbers or the tables has no results. All else, as what an observer throws, is
// not for this room to hide.
template <class Calcolo>
void prova(Calcolo calcolo) {
    try {
        calcolo();
    } catch (const base::ErroreValore&) {
    } catch (const base::ErroreIndice&) {
    }
}

Identita identita(const Richiesta& richiesta) {
    Identita sua = richiesta.identita;
    sua.programma = base::nomeEVersione.substr(0, base::nomeEVersione.rfind(' '));
    sua.versione = base::versione;
    prova([&] { sua.impronta = impronta(richiesta.scritti); });
    return sua;
}

void margine(analysis::OsservatoreCorsa& osservatore, Fascicolo& f) {
    if (!safety::haMargine(f.parete.dati, f.parete.nSeg)) return;
    CorsaAffiancata corsa(f.parete, osservatore);
    f.margine = safety::margine(f.parete.dati, f.parete.nSeg, corsa);
    f.corsa = corsa.fasi();
    spiega(f.parete, *f.margine, f.corsa);
    f.doppi = numeriDoppi(f.parete, *f.margine);
    f.fine = f.margine->corsa;
}

void osservazioni(const Richiesta& richiesta, Fascicolo& f) {
    prova([&] {
        f.osservazioni = richiesta.sulProgetto ? *richiesta.sulProgetto
                                               : review::esaminaProgetto(richiesta.usati);
    });
    prova([&] {
        if (!f.margine) return;
        const auto sue = review::esaminaRisultati(f.parete.dati, *f.margine);
        f.osservazioni.insert(f.osservazioni.end(), sue.begin(), sue.end());
    });
    review::perPeso(f.osservazioni);
}

// By the equilibrium, and not by the report where there is one.
void sezione(Fascicolo& f) {
    f.controlli = live::controlliSezione(f.parete, nullptr);
    f.verifiche = verificheDoppie(f.parete, f.controlli, f.margine ? &*f.margine : nullptr);
    f.nelDominio = live::fasiNelDominio(f.parete, nullptr);
    f.dominio = structure::dominioNM(f.parete.dati.sezione);
    f.flessione = valoriFlessione(f.parete.dati, f.controlli);
    f.taglio = valoriTaglio(f.parete.dati, f.controlli);
}

// Like the margin: of data that no run refuses.
void combinazioni(const factors::NormaChiesta& chiesta, Fascicolo& f) {
    if (!safety::haMargine(f.parete.dati, f.parete.nSeg)) return;
    f.norma = factors::combinazioni(f.parete.dati, f.parete.nSeg, chiesta.norma, chiesta.natura);
}

class InSilenzio : public analysis::OsservatoreCorsa {};

}  // namespace

Fascicolo fascicolo(const Richiesta& richiesta, analysis::OsservatoreCorsa& osservatore) {
    Fascicolo f;
    f.identita = identita(richiesta);
    f.scritti = richiesta.scritti;
    f.parete.dati = richiesta.usati;
    prova([&] {
        f.parete = richiesta.nSeg ? live::calcola(richiesta.usati, *richiesta.nSeg)
                                  : live::calcola(richiesta.usati);
    });
    prova([&] { margine(osservatore, f); });
    osservazioni(richiesta, f);
    f.inviluppo = live::inviluppo(f.parete);
    f.bilanci = bilanci(f.parete.dati, f.parete.nSeg, f.parete.fasiInEquilibrio());
    if (f.parete.perche && f.parete.perche->moto)
        f.limite = bilancioLimite(f.parete.dati, f.parete.nSeg, f.parete.perche->fase);
    f.tiranti = storieTiranti(f.parete, f.margine ? &*f.margine : nullptr);
    prova([&] { sezione(f); });
    prova([&] { f.terreno = valoriTerreno(f.parete); });
    prova([&] { f.rigidezza = valoriRigidezza(f.parete.dati); });
    if (richiesta.norma) prova([&] { combinazioni(*richiesta.norma, f); });
    return f;
}

Fascicolo fascicolo(const project::DatiProgetto& dati) {
    InSilenzio osservatore;
    return fascicolo(
        {.scritti = dati, .usati = dati, .nSeg = {}, .identita = {}, .sulProgetto = {}},
        osservatore);
}

}  // namespace korven::dossier
