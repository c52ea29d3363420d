#include "device/png_writer.hpp"

#include <array>
#include <cassert>
#include <new>

namespace korven::device {

namespace {

constexpr std::size_t byteBrano = 1 << 16;
constexpr char filtroSopra = 2;  // each byte less the one above it: most rows repeat the last

std::string numero32(std::uint32_t valore) {
    std::string byte(4, '\0');
    for (std::size_t i = 0; i < 4; ++i) byte[i] = static_cast<char>(valore >> (24 - 8 * i));
    return byte;
}

std::uint32_t controllo(std::string_view tipo, std::string_view dati) {
    const auto somma = [](uLong prima, std::string_view byte) {
        return crc32(prima, reinterpret_cast<const Bytef*>(byte.data()),
                     static_cast<uInt>(byte.size()));
    };
    const uLong soloTipo = somma(crc32(0, nullptr, 0), tipo);
    // zlib takes a null pointer for a new start.
    return static_cast<std::uint32_t>(dati.empty() ? soloTipo : somma(soloTipo, dati));
}

}  // namespace

ScrittorePng::ScrittorePng(const std::string& percorso, QSize misure, int pixelPerMetro)
    : file_(percorso), uscita_(byteBrano, '\0') {
    const auto byteRiga = static_cast<std::size_t>(misure.width()) * 3;
    sopra_.assign(byteRiga, '\0');
    riga_.assign(byteRiga, '\0');
    filtrata_.assign(byteRiga + 1, filtroSopra);
    if (deflateInit(&flusso_, Z_DEFAULT_COMPRESSION) != Z_OK) throw std::bad_alloc();
    flusso_.next_out = reinterpret_cast<Bytef*>(uscita_.data());
    flusso_.avail_out = static_cast<uInt>(uscita_.size());

    using namespace std::string_literals;
    file_.scrivi("\x89PNG\r\n\x1a\n");
    brano("IHDR", numero32(static_cast<std::uint32_t>(misure.width())) +
                      numero32(static_cast<std::uint32_t>(misure.height())) +
                      "\x08\x02\x00\x00\x00"s);  // 8 bits, three colours, nothing unusual
    const std::string passo = numero32(static_cast<std::uint32_t>(pixelPerMetro));
    brano("pHYs", passo + passo + '\x01');  // to the metre
}

ScrittorePng::~ScrittorePng() { deflateEnd(&flusso_); }

void ScrittorePng::brano(std::string_view tipo, std::string_view dati) {
    file_.scrivi(numero32(static_cast<std::uint32_t>(dati.size())));
    file_.scrivi(tipo);
    file_.scrivi(dati);
    file_.scrivi(numero32(controllo(tipo, dati)));
}

void ScrittorePng::comprimi(std::string_view byte, int modo) {
    flusso_.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(byte.data()));
    flusso_.avail_in = static_cast<uInt>(byte.size());
    for (;;) {
        const int esito = deflate(&flusso_, modo);
        const std::size_t pieni = uscita_.size() - flusso_.avail_out;
        const bool finito = esito == Z_STREAM_END;
        if (flusso_.avail_out == 0 || (finito && pieni > 0)) {
            brano("IDAT", std::string_view(uscita_).substr(0, pieni));
            flusso_.next_out = reinterpret_cast<Bytef*>(uscita_.data());
            flusso_.avail_out = static_cast<uInt>(uscita_.size());
        }
        if (modo == Z_FINISH ? finito : flusso_.avail_in == 0) return;
    }
}

void ScrittorePng::scrivi(const QImage& fascia, int righe) {
    assert(fascia.format() == QImage::Format_RGB32);
    for (int y = 0; y < righe; ++y) {
        const auto* pixel = reinterpret_cast<const QRgb*>(fascia.constScanLine(y));
        for (std::size_t i = 0; i < riga_.size(); i += 3, ++pixel) {
            riga_[i] = static_cast<char>(qRed(*pixel));
            riga_[i + 1] = static_cast<char>(qGreen(*pixel));
            riga_[i + 2] = static_cast<char>(qBlue(*pixel));
        }
        for (std::size_t i = 0; i < riga_.size(); ++i)
            filtrata_[i + 1] = static_cast<char>(riga_[i] - sopra_[i]);
        comprimi(filtrata_, Z_NO_FLUSH);
        sopra_.swap(riga_);
    }
}

void ScrittorePng::concludi() {
    comprimi({}, Z_FINISH);
    brano("IEND", {});
    file_.concludi();
}

}  // namespace korven::device
