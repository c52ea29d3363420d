#include "device/png_writer.hpp"

#include <cassert>
#include <new>

namespace korven::device {

namespace {

// The library hands its bytes over here, and the file takes them between its calls: an error of the
// file must not pass through code that is not C++.
void accoda(png_structp png, png_bytep byte, png_size_t quanti) {
    static_cast<std::string*>(png_get_io_ptr(png))
        ->append(reinterpret_cast<const char*>(byte), quanti);
}

void nienteDaScaricare(png_structp) {}

}  // namespace

ScrittorePng::ScrittorePng(const std::string& percorso, QSize misure, int pixelPerMetro,
                           const base::Disco& disco)
    : file_(percorso, disco),
      png_(png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr)) {
    info_ = png_ ? png_create_info_struct(png_) : nullptr;
    if (!info_) {
        png_destroy_write_struct(&png_, nullptr);
        throw std::bad_alloc();
    }
    png_set_write_fn(png_, &pronti_, accoda, nienteDaScaricare);
    // Wide sheets at a fine resolution exceed the million pixels a side that the library allows.
    png_set_user_limits(png_, PNG_UINT_31_MAX, PNG_UINT_31_MAX);
    const auto larghezza = static_cast<png_uint_32>(misure.width());
    png_set_IHDR(png_, info_, larghezza, static_cast<png_uint_32>(misure.height()), 8,
                 PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
                 PNG_FILTER_TYPE_DEFAULT);
    const auto passo = static_cast<png_uint_32>(pixelPerMetro);
    png_set_pHYs(png_, info_, passo, passo, PNG_RESOLUTION_METER);
    png_set_filter(png_, PNG_FILTER_TYPE_BASE, PNG_FILTER_UP);  // most rows repeat the last
    png_write_info(png_, info_);
    png_set_bgr(png_);  // four bytes a pixel, blue first, the last without meaning
    png_set_filler(png_, 0, PNG_FILLER_AFTER);
    scarica();
}

ScrittorePng::~ScrittorePng() { png_destroy_write_struct(&png_, &info_); }

void ScrittorePng::scrivi(const QImage& fascia, int righe) {
    assert(fascia.format() == QImage::Format_RGB32);
    for (int y = 0; y < righe; ++y) png_write_row(png_, fascia.constScanLine(y));
    scarica();
}

void ScrittorePng::scarica() {
    file_.scrivi(pronti_);
    pronti_.clear();
}

void ScrittorePng::concludi() {
    assert(png_get_current_row_number(png_) == png_get_image_height(png_, info_));
    png_write_end(png_, info_);
    scarica();
    file_.concludi();
}

}  // namespace korven::device
