// PreferenceHost.cpp: a host with a preference box and nothing else: it obeys the lines of its standard input, "get",
// "on" and "off", and answers each with the state of the box.

#include "HostFramework/Reference/ReferenceApplication.h"

#include <Pelnar/AutomaticDownloads.h>

#include <iostream>
#include <string>

int main(int argc, char** argv)
{
    using Pelnar::AutomaticDownload;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    Pelnar::App::ReferenceApplication const application(argc, argv);
    for (std::string line; std::getline(std::cin, line);)
    {
        if (line != "get")
        {
            Pelnar::SetAutomaticDownloads(line == "on" ? AutomaticDownload::On : AutomaticDownload::Off);
        }
        std::cout << (Pelnar::AutomaticDownloads() == AutomaticDownload::On ? "on" : "off") << std::endl;
    }
}
