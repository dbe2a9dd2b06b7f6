#include "App/UpdateChecker/SparkleImpl/SparkleManager/VersionOrder_p.h"

#include "App/UpdateChecker/SparkleImpl/Choice/LogSites.h"
#include "App/UpdateChecker/SparkleImpl/SparkleManager/GuardedCall_p.h"
#include "HostFramework/VersionText.h"

namespace Pelnar::App::Session
{

int OrderOfVersions(QString const& versionA, QString const& versionB, VersionOperator const& less,
                    VersionOperator const& equal)
{
    int order = 0;
    std::optional<std::string> const failure = DiagnosticOf(
        [&]
        {
            QString const separator = QStringLiteral(".");
            Core::Version const a = Util::VersionFromString(versionA, separator);
            Core::Version const b = Util::VersionFromString(versionB, separator);
            // Deliberate: equality is checked first and has priority over the order.
            order = equal(a, b) ? 0 : less(a, b) ? -1 : 1;
        });
    if (failure)
    {
        // Deliberate: versions that cannot be compared count as equal; the framework's own comparator is not used.
        Core::Write(Sites::COMPARE_DIAGNOSTIC, *failure);
        Core::Write(Sites::COMPARE_VERSIONS,
                    "versionA=\"" + versionA.toStdString() + "\", versionB=\"" + versionB.toStdString() + "\"");
    }
    return order;
}

} // namespace Pelnar::App::Session
