// TrustStore.h: the authorities that Qt's default configuration trusts, in the form in which OpenSSL takes them, so
// that a host that adds an authority of its own, or takes some away, says so once for both.
// Thread: any. Making a store reads many files: it is done beside the event loop. Ownership: shared, by count.
#pragma once

#include <QSslConfiguration>

#include <memory>

struct x509_store_st;

namespace Pelnar::Engine
{

using TrustStore = std::shared_ptr<x509_store_st>;

/// Those that \a configuration names, and the system's where it leaves them to be looked up on demand; unset when
/// memory is short.
[[nodiscard]] TrustStore MakeTrustStore(QSslConfiguration const& configuration);

} // namespace Pelnar::Engine
