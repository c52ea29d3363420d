#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "base/file_error.hpp"

namespace korven::tools {

/// The line of the fault for which a source is refused, and what it says; a test fails if the
/// source is accepted.
/// @param file  the name that the fault has to bear
/// @param read  reads a source under that name
template <class Read>
std::pair<long, std::string> refusal(const std::string& file, const std::string& source,
                                     const Read& read) {
    try {
        static_cast<void>(read(file, source));
    } catch (const base::ErroreFile& error) {
        EXPECT_EQ(error.percorso(), file);
        return {error.riga(), error.atteso()};
    }
    ADD_FAILURE() << "accepted: " << source;
    return {};
}

}  // namespace korven::tools
