#include "rufrohr_windows.h"

#include <QCryptographicHash>
#include <QDir>

#include <windows.h>

namespace varnoth {

std::wstring Rohrname(const QString& ort) {
    if (ort.isEmpty())
        return {};
    const QByteArray wort = QDir::cleanPath(ort).toLower().toUtf8();
    const QByteArray kurz = QCryptographicHash::hash(wort, QCryptographicHash::Sha256).toHex();
    return QStringLiteral("\\\\.\\pipe\\varnoth-%1").arg(QString::fromLatin1(kurz)).toStdWString();
}

struct Rohrende::Vorgang {
    Griff ereignis{::CreateEventW(nullptr, TRUE, FALSE, nullptr)};
    OVERLAPPED ablauf{};
    std::string puffer{};
    DWORD bytes = 0;
    Rufstand stand = Rufstand::Fertig;
};

Rohrende::Rohrende(Griff offenes) : rohr(std::move(offenes)), vorgang(std::make_unique<Vorgang>()) {}

/// The system writes into the buffer as long as something is under way.
Rohrende::~Rohrende() {
    if (vorgang->stand != Rufstand::Laeuft)
        return;
    ::CancelIoEx(rohr.Wert(), &vorgang->ablauf);
    ::GetOverlappedResult(rohr.Wert(), &vorgang->ablauf, &vorgang->bytes, TRUE);
}

void* Rohrende::Beginne() {
    ::ResetEvent(vorgang->ereignis.Wert());
    vorgang->ablauf = {};
    vorgang->ablauf.hEvent = vorgang->ereignis.Wert();
    vorgang->bytes = 0;
    vorgang->stand = Rufstand::Laeuft;
    return &vorgang->ablauf;
}

/// The event is set in any case when what was begun does not go on.
void Rohrende::Merke(bool gelungen) {
    const DWORD fehler = gelungen ? ERROR_SUCCESS : ::GetLastError();
    if (gelungen || fehler == ERROR_IO_PENDING || fehler == ERROR_MORE_DATA)
        return;
    const bool schonDa = fehler == ERROR_PIPE_CONNECTED;
    vorgang->stand = schonDa ? Rufstand::Fertig : Rufstand::Gescheitert;
    ::SetEvent(vorgang->ereignis.Wert());
}

void Rohrende::WarteAufAnruf() {
    auto* const ablauf = static_cast<OVERLAPPED*>(Beginne());
    Merke(::ConnectNamedPipe(rohr.Wert(), ablauf) != 0);
}

void Rohrende::Lies(std::size_t hoechstens) {
    auto* const ablauf = static_cast<OVERLAPPED*>(Beginne());
    vorgang->puffer.resize(hoechstens);
    Merke(::ReadFile(rohr.Wert(), vorgang->puffer.data(), static_cast<DWORD>(hoechstens), nullptr, ablauf) !=
          0);
}

void Rohrende::Sende(std::string_view bytes) {
    auto* const ablauf = static_cast<OVERLAPPED*>(Beginne());
    vorgang->puffer = bytes;
    Merke(::WriteFile(rohr.Wert(), vorgang->puffer.data(), static_cast<DWORD>(bytes.size()), nullptr,
                      ablauf) != 0);
}

Rufstand Rohrende::Stand() {
    if (vorgang->stand != Rufstand::Laeuft)
        return vorgang->stand;
    if (::GetOverlappedResult(rohr.Wert(), &vorgang->ablauf, &vorgang->bytes, FALSE) != 0 ||
        ::GetLastError() == ERROR_MORE_DATA)
        vorgang->stand = Rufstand::Fertig;
    else if (::GetLastError() != ERROR_IO_INCOMPLETE)
        vorgang->stand = Rufstand::Gescheitert;
    return vorgang->stand;
}

Rufstand Rohrende::StandNach(int millisekunden) {
    ::WaitForSingleObject(vorgang->ereignis.Wert(), static_cast<DWORD>(millisekunden));
    return Stand();
}

std::string_view Rohrende::Gelesenes() const {
    return std::string_view(vorgang->puffer).substr(0, vorgang->bytes);
}

void* Rohrende::Ereignis() const {
    return vorgang->ereignis.Wert();
}

} // namespace varnoth
