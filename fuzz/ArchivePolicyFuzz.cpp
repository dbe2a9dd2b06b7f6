// ArchivePolicyFuzz.cpp: any list of entries for the archive policy, checked against a model of the file system.
// Admitted entries create nothing outside the bundle's folder, nothing through a link, and nothing twice. In an
// accepted archive every link points to something inside.

#include "Engine/core/archive/ArchiveEntryRules.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <string>
#include <vector>

namespace
{

using namespace Pelnar::Engine;

/// Values from the fuzzer's bytes; zeros after their end.
class Input
{
public:
    Input(std::uint8_t const* data, std::size_t size) : m_data(data), m_size(size) {}

    bool IsEmpty() const { return m_size == 0; }
    unsigned Byte()
    {
        if (m_size == 0)
        {
            return 0;
        }
        --m_size;
        return *m_data++;
    }
    /// A text made of pieces that matter in paths, or of any bytes.
    std::string Path()
    {
        static char const* const pieces[] = {"A.app", "a",  "b",  "c",        "/",         "/",      "..", ".",
                                             "A.APP", "\\", "C:", "\xc3\xa9", "e\xcc\x81", "A.app/", " ",  "B.app"};
        std::string path;
        for (unsigned count = Byte() % 12; count > 0; --count)
        {
            unsigned const choice = Byte();
            path += choice < 240 ? std::string(pieces[choice % 16]) : std::string(1, static_cast<char>(Byte()));
        }
        return path;
    }

private:
    std::uint8_t const* m_data;
    std::size_t m_size;
};

std::vector<std::string> Components(std::string const& path)
{
    std::vector<std::string> components;
    std::size_t begin = 0;
    while (begin <= path.size())
    {
        std::size_t const end = std::min(path.find('/', begin), path.size());
        components.push_back(path.substr(begin, end - begin));
        begin = end + 1;
    }
    return components;
}

void Require(bool holds)
{
    if (!holds)
    {
        std::abort();
    }
}

/// The content of a file system without any rules.
class Model
{
public:
    void Make(EntryAdmission const& admission, ArchiveEntry const& entry)
    {
        Require(admission.mode == 0755 || admission.mode == 0644 || entry.type == ArchiveEntryType::SymbolicLink);
        std::string parent;
        std::vector<std::string> const components = Components(admission.path);
        for (std::size_t i = 0; i < components.size(); ++i)
        {
            std::string const& name = components[i];
            Require(!name.empty() && name != "." && name != ".." && name.find('\\') == std::string::npos &&
                    name.find('\0') == std::string::npos);
            std::string const path = parent.empty() ? name : parent + '/' + name;
            if (i + 1 < components.size())
            {
                auto const [node, isNew] = m_nodes.emplace(path, Node{ArchiveEntryType::Folder, {}});
                Require(node->second.type == ArchiveEntryType::Folder);
            }
            else if (entry.type == ArchiveEntryType::Folder)
            {
                auto const [node, isNew] = m_nodes.emplace(path, Node{ArchiveEntryType::Folder, {}});
                Require(node->second.type == ArchiveEntryType::Folder);
            }
            else
            {
                Require(entry.type == ArchiveEntryType::File || entry.type == ArchiveEntryType::SymbolicLink);
                Require(m_nodes.emplace(path, Node{entry.type, entry.linkTarget}).second);
            }
            parent = path;
        }
    }

    void RequireClosed(std::string const& bundleName) const
    {
        for (auto const& [path, node] : m_nodes)
        {
            Require(path == bundleName || path.compare(0, bundleName.size() + 1, bundleName + '/') == 0);
            if (node.type == ArchiveEntryType::SymbolicLink)
            {
                RequireInside(bundleName, path);
            }
        }
    }

private:
    struct Node
    {
        ArchiveEntryType type;
        std::string linkTarget;
    };

    /// Resolves \a path as a kernel does.
    void RequireInside(std::string const& bundleName, std::string const& path) const
    {
        std::vector<std::string> done;
        std::vector<std::string> rest = Components(path);
        int hops = 0;
        while (!rest.empty())
        {
            std::string const name = rest.front();
            rest.erase(rest.begin());
            if (name.empty() || name == ".")
            {
                continue;
            }
            if (name == "..")
            {
                Require(!done.empty());
                done.pop_back();
                Require(!done.empty()); // the bundle's own folder is the highest
                continue;
            }
            done.push_back(name);
            Require(done.front() == bundleName);
            std::string whole;
            for (std::string const& component : done)
            {
                whole += (whole.empty() ? "" : "/") + component;
            }
            auto const node = m_nodes.find(whole);
            Require(node != m_nodes.end());
            if (node->second.type == ArchiveEntryType::SymbolicLink)
            {
                Require(++hops <= 40 && !node->second.linkTarget.empty() && node->second.linkTarget[0] != '/');
                std::vector<std::string> const target = Components(node->second.linkTarget);
                rest.insert(rest.begin(), target.begin(), target.end());
                done.pop_back();
            }
        }
        Require(!done.empty());
    }

    std::map<std::string, Node> m_nodes;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    Input input(data, size);
    ArchiveLimits limits;
    limits.maxEntries = 40;
    limits.maxLinks = 20;
    limits.maxBytes = 1u << 20;
    ArchiveEntryRules policy(limits);
    Model model;
    std::uint64_t bytes = 0;
    while (!input.IsEmpty())
    {
        ArchiveEntry entry;
        entry.type = static_cast<ArchiveEntryType>(input.Byte() % 5);
        entry.path = input.Path();
        entry.linkTarget = entry.type == ArchiveEntryType::SymbolicLink ? input.Path() : std::string();
        entry.mode = input.Byte() << 4 | input.Byte() % 16;
        entry.size = entry.type == ArchiveEntryType::File ? std::uint64_t(input.Byte()) << input.Byte() % 64 : 0;
        entry.isSizeKnown = input.Byte() < 250;
        entry.isSparse = input.Byte() > 250;
        EntryAdmission const admission = policy.Admit(entry);
        if (admission.fault != UpdateFault::None)
        {
            return 0;
        }
        if (!admission.path.empty())
        {
            model.Make(admission, entry);
            bytes += entry.size;
            bool const isFile = entry.type == ArchiveEntryType::File;
            Require(bytes <= limits.maxBytes && (!isFile || (entry.isSizeKnown && !entry.isSparse)));
        }
    }
    if (policy.Finish() == UpdateFault::None)
    {
        model.RequireClosed(policy.BundleName());
    }
    return 0;
}
