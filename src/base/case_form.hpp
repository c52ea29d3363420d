#pragma once

#include <string>
#include <string_view>

namespace korven::base {

/// The text in the case form of a model, so that one record serves a capitalised label and an
/// upper-case heading alike:
///
/// | model | text |
/// | --- | --- |
/// | first character not lower case, all others lower case | capitalised |
/// | all lower case | lower case |
/// | anything else | upper case |
///
/// A character "is not lower case" only when lowering changes it, so a model that begins with a
/// digit, a bracket or "&" counts as lower case when its letters are.
[[nodiscard]] std::string conFormaDi(std::string_view modello, std::string_view testo);

}  // namespace korven::base
