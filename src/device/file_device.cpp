#include "device/file_device.hpp"

#include <utility>

namespace korven::device {

DispositivoFile::DispositivoFile(const std::string& percorso, const base::Disco& disco)
    : file_(percorso, disco) {
    open(QIODevice::WriteOnly);
}

qint64 DispositivoFile::writeData(const char* byte, qint64 quanti) {
    if (guasto_) return quanti;
    try {
        file_.scrivi({byte, static_cast<std::size_t>(quanti)});
    } catch (const std::exception&) {
        guasto_ = std::current_exception();
    }
    return quanti;
}

void DispositivoFile::concludi() {
    close();
    if (guasto_) std::rethrow_exception(std::exchange(guasto_, nullptr));
    file_.concludi();
}

}  // namespace korven::device
