#include "device/dated_pdf.hpp"

#include <array>
#include <ctime>
#include <memory>
#include <optional>
#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFWriter.hh>

#include "base/source_date.hpp"

namespace korven::device {

namespace {

std::optional<long long> secondiVoluti() {
    const auto epoca = base::epocaVoluta();
    return epoca ? base::secondiEpoca(*epoca) : std::nullopt;
}

// A moment of UTC in the form of PDF files.
std::string momento(long long secondi) {
    const auto quando = static_cast<std::time_t>(secondi);
    std::tm utc{};
    gmtime_r(&quando, &utc);
    std::array<char, 32> testo{};
    const std::size_t scritti = std::strftime(testo.data(), testo.size(), "D:%Y%m%d%H%M%SZ", &utc);
    return {testo.data(), scritti};
}

}  // namespace

bool haDataVoluta() { return secondiVoluti().has_value(); }

std::string conDataVoluta(std::string byte) {
    const auto secondi = secondiVoluti();
    if (!secondi) return byte;
    QPDF pdf;
    pdf.processMemoryFile("", byte.data(), byte.size());
    QPDFObjectHandle informazioni = pdf.getTrailer().getKey("/Info");
    informazioni.replaceKey("/CreationDate", QPDFObjectHandle::newString(momento(*secondi)));
    QPDFWriter scrittore(pdf);
    scrittore.setOutputMemory();
    scrittore.setDeterministicID(true);
    scrittore.write();
    const std::shared_ptr<Buffer> scritti = scrittore.getBufferSharedPointer();
    return {reinterpret_cast<const char*>(scritti->getBuffer()), scritti->getSize()};
}

}  // namespace korven::device
