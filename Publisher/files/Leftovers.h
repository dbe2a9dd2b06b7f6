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
    /// For what cannot be removed now: RemoveLeftovers() does it, or a signal.
    void LeaveToTheEnd() { m_path.clear(); }

private:
    std::string m_path;
};

/// Removes what still is in the list. Once no file is open any more, also what a limit of open files has kept.
void RemoveLeftovers();

/// From here on SIGINT, SIGTERM and SIGHUP remove every Leftover and then end the process as usual. A mapped file that
/// is cut short while it is read ends the process too: with a sentence and ExitStatus::Unusable. Without a thread for
/// this work, signals end the process at once. REQUIRES: called once, by the only thread, before another is started.
void RemoveLeftoversWhenInterrupted();

} // namespace Pelnar::Publisher
