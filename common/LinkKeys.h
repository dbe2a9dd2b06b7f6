// LinkKeys.h: the host framework's link keys and their names.
//
//     std::string const& name = Pelnar::LINK_KEY_NAMES.at(Pelnar::URLKeys::SPARKLE_APPCAST_URL);
//
// Thread: the table is built at load time and only read afterwards. Ownership: each translation unit has its own table.
// The numbers are part of the interface with the host framework; missing numbers belong to the framework.
#pragma once

#include <initializer_list>
#include <map>
#include <string>
#include <utility>

namespace Pelnar
{

/// Each link key once: its name and its number.
#define PELNAR_LINK_KEYS(KEY)                                                                                          \
    KEY(FEEDBACK_URL, 1)                                                                                               \
    KEY(MULTIPLE_AUDIO_MORE_URL_other, 3)                                                                              \
    KEY(REVIEW_FOR_APPSTORE_URL, 13)                                                                                   \
    KEY(SPARKLE_APPCAST_URL, 14)                                                                                       \
    KEY(DEVICE_DETECT_MORE_URL, 15)                                                                                    \
    KEY(FORUM_URL_socialtab, 16)                                                                                       \
    KEY(FORUM_URL_menu, 17)                                                                                            \
    KEY(INSTAGRAM_URL_socialtab, 18)                                                                                   \
    KEY(INSTAGRAM_URL_menu, 19)                                                                                        \
    KEY(FACEBOOK_URL_socialtab, 20)                                                                                    \
    KEY(FACEBOOK_URL_menu, 21)                                                                                         \
    KEY(ODNOKLASSNIKI_URL_socialtab, 22)                                                                               \
    KEY(ODNOKLASSNIKI_URL_menu, 23)                                                                                    \
    KEY(GOOGLE_PLUS_URL_socialtab, 24)                                                                                 \
    KEY(GOOGLE_PLUS_URL_menu, 25)                                                                                      \
    KEY(VKONTAKTE_URL_socialtab, 26)                                                                                   \
    KEY(VKONTAKTE_URL_menu, 27)                                                                                        \
    KEY(YOU_TUBE_URL_socialtab, 28)                                                                                    \
    KEY(YOU_TUBE_URL_menu, 29)                                                                                         \
    KEY(LOSSLESS_ENCODING_MORE_URL_settings, 30)                                                                       \
    KEY(FAQ_URL_menu, 31)                                                                                              \
    KEY(HOMEPAGE_URL_menu, 39)                                                                                         \
    KEY(HOMEPAGE_URL_menuabout, 40)                                                                                    \
    KEY(HOMEPAGE_URL_socialtab, 41)                                                                                    \
    KEY(HOMEPAGE_URL, 42)                                                                                              \
    KEY(DOWNLOAD_URL_checkupdatest, 43)                                                                                \
    KEY(UPGRADE_URL_checkupdatest, 44)                                                                                 \
    KEY(HELP_URL_menu, 45)                                                                                             \
    KEY(LIVECHAT_URL_menu, 46)                                                                                         \
    KEY(LIVECHAT_URL_other, 47)                                                                                        \
    KEY(BAD_CODECS_PAGE_other, 52)                                                                                     \
    KEY(CONTACT_SUPPORT_menu, 55)                                                                                      \
    KEY(GET_MORE_SOFTWARE_URL_menu, 56)                                                                                \
    KEY(UPLOAD_ITUNES_URL_other, 57)                                                                                   \
    KEY(CUSTOM_ABOUT_URL, 58)                                                                                          \
    KEY(CUSTOM_ABOUT_CAPTION_URL, 59)                                                                                  \
    KEY(THANK_FOR_INSTALL_URL, 60)                                                                                     \
    KEY(THANK_FOR_REINSTALL_URL, 61)                                                                                   \
    KEY(ALL_PATENTS_URL, 62)                                                                                           \
    KEY(DRIVER_UPDATE_GUIDE_URL_other, 64)                                                                             \
    KEY(CHECK_FOR_UPDATES_URL, 65)                                                                                     \
    KEY(CHANGELOG_URL, 66)

enum class URLKeys : int
{
#define PELNAR_LINK_KEY(name, number) name = number,
    PELNAR_LINK_KEYS(PELNAR_LINK_KEY)
#undef PELNAR_LINK_KEY
};

/// Puts every pair at the end of the map, because \a pairs is in the order of the keys. If a key appears twice, the
/// first pair stays.
inline std::map<URLKeys, std::string> MakeLinkKeyNames(std::initializer_list<std::pair<URLKeys, char const*>> pairs)
{
    std::map<URLKeys, std::string> names;
    for (auto const& [key, name] : pairs)
    {
        names.emplace_hint(names.end(), key, name);
    }
    return names;
}

/// The name of each link key, in the order of the numbers.
static std::map<URLKeys, std::string> const LINK_KEY_NAMES = MakeLinkKeyNames({
#define PELNAR_LINK_KEY(name, number) {URLKeys::name, #name},
    PELNAR_LINK_KEYS(PELNAR_LINK_KEY)
#undef PELNAR_LINK_KEY
});
#undef PELNAR_LINK_KEYS

} // namespace Pelnar
