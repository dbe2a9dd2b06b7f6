// main.cpp: prints docs/guide/settings.md.
#include "Settings/SettingsDocument.h"

#include <iostream>

int main()
{
    std::cout << Pelnar::Settings::SettingsAsMarkdown();
}
