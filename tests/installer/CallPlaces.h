// CallPlaces.h: the places of a traced run, and a fault at each of them or at a sample.
// Thread: the tracer's.
#pragma once

#include "tests/installer/CallTracer.h"
#include "tests/support/EveryPlace.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <numeric>
#include <ostream>
#include <vector>

namespace Pelnar::Testing
{

/// A place in a run: the nth call of its kind, in all processes. Parallel processes and threads do not always take
/// turns in the same way, so the index of a call is less reliable.
struct CallPlace
{
    long call;
    int nth; ///< from 1
    std::int64_t answer;
};

inline std::ostream& operator<<(std::ostream& out, CallPlace const& place)
{
    return out << CallName(place.call) << " number " << place.nth;
}

/// Writes the place of every call to \a places, without answers.
inline CallVisitor RecordPlaces(std::vector<CallPlace>& places)
{
    return [&places, counts = std::map<long, int>()](CallStop const& stop) mutable
    {
        places.push_back({stop.call, ++counts[stop.call], 0});
        return CallVerdict::GoOn();
    };
}

/// Gives \a verdict at \a place, and the place's call to \a atPlace.
inline CallVisitor VerdictAt(
    CallPlace const& place, CallVerdict const& verdict,
    std::function<void(CallStop const&)> const& atPlace = [](CallStop const&) {})
{
    return [place, verdict, atPlace, count = 0](CallStop const& stop) mutable
    {
        if (stop.call != place.call || ++count != place.nth)
        {
            return CallVerdict::GoOn();
        }
        atPlace(stop);
        return verdict;
    };
}

/// Calls \a check with each place and each of \a rows; unless every place is wanted, with \a sample pairs of them.
/// \a check returns whether the fault took place.
template <typename Check>
void SweepPlaces(std::vector<CallPlace> const& places, std::size_t rows, std::size_t sample, Check const& check)
{
    std::size_t const pairs = places.size() * rows;
    // No common divisor with the number of rows, so that each row is used.
    std::size_t stride = IsEveryPlaceWanted() ? 1 : std::max<std::size_t>(pairs / sample, 1);
    while (std::gcd(stride, rows) != 1)
    {
        ++stride;
    }
    int runs = 0;
    int met = 0;
    for (std::size_t pair = stride / 2; pair < pairs; pair += stride)
    {
        CallPlace const& place = places[pair / rows];
        SCOPED_TRACE(testing::Message() << place << ", row " << pair % rows);
        ++runs;
        met += check(place, pair % rows) ? 1 : 0;
    }
    testing::Test::RecordProperty("places", static_cast<int>(places.size()));
    testing::Test::RecordProperty("runs", runs);
    testing::Test::RecordProperty("met", met);
    EXPECT_GT(met, 0) << "nothing was done to " << places.size() << " places";
    EXPECT_GE(met * 10, runs * 9) << "of so many runs too few met their place";
}

} // namespace Pelnar::Testing
