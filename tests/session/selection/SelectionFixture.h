// SelectionFixture.h: a session that answers the appcast selection, and the plain implementation for comparison. Plain
// C++.
// Thread: the Qt main thread. Ownership: the fixture owns its session and shares the context.
#pragma once

#include "App/UpdateChecker/SparkleImpl/Choice/SessionState.h"
#include "App/UpdateChecker/SparkleImpl/Choice/UpdateType.h"
#include "App/UpdateChecker/SparkleImpl/UpdaterSparkle/SparkleUpdateContext.h"
#include "tests/session/ScriptedSparkle.h"

#include <QStringList>
#include <QVariantMap>

#include <memory>
#include <optional>
#include <string>

namespace Pelnar::Testing
{

class SelectionFixture
{
public:
    using Item = std::optional<ScriptedItem>; ///< without a value: nil

    SelectionFixture();
    ~SelectionFixture();
    SelectionFixture(SelectionFixture const&) = delete;
    SelectionFixture& operator=(SelectionFixture const&) = delete;

    void SetContext(std::shared_ptr<App::SparkleUpdateContext> context);
    void SetState(App::Session::State state);
    bool& BestItemIsDelta();

    /// The names of the item's attributes in the order of its dictionary.
    static QStringList PropertyNamesInOrder(ScriptedItem const& item);

    App::Session::UpdateType DetectUpdateType(ScriptedItem const& item) const;
    QVariantMap DetectExtensions(ScriptedItem const& item) const;
    void PrintDebugInfo(ScriptedItem const& item, std::string const& prefix) const;
    bool Validate(Item const& item) const;
    Item SelectBest(Item const& a, Item const& b) const;
    Item SelectBestOfAppcast(ScriptedAppcast const& appcast);
    /// True if the answer is \a expected and still alive when the caller gets it.
    bool AnswersWithALivingItem(ScriptedAppcast const& appcast, ScriptedItem const& expected);

    bool ValidatePlainly(Item const& item) const;
    Item SelectBestPlainly(Item const& a, Item const& b) const;
    Item SelectBestOfAppcastPlainly(ScriptedAppcast const& appcast);

private:
    struct Session;
    std::unique_ptr<Session> m_session;
};

} // namespace Pelnar::Testing
