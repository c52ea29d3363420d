#pragma once

namespace korven::plot {

/// Lets somebody end work on a drawing that takes too long: drawing it, showing it again, writing
/// or printing it.
class SorvegliaDisegno {
 public:
    virtual ~SorvegliaDisegno() = default;
    /// Work begins that may take long; it may hold other work of this kind.
    virtual void inizia() {}
    /// Asked at every line, and so quick. @return true when the work is to end
    [[nodiscard]] virtual bool fermare() = 0;
    /// The work begun last has ended, in whatever way.
    virtual void finita() {}
};

/// Work on a drawing, for as long as it lives. Told to `statoPlot.sorveglia`.
class LavoroDisegno {
 public:
    LavoroDisegno();
    LavoroDisegno(const LavoroDisegno&) = delete;
    LavoroDisegno& operator=(const LavoroDisegno&) = delete;
    ~LavoroDisegno();

    /// True while any lives: the plotter is in use, and nothing else may draw with it.
    [[nodiscard]] static bool inCorso();

 private:
    SorvegliaDisegno* sorveglia_;
};

/// To be called wherever lines are drawn or read.
/// @throws DisegnoInterrotto when `statoPlot.sorveglia` wants the work to end
void controllaInterruzione();

}  // namespace korven::plot
