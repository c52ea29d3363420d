#pragma once

#include <array>
#include <memory>
#include <string>

class QGuiApplication;

namespace korven::device {

/// Fonts and painting without a screen, for as long as this lives. At most one at a time, and none
/// in a program that has windows.
class SessioneGrafica {
 public:
    SessioneGrafica();
    SessioneGrafica(const SessioneGrafica&) = delete;
    SessioneGrafica& operator=(const SessioneGrafica&) = delete;
    ~SessioneGrafica();

    /// True while there are fonts and painting, with windows or without.
    [[nodiscard]] static bool aperta();

 private:
    // The platform is named here and not in the environment, which child processes would inherit.
    // Qt takes what it understands out of these and refers to them for as long as the application
    // lives.
    std::string programma_ = "korven32", opzione_ = "-platform", piattaforma_ = "offscreen";
    std::array<char*, 4> argomenti_{programma_.data(), opzione_.data(), piattaforma_.data(),
                                    nullptr};
    int numeroArgomenti_ = 3;
    std::unique_ptr<QGuiApplication> applicazione_;
};

}  // namespace korven::device
