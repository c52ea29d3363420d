#pragma once

#include <chrono>

namespace korven::python {

/// Whether whoever runs Python wants a calculation to end (Ctrl+C, a handler of a signal that
/// raises). Asked outside of the interpreter's lock, as often as anybody likes: it looks ten times
/// a second.
class Interruzione {
 public:
    [[nodiscard]] bool chiesta();

    /// Raises in Python what the handler has raised. @pre the interpreter's lock is held
    void solleva() const;

 private:
    std::chrono::steady_clock::time_point guardata_ = std::chrono::steady_clock::now();
    bool chiesta_ = false;
};

}  // namespace korven::python
