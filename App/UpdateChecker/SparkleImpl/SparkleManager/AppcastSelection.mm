// AppcastSelection.mm: the session's answers about feed items: their kind, their extensions, whether one may be offered
// and which is the best.
// Thread: the Qt main thread. Ownership: the framework owns items; copies of their properties live no longer than one
// answer.

#include "App/UpdateChecker/SparkleImpl/SparkleManager/SparkleManager_p.h"

#include "App/UpdateChecker/SparkleImpl/Choice/AppcastJudgement.h"
#include "App/UpdateChecker/SparkleImpl/Choice/Extensions.h"
#include "App/UpdateChecker/SparkleImpl/Choice/ItemRecord.h"
#include "App/UpdateChecker/SparkleImpl/Choice/LogSites.h"
#include "App/UpdateChecker/SparkleImpl/Choice/VersionText.h"
#include "App/UpdateChecker/SparkleImpl/UpdaterSparkle/SparkleUpdateContext.h"
#include "Foundation/FoundationText.h"
#include "HostFramework/OSVersion.h"

#include <optional>
#include <string>

namespace Pelnar::App
{

namespace Sites = Session::Sites;

using Core::IsEnabled;
using Core::Write;
using Foundation::ToQString;
using Foundation::ToUtf8;

namespace
{

/// Every text uses the buffer \a text, which the items of one answer share: most texts are parsed and discarded.
class FoundationItem final : public Session::IItemSource
{
  public:
    FoundationItem(SUAppcastItem* item, QString& text) : m_item(item), m_text(text) {}

    QString const& MinimumSystemVersion() const override { return Copy([m_item minimumSystemVersion]); }
    QString const& MaximumSystemVersion() const override { return Copy([m_item maximumSystemVersion]); }
    QString const& VersionString() const override { return Copy([m_item versionString]); }
    QString const& FileAddress() const override { return Copy([[m_item fileURL] absoluteString]); }
    QString const& DateString() const override { return Copy([m_item dateString]); }
    std::uint64_t ContentLength() const override { return [m_item contentLength]; }
    bool IsDelta() const override { return [m_item isDeltaUpdate]; }

  private:
    QString const& Copy(NSString* text) const
    {
        Foundation::CopyText(text, m_text);
        return m_text;
    }

    SUAppcastItem* const m_item;
    QString& m_text;
};

/// An item during one answer: read and judged once, for any number of rules.
struct Candidate
{
    Candidate(SUAppcastItem* feedItem, QString& text) : item(feedItem), source(feedItem, text), record(source) {}
    Candidate(Candidate const&) = delete;
    Candidate& operator=(Candidate const&) = delete;

    SUAppcastItem* const item;
    FoundationItem const source;
    Session::ItemRecord record;
    std::optional<Session::Judgement> judgement;
};

/// Asked for once in a process. If the text does not parse, system bounds are ignored for the rest of the process.
Core::Version const& SystemVersion()
{
    static Core::Version const version = Session::VersionFromStringNoexcept(Util::OSVersion());
    return version;
}

/// REQUIRES: the session has a context.
Session::SelectionSubject SubjectOf(SparkleManager::Impl const& session)
{
    SparkleUpdateContext const& context = *session.context;
    return {SystemVersion(), context.localVersion, context.versionLess, context.versionEqual};
}

/// Guards run and log on every call. The verdict of \a candidate is computed once and cached. Null stands for nil.
bool Validate(SparkleManager::Impl const& session, Candidate* candidate)
{
    SystemVersion();
    if (!session.EnsureContext() || !session.EnsureLocalVersion())
    {
        return false;
    }
    // Deliberate: the operators are checked, and their absence is logged, before a missing item is noticed.
    bool const hasOperators = session.EnsureVersionOperators();
    if (!candidate || !hasOperators)
    {
        return false;
    }
    if (!candidate->judgement)
    {
        candidate->judgement = Session::Judge(candidate->record, SubjectOf(session));
    }
    return *candidate->judgement == Session::Judgement::VALID;
}

/// Null for nil, and null if neither is valid.
Candidate* SelectBest(SparkleManager::Impl const& session, Candidate* a, Candidate* b)
{
    bool const isValidA = Validate(session, a);
    bool const isValidB = Validate(session, b);
    if (!isValidA || !isValidB)
    {
        return isValidA ? a : isValidB ? b : nullptr;
    }
    std::optional<Session::Preference> const byType =
        Session::PreferByVersionAndType(a->record, b->record, SubjectOf(session));
    if (byType)
    {
        return &byType->item == &a->record ? a : b;
    }
    Write(Sites::SAME_PRIORITIES, "!!! ACHTUNG !!! Detected two SUAppcastItem's with same priorities!");
    return &Session::PreferByDownload(a->record, b->record).item == &a->record ? a : b;
}

/// Keeps the best of the items that are offered one after the other.
class Contest
{
  public:
    explicit Contest(SparkleManager::Impl const& session) : m_session(session) {}

    /// nil if no offered item was valid.
    SUAppcastItem* Best() const { return m_best ? m_best->item : nil; }

    /// Opens no separate pool, which would cost as much as the rest: the answer's pool keeps the getters' temporary
    /// objects.
    void Offer(SUAppcastItem* item)
    {
        std::optional<Candidate>& place = m_best && m_best == &*m_places[0] ? m_places[1] : m_places[0];
        m_best = SelectBest(m_session, m_best, &place.emplace(item, m_text));
    }

  private:
    SparkleManager::Impl const& m_session;
    QString m_text;
    std::optional<Candidate> m_places[2]; ///< the best item and its challenger
    Candidate* m_best = nullptr;
};

void OfferItems(SparkleManager::Impl const& session, NSArray* items, Contest& contest)
{
    for (SUAppcastItem* item in items)
    {
        session.PrintDebugSUAppcastItemInfo(item, "");
        contest.Offer(item);
    }
}

/// Offers those deltas of the best full item that start from the running version.
void OfferDeltas(SparkleManager::Impl const& session, NSDictionary* deltas, Contest& contest)
{
    for (NSString* key in [deltas keyEnumerator])
    {
        SUAppcastItem* const delta = [deltas objectForKey:key];
        session.PrintDebugSUAppcastItemInfo(delta, "delta from " + ToUtf8(key));
        if (Session::StartsFromRunningVersion(ToQString(key), SubjectOf(session)))
        {
            contest.Offer(delta);
        }
    }
}

} // namespace

Session::UpdateType SparkleManager::Impl::DetectUpdateType(SUAppcastItem* item) const
{
    @autoreleasepool
    {
        QString text;
        return Candidate(item, text).record.Type();
    }
}

QVariantMap SparkleManager::Impl::DetectExtensions(SUAppcastItem* item) const
{
    QVariantMap result;
    @autoreleasepool
    {
        NSDictionary* const properties = [item propertiesDictionary];
        for (NSString* name in properties)
        {
            std::optional<QString> const key = Session::ExtensionKey(ToQString(name));
            id const value = key ? [properties objectForKey:name] : nil;
            if (!value)
            {
                continue;
            }
            // Deliberate: a value that is not text keeps its key, with an invalid variant.
            QVariant text;
            if ([value isKindOfClass:[NSString class]])
            {
                text = ToQString(value);
            }
            else
            {
                Write(Sites::EXTENSION_TYPE, "Unknown extension type for key = " + key->toStdString());
            }
            result[*key] = text;
        }
    }
    return result;
}

bool SparkleManager::Impl::ValidateAppcastItem(SUAppcastItem* item) const
{
    @autoreleasepool
    {
        QString text;
        Candidate candidate(item, text);
        return Validate(*this, item ? &candidate : nullptr);
    }
}

SUAppcastItem* SparkleManager::Impl::SelectBestValidAppcastItem(SUAppcastItem* a, SUAppcastItem* b) const
{
    @autoreleasepool
    {
        QString text;
        Candidate candidateA(a, text);
        Candidate candidateB(b, text);
        Candidate const* const best = SelectBest(*this, a ? &candidateA : nullptr, b ? &candidateB : nullptr);
        return best ? best->item : nil;
    }
}

SUAppcastItem* SparkleManager::Impl::SelectBestOfAppcast(SUAppcast* appcast)
{
    Write(Sites::BEST_ITEM, std::string("Current state = ") + Session::StateName(state));
    Foundation::Retained<SUAppcastItem> best;
    @autoreleasepool
    {
        // Only a dictionary made for this answer may retain a delta: the answer must outlive the pool.
        best = Foundation::Retained<SUAppcastItem>::Share(ChooseFromAppcast(appcast));
    }
    return best.Autorelease();
}

SUAppcastItem* SparkleManager::Impl::ChooseFromAppcast(SUAppcast* appcast)
{
    NSArray* const items = [appcast items];
    if (!items || !EnsureContext() || !EnsureLocalVersion() || !EnsureVersionOperators())
    {
        bestItemIsDelta = false;
        return nil;
    }
    // Held during the choice: an operator may replace the context.
    std::shared_ptr<SparkleUpdateContext> const lent = context;
    Contest contest(*this);
    OfferItems(*this, items, contest);
    if (!contest.Best())
    {
        bestItemIsDelta = false;
        Write(Sites::BEST_ITEM_NOT_DETECTED, "Best valid SUAppcastItem was NOT detected.");
        return nil;
    }
    // If an answer was a delta, the framework asks next for a full item as the fallback.
    if (!bestItemIsDelta)
    {
        OfferDeltas(*this, [contest.Best() deltaUpdates], contest);
    }
    SUAppcastItem* const best = contest.Best();
    bestItemIsDelta = [best isDeltaUpdate];
    Write(Sites::BEST_ITEM_DETECTED, "Best valid SUAppcastItem was detected:");
    PrintDebugSUAppcastItemInfo(best, "");
    return best;
}

void SparkleManager::Impl::PrintDebugSUAppcastItemInfo(SUAppcastItem* item, std::string const& prefix) const
{
    // The ten sites are in one file, so one check covers all; the texts cost more than the choice.
    if (!IsEnabled(Sites::DUMP_ITEM))
    {
        return;
    }
    @autoreleasepool
    {
        Write(Sites::DUMP_ITEM, "SUAppcastItem " + prefix);
        Write(Sites::DUMP_TITLE, "  * title = " + ToUtf8([item title]));
        Write(Sites::DUMP_DATE, "  * dateString = " + ToUtf8([item dateString]));
        Write(Sites::DUMP_DESCRIPTION, "  * itemDescription = " + ToUtf8([item itemDescription]));
        Write(Sites::DUMP_MINIMUM_SYSTEM, "  * minimumSystemVersion = " + ToUtf8([item minimumSystemVersion]));
        Write(Sites::DUMP_MAXIMUM_SYSTEM, "  * maximumSystemVersion = " + ToUtf8([item maximumSystemVersion]));
        Write(Sites::DUMP_FILE_URL, "  * fileURL = " + ToUtf8([[item fileURL] absoluteString]));
        Write(Sites::DUMP_LENGTH, "  * contentLength = " + std::to_string([item contentLength]));
        Write(Sites::DUMP_VERSION, "  * versionString = " + ToUtf8([item versionString]));
        Write(Sites::DUMP_UPDATE_TYPE,
              std::string("  * UpdateType = ") + Session::UpdateTypeName(DetectUpdateType(item)));
    }
}

} // namespace Pelnar::App
