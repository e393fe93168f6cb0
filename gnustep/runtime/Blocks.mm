// Missing: working blocks, as of GNUstep Base 1.28, whose block runtime is a stub. Debian 12's
// libBlocksRuntime does not retain captured objects either; with both, a message to a block crashes. This is
// clang's published block ABI in the program itself, where the GNUstep libraries find it before their own.

#import <Foundation/Foundation.h>

#include <atomic>
#include <cstdlib>
#include <cstring>

namespace {

enum BlockFlags : int {
    referenceMask = 0xFFFF,
    onHeap = 1 << 24,
    hasHelpers = 1 << 25,
    isGlobal = 1 << 28,
};

enum FieldFlags : int {
    fieldIsBlock = 7,
    fieldIsByReference = 8,
    fieldOfByReference = 128,
};

struct Descriptor {
    unsigned long reserved;
    unsigned long size;
    void (*copy)(void *to, const void *from);
    void (*dispose)(const void *block);
};

struct Block {
    void *isa;
    std::atomic<int> flags;
    int reserved;
    void (*invoke)();
    Descriptor *descriptor;
};

/// A `__block` variable's box.
struct ByReference {
    void *isa;
    ByReference *forwarding;
    std::atomic<int> flags;
    int size;
    // These two only with hasHelpers.
    void (*keep)(ByReference *to, const ByReference *from);
    void (*destroy)(const ByReference *box);
};

template <typename Record>
Record *duplicate(const Record *from, std::size_t size) {
    void *copy = std::malloc(size);
    if (!copy) {
        std::abort();
    }
    return static_cast<Record *>(std::memcpy(copy, static_cast<const void *>(from), size));
}

/// Takes one reference away; true when it was the last one.
template <typename Record>
bool wasLastReference(Record *record) {
    return (record->flags & onHeap) != 0 && ((--record->flags) & referenceMask) == 0;
}

ByReference *copyByReference(ByReference *box) {
    ByReference *current = box->forwarding;
    if ((current->flags & onHeap) != 0) {
        ++current->flags;
        return current;
    }
    auto *copy = duplicate(current, static_cast<std::size_t>(current->size));
    // One reference for the block, one for the frame that declared the variable.
    copy->flags = (current->flags & ~referenceMask) | onHeap | 2;
    copy->forwarding = copy;
    current->forwarding = copy;
    if ((copy->flags & hasHelpers) != 0) {
        current->keep(copy, current);
    }
    return copy;
}

void releaseByReference(ByReference *box) {
    ByReference *current = box->forwarding;
    if (!wasLastReference(current)) {
        return;
    }
    if ((current->flags & hasHelpers) != 0) {
        current->destroy(current);
    }
    std::free(current);
}

} // namespace

extern "C" {

void *_NSConcreteStackBlock[32];
void *_NSConcreteGlobalBlock[32];
void *_NSConcreteMallocBlock[32];

void *_Block_copy(const void *argument) {
    auto *block = static_cast<Block *>(const_cast<void *>(argument));
    if (!block || (block->flags & isGlobal) != 0) {
        return block;
    }
    if ((block->flags & onHeap) != 0) {
        ++block->flags;
        return block;
    }
    auto *copy = duplicate(block, block->descriptor->size);
    copy->flags = (block->flags & ~referenceMask) | onHeap | 1;
    copy->isa = _NSConcreteMallocBlock;
    if ((copy->flags & hasHelpers) != 0) {
        copy->descriptor->copy(copy, block);
    }
    return copy;
}

void _Block_release(const void *argument) {
    auto *block = static_cast<Block *>(const_cast<void *>(argument));
    if (!block || (block->flags & isGlobal) != 0 || !wasLastReference(block)) {
        return;
    }
    if ((block->flags & hasHelpers) != 0) {
        block->descriptor->dispose(block);
    }
    std::free(block);
}

void _Block_object_assign(void *to, const void *object, const int flags) {
    const void *kept = object;
    // Without automatic reference counting a `__block` variable does not retain what it holds.
    if ((flags & fieldOfByReference) == 0) {
        if ((flags & fieldIsByReference) != 0) {
            kept = copyByReference(static_cast<ByReference *>(const_cast<void *>(object)));
        } else if ((flags & fieldIsBlock) == fieldIsBlock) {
            kept = _Block_copy(object);
        } else {
            kept = [(id)object retain];
        }
    }
    std::memcpy(to, &kept, sizeof kept);
}

void _Block_object_dispose(const void *object, const int flags) {
    if ((flags & fieldOfByReference) != 0) {
        return;
    }
    if ((flags & fieldIsByReference) != 0) {
        releaseByReference(static_cast<ByReference *>(const_cast<void *>(object)));
    } else if ((flags & fieldIsBlock) == fieldIsBlock) {
        _Block_release(object);
    } else {
        [(id)object release];
    }
}

} // extern "C"

/// Makes blocks answer messages: its class record is copied over the three that blocks point to.
@interface TNBlock : NSObject <NSCopying>
@end

@implementation TNBlock

+ (void)load {
    // The fields of the gcc runtime's class record.
    constexpr std::size_t recordSize = 13 * sizeof(void *);
    // The record is complete only after a first message; the object itself must not be released, see below.
    [[self alloc] init];
    for (void **record : {_NSConcreteStackBlock, _NSConcreteGlobalBlock, _NSConcreteMallocBlock}) {
        std::memcpy(record, (const void *)self, recordSize);
    }
}

- (id)copyWithZone:(NSZone *)zone {
    (void)zone;
    return (id)_Block_copy(self);
}

- (id)copy {
    return (id)_Block_copy(self);
}

- (id)retain {
    return (id)_Block_copy(self);
}

- (oneway void)release {
    _Block_release(self);
}

- (id)autorelease {
    [NSAutoreleasePool addObject:self];
    return self;
}

- (NSUInteger)retainCount {
    return 1;
}

@end
