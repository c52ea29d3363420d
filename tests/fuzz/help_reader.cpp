#include "base/file_error.hpp"
#include "fuzz_target.hpp"
#include "help/pages.hpp"
#include "help/search.hpp"

// Any bytes as a help file. What can be read has chapters and pages that are found again, by their
// names and by a search for their titles.

extern "C" int KORVEN_FUZZ_ENTRY(const std::uint8_t* byte, std::size_t quanti) {
    using namespace korven;
    help::Guida letta;
    try {
        letta = help::leggiGuida("guida.hlp", test::contenutoFile(byte, quanti));
    } catch (const base::ErroreFile&) {
        return 0;
    }
    test::pretendi(!letta.pagine.empty(), "a help has pages");
    for (const auto& pagina : letta.pagine) {
        test::pretendi(pagina.capitolo < letta.capitoli.size(), "a page has its chapter");
        test::pretendi(help::paginaDiNome(letta, pagina.nome) == &pagina,
                       "a page is found by its name");
        (void)help::haAncora(pagina, pagina.parole);
    }
    const auto& prima = letta.pagine.front();
    const bool cercabile = !help::paroleCercate(prima.titolo).empty();
    const auto trovate = help::cercaNellaGuida(letta, prima.titolo);
    test::pretendi(cercabile || trovate.empty(), "no words find no page");
    for (const auto& trovata : trovate)
        test::pretendi(trovata.pagina != nullptr, "what is found is a page");
    return 0;
}
