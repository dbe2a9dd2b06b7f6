#include "App/UpdateChecker/SparkleImpl/Choice/AppcastJudgement.h"

#include "App/UpdateChecker/SparkleImpl/Choice/VersionText.h"

namespace Pelnar::App::Session
{

Judgement Judge(ItemRecord& item, SelectionSubject const& subject)
{
    if (subject.systemVersion.IsValid())
    {
        // A bound that is missing or does not parse has no effect.
        if (item.MinimumSystem().IsValid() && subject.versionLess(subject.systemVersion, item.MinimumSystem()))
        {
            return Judgement::SYSTEM_TOO_OLD;
        }
        if (item.MaximumSystem().IsValid() && subject.versionLess(item.MaximumSystem(), subject.systemVersion))
        {
            return Judgement::SYSTEM_TOO_NEW;
        }
    }
    Core::Version const& version = item.Version();
    if (!version.IsValid())
    {
        return Judgement::VERSION_UNREADABLE;
    }
    if (subject.versionLess(version, subject.localVersion))
    {
        return Judgement::VERSION_OLDER;
    }
    if (subject.versionEqual(version, subject.localVersion))
    {
        return Judgement::VERSION_EQUAL;
    }
    if (!item.Address().isValid())
    {
        return Judgement::URL_INVALID;
    }
    // Deliberate: a date that can be read in this form is refused. The usual dates of feeds cannot.
    if (item.Date().isValid())
    {
        return Judgement::DATE_REFUSED;
    }
    return item.Length() == 0 ? Judgement::LENGTH_ZERO : Judgement::VALID;
}

std::optional<Preference> PreferByVersionAndType(ItemRecord& a, ItemRecord& b, SelectionSubject const& subject)
{
    Core::Version const& versionOfA = a.Version();
    Core::Version const& versionOfB = b.Version();
    if (subject.versionLess(versionOfA, versionOfB))
    {
        return Preference{b, PreferenceRule::NEWER_VERSION};
    }
    if (subject.versionLess(versionOfB, versionOfA))
    {
        return Preference{a, PreferenceRule::NEWER_VERSION};
    }
    QList<UpdateType> const& priorities = versionOfA.Major() > subject.localVersion.Major()
                                              ? UPDATE_TYPE_PRIORITIES_FOR_MAJOR_UPDATE
                                              : UPDATE_TYPE_PRIORITIES_FOR_MINOR_UPDATE;
    int const priorityOfA = priorities.indexOf(a.Type());
    int const priorityOfB = priorities.indexOf(b.Type());
    if (priorityOfA == priorityOfB)
    {
        return std::nullopt;
    }
    return Preference{priorityOfA < priorityOfB ? a : b, PreferenceRule::WANTED_TYPE};
}

Preference PreferByDownload(ItemRecord& a, ItemRecord& b)
{
    if (a.Address() == b.Address())
    {
        return {a, PreferenceRule::SAME_ADDRESS};
    }
    // Dates that do not parse are equal to each other, so for the usual dates this decides nothing.
    if (a.Date() < b.Date())
    {
        return {b, PreferenceRule::LATER_DATE};
    }
    if (b.Date() < a.Date())
    {
        return {a, PreferenceRule::LATER_DATE};
    }
    return {a.Length() <= b.Length() ? a : b, PreferenceRule::SMALLER_LENGTH};
}

bool StartsFromRunningVersion(QString const& deltaFrom, SelectionSubject const& subject)
{
    Core::Version const from = VersionFromStringNoexcept(deltaFrom);
    return from.IsValid() && subject.versionEqual(subject.localVersion, from);
}

} // namespace Pelnar::App::Session
