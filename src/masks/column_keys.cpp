#include "masks/column_keys.hpp"

#include <algorithm>

#include "base/code_page.hpp"

namespace korven::masks {

namespace {

constexpr std::string_view segno = "$$$";

std::string confrontabile(std::string_view testo) {
    return base::maiuscolo(base::senzaSpaziEsterni(testo));
}

}  // namespace

std::vector<std::string> chiaviColonna(std::string_view aiuto) {
    std::vector<std::string> chiavi;
    auto inizio = aiuto.find(segno);
    if (inizio == std::string_view::npos) return chiavi;
    for (std::string_view resto = aiuto.substr(inizio + segno.size()); !resto.empty();) {
        const auto virgola = std::min(resto.find(','), resto.size());
        const std::string_view voce = resto.substr(0, virgola);
        if (auto chiave = confrontabile(voce.substr(0, voce.find('='))); !chiave.empty())
            chiavi.push_back(std::move(chiave));
        resto.remove_prefix(std::min(virgola + 1, resto.size()));
    }
    return chiavi;
}

bool ammessa(std::string_view aiuto, std::string_view testo) {
    if (aiuto.find(segno) == std::string_view::npos) return true;
    const auto chiavi = chiaviColonna(aiuto);
    return std::find(chiavi.begin(), chiavi.end(), confrontabile(testo)) != chiavi.end();
}

std::string aiutoMostrato(std::string_view aiuto) {
    std::string mostrato(aiuto);
    if (const auto dove = mostrato.find(segno); dove != std::string::npos)
        mostrato.replace(dove, segno.size(), "\n");
    return mostrato;
}

}  // namespace korven::masks
