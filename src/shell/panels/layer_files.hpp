#pragma once

#include <functional>
#include <optional>
#include <string>

#include "exchange/csv_writer.hpp"

class QWidget;

namespace korven::shell {

/// The files that the layers come from and go to, as the user names them; nothing when he gives up.
struct FileDiStrati {
    struct Scritto {
        std::string percorso;
        exchange::FormaCsv forma;
    };
    std::function<std::optional<std::string>(QWidget* sopra)> daLeggere;
    std::function<std::optional<Scritto>(QWidget* sopra)> daScrivere;
};

/// The dialogs of the desktop for them. They begin in the folder of the project; a file that is
/// there is replaced after a question only.
[[nodiscard]] FileDiStrati fileDiStratiDesktop();

}  // namespace korven::shell
