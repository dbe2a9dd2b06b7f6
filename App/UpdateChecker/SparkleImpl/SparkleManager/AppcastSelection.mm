// AppcastSelection.mm: the session's answers about feed items: their kind, their extensions, whether one may be offered
// and which is the best.
// Thread: the Qt main thread. Ownership: items belong to the framework; what is kept of one lives no longer than the
// answer that it is made for.

#include "App/UpdateChecker/SparkleImpl/SparkleManager/SparkleManager_p.h"

#include "App/UpdateChecker/SparkleImpl/SparkleManager/AppcastJudgement_p.h"
#include "App/UpdateChecker/SparkleImpl/SparkleManager/Extensions_p.h"
#include "App/UpdateChecker/SparkleImpl/SparkleManager/ItemRecord_p.h"
#include "App/UpdateChecker/SparkleImpl/SparkleManager/LogSites_p.h"
#include "App/UpdateChecker/SparkleImpl/SparkleManager/VersionText_p.h"
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

/// Every text goes through \a text, which the items of one answer share: most are parsed and forgotten.
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

/// An item for the length of one answer: read and judged once, however often the rules ask.
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

/// The guards run, and write their records, at every call; \a candidate is judged at the first. Null stands for nil.
bool Validate(SparkleManager::Impl const& session, Candidate* candidate)
{
    SystemVersion();
    if (!session.EnsureContext() || !session.EnsureLocalVersion())
    {
        return false;
    }
    // Deliberate: the operators are looked at, and missed on record, before a missing item is noticed.
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

/// Null for nil, and null when neither is valid.
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

/// Keeps the best of the items that it is offered one after the other.
class Contest
{
  public:
    explicit Contest(SparkleManager::Impl const& session) : m_session(session) {}

    /// nil when no offer was valid.
    SUAppcastItem* Best() const { return m_best ? m_best->item : nil; }

    /// Brings no pool of its own, which would cost as much as the rest: the answer's pool takes what the getters leave.
    void Offer(SUAppcastItem* item)
    {
        std::optional<Candidate>& place = m_best && m_best == &*m_places[0] ? m_places[1] : m_places[0];
        m_best = SelectBest(m_session, m_best, &place.emplace(item, m_text));
    }

  private:
    SparkleManager::Impl const& m_session;
    QString m_text;
    std::optional<Candidate> m_places[2]; ///< of the best and of its challenger
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
            // Deliberate: a value that is no text keeps its key, with an invalid variant.
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
        // A dictionary made for this answer may be all that keeps a delta: the answer has to outlive the pool.
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
    // Held for the length of the choice: an operator may replace the context.
    std::shared_ptr<SparkleUpdateContext> const lent = context;
    Contest contest(*this);
    OfferItems(*this, items, contest);
    if (!contest.Best())
    {
        bestItemIsDelta = false;
        Write(Sites::BEST_ITEM_NOT_DETECTED, "Best valid SUAppcastItem was NOT detected.");
        return nil;
    }
    // After an answer that was a delta, the framework asks for a full item to fall back on.
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
    // The ten sites stand in one file, so one answer is for all; the texts cost more than the choice.
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
