#include "commands/menu_tree.hpp"

#include <algorithm>
#include <cassert>
#include <iterator>

#include "base/translated_texts.hpp"
#include "commands/desktop_program.hpp"
#include "commands/document_names.hpp"
#include "commands/edit_commands.hpp"
#include "commands/output_commands.hpp"
#include "commands/recent_projects.hpp"
#include "help/contexts.hpp"
#include "project/project_data.hpp"

namespace korven::commands {

namespace {

using enum analysis::Diagramma;
using masks::NumeroMaschera;
using F = FormeProgramma;

template <auto forma>
bool ha(const F& forme) {
    return static_cast<bool>(forme.*forma);
}

// What the commands do, each in the terms of the program that carries it out.

bool apri(Programma& programma, const VoceMenu&) {
    programma.documento().fileApri();
    return false;
}

bool salva(Programma& programma, const VoceMenu&) {
    programma.documento().fileSalva();
    return false;
}

bool esci(Programma& programma, const VoceMenu&) { return programma.documento().fine(); }

template <auto forma>
bool mostra(Programma& programma, const VoceMenu&) {
    (programma.forme().*forma)();
    return false;
}

bool informa(Programma& programma, const VoceMenu&) {
    programma.forme().informazioni(rigaFileCorrente(project::fileCorrente));
    return false;
}

bool spiega(Programma& programma, const VoceMenu& voce) {
    programma.apriGuida(voce.guida);
    return false;
}

bool nuovo(Programma& programma, const VoceMenu&) {
    programma.documento().nuovo(programma.forme().nuovo);
    return false;
}

bool duplica(Programma& programma, const VoceMenu&) {
    programma.documento().duplica();
    return false;
}

bool lingua(Programma& programma, const VoceMenu&) {
    if (!programma.forme().lingua() || !programma.documento().fine()) return false;
    if (programma.forme().riavvia) programma.forme().riavvia();
    return true;
}

bool annulla(Programma& programma, const VoceMenu&) {
    programma.annulla();
    return false;
}

bool ripeti(Programma& programma, const VoceMenu&) {
    programma.ripeti();
    return false;
}

bool annullabile(const Programma& programma) {
    return programma.documento().storia().annullabile();
}

bool ripetibile(const Programma& programma) { return programma.documento().storia().ripetibile(); }

std::string daAnnullare(const Programma& programma) {
    return programma.documento().storia().daAnnullare();
}

std::string daRipetere(const Programma& programma) {
    return programma.documento().storia().daRipetere();
}

bool progettoAperto(const Programma&) { return !project::fileCorrente.empty(); }

std::vector<VoceMutevole> recenti(Programma& programma) {
    std::vector<VoceMutevole> voci;
    for (const auto& percorso : progettiRecenti())
        voci.push_back(
            {.testo = voceRecente(voci.size(), percorso),
             .scelta = [&programma, percorso] { programma.documento().apriRecente(percorso); }});
    if (voci.empty()) return {{.testo = base::traduttore("nessun progetto recente"), .scelta = {}}};
    voci.push_back({.testo = base::traduttore("&Dimentica l'elenco"),
                    .scelta = [] { dimenticaRecenti(); },
                    .staccata = true});
    return voci;
}

template <NumeroMaschera numero, const char* rifiuto>
bool edita(Programma& programma, const VoceMenu&) {
    programma.edita(numero, rifiuto);
    return false;
}

template <auto uscita>
bool produci(Programma& programma, const VoceMenu&) {
    programma.produci(uscita);
    return false;
}

template <Destinazione destinazione>
void relazione(const PorteUscita& porte) {
    produciRelazione(destinazione, porte);
}

template <analysis::Diagramma quale>
void diagramma(const PorteUscita& porte) {
    produciDiagramma(quale, porte);
}

constexpr VoceMenu staccata(VoceMenu voce) {
    voce.staccata = true;
    return voce;
}

constexpr VoceMenu accanto(VoceMenu voce) {
    voce.accanto = true;
    return voce;
}

constexpr VoceMenu voci[] = {
    {"archivi", "&Archivi", 0},
    {"FileApri", "&Apri", 1, 3, nullptr, apri, "Ctrl+O"},
    {"FileSalva", "&Salva", 1, 4, nullptr, salva, "Ctrl+S"},
    {"PrintSetup", "&Configura Stampante", 1, 27, ha<&F::impostaStampante>,
     mostra<&F::impostaStampante>},
    {"AiutoFile", "&Help", 1, 24, ha<&F::guida>, spiega},

    {"edizione", "&Edizione", 0},
    {"EditStratigrafia", "&Stratigrafia", 1, 5, ha<&F::maschera>,
     edita<NumeroMaschera::strati, editareIDati>},
    {"EditParatia", "&Parametri Diaframma", 1, 6, ha<&F::maschera>,
     edita<NumeroMaschera::paratia, editareDati>},
    {"EditRigidezza", "&Descrizione Struttura", 1, 7, ha<&F::sezione>,
     edita<masks::senzaMaschera, editareIDati>},
    {"EditTiranti", "&Caratteristiche Tiranti", 1, 8, ha<&F::maschera>,
     edita<NumeroMaschera::tiranti, editareIDati>},
    {"EditFasi", "&Fasi di Scavo", 1, 9, ha<&F::maschera>,
     edita<NumeroMaschera::fasi, editareIDati>},
    {"EditTitoli", "&Titoli", 1, 10, ha<&F::maschera>, edita<NumeroMaschera::titoli, editareDati>},
    {"AiutoEdit", "&Help", 1, 25, ha<&F::guida>, spiega},

    {"Stampa", "&Stampa", 0},
    {"StampaGrafica", "&Grafica", 1, 11},
    {"GraficaMomenti", "&Momenti", 2, 12, ha<&F::grafica>, produci<diagramma<momenti>>},
    {"GraficaSpostamenti", "&Spostamenti", 2, 13, ha<&F::grafica>, produci<diagramma<spostamenti>>},
    {"GraficaTaglio", "&Taglio", 2, 14, ha<&F::grafica>, produci<diagramma<taglio>>},
    {"GraficaPressioni", "&Pressioni", 2, 15, ha<&F::grafica>, produci<diagramma<pressioni>>},
    {"GraficaStruttura", "&Elemento Strutturale", 2, 16, ha<&F::grafica>, produci<produciSezione>},
    {"GraficaStratigrafia", "&Descrizione stratigrafica", 2, 17, ha<&F::grafica>,
     produci<produciStratigrafia>},
    {"statab", "&Tabulati", 1, 18},
    {"StampaVideo", "Visualizza &Anteprima Tabulati", 2, 19, ha<&F::anteprima>,
     produci<relazione<&F::anteprima>>},
    {"StampaTabulati", "Stampa &Rapida Tabulati", 2, 20, ha<&F::stampa>,
     produci<relazione<&F::stampa>>},
    {"espotab", "&Esporta Tabulati in Formato DOC", 2, 21, ha<&F::esportaDoc>,
     produci<relazione<&F::esportaDoc>>},
    {"espotabtxt", "Esporta Tabulati in Formato &TXT", 2, 22, ha<&F::esportaTxt>,
     produci<relazione<&F::esportaTxt>>},
    {"configura", "&Configura", 1, 23, ha<&F::editacfg>, mostra<&F::editacfg>},
    {"AiutoStampa", "&Help", 1, 26, ha<&F::guida>, spiega},

    {"strumenti", "St&rumenti", 0},
    {"annulla", "An&nulla", 1, 35, nullptr, annulla, "Ctrl+Z", annullabile, daAnnullare},
    {"ripeti", "&Ripeti", 1, 35, nullptr, ripeti, "Ctrl+Y", ripetibile, daRipetere},
    accanto(staccata({"controlli", "&Controlli", 1, help::voceOsservazioni, ha<&F::controlli>,
                      mostra<&F::controlli>, "Ctrl+K"})),
    accanto({"risultati", "R&isultati", 1, 36, ha<&F::risultati>, mostra<&F::risultati>, "Ctrl+R"}),
    accanto({"sicurezza", "&Sicurezza", 1, 37, ha<&F::sicurezza>, mostra<&F::sicurezza>}),
    accanto({"allegato", "&Allegato", 1, 43, ha<&F::allegato>, mostra<&F::allegato>}),
    accanto({"confronto", "Con&fronta con", 1, 44, ha<&F::confronto>, mostra<&F::confronto>}),
    accanto({"norme", "Nor&me", 1, 45, ha<&F::norme>, mostra<&F::norme>}),
    accanto({"studio", "St&udio", 1, 46, ha<&F::studio>, mostra<&F::studio>}),
    staccata({"nuovo", "Nu&ovo", 1, 38, ha<&F::nuovo>, nuovo}),
    {"duplica", "&Duplica", 1, 39, nullptr, duplica, "", progettoAperto},
    {"recenti", "R&ecenti", 1, 40, nullptr, nullptr, "", nullptr, nullptr, recenti},
    staccata({"lingua", "Lin&gua", 1, 41, ha<&F::lingua>, lingua}),
    accanto({"tasti", "&Tasti", 1, 42, ha<&F::tasti>, mostra<&F::tasti>}),

    {"fine", "&Uscita", 0, 0, nullptr, esci, "Ctrl+Q"},

    {"menuhelp", "&Help", 0},
    {"sommario", "&Sommario", 1, 0, ha<&F::sommario>, mostra<&F::sommario>, "F1"},
    {"about", "&Info", 1, 32, ha<&F::informazioni>, informa},
};

}  // namespace

std::span<const VoceMenu> albero() { return voci; }

const VoceMenu& voceMenu(std::string_view nome) {
    const auto* trovata = std::find_if(std::begin(voci), std::end(voci),
                                       [nome](const auto& v) { return v.nome == nome; });
    assert(trovata != std::end(voci));
    return *trovata;
}

bool apreMenu(const VoceMenu& voce) { return voce.comando == nullptr; }

}  // namespace korven::commands
