#pragma once

#import <AppKit/AppKit.h>

#include <string>
#include <vector>

/// The data source, delegate and target of the tested table; writes down what it is told.
@interface TNTableModel : NSObject {
@public
    std::vector<std::string> names;
    std::vector<std::string> events;
    long viewsMade;
    int marksSeen;
    BOOL refusesEndOfEditing;
    BOOL retargetsDrops;
    NSTableView *table;
}

- (int)dropMarks;

@end
