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

enum class URLKeys : int
{
    FEEDBACK_URL = 1,
    MULTIPLE_AUDIO_MORE_URL_other = 3,
    REVIEW_FOR_APPSTORE_URL = 13,
    SPARKLE_APPCAST_URL = 14,
    DEVICE_DETECT_MORE_URL = 15,
    FORUM_URL_socialtab = 16,
    FORUM_URL_menu = 17,
    INSTAGRAM_URL_socialtab = 18,
    INSTAGRAM_URL_menu = 19,
    FACEBOOK_URL_socialtab = 20,
    FACEBOOK_URL_menu = 21,
    ODNOKLASSNIKI_URL_socialtab = 22,
    ODNOKLASSNIKI_URL_menu = 23,
    GOOGLE_PLUS_URL_socialtab = 24,
    GOOGLE_PLUS_URL_menu = 25,
    VKONTAKTE_URL_socialtab = 26,
    VKONTAKTE_URL_menu = 27,
    YOU_TUBE_URL_socialtab = 28,
    YOU_TUBE_URL_menu = 29,
    LOSSLESS_ENCODING_MORE_URL_settings = 30,
    FAQ_URL_menu = 31,
    HOMEPAGE_URL_menu = 39,
    HOMEPAGE_URL_menuabout = 40,
    HOMEPAGE_URL_socialtab = 41,
    HOMEPAGE_URL = 42,
    DOWNLOAD_URL_checkupdatest = 43,
    UPGRADE_URL_checkupdatest = 44,
    HELP_URL_menu = 45,
    LIVECHAT_URL_menu = 46,
    LIVECHAT_URL_other = 47,
    BAD_CODECS_PAGE_other = 52,
    CONTACT_SUPPORT_menu = 55,
    GET_MORE_SOFTWARE_URL_menu = 56,
    UPLOAD_ITUNES_URL_other = 57,
    CUSTOM_ABOUT_URL = 58,
    CUSTOM_ABOUT_CAPTION_URL = 59,
    THANK_FOR_INSTALL_URL = 60,
    THANK_FOR_REINSTALL_URL = 61,
    ALL_PATENTS_URL = 62,
    DRIVER_UPDATE_GUIDE_URL_other = 64,
    CHECK_FOR_UPDATES_URL = 65,
    CHANGELOG_URL = 66,
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
    {URLKeys::FEEDBACK_URL, "FEEDBACK_URL"},
    {URLKeys::MULTIPLE_AUDIO_MORE_URL_other, "MULTIPLE_AUDIO_MORE_URL_other"},
    {URLKeys::REVIEW_FOR_APPSTORE_URL, "REVIEW_FOR_APPSTORE_URL"},
    {URLKeys::SPARKLE_APPCAST_URL, "SPARKLE_APPCAST_URL"},
    {URLKeys::DEVICE_DETECT_MORE_URL, "DEVICE_DETECT_MORE_URL"},
    {URLKeys::FORUM_URL_socialtab, "FORUM_URL_socialtab"},
    {URLKeys::FORUM_URL_menu, "FORUM_URL_menu"},
    {URLKeys::INSTAGRAM_URL_socialtab, "INSTAGRAM_URL_socialtab"},
    {URLKeys::INSTAGRAM_URL_menu, "INSTAGRAM_URL_menu"},
    {URLKeys::FACEBOOK_URL_socialtab, "FACEBOOK_URL_socialtab"},
    {URLKeys::FACEBOOK_URL_menu, "FACEBOOK_URL_menu"},
    {URLKeys::ODNOKLASSNIKI_URL_socialtab, "ODNOKLASSNIKI_URL_socialtab"},
    {URLKeys::ODNOKLASSNIKI_URL_menu, "ODNOKLASSNIKI_URL_menu"},
    {URLKeys::GOOGLE_PLUS_URL_socialtab, "GOOGLE_PLUS_URL_socialtab"},
    {URLKeys::GOOGLE_PLUS_URL_menu, "GOOGLE_PLUS_URL_menu"},
    {URLKeys::VKONTAKTE_URL_socialtab, "VKONTAKTE_URL_socialtab"},
    {URLKeys::VKONTAKTE_URL_menu, "VKONTAKTE_URL_menu"},
    {URLKeys::YOU_TUBE_URL_socialtab, "YOU_TUBE_URL_socialtab"},
    {URLKeys::YOU_TUBE_URL_menu, "YOU_TUBE_URL_menu"},
    {URLKeys::LOSSLESS_ENCODING_MORE_URL_settings, "LOSSLESS_ENCODING_MORE_URL_settings"},
    {URLKeys::FAQ_URL_menu, "FAQ_URL_menu"},
    {URLKeys::HOMEPAGE_URL_menu, "HOMEPAGE_URL_menu"},
    {URLKeys::HOMEPAGE_URL_menuabout, "HOMEPAGE_URL_menuabout"},
    {URLKeys::HOMEPAGE_URL_socialtab, "HOMEPAGE_URL_socialtab"},
    {URLKeys::HOMEPAGE_URL, "HOMEPAGE_URL"},
    {URLKeys::DOWNLOAD_URL_checkupdatest, "DOWNLOAD_URL_checkupdatest"},
    {URLKeys::UPGRADE_URL_checkupdatest, "UPGRADE_URL_checkupdatest"},
    {URLKeys::HELP_URL_menu, "HELP_URL_menu"},
    {URLKeys::LIVECHAT_URL_menu, "LIVECHAT_URL_menu"},
    {URLKeys::LIVECHAT_URL_other, "LIVECHAT_URL_other"},
    {URLKeys::BAD_CODECS_PAGE_other, "BAD_CODECS_PAGE_other"},
    {URLKeys::CONTACT_SUPPORT_menu, "CONTACT_SUPPORT_menu"},
    {URLKeys::GET_MORE_SOFTWARE_URL_menu, "GET_MORE_SOFTWARE_URL_menu"},
    {URLKeys::UPLOAD_ITUNES_URL_other, "UPLOAD_ITUNES_URL_other"},
    {URLKeys::CUSTOM_ABOUT_URL, "CUSTOM_ABOUT_URL"},
    {URLKeys::CUSTOM_ABOUT_CAPTION_URL, "CUSTOM_ABOUT_CAPTION_URL"},
    {URLKeys::THANK_FOR_INSTALL_URL, "THANK_FOR_INSTALL_URL"},
    {URLKeys::THANK_FOR_REINSTALL_URL, "THANK_FOR_REINSTALL_URL"},
    {URLKeys::ALL_PATENTS_URL, "ALL_PATENTS_URL"},
    {URLKeys::DRIVER_UPDATE_GUIDE_URL_other, "DRIVER_UPDATE_GUIDE_URL_other"},
    {URLKeys::CHECK_FOR_UPDATES_URL, "CHECK_FOR_UPDATES_URL"},
    {URLKeys::CHANGELOG_URL, "CHANGELOG_URL"},
});

} // namespace Pelnar
