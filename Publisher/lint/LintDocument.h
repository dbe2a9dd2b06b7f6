// LintDocument.h: a feed as it is written, element by element, with places; what the parser drops is still here.
// Ownership: a tree of values; pointers into it live as long as it does.
#pragma once

#include "Engine/core/feed/FeedParser.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace Pelnar::Publisher
{

struct LintPlace
{
    int line = 0;   ///< from 1
    int column = 0; ///< from 1
};

/// The name of an element or of an attribute.
struct LintName
{
    QString namespaceUri;
    QString local;
    QString qualified; ///< as written

    /// Without a namespace and with this local name.
    [[nodiscard]] bool IsPlain(char const* name) const;
    /// In the feed's own namespace and with this local name.
    [[nodiscard]] bool IsFeeds(char const* name) const;
    /// In our own namespace and with this local name.
    [[nodiscard]] bool IsOwn(char const* name) const;
};

struct LintAttribute
{
    LintName name;
    QString value;
};

struct LintNamespace
{
    QString prefix;
    QString uri;
};

struct LintElement
{
    LintName name;
    LintPlace place; ///< of the tag's "<"
    int parserLine = 0;
    int parserColumn = 0; ///< where the parser sees the element: at the end of its tag
    std::vector<LintAttribute> attributes;
    std::vector<LintNamespace> namespaces; ///< declared here
    QString text;                          ///< directly inside
    std::vector<LintElement> children;

    /// The attribute's value; nothing when it is absent.
    std::optional<QString> PlainAttribute(char const* local) const;
    std::optional<QString> FeedAttribute(char const* local) const;
    std::optional<QString> OwnAttribute(char const* local) const;
};

/// Whether a namespace is the feed's own.
[[nodiscard]] bool IsFeedNamespaceUri(QString const& uri);

/// REQUIRES: the parser accepts \a bytes.
LintElement ReadLintDocument(QByteArray const& bytes);

/// Every item below \a root, in the order of the feed, wherever it stands.
std::vector<LintElement const*> ItemElements(LintElement const& root);

} // namespace Pelnar::Publisher
