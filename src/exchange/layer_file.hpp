#pragma once

#include <string>
#include <string_view>

#include "exchange/ags_file.hpp"
#include "exchange/ags_layers.hpp"
#include "exchange/layer_rows.hpp"

namespace korven::exchange {

/// A file that layers are taken from: a table of parted cells, or ground investigations in AGS 4,
/// which its content tells.
class FileStrati {
 public:
    /// @throws base::ErroreFile when it can't be read
    [[nodiscard]] static FileStrati apri(const std::string& percorso);
    /// @param byte  the content of a file
    explicit FileStrati(std::string_view byte);

    /// True when one of `fori` is to be chosen, and where the wall's head is there.
    [[nodiscard]] bool ags() const { return ags_; }
    [[nodiscard]] const std::vector<Foro>& fori() const { return file_.fori; }

    /// The layers of the file, or of its hole number `foro` from 0. Neither counts for a table.
    [[nodiscard]] StratiLetti strati(std::size_t foro = 0, const TestaAlForo& testa = {}) const;

 private:
    bool ags_ = false;
    FileAgs file_;       // of ground investigations
    StratiLetti letti_;  // of a table
};

}  // namespace korven::exchange
