// IoPath.h: the host framework's path value.
//
//     Pelnar::ioPath const path("/opt/notes");
//     std::string const& text = path.utf8string();
//
// Thread: a plain value. Ownership: its own text. Part of what a host framework provides.
#pragma once

#include <string>
#include <utility>

namespace Pelnar
{

class ioPath
{
public:
    ioPath() = default;
    /// \a utf8 is taken as it is: no check that the path exists, no normalisation.
    explicit ioPath(std::string utf8)
        : m_utf8(std::move(utf8))
    {
    }

    std::string const& utf8string() const { return m_utf8; }

private:
    std::string m_utf8;
};

inline bool operator==(ioPath const& a, ioPath const& b) { return a.utf8string() == b.utf8string(); }
inline bool operator!=(ioPath const& a, ioPath const& b) { return !(a == b); }

} // namespace Pelnar
