// TransferFault.h: why a transfer of libcurl's failed, in the engine's own words. Pure.
// Thread: any; no state. Ownership: values only.
#pragma once

#include "Engine/core/EngineError.h"

#include <QString>

#include <curl/curl.h>

namespace Pelnar::Engine
{

enum class TransferStage
{
    Connecting,
    Waiting, ///< the request is on its way
    Body,    ///< the head of the answer is there
};

struct TransferEnd
{
    CURLcode code = CURLE_OK;
    TransferStage stage = TransferStage::Connecting;
    int systemError = 0;       ///< errno of the last call that failed
    long certificateError = 0; ///< OpenSSL's number; 0 for a certificate that was accepted or not seen
    long proxyStatus = 0;      ///< of a proxy's answer to the request for a tunnel; 0 when there is none
    long proxyError = 0;       ///< CURLproxycode
    bool hasProxy = false;
    QString text; ///< libcurl's own
};

/// REQUIRES: end.code is an error.
[[nodiscard]] EngineError ErrorOf(TransferEnd const& end);

} // namespace Pelnar::Engine
