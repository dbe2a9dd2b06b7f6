// Generates docs/faults.md from the tables and compares it with the file.

#include "Engine/core/faults/FaultTable.h"
#include "tests/support/EveryFault.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

#include <QtGlobal>

namespace Pelnar::Testing
{
namespace
{

using namespace Engine;

std::string NameOf(Blame blame)
{
    switch (blame)
    {
    case Blame::Nobody:
        return "nobody";
    case Blame::Network:
        return "the network";
    case Blame::Server:
        return "the server";
    case Blame::Feed:
        return "the feed";
    case Blame::Archive:
        return "the archive";
    case Blame::Publisher:
        return "the publisher";
    case Blame::Application:
        return "the installed application";
    case Blame::Computer:
        return "the computer";
    }
    return "unknown";
}

std::string Start(FaultEntry const& entry)
{
    std::ostringstream text;
    text << "| " << entry.number << " | `" << entry.name << "` | " << static_cast<int>(entry.code) << " | "
         << NameOf(entry.blame) << " | " << entry.sentence;
    if (entry.downloadSentence != nullptr)
    {
        text << "<br>Of an archive: " << entry.downloadSentence;
    }
    return text.str();
}

std::string Faults()
{
    std::ostringstream text;
    text << "# Faults\n\n"
            "This page is generated from `Engine/core/faults/ErrorCauses.def` and `UpdateFaults.def`; do not edit it. "
            "The code of an\n"
            "error is the published one. Its number is the code of the underlying error in "
            "`PelnarUpdateCheckErrorDomain`.\n"
            "Numbers and names never change their meaning.\n\n"
            "## Checks, downloads and the application's own part\n\n"
            "| Number | Name | Code | Who must correct it | Sentence for a person |\n"
            "| --- | --- | --- | --- | --- |\n";
    for (ErrorCause const cause : EveryCause())
    {
        text << Start(EntryOf(cause)) << " |\n";
    }
    text << "\n## Archives and installations\n\n"
            "The helper [reports](formats/helper-report.md) the name. The last two columns are the messages of "
            "`pelnar-appcast` about an\n"
            "archive.\n\n"
            "| Number | Name | Code | Who must correct it | Sentence for a person | Finding for the publisher | "
            "Correction |\n"
            "| --- | --- | --- | --- | --- | --- | --- |\n";
    auto const row = [&text](UpdateFault fault, std::string const& what, std::string const& mend)
    { text << Start(EntryOf(fault)) << " | " << what << " | " << mend << " |\n"; };
#define PELNAR_FAULT(name, number, code, blame, sentence, what, mend) row(UpdateFault::name, what, mend);
#include "Engine/core/faults/UpdateFaults.def"
    return text.str();
}

TEST(FaultDocument, IsMadeFromTheTables)
{
    std::string const made = Faults();
    std::ofstream(PELNAR_FAULTS_MADE) << made;
    std::ifstream document(PELNAR_FAULTS_DOCUMENT);
    std::stringstream text;
    text << document.rdbuf();
    EXPECT_TRUE(text.str() == made) << "make it again: cp " PELNAR_FAULTS_MADE " docs/faults.md";
}

} // namespace
} // namespace Pelnar::Testing
