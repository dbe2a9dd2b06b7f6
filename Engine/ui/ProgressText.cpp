#include "Engine/ui/ProgressText.h"

#include "Engine/core/faults/Sentence.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>

namespace Pelnar::Engine
{
namespace
{

constexpr quint64 SECONDS_PER_MINUTE = 60;
constexpr quint64 SECONDS_PER_HOUR = 3600;
constexpr quint64 MAX_SHOWN_HOURS = 1000;

int RoundedUp(quint64 seconds, quint64 unit)
{
    return static_cast<int>(seconds / unit + (seconds % unit == 0 ? 0 : 1));
}

} // namespace

QString SizeText(quint64 bytes)
{
    return SizeText(bytes, QLocale());
}

QString AmountText(UpdateProgress const& progress)
{
    if (progress.totalBytes == 0)
    {
        return SizeText(progress.doneBytes);
    }
    return QCoreApplication::translate("PelnarEngine_ProgressWindow", "%1 of %2",
                                       "Done and total size, for example: 1.5 MB of 40 MB")
        .arg(SizeText(std::min(progress.doneBytes, progress.totalBytes)), SizeText(progress.totalBytes));
}

QString RateText(UpdateProgress const& progress)
{
    if (progress.bytesPerSecond == 0)
    {
        return {};
    }
    return QCoreApplication::translate("PelnarEngine_ProgressWindow", "%1/s",
                                       "A size per second, for example: 1.5 MB/s")
        .arg(SizeText(progress.bytesPerSecond));
}

QString TimeLeftText(UpdateProgress const& progress)
{
    if (progress.bytesPerSecond == 0 || progress.totalBytes <= progress.doneBytes)
    {
        return {};
    }
    quint64 const seconds = (progress.totalBytes - progress.doneBytes - 1) / progress.bytesPerSecond + 1;
    if (seconds < SECONDS_PER_MINUTE)
    {
        int const count = RoundedUp(seconds, 1);
        return QCoreApplication::translate("PelnarEngine_ProgressWindow", "About %Ln second(s) left", "", count);
    }
    if (seconds <= SECONDS_PER_HOUR)
    {
        int const count = RoundedUp(seconds, SECONDS_PER_MINUTE);
        return QCoreApplication::translate("PelnarEngine_ProgressWindow", "About %Ln minute(s) left", "", count);
    }
    int const count = RoundedUp(std::min(seconds, MAX_SHOWN_HOURS * SECONDS_PER_HOUR), SECONDS_PER_HOUR);
    return QCoreApplication::translate("PelnarEngine_ProgressWindow", "About %Ln hour(s) left", "", count);
}

int DoneThousandths(UpdateProgress const& progress)
{
    quint64 const done = std::min(progress.doneBytes, progress.totalBytes);
    return static_cast<int>(1000.0 * static_cast<double>(done) / static_cast<double>(progress.totalBytes));
}

} // namespace Pelnar::Engine
