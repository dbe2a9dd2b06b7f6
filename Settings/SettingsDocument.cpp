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

This page is generated from the table in `common/SettingKeys.h`; the target `settings_document` writes it.

A setting is in one of two places:

- **The information dictionary** is part of the application. The publisher writes it: `Resources/Info-gnustep.plist` in the
  bundle on Linux, `Contents/Info.plist` on macOS.
- **The user defaults** belong to one person. On Linux they are the file
  `$XDG_CONFIG_HOME/<bundle identifier>/updates.plist`. Without `XDG_CONFIG_HOME` that is
  `~/.config/<bundle identifier>/updates.plist`. On macOS they are the application's user defaults.

If a setting is allowed in both places, the user default has priority.

## The file on Linux

The file is a property list as text. A person may change it while the application is not running:

```
{
    SUAutomaticallyUpdate = YES;
    SUSkippedVersion = 5.1;
}
```

- `~` is `$HOME`, or without it the home folder in the password database. A relative `XDG_CONFIG_HOME` is ignored.
- The name of the program and the link that starts it make no difference.
- Characters of an identifier that a file name cannot contain are written as `%` and two digits. An application without an
  identifier has the folder `unidentified.<program>`.
- The folder must belong to the person, and no other user may write there. A link in the place of the folder or of the file
  is not followed. If something is refused, the log says why, and the settings count as absent.
- A file that is not a property list is renamed to `updates.plist.unreadable` at the next change.
- A value that cannot be saved is valid until the process ends. The log says why.
- A value on the command line (`-SUAutomaticallyUpdate YES`) has priority over the file. GNUstep's global domain and the
  values that the host registers have a lower priority.

Earlier versions stored the user defaults in `~/GNUstep/Defaults/<program>.plist`. The first change copies these values and
sets `PelnarEarlierDefaultsTaken`. The old file is not changed and keeps the host's own defaults. If it cannot be read, the
log says so, and the next start tries again.

## Other files on Linux

| Folder | Content |
| --- | --- |
| `$XDG_CACHE_HOME/<bundle identifier>/updates`, otherwise below `~/.cache` | [archives](../formats/partial-download.md) and the [last feed](../formats/kept-feed.md), which can be downloaded again |
| `$XDG_STATE_HOME/<bundle identifier>/updates`, otherwise below `~/.local/state` | the records of [feeds](../formats/signed-feed.md) and of [installations](../formats/install-record.md) |

Both have mode 0700. The files of earlier versions in `$XDG_CACHE_HOME/pelnar-updates` and in GNUstep's folder are moved there.

[Why the settings are there](../decisions/0008-settings-in-xdg-folders.md).
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
