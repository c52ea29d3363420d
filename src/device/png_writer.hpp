#pragma once

#include <png.h>

#include <QImage>
#include <string>

#include "base/files.hpp"

namespace korven::device {

/// Writes a picture as PNG strip by strip, so that it need never be in memory as a whole. Colours
/// of 8 bits each, no transparency.
class ScrittorePng {
 public:
    /// @param misure          width and height [pixels]
    /// @param pixelPerMetro   resolution
    /// @throws base::ErroreFile with the system's reason
    ScrittorePng(const std::string& percorso, QSize misure, int pixelPerMetro,
                 const base::Disco& disco = base::discoDiSistema());
    ScrittorePng(const ScrittorePng&) = delete;
    ScrittorePng& operator=(const ScrittorePng&) = delete;
    ~ScrittorePng();

    /// The next rows from the top: the first `righe` of a picture in Format_RGB32 (asserted).
    /// @throws base::ErroreFile with the system's reason
    void scrivi(const QImage& fascia, int righe);

    /// @pre all rows are written: asserted
    /// @throws base::ErroreFile with the system's reason
    void concludi();

 private:
    void scarica();

    base::ScrittoreFile file_;
    png_structp png_ = nullptr;
    png_infop info_ = nullptr;
    std::string pronti_;  // bytes that the library has made and the file does not hold yet
};

}  // namespace korven::device
