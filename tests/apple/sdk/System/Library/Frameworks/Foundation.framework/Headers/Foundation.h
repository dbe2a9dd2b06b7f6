// The classes and methods of Foundation that the project uses, with the types and nullability of Apple's documentation.
// If a method is missing here, look it up and add it.
#pragma once

#include <objc/objc.h>

#define FOUNDATION_EXPORT extern "C"
#define NS_ASSUME_NONNULL_BEGIN _Pragma("clang assume_nonnull begin")
#define NS_ASSUME_NONNULL_END _Pragma("clang assume_nonnull end")
#define NS_FORMAT_FUNCTION(text, first) __attribute__((format(__NSString__, text, first)))

typedef long NSInteger;
typedef unsigned long NSUInteger;
typedef unsigned short unichar;
typedef double NSTimeInterval;
typedef struct _NSZone NSZone;
typedef struct _NSRange
{
    NSUInteger location;
    NSUInteger length;
} NSRange;

static inline NSRange NSMakeRange(NSUInteger location, NSUInteger length)
{
    NSRange const range = {location, length};
    return range;
}

typedef enum NSComparisonResult : NSInteger
{
    NSOrderedAscending = -1L,
    NSOrderedSame,
    NSOrderedDescending
} NSComparisonResult;
typedef enum NSStringCompareOptions : NSUInteger
{
    NSCaseInsensitiveSearch = 1,
    NSLiteralSearch = 2
} NSStringCompareOptions;

@class NSArray<__covariant ObjectType>;
@class NSBundle;
@class NSDictionary<__covariant KeyType, __covariant ObjectType>;
@class NSEnumerator<ObjectType>;
@class NSInvocation;
@class NSMethodSignature;
@class NSOperationQueue;
@class NSString;

NS_ASSUME_NONNULL_BEGIN

@protocol NSObject
- (BOOL)isEqual:(nullable id)object;
- (NSUInteger)hash;
- (Class)class;
- (instancetype)self;
- (BOOL)isKindOfClass:(Class)aClass;
- (BOOL)respondsToSelector:(SEL)aSelector;
- (NSString*)description;
- (instancetype)retain;
- (oneway void)release;
- (instancetype)autorelease;
- (NSUInteger)retainCount;
@end

@protocol NSCopying
- (id)copyWithZone:(nullable NSZone*)zone;
@end

@protocol NSMutableCopying
- (id)mutableCopyWithZone:(nullable NSZone*)zone;
@end

typedef struct
{
    unsigned long state;
    id _Nullable __unsafe_unretained* _Nullable itemsPtr;
    unsigned long* _Nullable mutationsPtr;
    unsigned long extra[5];
} NSFastEnumerationState;

@protocol NSFastEnumeration
- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState*)state
                                  objects:(id _Nullable __unsafe_unretained[_Nonnull])buffer
                                    count:(NSUInteger)length;
@end

__attribute__((objc_root_class))
@interface NSObject <NSObject>
{
    Class isa;
}
+ (void)initialize;
+ (instancetype)alloc;
+ (instancetype)new;
- (instancetype)init;
- (void)dealloc;
- (id)copy;
- (id)mutableCopy;
- (NSMethodSignature*)methodSignatureForSelector:(SEL)aSelector;
@end

@interface NSString : NSObject <NSCopying, NSMutableCopying>
@property (readonly) NSUInteger length;
- (unichar)characterAtIndex:(NSUInteger)index;
- (void)getCharacters:(unichar*)buffer range:(NSRange)range;
- (NSComparisonResult)compare:(NSString*)string;
- (NSComparisonResult)compare:(NSString*)string options:(NSStringCompareOptions)mask;
- (BOOL)isEqualToString:(NSString*)string;
- (NSString*)stringByAppendingString:(NSString*)string;
@property (nullable, readonly) char const* UTF8String;
+ (instancetype)string;
+ (instancetype)stringWithCharacters:(unichar const*)characters length:(NSUInteger)length;
+ (nullable instancetype)stringWithUTF8String:(char const*)nullTerminatedCString;
+ (instancetype)stringWithFormat:(NSString*)format, ... NS_FORMAT_FUNCTION(1, 2);
- (NSString*)stringByAppendingPathComponent:(NSString*)component;
- (nullable NSString*)stringByAppendingPathExtension:(NSString*)extension;
@end

@interface NSNumber : NSObject <NSCopying>
+ (NSNumber*)numberWithBool:(BOOL)value;
+ (NSNumber*)numberWithLongLong:(long long)value;
@property (readonly) BOOL boolValue;
@property (readonly) long long longLongValue;
@end

@interface NSDate : NSObject <NSCopying>
+ (instancetype)dateWithTimeIntervalSince1970:(NSTimeInterval)seconds;
@property (readonly) NSTimeInterval timeIntervalSince1970;
@end

@interface NSEnumerator<ObjectType> : NSObject <NSFastEnumeration>
- (nullable ObjectType)nextObject;
@end

@interface NSArray<__covariant ObjectType> : NSObject <NSCopying, NSMutableCopying, NSFastEnumeration>
@property (readonly) NSUInteger count;
- (ObjectType)objectAtIndex:(NSUInteger)index;
+ (instancetype)array;
- (NSArray<ObjectType>*)sortedArrayUsingSelector:(SEL)comparator;
- (NSArray<ObjectType>*)sortedArrayUsingFunction:(NSInteger (*)(ObjectType, ObjectType, void* _Nullable))comparator
                                         context:(nullable void*)context;
@end

@interface NSMutableArray<ObjectType> : NSArray<ObjectType>
- (void)addObject:(ObjectType)anObject;
+ (instancetype)arrayWithCapacity:(NSUInteger)numItems;
@end

@interface NSDictionary<__covariant KeyType, __covariant ObjectType>
    : NSObject <NSCopying, NSMutableCopying, NSFastEnumeration>
@property (readonly) NSUInteger count;
- (nullable ObjectType)objectForKey:(KeyType)aKey;
- (NSEnumerator<KeyType>*)keyEnumerator;
@property (readonly, copy) NSArray<KeyType>* allKeys;
+ (instancetype)dictionary;
+ (instancetype)dictionaryWithObject:(ObjectType)object forKey:(KeyType<NSCopying>)key;
@end

@interface NSMutableDictionary<KeyType, ObjectType> : NSDictionary<KeyType, ObjectType>
- (void)setObject:(ObjectType)anObject forKey:(KeyType<NSCopying>)aKey;
@end

@interface NSURL : NSObject <NSCopying>
+ (nullable instancetype)URLWithString:(NSString*)URLString;
@property (nullable, readonly, copy) NSString* absoluteString;
@end

typedef NSString* NSErrorDomain;
typedef NSString* NSErrorUserInfoKey;
FOUNDATION_EXPORT NSErrorUserInfoKey const NSLocalizedDescriptionKey;

@interface NSError : NSObject <NSCopying>
+ (instancetype)errorWithDomain:(NSErrorDomain)domain
                           code:(NSInteger)code
                       userInfo:(nullable NSDictionary<NSErrorUserInfoKey, id>*)dict;
@property (readonly) NSInteger code;
@property (readonly, copy) NSString* localizedDescription;
@end

typedef NSString* NSExceptionName;
FOUNDATION_EXPORT NSExceptionName const NSGenericException;

@interface NSException : NSObject <NSCopying>
+ (NSException*)exceptionWithName:(NSExceptionName)name
                           reason:(nullable NSString*)reason
                         userInfo:(nullable NSDictionary*)userInfo;
@property (nullable, readonly, copy) NSString* reason;
- (void)raise;
@end

@interface NSMethodSignature : NSObject
@property (readonly) NSUInteger numberOfArguments;
@end

@interface NSInvocation : NSObject
+ (NSInvocation*)invocationWithMethodSignature:(NSMethodSignature*)sig;
- (void)retainArguments;
@property (nullable, assign) id target;
@property SEL selector;
- (void)getArgument:(void*)argumentLocation atIndex:(NSInteger)idx;
- (void)setArgument:(void*)argumentLocation atIndex:(NSInteger)idx;
- (void)invoke;
@end

@interface NSBundle : NSObject
@property (class, readonly, strong) NSBundle* mainBundle;
@property (readonly, copy) NSString* bundlePath;
@property (nullable, readonly, copy) NSString* executablePath;
@property (nullable, readonly, copy) NSString* bundleIdentifier;
@property (nullable, readonly, copy) NSDictionary<NSString*, id>* infoDictionary;
@end

@interface NSProcessInfo : NSObject
@property (class, readonly, strong) NSProcessInfo* processInfo;
@property (copy) NSString* processName;
@property (readonly, copy) NSString* globallyUniqueString;
@end

@interface NSUserDefaults : NSObject
@property (class, readonly, strong) NSUserDefaults* standardUserDefaults;
- (nullable id)objectForKey:(NSString*)defaultName;
- (void)setObject:(nullable id)value forKey:(NSString*)defaultName;
- (void)removeObjectForKey:(NSString*)defaultName;
- (nullable NSString*)stringForKey:(NSString*)defaultName;
- (void)registerDefaults:(NSDictionary<NSString*, id>*)registrationDictionary;
- (nullable NSDictionary<NSString*, id>*)persistentDomainForName:(NSString*)domainName;
- (void)removePersistentDomainForName:(NSString*)domainName;
- (BOOL)synchronize;
@end

typedef NSString* NSNotificationName;

@interface NSNotification : NSObject <NSCopying>
@property (readonly, copy) NSNotificationName name;
@end

@interface NSNotificationCenter : NSObject
@property (class, readonly, strong) NSNotificationCenter* defaultCenter;
- (id<NSObject>)addObserverForName:(nullable NSNotificationName)name
                            object:(nullable id)obj
                             queue:(nullable NSOperationQueue*)queue
                        usingBlock:(void (^)(NSNotification* notification))block;
- (void)postNotificationName:(NSNotificationName)aName object:(nullable id)anObject;
@end

NS_ASSUME_NONNULL_END
