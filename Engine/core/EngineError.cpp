#include "Engine/core/EngineError.h"

#include "Engine/core/SafeText.h"

#include <algorithm>
#include <array>

namespace Pelnar::Engine
{
namespace
{

char const* SentenceOf(ErrorCause cause)
{
    switch (cause)
    {
    case ErrorCause::NoUpdate:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors", "You are running the newest version.");

    case ErrorCause::NoFeedAddress:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "This application does not say where its updates are published: install it again from its publisher.");
    case ErrorCause::InvalidAddress:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The address of the update feed is not a valid address: install the application again.");
    case ErrorCause::SchemeRefused:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The address of the update feed is of a kind that is not allowed: it must begin with https.");
    case ErrorCause::InsecureAddress:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The address of the update feed is not secure: it must begin with https.");
    case ErrorCause::AddressNotPublic:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The update server leads to an address that is inside your own computer or network "
                                 "link. Contact the publisher.");

    case ErrorCause::HostNotFound:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The update server was not found: check the connection to the internet and try again.");
    case ErrorCause::ConnectionRefused:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors", "The update server refused the connection: try again later.");
    case ErrorCause::NetworkUnreachable:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The update server cannot be reached from this network: check the connection and try again.");
    case ErrorCause::ConnectTimeout:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The update server did not accept the connection in time: check the connection and try again.");
    case ErrorCause::ConnectionFailed:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors", "The connection to the update server failed: try again later.");
    case ErrorCause::ProxyFailed:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The network proxy did not let the connection through: check the proxy's settings.");
    case ErrorCause::ProxyRefused:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The network proxy refuses to connect to the update server. Ask the administrator "
                                 "of your network.");
    case ErrorCause::ProxyAsksForPassword:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The network proxy does not accept your user name and password. Check the proxy's "
                                 "settings.");
    case ErrorCause::TotalTimeout:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors", "The update server took too long to answer: try again later.");
    case ErrorCause::TooSlow:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors", "The update server answers too slowly: try again later.");

    case ErrorCause::CertificateSelfSigned:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The update server's certificate is signed by itself only, so its identity is unproved: try another "
            "network, and tell the publisher if it stays so.");
    case ErrorCause::CertificateAuthorityUnknown:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The update server's certificate comes from an authority that this computer does not know: try another "
            "network, and tell the publisher if it stays so.");
    case ErrorCause::CertificateExpired:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The update server's certificate has expired: check the clock of this computer, and tell the publisher "
            "if it is right.");
    case ErrorCause::CertificateNotYetValid:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The update server's certificate is not valid yet: check the clock of this computer, and tell the "
            "publisher if it is right.");
    case ErrorCause::CertificateWrongName:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The update server's certificate was made for another server: try another network, and tell the "
            "publisher if it stays so.");
    case ErrorCause::CertificateInvalid:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The update server's certificate is not acceptable: try another network, and tell the publisher if it "
            "stays so.");
    case ErrorCause::HandshakeRefused:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The update server offers no secure connection that is strong enough: tell the publisher.");
    case ErrorCause::SecureConnectionUnavailable:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "This computer cannot make secure connections: install its OpenSSL library.");

    case ErrorCause::IncompleteHead:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The update server closed the connection before it answered: try again later.");
    case ErrorCause::IncompleteBody:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors", "The update feed arrived incomplete: try again.");
    case ErrorCause::HeadTooLarge:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The update server's answer has too many headers: tell the publisher.");
    case ErrorCause::BodyTooLarge:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors", "The update feed is too large: tell the publisher.");
    case ErrorCause::MalformedHead:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The update server's answer is not proper HTTP: try another network.");
    case ErrorCause::ContradictoryLength:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The update server states the feed's length in contradictory ways: tell the publisher.");
    case ErrorCause::SurplusBody:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The update server sent more than it announced: tell the publisher.");
    case ErrorCause::MalformedChunk:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The update server's answer is broken in its parts: try again.");
    case ErrorCause::TransferEncodingRefused:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The update server transfers the feed in a way that was not asked for: tell the publisher.");
    case ErrorCause::ContentEncodingRefused:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The update server sent the feed compressed, which was not asked for: tell the publisher.");
    case ErrorCause::HttpStatus:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors", "The update server answered with status %1: try again later.");

    case ErrorCause::RedirectDowngrade:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The update server points to an address that is less secure: tell the publisher.");
    case ErrorCause::RedirectScheme:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The update server points to an address of a kind that is not allowed: tell the publisher.");
    case ErrorCause::RedirectInvalid:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The update server points to something that is not an address: tell the publisher.");
    case ErrorCause::RedirectWithoutLocation:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The update server points to another address without naming it: tell the publisher.");
    case ErrorCause::TooManyRedirects:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The update server points from address to address without end: tell the publisher.");

    case ErrorCause::FileNotFound:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The file with the update feed does not exist: check its address.");
    case ErrorCause::FileNotRegular:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The address of the update feed names a folder or a device: it must name a file.");
    case ErrorCause::FileTooLarge:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The file with the update feed is too large: check its address.");
    case ErrorCause::FileUnreadable:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The file with the update feed cannot be read: check its permissions.");
    case ErrorCause::FileOnOtherHost:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The update feed is a file of another computer: copy it to this one.");

    case ErrorCause::FeedMalformed:
    case ErrorCause::FeedDocumentType:
    case ErrorCause::FeedTooDeep:
    case ErrorCause::FeedTooManyAttributes:
    case ErrorCause::FeedTagTooLong:
    case ErrorCause::FeedTooManyItems:
    case ErrorCause::FeedTooManyNamespaces:
    case ErrorCause::FeedTooMuchMarkup:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors", "The update feed cannot be read: tell the publisher.");
    case ErrorCause::FeedIsWebPage:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "A web page came in place of the update feed: sign in to this network if it asks for it, and try again.");

    case ErrorCause::FeedUnsigned:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The update feed is not signed, as this application requires: try another network, and tell the "
            "publisher if it stays so.");
    case ErrorCause::FeedSignatureNotAtEnd:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The update feed goes on behind its signature, and is refused: try another network, and tell the "
            "publisher if it stays so.");
    case ErrorCause::FeedSignedTwice:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The update feed has more than one signature, and is refused: tell the publisher.");
    case ErrorCause::FeedBytesAfterSignature:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "Something was added to the update feed after its signature: try another network, and tell the "
            "publisher if it stays so.");
    case ErrorCause::FeedLineEndsRewritten:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The line ends of the update feed were rewritten, so that its signature does not fit: tell the "
            "publisher.");
    case ErrorCause::FeedSignatureUnknown:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The update feed is signed in a way that this version does not know: install the application again from "
            "its publisher.");
    case ErrorCause::FeedSignatureMalformed:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The signature of the update feed is damaged: try again, and tell the publisher if it stays so.");
    case ErrorCause::FeedSignatureWrong:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The update feed was not signed by this application's publisher, or was changed afterwards: try another "
            "network, and tell the publisher if it stays so.");

    case ErrorCause::FeedSerialUnusable:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The update feed has no usable serial number: tell the publisher.");
    case ErrorCause::FeedExpiryUnusable:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The update feed does not say how long it holds: tell the publisher.");
    case ErrorCause::FeedReplayed:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The update feed is older than one that came before: try another network, and tell the publisher if it "
            "stays so.");
    case ErrorCause::FeedExpired:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The update feed has expired: check the clock of this computer, and tell the publisher if it is right.");

    case ErrorCause::KeyStatementMissing:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The update feed does not say which keys are valid. Try another network, and tell the "
                                 "publisher if that does not help.");
    case ErrorCause::KeyStatementMalformed:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The list of valid keys in the update feed is damaged. Tell the publisher.");
    case ErrorCause::KeyStatementSignatureWrong:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The list of valid keys in the update feed is not from this application's publisher. "
                                 "Try another network, and tell the publisher if that does not help.");
    case ErrorCause::KeyStatementForAnother:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The list of valid keys in the update feed is for another application. Tell the "
                                 "publisher.");
    case ErrorCause::KeyStatementReplayed:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The list of valid keys in the update feed is older than an earlier one. Try another "
                                 "network, and tell the publisher if that does not help.");
    case ErrorCause::KeyStatementExpired:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The list of valid keys in the update feed has expired. Check the clock of this "
                                 "computer, and tell the publisher if it is right.");
    case ErrorCause::RootKeyMalformed:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The root key of this application is damaged. Install the application again from its "
                                 "publisher.");

    case ErrorCause::ForeignItem:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The application chose an update that is not in the feed: install the application again.");
    case ErrorCause::DelegateRaised:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The application failed while it looked at the updates: restart it and try again.");

    case ErrorCause::DownloadLengthInvalid:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The feed gives a length of the update that cannot be right: tell the publisher.");
    case ErrorCause::DownloadLengthDiffers:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The update on the server is not as long as the feed says: try again later, and tell the publisher if "
            "it stays so.");
    case ErrorCause::DownloadRangeWrong:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The update server sent another part of the update than was asked for: try again later.");
    case ErrorCause::DownloadTooMuch:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The update server sent twice the size of the update, but never the whole update. Try again later.");
    case ErrorCause::DownloadTooOften:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The connection to the update server broke too many times. Try again later.");
    case ErrorCause::DownloadTooLong:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The download of the update took too long and was stopped. Try again on a faster connection.");
    case ErrorCause::DownloadPaused:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The update is not downloaded completely yet. The next check continues the download.");
    case ErrorCause::DownloadBusy:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "Another copy of the application is downloading this update: wait until it has finished.");
    case ErrorCause::DownloadFolderUnusable:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The folder for downloaded updates cannot be used: check its permissions and its disk.");
    case ErrorCause::DownloadFolderUnsafe:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The folder for downloaded updates is not yours alone: remove it, and try again.");
    case ErrorCause::DownloadNoRoom:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The update needs %1 more on the disk, where %2 are free: make room and try again.");
    case ErrorCause::DownloadQuotaReached:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The update needs %1 more than your quota on the disk leaves, which has %2 free: remove files of yours "
            "and try again.");
    case ErrorCause::DownloadFileTooLarge:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The update is a larger file than the disk for downloaded updates can hold: ask for help.");
    case ErrorCause::DownloadDiskFailed:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The disk failed while the update was written to it: check the disk and try again.");
    case ErrorCause::DownloadSystemBusy:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The computer has too little memory or too many open files for the download: close other applications "
            "and try again.");

    case ErrorCause::BundleMissing:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The application's folder was not found, so it cannot be updated: start it from where it is installed.");
    case ErrorCause::BundleIsLink:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The application was started through a link, so it cannot be updated: start it from the folder that the "
            "link points to.");
    case ErrorCause::BundleOfPackage:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The application was installed by %1, which updates it too: use the command \"%2\".");
    case ErrorCause::BundleInImage:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The application runs from an image file: replace the file %1 by the new version's.");
    case ErrorCause::BundleOnReadOnlyFileSystem:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The application stands on a disk that cannot be written: copy it to another folder and start it there.");
    case ErrorCause::BundleIsMountPoint:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The application's folder is a disk of its own, so it cannot be replaced: copy it to another folder and "
            "start it there.");
    case ErrorCause::BundleImmutable:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors", "The application is protected against every change: ask the "
                                                        "person who protected it to take the file attribute "
                                                        "\"immutable\" or \"append only\" away.");
    case ErrorCause::BundleOfAnotherUser:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The application belongs to another user of this computer: ask them, or the administrator, to update "
            "it.");
    case ErrorCause::BundleNotWritable:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "You may not change the folder of the application: ask the administrator to update it.");
    case ErrorCause::BundleFolderUnsafe:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "Other users of this computer could change the application's folder, so it is not updated there: ask "
            "the administrator to set its permissions right.");
    case ErrorCause::BundleOwnerHidden:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The application runs in a container that hides the owner of the folder \"%1\": start it outside of the "
            "container to update it.");
    case ErrorCause::NoRoomForUpdate:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "There is no room for the update: it needs %1, and %2 are free. Make room and try again.");
    case ErrorCause::BundleInSharedFolder:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "Every user of this computer may write to the folder %1, which holds the application: move the application "
            "to a folder of your own and start it there.");
    case ErrorCause::BundleOpenToGroup:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The members of the group \"%1\" may change the folder of the application: use the command \"%2\".");
    case ErrorCause::BundleCannotBeLocked:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The application is installed in %1, where files cannot be locked: move it to a folder on a local disk and "
            "start it there.");
    case ErrorCause::BundleCannotBeMoved:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The application in %1 belongs to a layer of the file system that cannot be replaced: copy it to another "
            "folder and start it there.");

    case ErrorCause::UpdatesDisabled:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "Updates of this application are switched off: ask the administrator of this computer.");
    case ErrorCause::HeldBack:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The last checks for updates failed, so the next one waits: check by hand to try at once.");

    case ErrorCause::Cancelled:
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors", "The update was cancelled: check for updates to begin again.");
    case ErrorCause::BundleUnnamed:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "This application does not say its identifier and version, so that no update can be matched to it: "
            "install it again from its publisher.");
    case ErrorCause::HelperFailed:
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The program that installs updates ended unexpectedly: try again, and install the application again if "
            "it stays so.");
    case ErrorCause::Fault:
        break; // SentenceOf(UpdateFault)
    }
    return QT_TRANSLATE_NOOP("PelnarEngine_Errors", "The check for updates failed: try again later.");
}

/// Of a cause whose usual sentence speaks of the feed.
char const* DownloadSentenceOf(EngineError const& error)
{
    if (error.cause == ErrorCause::InvalidAddress)
    {
        return QT_TRANSLATE_NOOP("PelnarEngine_Errors",
                                 "The download address in the feed is not valid: tell the publisher.");
    }
    if (error.cause == ErrorCause::SchemeRefused)
    {
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The address of the update is of a kind that is not allowed, not https: tell the publisher.");
    }
    if (error.cause == ErrorCause::InsecureAddress)
    {
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The address of the update is not secure, since it does not begin with https: tell the publisher.");
    }
    if (error.cause == ErrorCause::IncompleteBody)
    {
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The connection broke while the update was downloaded: try again, it goes on from there.");
    }
    if (error.cause == ErrorCause::ContradictoryLength)
    {
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The update server states the update's length in contradictory ways: tell the publisher.");
    }
    if (error.cause == ErrorCause::TransferEncodingRefused)
    {
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The update server transfers the update in a way that was not asked for: tell the publisher.");
    }
    if (error.cause == ErrorCause::ContentEncodingRefused)
    {
        return QT_TRANSLATE_NOOP(
            "PelnarEngine_Errors",
            "The update server sent the update compressed, which was not asked for: tell the publisher.");
    }
    return nullptr;
}

ErrorCode CodeOf(ErrorCause cause)
{
    int const number = static_cast<int>(cause);
    if (cause == ErrorCause::NoUpdate)
    {
        return ErrorCode::NoUpdate;
    }
    if (number >= 750 && number < 760)
    {
        return ErrorCode::Signature;
    }
    if (number >= 760 && number < 800)
    {
        return ErrorCode::Validation;
    }
    if (number >= 900 && number < 950)
    {
        return ErrorCode::Download;
    }
    if (number >= 950 && number < 1000)
    {
        return cause == ErrorCause::NoRoomForUpdate ? ErrorCode::TemporaryFolder : ErrorCode::NotWritable;
    }
    if (cause == ErrorCause::Cancelled)
    {
        return ErrorCode::Cancelled;
    }
    if (cause == ErrorCause::BundleUnnamed)
    {
        return ErrorCode::Validation;
    }
    if (cause == ErrorCause::HelperFailed)
    {
        return ErrorCode::Installation;
    }
    return number >= 700 && number < 750 ? ErrorCode::AppcastParse : ErrorCode::Appcast;
}

ErrorCause CauseOf(FeedErrorKind kind)
{
    switch (kind)
    {
    case FeedErrorKind::None:
    case FeedErrorKind::Malformed:
        return ErrorCause::FeedMalformed;
    case FeedErrorKind::DocumentType:
        return ErrorCause::FeedDocumentType;
    case FeedErrorKind::TooDeep:
        return ErrorCause::FeedTooDeep;
    case FeedErrorKind::TooManyAttributes:
        return ErrorCause::FeedTooManyAttributes;
    case FeedErrorKind::TagTooLong:
        return ErrorCause::FeedTagTooLong;
    case FeedErrorKind::TooManyItems:
        return ErrorCause::FeedTooManyItems;
    case FeedErrorKind::TooManyNamespaces:
        return ErrorCause::FeedTooManyNamespaces;
    case FeedErrorKind::TooMuchMarkup:
        return ErrorCause::FeedTooMuchMarkup;
    case FeedErrorKind::NotAFeed:
        return ErrorCause::FeedIsWebPage;
    }
    return ErrorCause::FeedMalformed;
}

} // namespace

QString EngineError::UnderlyingDomain() const
{
    return cause == ErrorCause::HttpStatus ? QStringLiteral("PelnarHTTPStatusErrorDomain")
                                           : QStringLiteral("PelnarUpdateCheckErrorDomain");
}

int EngineError::UnderlyingCode() const
{
    if (cause == ErrorCause::HttpStatus)
    {
        return httpStatus;
    }
    return static_cast<int>(cause) + (cause == ErrorCause::Fault ? static_cast<int>(fault) : 0);
}

QString EscapedRemoteText(QString const& text)
{
    // More is never shown, and a megabyte is never read to its end.
    QString const safe = WithoutHidden(text.left(MAX_REMOTE_TEXT + 1), QLatin1Char('?'));
    QString escaped;
    for (int index = 0; index < safe.size();)
    {
        int const units = CodePointAt(safe.utf16(), index, safe.size()).units;
        QString const piece = safe.mid(index, units).toHtmlEscaped();
        if (escaped.size() + piece.size() > MAX_REMOTE_TEXT)
        {
            break;
        }
        escaped += piece;
        index += units;
    }
    return escaped;
}

EngineError MakeError(ErrorCause cause, QString const& remoteDetail)
{
    return {CodeOf(cause), cause, 0, UpdateFault::None, Sentence(SentenceOf(cause)), EscapedRemoteText(remoteDetail)};
}

EngineError MakeHttpStatusError(int status)
{
    EngineError error = MakeError(ErrorCause::HttpStatus);
    error.httpStatus = status;
    error.sentence = Sentence(error.sentence.Source(), {QString::number(status)});
    return error;
}

EngineError AsDownloadError(EngineError error)
{
    error.code = ErrorCode::Download;
    if (char const* const sentence = DownloadSentenceOf(error))
    {
        error.sentence = Sentence(sentence);
    }
    return error;
}

EngineError MakeRoomError(ErrorCause cause, quint64 neededBytes, quint64 freeBytes)
{
    EngineError error = MakeError(cause);
    error.sentence = Sentence(error.sentence.Source(), {ByteCount{neededBytes}, ByteCount{freeBytes}});
    return error;
}

EngineError MakeFeedError(FeedParseError const& error)
{
    EngineError result = MakeError(CauseOf(error.kind), error.detail);
    if (result.cause != ErrorCause::FeedIsWebPage)
    {
        result.sentence = result.sentence.FollowedBy(error.sentence); // which names the line
    }
    return result;
}

} // namespace Pelnar::Engine
