#pragma once

#include <QString>
#include <string_view>

#include "base/translated_texts.hpp"

namespace korven::device {

/// The text of a program whose texts are UTF-8, for Qt.
[[nodiscard]] inline QString qt(std::string_view testo) {
    return QString::fromUtf8(testo.data(), static_cast<qsizetype>(testo.size()));
}

/// A text of the table of texts, to be shown.
[[nodiscard]] inline QString tradotto(std::string_view chiave) {
    return qt(base::traduttore(chiave));
}

}  // namespace korven::device
