#pragma once

#include <optional>
#include <string_view>

#include "masks/values.hpp"

namespace korven::masks {

/// Where a form edits a field of the project.
struct PostoCampo {
    NumeroMaschera maschera = senzaMaschera;
    PostoForma posto;

    bool operator==(const PostoCampo&) const = default;
};

/// The place of a field by its stable name (project/field_table.hpp): "phiStrato[2]" is row 2 of
/// the layers, "sezione.fck" a field of the section form, a flag of its type the choice of types.
/// Of a value that a table does not show it is the beginning of the row that the value belongs to.
/// @return nothing for a name that is none, and for what no form shows
[[nodiscard]] std::optional<PostoCampo> postoDelCampo(std::string_view nome);

}  // namespace korven::masks
