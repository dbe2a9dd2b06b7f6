// ItemRecord.h: one feed item as the rules of the selection see it. Plain C++, private to the session.
// Thread: the caller's, one at a time. Ownership: a record refers to its source, which must outlive it. A record reads
// a property from its source at most once, and only when a rule needs it.
#pragma once

#include "App/UpdateChecker/SparkleImpl/Choice/UpdateType.h"
#include "HostFramework/Version.h"

#include <QDate>
#include <QString>
#include <QUrl>

#include <cstdint>
#include <optional>

namespace Pelnar::App::Session
{

/// The source of an item's properties, as the feed writes them; an absent text is empty.
class IItemSource
{
public:
    virtual QString MinimumSystemVersion() const = 0;
    virtual QString MaximumSystemVersion() const = 0;
    virtual QString VersionString() const = 0;
    /// The download's address.
    virtual QString FileAddress() const = 0;
    virtual QString DateString() const = 0;
    virtual std::uint64_t ContentLength() const = 0;
    virtual bool IsDelta() const = 0;

protected:
    ~IItemSource() = default;
};

class ItemRecord
{
public:
    explicit ItemRecord(IItemSource const& source) : m_source(source) {}

    /// The invalid version if the text is empty or does not parse.
    Core::Version const& MinimumSystem();
    Core::Version const& MaximumSystem();
    Core::Version const& Version();
    QUrl const& Address();
    /// The item's date if its text is in Qt's text form; an invalid date otherwise.
    QDate const& Date();
    std::uint64_t Length();
    UpdateType Type();

private:
    IItemSource const& m_source;
    std::optional<Core::Version> m_minimumSystem;
    std::optional<Core::Version> m_maximumSystem;
    std::optional<Core::Version> m_version;
    std::optional<QUrl> m_address;
    std::optional<QDate> m_date;
    std::optional<std::uint64_t> m_length;
    std::optional<UpdateType> m_type;
};

} // namespace Pelnar::App::Session
