// PreferenceHost.cpp: a host with nothing but preferences. It obeys the lines of its standard input. "get", "on" and
// "off" print the state of the box. "channels", with or without names after it, prints the listed channels.

#include "HostFramework/Reference/ReferenceApplication.h"

#include <Pelnar/AutomaticDownloads.h>
#include <Pelnar/Channels.h>

#include <iostream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace
{

/// One blank before each name; "channels none" lists none.
void TakeChannels(std::string const& line)
{
    std::istringstream words(line);
    std::vector<std::string> names{std::istream_iterator<std::string>(words), {}};
    names.erase(names.begin());
    bool const isSet =
        names.empty() || Pelnar::SetChannels(names.front() == "none" ? std::vector<std::string>() : names);
    std::cout << (isSet ? "" : "refused:");
    for (std::string const& channel : Pelnar::Channels())
    {
        std::cout << channel << ' ';
    }
    std::cout << std::endl;
}

} // namespace

int main(int argc, char** argv)
{
    using Pelnar::AutomaticDownload;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    Pelnar::App::ReferenceApplication const application(argc, argv);
    for (std::string line; std::getline(std::cin, line);)
    {
        if (line.rfind("channels", 0) == 0)
        {
            TakeChannels(line);
            continue;
        }
        if (line != "get")
        {
            Pelnar::SetAutomaticDownloads(line == "on" ? AutomaticDownload::On : AutomaticDownload::Off);
        }
        std::cout << (Pelnar::AutomaticDownloads() == AutomaticDownload::On ? "on" : "off") << std::endl;
    }
}
