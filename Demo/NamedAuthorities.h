// NamedAuthorities.h: lets a person name the certificate authorities that a demo host trusts.
// Thread: the Qt main thread, before the first request.
#pragma once

namespace Pelnar::Demo
{

/// Trusts only the authorities in the PEM file that the environment variable SSL_CERT_FILE names, as OpenSSL programs
/// do; Qt itself reads only the system's folders. Without the variable nothing changes. Throws std::runtime_error if
/// the file contains no certificate.
void TrustNamedAuthorities();

} // namespace Pelnar::Demo
