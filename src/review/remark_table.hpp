#pragma once

#include <array>
#include <span>
#include <string_view>

#include "review/project_rows.hpp"
#include "review/result_rows.hpp"
#include "review/section_rows.hpp"

namespace korven::review {

/// The whole table of remarks, by subject.
inline constexpr std::array<std::span<const VoceOsservazione>, 3> vociOsservazioni = {
    vociProgetto, vociSezione, vociRisultati};

/// The row of a code, which the compiler looks up: `aggiungi("ks-mancante", ...)`.
class Voce {
 public:
    // NOLINTNEXTLINE(google-explicit-constructor): a code in quotes is how a remark is named
    consteval Voce(const char* codice) {
        bool trovata = false;  // the sanitizers' compiler compares no pointer to a row with none
        for (const auto voci : vociOsservazioni)
            for (const auto& voce : voci)
                if (voce.codice == codice) {
                    riga_ = &voce;
                    trovata = true;
                }
        if (!trovata) throw "no remark has this code";
    }
    constexpr const VoceOsservazione& operator*() const { return *riga_; }
    constexpr const VoceOsservazione* operator->() const { return riga_; }

 private:
    const VoceOsservazione* riga_ = nullptr;
};

}  // namespace korven::review
