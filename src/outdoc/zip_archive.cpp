#include "outdoc/zip_archive.hpp"

#include <minizip/unzip.h>
#include <minizip/zip.h>
#include <zlib.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>
#include <utility>

#include "base/table.hpp"
#include "base/translated_texts.hpp"

namespace korven::outdoc {

namespace {

constexpr uLong firstDay = (1 << 21) | (1 << 16);  // 1 January 1980, midnight
constexpr std::size_t headLength = 30;             // of a file, in front of its name

// What the library takes for a file: bytes in memory, and how far it is in them.
struct BytesWritten {
    std::string bytes;
    std::size_t at = 0;
};
struct BytesRead {
    std::string_view bytes;
    std::size_t at = 0;
};

voidpf open(voidpf memory, const void*, int) { return memory; }
int succeed(voidpf, voidpf) { return 0; }

template <class Memory>
ZPOS64_T tell(voidpf, voidpf stream) {
    return static_cast<Memory*>(stream)->at;
}

template <class Memory>
long seek(voidpf, voidpf stream, ZPOS64_T offset, int origin) {
    auto& memory = *static_cast<Memory*>(stream);
    std::size_t from = 0;
    if (origin == ZLIB_FILEFUNC_SEEK_CUR) from = memory.at;
    if (origin == ZLIB_FILEFUNC_SEEK_END) from = memory.bytes.size();
    if (offset > memory.bytes.size() - from) return -1;
    memory.at = from + offset;
    return 0;
}

uLong read(voidpf, voidpf stream, void* to, uLong length) {
    auto& memory = *static_cast<BytesRead*>(stream);
    length = std::min<uLong>(length, memory.bytes.size() - memory.at);
    std::memcpy(to, memory.bytes.data() + memory.at, length);
    memory.at += length;
    return length;
}

// An exception must not pass through code that is not C++.
uLong write(voidpf, voidpf stream, const void* from, uLong length) {
    auto& memory = *static_cast<BytesWritten*>(stream);
    try {
        memory.bytes.replace(memory.at, length, static_cast<const char*>(from), length);
    } catch (const std::bad_alloc&) {
        return 0;
    }
    memory.at += length;
    return length;
}

template <class Memory>
zlib_filefunc64_def calls(Memory& memory, read_file_func reading, write_file_func writing) {
    return {open, reading, writing, tell<Memory>, seek<Memory>, succeed, succeed, &memory};
}

// In memory nothing else can go wrong.
void demand(int outcome) {
    if (outcome != ZIP_OK) throw std::bad_alloc();
}

struct Close {
    void operator()(unzFile file) const { unzClose(file); }
};
using OpenArchive = std::unique_ptr<void, Close>;

// The bytes of the file at which the archive is open, checked against the sum in its head.
std::optional<std::string> content(unzFile archive, std::size_t length) {
    std::string bytes(length, '\0');
    const int read = unzReadCurrentFile(archive, bytes.data(), static_cast<unsigned>(length));
    const bool whole = read >= 0 && static_cast<std::size_t>(read) == length;
    if (unzCloseCurrentFile(archive) != UNZ_OK || !whole) return std::nullopt;
    return bytes;
}

}  // namespace

struct ZipWriter::State {
    BytesWritten memory;
    zipFile archive = nullptr;
};

ZipWriter::ZipWriter() : state_(std::make_unique<State>()) {
    auto functions = calls(state_->memory, nullptr, write);
    state_->archive = zipOpen2_64("", APPEND_STATUS_CREATE, nullptr, &functions);
    if (state_->archive == nullptr) throw std::bad_alloc();
}

ZipWriter::~ZipWriter() {
    if (state_->archive != nullptr) zipClose(state_->archive, nullptr);
}

void ZipWriter::add(const std::string& name, std::string_view content, Packing packing) {
    add(name, std::span(&content, 1), packing);
}

void ZipWriter::add(const std::string& name, std::span<const std::string_view> pieces,
                    Packing packing) {
    constexpr std::size_t most = std::numeric_limits<std::int32_t>::max();
    std::size_t length = 0;
    for (const std::string_view piece : pieces) length += piece.size();
    if (length > most)
        throw base::ErroreIndice(name + ": " + base::traduttore("il file è troppo grande"));
    const int method = packing == Packing::deflated ? Z_DEFLATED : 0;
    zip_fileinfo about{};
    about.dosDate = firstDay;
    demand(zipOpenNewFileInZip(state_->archive, name.c_str(), &about, nullptr, 0, nullptr, 0,
                               nullptr, method, Z_DEFAULT_COMPRESSION));
    for (const std::string_view piece : pieces)
        demand(zipWriteInFileInZip(state_->archive, piece.data(),
                                   static_cast<unsigned>(piece.size())));
    demand(zipCloseFileInZip(state_->archive));
}

std::string_view ZipWriter::files() const { return state_->memory.bytes; }

std::string ZipWriter::finish() {
    demand(zipClose(std::exchange(state_->archive, nullptr), nullptr));
    return std::move(state_->memory.bytes);
}

std::optional<StoredFile> storedFile(std::string_view archive, const char* name) {
    constexpr int asWritten = 1;  // capitals count
    BytesRead memory{archive};
    auto functions = calls(memory, read, nullptr);
    const OpenArchive file(unzOpen2_64("", &functions));
    unz_file_info64 about{};
    if (file == nullptr || unzLocateFile(file.get(), name, asWritten) != UNZ_OK ||
        unzGetCurrentFileInfo64(file.get(), &about, nullptr, 0, nullptr, 0, nullptr, 0) != UNZ_OK ||
        about.compression_method != 0 || about.uncompressed_size > archive.size() ||
        unzOpenCurrentFile(file.get()) != UNZ_OK)
        return std::nullopt;
    const std::size_t start = unzGetCurrentFileZStreamPos64(file.get());
    auto bytes = content(file.get(), about.uncompressed_size);
    if (!bytes || start < headLength + about.size_filename) return std::nullopt;
    return StoredFile{std::move(*bytes), start - headLength - about.size_filename};
}

std::uint32_t checkSum(std::string_view bytes) {
    return static_cast<std::uint32_t>(
        crc32_z(0, reinterpret_cast<const Bytef*>(bytes.data()), bytes.size()));
}

}  // namespace korven::outdoc
