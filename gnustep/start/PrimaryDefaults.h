#pragma once

#import <Foundation/Foundation.h>

/// Settings for this run, which count before whatever the user has set.
void TNSetPrimaryDefaults(NSDictionary *values);
