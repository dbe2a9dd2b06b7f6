// TrustStore.h: the authorities that Qt's default configuration trusts, in OpenSSL's form. So a host that adds or
// removes an authority does this once for both.
// Making a store reads many files, so a thread does it. Ownership: shared, by count.
#pragma once

#include <QSslConfiguration>

#include <memory>

struct x509_store_st;

namespace Pelnar::Engine
{

using TrustStore = std::shared_ptr<x509_store_st>;

/// The authorities of \a configuration, and the system's if it looks them up on demand; empty if memory is short.
[[nodiscard]] TrustStore MakeTrustStore(QSslConfiguration const& configuration);

} // namespace Pelnar::Engine
