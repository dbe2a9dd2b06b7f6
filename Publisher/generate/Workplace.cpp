#include "Publisher/generate/Workplace.h"

#include "App/UpdateChecker/SparkleImpl/SparkleManager/VersionText_p.h"
#include "Publisher/Progress.h"
#include "Publisher/delta/DeltaFile.h"

#include <algorithm>
#include <ostream>

namespace Pelnar::Publisher
{
namespace
{

bool IsSameFile(QUrl const& a, QUrl const& b)
{
    return a.scheme() == b.scheme() && a.host() == b.host() && a.port() == b.port() &&
           a.path(QUrl::FullyDecoded) == b.path(QUrl::FullyDecoded);
}

} // namespace

BundleTree Workplace::Unpack(QString const& fileName) const
{
    Progress bar(console.err, QStringLiteral("Unpacking ") + fileName);
    return BundleTree::Unpack(OpenInputFile(PathOf(fileName)), BarFor(bar));
}

ArchiveSignature Workplace::Sign(QString const& fileName) const
{
    Progress bar(console.err, QStringLiteral("Signing ") + fileName);
    bar.Show(0, 1); // the signature is made at once
    return key.Sign(OpenInputFile(PathOf(fileName)));
}

void Workplace::Warn(QString const& path, QString const& what, QString const& mend) const
{
    console.err.stream << console.err.Styled(Emphasis::Warning, QStringLiteral("warning: "))
                       << TextOf({path, 0, 0, what, mend}).toStdString() << '\n';
}

Engine::FeedItem const* Workplace::FindPublished(PublishedFeed const& feed, QString const& fileName) const
{
    QUrl const wanted = address.Of(fileName);
    for (PublishedItem const& published : feed.Items())
    {
        if (IsSameFile(published.item.fileUrl, wanted))
        {
            return &published.item;
        }
        auto const delta = std::find_if(published.item.deltas.begin(), published.item.deltas.end(),
                                        [&wanted](auto const& other) { return IsSameFile(other.fileUrl, wanted); });
        if (delta != published.item.deltas.end())
        {
            return &*delta;
        }
    }
    return nullptr;
}

Core::Version WholeVersion(QString const& text)
{
    return Core::Util::ShrinkVersion(App::Session::VersionFromStringNoexcept(text), Core::Version::COMPONENT_COUNT);
}

} // namespace Pelnar::Publisher
