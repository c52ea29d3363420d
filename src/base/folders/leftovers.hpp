#pragma once

#include <string>
#include <string_view>

// What programs of this house leave when they are killed. Each of these files and folders is locked
// by the program that uses it (file_custody.hpp), and the system ends the lock with the program:
// one that nobody holds any more is swept away by whoever comes next.

namespace korven::base {

/// Beginning of the names of files beside projects: written halfway, or locks.
inline constexpr std::string_view inizioProvvisori = ".korven-";
/// End of the name of a lock.
inline constexpr std::string_view fineSerrature = ".lock";

/// Beginning of the names of folders in the system's temporary folder.
inline constexpr std::string_view inizioCartelle = "korven32-";

/// Removes from a folder what these programs leave there: files of the user's own that nobody holds
/// and whose names are `inizioProvvisori` with the six characters that the system gives, or that
/// are locks, which are empty. Any other file of such a name is somebody's and stays. Says nothing
/// of what can't be removed.
void togliProvvisori(const std::string& cartella);

/// Removes from the system's temporary folder, with all that is in them, the folders of the user's
/// own whose names are `inizioCartelle` with six characters and whose lock nobody holds.
void togliCartelleProvvisorie();

}  // namespace korven::base
