// UpdateRunFixture.h: an update of App.app from 5.0 to 5.1 that a test drives step by step.
// Thread: main. Ownership: the fixture owns the run.
#pragma once

#include "Engine/core/update/UpdateRun.h"
#include "tests/support/DialogDriver.h"
#include "tests/update/ScriptedUpdate.h"

namespace Pelnar::Testing
{

class UpdateRunTest : public UpdateFixture
{
protected:
    /// Starts the run and lets it come to its first wait.
    void Start(Engine::CheckKind kind, std::vector<Engine::UpdateCandidate> candidates)
    {
        run = std::make_unique<Engine::UpdateRun>(kind, std::move(candidates), settings, host, windows, parts,
                                                  [this](Engine::UpdateEnd const& told)
                                                  {
                                                      end = told;
                                                      notes.push_back("end");
                                                  });
        std::size_t const before = notes.size();
        run->Start();
        ASSERT_TRUE(WaitFor([this, before] { return notes.size() > before; }));
    }

    void StartInteractive() { Start(Engine::CheckKind::Interactive, {{Item("5.1"), {0, std::nullopt}}}); }

    void StartSilent()
    {
        settings.automaticDownload = Engine::AutomaticDownload::On;
        Start(Engine::CheckKind::Background, {{Item("5.1"), {0, std::nullopt}}});
    }

    void StartWithDelta(Engine::CheckKind kind)
    {
        Start(kind, {{Delta("5.1"), {0, 0}}, {Item("5.1"), {0, std::nullopt}}});
    }

    /// Until the question whether it should be installed, or until the helper waits for the application's end.
    void PrepareUpdate()
    {
        parts.FinishDownload();
        parts.FinishPreparation();
    }

    void Agree() { windows.Choose(Engine::UpdateChoice::InstallUpdate); }

    /// The notes since the last call.
    Notes Since()
    {
        Notes const since(notes.begin() + static_cast<std::ptrdiff_t>(seen), notes.end());
        seen = notes.size();
        return since;
    }

    [[nodiscard]] bool HasStaging() const { return Installed() == Notes{"staging", "App.app"}; }

    std::unique_ptr<Engine::UpdateRun> run;
    std::optional<Engine::UpdateEnd> end;
    std::size_t seen = 0;
};

} // namespace Pelnar::Testing
