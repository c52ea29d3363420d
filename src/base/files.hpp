#pragma once

#include <string>
#include <string_view>

namespace korven::base {

/// The bytes of a file.
/// @throws ErroreFile if it is missing, a folder or not readable
[[nodiscard]] std::string leggiFile(const std::string& percorso);

/// Puts `contenuto` under the name `percorso`, all of it or nothing: the bytes go into a temporary
/// file of the same folder, to the disk, and then take the name. What stood there before survives
/// any failure; its permissions are kept, a link is followed.
/// @throws ErroreFile with the system's reason (full disk, no permission, no such folder)
void scriviFile(const std::string& percorso, std::string_view contenuto);

/// Appends to an existing file; on a failure the file is cut back to what it held.
/// @throws ErroreFile with the system's reason
void accodaFile(const std::string& percorso, std::string_view contenuto);

/// True if a file (no folder) of that name exists.
[[nodiscard]] bool esisteFile(const std::string& percorso);

/// Removes a file if it exists; says nothing if it can't.
void cancellaFile(const std::string& percorso);

}  // namespace korven::base
