#import "adapters/foundation/ObjectMaker.h"

#import "adapters/foundation/PlistConversion.h"
#import "adapters/foundation/StringConversion.h"

#include <functional>
#include <utility>
#include <vector>

namespace tarnwick {

ObjectMaker::~ObjectMaker() {
    for (const auto &known : knownKeys_) {
        [known.object release];
    }
}

id ObjectMaker::newObject(const PlistValue &value) {
    // Looked up once: asking for a class by its name takes longer than the question.
    static const Class numberClass = [NSNumber class];
    if (const auto *text = value.string()) {
        return [toNSString(*text) retain];
    }
    if (const auto *number = value.integer()) {
        return [[numberClass numberWithLongLong:*number] retain];
    }
    if (const auto *number = value.largeInteger()) {
        return [[numberClass numberWithUnsignedLongLong:number->number] retain];
    }
    if (const auto *number = value.real()) {
        return [[numberClass numberWithDouble:*number] retain];
    }
    if (const auto *flag = value.boolean()) {
        return [[numberClass numberWithBool:*flag] retain];
    }
    if (const auto *data = value.data()) {
        return [toNSData(*data) retain];
    }
    if (const auto *date = value.date()) {
        return [[NSDate alloc] initWithTimeIntervalSinceReferenceDate:date->secondsSinceReferenceDate];
    }
    if (const auto *array = value.array()) {
        return newArray(*array);
    }
    return newDictionary(*value.dictionary());
}

NSArray *ObjectMaker::newArray(const PlistArray &array) {
    std::vector<id> elements;
    elements.reserve(array.size());
    for (const auto &value : array) {
        elements.push_back(newObject(value));
    }
    NSArray *result = [[NSArray alloc] initWithObjects:elements.data() count:elements.size()];
    for (id element : elements) {
        [element release];
    }
    return result;
}

NSDictionary *ObjectMaker::newDictionary(const PlistDictionary &dictionary) {
    static const Class dictionaryClass = [NSDictionary class];
    std::vector<id> values;
    std::vector<id> keys;
    values.reserve(dictionary.size());
    keys.reserve(dictionary.size());
    for (const auto &[key, value] : dictionary) {
        values.push_back(newObject(value));
        keys.push_back([keyOf(key) retain]);
    }
    NSDictionary *result = [[dictionaryClass alloc] initWithObjects:values.data()
                                                            forKeys:keys.data()
                                                              count:keys.size()];
    for (std::size_t index = 0; index < keys.size(); ++index) {
        [values[index] release];
        [keys[index] release];
    }
    return result;
}

NSString *ObjectMaker::keyOf(const std::string &text) {
    auto &known = knownKeys_[std::hash<std::string>()(text) % knownKeys_.size()];
    if (!known.object || known.text != text) {
        [known.object release];
        known = {text, [toNSString(text) retain]};
    }
    return known.object;
}

} // namespace tarnwick
