#pragma once

#include <QGroupBox>

namespace korven::shell {

/// One of two states of a project that lie side by side: what it is, since when, in which file.
class StatoProgetto : public QGroupBox {
 public:
    /// @param nome    object name
    /// @param quando  a whole line
    /// @param file    path; empty where there is none
    StatoProgetto(const QString& nome, const QString& titolo, const QString& quando,
                  const QString& file, QWidget* padre);
};

}  // namespace korven::shell
