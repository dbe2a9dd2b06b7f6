// TrustedKeys.h: the public keys by which a bundle judges archives, deltas and feeds, and the one way to verify by
// them. Thread: any; no state beyond the cryptography library's one-time start. Ownership: descriptors stay the
// caller's. A file is mapped: in a process where a truncated file must not end it with SIGBUS, do not verify one.
#pragma once

#include "Engine/core/payload/Ed25519Signature.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace Pelnar::Engine
{

/// The short name of a key (docs/formats/item-keys.md): the first eight bytes of its SHA-256, as sixteen hexadecimal
/// digits in lower case; empty for a text that is no public key.
[[nodiscard]] std::string KeyIdOf(std::string_view publicKey);

/// Whether \a text has the form of a key's id.
[[nodiscard]] bool IsKeyId(std::string_view text);

/// The keys of one bundle, in the order in which it names them.
class TrustedKeys
{
public:
    static constexpr std::size_t MOST_KEYS = 2;

    TrustedKeys() = default;
    /// Implicit: a list of keys in base64 is what a bundle has. Empty texts are left out.
    TrustedKeys(std::vector<std::string> const& texts);
    TrustedKeys(std::initializer_list<std::string> texts);

    /// In base64, as they were given.
    [[nodiscard]] std::vector<std::string> const& Texts() const { return m_texts; }
    /// None when there is a key and every one is usable; KeyMissing, KeyMalformed.
    [[nodiscard]] UpdateFault Fault() const { return m_fault; }
    /// Of the usable keys.
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

/// None when \a message bears a valid \a signature of one of the keys; every key must be usable, whichever signed.
[[nodiscard]] UpdateFault VerifySignature(std::string_view message, std::string_view signature,
                                          TrustedKeys const& keys);

/// None when the whole file behind \a descriptor bears a valid \a signature of one of the keys; every key must be
/// usable, whichever signed. The file's read position is not touched.
[[nodiscard]] UpdateFault VerifyFileSignature(int descriptor, std::string_view signature, TrustedKeys const& keys);

} // namespace Pelnar::Engine
