#pragma once

#include <QMarginsF>

class QPrinter;

namespace korven::device {

/// Opens a printer's page to its printable edge, for as long as this lives: the margins are the
/// least that the printer knows, or a little more, and those of before come back.
class MarginiMinimi {
 public:
    /// @param stampante  not owned
    /// @param almeno     no margin becomes less than this [points]
    explicit MarginiMinimi(QPrinter& stampante, double almeno = 0);
    MarginiMinimi(const MarginiMinimi&) = delete;
    MarginiMinimi& operator=(const MarginiMinimi&) = delete;
    ~MarginiMinimi();

 private:
    QPrinter& stampante_;
    QMarginsF diPrima_;  // [points]
};

}  // namespace korven::device
