#pragma once

namespace korven::project {

/// A value of the project as people read it: rounded to seven digits. All those that a program
/// wrote are of use in the file alone, which keeps them.
/// @param mostrato  in the shown unit, finite
[[nodiscard]] double conSetteCifre(double mostrato);

}  // namespace korven::project
