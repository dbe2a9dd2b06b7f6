// HostRequests_p.h: the calls of a host that the update checker passes on to the engine. Hosts call the functions of
// the public headers in this folder, which load the engine first.
// Thread: the Qt main thread.
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
/// See Pelnar::Channels and Pelnar::SetChannels.
__attribute__((visibility("default"))) std::vector<std::string> ListedChannels();
[[nodiscard]] __attribute__((visibility("default"))) bool ListChannels(std::vector<std::string> const& names);

} // namespace Pelnar::Engine
