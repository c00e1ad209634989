#include "shell/PointerSearch.h"

#include <QCursor>
#include <algorithm>
#include <utility>

namespace nerlo::shell {

namespace {

int kept(int at, int first, int size) {
    return std::clamp(at, first, std::max(first, first + size - 1));
}

} // namespace

void PointerSearch::start(std::function<void(QPoint)> found) {
    stop();
    found_ = std::move(found);
    if (searchInLayer()) {
        return;
    }
    if (place_) {
        place_->find(alive_.guard([this](std::optional<platform::PopupPoint> at) {
            tell(at ? std::optional(QPoint(at->x, at->y)) : std::nullopt);
        }));
    } else {
        tell({});
    }
}

// Popups are told where the pointer is: one is asked for, but never drawn.
bool PointerSearch::searchInLayer() {
    auto at = std::make_shared<std::optional<QPoint>>();
    platform::Popup popup;
    popup.width = 1;
    popup.height = 1;
    popup.atPointer = true;
    popup.place = [at](const platform::PopupScreen &screen,
                       std::optional<platform::PopupPoint> pointer) {
        if (pointer) {
            const auto &free = screen.free;
            *at = QPoint(screen.origin.x + kept(pointer->x, free.x, screen.freeWidth),
                         screen.origin.y + kept(pointer->y, free.y, screen.freeHeight));
        }
        return platform::PopupPoint();
    };
    popup.closed = alive_.guardOn(mainQueue_, [this, at] { tell(*at); });
    popup.draw = [closed = popup.closed](int scale) {
        closed();
        return platform::PopupPicture{scale, scale, scale, {}};
    };
    search_ = layer_ ? layer_->show(std::move(popup)) : nullptr;
    return search_ != nullptr;
}

void PointerSearch::tell(std::optional<QPoint> at) {
    if (const auto found = std::exchange(found_, nullptr)) {
        found(at.value_or(QCursor::pos()));
    }
}

void PointerSearch::stop() {
    found_ = nullptr;
    search_.reset();
}

} // namespace nerlo::shell
