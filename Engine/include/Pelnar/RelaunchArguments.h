// RelaunchArguments.h: the arguments for the next version's start. An application that opens its documents by its
// command line can reopen the same document after an update. Set the arguments while the application quits, when the
// open documents are known:
//
//     bool Host::TryToQuit()
//     {
//         std::string const document = QFile::encodeName(m_window.DocumentPath()).toStdString();
//         if (!Pelnar::SetRelaunchArguments({"--open", document}))
//         {
//             qWarning("The document will not be open after the update.");
//         }
//         quit();
//         return true;
//     }
//
// Thread: the Qt main thread, at any time, even after the event loop has ended. Ownership: the arguments are copied.
#pragma once

#include <string>
#include <vector>

namespace Pelnar
{

#ifdef __APPLE__
[[nodiscard]] inline bool SetRelaunchArguments(std::vector<std::string> const&)
{
    return false; // programs start without arguments on this system
}
#else
/// Sets \a arguments for the new version's start after the current or the next update. They follow the program's name.
/// They are bytes: paths as the file system has them, in UTF-8 or not; empty arguments and arguments that begin with a
/// dash are allowed. The helper that installs the update does not interpret them. The new version gets the working
/// folder, umask and environment that this process has when the person or the application agrees to the relaunch.
///
/// The last call before this process ends counts. An empty list removes earlier arguments. The arguments are discarded
/// if an update ends without installation: postponed, cancelled or failed. The previous version, which starts again if
/// the new one cannot be installed or does not start well, does not get them. If the update is installed on quit
/// without a relaunch, no program gets them. An application that just ends discards them.
///
/// Returns false and logs an error if a program cannot get the arguments: there are more than 1024, they are longer
/// than 64 KiB with one additional byte for each, or one contains a NUL. The earlier arguments then stay. Throws only
/// std::bad_alloc.
[[nodiscard]] __attribute__((visibility("default"))) bool
SetRelaunchArguments(std::vector<std::string> const& arguments);
#endif

} // namespace Pelnar
