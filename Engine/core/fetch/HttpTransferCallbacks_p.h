// HttpTransferCallbacks_p.h: the functions through which libcurl calls a transfer.
// Thread: the transfer's.
#pragma once

#include "Engine/core/fetch/AddressReach.h"
#include "Engine/core/fetch/HttpTransfer.h"

#include <exception>
#include <string_view>

#include <sys/socket.h>

namespace Pelnar::Engine
{

/// Stands for an address of an unknown family: "::", which only a feed from this computer may lead to.
inline constexpr NumericAddress NEAREST{};

/// The callbacks of libcurl, with the transfer as their pointer.
struct HttpTransfer::Callbacks
{
    /// Makes \a call. No exception may pass through libcurl: it ends the transfer with an error, and \a otherwise is
    /// returned.
    template <typename Answer, typename Call>
    static Answer Guarded(void* transfer, Answer otherwise, Call call) noexcept
    {
        auto& self = *static_cast<HttpTransfer*>(transfer);
        try
        {
            return call(self);
        }
        catch (std::exception const&) // out of memory
        {
            self.m_refusal = ErrorCause::DownloadSystemBusy;
            return otherwise;
        }
    }

    static curl_socket_t OpenSocket(void* transfer, curlsocktype, curl_sockaddr* address)
    {
        // Refused before a packet is sent.
        bool const isAllowed =
            Guarded(transfer, false,
                    [address](HttpTransfer& self)
                    { return self.MayConnectTo(ReachOf(NumericAddressOf(address->addr).value_or(NEAREST))); });
        return isAllowed ? socket(address->family, address->socktype | SOCK_CLOEXEC, address->protocol)
                         : CURL_SOCKET_BAD;
    }

    static int BeforeRequest(void* transfer, char* server, char*, int, int)
    {
        Verdict const verdict = Guarded(
            transfer, Verdict::Ends,
            [server](HttpTransfer& self)
            { return self.TakeConnection(ReachOf(NumericAddressOf(QString::fromLatin1(server)).value_or(NEAREST))); });
        return verdict == Verdict::GoesOn ? CURL_PREREQFUNC_OK : CURL_PREREQFUNC_ABORT;
    }

    static size_t HeadLine(char* bytes, size_t, size_t count, void* transfer)
    {
        Verdict const verdict = Guarded(transfer, Verdict::Ends,
                                        [bytes, count](HttpTransfer& self)
                                        { return self.TakeHeadLine(QByteArray(bytes, static_cast<int>(count))); });
        return verdict == Verdict::GoesOn ? count : 0;
    }

    static size_t Body(char* bytes, size_t, size_t count, void* transfer)
    {
        qint64 const taken =
            Guarded(transfer, qint64{0},
                    [bytes, count](HttpTransfer& self) { return self.HoldOrTake(bytes, static_cast<qint64>(count)); });
        return taken < 0 ? CURL_WRITEFUNC_PAUSE : static_cast<size_t>(taken);
    }

    static int Debug(CURL*, curl_infotype type, char* bytes, size_t count, void* transfer)
    {
        if (type == CURLINFO_DATA_IN)
        {
            static_cast<HttpTransfer*>(transfer)->m_rawBodyBytes += static_cast<qint64>(count);
            return 0;
        }
        // libcurl reads no further than an answer's end. If bytes arrive together with that end, it mentions them here
        // and discards them.
        auto const startsWith = [text = std::string_view(bytes, count)](std::string_view start)
        { return text.substr(0, start.size()) == start; };
        if (type == CURLINFO_TEXT && (startsWith("Excess found") || startsWith("Leftovers after chunking")))
        {
            static_cast<HttpTransfer*>(transfer)->m_isSurplus = true;
        }
        return 0;
    }
};

} // namespace Pelnar::Engine
