// KeyStatementText.h: key statements for tests, written independently of the product. Plain C++.
#pragma once

#include "tests/engine/SignedFeedText.h"

#include <string>
#include <vector>

namespace Pelnar::Testing
{

constexpr std::uint8_t ROOT_SEED = 42;

struct StatementText
{
    std::string serial = "3";
    std::string expires = "9999-12-31T23:59:59Z";
    std::vector<std::string> bundles = {"com.example.app"};
    std::vector<std::uint8_t> validSeeds = {7};
    std::vector<std::string> revoked = {};
};

inline std::string TextOf(StatementText const& statement)
{
    std::string text = "pelnar-keys 1\nserial " + statement.serial + "\nexpires " + statement.expires + '\n';
    for (std::string const& bundle : statement.bundles)
    {
        text += "bundle " + bundle + '\n';
    }
    for (std::uint8_t const seed : statement.validSeeds)
    {
        text += "valid " + MakeKeyPair(seed).publicKey + '\n';
    }
    for (std::string const& id : statement.revoked)
    {
        text += "revoked " + id + '\n';
    }
    return text;
}

/// The line of a feed with any text, signed by the key pair with that seed byte.
inline QByteArray StatementLineOf(std::string const& text, std::uint8_t seedByte = ROOT_SEED)
{
    return "<!-- pelnar-keys: ed25519 " + QByteArray::fromStdString(text).toBase64() + ' ' +
           QByteArray::fromStdString(Base64(Sign(text, MakeKeyPair(seedByte)))) + " -->\n";
}

inline QByteArray StatementLineOf(StatementText const& statement, std::uint8_t seedByte = ROOT_SEED)
{
    return StatementLineOf(TextOf(statement), seedByte);
}

} // namespace Pelnar::Testing
