// NamedAuthorities.h: lets a person name the certificate authorities that a demo host trusts.
// Thread: the Qt main thread, before the first request. Ownership: nothing is kept.
#pragma once

namespace Pelnar::Demo
{

/// Trusts the authorities in the PEM file that the environment variable SSL_CERT_FILE names, and no others, as programs
/// over OpenSSL do; Qt itself looks in the system's folders only. Without the variable nothing changes. Throws
/// std::runtime_error when the file holds no certificate.
void TrustNamedAuthorities();

} // namespace Pelnar::Demo
