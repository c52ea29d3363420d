#include "base/disk.hpp"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>

// The standard library can't flush a file to the disk, so this file speaks to the system itself.

namespace korven::base {

namespace {

// A system call that a signal cut short is made again.
template <class Chiamata>
auto ripeti(const Chiamata& chiamata) {
    for (;;) {
        const auto esito = chiamata();
        if (esito >= 0 || errno != EINTR) return esito;
    }
}

class DiscoDiSistema : public Disco {
 public:
    int apri(const std::string& percorso, int modo, mode_t permessi) const override {
        return ripeti([&] { return ::open(percorso.c_str(), modo | O_CLOEXEC, permessi); });
    }
    int creaProvvisorio(std::string& modello) const override {
        return ::mkostemp(modello.data(), O_CLOEXEC);
    }
    ssize_t scrivi(int file, std::string_view byte) const override {
        return ripeti([&] { return ::write(file, byte.data(), byte.size()); });
    }
    bool accorcia(int file, off_t lunghezza) const override {
        return ::ftruncate(file, lunghezza) == 0;
    }
    bool versa(int file) const override {
        return ripeti([&] { return ::fsync(file); }) == 0;
    }
    // An interrupted close has closed the file all the same.
    bool chiudi(int file) const override { return ::close(file) == 0 || errno == EINTR; }
    bool rinomina(const std::string& da, const std::string& a) const override {
        return ::rename(da.c_str(), a.c_str()) == 0;
    }
};

}  // namespace

const Disco& discoDiSistema() {
    static const DiscoDiSistema disco;
    return disco;
}

bool scriviTutto(const Disco& disco, int file, std::string_view byte) {
    while (!byte.empty()) {
        const ssize_t scritti = disco.scrivi(file, byte);
        if (scritti < 0) return false;
        byte.remove_prefix(static_cast<std::size_t>(scritti));
    }
    return true;
}

}  // namespace korven::base
