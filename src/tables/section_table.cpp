#include "tables/section_table.hpp"

#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "live/section_checks.hpp"
#include "project/field_table.hpp"
#include "structure/offered_stiffness.hpp"
#include "structure/partial_factors.hpp"
#include "structure/section_validity.hpp"
#include "tables/check_table.hpp"
#include "tables/check_words.hpp"

namespace korven::tables {

namespace {

using base::riempito;
using base::traduttore;
using live::ControlliSezione;
using live::PareteViva;
using project::DatiProgetto;
namespace unita = project::unita;

// As the editors show it.
std::string ej(double conservata) {
    return base::testoNumero(mostrato(unita::rigidezzaFlessionale, conservata));
}

std::string senzaSezione(const project::Sezione& sezione) {
    if (structure::troppiFerri(sezione))
        return traduttore("Sezione non calcolabile: troppi ferri.");
    const auto mancanti = structure::campiMancanti(sezione);
    if (mancanti.empty()) return traduttore("Sezione non definita.");
    std::string elenco;
    for (const auto campo : mancanti)
        elenco += (elenco.empty() ? "" : ", ") + traduttore(project::campo(campo).cosa);
    return riempito(traduttore("Sezione non definita. Mancano: %1."), {elenco});
}

// Beside what the section gives, as a run will take it.
std::string rigaProgetto(double delProgetto, double dellaSezione) {
    if (delProgetto == 0)
        return traduttore("EJ del progetto: 0, il calcolo prende quella della sezione.");
    const char* testo =
        delProgetto == dellaSezione
            ? "EJ del progetto: %1 kN m²/m, uguale."
            : "EJ del progetto: %1 kN m²/m, diversa: il calcolo chiede quale prendere.";
    return riempito(traduttore(testo), {ej(delProgetto)});
}

std::vector<std::string> righe(const DatiProgetto& dati) {
    if (!live::sezioneCalcolabile(dati.sezione)) return {senzaSezione(dati.sezione)};
    std::vector<std::string> righe;
    if (const auto EJ = structure::rigidezzaOfferta(dati.sezione)) {
        righe.push_back(riempito(traduttore("EJ della sezione: %1 kN m²/m"), {ej(*EJ)}));
        righe.push_back(rigaProgetto(dati.rigidezzaEJ, *EJ));
    } else {
        righe.push_back(traduttore("EJ della sezione: nessun numero."));
    }
    const double Nd = structure::fsAzioniSezione * dati.sforzoNormale;
    righe.push_back(riempito(traduttore("Sforzo normale di progetto Nd: %1 kN/m"),
                             {cifre(mostrato(unita::forzaAlMetro, Nd)).testo}));
    return righe;
}

Cella verifica(bool fallita) {
    return esito(traduttore(fallita ? "NON verificata" : "verificata"), fallita);
}

// The checks of a wall, with its margin as soon as that is known.
struct Verifiche {
    const PareteViva& parete;
    const ControlliSezione& controlli;
    const safety::Margine* margine;

    // Of stages before one that falls nothing but their own mesh is known.
    [[nodiscard]] Cella esito(results::Verifica cosa, bool fallita) const {
        const auto suo = margine != nullptr ? giudizio(*margine, cosa) : std::nullopt;
        return suo ? tables::esito(suo) : verifica(fallita);
    }
};

// Symbols, since there is little room beside the sketch.
// @param manca  why the design value is not known; empty where it is
std::vector<Cella> riga(const char* simbolo, const project::Unita& u, const char* manca,
                        double progetto, double resistenza, const Cella& esito) {
    const bool nota = *manca == '\0';
    const Cella nessuna = nota ? Cella{} : senza(traduttore(manca));
    return {parola(std::string(simbolo) + " " + traParentesi(u)), nota ? esito : nessuna,
            nota ? uso(progetto, resistenza) : nessuna, nota ? cifre(progetto) : nessuna,
            cifre(resistenza)};
}

const char* senzaAzioni(const Verifiche& v) {
    return v.controlli.conAzioni ? "" : azioniNonNote(v.parete);
}

void flessione(const Verifiche& v, Prospetto& p) {
    using results::Verifica;
    const auto& c = *v.controlli.flessione;
    const project::Unita& u = unita::momentoAlMetro;
    const char* senzaNegativo =
        v.controlli.conAzioni && !c.negativo ? "Nessun momento negativo agisce." : senzaAzioni(v);
    p.righe.push_back(riga("M+", u, senzaAzioni(v), mostrato(u, c.mdMax), mostrato(u, c.mrPos),
                           v.esito(Verifica::momentoPositivo, c.fallitaPos())));
    p.righe.push_back(riga("M−", u, senzaNegativo, mostrato(u, c.mdMin), mostrato(u, c.mrNeg),
                           v.esito(Verifica::momentoNegativo, c.fallitaNeg())));
}

void taglio(const Verifiche& v, Prospetto& p) {
    using results::Verifica;
    const auto& c = *v.controlli.taglio;
    const auto aggiungi = [&](const char* simbolo, double VRd, const Cella& esito) {
        p.righe.push_back(riga(simbolo, unita::forzaAlMetro, senzaAzioni(v), c.Vsd, VRd, esito));
    };
    aggiungi("V, VRd2", c.Vrd2, v.esito(Verifica::bielle, c.rotturaBielle()));
    aggiungi("V, VRd3", c.Vrd3, v.esito(Verifica::armatura, c.rotturaArmatura()));
}

std::vector<Colonna> colonne() {
    // The verdict first: a narrow panel does not show all columns at once.
    return {colonnaParole("Verifica", "Che cosa si verifica, per metro di paratia"),
            colonnaParole("Esito", spiegazioneEsito),
            colonna(unita::percento, "Sfruttamento", "Valore di progetto diviso per la resistenza"),
            colonna(unita::nessuna, "Di progetto",
                    "Valore di progetto: il massimo di calcolo per il coefficiente delle azioni"),
            colonna(unita::nessuna, "Resistenza", "Resistenza di progetto della sezione")};
}

std::string origine(const PareteViva& parete, const ControlliSezione& controlli) {
    if (controlli.dellaRelazione) return traduttore("Azioni della relazione.");
    if (!controlli.conAzioni) return traduttore(azioniNonNote(parete));
    if (parete.sta()) return traduttore("Azioni della soluzione di equilibrio.");
    return riempito(traduttore("Azioni della soluzione di equilibrio, fino alla fase %1."),
                    {std::to_string(parete.fasiInEquilibrio())});
}

}  // namespace

QuadroSezione quadroSezione(const DatiProgetto& dati, const PareteViva& parete,
                            const safety::Margine* margine) {
    QuadroSezione q;
    q.righe = righe(dati);
    q.verifiche = {.titolo = traduttore("Verifiche"), .colonne = colonne()};
    if (!live::sezioneCalcolabile(dati.sezione)) return q;
    const ControlliSezione controlli = live::controlliSezione(parete, margine);
    const Verifiche sue{parete, controlli, margine};
    if (controlli.flessione) flessione(sue, q.verifiche);
    if (controlli.taglio) taglio(sue, q.verifiche);
    q.verifiche.note.push_back(origine(parete, controlli));
    return q;
}

Prospetto prospettoDominio(const PareteViva& parete, const safety::Margine* margine,
                           const std::vector<structure::PuntoDominio>& dominio) {
    Prospetto p{.titolo = traduttore("Dominio N–M"),
                .colonne = {
                    colonna(unita::nessuna, "Fase", "Fase di scavo"),
                    colonnaSimbolo(unita::forzaAlMetro, "Nd", "Sforzo normale di progetto"),
                    colonnaSimbolo(unita::momentoAlMetro, "Md max", "Momento di progetto maggiore"),
                    colonnaSimbolo(unita::momentoAlMetro, "Md min", "Momento di progetto minore"),
                    colonnaParole("Esito", "Con i momenti di questa fase"),
                }};
    // The report cuts its numbers; those of the equilibrium are rounded wherever they stand.
    const bool dellaRelazione = margine != nullptr && margine->relazione;
    const auto numero = [&](const project::Unita& u, double conservato) {
        return dellaRelazione ? cifre(mostrato(u, conservato)) : cella(conservato, 2, u);
    };
    for (const auto& fase : live::fasiNelDominio(parete, margine))
        p.righe.push_back({cella(fase.fase), numero(unita::forzaAlMetro, fase.Nd / project::newton),
                           numero(unita::momentoAlMetro, fase.momenti.mdMax),
                           numero(unita::momentoAlMetro, fase.momenti.mdMin),
                           verifica(!fase.dentro())});
    if (dominio.empty()) return p;
    const auto kN = [](double N) { return base::testoDecimali(N / project::newtonKilonewton, 0); };
    p.note.push_back(riempito(traduttore("Nd va da %1 kN/m (trazione) a %2 kN/m (compressione)."),
                              {kN(dominio.front().Nd), kN(dominio.back().Nd)}));
    return p;
}

}  // namespace korven::tables
