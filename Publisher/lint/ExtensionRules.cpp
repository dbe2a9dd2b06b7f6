// ExtensionRules.cpp: extensions that do not reach the host, or reach it with another value.

#include "App/UpdateChecker/SparkleImpl/Choice/Extensions.h"
#include "Publisher/choice/FeedChoice.h"
#include "Publisher/lint/LintSubject.h"

#include <map>

namespace Pelnar::Publisher
{
namespace
{

bool IsExtension(QString const& local)
{
    return App::Session::ExtensionKey(local).has_value();
}

/// Names such as "pelnar2_Channel" and "pelnarChannel": they look like extensions, but clients ignore them.
bool IsAlmostExtension(QString const& local)
{
    return local.startsWith("pelnar"_l, Qt::CaseInsensitive) && !IsExtension(local);
}

/// The place of a name in the feed.
enum class NamePlace
{
    ItemChild,
    ItemAttribute,
    DeltaAttribute,
    Elsewhere,
};

void CheckName(XmlName const& name, NamePlace where, TextPlace place, LintFindings& findings)
{
    if (IsAlmostExtension(name.local))
    {
        findings.Add(LintRule::ExtensionPrefix, place,
                     u"%1 does not begin with %2"_s.arg(name.qualified, App::Session::Extensions::PREFIX));
    }
    if (!IsExtension(name.local))
    {
        return;
    }
    if (!name.namespaceUri.isEmpty())
    {
        findings.Add(LintRule::ExtensionNamespace, place,
                     u"%1 is in the namespace \"%2\""_s.arg(name.qualified, name.namespaceUri));
    }
    else if (where == NamePlace::Elsewhere)
    {
        findings.Add(LintRule::ExtensionPlace, place, u"clients do not read %1 here"_s.arg(name.qualified));
    }
}

class ExtensionCheck
{
public:
    explicit ExtensionCheck(LintFindings& findings) : m_findings(findings) {}

    void Visit(XmlElement const& element, XmlElement const* parent, XmlElement const* grandParent)
    {
        bool const isInItem = parent && parent->name.IsPlain("item");
        CheckName(element.name, isInItem ? NamePlace::ItemChild : NamePlace::Elsewhere, element.place, m_findings);
        bool const isDelta = element.name.IsPlain("enclosure") && parent && parent->name.IsFeeds("deltas") &&
                             grandParent && grandParent->name.IsPlain("item");
        NamePlace const where = isDelta                        ? NamePlace::DeltaAttribute
                                : element.name.IsPlain("item") ? NamePlace::ItemAttribute
                                                               : NamePlace::Elsewhere;
        for (XmlAttribute const& attribute : element.attributes)
        {
            CheckName(attribute.name, where, element.place, m_findings);
        }
        if (element.name.IsPlain("item"))
        {
            CheckValues(element);
        }
        for (XmlElement const& child : element.children)
        {
            Visit(child, &element, parent);
        }
    }

private:
    void CheckValues(XmlElement const& item)
    {
        std::map<QString, QString> nameOfKey;
        for (XmlElement const& child : item.children)
        {
            if (child.name.namespaceUri.isEmpty() && IsExtension(child.name.local))
            {
                CheckValue(child, nameOfKey);
            }
        }
        for (XmlAttribute const& attribute : item.attributes)
        {
            if (attribute.name.namespaceUri.isEmpty() && IsExtension(attribute.name.local))
            {
                CheckKey(attribute.name.local, item.place, nameOfKey);
            }
        }
    }

    void CheckValue(XmlElement const& extension, std::map<QString, QString>& nameOfKey)
    {
        QString const& name = extension.name.local;
        bool const isRepeated = CheckKey(name, extension.place, nameOfKey);
        if (isRepeated || !extension.attributes.empty() || !extension.children.empty())
        {
            m_findings.Add(LintRule::ExtensionNotText, extension.place,
                           isRepeated ? u"%1 stands twice"_s.arg(name) : u"%1 has attributes or children"_s.arg(name));
        }
    }

    /// \return whether the same name was seen before
    bool CheckKey(QString const& name, TextPlace place, std::map<QString, QString>& nameOfKey)
    {
        auto const [entry, isNew] = nameOfKey.emplace(name.toUpper(), name);
        if (!isNew && entry->second != name)
        {
            m_findings.Add(LintRule::ExtensionKeyCase, place, u"%1 and %2"_s.arg(entry->second, name));
        }
        return !isNew && entry->second == name;
    }

    LintFindings& m_findings;
};

void CheckRelaunchPath(LintDownload const& download, LintFindings& findings)
{
    QVariant const path = ExtensionsOf(*download.item).value(App::Session::Extensions::KEY_OVERRIDE_PATH_TO_RELAUNCH);
    if (path.isValid() && !path.toString().startsWith(u'/'))
    {
        findings.Add(LintRule::RelaunchPathRelative, download.element->place,
                     u"the path of %1 is \"%2\""_s.arg(NameOf(*download.item), path.toString()));
    }
}

} // namespace

void CheckExtensions(LintSubject const& subject, LintFindings& findings)
{
    ExtensionCheck check(findings);
    for (XmlElement const& element : subject.root.children)
    {
        check.Visit(element, nullptr, nullptr);
    }
    for (LintPlatform const& platform : subject.platforms)
    {
        for (LintItem const& item : platform.items)
        {
            CheckRelaunchPath(item.full, findings);
            for (LintDownload const& delta : item.deltas)
            {
                // Inherited extensions were checked with the item.
                if (ExtensionsOf(*delta.item) != ExtensionsOf(*item.full.item))
                {
                    CheckRelaunchPath(delta, findings);
                }
            }
        }
    }
}

} // namespace Pelnar::Publisher
