// Backends of GNOME that the Shell's extension serves while it runs, and another one meanwhile.
//
// Main thread, with an event loop.
#pragma once

#include "platform/Created.h"
#include "platform/qt/GnomeShell.h"

#include <memory>
#include <string>
#include <utility>

namespace nerlo::platform {

template <class Interface>
class GnomeOrOther : public Interface {
  public:
    std::string description() const override {
        return shell_.isThere()     ? GnomeShell::description
               : otherwise_.backend ? otherwise_.backend->description()
                                    : "none";
    }
    std::string limitation() const override {
        if (shell_.isThere()) {
            return {};
        }
        return (otherwise_.backend ? otherwise_.lacks : lacksBoth_) + "; " + GnomeShell::notEnabled;
    }

  protected:
    // `otherwise` may have declined; `lacksBoth` is what is missing then, as in Created.
    GnomeOrOther(GnomeShell::Part part, Created<Interface> otherwise, std::string lacksBoth)
        : otherwise_(std::move(otherwise))
        , lacksBoth_(std::move(lacksBoth))
        , shell_(QDBusConnection::sessionBus(), part) {}

    const Created<Interface> otherwise_;
    const std::string lacksBoth_;
    GnomeShell shell_;
};

// Declines in other desktops, and leaves the arguments as they are then.
template <class Interface, class Backend, class... Arguments>
Created<Interface> createInGnome(Arguments &&...arguments) {
    if (auto why = GnomeShell::impossible(QDBusConnection::sessionBus()); !why.empty()) {
        return {nullptr, std::move(why)};
    }
    return {std::make_unique<Backend>(std::forward<Arguments>(arguments)...), {}};
}

} // namespace nerlo::platform
