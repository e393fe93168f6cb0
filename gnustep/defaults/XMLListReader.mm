// Missing: speed and care in reading property lists from XML, as of GNUstep Base 1.28. It takes several times
// as long, makes one character of six that look like an escape, cuts integers down to the largest signed one,
// takes what is no number for 0, and reads over much that is damaged.

#import "gnustep/defaults/XMLListReader.h"

#import "gnustep/defaults/XMLListBuilder.h"

#include <algorithm>
#include <array>
#include <climits>
#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <string_view>

namespace {

struct ElementName {
    std::string_view name;
    TNListElement element;
};

/// The most frequent first.
constexpr std::array elementNames = {ElementName{"key", TNListElement::key},
    ElementName{"string", TNListElement::string}, ElementName{"integer", TNListElement::integer},
    ElementName{"dict", TNListElement::dictionary}, ElementName{"true", TNListElement::isTrue},
    ElementName{"false", TNListElement::isFalse}, ElementName{"data", TNListElement::data},
    ElementName{"array", TNListElement::array}, ElementName{"real", TNListElement::real},
    ElementName{"date", TNListElement::date}, ElementName{"plist", TNListElement::plist}};

TNListElement elementOf(std::string_view name) {
    const auto *const found = std::find_if(elementNames.begin(), elementNames.end(),
        [name](const ElementName &known) { return name == known.name; });
    return found == elementNames.end() ? TNListElement::none : found->element;
}

/// One pass of the parser over the bytes.
class Pass {
public:
    explicit Pass(NSPropertyListReadOptions options) : builder_(options) {}
    ~Pass() {
        if (parser_) {
            xmlFreeDoc(parser_->myDoc);
            xmlFreeParserCtxt(parser_);
        }
    }
    Pass(const Pass &) = delete;
    Pass &operator=(const Pass &) = delete;

    TNReadList over(std::string_view bytes) {
        // The parser's lengths are of that size.
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
        if (!builder_.value()) {
            note("no value");
        }
        if (!problem_.empty()) {
            return {nil, problem_};
        }
        return {[[builder_.value() retain] autorelease], {}};
    }

private:
    static Pass &of(void *context) { return *static_cast<Pass *>(context); }

    void note(const char *problem) {
        if (problem_.empty()) {
            problem_ = problem;
            problem_ += " in line " + std::to_string(parser_->input ? parser_->input->line : 0);
        }
    }

    /// Takes a step, unless there is a problem already; reads no further when the step finds one.
    template <typename Step>
    static void go(void *context, const Step &step) {
        auto &pass = of(context);
        if (!pass.problem_.empty()) {
            return;
        }
        if (const char *problem = step(pass.builder_)) {
            pass.note(problem);
            xmlStopParser(pass.parser_);
        }
    }

    static xmlSAXHandler handler() {
        using Builder = TNXMLListBuilder;
        xmlSAXHandler handler = {};
        handler.initialized = XML_SAX2_MAGIC;
        handler.startElementNs = [](void *context, const xmlChar *name, const xmlChar *prefix,
                                     const xmlChar *, int, const xmlChar **, int, int, const xmlChar **) {
            const auto element =
                prefix ? TNListElement::none : elementOf(reinterpret_cast<const char *>(name));
            go(context, [element](Builder &builder) { return builder.start(element); });
        };
        handler.endElementNs = [](void *context, const xmlChar *, const xmlChar *, const xmlChar *) {
            go(context, [](Builder &builder) { return builder.end(); });
        };
        // The same for blanks, so that none is left out.
        handler.characters = handler.ignorableWhitespace =
            handler.cdataBlock = [](void *context, const xmlChar *text, int length) {
                const std::string_view part(
                    reinterpret_cast<const char *>(text), static_cast<std::size_t>(length));
                go(context, [part](Builder &builder) { return builder.take(part); });
            };
        // Entities of a file's own may grow without bounds, and unknown ones would be left out.
        handler.reference = [](void *context, const xmlChar *) {
            go(context, [](Builder &) { return "an unknown entity"; });
        };
        handler.entityDecl = [](void *context, const xmlChar *, int, const xmlChar *, const xmlChar *,
                                 xmlChar *) {
            go(context, [](Builder &) { return "an entity of its own"; });
        };
        handler.serror = [](void *context, xmlErrorPtr error) {
            if (error->level == XML_ERR_FATAL) {
                of(context).note("no well-formed XML");
            }
        };
        return handler;
    }

    TNXMLListBuilder builder_;
    xmlParserCtxtPtr parser_ = nullptr;
    std::string problem_;
};

} // namespace

TNReadList TNReadXMLList(NSData *data, NSPropertyListReadOptions options) {
    std::string_view bytes(static_cast<const char *>([data bytes]), [data length]);
    bytes.remove_prefix(std::min(bytes.find_first_not_of(" \t\r\n"), bytes.size()));
    return Pass(options).over(bytes);
}
