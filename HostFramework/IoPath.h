// IoPath.h: the host framework's path value.
//
//     Pelnar::ioPath const path("/opt/notes");
//     std::string const& text = path.utf8string();
//
// A host framework provides this type.
#pragma once

#include <string>
#include <utility>

namespace Pelnar
{

/// The text of a path, in UTF-8. The default value is empty.
class ioPath
{
public:
    ioPath() = default;
    /// Stores \a utf8 unchanged. It does not check that the path exists and does not normalise it.
    explicit ioPath(std::string utf8)
        : m_utf8(std::move(utf8))
    {
    }

    /// The text as given, in UTF-8.
    std::string const& utf8string() const { return m_utf8; }

private:
    std::string m_utf8;
};

inline bool operator==(ioPath const& a, ioPath const& b) { return a.utf8string() == b.utf8string(); }
inline bool operator!=(ioPath const& a, ioPath const& b) { return !(a == b); }

} // namespace Pelnar
