#pragma once

#include <memory>

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

 private:
    std::unique_ptr<QGuiApplication> applicazione_;
};

}  // namespace korven::device
