#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace korven::outdoc {

/// A file of an archive.
struct ZipEntry {
    std::string name;  ///< with "/" between folders, ASCII
    std::string content;
};

/// Check sum of the archive format: CRC-32, polynomial EDB88320 (reflected), as in ISO 3309.
[[nodiscard]] std::uint32_t crc32(std::string_view bytes);

/// Looks for the file of an archive in whose content the byte `at` lies.
/// @return where its head begins; nothing if no file stands there as it is, without compression and
/// with the check sum that its head has
[[nodiscard]] std::optional<std::size_t> storedEntryBefore(std::string_view archive,
                                                           std::size_t at);

/// What an archive begins with: the files, each behind its head.
[[nodiscard]] std::string zipFiles(const std::vector<ZipEntry>& entries);

/// The bytes of a ZIP archive that holds these files as they are, without compression, all dated
/// 1 January 1980, so that equal files make an equal archive.
/// @throws base::ErroreIndice for contents beyond the 32-bit lengths of the format
[[nodiscard]] std::string zipArchive(const std::vector<ZipEntry>& entries);

}  // namespace korven::outdoc
