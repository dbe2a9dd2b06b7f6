// HelperFormatsFuzz.cpp: any bytes as a job, as a program's arguments, as a swap journal, as an installation record and
// as a line of the helper's report. Every accepted value has exactly one encoding.

#include "Engine/core/helper/HelperReport.h"
#include "Engine/core/helper/InstallRecord.h"
#include "Engine/core/helper/RelaunchArguments.h"
#include "Engine/core/helper/SwapJournal.h"
#include "Engine/core/helper/UpdateJob.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace
{

using namespace Pelnar::Engine;

void Require(bool holds)
{
    if (!holds)
    {
        std::abort();
    }
}

bool IsName(std::string const& name)
{
    return !name.empty() && name != "." && name != ".." && name.find('/') == std::string::npos &&
           name.find('\0') == std::string::npos;
}

void CheckJob(std::string_view bytes)
{
    auto const job = DecodeUpdateJob(bytes);
    if (!job)
    {
        return;
    }
    Require(EncodeUpdateJob(*job) == bytes && bytes.size() <= UPDATE_JOB_MAX_BYTES);
    if (auto const* install = std::get_if<InstallJob>(&*job))
    {
        Require(IsName(install->targetName) && IsName(install->stagingName) && IsName(install->stagedName));
        Require(install->targetPath.empty() || install->targetPath[0] == '/');
        Require(install->relaunchPath.empty() || install->relaunchPath[0] == '/');
    }
    if (auto const* prepare = std::get_if<PrepareJob>(&*job))
    {
        Require(IsName(prepare->bundleName) && prepare->publicKeys.Texts().size() <= TrustedKeys::MOST_KEYS);
    }
    if (auto const* recover = std::get_if<RecoverJob>(&*job))
    {
        Require(IsName(recover->targetName));
    }
    if (auto const* rehearse = std::get_if<RehearseJob>(&*job))
    {
        Require(IsName(rehearse->targetName));
    }
}

void CheckJournal(std::string_view bytes)
{
    auto const journal = DecodeSwapJournal(bytes);
    if (journal)
    {
        Require(EncodeSwapJournal(*journal) == bytes && IsName(journal->stagingName) && IsName(journal->stagedName));
    }
}

void CheckRecord(std::string_view bytes)
{
    auto const record = DecodeInstallRecord(bytes);
    if (record)
    {
        Require(EncodeInstallRecord(*record) == bytes && bytes.size() <= INSTALL_RECORD_MAX_BYTES);
        Require(record->attempts > 0 && record->fromVersion != record->toVersion);
        for (HelperLife const helper : {HelperLife::Runs, HelperLife::Ended})
        {
            Require(JudgePastInstallation(*record, record->toVersion, helper) == PastInstallation::Over);
        }
    }
}

void CheckArguments(std::string_view bytes)
{
    auto const arguments = DecodeRelaunchArguments(bytes);
    if (arguments)
    {
        Require(EncodeRelaunchArguments(*arguments) == bytes && !FaultOfRelaunchArguments(*arguments));
    }
}

void CheckReport(std::string_view line)
{
    auto const report = DecodeHelperReport(line);
    if (report)
    {
        std::string const again = EncodeHelperReport(*report);
        Require(again == std::string(line) + '\n' && again.size() <= HELPER_REPORT_MAX_BYTES);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    std::string_view const bytes(reinterpret_cast<char const*>(data), size);
    CheckJob(bytes);
    CheckJournal(bytes);
    CheckRecord(bytes);
    CheckArguments(bytes);
    CheckReport(bytes);
    return 0;
}
