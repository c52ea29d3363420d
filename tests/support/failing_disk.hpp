#pragma once

#include <fcntl.h>

#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

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

/// A disk that counts what is asked of it and fails one call, whichever it is. Without that call,
/// what it has been asked is the order in which a file is brought to the disk.
class DiscoContato : public base::Disco {
 public:
    /// @param quale  the call that fails, from 1; 0 for none
    explicit DiscoContato(std::size_t quale = 0) : quale_(quale) {}

    int apri(const std::string& percorso, int modo, mode_t permessi) const override {
        const bool cartella = (modo & O_DIRECTORY) != 0;
        if (fallisce(cartella ? "apri cartella" : "apri")) return -1;
        const int file = base::discoDiSistema().apri(percorso, modo, permessi);
        if (cartella) cartella_ = file;
        return file;
    }
    int creaProvvisorio(std::string& modello) const override {
        return fallisce("crea") ? -1 : base::discoDiSistema().creaProvvisorio(modello);
    }
    ssize_t scrivi(int file, std::string_view byte) const override {
        return fallisce("scrivi") ? -1 : base::discoDiSistema().scrivi(file, byte);
    }
    bool accorcia(int file, off_t lunghezza) const override {
        return !fallisce("accorcia") && base::discoDiSistema().accorcia(file, lunghezza);
    }
    bool versa(int file) const override {
        return !fallisce(file == cartella_ ? "versa cartella" : "versa") &&
               base::discoDiSistema().versa(file);
    }
    // One that fails has closed the file all the same.
    bool chiudi(int file) const override {
        const bool chiuso = base::discoDiSistema().chiudi(file);
        return !fallisce("chiudi") && chiuso;
    }
    bool rinomina(const std::string& da, const std::string& a) const override {
        return !fallisce("rinomina") && base::discoDiSistema().rinomina(da, a);
    }

    mutable std::vector<std::string> chiamate;

 private:
    [[nodiscard]] bool fallisce(const char* chiamata) const {
        chiamate.emplace_back(chiamata);
        if (chiamate.size() != quale_) return false;
        errno = EIO;
        return true;
    }

    std::size_t quale_;
    mutable int cartella_ = -1;
};

/// What it says of a full disk, in Italian.
inline constexpr const char* nonCeSpazio = "non c'è più spazio sul disco";

}  // namespace korven::test
