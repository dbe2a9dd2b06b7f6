// PolicyTest.cpp: whether an item is offered, and the order of version texts. Pure values.
#include "Engine/core/check/CheckRules.h"
#include "Engine/core/check/StandardVersionComparison.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <stdexcept>
#include <utility>
#include <vector>

namespace
{

using namespace Pelnar::Engine;

OfferQuestion question(CheckKind kind, char const* item, char const* bundle, char const* skipped,
                       char const* failed = "", char const* heldBack = "")
{
    return {kind,
            QString::fromLatin1(item),
            QString::fromLatin1(bundle),
            QString::fromLatin1(skipped),
            QString::fromLatin1(failed),
            QString::fromLatin1(heldBack)};
}

TEST(OfferPolicy, NewerThanTheBundleAndNotSkipped)
{
    struct
    {
        OfferQuestion question;
        OfferVerdict expected;
    } const rows[] = {
        {question(CheckKind::Probe, "5.1", "5.0", ""), OfferVerdict::Offered},
        {question(CheckKind::Probe, "5.0", "5.0", ""), OfferVerdict::NotNewer},
        {question(CheckKind::Interactive, "4.9", "5.0", ""), OfferVerdict::NotNewer},
        {question(CheckKind::Probe, "4.9", "", ""), OfferVerdict::Offered},
        {question(CheckKind::Probe, "5.1", "5.0", "5.1"), OfferVerdict::Skipped},
        {question(CheckKind::Background, "5.1", "5.0", "5.1"), OfferVerdict::Skipped},
        {question(CheckKind::Background, "5.1", "5.0", "5.1.0"), OfferVerdict::Skipped},
        {question(CheckKind::Background, "5.1", "5.0", "5.2"), OfferVerdict::Skipped},
        {question(CheckKind::Background, "5.2", "5.0", "5.1"), OfferVerdict::Offered},
        {question(CheckKind::Interactive, "5.1", "5.0", "5.1"), OfferVerdict::Offered},
        {question(CheckKind::Interactive, "5.1", "5.0", "5.2"), OfferVerdict::Offered},
        {question(CheckKind::Probe, "5.1", "5.0", "", "5.1"), OfferVerdict::Failed},
        {question(CheckKind::Background, "5.1", "5.0", "", "5.1"), OfferVerdict::Failed},
        {question(CheckKind::Background, "5.01", "5.0", "", "5.1"), OfferVerdict::Failed},
        {question(CheckKind::Background, "5.1", "5.0", "", "5.2"), OfferVerdict::Offered},
        {question(CheckKind::Background, "5.3", "5.0", "", "5.2"), OfferVerdict::Offered},
        {question(CheckKind::Interactive, "5.1", "5.0", "", "5.1"), OfferVerdict::Offered},
        {question(CheckKind::Background, "5.1", "5.0", "", "", "5.1"), OfferVerdict::HeldBack},
        {question(CheckKind::Background, "5.01", "5.0", "", "", "5.1"), OfferVerdict::HeldBack},
        {question(CheckKind::Background, "5.2", "5.0", "", "", "5.1"), OfferVerdict::Offered},
        {question(CheckKind::Probe, "5.1", "5.0", "", "", "5.1"), OfferVerdict::Offered},
        {question(CheckKind::Interactive, "5.1", "5.0", "", "", "5.1"), OfferVerdict::Offered},
    };
    for (auto const& row : rows)
    {
        EXPECT_EQ(JudgeOffer(row.question, &CompareVersionTexts), row.expected)
            << row.question.itemVersion.toStdString() << " skipped " << row.question.skippedVersion.toStdString()
            << " failed " << row.question.failedVersion.toStdString();
    }
}

TEST(OfferPolicy, CriticalVersionIsOfferedThoughItWasSkipped)
{
    OfferQuestion critical = question(CheckKind::Background, "5.1", "5.0", "5.1");
    critical.isCritical = true;
    EXPECT_EQ(JudgeOffer(critical, &CompareVersionTexts), OfferVerdict::Offered);
}

TEST(OfferPolicy, ExceptionsOfTheOrderPass)
{
    EXPECT_THROW((void)JudgeOffer(question(CheckKind::Probe, "x", "5.0", ""),
                                  [](QString const&, QString const&) -> int { throw std::runtime_error("no"); }),
                 std::runtime_error);
}

TEST(OfferPolicy, NewestItemOfEqualsIsTheFirstWithADownload)
{
    std::vector<FeedItem> items(4);
    items[0].versionString = QStringLiteral("9.0"); // no download
    for (size_t position = 1; position < 4; ++position)
    {
        items[position].versionString = position == 1 ? QStringLiteral("5.0") : QStringLiteral("5.1");
        items[position].fileUrl = QUrl(QStringLiteral("https://a.example/%1.zip").arg(position));
    }
    EXPECT_EQ(NewestItem(items, &CompareVersionTexts), 2);
    EXPECT_EQ(NewestItem({}, &CompareVersionTexts), std::nullopt);
}

TEST(StandardOrder, OldestFirst)
{
    std::vector<char const*> const ordered = {"0.9",
                                              "1.0a",
                                              "1.0b1",
                                              "1.0b2",
                                              "1.0b10",
                                              "1.0rc",
                                              "1.0",
                                              "1.0.0",
                                              "1.0.1",
                                              "1.2",
                                              "1.10",
                                              "2",
                                              "10",
                                              "99999999999999999999",
                                              "100000000000000000000"};
    for (size_t left = 0; left < ordered.size(); ++left)
    {
        for (size_t right = 0; right < ordered.size(); ++right)
        {
            int const order =
                CompareVersionTexts(QString::fromLatin1(ordered[left]), QString::fromLatin1(ordered[right]));
            EXPECT_EQ(order < 0, left < right) << ordered[left] << " and " << ordered[right];
            EXPECT_EQ(order > 0, left > right) << ordered[left] << " and " << ordered[right];
        }
    }
}

TEST(StandardOrder, SeparatorsAndLeadingZerosDoNotCount)
{
    for (auto const& [a, b] : {std::pair("1.2", "1-2"), std::pair("1.02", "1.2"), std::pair("1.2 b1", "1.2b1"),
                               std::pair("", "."), std::pair("007", "7")})
    {
        EXPECT_EQ(CompareVersionTexts(QString::fromLatin1(a), QString::fromLatin1(b)), 0) << a << " and " << b;
    }
}

} // namespace
