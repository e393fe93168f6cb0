#pragma once

#import <Foundation/Foundation.h>

/// One text service that an application offers; any of the four may be missing. The names are fixed, ahead of
/// its first caller.
@interface TerminalService : NSObject {
@private
    NSString *_applicationName;
    NSString *_serviceDescription;
    NSString *_serviceName;
    NSString *_identifier;
}

@property (nonatomic, retain) NSString *applicationName;
@property (nonatomic, retain) NSString *serviceDescription;
/// The service's menu name.
@property (nonatomic, retain) NSString *serviceName;
@property (nonatomic, retain) NSString *identifier;

- (instancetype)initWithApplicationName:(NSString *)applicationName
                     serviceDescription:(NSString *)serviceDescription
                            serviceName:(NSString *)serviceName
                             identifier:(NSString *)identifier;
/// Autoreleased.
+ (instancetype)serviceWithApplicationName:(NSString *)applicationName
                        serviceDescription:(NSString *)serviceDescription
                               serviceName:(NSString *)serviceName
                                identifier:(NSString *)identifier;

/// "<TerminalService: self.applicationName=..., ...>", with what "%@" writes for a missing object.
- (NSString *)description;

@end
