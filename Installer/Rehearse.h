// Rehearse.h: does beside an installed bundle what an update will do there, with folders that are made for it, so that
// what this system refuses is known before anything is downloaded.
// Thread: the process' only one. Ownership: descriptors stay the caller's.
#pragma once

#include "Engine/core/payload/UpdateJob.h"

namespace Pelnar::Installer
{

struct RehearseDescriptors
{
    int parent;
    int staging; ///< an empty staging folder; what is put there stays for its owner to remove
    int host;    ///< a pidfd
};

/// Throws UpdateRefusal with what an update would meet, but LockTimedOut sooner. This process is confined afterwards.
void Rehearse(Engine::RehearseJob const& job, RehearseDescriptors const& descriptors);

} // namespace Pelnar::Installer
