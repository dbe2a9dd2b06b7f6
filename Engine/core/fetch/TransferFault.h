// TransferFault.h: turns a failure of a libcurl transfer into the engine's own error. Pure functions.
#pragma once

#include "Engine/core/faults/EngineError.h"

#include <QString>

#include <curl/curl.h>

namespace Pelnar::Engine
{

enum class TransferStage
{
    Connecting,
    Waiting, ///< the request is being sent
    Body,    ///< the head of the answer has arrived
};

struct TransferEnd
{
    CURLcode code = CURLE_OK;
    TransferStage stage = TransferStage::Connecting;
    int systemError = 0;       ///< errno of the last failed call
    long certificateError = 0; ///< OpenSSL's number; 0 for a certificate that was accepted or not received
    long proxyStatus = 0;      ///< status of a proxy's answer to the request for a tunnel; 0 without an answer
    long proxyError = 0;       ///< CURLproxycode
    bool hasProxy = false;
    QString text; ///< libcurl's own text
};

/// REQUIRES: end.code is an error.
[[nodiscard]] EngineError ErrorOf(TransferEnd const& end);

} // namespace Pelnar::Engine
