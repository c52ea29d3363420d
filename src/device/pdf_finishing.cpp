#include "device/pdf_finishing.hpp"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFWriter.hh>

namespace korven::device {

namespace {

using Oggetto = QPDFObjectHandle;
using document::Segnalibro;

// The tree of bookmarks, by the level of each. One that skips a level hangs on the last above it.
class Indice {
 public:
    Indice(QPDF& pdf, const ProprietaPdf& proprieta) : pdf_(pdf), proprieta_(proprieta) {}

    [[nodiscard]] Oggetto radice() {
        Oggetto radice = pdf_.makeIndirectObject(Oggetto::newDictionary());
        radice.replaceKey("/Type", Oggetto::newName("/Outlines"));
        std::size_t i = 0;
        const int quanti = figli(radice, 0, i);
        radice.replaceKey("/Count", Oggetto::newInteger(quanti));
        return radice;
    }

 private:
    // The bookmarks below one of that level, from the i-th on. @return how many, with theirs
    int figli(Oggetto padre, int livello, std::size_t& i) {
        const auto& tutti = proprieta_.segnalibri;
        Oggetto prima;
        int quanti = 0;
        while (i < tutti.size() && tutti[i].livello > livello) {
            Oggetto voce = pdf_.makeIndirectObject(Oggetto::newDictionary());
            const int suo = tutti[i].livello;
            voce.replaceKey("/Title", Oggetto::newUnicodeString(tutti[i].testo));
            voce.replaceKey("/Parent", padre);
            voce.replaceKey("/Dest", dove(tutti[i]));
            if (prima.isInitialized()) {
                voce.replaceKey("/Prev", prima);
                prima.replaceKey("/Next", voce);
            } else {
                padre.replaceKey("/First", voce);
            }
            padre.replaceKey("/Last", voce);
            const int sotto = figli(voce, suo, ++i);
            if (sotto > 0) voce.replaceKey("/Count", Oggetto::newInteger(sotto));
            quanti += 1 + sotto;
            prima = voce;
        }
        return quanti;
    }

    [[nodiscard]] Oggetto dove(const Segnalibro& s) {
        constexpr double aria = 6;  // above the heading, so that it does not touch the window
        Oggetto posto = Oggetto::newArray();
        posto.appendItem(pdf_.getAllPages().at(s.pagina));
        posto.appendItem(Oggetto::newName("/XYZ"));
        posto.appendItem(Oggetto::newNull());
        posto.appendItem(Oggetto::newReal(proprieta_.altezza - s.y + aria, 2));
        posto.appendItem(Oggetto::newNull());
        return posto;
    }

    QPDF& pdf_;
    const ProprietaPdf& proprieta_;
};

Oggetto informazioni(const ProprietaPdf& p) {
    Oggetto info = Oggetto::newDictionary();
    const auto metti = [&info](const char* chiave, const std::string& testo) {
        if (!testo.empty()) info.replaceKey(chiave, Oggetto::newUnicodeString(testo));
    };
    metti("/Title", p.titolo);
    metti("/Author", p.autore);
    metti("/Creator", p.programma);
    metti("/Producer", p.programma);
    std::string cifre = p.data;
    cifre.erase(std::remove(cifre.begin(), cifre.end(), '-'), cifre.end());
    if (!cifre.empty())
        for (const char* chiave : {"/CreationDate", "/ModDate"})
            info.replaceKey(chiave, Oggetto::newString("D:" + cifre + "000000Z"));
    return info;
}

}  // namespace

std::string rifinito(const std::string& byte, const ProprietaPdf& proprieta) {
    QPDF pdf;
    pdf.processMemoryFile(proprieta.titolo.c_str(), byte.data(), byte.size());
    pdf.getTrailer().replaceKey("/Info", pdf.makeIndirectObject(informazioni(proprieta)));
    Oggetto radice = pdf.getRoot();
    radice.removeKey("/Metadata");
    if (!proprieta.lingua.empty())
        radice.replaceKey("/Lang", Oggetto::newUnicodeString(proprieta.lingua));
    if (!proprieta.titolo.empty()) {
        Oggetto vista = Oggetto::newDictionary();
        vista.replaceKey("/DisplayDocTitle", Oggetto::newBool(true));
        radice.replaceKey("/ViewerPreferences", vista);
    }
    if (!proprieta.segnalibri.empty()) {
        radice.replaceKey("/Outlines", Indice(pdf, proprieta).radice());
        radice.replaceKey("/PageMode", Oggetto::newName("/UseOutlines"));
    }
    QPDFWriter scrittore(pdf);
    scrittore.setOutputMemory();
    scrittore.setDeterministicID(true);
    scrittore.setObjectStreamMode(qpdf_o_generate);
    scrittore.write();
    const std::shared_ptr<Buffer> scritti = scrittore.getBufferSharedPointer();
    return {reinterpret_cast<const char*>(scritti->getBuffer()), scritti->getSize()};
}

}  // namespace korven::device
