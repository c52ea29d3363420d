#pragma once

#include <zlib.h>

#include <QImage>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/files.hpp"

namespace korven::device {

/// Writes a picture as PNG strip by strip, so that it need never be in memory as a whole. Colours
/// of 8 bits each, no transparency (W3C, Portable Network Graphics Specification, second edition).
class ScrittorePng {
 public:
    /// @param misure          width and height [pixels]
    /// @param pixelPerMetro   resolution
    /// @throws base::ErroreFile with the system's reason
    ScrittorePng(const std::string& percorso, QSize misure, int pixelPerMetro);
    ScrittorePng(const ScrittorePng&) = delete;
    ScrittorePng& operator=(const ScrittorePng&) = delete;
    ~ScrittorePng();

    /// The next rows from the top: the first `righe` of a picture in Format_RGB32.
    /// @throws base::ErroreFile with the system's reason
    void scrivi(const QImage& fascia, int righe);

    /// @pre all rows are written
    /// @throws base::ErroreFile with the system's reason
    void concludi();

 private:
    void brano(std::string_view tipo, std::string_view dati);
    void comprimi(std::string_view byte, int modo);

    base::ScrittoreFile file_;
    z_stream flusso_{};
    std::string sopra_;     // the row above, three bytes a pixel
    std::string riga_;      // the row in hand
    std::string filtrata_;  // what is compressed of it, its filter in front
    std::string uscita_;    // compressed bytes on their way to the file
};

}  // namespace korven::device
