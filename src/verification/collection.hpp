#pragma once

#include <string>
#include <vector>

#include "verification/case.hpp"

namespace korven::verification {

/// The folder of the delivered cases, in the program folder, and that of the projects that they may
/// begin with.
[[nodiscard]] std::string cartellaCasi();
[[nodiscard]] std::string cartellaBasi();

/// All cases of a folder: its files "*.txt" and those of the folders in it, each folder a group
/// (with what its file "gruppo.txt" tells), in the order of the groups' numbers and then of their
/// names; the cases in that of their names.
/// @throws base::ErroreFile if the folder has no cases, or one can't be read
[[nodiscard]] std::vector<Gruppo> leggiCasi(const std::string& cartella, const std::string& basi);

}  // namespace korven::verification
