#pragma once

#include <string>
#include <string_view>

namespace korven::base {

/// A text as XML holds it between tags or within quotes: `&`, `<`, `>` and `"` as entities, and a
/// control character, which XML has no way to hold, as the mark of a character that is lost.
[[nodiscard]] std::string inXml(std::string_view testo);

/// ` nome="valore"`; the value must be fit for XML.
[[nodiscard]] std::string attributoXml(std::string_view nome, std::string_view valore);

}  // namespace korven::base
