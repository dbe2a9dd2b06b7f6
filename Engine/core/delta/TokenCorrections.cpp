#include "Engine/core/delta/TokenCorrections.h"

namespace Pelnar::Engine
{

void AppendCorrection(TokenCorrections& corrections, std::uint64_t copied, DeflateTokens const& tokens)
{
    corrections.push_back(copied);
    corrections.push_back(tokens.size());
    for (DeflateToken const token : tokens)
    {
        corrections.push_back(token.length);
        if (token.length > 0)
        {
            corrections.push_back(token.value);
        }
    }
}

} // namespace Pelnar::Engine
