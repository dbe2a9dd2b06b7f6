// SignedFeedText.h: signed feeds for tests, written independently of the product. Plain C++.
#pragma once

#include "tests/engine/FeedText.h"
#include "tests/installer/Ed25519Vectors.h"

#include <QByteArray>

#include <ostream>
#include <vector>

namespace Pelnar::Testing
{

/// The statements of a signed feed's channel; an empty part is left out.
inline QByteArray TermsOf(QByteArray const& serial, QByteArray const& expires)
{
    QByteArray text;
    if (!serial.isEmpty())
    {
        text += "<p:serial xmlns:p=\"https://pelnar.example/xml-namespaces/appcast\">" + serial + "</p:serial>\n";
    }
    if (!expires.isEmpty())
    {
        text += "<expires xmlns=\"https://pelnar.example/xml-namespaces/appcast\">" + expires + "</expires>\n";
    }
    return text;
}

/// The last line of a feed with \a signature.
inline QByteArray BlockOf(QByteArray const& signature)
{
    return "<!-- pelnar-signature: ed25519 " + signature + " -->\n";
}

/// The signature of \a content by the key pair with that seed byte.
inline QByteArray SignatureOfFeed(QByteArray const& content, std::uint8_t seedByte = 7)
{
    return QByteArray::fromStdString(Base64(Sign(content.toStdString(), MakeKeyPair(seedByte))));
}

inline QByteArray Signed(QByteArray const& content, std::uint8_t seedByte = 7)
{
    return content + BlockOf(SignatureOfFeed(content, seedByte));
}

constexpr char FAR_AHEAD[] = "9999-12-31T23:59:59Z";

/// A signed feed with one item.
inline QByteArray SignedFeedOf(QByteArray const& version, QByteArray const& serial = "7",
                               QByteArray const& expires = FAR_AHEAD)
{
    return Signed(FeedWith(TermsOf(serial, expires) + ItemOf(version)));
}

/// A defect of a signed feed.
struct SpoiltFeed
{
    char const* name;
    QByteArray feed;
    int cause; ///< the number of the error
};

inline std::vector<SpoiltFeed> SpoiltFeeds()
{
    QByteArray const content = FeedWith(TermsOf("7", FAR_AHEAD) + ItemOf("5.1"));
    QByteArray const signature = SignatureOfFeed(content);
    QByteArray const block = BlockOf(signature);
    QByteArray const rootEnd = "</rss>\n";
    QByteArray withoutEnd = content;
    withoutEnd.chop(rootEnd.size());
    QByteArray blockInText = content;
    blockInText.replace("<item>", "<item><description><![CDATA[" + block + "]]></description>");
    QByteArray rewritten = Signed(content);
    rewritten.replace("\n", "\r\n");
    QByteArray lettersChanged = content;
    lettersChanged.replace("5.1", "5.2");
    QByteArray malleable = QByteArray::fromStdString(Base64(Malleable(Sign(content.toStdString(), MakeKeyPair(7)))));
    return {
        {"Unsigned", content, 750},
        {"Empty", "", 750},
        {"SpeltDifferently", content + QByteArray(block).replace("pelnar-signature", "Pelnar-Signature"), 750},
        {"BlockInTheMiddle", withoutEnd + block + rootEnd, 751},
        {"BlockAtTheStart", block + content, 756},
        {"ElementAfterTheBlock", content + block + "<item/>\n", 751},
        {"CommentAfterTheBlock", content + block + "<!-- -->\n", 751},
        {"TwoBlocks", content + block + block, 752},
        {"SignedAgainOverTheBlock", Signed(content + block), 752},
        {"BlockInATextAsWell", Signed(blockInText), 752},
        {"BlankLineAfter", content + block + "\n", 753},
        {"BlankAfter", content + block + " ", 753},
        {"ZeroByteAfter", content + block + QByteArray(1, '\0'), 753},
        {"LineEndsRewritten", rewritten, 754},
        {"LastLineEndRewritten", content + QByteArray(block).replace("\n", "\r\n"), 754},
        {"LineFeedBecameCarriageReturn", content + QByteArray(block).replace("\n", "\r"), 754},
        {"OtherAlgorithm", content + QByteArray(block).replace("ed25519", "mldsa44"), 755},
        {"NoAlgorithm", content + QByteArray(block).replace("ed25519 ", ""), 756},
        {"NoSignature", content + BlockOf(""), 756},
        {"NothingInTheBlock", content + "<!-- pelnar-signature:  -->\n", 756},
        {"SixtyThreeBytes", content + BlockOf(QByteArray(63, 'x').toBase64()), 756},
        {"SixtyFiveBytes", content + BlockOf(QByteArray(65, 'x').toBase64()), 756},
        {"TwoSignatures", content + BlockOf(signature + ' ' + signature), 756},
        {"BlankInTheSignature", content + BlockOf(QByteArray(signature).insert(44, ' ')), 756},
        {"LineEndInTheSignature", content + BlockOf(QByteArray(signature).insert(44, '\n')), 756},
        {"PaddingMissing", content + BlockOf(QByteArray(signature).replace("=", "")), 756},
        {"NoBase64", content + BlockOf(QByteArray(signature).replace(10, 1, "*")), 756},
        {"AlphabetOfAddresses", content + BlockOf(QByteArray(87, '_') + "="), 756},
        {"NotAtTheStartOfItsLine", content + ' ' + block, 756},
        {"OnTheLastLineOfTheContent", Signed(content.chopped(1)), 756},
        {"NoLineEnd", content + block.chopped(1), 756},
        {"CommentNotClosed", content + QByteArray(block).replace(" -->", ""), 756},
        {"AnotherKey", Signed(content, 9), 757},
        {"ContentChanged", lettersChanged + block, 757},
        {"ContentOfLineFeedsNowCarriageReturns", QByteArray(content).replace("\n", "\r\n") + block, 757},
        {"ContentShorter", content.mid(1) + block, 757},
        {"ContentLonger", content + "\n" + block, 757},
        {"SignatureOfSomethingElse", content + BlockOf(SignatureOfFeed("something else")), 757},
        {"MalleableSignature", content + BlockOf(malleable), 757},
        {"ZeroSignature", content + BlockOf(QByteArray(64, '\0').toBase64()), 757},
        {"WebPage", "<!DOCTYPE html>\n<html><head><title>Sign in</title></head></html>\n", 707},
    };
}

inline void PrintTo(SpoiltFeed const& row, std::ostream* out)
{
    *out << row.name;
}

} // namespace Pelnar::Testing
