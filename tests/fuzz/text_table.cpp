#include "base/text_table.hpp"

#include "base/file_error.hpp"
#include "base/translated_texts.hpp"
#include "fuzz_target.hpp"

// Any bytes as a file of texts. What can be read is sorted, each of its texts is found again, and
// translating it never fails.

extern "C" int KORVEN_FUZZ_ENTRY(const std::uint8_t* byte, std::size_t quanti) {
    using namespace korven;
    static base::TabellaTesti testi;
    testi.nTesti = 0;
    try {
        base::LettoreRighe file("texts06.txt", test::contenutoFile(byte, quanti));
        base::aggiungiTesti(testi, file);
    } catch (const base::ErroreFile&) {  // the records before the broken one stay
    }
    base::ordinaTesti(testi);
    for (int i = 1; i <= testi.nTesti; ++i) {
        const auto& record = testi.righe[i];
        test::pretendi(i == 1 || testi.righe[i - 1].chiave <= record.chiave, "sorted by key");
        const int trovata = base::cercaTesto(testi, record.testo[base::colonnaItaliano]);
        test::pretendi(trovata > 0 && testi.righe[trovata].chiave == record.chiave,
                       "every text is found by its key");
        for (int lingua = 1; lingua <= base::numeroLingue; ++lingua)
            (void)base::traduci(testi, lingua, record.testo[base::colonnaItaliano]);
    }
    return 0;
}
