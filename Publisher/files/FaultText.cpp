#include "Publisher/files/FaultText.h"

#include "Engine/core/faults/FaultTable.h"
#include "Publisher/Console.h"

#include <array>
#include <cerrno>
#include <cstring>

namespace Pelnar::Publisher
{
namespace
{

using Engine::DeltaError;
using Engine::ReleaseNotesRefusal;
using Engine::UpdateFault;

struct Words
{
    char const* what;
    char const* mend;
};

/// For each fault. Empty for those that occur only in an installation.
constexpr std::array WORDS = {
#define PELNAR_FAULT(name, number, code, blame, sentence, what, mend) Words{what, mend},
#include "Engine/core/faults/UpdateFaults.def"
};

char const* MendOfReading(int errorNumber)
{
    switch (errorNumber)
    {
    case EINVAL:
        return "check the files of both versions: plain files, folders and links only";
    case EACCES:
    case EPERM:
        return "check who may read it";
    }
    return "check the disk, and that nobody changes the files meanwhile";
}

Words WordsFor(Engine::DeltaOutcome const& outcome)
{
    switch (outcome.error)
    {
    case DeltaError::None:
    case DeltaError::TreeRefused: // the broken rule says more
        break;
    case DeltaError::NotADelta:
        return {"is not a delta in a known format", "make one with \"delta create\""};
    case DeltaError::Damaged:
        return {"is a damaged delta", "make it again with \"delta create\""};
    case DeltaError::OverLimits:
        return {"the delta asks for more than clients allow", "publish the full archive only"};
    case DeltaError::BaseDiffers:
        return {"the old version is not the one that the delta starts from", "give the bundle that it was made from"};
    case DeltaError::ResultDiffers:
        return {"the delta makes another bundle than it states", "make it again with \"delta create\""};
    case DeltaError::CannotRead:
        if (outcome.systemError == 0)
        {
            return {"has changed while this run worked", "run this again when nobody changes the file"};
        }
        return {"cannot be read", MendOfReading(outcome.systemError)};
    case DeltaError::CannotWrite:
        return {"cannot be written", "check the folder and the space on the disk"};
    }
    return {"", ""};
}

Problem ProblemWith(Words const& words, int errorNumber, QString const& name)
{
    QString what = QString::fromUtf8(words.what);
    if (errorNumber != 0)
    {
        what += u": "_s + QString::fromLocal8Bit(std::strerror(errorNumber));
    }
    return {name, what, QString::fromUtf8(words.mend)};
}

} // namespace

Problem ProblemOf(UpdateFault fault, int errorNumber, QString const& name)
{
    Words const words = WORDS.at(static_cast<size_t>(fault));
    return ProblemWith(*words.what ? words : Words{Engine::EntryOf(fault).name, ""}, errorNumber, name);
}

Problem ProblemOf(Engine::UpdateRefusal const& refusal, QString const& name)
{
    Problem problem = ProblemOf(refusal.Fault(), refusal.ErrorNumber(), name);
    if (!refusal.Entry().empty())
    {
        problem.what += u": \"%1\""_s.arg(QString::fromStdString(refusal.Entry()));
    }
    return problem;
}

RefusalCause CauseOf(UpdateFault fault)
{
    return Engine::EntryOf(fault).blame == Engine::Blame::Computer ? RefusalCause::Input : RefusalCause::Content;
}

Problem ProblemOf(Engine::DeltaOutcome const& outcome, QString const& name)
{
    QString const file = outcome.path.empty() ? name : name + u'/' + QString::fromStdString(outcome.path);
    bool const isLimit = Engine::FaultUnlessLimit(outcome.systemError, UpdateFault::None) != UpdateFault::None;
    if (outcome.error == DeltaError::TreeRefused || isLimit)
    {
        UpdateFault const fault = isLimit ? UpdateFault::SystemLimitReached : outcome.fault;
        return ProblemOf(fault, outcome.systemError, file);
    }
    return ProblemWith(WordsFor(outcome), outcome.systemError, file);
}

QString ReasonOf(ReleaseNotesRefusal refusal)
{
    switch (refusal)
    {
    case ReleaseNotesRefusal::None:
    case ReleaseNotesRefusal::TooLong:
        return u"they are too long"_s;
    case ReleaseNotesRefusal::TooDeep:
        return u"elements are nested too deeply"_s;
    case ReleaseNotesRefusal::TablesTooDeep:
        return u"tables are nested too deeply"_s;
    case ReleaseNotesRefusal::TooManyElements:
        return u"there are too many elements"_s;
    case ReleaseNotesRefusal::TooManyListItems:
        return u"there are too many list items"_s;
    case ReleaseNotesRefusal::TooMuchPreformatted:
        return u"there is too much preformatted text"_s;
    case ReleaseNotesRefusal::TooManyCells:
        return u"a table has too many cells"_s;
    case ReleaseNotesRefusal::TooMuchTableText:
        return u"there is too much text in tables"_s;
    case ReleaseNotesRefusal::BlockTooLong:
        return u"a paragraph is too long"_s;
    }
    return u"they are over a limit"_s;
}

} // namespace Pelnar::Publisher
