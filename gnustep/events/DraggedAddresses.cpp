// Part of ForeignDrags.mm, where GNUstep Back 0.29 falls short: the selection behind a drag, and the
// addresses in it.

#include "gnustep/events/DraggedAddresses.h"

#include <X11/Xatom.h>

#include <chrono>
#include <memory>
#include <optional>
#include <poll.h>

namespace {

/// For each answer of the other program.
constexpr std::chrono::milliseconds patience{500};
/// In the units of XGetWindowProperty, which are four bytes.
constexpr long mostUnits = 0x400000;

struct Property {
    Atom type = None;
    std::string bytes;
};

/// The content of a window's property, which is then removed if `removes` says so.
Property read(Display* display, Window window, Atom name, Bool removes) {
    Property property;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char* data = nullptr;
    if (XGetWindowProperty(display, window, name, 0, mostUnits, removes, AnyPropertyType, &property.type,
            &format, &count, &left, &data) == Success &&
        data) {
        // What has 32 bits for the server has those of a long here.
        const std::size_t size = format == 32 ? sizeof(long) : static_cast<std::size_t>(format) / 8;
        property.bytes.assign(reinterpret_cast<const char*>(data), count * size);
        XFree(data);
    }
    return property;
}

bool offers(Display* display, const XClientMessageEvent& enter, Atom wanted) {
    for (std::size_t place = 2; place < 5; ++place) {
        if (static_cast<Atom>(enter.data.l[place]) == wanted) {
            return true;
        }
    }
    if ((enter.data.l[1] & 1) == 0) {
        return false;
    }
    const auto list = read(
        display, static_cast<Window>(enter.data.l[0]), XInternAtom(display, "XdndTypeList", False), False);
    const auto* types = reinterpret_cast<const Atom*>(list.bytes.data());
    for (std::size_t place = 0; place < list.bytes.size() / sizeof(Atom); ++place) {
        if (types[place] == wanted) {
            return true;
        }
    }
    return false;
}

/// A window of a connection of its own, and what comes for it.
class Listener {
public:
    explicit Listener(const char* name)
        : display_(XOpenDisplay(name), [](Display* display) {
              if (display) {
                  XCloseDisplay(display);
              }
          }) {
        if (display_) {
            window_ =
                XCreateSimpleWindow(display_.get(), DefaultRootWindow(display_.get()), 0, 0, 1, 1, 0, 0, 0);
            XSelectInput(display_.get(), window_, PropertyChangeMask);
        }
    }

    std::string selection(const char* name, const char* type) {
        if (!display_) {
            return {};
        }
        const Atom target = atom("DRAGGED_ADDRESSES");
        XConvertSelection(display_.get(), atom(name), atom(type), target, window_, CurrentTime);
        const auto answer = next([](const XEvent& event) { return event.type == SelectionNotify; });
        if (!answer || answer->xselection.property == None) {
            return {};
        }
        auto property = read(display_.get(), window_, target, True);
        return property.type == atom("INCR") ? pieces(target) : property.bytes;
    }

private:
    Atom atom(const char* name) { return XInternAtom(display_.get(), name, False); }

    template <typename Condition>
    std::optional<XEvent> next(const Condition& isWanted) {
        const auto end = std::chrono::steady_clock::now() + patience;
        for (;;) {
            while (XPending(display_.get()) > 0) {
                XEvent event;
                XNextEvent(display_.get(), &event);
                if (isWanted(event)) {
                    return event;
                }
            }
            const auto left =
                std::chrono::duration_cast<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
            pollfd connection{ConnectionNumber(display_.get()), POLLIN, 0};
            if (left.count() <= 0 || poll(&connection, 1, static_cast<int>(left.count())) == 0) {
                return std::nullopt;
            }
        }
    }

    /// What is long comes in pieces, each in place of the one that was taken; an empty one is the end.
    std::string pieces(Atom target) {
        std::string whole;
        for (;;) {
            const auto change = next([target](const XEvent& event) {
                return event.type == PropertyNotify && event.xproperty.atom == target &&
                       event.xproperty.state == PropertyNewValue;
            });
            const auto piece = change ? read(display_.get(), window_, target, True).bytes : std::string();
            if (piece.empty()) {
                // Half a list is none.
                return change ? whole : std::string();
            }
            whole += piece;
        }
    }

    std::unique_ptr<Display, void (*)(Display*)> display_;
    Window window_ = None;
};

} // namespace

std::string TNDraggedAddresses(Display* display, const XClientMessageEvent& enter) {
    constexpr auto type = "text/uri-list";
    if (!offers(display, enter, XInternAtom(display, type, False))) {
        return {};
    }
    return Listener(XDisplayString(display)).selection("XdndSelection", type);
}
