// RaceSteps.h: actions of another process at a place in the helper's life.
#pragma once

#include "Engine/core/helper/SwapJournal.h"
#include "tests/installer/FaultChecks.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace Pelnar::Testing
{

constexpr int SAMPLE_OF = 23;

inline int CallsOf(UpdateScene& scene, HelperOutcome (*run)(UpdateScene&, HelperStart const&))
{
    int calls = 0;
    HelperStart start;
    start.atEveryCall = [&calls](CallStop const& stop)
    {
        calls = stop.index + 1;
        return CallVerdict::GoOn();
    };
    EXPECT_EQ(run(scene, start).exitStatus, 0);
    return calls;
}

/// Does \a act right before the helper's call number \a place.
inline HelperStart ActAt(int place, std::function<void()> const& act)
{
    HelperStart start;
    start.atEveryCall = [place, act](CallStop const& stop)
    {
        if (stop.index == place)
        {
            act();
        }
        return CallVerdict::GoOn();
    };
    return start;
}

inline std::vector<int> Places(int calls)
{
    std::vector<int> places;
    for (int place = 0; place < calls; place += IsEveryPlaceWanted() ? 1 : SAMPLE_OF)
    {
        places.push_back(place);
    }
    return places;
}

/// Calls \a run for each place of a preparation. It returns false if the run ended before that place: its threads make
/// fewer calls when they wait less.
template <typename Run>
void AtPlacesOfAPreparation(HelperOutcome (*prepare)(UpdateScene&, HelperStart const&), Run const& run)
{
    UpdateScene traced;
    std::vector<int> const places = Places(CallsOf(traced, prepare));
    std::size_t met = 0;
    for (int const place : places)
    {
        SCOPED_TRACE(place);
        met += run(place) ? 1 : 0;
    }
    EXPECT_GE(met * 3, places.size() * 2) << "too few of the places were met";
}

inline HelperOutcome PrepareIn(UpdateScene& scene, HelperStart const& start)
{
    return scene.Prepare(scene.MakePrepareJob(), start);
}

inline std::string ArchivePath(UpdateScene const& scene)
{
    return scene.Downloads().Path() + "/update";
}

inline void ReplaceBy(std::string const& path, std::string const& bytes)
{
    std::ofstream(path + ".other") << bytes;
    std::filesystem::rename(path + ".other", path);
}

} // namespace Pelnar::Testing
