// Missing: speed and care in reading property lists from XML, as of GNUstep Base 1.28. It takes several times
// as long, makes one character of six that look like an escape, cuts integers down to the largest signed one,
// takes what is no number for 0, and reads over much that is damaged.

#import "gnustep/defaults/XMLListReader.h"

#import "gnustep/defaults/PropertyListKinds.h"
#import "gnustep/defaults/XMLLeafReading.h"

#include <algorithm>
#include <array>
#include <climits>
#include <functional>
#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <string_view>
#include <utility>
#include <vector>

namespace {

constexpr std::string_view whiteSpace = " \t\r\n";

enum class Element {
    none,
    plist,
    dictionary,
    array,
    key,
    string,
    integer,
    real,
    date,
    data,
    isTrue,
    isFalse
};

struct ElementName {
    std::string_view name;
    Element element;
};

constexpr std::array elementNames = {ElementName{"key", Element::key}, ElementName{"string", Element::string},
    ElementName{"integer", Element::integer}, ElementName{"dict", Element::dictionary},
    ElementName{"true", Element::isTrue}, ElementName{"false", Element::isFalse},
    ElementName{"data", Element::data}, ElementName{"array", Element::array},
    ElementName{"real", Element::real}, ElementName{"date", Element::date},
    ElementName{"plist", Element::plist}};

Element elementOf(std::string_view name) {
    const auto *const found = std::find_if(elementNames.begin(), elementNames.end(),
        [name](const ElementName &known) { return name == known.name; });
    return found == elementNames.end() ? Element::none : found->element;
}

bool isContainer(Element element) {
    return element == Element::array || element == Element::dictionary;
}

/// Builds the objects while the parser goes over the bytes.
class Reader {
public:
    explicit Reader(NSPropertyListReadOptions options)
        : containersAreMutable_(options != NSPropertyListImmutable),
          leavesAreMutable_(options == NSPropertyListMutableContainersAndLeaves) {}
    ~Reader() {
        for (id value : values_) {
            [value release];
        }
        for (id key : keys_) {
            [key release];
        }
        for (const auto &known : knownKeys_) {
            [known.key release];
        }
        if (parser_) {
            xmlFreeDoc(parser_->myDoc);
            xmlFreeParserCtxt(parser_);
        }
        [root_ release];
    }
    Reader(const Reader &) = delete;
    Reader &operator=(const Reader &) = delete;

    TNReadList read(NSData *data);

private:
    struct Container {
        Element element;
        /// Where its values and keys begin.
        std::size_t firstValue;
        std::size_t firstKey;
        /// Whether the last key waits for its value.
        bool hasKey;
    };
    struct KnownKey {
        std::string text;
        NSString *key = nil;
    };

    static Reader &of(void *context) { return *static_cast<Reader *>(context); }
    static xmlSAXHandler handler();

    void note(const char *problem);
    /// Notes the problem and reads no further.
    void fail(const char *problem);
    void start(Element element);
    void end();
    void take(std::string_view text);
    bool expectsValue() const;
    void finishLeaf();
    void finishContainer();
    /// Takes over the reference.
    void put(id value);
    NSString *keyOf(const std::string &text);

    bool containersAreMutable_;
    bool leavesAreMutable_;
    xmlParserCtxtPtr parser_ = nullptr;
    std::string problem_;
    /// The value that is being read; containers are not.
    Element leaf_ = Element::none;
    std::string text_;
    bool isInPlist_ = false;
    std::vector<Container> containers_;
    std::vector<id> values_;
    std::vector<id> keys_;
    id root_ = nil;
    /// Most keys come again and again.
    std::array<KnownKey, 128> knownKeys_;
};

TNReadList Reader::read(NSData *data) {
    std::string_view bytes(static_cast<const char *>([data bytes]), [data length]);
    bytes.remove_prefix(std::min(bytes.find_first_not_of(whiteSpace), bytes.size()));
    if (bytes.size() > INT_MAX) {
        return {nil, "it is too long"};
    }
    parser_ = xmlCreateMemoryParserCtxt(bytes.data(), static_cast<int>(bytes.size()));
    if (!parser_) {
        return {nil, "no memory for it"};
    }
    *parser_->sax = handler();
    parser_->userData = this;
    // Pictures are longer than the parser's bounds for texts. Nesting and entities have bounds here.
    xmlCtxtUseOptions(parser_, XML_PARSE_HUGE | XML_PARSE_NONET);
    xmlParseDocument(parser_);
    // The parser takes a zero byte for the end.
    if (parser_->wellFormed == 0 || parser_->input->cur != parser_->input->end) {
        note("no well-formed XML");
    }
    if (!root_) {
        note("no value");
    }
    if (!problem_.empty()) {
        return {nil, problem_};
    }
    return {[std::exchange(root_, nil) autorelease], {}};
}

void Reader::note(const char *problem) {
    if (problem_.empty()) {
        problem_ = problem;
        problem_ += " in line " + std::to_string(parser_->input ? parser_->input->line : 0);
    }
}

void Reader::fail(const char *problem) {
    note(problem);
    xmlStopParser(parser_);
}

bool Reader::expectsValue() const {
    if (containers_.empty()) {
        return !root_;
    }
    return containers_.back().element == Element::array || containers_.back().hasKey;
}

void Reader::start(Element element) {
    if (element == Element::none) {
        fail("an unknown element");
    } else if (leaf_ != Element::none) {
        fail("an element inside a value");
    } else if (element == Element::plist) {
        if (isInPlist_ || root_ || !containers_.empty()) {
            fail("a list inside the list");
        }
        isInPlist_ = true;
    } else if (element == Element::key) {
        if (containers_.empty() || containers_.back().element != Element::dictionary ||
            containers_.back().hasKey) {
            fail("a key out of place");
        }
    } else if (!expectsValue()) {
        fail("a value out of place");
    } else if (isContainer(element) && containers_.size() == TNDeepestNesting) {
        fail("containers that nest too deep");
    }
    if (!problem_.empty()) {
        return;
    }
    if (isContainer(element)) {
        containers_.push_back({element, values_.size(), keys_.size(), false});
    } else if (element != Element::plist) {
        leaf_ = element;
        text_.clear();
    }
}

void Reader::take(std::string_view text) {
    if (leaf_ != Element::none) {
        text_.append(text);
    } else if (text.find_first_not_of(whiteSpace) != std::string_view::npos) {
        fail("text between the values");
    }
}

void Reader::end() {
    if (leaf_ != Element::none) {
        finishLeaf();
        leaf_ = Element::none;
    } else if (!containers_.empty()) {
        finishContainer();
    }
}

void Reader::finishLeaf() {
    switch (leaf_) {
    case Element::key:
        keys_.push_back([keyOf(text_) retain]);
        containers_.back().hasKey = true;
        return;
    case Element::string:
        return put(TNNewText(text_, leavesAreMutable_));
    case Element::integer:
        return put(TNNewInteger(text_));
    case Element::real:
        return put(TNNewReal(text_));
    case Element::date:
        return put(TNNewDate(text_));
    case Element::data:
        return put(TNNewData(text_, leavesAreMutable_));
    default:
        if (!text_.empty()) {
            return fail("text in a boolean");
        }
        return put([[NSNumber numberWithBool:leaf_ == Element::isTrue] retain]);
    }
}

void Reader::finishContainer() {
    const auto container = containers_.back();
    containers_.pop_back();
    if (container.hasKey) {
        return fail("a key without a value");
    }
    id *values = values_.data() + container.firstValue;
    const auto count = values_.size() - container.firstValue;
    id made = nil;
    if (container.element == Element::array) {
        Class type = containersAreMutable_ ? [NSMutableArray class] : [NSArray class];
        made = [[type alloc] initWithObjects:values count:count];
    } else {
        Class type = containersAreMutable_ ? [NSMutableDictionary class] : [NSDictionary class];
        id *keys = keys_.data() + container.firstKey;
        made = [[type alloc] initWithObjects:values forKeys:keys count:count];
        std::for_each_n(keys, count, [](id key) { [key release]; });
        keys_.resize(container.firstKey);
    }
    std::for_each_n(values, count, [](id value) { [value release]; });
    values_.resize(container.firstValue);
    put(made);
}

void Reader::put(id value) {
    if (!value) {
        return fail("a value that is none of its kind");
    }
    if (containers_.empty()) {
        root_ = value;
        return;
    }
    values_.push_back(value);
    containers_.back().hasKey = false;
}

NSString *Reader::keyOf(const std::string &text) {
    auto &known = knownKeys_[std::hash<std::string>()(text) % knownKeys_.size()];
    if (!known.key || known.text != text) {
        [known.key release];
        known = {text, TNNewText(text, false)};
    }
    return known.key;
}

xmlSAXHandler Reader::handler() {
    xmlSAXHandler handler = {};
    handler.initialized = XML_SAX2_MAGIC;
    handler.startElementNs = [](void *context, const xmlChar *name, const xmlChar *prefix, const xmlChar *,
                                 int, const xmlChar **, int, int, const xmlChar **) {
        of(context).start(prefix ? Element::none : elementOf(reinterpret_cast<const char *>(name)));
    };
    handler.endElementNs = [](void *context, const xmlChar *, const xmlChar *, const xmlChar *) {
        of(context).end();
    };
    // The same for blanks, so that none is left out.
    handler.characters = handler.ignorableWhitespace =
        handler.cdataBlock = [](void *context, const xmlChar *text, int length) {
            of(context).take({reinterpret_cast<const char *>(text), static_cast<std::size_t>(length)});
        };
    // Entities of a file's own may grow without bounds, and unknown ones would be left out.
    handler.reference = [](void *context, const xmlChar *) { of(context).fail("an unknown entity"); };
    handler.entityDecl = [](void *context, const xmlChar *, int, const xmlChar *, const xmlChar *,
                             xmlChar *) { of(context).fail("an entity of its own"); };
    handler.serror = [](void *context, xmlErrorPtr error) {
        if (error->level == XML_ERR_FATAL) {
            of(context).note("no well-formed XML");
        }
    };
    return handler;
}

} // namespace

TNReadList TNReadXMLList(NSData *data, NSPropertyListReadOptions options) {
    return Reader(options).read(data);
}
