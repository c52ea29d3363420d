#pragma once

#include <ctime>
#include <optional>
#include <string>

struct stat;

namespace korven::base {

/// The file that a name leads to: a link leads to its target, which need not exist.
/// @return nothing if links lead round in a circle
[[nodiscard]] std::optional<std::string> destinazione(const std::string& percorso);

/// True if both names lead to one file, or would once they are written: equal texts, symbolic or
/// hard links, other ways to a folder ("q" and "./q"), and the case of letters where the file
/// system ignores it. To learn that, a file with a name of its own may be made for a moment in the
/// folder, only when two names differ in nothing else.
[[nodiscard]] bool stessoFile(const std::string& uno, const std::string& altro);

/// True for a plain file of the user's own: no link to one, and nothing that another user has made.
[[nodiscard]] bool fileProprio(const std::string& percorso);

/// Refuses the name of a device, a pipe or a socket: reading it could wait for ever or never end,
/// and a rename would replace it.
/// @throws ErroreFile
void rifiutaSpeciale(const std::string& percorso, const struct stat& stato);

/// When a file was written last; nothing if there is none.
[[nodiscard]] std::optional<std::time_t> quandoScritto(const std::string& percorso);

/// What tells a file from an earlier one of the same name: written anew it is another, whatever it
/// holds. Equal for a name that no file has.
class ImprontaFile {
 public:
    explicit ImprontaFile(const std::string& percorso);
    bool operator==(const ImprontaFile&) const = default;

 private:
    long long numero_ = 0, secondi_ = 0, nanosecondi_ = 0;
};

/// True if names that differ only in the case of their letters lead to one file of this folder.
/// False too where nothing can be written.
[[nodiscard]] bool senzaMaiuscole(const std::string& cartella);

}  // namespace korven::base
