#include "base/system_reason.hpp"

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <string_view>
#include <system_error>

#include "base/translated_texts.hpp"

namespace korven::base {

namespace {

struct Motivo {
    int codice;
    std::string_view testo;
};

constexpr Motivo motivi[] = {
    {ENOENT, "il file o la cartella non esiste"},
    {EACCES, "permesso negato"},
    {EPERM, "operazione non permessa"},
    {EEXIST, "il file esiste già"},
    {ENOTDIR, "una parte del percorso non è una cartella"},
    {EISDIR, "è una cartella"},
    {ENOSPC, "non c'è più spazio sul disco"},
    {EDQUOT, "lo spazio concesso all'utente è esaurito"},
    {EROFS, "il disco è di sola lettura"},
    {EFBIG, "il file è troppo grande"},
    {EIO, "errore del disco"},
    {ENAMETOOLONG, "il nome è troppo lungo"},
    {ELOOP, "troppi collegamenti uno dietro l'altro"},
    {EMFILE, "troppi file aperti"},
    {ENFILE, "troppi file aperti"},
    {ENOMEM, "memoria insufficiente"},
    {EBUSY, "il file è in uso"},
    {ETXTBSY, "il file è in uso"},
    {EPIPE, "chi riceveva ha chiuso"},
    {ENXIO, "il dispositivo non c'è"},
    {ENODEV, "il dispositivo non c'è"},
    {ESTALE, "la cartella di rete non risponde più"},
    {ETIMEDOUT, "la cartella di rete non risponde più"},
};

}  // namespace

std::string motivoSistema(int codice) {
    const auto motivo = std::find_if(std::begin(motivi), std::end(motivi),
                                     [&](const Motivo& m) { return m.codice == codice; });
    if (motivo != std::end(motivi)) return traduttore(motivo->testo);
    return std::generic_category().message(codice);
}

}  // namespace korven::base
