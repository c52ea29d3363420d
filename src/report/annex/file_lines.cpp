#include "report/annex/file_lines.hpp"

#include <algorithm>
#include <vector>

#include "base/code_page.hpp"

namespace korven::report {

namespace {

constexpr std::size_t larghezzaPosto = 18, postiRiga = 6;  // characters of the typewriter's line

std::vector<std::string> righe(const std::string& testo) {
    std::vector<std::string> tutte;
    for (std::size_t da = 0; da < testo.size();) {
        const std::size_t fine = std::min(testo.find('\n', da), testo.size());
        const std::size_t senza = fine > da && testo[fine - 1] == '\r' ? fine - 1 : fine;
        tutte.push_back(testo.substr(da, senza - da));
        da = fine + 1;
    }
    return tutte;
}

// Blanks at its ends would be lost between the columns.
std::string visibile(const std::string& riga) {
    const bool nascosti = riga.starts_with(' ') || riga.ends_with(' ');
    return nascosti ? "«" + riga + "»" : riga;
}

}  // namespace

std::string righeNumerate(const std::string& testo) {
    const auto tutte = righe(testo);
    std::string fatto, riga;
    std::size_t posti = 0;
    const auto chiudi = [&] {
        riga.erase(riga.find_last_not_of(' ') + 1);
        fatto += (fatto.empty() ? "" : "\n") + riga;
        riga.clear();
        posti = 0;
    };
    for (std::size_t i = 0; i < tutte.size(); ++i) {
        std::string valore = std::to_string(i + 1) + ": " + visibile(tutte[i]);
        const auto largo = static_cast<std::size_t>(base::numeroCaratteri(valore));
        const std::size_t presi = largo / larghezzaPosto + 1;
        if (posti > 0 && posti + presi > postiRiga) chiudi();
        valore.append(presi * larghezzaPosto - largo, ' ');
        riga += valore;
        posti += presi;
        if (posti >= postiRiga) chiudi();
    }
    if (!riga.empty()) chiudi();
    return fatto;
}

std::size_t numeroRighe(const std::string& testo) { return righe(testo).size(); }

}  // namespace korven::report
