// HostRequests_p.h: what the update checker passes on from a host to the engine. Hosts call the functions of the public
// headers beside this one, which load the engine first.
// Thread: the Qt main thread. Ownership: none.
#pragma once

#include <Pelnar/AutomaticDownloads.h>

#include <string>
#include <vector>

namespace Pelnar::Engine
{

/// See Pelnar::ConfirmGoodStart.
__attribute__((visibility("default"))) void ConfirmStart();
/// See Pelnar::UnchangedFeedDays.
__attribute__((visibility("default"))) int DaysOfUnchangedFeed();
/// See Pelnar::SetRelaunchArguments.
[[nodiscard]] __attribute__((visibility("default"))) bool
KeepRelaunchArguments(std::vector<std::string> const& arguments);
/// See Pelnar::AutomaticDownloads and Pelnar::SetAutomaticDownloads.
__attribute__((visibility("default"))) Pelnar::AutomaticDownload WishedDownloads();
__attribute__((visibility("default"))) void WishDownloads(Pelnar::AutomaticDownload wish);

} // namespace Pelnar::Engine
