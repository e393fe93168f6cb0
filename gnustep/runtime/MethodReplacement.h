#pragma once

#import <objc/runtime.h>

/// Puts `function` in place of a method that the class itself implements, and gives the method that was
/// there. Call from `+load`: classes that have answered messages keep the methods they inherited.
template <typename Function>
Function TNReplaceMethod(Class type, SEL selector, Function function) {
    Method method = class_getInstanceMethod(type, selector);
    return reinterpret_cast<Function>(method_setImplementation(method, reinterpret_cast<IMP>(function)));
}
