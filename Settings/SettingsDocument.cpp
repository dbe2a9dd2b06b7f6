#include "Settings/SettingsDocument.h"

#include "common/SettingKeys.h"

#include <string_view>

namespace Pelnar::Settings
{
namespace
{

using Core::SettingKey;
using Core::SettingPlace;
using Core::SettingType;

constexpr std::string_view INTRODUCTION = R"(# Settings

This page is made from the table in `common/SettingKeys.h`; the target `settings_document` writes it.

A setting stands in one of two places:

- **The information dictionary** is part of the application. The publisher writes it: `Resources/Info-gnustep.plist` in the
  bundle on Linux, `Contents/Info.plist` on macOS.
- **The user defaults** belong to one person. On Linux they are the file
  `$XDG_CONFIG_HOME/<bundle identifier>/updates.plist`. Without `XDG_CONFIG_HOME` that is
  `~/.config/<bundle identifier>/updates.plist`. On macOS they are the application's user defaults.

Where a setting may stand in both, the user default counts.

## The file on Linux

The file is a property list as text. A person may change it while the application does not run:

```
{
    SUAutomaticallyUpdate = YES;
    SUSkippedVersion = 5.1;
}
```

- `~` is `$HOME`, or the home of the password database without it. A relative `XDG_CONFIG_HOME` is ignored.
- The name of the program and the link that starts it make no difference.
- Characters of an identifier that a file name may not have are written as `%` and two digits. An application without an
  identifier has the folder `unidentified.<program>`.
- The folder must belong to the person, and nobody else may write there. A link in the place of the folder or of the file
  is not followed. The log says what is refused, and the settings then count as absent.
- A file that is no property list is renamed to `updates.plist.unreadable` at the next change.
- What cannot be saved counts until the process ends. The log says why.
- A value on the command line (`-SUAutomaticallyUpdate YES`) counts before the file. GNUstep's global domain and the values
  that the host registers count after it.

Earlier versions kept the user defaults in `~/GNUstep/Defaults/<program>.plist`. The first change takes over what stands
there and sets `PelnarEarlierDefaultsTaken`. The old file stays as it is, and the host's own defaults stay in it. An old file
that cannot be read is in the log, and is tried again at the next start.

## Other files on Linux

| Folder | What stands there |
| --- | --- |
| `$XDG_CACHE_HOME/<bundle identifier>/updates`, else below `~/.cache` | [archives](../formats/partial-download.md) and the [last feed](../formats/kept-feed.md), which can be had again |
| `$XDG_STATE_HOME/<bundle identifier>/updates`, else below `~/.local/state` | what is known of [feeds](../formats/signed-feed.md) and of [installations](../formats/install-record.md) |

Both have mode 0700. What earlier versions kept in `$XDG_CACHE_HOME/pelnar-updates` and in GNUstep's folder is taken over.

[Why the settings live there](../decisions/0008-settings-in-xdg-folders.md).
)";

std::string_view NameOf(SettingType type)
{
    switch (type)
    {
    case SettingType::Text:
        return "text";
    case SettingType::Boolean:
        return "YES or NO";
    case SettingType::Number:
        return "number";
    case SettingType::Date:
        return "date";
    case SettingType::Dictionary:
        return "dictionary";
    }
    return "";
}

std::string_view NameOf(SettingPlace place)
{
    switch (place)
    {
    case SettingPlace::Information:
        return "information dictionary";
    case SettingPlace::Defaults:
        return "user defaults";
    case SettingPlace::Both:
        return "both";
    }
    return "";
}

} // namespace

std::string SettingsAsMarkdown()
{
    std::string text(INTRODUCTION);
    text += "\n## All keys\n\n| Key | Type | Where | Without it | Meaning |\n| --- | --- | --- | --- | --- |\n";
    for (SettingKey const& key : Core::SETTING_KEYS)
    {
        text += "| `" + std::string(key.name) + "` | ";
        for (std::string_view const cell : {NameOf(key.type), NameOf(key.place), key.whenAbsent})
        {
            text += std::string(cell) + " | ";
        }
        text += std::string(key.meaning) + " |\n";
    }
    return text;
}

} // namespace Pelnar::Settings
