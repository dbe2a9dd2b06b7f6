// Leftovers.h: what a run must not leave behind when it is interrupted: hidden files, folders for temporary files.
// Ownership: a scope object for each name; the process has one list of them.
#pragma once

#include <functional>
#include <string>

namespace Pelnar::Publisher
{

/// While it lives, the file or folder of that path goes when a signal ends the process.
class Leftover
{
public:
    /// \a path: absolute. Empty for nothing.
    explicit Leftover(std::string path);
    /// Calls \a make, which makes the file or folder and returns its absolute path, or makes nothing and returns an
    /// empty one. No signal ends the process between the two. What \a make throws is passed on.
    explicit Leftover(std::function<std::string()> const& make);
    ~Leftover();
    Leftover(Leftover const&) = delete;
    Leftover& operator=(Leftover const&) = delete;

    std::string const& Path() const { return m_path; }

private:
    std::string m_path;
};

/// From here on SIGINT, SIGTERM and SIGHUP remove every Leftover and end the process then as they always do.
/// REQUIRES: called once, by the only thread, before another is started.
void RemoveLeftoversWhenInterrupted();

} // namespace Pelnar::Publisher
