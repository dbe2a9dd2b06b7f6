// SparingOrder.h: compares the versions of one feed, and calls the application's comparator only a few times for texts
// that it cannot read. A comparator writes to the log for each of them, and takes it as equal; a feed must not fill the
// log.
// Thread: its maker's.
#pragma once

#include "Engine/core/feed/KeyPaths.h"

#include <map>
#include <utility>

namespace Pelnar::Engine
{

class SparingOrder
{
public:
    explicit SparingOrder(VersionOrder order) : m_order(std::move(order)) {}

    /// Like the comparator, but it gets no pair twice unless both are plain versions such as 5.10. After
    /// MAX_LOGGED_ITEMS pairs that it takes as equal, all others count as equal. Passes its exceptions on.
    int Compare(QString const& a, QString const& b);
    /// The number of pairs that were not compared.
    int Uncompared() const { return m_uncompared; }

private:
    VersionOrder m_order;
    std::map<std::pair<QString, QString>, int> m_known;
    int m_unreadable = 0;
    int m_uncompared = 0;
};

} // namespace Pelnar::Engine
