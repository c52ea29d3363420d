#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace korven::outdoc {

enum class Packing { deflated, stored };

/// A ZIP archive in the making, in memory. All its files are dated 1 January 1980, so that equal
/// files make equal archives, whenever they are packed.
class ZipWriter {
 public:
    /// @throws std::bad_alloc as every function here that packs
    ZipWriter();
    ZipWriter(const ZipWriter&) = delete;
    ZipWriter& operator=(const ZipWriter&) = delete;
    ~ZipWriter();

    /// Adds a file after those that are there.
    /// @param name  with "/" between folders, ASCII
    /// @throws base::ErroreIndice for contents beyond the 32-bit lengths of the format
    void add(const std::string& name, std::string_view content, Packing packing);
    /// The same of a content in pieces, which need not be put together for it.
    void add(const std::string& name, std::span<const std::string_view> pieces, Packing packing);

    /// What the archive begins with so far: its files, each after its head.
    [[nodiscard]] std::string_view files() const;

    /// Ends the archive with its directory and hands it out; nothing can be added then.
    [[nodiscard]] std::string finish();

 private:
    struct State;
    std::unique_ptr<State> state_;
};

/// A file that an archive holds as it is, without compression.
struct StoredFile {
    std::string content;
    std::size_t head = 0;  ///< where its head begins in the archive
};

/// Reads a file from an archive.
/// @return nothing if these bytes are no archive, or if it holds no file of that name as it is and
///         with the check sum of its head
[[nodiscard]] std::optional<StoredFile> storedFile(std::string_view archive, const char* name);

/// Check sum of the archive format: CRC-32, polynomial EDB88320 (reflected).
/// Source: Peterson & Brown, Cyclic codes for error detection, Proc. IRE 49 (1961), 228-235; the
/// polynomial is that of ISO 3309 (neither looked up).
[[nodiscard]] std::uint32_t checkSum(std::string_view bytes);

}  // namespace korven::outdoc
