#include "tests/session/selection/PlainSelection.h"

#include "App/UpdateChecker/SparkleImpl/Choice/LogSites.h"
#include "App/UpdateChecker/SparkleImpl/Choice/VersionText.h"
#include "App/UpdateChecker/SparkleImpl/UpdaterSparkle/SparkleUpdateContext.h"
#include "HostFramework/OSVersion.h"
#include "HostFramework/VersionText.h"

#include <QDate>
#include <QUrl>

namespace Pelnar::Testing::Plain
{

using App::SparkleManager;
using App::SparkleUpdateContext;
using App::Session::UpdateType;
using App::Session::VersionFromStringNoexcept;
using Core::Version;

namespace Sites = App::Session::Sites;

namespace
{

QString Text(NSString* text) { return QString::fromUtf8([text UTF8String]); }

QUrl Address(NSURL* url) { return QUrl(Text([url absoluteString])); }

QDate Date(NSString* text) { return QDate::fromString(Text(text), Qt::TextDate); }

bool FitsTheSystem(SparkleUpdateContext const& context, SUAppcastItem* item)
{
    static Version const osVersion = VersionFromStringNoexcept(Util::OSVersion());
    if (!osVersion.IsValid())
    {
        return true;
    }
    QString const minimumText = Text([item minimumSystemVersion]);
    Version const minimum = VersionFromStringNoexcept(minimumText);
    if (!minimumText.isEmpty() && minimum.IsValid() && context.versionLess(osVersion, minimum))
    {
        return false;
    }
    QString const maximumText = Text([item maximumSystemVersion]);
    Version const maximum = VersionFromStringNoexcept(maximumText);
    return maximumText.isEmpty() || !maximum.IsValid() || !context.versionLess(maximum, osVersion);
}

} // namespace

UpdateType DetectUpdateType(SUAppcastItem* item)
{
    @autoreleasepool
    {
        if ([item isDeltaUpdate])
        {
            return UpdateType::DELTA;
        }
        QString const fileName = Address([item fileURL]).fileName(QUrl::FullyDecoded);
        if (fileName.indexOf(QStringLiteral(".sparkle_guided.")) >= 0)
        {
            return UpdateType::INSTALLER;
        }
        if (fileName.indexOf(QStringLiteral(".sparkle_interactive.")) >= 0)
        {
            return UpdateType::INSTALLER;
        }
        return UpdateType::BUNDLE;
    }
}

bool ValidateAppcastItem(SparkleManager::Impl const& session, SUAppcastItem* item)
{
    @autoreleasepool
    {
        if (!session.EnsureContext() || !session.EnsureLocalVersion())
        {
            return false;
        }
        bool const hasOperators = session.EnsureVersionOperators();
        if (!item)
        {
            return false;
        }
        if (!hasOperators)
        {
            return false;
        }
        SparkleUpdateContext const& context = *session.context;
        if (!FitsTheSystem(context, item))
        {
            return false;
        }
        Version const version = VersionFromStringNoexcept(Text([item versionString]));
        if (!version.IsValid())
        {
            return false;
        }
        if (context.versionLess(version, context.localVersion) || context.versionEqual(version, context.localVersion))
        {
            return false;
        }
        if (!Address([item fileURL]).isValid())
        {
            return false;
        }
        if (Date([item dateString]).isValid())
        {
            return false;
        }
        return [item contentLength] != 0;
    }
}

SUAppcastItem* SelectBestValidAppcastItem(SparkleManager::Impl const& session, SUAppcastItem* a, SUAppcastItem* b)
{
    @autoreleasepool
    {
        bool const validA = ValidateAppcastItem(session, a);
        bool const validB = ValidateAppcastItem(session, b);
        if (!validA || !validB)
        {
            return validA ? a : validB ? b : nil;
        }
        SparkleUpdateContext const& context = *session.context;
        Version const versionA = Util::VersionFromString(Text([a versionString]), QStringLiteral("."));
        Version const versionB = Util::VersionFromString(Text([b versionString]), QStringLiteral("."));
        if (context.versionLess(versionA, versionB))
        {
            return b;
        }
        if (context.versionLess(versionB, versionA))
        {
            return a;
        }
        bool const isMajor = versionA.Major() > context.localVersion.Major();
        QList<UpdateType> const priorities = isMajor ? App::Session::UPDATE_TYPE_PRIORITIES_FOR_MAJOR_UPDATE
                                                     : App::Session::UPDATE_TYPE_PRIORITIES_FOR_MINOR_UPDATE;
        int const priorityA = priorities.indexOf(DetectUpdateType(a));
        int const priorityB = priorities.indexOf(DetectUpdateType(b));
        if (priorityA != priorityB)
        {
            return priorityA < priorityB ? a : b;
        }
        Core::Write(Sites::SAME_PRIORITIES, "!!! ACHTUNG !!! Detected two SUAppcastItem's with same priorities!");
        if (Address([a fileURL]) == Address([b fileURL]))
        {
            return a;
        }
        QDate const dateA = Date([a dateString]);
        QDate const dateB = Date([b dateString]);
        if (dateA < dateB)
        {
            return b;
        }
        if (dateB < dateA)
        {
            return a;
        }
        return [a contentLength] <= [b contentLength] ? a : b;
    }
}

SUAppcastItem* SelectBestOfAppcast(SparkleManager::Impl& session, SUAppcast* appcast)
{
    Core::Write(Sites::BEST_ITEM, std::string("Current state = ") + App::Session::StateName(session.state));
    @autoreleasepool
    {
        NSArray* const items = [appcast items];
        if (!items || !session.EnsureContext() || !session.EnsureLocalVersion() || !session.EnsureVersionOperators())
        {
            session.bestItemIsDelta = false;
            return nil;
        }
        SUAppcastItem* best = nil;
        for (SUAppcastItem* item in items)
        {
            session.PrintDebugSUAppcastItemInfo(item, "");
            best = SelectBestValidAppcastItem(session, best, item);
        }
        if (!best)
        {
            session.bestItemIsDelta = false;
            Core::Write(Sites::BEST_ITEM_NOT_DETECTED, "Best valid SUAppcastItem was NOT detected.");
            return nil;
        }
        if (!session.bestItemIsDelta)
        {
            NSDictionary* const deltas = [best deltaUpdates];
            for (NSString* key in [deltas keyEnumerator])
            {
                SUAppcastItem* const delta = [deltas objectForKey:key];
                session.PrintDebugSUAppcastItemInfo(delta, "delta from " + Text(key).toStdString());
                Version const from = VersionFromStringNoexcept(Text(key));
                if (!from.IsValid())
                {
                    continue;
                }
                if (session.context->versionEqual(session.context->localVersion, from))
                {
                    best = SelectBestValidAppcastItem(session, best, delta);
                }
            }
        }
        session.bestItemIsDelta = [best isDeltaUpdate];
        Core::Write(Sites::BEST_ITEM_DETECTED, "Best valid SUAppcastItem was detected:");
        session.PrintDebugSUAppcastItemInfo(best, "");
        return best;
    }
}

} // namespace Pelnar::Testing::Plain
