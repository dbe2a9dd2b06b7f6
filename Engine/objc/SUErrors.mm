#import <Sparkle/SUErrors.h>

NSString* const SUSparkleErrorDomain = @"SUSparkleErrorDomain";
