#include <Pelnar/HostRequests_p.h>

#include "Engine/core/feed/ReleaseRules.h"
#include "Engine/objc/BundleSettings_p.h"

#include <glog/logging.h>

std::vector<std::string> Pelnar::Engine::ListedChannels()
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

bool Pelnar::Engine::ListChannels(std::vector<std::string> const& names)
{
    QStringList channels;
    for (std::string const& name : names)
    {
        QString const channel = QString::fromStdString(name);
        if (!IsChannelName(channel))
        {
            LOG(ERROR) << "The channels are not changed, since a name is empty or has blanks, commas or control "
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
