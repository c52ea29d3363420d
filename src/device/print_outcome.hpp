#pragma once

#include <string>

class QPrinter;

// What becomes of a print job. The pages go to the queue, or into the file, when the job ends; Qt
// itself tells of hardly anything that goes wrong then.

namespace korven::device {

/// Where the pages of a printer go: the file that it writes, else its name.
[[nodiscard]] std::string destinazionePagine(const QPrinter& stampante);

/// False for a printer that the system no longer knows. One that writes a file needs no system.
[[nodiscard]] bool conosciuta(const QPrinter& stampante);

/// After the end of a job: false if the printer is in error or has vanished, or if its file was not
/// written to the end. Whether a sheet came out nobody can tell.
[[nodiscard]] bool consegnata(const QPrinter& stampante);

}  // namespace korven::device
