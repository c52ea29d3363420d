#pragma once

#include <chrono>
#include <optional>

namespace korven::shell {

/// Lets a surface be redrawn at most 30 times a second: a run makes many more iterations than an
/// eye can see, and drawing them all would take longer than computing them.
class RitmoRidisegno {
 public:
    using Istante = std::chrono::steady_clock::time_point;
    static constexpr std::chrono::nanoseconds intervallo{1'000'000'000 / 30};

    /// True when it is time to redraw; the next time counts from there.
    [[nodiscard]] bool tocca(Istante adesso) {
        if (ultimo_ && adesso - *ultimo_ < intervallo) return false;
        ultimo_ = adesso;
        return true;
    }
    void ricomincia() { ultimo_.reset(); }

 private:
    std::optional<Istante> ultimo_;
};

}  // namespace korven::shell
