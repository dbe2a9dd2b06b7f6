// PolicyTest.cpp: offering an item, ordering version texts, wording errors: the engine's other decisions on plain
// values.
#include "Engine/core/EngineError.h"
#include "Engine/core/check/CheckPolicy.h"
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

std::vector<EngineError> everyError()
{
    std::vector<EngineError> errors;
    for (int number = 0; number < 900; ++number)
    {
        EngineError const error = MakeError(static_cast<ErrorCause>(number));
        if (error.sentence.English() != QStringLiteral("The check for updates failed: try again later.") &&
            error.cause != ErrorCause::HttpStatus && (number < 700 || number >= 750))
        {
            errors.push_back(error);
        }
    }
    for (int status = 200; status < 600; ++status)
    {
        errors.push_back(MakeHttpStatusError(status));
    }
    for (FeedErrorKind const kind :
         {FeedErrorKind::Malformed, FeedErrorKind::DocumentType, FeedErrorKind::TooDeep,
          FeedErrorKind::TooManyAttributes, FeedErrorKind::TagTooLong, FeedErrorKind::TooManyItems,
          FeedErrorKind::TooManyNamespaces, FeedErrorKind::TooMuchMarkup, FeedErrorKind::NotAFeed})
    {
        FeedParseError error;
        error.kind = kind;
        error.sentence = Sentence("sentence %1", {QString::number(static_cast<int>(kind))});
        errors.push_back(MakeFeedError(error));
    }
    return errors;
}

TEST(EngineErrors, EachHasANumberAndASentenceOfItsOwn)
{
    std::set<std::pair<QString, int>> numbers;
    std::set<QString> sentences;
    std::vector<EngineError> const errors = everyError();
    EXPECT_EQ(errors.size(), 400u + 9u + 63u);
    for (EngineError const& error : errors)
    {
        EXPECT_TRUE(numbers.insert({error.UnderlyingDomain(), error.UnderlyingCode()}).second)
            << error.UnderlyingCode();
        EXPECT_TRUE(sentences.insert(error.sentence.English()).second) << error.sentence.English().toStdString();
    }
}

TEST(EngineErrors, UnreadableFeedSaysWhatToDoAndThenNamesTheLine)
{
    FeedParseError error;
    error.kind = FeedErrorKind::TooDeep;
    error.sentence = Sentence("Line %1 is %2.", {QStringLiteral("4"), QStringLiteral("%1")});
    EXPECT_EQ(MakeFeedError(error).sentence.English(),
              QStringLiteral("The update feed cannot be read: tell the publisher. Line 4 is %1."));
    EXPECT_EQ(MakeFeedError(error).sentence.Translated(),
              QStringLiteral("The update feed cannot be read: tell the publisher. Line 4 is %1."));
}

TEST(EngineErrors, CodesAreThePublishedOnes)
{
    std::map<ErrorCause, int> const ownCodes = {{ErrorCause::NoUpdate, 1001},
                                                {ErrorCause::Cancelled, 4007},
                                                {ErrorCause::BundleUnnamed, 3002},
                                                {ErrorCause::HelperFailed, 4005}};
    for (EngineError const& error : everyError())
    {
        int const cause = static_cast<int>(error.cause);
        auto const own = ownCodes.find(error.cause);
        int const ofItsGroup = cause >= 700 && cause < 750   ? 1000
                               : cause >= 750 && cause < 760 ? 3001
                               : cause >= 760 && cause < 780 ? 3002
                                                             : 1002;
        EXPECT_EQ(static_cast<int>(error.code), own != ownCodes.end() ? own->second : ofItsGroup) << cause;
    }
}
TEST(EngineErrors, RemoteTextIsEscapedCutAndKeptOutOfTheSentence)
{
    QString const hostile =
        QStringLiteral("<img src='file:///etc/passwd'>\x1b[31m\n\u202e") + QString(100000, QLatin1Char('&'));
    EngineError const error = MakeError(ErrorCause::ConnectionFailed, hostile);
    EXPECT_LE(error.detail.size(), 200);
    EXPECT_FALSE(error.detail.contains(QLatin1Char('<')));
    EXPECT_FALSE(error.detail.contains(QLatin1Char('\n')));
    EXPECT_FALSE(error.detail.contains(QChar(0x1b)));
    EXPECT_FALSE(error.detail.contains(QChar(0x202e)));
    EXPECT_TRUE(error.detail.endsWith(QLatin1String("&amp;"))) << "not cut inside an escape";
    EXPECT_EQ(error.sentence.English(), MakeError(ErrorCause::ConnectionFailed).sentence.English());
}

TEST(EngineErrors, CutNeverLeavesHalfACharacter)
{
    QString text(199, QLatin1Char('x'));
    text += QStringLiteral("\U0001F600");
    EXPECT_EQ(EscapedRemoteText(text), QString(199, QLatin1Char('x')));
    EXPECT_EQ(EscapedRemoteText(QStringLiteral("\U0001F600")), QStringLiteral("\U0001F600"));
    EXPECT_TRUE(EscapedRemoteText(QString(QChar(0xD800))).isValidUtf16());
}

} // namespace
