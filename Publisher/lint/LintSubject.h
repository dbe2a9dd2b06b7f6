// LintSubject.h: the input of the rules, and the list of their findings. Ownership: a subject owns its document and
// items; findings are values.
#pragma once

#include "Publisher/files/FeedDocument.h"
#include "Publisher/lint/LintRules.h"

#include <QUrl>

#include <memory>
#include <set>
#include <tuple>
#include <vector>

namespace Pelnar::Publisher
{

struct LintFinding
{
    LintRule rule;
    TextPlace place;
    QString what; ///< without a full stop
};

/// The findings of a feed, without duplicates.
class LintFindings
{
public:
    void Add(LintRule rule, TextPlace place, QString const& what);

    /// In the order of the feed; findings at the same place are in the order of the rules.
    std::vector<LintFinding> Sorted() const;

private:
    std::vector<LintFinding> m_findings;
    std::set<std::tuple<LintRule, int, int, QString>> m_known;
};

/// An item or a delta, as the parser reads it and as the feed writes it.
struct LintDownload
{
    Engine::FeedItem const* item = nullptr;
    XmlElement const* element = nullptr;   ///< of the item; for a delta, its own enclosure
    XmlElement const* enclosure = nullptr; ///< of the item for this platform, or null; for a delta, its own

    /// The place that findings about the download name.
    TextPlace Place() const { return enclosure ? enclosure->place : element->place; }
    /// The url attribute without the blanks around it; empty if it is absent.
    QString WrittenAddress() const;
};

/// An item of one platform with its deltas.
struct LintItem
{
    LintDownload full;
    std::vector<LintDownload> deltas;
};

/// The feed as the clients of one platform read it: those on one machine, or without regard to machines.
struct LintPlatform
{
    Engine::FeedPlatform system = Engine::FeedPlatform::Linux;
    std::vector<Engine::FeedItem> parsed;
    std::vector<LintItem> items; ///< in the order of the feed
};

struct LintSubject
{
    LintSubject() = default;
    LintSubject(LintSubject const&) = delete;
    LintSubject& operator=(LintSubject const&) = delete;

    QUrl address;
    XmlElement root;
    std::vector<XmlElement const*> itemElements; ///< of all platforms
    std::vector<LintPlatform> platforms;
};

/// "item 5.1", "the delta from 5.0": the start of a finding.
QString NameOf(Engine::FeedItem const& item);

/// True for an address that only the publisher's computer can resolve, such as "file:///a", "/home/me/a" or "C:\a".
[[nodiscard]] bool IsOfThisDisk(QString const& text);

// The groups of rules. They are independent of each other.
void CheckNames(LintSubject const& subject, LintFindings& findings);
void CheckTexts(LintSubject const& subject, LintFindings& findings);
void CheckVersions(LintSubject const& subject, LintFindings& findings);
void CheckSystems(LintSubject const& subject, LintFindings& findings);
void CheckDownloads(LintSubject const& subject, LintFindings& findings);
void CheckAddresses(LintSubject const& subject, LintFindings& findings);
void CheckOffers(LintSubject const& subject, LintFindings& findings);
void CheckDeltas(LintSubject const& subject, LintFindings& findings);
void CheckExtensions(LintSubject const& subject, LintFindings& findings);
void CheckNotes(LintSubject const& subject, LintFindings& findings);

/// Checks the whole document as clients read it. Runs all groups if clients can read it.
struct LintResult
{
    std::vector<LintFinding> findings;
    std::unique_ptr<LintSubject const> subject; ///< null if clients refuse the document
};
LintResult LintFeed(QByteArray const& bytes, QUrl const& address);

} // namespace Pelnar::Publisher
