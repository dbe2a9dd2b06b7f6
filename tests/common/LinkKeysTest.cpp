#include "common/LinkKeys.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace
{

using Pelnar::LINK_KEY_NAMES;
using Pelnar::MakeLinkKeyNames;
using Pelnar::URLKeys;

/// The numbers are written again by hand, because they are part of the interface with the host framework.
struct Row
{
    int number;
    URLKeys key;
    char const* name;
};
Row const ROWS[] = {
    {1, URLKeys::FEEDBACK_URL, "FEEDBACK_URL"},
    {3, URLKeys::MULTIPLE_AUDIO_MORE_URL_other, "MULTIPLE_AUDIO_MORE_URL_other"},
    {13, URLKeys::REVIEW_FOR_APPSTORE_URL, "REVIEW_FOR_APPSTORE_URL"},
    {14, URLKeys::SPARKLE_APPCAST_URL, "SPARKLE_APPCAST_URL"},
    {15, URLKeys::DEVICE_DETECT_MORE_URL, "DEVICE_DETECT_MORE_URL"},
    {16, URLKeys::FORUM_URL_socialtab, "FORUM_URL_socialtab"},
    {17, URLKeys::FORUM_URL_menu, "FORUM_URL_menu"},
    {18, URLKeys::INSTAGRAM_URL_socialtab, "INSTAGRAM_URL_socialtab"},
    {19, URLKeys::INSTAGRAM_URL_menu, "INSTAGRAM_URL_menu"},
    {20, URLKeys::FACEBOOK_URL_socialtab, "FACEBOOK_URL_socialtab"},
    {21, URLKeys::FACEBOOK_URL_menu, "FACEBOOK_URL_menu"},
    {22, URLKeys::ODNOKLASSNIKI_URL_socialtab, "ODNOKLASSNIKI_URL_socialtab"},
    {23, URLKeys::ODNOKLASSNIKI_URL_menu, "ODNOKLASSNIKI_URL_menu"},
    {24, URLKeys::GOOGLE_PLUS_URL_socialtab, "GOOGLE_PLUS_URL_socialtab"},
    {25, URLKeys::GOOGLE_PLUS_URL_menu, "GOOGLE_PLUS_URL_menu"},
    {26, URLKeys::VKONTAKTE_URL_socialtab, "VKONTAKTE_URL_socialtab"},
    {27, URLKeys::VKONTAKTE_URL_menu, "VKONTAKTE_URL_menu"},
    {28, URLKeys::YOU_TUBE_URL_socialtab, "YOU_TUBE_URL_socialtab"},
    {29, URLKeys::YOU_TUBE_URL_menu, "YOU_TUBE_URL_menu"},
    {30, URLKeys::LOSSLESS_ENCODING_MORE_URL_settings, "LOSSLESS_ENCODING_MORE_URL_settings"},
    {31, URLKeys::FAQ_URL_menu, "FAQ_URL_menu"},
    {39, URLKeys::HOMEPAGE_URL_menu, "HOMEPAGE_URL_menu"},
    {40, URLKeys::HOMEPAGE_URL_menuabout, "HOMEPAGE_URL_menuabout"},
    {41, URLKeys::HOMEPAGE_URL_socialtab, "HOMEPAGE_URL_socialtab"},
    {42, URLKeys::HOMEPAGE_URL, "HOMEPAGE_URL"},
    {43, URLKeys::DOWNLOAD_URL_checkupdatest, "DOWNLOAD_URL_checkupdatest"},
    {44, URLKeys::UPGRADE_URL_checkupdatest, "UPGRADE_URL_checkupdatest"},
    {45, URLKeys::HELP_URL_menu, "HELP_URL_menu"},
    {46, URLKeys::LIVECHAT_URL_menu, "LIVECHAT_URL_menu"},
    {47, URLKeys::LIVECHAT_URL_other, "LIVECHAT_URL_other"},
    {52, URLKeys::BAD_CODECS_PAGE_other, "BAD_CODECS_PAGE_other"},
    {55, URLKeys::CONTACT_SUPPORT_menu, "CONTACT_SUPPORT_menu"},
    {56, URLKeys::GET_MORE_SOFTWARE_URL_menu, "GET_MORE_SOFTWARE_URL_menu"},
    {57, URLKeys::UPLOAD_ITUNES_URL_other, "UPLOAD_ITUNES_URL_other"},
    {58, URLKeys::CUSTOM_ABOUT_URL, "CUSTOM_ABOUT_URL"},
    {59, URLKeys::CUSTOM_ABOUT_CAPTION_URL, "CUSTOM_ABOUT_CAPTION_URL"},
    {60, URLKeys::THANK_FOR_INSTALL_URL, "THANK_FOR_INSTALL_URL"},
    {61, URLKeys::THANK_FOR_REINSTALL_URL, "THANK_FOR_REINSTALL_URL"},
    {62, URLKeys::ALL_PATENTS_URL, "ALL_PATENTS_URL"},
    {64, URLKeys::DRIVER_UPDATE_GUIDE_URL_other, "DRIVER_UPDATE_GUIDE_URL_other"},
    {65, URLKeys::CHECK_FOR_UPDATES_URL, "CHECK_FOR_UPDATES_URL"},
    {66, URLKeys::CHANGELOG_URL, "CHANGELOG_URL"},
};

TEST(LinkKeys, EveryKeyHasItsNumberAndName)
{
    for (Row const& row : ROWS)
    {
        EXPECT_EQ(static_cast<int>(row.key), row.number) << row.name;
        auto const found = LINK_KEY_NAMES.find(static_cast<URLKeys>(row.number));
        ASSERT_NE(found, LINK_KEY_NAMES.end()) << row.number;
        EXPECT_EQ(found->second, row.name);
    }
}

TEST(LinkKeys, TableHoldsNothingElseAndIsInTheOrderOfTheNumbers)
{
    std::vector<int> expected;
    for (Row const& row : ROWS)
    {
        expected.push_back(row.number);
    }
    std::vector<int> numbers;
    for (auto const& [key, name] : LINK_KEY_NAMES)
    {
        numbers.push_back(static_cast<int>(key));
    }
    EXPECT_EQ(numbers, expected);
    EXPECT_EQ(numbers.size(), 42u);
}

TEST(LinkKeys, FeedAndChangelogAreFoundByNumber)
{
    EXPECT_EQ(LINK_KEY_NAMES.at(static_cast<URLKeys>(14)), "SPARKLE_APPCAST_URL");
    EXPECT_EQ(LINK_KEY_NAMES.at(static_cast<URLKeys>(66)), "CHANGELOG_URL");
    EXPECT_EQ(LINK_KEY_NAMES.count(static_cast<URLKeys>(2)), 0u) << "reserved for the host framework";
}

TEST(LinkKeys, KeyAlreadyPresentIsNotReplaced)
{
    auto const names = MakeLinkKeyNames(
        {{URLKeys::FEEDBACK_URL, "first"}, {URLKeys::CHANGELOG_URL, "last"}, {URLKeys::FEEDBACK_URL, "second"}});
    EXPECT_EQ(names,
              (std::map<URLKeys, std::string>{{URLKeys::FEEDBACK_URL, "first"}, {URLKeys::CHANGELOG_URL, "last"}}));
}

} // namespace
