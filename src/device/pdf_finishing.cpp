#include "device/pdf_finishing.hpp"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFEFStreamObjectHelper.hh>
#include <qpdf/QPDFEmbeddedFileDocumentHelper.hh>
#include <qpdf/QPDFFileSpecObjectHelper.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFWriter.hh>

namespace korven::device {

namespace {

using Oggetto = QPDFObjectHandle;
using document::Segnalibro;

// Where a heading is, for a reader of documents.
Oggetto destinazione(QPDF& pdf, const Segnalibro& s, double altezza) {
    constexpr double aria = 6;  // above the heading, so that it does not touch the window
    Oggetto posto = Oggetto::newArray();
    posto.appendItem(pdf.getAllPages().at(s.pagina));
    posto.appendItem(Oggetto::newName("/XYZ"));
    posto.appendItem(Oggetto::newNull());
    posto.appendItem(Oggetto::newReal(altezza - s.y + aria, 2));
    posto.appendItem(Oggetto::newNull());
    return posto;
}

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
            voce.replaceKey("/Dest", destinazione(pdf_, tutti[i], proprieta_.altezza));
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

// Links without a frame.
void collega(QPDF& pdf, const ProprietaPdf& p) {
    for (const Collegamento& c : p.collegamenti) {
        Oggetto nota = Oggetto::newDictionary();
        nota.replaceKey("/Type", Oggetto::newName("/Annot"));
        nota.replaceKey("/Subtype", Oggetto::newName("/Link"));
        nota.replaceKey("/Rect", Oggetto::newFromRectangle({c.x, p.altezza - c.y - c.altezza,
                                                            c.x + c.larghezza, p.altezza - c.y}));
        nota.replaceKey("/Border", Oggetto::parse("[0 0 0]"));
        nota.replaceKey("/Contents", Oggetto::newUnicodeString(c.meta.testo));
        nota.replaceKey("/Dest", destinazione(pdf, c.meta, p.altezza));
        Oggetto pagina = pdf.getAllPages().at(c.pagina);
        if (!pagina.getKey("/Annots").isArray()) pagina.replaceKey("/Annots", Oggetto::newArray());
        pagina.getKey("/Annots").appendItem(pdf.makeIndirectObject(nota));
    }
}

void allega(QPDF& pdf, const ProprietaPdf& p) {
    QPDFEmbeddedFileDocumentHelper tutti(pdf);
    for (const document::FileAllegato& file : p.allegati) {
        auto byte = QPDFEFStreamObjectHelper::createEFStream(pdf, file.byte);
        byte.setSubtype("application/octet-stream");
        auto voce = QPDFFileSpecObjectHelper::createFileSpec(pdf, file.nome, byte);
        voce.setDescription(file.descrizione);
        tutti.replaceEmbeddedFile(file.nome, voce);
    }
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
    collega(pdf, proprieta);
    allega(pdf, proprieta);
    QPDFWriter scrittore(pdf);
    scrittore.setOutputMemory();
    scrittore.setDeterministicID(true);
    scrittore.setObjectStreamMode(qpdf_o_generate);
    scrittore.write();
    const std::shared_ptr<Buffer> scritti = scrittore.getBufferSharedPointer();
    return {reinterpret_cast<const char*>(scritti->getBuffer()), scritti->getSize()};
}

}  // namespace korven::device
