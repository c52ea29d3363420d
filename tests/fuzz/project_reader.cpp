#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "fuzz_target.hpp"
#include "project/project_file.hpp"

// Any bytes as a project file. What can be read is the same project after it was written: a second
// reading gives the very bytes again, and does not count as a change.

extern "C" int KORVEN_FUZZ_ENTRY(const std::uint8_t* byte, std::size_t quanti) {
    using namespace korven;
    project::DatiProgetto letti;
    try {
        base::LettoreRighe file("prova.kvd", test::contenutoFile(byte, quanti));
        project::leggiDati(file, letti);
    } catch (const base::ErroreFile&) {
        return 0;
    }
    const std::string scritti = base::inCp1252(project::testoProgetto(letti));
    base::LettoreRighe file("prova.kvd", scritti);
    project::DatiProgetto riletti;
    project::leggiDati(file, riletti);
    test::pretendi(base::inCp1252(project::testoProgetto(riletti)) == scritti,
                   "a written project reads back as the same bytes");
    base::LettoreRighe confronto("prova.kvd", scritti);
    test::pretendi(!project::progettoDiverso(confronto, riletti),
                   "a project equals the file that it was read from");
    return 0;
}
