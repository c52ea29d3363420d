#pragma once

#include <sys/resource.h>

#include <csignal>

namespace korven::test {

/// No file of this process grows beyond so many bytes, as if the disk were full there.
class LimiteFile {
 public:
    explicit LimiteFile(rlim_t byte) : segnale_(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &diPrima_);
        const rlimit limite{byte, diPrima_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limite);
    }
    LimiteFile(const LimiteFile&) = delete;
    LimiteFile& operator=(const LimiteFile&) = delete;
    ~LimiteFile() {
        ::setrlimit(RLIMIT_FSIZE, &diPrima_);
        std::signal(SIGXFSZ, segnale_);
    }

 private:
    void (*segnale_)(int);
    rlimit diPrima_{};
};

}  // namespace korven::test
