// EngineError.h: every way in which a check fails, as plain values: the published code, the cause beneath it with a
// number of its own, one sentence for a person.
// Thread: any; no state. Ownership: values only.
#pragma once

#include "Engine/core/Sentence.h"
#include "Engine/core/feed/FeedParser.h"
#include "Engine/core/payload/UpdateFault.h"

#include <QByteArray>
#include <QString>

namespace Pelnar::Engine
{

/// The published codes of the engine's error domain.
enum class ErrorCode
{
    AppcastParse = 1000,
    NoUpdate = 1001,
    Appcast = 1002,

    TemporaryFolder = 2000,
    Download = 2001,

    Unarchiving = 3000,
    Signature = 3001,
    Validation = 3002,

    FileCopy = 4000,
    Relaunch = 4004,
    Installation = 4005,
    Downgrade = 4006,
    Cancelled = 4007,
    NotWritable = 4012,
};

/// What happened. The numbers are published: they are the codes of the underlying errors and never change.
enum class ErrorCause
{
    NoUpdate = 0,

    // The feed's address.
    NoFeedAddress = 100,
    InvalidAddress = 101,
    SchemeRefused = 102,
    InsecureAddress = 103,
    AddressNotPublic = 104, ///< a feed from elsewhere leads to this computer or its link

    // The way to the server.
    HostNotFound = 200,
    ConnectionRefused = 201,
    NetworkUnreachable = 202,
    ConnectTimeout = 203,
    ConnectionFailed = 204,
    ProxyFailed = 205,
    TotalTimeout = 206,
    TooSlow = 207,
    ProxyRefused = 208,
    ProxyAsksForPassword = 209,

    // The server's certificate and the secure connection.
    CertificateSelfSigned = 300,
    CertificateAuthorityUnknown = 301,
    CertificateExpired = 302,
    CertificateNotYetValid = 303,
    CertificateWrongName = 304,
    CertificateInvalid = 305,
    HandshakeRefused = 306,
    SecureConnectionUnavailable = 307,

    // The answer.
    IncompleteHead = 400,
    IncompleteBody = 401,
    HeadTooLarge = 402,
    BodyTooLarge = 403,
    MalformedHead = 404,
    ContradictoryLength = 405,
    SurplusBody = 406,
    MalformedChunk = 407,
    TransferEncodingRefused = 408,
    ContentEncodingRefused = 409,
    HttpStatus = 410, ///< the underlying error has the status as its code, in a domain of its own

    // Redirects.
    RedirectDowngrade = 500,
    RedirectScheme = 501,
    RedirectInvalid = 502,
    RedirectWithoutLocation = 503,
    TooManyRedirects = 504,

    // A feed that is a file.
    FileNotFound = 600,
    FileNotRegular = 601,
    FileTooLarge = 602,
    FileUnreadable = 603,
    FileOnOtherHost = 604,

    // The feed's bytes.
    FeedMalformed = 700,
    FeedDocumentType = 701,
    FeedTooDeep = 702,
    FeedTooManyAttributes = 703,
    FeedTagTooLong = 704,
    FeedTooManyItems = 705,
    FeedTooManyNamespaces = 706,
    FeedIsWebPage = 707,
    FeedTooMuchMarkup = 708,

    // The signature of a feed that must have one.
    FeedUnsigned = 750,
    FeedSignatureNotAtEnd = 751,
    FeedSignedTwice = 752,
    FeedBytesAfterSignature = 753,
    FeedLineEndsRewritten = 754,
    FeedSignatureUnknown = 755,
    FeedSignatureMalformed = 756,
    FeedSignatureWrong = 757,

    // What such a feed says of itself.
    FeedSerialUnusable = 760,
    FeedExpiryUnusable = 761,
    FeedReplayed = 762,
    FeedExpired = 763,

    // What the publisher's root key says of the keys that sign.
    KeyStatementMissing = 770,
    KeyStatementMalformed = 771,
    KeyStatementSignatureWrong = 772,
    KeyStatementForAnother = 773,
    KeyStatementReplayed = 774,
    KeyStatementExpired = 775,
    RootKeyMalformed = 776,

    // The application's own answers.
    ForeignItem = 800,
    DelegateRaised = 801,

    // Checks that are not made.
    UpdatesDisabled = 850,
    HeldBack = 851,

    // An update that was begun.
    Cancelled = 852,
    BundleUnnamed = 853,
    HelperFailed = 854,

    // The download of an archive.
    DownloadLengthInvalid = 900,
    DownloadLengthDiffers = 901,
    DownloadRangeWrong = 902,
    DownloadTooMuch = 903,
    DownloadTooOften = 904,
    DownloadTooLong = 905,
    DownloadPaused = 906, ///< goes on at the next check
    DownloadBusy = 910,
    DownloadFolderUnusable = 911,
    DownloadFolderUnsafe = 912,
    DownloadNoRoom = 913,
    DownloadQuotaReached = 914,
    DownloadFileTooLarge = 915,
    DownloadDiskFailed = 916,
    DownloadSystemBusy = 917,

    // The installed application, when it cannot be replaced.
    BundleMissing = 950,
    BundleIsLink = 951,
    BundleOfPackage = 952,
    BundleInImage = 953,
    BundleOnReadOnlyFileSystem = 954,
    BundleIsMountPoint = 955,
    BundleImmutable = 956,
    BundleOfAnotherUser = 957,
    BundleNotWritable = 958,
    BundleFolderUnsafe = 959,
    NoRoomForUpdate = 960,
    BundleInSharedFolder = 961,
    BundleOpenToGroup = 962,
    BundleCannotBeLocked = 963,
    BundleCannotBeMoved = 964,
    BundleOwnerHidden = 965,

    Fault = 1000, ///< an UpdateFault, whose number is added
};

struct EngineError
{
    ErrorCode code = ErrorCode::Appcast;
    ErrorCause cause = ErrorCause::NoUpdate;
    int httpStatus = 0;                    ///< for HttpStatus only
    UpdateFault fault = UpdateFault::None; ///< for Fault only
    Sentence sentence;                     ///< our own words only: what happened and what to do
    QString detail; ///< may quote others; escaped and at most MAX_REMOTE_TEXT characters; may be empty

    /// The domain and code of the underlying error. No two failures share both.
    QString UnderlyingDomain() const;
    int UnderlyingCode() const;
};

constexpr int MAX_REMOTE_TEXT = 200;

/// Text of others made fit for a log line or a label: markup escaped, hidden characters (SafeText.h) replaced, cut at
/// MAX_REMOTE_TEXT characters, never inside an escape.
QString EscapedRemoteText(QString const& text);

/// \a remoteDetail is escaped here.
EngineError MakeError(ErrorCause cause, QString const& remoteDetail = {});
EngineError MakeHttpStatusError(int status);
/// \a error, met on the way to an archive: with the code of downloads, and in words that do not speak of the feed.
EngineError AsDownloadError(EngineError error);
/// \a cause is NoRoomForUpdate, DownloadNoRoom or DownloadQuotaReached; the sentence says how much the archive needs
/// and how much is free.
EngineError MakeRoomError(ErrorCause cause, quint64 neededBytes, quint64 freeBytes);
/// REQUIRES: error.kind is not None.
EngineError MakeFeedError(FeedParseError const& error);

} // namespace Pelnar::Engine
