#pragma once

#import <Foundation/Foundation.h>

/// Settings of this run that count before all that anybody has set, whatever other programs are to use.
void TNSetPrimaryDefaults(NSDictionary *values);
