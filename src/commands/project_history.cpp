#include "commands/project_history.hpp"

#include <algorithm>
#include <string_view>
#include <type_traits>
#include <utility>

#include "base/translated_texts.hpp"
#include "commands/menu_tree.hpp"

namespace korven::commands {

namespace {

using project::DatiProgetto;

// The items that open the forms, in the order of `masks::NumeroMaschera`.
constexpr std::string_view voci[] = {"EditRigidezza",    "EditTitoli",  "EditParatia",
                                     "EditStratigrafia", "EditTiranti", "EditFasi"};

// Of a table all rows that it can hold: what its count leaves out comes back with the count.
int righe(const project::Membro& membro) {
    return std::visit(
        []<class Record, class T>(T Record::*) {
            if constexpr (project::eTabella<T>)
                return static_cast<int>(T::capacita);
            else
                return 1;
        },
        membro);
}

template <class Valore>
Valore letto(const DatiProgetto& dati, const project::Campo& campo, int riga) {
    Valore letto;
    project::conValore(dati, campo, riga, [&](const auto& valore) { letto = valore; });
    return letto;
}

}  // namespace

std::string nomeScheda(masks::NumeroMaschera scheda) {
    std::string nome = base::traduttore(voceMenu(voci[static_cast<std::size_t>(scheda)]).testo);
    std::erase(nome, '&');
    return nome;
}

std::vector<StoriaProgetto::Passi::Cambio> StoriaProgetto::cambi(const DatiProgetto& prima,
                                                                 const DatiProgetto& dopo) {
    std::vector<Passi::Cambio> trovati;
    for (const project::Campo& campo : project::campi())
        for (int i = 1; i <= righe(campo.membro); ++i) {
            auto uno = letto<Valore>(prima, campo, i);
            auto altro = letto<Valore>(dopo, campo, i);
            if (uno != altro) trovati.push_back({{&campo, i}, std::move(uno), std::move(altro)});
        }
    return trovati;
}

void StoriaProgetto::confermata(masks::NumeroMaschera scheda, const DatiProgetto& prima,
                                const DatiProgetto& dopo) {
    fatto(nomeScheda(scheda), prima, dopo);
}

void StoriaProgetto::fatto(const std::string& nome, const DatiProgetto& prima,
                           const DatiProgetto& dopo) {
    if (auto trovati = cambi(prima, dopo); !trovati.empty())
        storia_.fatto({nome, {}, std::move(trovati)});
}

bool StoriaProgetto::annulla(DatiProgetto& dati) {
    return storia_
        .annulla([&](const Posto& posto, const Valore& valore) { metti(dati, posto, valore); })
        .has_value();
}

bool StoriaProgetto::ripeti(DatiProgetto& dati) {
    return storia_
        .ripeti([&](const Posto& posto, const Valore& valore) { metti(dati, posto, valore); })
        .has_value();
}

void StoriaProgetto::metti(DatiProgetto& dati, const Posto& posto, const Valore& valore) {
    project::conValore(dati, *posto.campo, posto.riga, [&](auto& membro) {
        membro = std::get<std::remove_reference_t<decltype(membro)>>(valore);
    });
}

}  // namespace korven::commands
