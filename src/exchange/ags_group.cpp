#include "exchange/ags_group.hpp"

#include <algorithm>

namespace korven::exchange {

void GruppoAgs::intesta(const RigaLetta& riga) {
    posti_.clear();
    celle_ = riga.celle.size();
    for (std::size_t i = 1; i < celle_; ++i) posti_.emplace(riga.cella(i), i);
}

std::string_view GruppoAgs::mancante(std::span<const std::string_view> richieste) const {
    const auto manca = std::find_if(richieste.begin(), richieste.end(), [this](auto testata) {
        return posti_.find(testata) == posti_.end();
    });
    return manca == richieste.end() ? std::string_view{} : *manca;
}

std::string_view GruppoAgs::cella(const RigaLetta& riga, std::string_view testata) const {
    const auto posto = posti_.find(testata);
    return posto == posti_.end() ? std::string_view{} : riga.cella(posto->second);
}

bool GruppoAgs::troppoLunga(const RigaLetta& riga) const {
    for (std::size_t i = celle_; i < riga.celle.size(); ++i)
        if (!riga.cella(i).empty()) return true;
    return false;
}

std::size_t GruppoAgs::colonna(std::string_view testata) const {
    const auto posto = posti_.find(testata);
    return posto == posti_.end() ? 0 : posto->second + 1;
}

}  // namespace korven::exchange
