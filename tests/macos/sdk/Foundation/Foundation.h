#pragma once

#import "NSBundle.h"
#import "NSCollections.h"
#import "NSData.h"
#import "NSFiles.h"
#import "NSGeometry.h"
#import "NSNotifications.h"
#import "NSObject.h"
#import "NSProcesses.h"
#import "NSSerialization.h"
#import "NSString.h"
#import "NSUndoManager.h"
#import "NSUserDefaults.h"
#import "NSValue.h"
#import <Scripting/NSScripting.h>
