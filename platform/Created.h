// The answer of a backend's create function. A backend offers, for each interface that it has,
// `Created<Interface> create<Backend><Interface>(...)`, which never throws and declines where the
// desktop lacks what it needs; the backends are tried in order.
#pragma once

#include <memory>
#include <string>

namespace nerlo::platform {

template <class Interface>
struct Created {
    std::unique_ptr<Interface> backend; // null: declined
    std::string declined;               // then why, in English, for the user's eyes
    // What this desktop keeps the backend from doing, in the same words; empty for nothing.
    std::string lacks{};
};

} // namespace nerlo::platform
