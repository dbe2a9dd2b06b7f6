// HostRequests.mm: the engine's answers to what a host asks or tells it.
#include <Pelnar/HostRequests_p.h>

#import "Engine/objc/SUUpdater_p.h"

#include "Engine/core/feed/ReleaseRules.h"
#include "Engine/core/update/KeptArguments.h"
#include "Engine/objc/BundleSettings_p.h"

#include <glog/logging.h>

namespace Pelnar::Engine
{

void ConfirmStart() { [[SUUpdater sharedUpdater] confirmGoodStart]; }

Pelnar::AutomaticDownload WishedDownloads()
{
    @autoreleasepool
    {
        return ReadAutomaticDownload() == AutomaticDownload::On ? Pelnar::AutomaticDownload::On
                                                                : Pelnar::AutomaticDownload::Off;
    }
}

void WishDownloads(Pelnar::AutomaticDownload wish)
{
    @autoreleasepool
    {
        WriteAutomaticDownload(wish == Pelnar::AutomaticDownload::On ? AutomaticDownload::On : AutomaticDownload::Off);
    }
}

std::vector<std::string> ListedChannels()
{
    @autoreleasepool
    {
        std::vector<std::string> names;
        for (QString const& name : ReadChannels())
        {
            names.push_back(name.toStdString());
        }
        return names;
    }
}

bool ListChannels(std::vector<std::string> const& names)
{
    QStringList channels;
    for (std::string const& name : names)
    {
        QString const channel = QString::fromStdString(name);
        if (!IsChannelName(channel))
        {
            LOG(ERROR) << "The channels are not changed, because a name is empty or has blanks, commas or control "
                          "characters";
            return false;
        }
        channels.append(channel);
    }
    @autoreleasepool
    {
        WriteChannels(channels);
    }
    return true;
}

int DaysOfUnchangedFeed()
{
    @autoreleasepool
    {
        return UnchangedDays(ReadFeedRecord());
    }
}

bool KeepRelaunchArguments(std::vector<std::string> const& arguments)
{
    return KeptArguments::OfProcess().Keep(arguments);
}

} // namespace Pelnar::Engine
