#pragma once

#include <string_view>

namespace korven::review {

/// How much a remark matters.
enum class Peso {
    impedisce,  ///< the project can't be computed until it is mended
    pericolo,  ///< the numbers are not those of the wall that is meant, or the wall is near its end
    daVedere,  ///< likely a slip, or something to know when the numbers are used
};

/// A row of the table of remarks: what they are called and how they are told, whatever the project.
struct VoceOsservazione {
    std::string_view codice;  ///< stable, in every language the same: "acqua-a-zero"
    Peso peso;
    std::string_view guida;  ///< name of the page of the help that tells of it
    /// Italian key, with %1, %2, ... where values go; empty where another room words the sentence.
    std::string_view testo;
};

}  // namespace korven::review
