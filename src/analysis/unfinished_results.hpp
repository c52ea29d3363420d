#pragma once

#include <string>

namespace korven::analysis {

/// True if a result file is what a run leaves that was killed in the middle: it ends before its
/// five closing lines are complete, and all before its end is in order.
///
/// No mark in the file tells a finished one, and it does not say how many nodes it has, so its
/// lines are counted by their kind. After the head come, for each stage of the head, a line of
/// column names and a line a node (thirteen values), as many in each stage as in the first, then
/// five lines of one number. The very last line may be cut anywhere; that of the partial factor,
/// which ends a finished file, counts as whole when it has its line end or the factor's value.
///
/// A file that breaks these rules before its end, or goes on after the closing lines, is not
/// unfinished but broken: that is for its reader to say, and for the user to remove. So is a head
/// that breaks off nowhere but holds no project.
/// @param contenuto  the bytes of the file
[[nodiscard]] bool risultatiIncompiuti(const std::string& contenuto);

}  // namespace korven::analysis
