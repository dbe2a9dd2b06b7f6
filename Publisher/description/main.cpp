// main.cpp: prints the manual page or a completion of pelnar-appcast, for the target publisher_description.

#include "Publisher/Verb.h"
#include "Publisher/description/CommandDescription.h"

#include <iostream>
#include <map>
#include <string>

int main(int argc, char** argv)
{
    using namespace Pelnar::Publisher;
    std::string const wanted = argc == 2 ? argv[1] : "";
    std::map<std::string, std::string (*)(CLI::App const&)> const kinds = {
        {"manual", ManualPage}, {"bash", BashCompletion}, {"zsh", ZshCompletion}, {"fish", FishCompletion}};
    auto const kind = kinds.find(wanted);
    if (kind == kinds.end())
    {
        std::cerr << "usage: pelnar-appcast-describe manual|bash|zsh|fish\n";
        return 2;
    }
    Console console{std::cin, {std::cout}, {std::cerr}};
    VerbContext context{console};
    WithProgram(context, [&kind](CLI::App& program) { std::cout << kind->second(program); });
    return std::cout.flush() ? 0 : 1;
}
