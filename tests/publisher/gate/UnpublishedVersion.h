// UnpublishedVersion.h: a publisher's folder in which one version is still to be published.
#pragma once

#include "tests/publisher/generate/PublisherFolder.h"

#include <map>
#include <string>

namespace Pelnar::Testing
{

using Files = std::map<std::string, std::string>;

inline Files FilesOf(PublisherFolder const& folder)
{
    Files files;
    for (std::string const& name : folder.Names())
    {
        files.emplace(name, folder.ContentOf(name));
    }
    return files;
}

/// A folder with a feed of two versions, and a third that is not published yet.
struct UnpublishedVersion
{
    UnpublishedVersion()
    {
        Put("1.0");
        Put("2.0");
        folder.GeneratedFeed();
        Put("3.0");
    }

    /// A zip that another container can make smaller.
    void Put(std::string const& version) const
    {
        BundleText text;
        text.version = version;
        std::vector<ForgedEntry> bundle = MakePublishedBundle(text);
        bundle.push_back({"Test.app/words", 'f', std::string(9000, 'w')});
        bundle.push_back({"Test.app/link", 'l', "words"});
        folder.Put("Test-" + version + ".zip", MakeArchive(Container::Zip, bundle));
    }

    QStringList Arguments() const
    {
        return {QStringLiteral("generate"),     QString::fromStdString(folder.Path()),
                QStringLiteral("--key"),        folder.KeyFile(),
                QStringLiteral("--url-prefix"), QStringLiteral("https://updates.example.com/")};
    }

    PublisherFolder folder;
};

} // namespace Pelnar::Testing
