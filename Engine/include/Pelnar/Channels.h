// Channels.h: the channels of releases, such as "beta", that a person takes part in.
//
//     QCheckBox box(tr("Offer me test versions"));
//     std::vector<std::string> const channels = Pelnar::Channels();
//     box.setChecked(std::find(channels.begin(), channels.end(), "beta") != channels.end());
//     QObject::connect(&box, &QCheckBox::toggled,
//                      [](bool isOn) { Pelnar::SetChannels(isOn ? std::vector<std::string>{"beta"}
//                                                               : std::vector<std::string>()); });
//
// An item of the feed without a channel is for everybody. An item in a channel (sparkle:channel) is offered only where
// the channel is listed. A person who leaves a channel keeps the installed version until a newer one is published for
// everybody.
//
// Thread: the Qt main thread, at any time. Neither function needs a check or waits for one.
#pragma once

#include <string>
#include <vector>

namespace Pelnar
{

#ifdef __APPLE__
// The framework of this system has no channels.
inline std::vector<std::string> Channels()
{
    return {};
}
[[nodiscard]] inline bool SetChannels(std::vector<std::string> const&)
{
    return false;
}
#else
/// Returns the listed channels: the person's choice, made in any process of the application, else the bundle's value
/// (PelnarChannels in the information file), else none. It reads the disk and may load the engine: call it when the
/// preferences are shown, not in a loop. Throws nothing but std::bad_alloc.
__attribute__((visibility("default"))) std::vector<std::string> Channels();

/// Stores \a names as the person's choice for this process and every other process of the application, in place of the
/// bundle's value; an empty list lists no channel. Names count with their case. A name is in UTF-8 and has no blank, no
/// comma and no control character; returns false, with a line in the log, if one has, and the choice stays as it was.
/// The choice is on the disk when the call returns, and counts from the next check on. If it cannot be saved, the log
/// says so, and it holds until this process ends. Throws nothing but std::bad_alloc.
[[nodiscard]] __attribute__((visibility("default"))) bool SetChannels(std::vector<std::string> const& names);
#endif

} // namespace Pelnar
