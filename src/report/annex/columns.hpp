#pragma once

#include "base/translated_texts.hpp"
#include "tables/result_table.hpp"

namespace korven::report {

/// A column of words of a table on paper, which has no place for an explanation of its heads.
/// @param titolo  Italian key
[[nodiscard]] inline tables::Colonna colonna(const char* titolo) {
    return {.titolo = base::traduttore(titolo), .unita = {}, .spiegazione = {}, .numerica = false};
}

/// A column of the numbers of layers.
[[nodiscard]] inline tables::Colonna colonnaStrato() {
    return {.titolo = base::traduttore("Strato"), .unita = {}, .spiegazione = {}, .numerica = true};
}

/// A column of the numbers of rows.
[[nodiscard]] inline tables::Colonna colonnaNumero() {
    return {.titolo = base::traduttore("N."), .unita = {}, .spiegazione = {}, .numerica = true};
}

}  // namespace korven::report
