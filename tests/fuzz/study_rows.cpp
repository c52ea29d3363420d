#include <cmath>
#include <string_view>
#include <vector>

#include "fuzz_target.hpp"
#include "studies/columns.hpp"
#include "studies/row_text.hpp"

// Any bytes as the rows of a study that was interrupted, which is gone on with. A row that is taken
// for one of the study is the row that the study would write.

namespace {

using namespace korven;

studies::RigheStudio studio(studies::Formato formato) {
    const std::vector campi{project::campoNominato("lunghezzaParatia").value(),
                            project::campoNominato("phiStrato[1]").value()};
    return {campi, studies::scegliColonne({"motivo", "momento_massimo_kNm"}, 0, false).colonne,
            formato};
}

void riga(const studies::RigheStudio& righe, std::string_view testo) {
    std::vector<double> valori(righe.quanti()), riletti(righe.quanti());
    const auto variante = righe.leggi(testo, valori);
    if (!variante) return;
    std::string scritta;
    righe.scrivi(*variante, valori, scritta);
    scritta.resize(scritta.size() - righe.fineRiga().size());
    test::pretendi(righe.leggi(scritta, riletti) == variante, "a written row is read again");
    for (std::size_t j = 0; j < valori.size(); ++j)
        test::pretendi(valori[j] == riletti[j] || (std::isnan(valori[j]) && std::isnan(riletti[j])),
                       "and has the same values");
}

}  // namespace

extern "C" int KORVEN_FUZZ_ENTRY(const std::uint8_t* byte, std::size_t quanti) {
    static const auto csv = studio(studies::Formato::csv), json = studio(studies::Formato::json);
    const std::string tutto = test::contenutoFile(byte, quanti);
    for (std::string_view resto = tutto; !resto.empty();) {
        const auto fine = std::min(resto.find('\n'), resto.size());
        const auto una = resto.substr(0, fine);
        resto.remove_prefix(std::min(fine + 1, resto.size()));
        riga(json, una);
        riga(csv, una.ends_with('\r') ? una.substr(0, una.size() - 1) : una);
    }
    return 0;
}
