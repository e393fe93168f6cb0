#include "Probe.h"

#import <Foundation/Foundation.h>

@interface TNKeyWitness : NSObject {
@private
    std::vector<std::string> *_changes;
}

- (instancetype)initWithChanges:(std::vector<std::string> *)changes;

@end

@implementation TNKeyWitness

- (instancetype)initWithChanges:(std::vector<std::string> *)changes {
    self = [super init];
    if (self) {
        _changes = changes;
    }
    return self;
}

- (void)observeValueForKeyPath:(NSString *)keyPath
                      ofObject:(id)object
                        change:(NSDictionary *)change
                       context:(void *)context {
    (void)object;
    (void)context;
    id value = [change objectForKey:NSKeyValueChangeNewKey];
    NSString *line = [NSString stringWithFormat:@"%@=%@", keyPath, value ? value : @"(none)"];
    _changes->push_back([line UTF8String]);
}

@end

namespace tarnwick::probe {

std::vector<std::string> observedChanges() {
    std::vector<std::string> changes;
    @autoreleasepool {
        NSUserDefaults *defaults = [NSUserDefaults standardUserDefaults];
        TNKeyWitness *witness = [[[TNKeyWitness alloc] initWithChanges:&changes] autorelease];
        [defaults addObserver:witness
                   forKeyPath:@"watched"
                      options:NSKeyValueObservingOptionNew
                      context:nullptr];
        [defaults setBool:YES forKey:@"watched"];
        changes.push_back("-");
        [defaults setBool:YES forKey:@"watched"];
        [defaults setBool:YES forKey:@"other"];
        changes.push_back("-");
        [defaults setInteger:7 forKey:@"watched"];
        [defaults setObject:@"text" forKey:@"watched"];
        [defaults setValue:@"by value" forKey:@"watched"];
        [defaults removeObjectForKey:@"watched"];
        [defaults removeObjectForKey:@"watched"];
        [defaults removeObserver:witness forKeyPath:@"watched"];
        changes.push_back("-");
        [defaults setBool:YES forKey:@"watched"];
    }
    return changes;
}

std::vector<std::string> observedChangesByOthers(const std::function<void()> &work) {
    std::vector<std::string> changes;
    @autoreleasepool {
        NSUserDefaults *defaults = [NSUserDefaults standardUserDefaults];
        [defaults setBool:YES forKey:@"watched"];
        [defaults synchronize];
        TNKeyWitness *witness = [[[TNKeyWitness alloc] initWithChanges:&changes] autorelease];
        [defaults addObserver:witness
                   forKeyPath:@"watched"
                      options:NSKeyValueObservingOptionNew
                      context:nullptr];
        work();
        [defaults synchronize];
        [defaults synchronize];
        [defaults removeObserver:witness forKeyPath:@"watched"];
    }
    return changes;
}

} // namespace tarnwick::probe
