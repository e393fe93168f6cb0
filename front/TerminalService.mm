#import "front/TerminalService.h"

@implementation TerminalService

@synthesize applicationName = _applicationName, serviceDescription = _serviceDescription,
            serviceName = _serviceName, identifier = _identifier;

- (instancetype)initWithApplicationName:(NSString *)applicationName
                     serviceDescription:(NSString *)serviceDescription
                            serviceName:(NSString *)serviceName
                             identifier:(NSString *)identifier {
    self = [super init];
    if (self) {
        [self setApplicationName:applicationName];
        [self setServiceDescription:serviceDescription];
        [self setServiceName:serviceName];
        [self setIdentifier:identifier];
    }
    return self;
}

+ (instancetype)serviceWithApplicationName:(NSString *)applicationName
                        serviceDescription:(NSString *)serviceDescription
                               serviceName:(NSString *)serviceName
                                identifier:(NSString *)identifier {
    return [[[self alloc] initWithApplicationName:applicationName
                               serviceDescription:serviceDescription
                                      serviceName:serviceName
                                       identifier:identifier] autorelease];
}

- (void)dealloc {
    [_applicationName release];
    [_serviceDescription release];
    [_serviceName release];
    [_identifier release];
    [super dealloc];
}

- (NSString *)description {
    return [NSString stringWithFormat:@"<%@: self.applicationName=%@, self.serviceDescription=%@, "
                                      @"self.serviceName=%@, self.identifier=%@>",
                     NSStringFromClass([self class]), [self applicationName], [self serviceDescription],
                     [self serviceName], [self identifier]];
}

@end
