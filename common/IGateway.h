// IGateway.h: the interface through which the update manager asks the host to run something that the user will see.
//
//     class PatientGateway : public Pelnar::ExternalStimulus::IGateway
//     {
//     public:
//         void ProposeAction(Pelnar::ExternalStimulus::Action const& action) override { m_waiting = action; }
//         void CancelActions(std::string const& id) override
//         {
//             if (m_waiting.id == id)
//             {
//                 m_waiting = {};
//             }
//         }
//         /// The person has finished what must not be disturbed.
//         void Grant()
//         {
//             if (std::function<void()> const callback = std::exchange(m_waiting, {}).callback)
//             {
//                 callback();
//             }
//         }
//
//     private:
//         Pelnar::ExternalStimulus::Action m_waiting;
//     };
//
// Thread: the Qt main thread. Ownership: held by std::shared_ptr. An action's callback may outlive the object that
// proposed it, and is safe to call then. A gateway may destroy its proposer, and stays alive until its call ends.
#pragma once

#include "common/Export.h"

#include <functional>
#include <string>

namespace Pelnar::ExternalStimulus
{

/// A request to run something that the user will see.
struct Action
{
    std::string id;                 ///< names the kind of request
    std::function<void()> callback; ///< runs when the host grants the request; may be empty
};

class PELNAR_EXPORT IGateway
{
public:
    virtual ~IGateway() = default;
    /// Runs \a action's callback now, later or never, as the host chooses. Run it at most once. Nothing checks this,
    /// and each run of the update dialog's callback shows the dialog while its manager lives.
    virtual void ProposeAction(Action const& action) = 0;
    /// Discards every action named \a id that has not run yet.
    virtual void CancelActions(std::string const& id) = 0;
};

} // namespace Pelnar::ExternalStimulus
