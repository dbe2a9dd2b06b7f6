// AppcastSelection.mm: the session's answers about feed items: their kind, their extensions, whether one may be offered
// and which is the best.
// Thread: the Qt main thread. Ownership: the framework owns items; copies of their properties live no longer than one
// answer.

#include "App/UpdateChecker/SparkleImpl/SparkleManager/SparkleManager_p.h"

#include "App/UpdateChecker/SparkleImpl/Choice/Contest.h"
#include "App/UpdateChecker/SparkleImpl/Choice/Extensions.h"
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

/// An item during one answer: read once, for any number of rules.
class Candidate final : public Session::IItemSource, public Session::ItemRecord
{
  public:
    explicit Candidate(SUAppcastItem* feedItem) : ItemRecord(static_cast<IItemSource const&>(*this)), item(feedItem) {}
    Candidate(Candidate const&) = delete;
    Candidate& operator=(Candidate const&) = delete;

    QString MinimumSystemVersion() const override { return ToQString([item minimumSystemVersion]); }
    QString MaximumSystemVersion() const override { return ToQString([item maximumSystemVersion]); }
    QString VersionString() const override { return ToQString([item versionString]); }
    QString FileAddress() const override { return ToQString([[item fileURL] absoluteString]); }
    QString DateString() const override { return ToQString([item dateString]); }
    std::uint64_t ContentLength() const override { return [item contentLength]; }
    bool IsDelta() const override { return [item isDeltaUpdate]; }

    SUAppcastItem* const item;
};

/// nil for null.
SUAppcastItem* ItemOf(Session::ItemRecord const* record)
{
    return record ? static_cast<Candidate const*>(record)->item : nil;
}

/// Asked for once in a process. If the text does not parse, system bounds are ignored for the rest of the process.
Core::Version const& SystemVersion()
{
    static Core::Version const version = Session::VersionFromStringNoexcept(Util::OSVersion());
    return version;
}

/// The session's guards and records around a contest among \a items.
class AppcastContest final : public Session::IContestHost
{
  public:
    explicit AppcastContest(SparkleManager::Impl const& session, NSArray* items = nil)
        : m_session(session), m_items(items)
    {
    }

    bool CanJudge() const override
    {
        SystemVersion();
        return m_session.EnsureContext() && m_session.EnsureLocalVersion() && m_session.EnsureVersionOperators();
    }

    Session::SelectionSubject Subject() const override
    {
        SparkleUpdateContext const& context = *m_session.context;
        return {SystemVersion(), context.localVersion, context.versionLess, context.versionEqual};
    }

    /// Opens no separate pool, which would cost as much as the rest: the answer's pool keeps the getters' temporary
    /// objects.
    void OfferItems(Session::Contest& contest) override
    {
        for (SUAppcastItem* item in m_items)
        {
            m_session.PrintDebugSUAppcastItemInfo(item, "");
            contest.Offer(Read(item, contest));
        }
    }

    void OfferDeltas(Session::ItemRecord& full, Session::Contest& contest) override
    {
        NSDictionary* const deltas = [ItemOf(&full) deltaUpdates];
        for (NSString* key in [deltas keyEnumerator])
        {
            SUAppcastItem* const delta = [deltas objectForKey:key];
            m_session.PrintDebugSUAppcastItemInfo(delta, "delta from " + ToUtf8(key));
            contest.OfferDelta(ToQString(key), Read(delta, contest));
        }
    }

    void OnPreferred(Session::Preference const& preferred, Session::ItemRecord&) override
    {
        if (preferred.rule >= Session::PreferenceRule::SAME_ADDRESS)
        {
            Write(Sites::SAME_PRIORITIES, "!!! ACHTUNG !!! Detected two SUAppcastItem's with same priorities!");
        }
    }

  private:
    Session::ItemRecord& Read(SUAppcastItem* item, Session::Contest const& contest)
    {
        bool const isFirstTaken = m_places[0] && contest.Best() == &*m_places[0];
        return m_places[isFirstTaken ? 1 : 0].emplace(item);
    }

    SparkleManager::Impl const& m_session;
    NSArray* const m_items;
    std::optional<Candidate> m_places[2]; ///< the best item and its challenger
};

} // namespace

Session::UpdateType SparkleManager::Impl::DetectUpdateType(SUAppcastItem* item) const
{
    @autoreleasepool
    {
        return Candidate(item).Type();
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
        Candidate candidate(item);
        return Session::IsValid(item ? &candidate : nullptr, AppcastContest(*this));
    }
}

SUAppcastItem* SparkleManager::Impl::SelectBestValidAppcastItem(SUAppcastItem* a, SUAppcastItem* b) const
{
    @autoreleasepool
    {
        Candidate candidateA(a);
        Candidate candidateB(b);
        AppcastContest host(*this);
        return ItemOf(Session::BetterOf(a ? &candidateA : nullptr, b ? &candidateB : nullptr, host));
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
    AppcastContest host(*this, items);
    Session::Contest contest(host);
    if (!contest.Run(bestItemIsDelta ? Session::PreviousAnswer::DELTA : Session::PreviousAnswer::NONE))
    {
        bestItemIsDelta = false;
        Write(Sites::BEST_ITEM_NOT_DETECTED, "Best valid SUAppcastItem was NOT detected.");
        return nil;
    }
    SUAppcastItem* const best = ItemOf(contest.Best());
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
