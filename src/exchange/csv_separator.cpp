#include "exchange/csv_separator.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

#include "base/code_page.hpp"
#include "base/decimal_commas.hpp"
#include "base/number_text.hpp"
#include "exchange/delimited_reader.hpp"
#include "exchange/layer_columns.hpp"

namespace korven::exchange {

namespace {

constexpr char separatori[] = {'\t', ';', ','};
constexpr std::string_view dichiarazione = "sep=";

// How much of the first row makes sense when it is parted by a sign.
int quanteComprese(std::string_view testo, char separatore) {
    const auto riga = LettoreDelimitato(testo, separatore).prossimaPiena();
    if (!riga) return 0;
    if (const int nomi = nomiNoti(*riga); nomi > 0) return nomi;
    const std::size_t numeriche = std::min<std::size_t>(riga->celle.size(), descrizione);
    int numeri = 0;
    for (std::size_t i = 0; i < numeriche && sembraNumero(riga->cella(i)); ++i) ++numeri;
    return numeri;
}

// Where no sign makes sense of the row, the one that stands in it most often parts it.
std::ptrdiff_t quanteVolte(std::string_view testo, char separatore) {
    testo.remove_prefix(std::min(testo.find_first_not_of("\r\n"), testo.size()));
    testo = testo.substr(0, testo.find_first_of("\r\n"));
    return std::count(testo.begin(), testo.end(), separatore);
}

}  // namespace

bool sembraNumero(std::string_view testo) {
    return base::soloUnNumero(testo) || base::conIlPunto(testo).has_value();
}

TestoParti trovaSeparatore(std::string_view testo) {
    const auto fine = std::min(testo.find_first_of("\r\n"), testo.size());
    if (fine == dichiarazione.size() + 1 &&
        base::minuscolo(testo.substr(0, dichiarazione.size())) == dichiarazione) {
        const char separatore = testo[dichiarazione.size()];
        testo.remove_prefix(std::min(testo.find('\n'), testo.size() - 1) + 1);
        constexpr long seconda = 2;
        return {testo, separatore, seconda};
    }
    const auto peso = [testo](char separatore) {
        return std::pair(quanteComprese(testo, separatore), quanteVolte(testo, separatore));
    };
    const auto* migliore =
        std::max_element(std::begin(separatori), std::end(separatori),
                         [&peso](char uno, char altro) { return peso(uno) < peso(altro); });
    return {testo, *migliore, 1};
}

}  // namespace korven::exchange
