#pragma once

#include "drawings/hatch_library.hpp"
#include "support/drawing_by_pen.hpp"
#include "support/hatch_files.hpp"

namespace korven::test {

/// A test that draws hatches: pens that tell their strokes apart, no library yet.
class ProvaCampiture : public ProvaPlot {
 protected:
    ProvaCampiture() {
        configura(penneDistinte());
        drawings::dimenticaCampiture();
    }
    ~ProvaCampiture() override { drawings::dimenticaCampiture(); }
};

}  // namespace korven::test
