#pragma once

#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <limits>
#include <string>
#include <string_view>

#include "base/disk.hpp"

namespace korven::test {

/// A disk on which one call fails, from a moment on and with a reason of the test's choice. All
/// else is done by the disks of the machine, so that a test looks at what really stays there.
class DiscoGuasto : public base::Disco {
 public:
    int apri(const std::string& percorso, int modo, mode_t permessi) const override {
        return fallisce(apertura) ? -1 : vero().apri(percorso, modo, permessi);
    }
    int creaProvvisorio(std::string& modello) const override {
        return fallisce(apertura) ? -1 : vero().creaProvvisorio(modello);
    }
    /// Takes the bytes that still fit, in pieces, as a disk does that becomes full.
    ssize_t scrivi(int file, std::string_view byte) const override {
        if (spazio == 0) {
            errno = motivo;
            return -1;
        }
        const ssize_t scritti = vero().scrivi(file, byte.substr(0, spazio));
        if (scritti > 0 && spazio != senzaFine) spazio -= static_cast<std::size_t>(scritti);
        return scritti;
    }
    bool accorcia(int file, off_t lunghezza) const override {
        return !fallisce(taglio) && vero().accorcia(file, lunghezza);
    }
    bool versa(int file) const override { return !fallisce(versamento) && vero().versa(file); }
    bool chiudi(int file) const override { return vero().chiudi(file) && !fallisce(chiusura); }
    bool rinomina(const std::string& da, const std::string& a) const override {
        return !fallisce(nome) && vero().rinomina(da, a);
    }

    static constexpr std::size_t senzaFine = std::numeric_limits<std::size_t>::max();
    mutable std::size_t spazio = senzaFine;  ///< bytes that it still takes
    bool apertura = false, taglio = false, versamento = false, chiusura = false, nome = false;
    int motivo = ENOSPC;

 private:
    static const base::Disco& vero() { return base::discoDiSistema(); }
    [[nodiscard]] bool fallisce(bool chiamata) const {
        if (chiamata) errno = motivo;
        return chiamata;
    }
};

/// A disk that is full after so many bytes.
class DiscoPieno : public DiscoGuasto {
 public:
    explicit DiscoPieno(std::size_t byte) { spazio = byte; }
};

/// What it says of a full disk, in Italian.
inline constexpr const char* nonCeSpazio = "non c'è più spazio sul disco";

}  // namespace korven::test
