// Missing: settings that a program insists on, as of GNUstep Base 1.28, which has a domain for them that
// counts before all others, but no way to add to it: it is replaced as a whole, once it has been removed.

#import "gnustep/start/PrimaryDefaults.h"

void TNSetPrimaryDefaults(NSDictionary *values) {
    NSUserDefaults *defaults = [NSUserDefaults standardUserDefaults];
    NSString *const domain = @"GSPrimaryDomain";
    NSDictionary *old = [defaults volatileDomainForName:domain];
    NSMutableDictionary *changed = [NSMutableDictionary dictionaryWithDictionary:old];
    [changed addEntriesFromDictionary:values];
    if (old) {
        [defaults removeVolatileDomainForName:domain];
    }
    [defaults setVolatileDomain:changed forName:domain];
}
