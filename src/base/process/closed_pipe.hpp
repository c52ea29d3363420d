#pragma once

namespace korven::base {

/// Puts in the place of each closed standard stream one on which every use fails. Without it the
/// next file that is opened would take the place, and what is told would be written into it. To be
/// called before anything is opened.
void occupaCanaliChiusi();

/// Lets a write to a pipe that nobody reads any more ("| head") fail like any other write: by
/// itself it would end the program in the middle of its work, with a file half written. To be
/// called once, at the start. Programs that are started from here meet the signal as ever.
void resistiAiTubiChiusi();

}  // namespace korven::base
