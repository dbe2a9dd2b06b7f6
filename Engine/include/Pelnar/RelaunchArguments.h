// RelaunchArguments.h: the arguments that the next version of an application is started with.
// An application that opens its documents by its command line comes back after an update with the document that was
// open. Say so while the application quits, when it is known what is open:
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
    return false; // programs are started without arguments there
}
#else
/// After the update that is under way, or the next one, the new version is started with \a arguments behind its name.
/// They are bytes: paths as the file system has them, in UTF-8 or not, empty ones, and ones that begin with a dash. The
/// helper that installs the update does not look at them. Working folder, umask and environment of the new version are
/// those that this process has when the person or the application agrees to the relaunch.
///
/// What is said last before this process ends counts; an empty list takes back what was said before. The arguments are
/// forgotten when an update ends without being installed: it was put off or cancelled, or it failed. They are not given
/// to the previous version, which is started again when the new one cannot be installed or does not start well, and to
/// nobody when the update is installed on quit without a relaunch. An application that simply ends forgets them.
///
/// False, with an error in the log, when the arguments cannot be given to a program: they are more than 1024, longer
/// than 64 KiB with one byte more for each, or one holds a NUL; what was said before stays then. Throws nothing but
/// std::bad_alloc.
[[nodiscard]] __attribute__((visibility("default"))) bool
SetRelaunchArguments(std::vector<std::string> const& arguments);
#endif

} // namespace Pelnar
