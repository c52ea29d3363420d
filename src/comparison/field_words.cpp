#include "comparison/field_words.hpp"

#include <algorithm>
#include <string>

#include "base/code_page.hpp"
#include "drawings/log/layer_description.hpp"
#include "drawings/log/layer_text.hpp"

namespace korven::comparison {

namespace {

using project::CampoDiverso;
using project::DatiProgetto;

constexpr std::size_t massimoNome = 32;  // characters; more would fill the column of a table

// The first line of what the log says of it, without the code of its hatches.
std::string nomeStrato(const DatiProgetto& dati, int riga) {
    const std::string testo = drawings::testoStrato(dati.descrStrato[riga]);
    std::string prima = testo.substr(0, testo.find('\n'));
    if (prima.starts_with('[')) return {};  // hatches alone
    while (!prima.empty() && (prima.back() == '.' || prima.back() == ' ')) prima.pop_back();
    if (base::numeroCaratteri(prima) <= massimoNome) return prima;
    std::size_t fine = prima.rfind(' ');
    while (fine != 0 && fine != std::string::npos &&
           base::numeroCaratteri(prima.substr(0, fine)) >= massimoNome)
        fine = prima.rfind(' ', fine - 1);
    return fine == 0 || fine == std::string::npos ? std::string()
                                                  : prima.substr(0, fine) + "\u2026";
}

// A layer that has two names in the two states is told by its number alone.
std::string nome(const Confronto& c, const CampoDiverso& campo) {
    if (campo.campo->parte != project::Parte::strati || !colonna(*campo.campo)) return {};
    const DatiProgetto &prima = c.prima.fascicolo.scritti, &dopo = c.dopo.fascicolo.scritti;
    const std::string prese = campo.prima ? nomeStrato(prima, campo.riga) : std::string();
    if (!campo.dopo) return prese;
    const std::string date = nomeStrato(dopo, campo.riga);
    return !campo.prima || prese == date ? date : std::string();
}

}  // namespace

project::Differenza paroleCampo(const Confronto& c, const CampoDiverso& campo) {
    const DatiProgetto &prima = c.prima.fascicolo.scritti, &dopo = c.dopo.fascicolo.scritti;
    project::Differenza d = inParole(campo, prima, dopo, nome(c, campo));
    if (campo.campo->membro == project::Membro(&DatiProgetto::descrStrato)) {
        d.prima = drawings::testoStrato(d.prima);
        d.dopo = drawings::testoStrato(d.dopo);
    }
    return d;
}

std::vector<CampoDiverso> perRighe(std::vector<CampoDiverso> campi) {
    for (auto da = campi.begin(); da != campi.end();) {
        const auto insieme = [&](const CampoDiverso& altro) {
            return colonna(*altro.campo) && altro.campo->parte == da->campo->parte;
        };
        const auto a = insieme(*da) ? std::find_if_not(da, campi.end(), insieme) : da + 1;
        std::stable_sort(da, a, [](const CampoDiverso& uno, const CampoDiverso& altro) {
            return uno.riga < altro.riga;
        });
        da = a;
    }
    return campi;
}

}  // namespace korven::comparison
