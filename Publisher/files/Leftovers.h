// Leftovers.h: removes files and folders of an interrupted run: hidden files, temporary folders.
// Ownership: a scope object for each name; the process has one list of them.
#pragma once

#include <functional>
#include <string>

namespace Pelnar::Publisher
{

/// While it lives, a signal that ends the process also removes the file or folder of that path.
class Leftover
{
public:
    /// \a path: absolute; may be empty.
    explicit Leftover(std::string path);
    /// Calls \a make, which creates the file or folder and returns its absolute path, or an empty path if it created
    /// none. No signal ends the process between the two. Exceptions of \a make propagate.
    explicit Leftover(std::function<std::string()> const& make);
    ~Leftover();
    Leftover(Leftover const&) = delete;
    Leftover& operator=(Leftover const&) = delete;

    std::string const& Path() const { return m_path; }

private:
    std::string m_path;
};

/// From here on SIGINT, SIGTERM and SIGHUP remove every Leftover and then end the process as usual. If the system has
/// no further thread, they only end the process. REQUIRES: called
/// once, by the only thread, before another is started.
void RemoveLeftoversWhenInterrupted();

} // namespace Pelnar::Publisher
