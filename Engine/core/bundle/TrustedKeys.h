// TrustedKeys.h: the public keys with which a bundle verifies archives, deltas and feeds, and the only way to verify
// with them. A file is mapped: do not verify one in a process that SIGBUS must not end, because a truncated file causes
// it.
// Thread: any; the only state is the cryptography library's one-time start.
#pragma once

#include "Engine/core/bundle/Ed25519Signature.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace Pelnar::Engine
{

/// The short name of a key (docs/formats/item-keys.md): the first eight bytes of its SHA-256, as sixteen lower-case
/// hexadecimal digits; empty for a text that is not a public key.
[[nodiscard]] std::string KeyIdOf(std::string_view publicKey);
/// The same for any bytes. This is much faster, because it does not check that they are a public key.
[[nodiscard]] std::string KeyIdOf(Ed25519Key const& key);

/// True if \a text has the form of a key's id.
[[nodiscard]] bool IsKeyId(std::string_view text);

/// The keys of one bundle, in the bundle's order.
class TrustedKeys
{
public:
    static constexpr std::size_t MOST_KEYS = 2;

    TrustedKeys() = default;
    /// Implicit, because a bundle has a list of keys in base64. Empty texts are ignored.
    TrustedKeys(std::vector<std::string> const& texts);
    TrustedKeys(std::initializer_list<std::string> texts);

    /// In base64, as given.
    [[nodiscard]] std::vector<std::string> const& Texts() const { return m_texts; }
    /// None if there is a key and every key is usable; otherwise KeyMissing or KeyMalformed.
    [[nodiscard]] UpdateFault Fault() const { return m_fault; }
    /// The ids of the usable keys.
    [[nodiscard]] std::vector<std::string> const& Ids() const { return m_ids; }
    [[nodiscard]] bool HasId(std::string_view id) const;
    /// REQUIRES: no fault.
    [[nodiscard]] std::vector<Ed25519Key> const& Keys() const { return m_keys; }

private:
    void Add(std::string const& text);

    std::vector<std::string> m_texts;
    std::vector<Ed25519Key> m_keys;
    std::vector<std::string> m_ids;
    UpdateFault m_fault = UpdateFault::KeyMissing;
};

/// None if \a signature is a valid signature of \a message by one of the keys. Every key must be usable, also those
/// that did not sign.
[[nodiscard]] UpdateFault VerifySignature(std::string_view message, std::string_view signature,
                                          TrustedKeys const& keys);

/// None if \a signature is a valid signature of the whole file behind \a descriptor by one of the keys. Every key must
/// be usable, also those that did not sign. The file's read position does not change.
[[nodiscard]] UpdateFault VerifyFileSignature(int descriptor, std::string_view signature, TrustedKeys const& keys);

} // namespace Pelnar::Engine
