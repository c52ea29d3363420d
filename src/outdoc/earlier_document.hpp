#pragma once

#include <string>
#include <string_view>

#include "base/disk.hpp"

namespace korven::outdoc {

/// The part of a document that holds the mark: the last one, stored without compression.
inline constexpr const char* markedPart = "docProps/core.xml";

/// The mark by which this program knows a document that it wrote itself: it is among the properties
/// of the document, with the check sum of the parts in front of them.
/// @param parts  the bytes of the archive up to the part that holds the mark
[[nodiscard]] std::string ownMark(std::string_view parts);

/// True for the bytes of a document that this program wrote and nobody changed since: whoever
/// writes it anew packs other bytes, be it with the same mark.
[[nodiscard]] bool isOwnWork(std::string_view bytes);

/// Keeps the earlier document of a name, unless it is this program's own unchanged work, which can
/// be made again: a copy goes beside it, its name with ".bak" appended, and a number from 2 on if
/// that name is taken by something else.
/// @return the name of the copy; empty if none was needed, also when one of the same bytes is there
/// @throws base::ErroreFile if the document can't be read or the copy not be written
std::string keepEarlierDocument(const std::string& path,
                                const base::Disco& disk = base::discoDiSistema());

}  // namespace korven::outdoc
