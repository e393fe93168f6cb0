#import "gnustep/defaults/XMLListBuilder.h"

#import "gnustep/defaults/PropertyListKinds.h"
#import "gnustep/defaults/XMLLeafReading.h"

#include <algorithm>
#include <functional>

namespace {

bool isContainer(TNListElement element) {
    return element == TNListElement::array || element == TNListElement::dictionary;
}

void release(const id *objects, std::size_t count) {
    std::for_each_n(objects, count, [](id object) { [object release]; });
}

} // namespace

TNXMLListBuilder::TNXMLListBuilder(NSPropertyListReadOptions options)
    : arrayType_(options == NSPropertyListImmutable ? [NSArray class] : [NSMutableArray class]),
      dictionaryType_(
          options == NSPropertyListImmutable ? [NSDictionary class] : [NSMutableDictionary class]),
      leavesAreMutable_(options == NSPropertyListMutableContainersAndLeaves) {}

TNXMLListBuilder::~TNXMLListBuilder() {
    release(values_.data(), values_.size());
    release(keys_.data(), keys_.size());
    for (const auto &known : knownKeys_) {
        [known.key release];
    }
    [root_ release];
}

const char *TNXMLListBuilder::placeProblem(TNListElement element) const {
    const auto *container = containers_.empty() ? nullptr : &containers_.back();
    const bool isInDictionary = container && container->element == TNListElement::dictionary;
    if (element == TNListElement::none) {
        return "an unknown element";
    }
    if (leaf_ != TNListElement::none) {
        return "an element inside a value";
    }
    if (element == TNListElement::plist) {
        return isInPlist_ || root_ || container ? "a list inside the list" : nullptr;
    }
    if (element == TNListElement::key) {
        return !isInDictionary || container->hasKey ? "a key out of place" : nullptr;
    }
    if (container ? isInDictionary && !container->hasKey : root_ != nil) {
        return "a value out of place";
    }
    return isContainer(element) && containers_.size() == TNDeepestNesting ? "containers that nest too deep"
                                                                          : nullptr;
}

const char *TNXMLListBuilder::start(TNListElement element) {
    if (const char *problem = placeProblem(element)) {
        return problem;
    }
    if (element == TNListElement::plist) {
        isInPlist_ = true;
    } else if (isContainer(element)) {
        containers_.push_back({element, values_.size(), keys_.size(), false});
    } else {
        leaf_ = element;
        text_.clear();
    }
    return nullptr;
}

const char *TNXMLListBuilder::take(std::string_view text) {
    if (leaf_ != TNListElement::none) {
        text_.append(text);
        return nullptr;
    }
    return text.find_first_not_of(" \t\r\n") == std::string_view::npos ? nullptr : "text between the values";
}

const char *TNXMLListBuilder::end() {
    if (leaf_ != TNListElement::none) {
        const char *problem = finishLeaf();
        leaf_ = TNListElement::none;
        return problem;
    }
    return containers_.empty() ? nullptr : finishContainer();
}

const char *TNXMLListBuilder::finishLeaf() {
    switch (leaf_) {
    case TNListElement::key:
        keys_.push_back([keyOf(text_) retain]);
        containers_.back().hasKey = true;
        return nullptr;
    case TNListElement::string:
        return put(TNNewText(text_, leavesAreMutable_));
    case TNListElement::integer:
        return put(TNNewInteger(text_));
    case TNListElement::real:
        return put(TNNewReal(text_));
    case TNListElement::date:
        return put(TNNewDate(text_));
    case TNListElement::data:
        return put(TNNewData(text_, leavesAreMutable_));
    default:
        return text_.empty() ? put([[NSNumber numberWithBool:leaf_ == TNListElement::isTrue] retain])
                             : "text in a boolean";
    }
}

const char *TNXMLListBuilder::finishContainer() {
    const auto container = containers_.back();
    if (container.hasKey) {
        return "a key without a value";
    }
    containers_.pop_back();
    id *values = values_.data() + container.firstValue;
    const auto count = values_.size() - container.firstValue;
    id made = nil;
    if (container.element == TNListElement::array) {
        made = [[arrayType_ alloc] initWithObjects:values count:count];
    } else {
        id *keys = keys_.data() + container.firstKey;
        made = [[dictionaryType_ alloc] initWithObjects:values forKeys:keys count:count];
        release(keys, count);
        keys_.resize(container.firstKey);
    }
    release(values, count);
    values_.resize(container.firstValue);
    return put(made);
}

const char *TNXMLListBuilder::put(id value) {
    if (!value) {
        return "a value that is none of its kind";
    }
    if (containers_.empty()) {
        root_ = value;
        return nullptr;
    }
    values_.push_back(value);
    containers_.back().hasKey = false;
    return nullptr;
}

NSString *TNXMLListBuilder::keyOf(const std::string &text) {
    auto &known = knownKeys_[std::hash<std::string>()(text) % knownKeys_.size()];
    if (!known.key || known.text != text) {
        [known.key release];
        known = {text, TNNewText(text, false)};
    }
    return known.key;
}
