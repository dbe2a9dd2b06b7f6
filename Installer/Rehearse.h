// Rehearse.h: does the steps of an update next to an installed bundle, with its own folders, so that a refusal of this
// system is known before a download.
#pragma once

#include "Engine/core/helper/UpdateJob.h"

namespace Pelnar::Installer
{

/// Throws UpdateRefusal with the error that an update would meet; LockTimedOut comes sooner. This process is confined
/// afterwards.
void Rehearse(Engine::RehearseJob const& job, Engine::RehearseDescriptors const& descriptors);

} // namespace Pelnar::Installer
