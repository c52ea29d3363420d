#include "base/translated_texts.hpp"
#include "project/codes.hpp"
#include "review/remark_list.hpp"
#include "structure/section_validity.hpp"

// What the methods chosen do not take up of what is typed, and what becomes of the methods.

namespace korven::review {

namespace {

using project::DatiProgetto;
using project::MetodoKs;
using project::MetodoSpinte;
using project::ModoKs;
using project::ModoSpinte;

struct SenzaEffetto {
    project::Membro campo;
    bool (*accade)(const DatiProgetto&);
    std::string_view perche;  ///< Italian key
};

using Dati = const DatiProgetto&;

constexpr SenzaEffetto scritteInvano[] = {
    {&DatiProgetto::ksStrato,
     [](Dati d) { return d.metodoKs == MetodoKs::bowles || d.metodoKs == MetodoKs::lancellotta; },
     "il metodo scelto calcola ks da sé"},
    {&DatiProgetto::coeffM, [](Dati d) { return d.metodoKs != MetodoKs::lancellotta; },
     "lo legge solo il metodo di Lancellotta per ks"},
    {&DatiProgetto::sovraccFase, [](Dati d) { return d.modoSpinte == ModoSpinte::comeMonte; },
     "con le spinte uguali al lato monte il carico sul fondo dello scavo non agisce"},
    {&DatiProgetto::sforzoNormale, [](Dati d) { return !structure::sezioneValida(d.sezione); },
     "conta solo nella verifica della sezione, che non è definita"},
};

void controlloInvano(const SenzaEffetto& scritta, const DatiProgetto& d,
                     ElencoOsservazioni& elenco) {
    if (!scritta.accade(d)) return;
    const project::Campo& campo = project::campo(scritta.campo);
    std::vector<int> nonNulli;
    for (int i = 1; i <= project::righe(d, campo.parte); ++i)
        if (project::numeroConservato(d, campo, i) != 0) nonNulli.push_back(i);
    if (nonNulli.empty()) return;
    elenco.aggiungi("valore-senza-effetto",
                    project::colonna(campo)
                        ? righeConValori(d, scritta.campo, nonNulli)
                        : campoConValore(scritta.campo, project::numeroConservato(d, campo)),
                    {base::traduttore(scritta.perche)});
}

}  // namespace

void controlloMetodi(const DatiProgetto& dati, ElencoOsservazioni& elenco) {
    if (dati.metodoSpinte == MetodoSpinte::rankine || dati.metodoSpinte == MetodoSpinte::bell)
        elenco.aggiungi("relazione-con-coulomb",
                        campoConValore(&DatiProgetto::metodoSpinte, dati.metodoSpinte));
    if (dati.metodoKs == MetodoKs::bowles && dati.modoSpinte == ModoSpinte::comeMonte &&
        dati.modoKs != ModoKs::comeMonte)
        elenco.aggiungi("bowles-senza-tensione",
                        insieme(campoConValore(&DatiProgetto::modoSpinte, dati.modoSpinte),
                                campoConValore(&DatiProgetto::modoKs, dati.modoKs)));
    if (dati.metodoKs == MetodoKs::lineare && dati.nStrati > 0 &&
        dati.profStrato[dati.nStrati - 1] < dati.lunghezzaParatia &&
        dati.ksStrato[dati.nStrati] != dati.ksStrato[dati.nStrati - 1])
        elenco.aggiungi("ks-ultimo-strato",
                        rigaConValore(dati, &DatiProgetto::ksStrato, dati.nStrati));
    for (const auto& scritta : scritteInvano) controlloInvano(scritta, dati, elenco);
}

}  // namespace korven::review
