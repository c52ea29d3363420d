#pragma once

#include <QIODevice>
#include <exception>
#include <string>

#include "base/files.hpp"

namespace korven::device {

/// A file in the making as Qt's writers want it, so that none of them holds it in memory. What they
/// write after a failure is passed over: exceptions can't go through Qt.
class DispositivoFile : public QIODevice {
 public:
    /// @throws base::ErroreFile with the system's reason
    explicit DispositivoFile(const std::string& percorso,
                             const base::Disco& disco = base::discoDiSistema());

    /// Gives the file its name.
    /// @throws base::ErroreFile with the reason of the first failure
    void concludi();

    [[nodiscard]] bool isSequential() const override { return true; }

 protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char* byte, qint64 quanti) override;

 private:
    base::ScrittoreFile file_;
    std::exception_ptr guasto_;
};

}  // namespace korven::device
