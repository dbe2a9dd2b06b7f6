// HelperSteps.h: the steps of an update in the helper, each ready to run with a fault.
#pragma once

#include "Engine/core/helper/SwapJournal.h"
#include "tests/installer/FaultChecks.h"
#include "tests/support/Sanitizers.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <iterator>

#include <sys/syscall.h>

namespace Pelnar::Testing
{

enum class Step
{
    Preparation,
    PreparationByADelta,
    PreparationFromATar,
    Installation,
    InstallationWithoutExchange,
    Recovery,
};

inline std::string StepName(Step step)
{
    switch (step)
    {
    case Step::Preparation:
        return "Preparation";
    case Step::PreparationByADelta:
        return "PreparationByADelta";
    case Step::PreparationFromATar:
        return "PreparationFromATar";
    case Step::Installation:
        return "Installation";
    case Step::InstallationWithoutExchange:
        return "InstallationWithoutExchange";
    case Step::Recovery:
        return "Recovery";
    }
    return {};
}

inline void PrintTo(Step step, std::ostream* out)
{
    *out << StepName(step);
}

inline bool IsPreparation(Step step)
{
    return step == Step::Preparation || step == Step::PreparationByADelta || step == Step::PreparationFromATar;
}

inline bool IsInstallation(Step step)
{
    return step == Step::Installation || step == Step::InstallationWithoutExchange;
}

/// The versions between which the step leads.
inline Versions VersionsOf(Step step)
{
    return step == Step::PreparationByADelta ? Versions::ForDeltas() : Versions();
}

enum class InstallOutcome
{
    Kept,
    NotKept,
};

/// A scene that stands right before a step.
class Subject
{
public:
    explicit Subject(Step step, InstallOutcome outcome = InstallOutcome::Kept) : scene(ArchiveFor(step)), m_step(step)
    {
        if (step == Step::PreparationByADelta)
        {
            WithBase(scene);
        }
        else if (!IsPreparation(step))
        {
            m_job = scene.PrepareForInstall();
            if (outcome == InstallOutcome::Kept)
            {
                UpdateScene::KeepRecord(m_job);
            }
            scene.Host().End();
        }
        if (step == Step::Recovery)
        {
            m_job.targetPath.clear();
            EXPECT_EQ(scene.Install(m_job).exitStatus, 0);
            scene.ReleaseStaging();
        }
    }

    HelperOutcome Run(CallVisitor const& visitor)
    {
        HelperStart start;
        start.atEveryCall = visitor;
        return Run(start);
    }

    HelperOutcome Run(HelperStart start)
    {
        switch (m_step)
        {
        case Step::Preparation:
        case Step::PreparationFromATar:
            return scene.Prepare(scene.MakePrepareJob(), start);
        case Step::PreparationByADelta:
            return scene.Prepare(DeltaJob(scene), start);
        case Step::InstallationWithoutExchange:
            start.atEveryCall = [visitor = start.atEveryCall](CallStop const& stop)
            {
                CallVerdict const verdict = visitor ? visitor(stop) : CallVerdict::GoOn();
                bool const isRefused = stop.call == SYS_renameat2 && verdict.kind == CallVerdict::Kind::GoOn;
                return isRefused ? CallVerdict::Fail(EINVAL) : verdict;
            };
            return scene.Install(m_job, start);
        case Step::Installation:
            return scene.Install(m_job, start);
        case Step::Recovery:
            return scene.Recover("2.0", start);
        }
        return {};
    }

    UpdateScene scene;

private:
    static std::string ArchiveFor(Step step)
    {
        static std::string const delta = DeltaToTheNextVersion();
        return step == Step::PreparationByADelta   ? delta
               : step == Step::PreparationFromATar ? MakeRecompressedArchive(MakeBundle("2.0"))
                                                   : MakeArchive(Container::Zip, MakeBundle("2.0"));
    }

    Step m_step;
    Engine::InstallJob m_job;
};

} // namespace Pelnar::Testing
