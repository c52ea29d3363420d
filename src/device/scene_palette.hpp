#pragma once

#include <QPalette>

#include "scene/palette.hpp"

namespace korven::device {

/// The colours of pictures on the ground and with the text of a window.
[[nodiscard]] inline scene::Tavolozza tavolozza(const QPalette& colori) {
    const auto rgb = [&colori](QPalette::ColorRole ruolo) {
        const QColor& c = colori.color(ruolo);
        return scene::Rgb{static_cast<std::uint8_t>(c.red()), static_cast<std::uint8_t>(c.green()),
                          static_cast<std::uint8_t>(c.blue())};
    };
    return scene::tavolozza(rgb(QPalette::WindowText), rgb(QPalette::Window));
}

}  // namespace korven::device
