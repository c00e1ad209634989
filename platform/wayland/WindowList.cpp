#include "platform/wayland/WindowList.h"

namespace nerlo::platform::wayland {

void WindowList::completed(void *handle) {
    const Window &window = windows_[handle];
    if (!window.inFront) {
        if (handle == front_) {
            front_ = nullptr;
        }
    } else if (handle != front_ || window.appId != frontAppId_) {
        front_ = handle;
        frontAppId_ = window.appId;
        if (activated_) {
            activated_(frontAppId_);
        }
    }
}

void WindowList::closed(void *handle) {
    if (handle == front_) {
        front_ = nullptr;
    }
    windows_.erase(handle);
}

} // namespace nerlo::platform::wayland
