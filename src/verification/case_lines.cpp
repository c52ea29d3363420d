#include "verification/case_lines.hpp"

#include <algorithm>

#include "base/file_error.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"

namespace korven::verification {

namespace {

constexpr std::string_view bianchi = " \t\r";

}  // namespace

std::string atteso(const std::string& cosa) {
    return base::riempito(base::traduttore("atteso: %1"), {cosa});
}

std::string_view senzaBianchi(std::string_view testo) {
    const auto inizio = testo.find_first_not_of(bianchi);
    if (inizio == std::string_view::npos) return {};
    return testo.substr(inizio, testo.find_last_not_of(bianchi) - inizio + 1);
}

std::optional<std::pair<std::string_view, std::string_view>> divisa(std::string_view riga,
                                                                    char segno) {
    const auto dove = riga.find(segno);
    if (dove == std::string_view::npos) return {};
    return std::pair(senzaBianchi(riga.substr(0, dove)), senzaBianchi(riga.substr(dove + 1)));
}

std::vector<std::string_view> parole(std::string_view testo) {
    std::vector<std::string_view> trovate;
    while (!(testo = senzaBianchi(testo)).empty()) {
        const auto fine = std::min(testo.find_first_of(bianchi), testo.size());
        trovate.push_back(testo.substr(0, fine));
        testo.remove_prefix(fine);
    }
    return trovate;
}

std::optional<std::string_view> RigheCaso::prossima() {
    while (!resto_.empty()) {
        const auto fine = std::min(resto_.find('\n'), resto_.size());
        const std::string_view riga = senzaBianchi(resto_.substr(0, fine));
        resto_.remove_prefix(std::min(fine + 1, resto_.size()));
        ++numero_;
        if (!riga.empty() && riga.front() != '#') return riga;
    }
    return {};
}

void RigheCaso::rifiuta(std::string_view cosa, std::initializer_list<std::string> valori) const {
    throw base::ErroreFile(percorso_, numero_,
                           atteso(base::riempito(base::traduttore(cosa), valori)));
}

}  // namespace korven::verification
