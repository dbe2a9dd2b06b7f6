#include "tests/session/selection/SelectionFixture.h"

#include "App/UpdateChecker/SparkleImpl/SparkleManager/SparkleManager_p.h"
#include "Foundation/FoundationText.h"
#include "tests/session/ScriptedSparkleObjects.h"
#include "tests/session/selection/PlainSelection.h"

#include <utility>

namespace Pelnar::Testing
{
namespace
{

SUAppcastItem* ObjectOrNil(SelectionFixture::Item const& item) { return item ? ObjectOf(*item) : nil; }

} // namespace

struct SelectionFixture::Session
{
    App::SparkleManager::Impl impl;
};

SelectionFixture::SelectionFixture() : m_session(std::make_unique<Session>()) {}

SelectionFixture::~SelectionFixture() = default;

void SelectionFixture::SetContext(std::shared_ptr<App::SparkleUpdateContext> context)
{
    m_session->impl.context = std::move(context);
}

void SelectionFixture::SetState(App::Session::State state) { m_session->impl.state = state; }

bool& SelectionFixture::BestItemIsDelta() { return m_session->impl.bestItemIsDelta; }

QStringList SelectionFixture::PropertyNamesInOrder(ScriptedItem const& item)
{
    QStringList names;
    @autoreleasepool
    {
        for (NSString* name in [ObjectOf(item) propertiesDictionary])
        {
            names.append(Foundation::ToQString(name));
        }
    }
    return names;
}

App::Session::UpdateType SelectionFixture::DetectUpdateType(ScriptedItem const& item) const
{
    return m_session->impl.DetectUpdateType(ObjectOf(item));
}

QVariantMap SelectionFixture::DetectExtensions(ScriptedItem const& item) const
{
    return m_session->impl.DetectExtensions(ObjectOf(item));
}

void SelectionFixture::PrintDebugInfo(ScriptedItem const& item, std::string const& prefix) const
{
    m_session->impl.PrintDebugSUAppcastItemInfo(ObjectOf(item), prefix);
}

bool SelectionFixture::Validate(Item const& item) const
{
    return m_session->impl.ValidateAppcastItem(ObjectOrNil(item));
}

SelectionFixture::Item SelectionFixture::SelectBest(Item const& a, Item const& b) const
{
    return ItemOf(m_session->impl.SelectBestValidAppcastItem(ObjectOrNil(a), ObjectOrNil(b)));
}

SelectionFixture::Item SelectionFixture::SelectBestOfAppcast(ScriptedAppcast const& appcast)
{
    @autoreleasepool
    {
        return ItemOf(m_session->impl.SelectBestOfAppcast(MakeAppcast(appcast)));
    }
}

bool SelectionFixture::AnswersWithALivingItem(ScriptedAppcast const& appcast, ScriptedItem const& expected)
{
    @autoreleasepool
    {
        SUAppcastItem* const answer = m_session->impl.SelectBestOfAppcast(MakeAppcast(appcast));
        return answer && !expected.IsGone() && ItemOf(answer) == expected;
    }
}

bool SelectionFixture::ValidatePlainly(Item const& item) const
{
    return Plain::ValidateAppcastItem(m_session->impl, ObjectOrNil(item));
}

SelectionFixture::Item SelectionFixture::SelectBestPlainly(Item const& a, Item const& b) const
{
    return ItemOf(Plain::SelectBestValidAppcastItem(m_session->impl, ObjectOrNil(a), ObjectOrNil(b)));
}

SelectionFixture::Item SelectionFixture::SelectBestOfAppcastPlainly(ScriptedAppcast const& appcast)
{
    @autoreleasepool
    {
        return ItemOf(Plain::SelectBestOfAppcast(m_session->impl, MakeAppcast(appcast)));
    }
}

} // namespace Pelnar::Testing
