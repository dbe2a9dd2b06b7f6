// LintRules.h: the table of all rules of `pelnar-appcast lint`: name, severity, finding and correction. Constants. The
// command line, the reports and docs/lint-rules.md are made from this table.
#pragma once

#include "Publisher/TextLiterals.h"

#include <QString>

#include <vector>

namespace Pelnar::Publisher
{

enum class Severity
{
    Error,   ///< clients refuse or lose something
    Warning, ///< clients may do something unintended
    Note,    ///< works, but could be better
};

/// "error", "warning" or "note".
char const* SeverityName(Severity severity);

// clang-format off
#define PELNAR_LINT_RULES(RULE) \
    /* The document. */ \
    RULE(MalformedXml, "malformed-xml", Error, "The feed is not well-formed XML, or its bytes do not match its encoding.", "correct the XML at this place; clients cannot read any item") \
    RULE(DocumentType, "document-type", Error, "The feed has a document type declaration, which clients refuse.", "remove the <!DOCTYPE ...> declaration") \
    RULE(TooDeep, "too-deep", Error, "Elements are nested deeper than clients follow.", "nest at most 64 elements") \
    RULE(TooManyAttributes, "too-many-attributes", Error, "A tag has more attributes than clients read.", "give at most 256 attributes to one tag") \
    RULE(TagTooLong, "tag-too-long", Error, "A tag is longer than clients read.", "keep every tag below 64 KiB; texts belong in elements") \
    RULE(TooMuchMarkup, "too-much-markup", Error, "The feed has more elements and attributes than clients read.", "keep at most 100000 of both together; remove old items") \
    RULE(TooManyItems, "too-many-items", Error, "The feed has more items than clients read.", "keep at most 2000 items") \
    RULE(TooManyNamespaces, "too-many-namespaces", Error, "More namespaces are declared at one place than clients follow.", "declare each namespace once, on the root element") \
    RULE(NotAFeed, "not-a-feed", Error, "The document is a web page, the error of a server, or of another known kind.", "publish the feed itself at this address") \
    RULE(NoItems, "no-items", Warning, "The feed has no item.", "add an <item> inside <channel>, without a namespace") \
    RULE(ControlCharacter, "control-character", Warning, "A text has control characters, invisible characters, or characters that change how others are displayed; clients show blanks instead.", "remove them") \
    /* Names and namespaces. */ \
    RULE(WrongNamespace, "wrong-namespace", Error, "A namespace looks like the feed's own but is another one; clients do not read names in it.", "bind the prefix to http://www.andymatuschak.org/xml-namespaces/sparkle") \
    RULE(NameCase, "name-case", Error, "A name differs only in case from a name that clients read, so clients ignore it.", "write the name with the case that the finding shows") \
    RULE(NameMisspelt, "name-misspelt", Warning, "A name of the feed's namespace is unknown to clients, and differs by one or two letters from a known one.", "write the name that the finding shows, or remove it") \
    RULE(NameWithoutNamespace, "name-without-namespace", Error, "A name of the feed's namespace is written without the namespace, so clients ignore it.", "write the sparkle: prefix in front of the name") \
    RULE(RepeatedElement, "repeated-element", Warning, "An item has an element twice; clients read only the first.", "keep one of them") \
    RULE(RepeatedEnclosure, "repeated-enclosure", Warning, "An item has two enclosures for one platform; clients use the first.", "give each download its own item or its own sparkle:os") \
    /* Versions. */ \
    RULE(VersionMissing, "version-missing", Error, "An item has no version.", "give sparkle:version to the enclosure or to the item") \
    RULE(VersionUnreadable, "version-unreadable", Error, "A version is not one to four decimal numbers separated by dots.", "write a version such as 5.1.2; other text belongs in sparkle:shortVersionString") \
    RULE(VersionOverflow, "version-overflow", Error, "A number of a version is greater than 2147483647.", "split the number by dots, such as 2026.1.24.1414 for 202601241414; each part must be below 2147483648") \
    RULE(VersionContradiction, "version-contradiction", Warning, "An item and its enclosure have different versions; clients use that of the enclosure.", "correct one of the two, or keep only that of the enclosure") \
    RULE(VersionFromFileName, "version-from-file-name", Warning, "An item's version is only in its file's name.", "give sparkle:version to the enclosure") \
    RULE(VersionSpelling, "version-spelling", Warning, "Two versions have different spellings but are equal: missing numbers count as 0.", "use one spelling for each version") \
    RULE(VersionMixed, "version-mixed", Warning, "Some versions are one number and some have dots; 100 is newer than 5.9.", "use one scheme for all items") \
    RULE(SamePriority, "same-priority", Warning, "Two items have the same version and the same kind of package for the same system; the address and the size decide between them.", "keep one of them, or separate them by sparkle:os or by the system versions") \
    /* Systems and platforms. */ \
    RULE(SystemBoundUnreadable, "system-bound-unreadable", Warning, "A minimum or maximum system version does not parse, so clients ignore it.", "write one to four numbers separated by dots") \
    RULE(SystemBoundsCrossed, "system-bounds-crossed", Error, "The minimum system version is above the maximum: no client takes the item.", "exchange or correct the two versions") \
    RULE(PlatformUnknown, "platform-unknown", Warning, "sparkle:os names an unknown platform.", "write macos, linux or windows") \
    RULE(PlatformFirst, "platform-first", Warning, "Another platform's items come before those without sparkle:os; a client that does not know sparkle:os takes them.", "put the items without sparkle:os first, or publish a feed for each platform") \
    RULE(ForeignPackage, "foreign-package", Warning, "A package of another system or format is offered to clients for Linux, which cannot open it.", "give the enclosure the sparkle:os of its system, such as sparkle:os=\"macos\"; for Linux publish a zip or a tar of a bundle") \
    RULE(PolicyIgnored, "policy-ignored", Warning, "An item states in the feed's namespace who may get it, but clients do not know that name: they offer the item to everybody.", "publish the item in a separate feed for these people, or remove the element") \
    RULE(PolicyUnreadable, "policy-unreadable", Warning, "An element that restricts who gets an item has a value that clients do not understand.", "write the value in the form that docs/formats/item-policy.md describes") \
    RULE(StagedWithoutDate, "staged-without-date", Warning, "A staged item has no date that clients can read, so all clients are offered it at once.", "give the item a pubDate as in Mon, 07 Jan 2019 10:00:00 +0000") \
    RULE(StagedInFuture, "staged-in-future", Note, "A staged item has a date in the future; until then it is offered only in checks that a person starts.", "correct the date, unless the item is to wait") \
    RULE(InformationalWithoutPage, "informational-without-page", Warning, "An informational item has neither a link nor linked release notes, so its window leads nowhere.", "give the item a <link> to a page that explains how to get the version") \
    RULE(KeyNotTrusted, "key-not-trusted", Error, "An item is signed by a key that an older version in the feed does not trust, and no version between the two brings that key: its clients never get the item.", "also sign the item with the key that the older version trusts, or publish a version between them that trusts both") \
    /* Downloads. */ \
    RULE(AddressMissing, "address-missing", Error, "An item has no enclosure with a valid address.", "give the enclosure a url") \
    RULE(AddressScheme, "address-scheme", Error, "A download's address is neither https nor http.", "serve the file over https") \
    RULE(LocalAddress, "local-address", Error, "An address points to a file on the publisher's computer.", "publish the file, and write its https address") \
    RULE(NearAddress, "near-address", Warning, "An address points to this computer or to a private network, which other people's computers cannot reach.", "write the public https address") \
    RULE(WebPageDownload, "web-page-download", Warning, "A download is a web page, which no client installs.", "give the archive's own address as url, and the page's address as link") \
    RULE(SharedAddress, "shared-address", Warning, "Two versions have the same address, so one of them offers the wrong file.", "give each version's file its own name") \
    RULE(SimilarAddress, "similar-address", Warning, "Two versions have addresses that differ only in the case or the spelling of letters; a server or a disk that ignores this keeps one of the two files.", "give each version's file its own name") \
    RULE(AddressInsecure, "address-insecure", Error, "An address uses http, which clients refuse.", "serve it over https") \
    RULE(AddressHost, "address-host", Error, "An address has no host.", "write the whole address, such as https://dl.example.com/app.zip") \
    RULE(AddressCredentials, "address-credentials", Warning, "An address contains a user name or a password.", "remove them; everybody can read the feed") \
    RULE(AddressInternational, "address-international", Note, "A host has letters beyond ASCII, which can look like those of another name.", "use a host name in plain ASCII") \
    RULE(AddressTooLong, "address-too-long", Error, "An address is longer than 8192 characters; clients treat it as missing.", "shorten it") \
    RULE(LengthMissing, "length-missing", Error, "An enclosure has no length, so no client takes it.", "give the file's size in bytes as length") \
    RULE(LengthZero, "length-zero", Error, "A length is 0, so no client takes the enclosure.", "give the file's size in bytes as length") \
    RULE(LengthUnreadable, "length-unreadable", Error, "A length is not a decimal number, so it counts as 0.", "give the file's size in bytes, digits only") \
    RULE(LengthTooLarge, "length-too-large", Error, "A length is over 16 GiB, so it counts as 0.", "publish a smaller file, or correct the number") \
    RULE(DateTextForm, "date-text-form", Error, "A date is in the text form that clients refuse.", "write the date as in Mon, 07 Jan 2019 10:00:00 +0000") \
    RULE(DateUnusual, "date-unusual", Note, "A date does not have the form that RSS requires.", "write the date as in Mon, 07 Jan 2019 10:00:00 +0000") \
    RULE(DateOrder, "date-order", Note, "A newer version has an older date than the previous version.", "correct the date or the version") \
    RULE(MarkerCase, "marker-case", Warning, "A file name has the mark of an installer in another case, so the file counts as a bundle.", "write .sparkle_guided. or .sparkle_interactive. in lower case") \
    RULE(SignatureMissing, "signature-missing", Error, "A download has no Ed25519 signature, so clients refuse to install it.", "add the sparkle:edSignature that pelnar-appcast sign prints") \
    RULE(SignatureUnreadable, "signature-unreadable", Error, "A signature is not 64 bytes in base64.", "copy the whole sparkle:edSignature that pelnar-appcast sign prints") \
    /* Deltas. */ \
    RULE(DeltaFromMissing, "delta-from-missing", Error, "A delta has no sparkle:deltaFrom, so no client takes it.", "name the version that it starts from") \
    RULE(DeltaFromUnreadable, "delta-from-unreadable", Error, "A delta's sparkle:deltaFrom does not parse, so no client takes it.", "write one to four numbers separated by dots") \
    RULE(DeltaFromRepeated, "delta-from-repeated", Error, "Two deltas of an item start from the same version; it is undefined which one clients take.", "keep one of them") \
    RULE(DeltaFromNotOlder, "delta-from-not-older", Error, "A delta starts from a version that is not older than its item's.", "correct sparkle:deltaFrom, or move the delta to its item") \
    RULE(DeltaVersion, "delta-version", Error, "A delta has another version than its item, so it makes another version than the item promises.", "move the delta to the item of its version, or correct its sparkle:version") \
    RULE(DeltaBaseMissing, "delta-base-missing", Warning, "A delta starts from a version that is not in the feed.", "check sparkle:deltaFrom, or keep the item of that version") \
    RULE(DeltaLargerThanFull, "delta-larger-than-full", Note, "A delta is not smaller than the full download, but clients still take it.", "remove the delta") \
    /* Extensions. */ \
    RULE(ExtensionNamespace, "extension-namespace", Error, "An extension is in a namespace, so its name never matches.", "write it without a prefix and outside of a default namespace") \
    RULE(ExtensionPlace, "extension-place", Error, "An extension is in a place where clients do not read it.", "put it directly into <item>, or on the enclosure of a delta") \
    RULE(ExtensionKeyCase, "extension-key-case", Error, "Two extensions of an item differ only in case; it is undefined which one counts.", "keep one of them") \
    RULE(ExtensionNotText, "extension-not-text", Error, "An extension has attributes or children, or appears twice, so its value is lost.", "write it once, with text only") \
    RULE(ExtensionPrefix, "extension-prefix", Note, "A name begins like an extension but not with pelnar1_, so clients ignore it.", "begin it with pelnar1_, or rename it") \
    RULE(RelaunchPathRelative, "relaunch-path-relative", Error, "The path to relaunch is not absolute.", "write the whole path, beginning with /") \
    /* Release notes. */ \
    RULE(NotesOverLimits, "notes-over-limits", Warning, "Release notes exceed the limits of clients; they are shown as plain text.", "shorten or simplify the notes") \
    RULE(NotesRepeated, "notes-repeated", Warning, "An item has two release notes in one language; clients use the first.", "give each its own xml:lang, or keep one") \
    RULE(NotesInsecure, "notes-insecure", Warning, "The address of release notes is not https.", "serve the notes over https") \
    /* The feed's own signature. */ \
    RULE(FeedUnsigned, "feed-unsigned", Error, "The feed has no signature (with --signed).", "sign it with pelnar-appcast sign-feed") \
    RULE(FeedSignatureUnreadable, "feed-signature-unreadable", Error, "The feed's signature is not alone on the last line or has a wrong form; clients that require a signature refuse the feed.", "remove every line with a signature and sign the feed again") \
    RULE(FeedSignatureWrong, "feed-signature-wrong", Error, "The feed is not signed by a given key (with --public-key).", "publish the feed exactly as it was signed, or sign it again") \
    RULE(FeedSerial, "feed-serial", Error, "A signed feed does not have exactly one serial that is a positive number; clients that require a signature refuse it.", "sign it with pelnar-appcast sign-feed") \
    RULE(FeedExpires, "feed-expires", Error, "A signed feed does not have exactly one expiry date, such as 2027-01-31T12:00:00Z; clients that require a signature refuse it.", "sign it with pelnar-appcast sign-feed") \
    RULE(FeedExpiresSoon, "feed-expires-soon", Warning, "A signed feed expires within seven days; after that, clients that require a signature refuse it.", "sign it again with pelnar-appcast sign-feed, best with a timed job") \
    RULE(FeedExpired, "feed-expired", Error, "A signed feed has expired; clients that require a signature refuse it.", "sign it again with pelnar-appcast sign-feed before it expires, best with a timed job") \
    RULE(SerialLower, "serial-lower", Error, "The serial of the feed or of its key statement is lower than in the feed published before (with --previous); clients that know the higher one refuse the feed.", "sign the feed again, with a greater --serial, and put the latest key statement into it") \
    /* The root key's statement. */ \
    RULE(KeyStatementMissing, "key-statement-missing", Error, "The feed has no key statement (with --root-public-key); clients with a root key refuse it.", "make a statement with pelnar-appcast keys state, and put it into the feed with sign-feed --key-statement") \
    RULE(KeyStatementUnreadable, "key-statement-unreadable", Error, "The key statement is not exactly one whole line of the right form; clients with a root key refuse the feed.", "remove every line with a statement, and add the line that pelnar-appcast keys state printed") \
    RULE(KeyStatementWrong, "key-statement-wrong", Error, "The key statement is not signed by a given root key (with --root-public-key).", "make the statement with the root key that the bundles contain") \
    RULE(KeyStatementExpired, "key-statement-expired", Error, "The key statement has expired; clients with a root key refuse the feed.", "make a statement with the next serial, and put it into the feed with sign-feed --key-statement") \
    RULE(KeyStatementExpiresSoon, "key-statement-expires-soon", Warning, "The key statement expires within thirty days; after that, clients with a root key refuse the feed.", "make a statement with the next serial, and put it into the feed with sign-feed --key-statement") \
    RULE(KeyNotValid, "key-not-valid", Error, "The feed, or the newest item for some clients, is signed by a key that the key statement does not list as valid; clients with a root key refuse it.", "sign it with a valid key, or make a statement that names the key") \
    RULE(KeyRevoked, "key-revoked", Note, "An older item is signed by a revoked key; clients with a root key never take it.", "no action is needed if the same clients get a newer version; prune removes old items") \
    RULE(KeyUnused, "key-unused", Note, "The key statement lists a key as valid that has signed nothing.", "check that it is the right key, unless it is kept in reserve") \
    /* What the server has, with --fetch. */ \
    RULE(ArchiveUnreachable, "archive-unreachable", Error, "A download cannot be fetched (with --fetch).", "publish the file at this address before the feed") \
    RULE(ArchiveLength, "archive-length", Error, "The size of a download differs from the feed (with --fetch).", "write the file's size as length, or publish the right file") \
    RULE(ArchiveSignature, "archive-signature", Error, "A download does not match the feed's signature with the given key (with --fetch).", "sign the published file again, or publish the file that was signed") \
    RULE(ArchiveVersion, "archive-version", Error, "The bundle in a download has another version than the feed says (with --fetch).", "publish the archive of that version, or write the bundle's CFBundleVersion as sparkle:version") \
    RULE(NotesUnreachable, "notes-unreachable", Warning, "Release notes cannot be fetched (with --fetch).", "publish the notes at this address, or remove the link")
// clang-format on

#define PELNAR_DECLARE_LINT_RULE(rule, name, severity, what, mend) rule,
enum class LintRule
{
    PELNAR_LINT_RULES(PELNAR_DECLARE_LINT_RULE)
};
#undef PELNAR_DECLARE_LINT_RULE

struct LintRuleEntry
{
    LintRule rule;
    char const* name;
    Severity severity;
    char const* what; ///< a sentence
    char const* mend; ///< what to do, without a full stop
};

/// In the order of the enumeration.
std::vector<LintRuleEntry> const& LintRules();
LintRuleEntry const& EntryOf(LintRule rule);

/// The text of docs/lint-rules.md.
QString LintRulesAsMarkdown();

} // namespace Pelnar::Publisher
