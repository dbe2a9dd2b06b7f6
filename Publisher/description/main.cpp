// main.cpp: prints the manual page or the completion of pelnar-appcast, for the target publisher_description.

#include "Publisher/Verb.h"
#include "Publisher/description/CommandDescription.h"

#include <iostream>
#include <string>

int main(int argc, char** argv)
{
    using namespace Pelnar::Publisher;
    std::string const wanted = argc == 2 ? argv[1] : "";
    if (wanted != "manual" && wanted != "bash")
    {
        std::cerr << "usage: pelnar-appcast-describe manual|bash\n";
        return 2;
    }
    Console console{std::cin, {std::cout}, {std::cerr}};
    VerbContext context{console};
    WithProgram(context, [&wanted](CLI::App& program)
                { std::cout << (wanted == "manual" ? ManualPage(program) : BashCompletion(program)); });
    return 0;
}
