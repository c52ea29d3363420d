#pragma once

#include "device/qt_text.hpp"

namespace korven::shell {

using device::qt;
using device::tradotto;

}  // namespace korven::shell
