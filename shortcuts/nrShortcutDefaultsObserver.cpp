#include "shortcuts/nrShortcutDefaultsObserver.h"

#include "shortcuts/UserDefaultsHotKeys.h"

#include <utility>

namespace nerlo::shortcuts {

namespace {

class EchoGuard {
  public:
    explicit EchoGuard(int &depth)
        : depth_(depth) {
        ++depth_;
    }
    ~EchoGuard() { --depth_; }
    EchoGuard(const EchoGuard &) = delete;
    EchoGuard &operator=(const EchoGuard &) = delete;

  private:
    int &depth_;
};

} // namespace

nrShortcutDefaultsObserver::nrShortcutDefaultsObserver(ShortcutControl &shortcutView,
                                                       storage::SettingsStore &store,
                                                       std::string userDefaultsKey)
    : shortcutView_(shortcutView)
    , store_(store)
    , userDefaultsKey_(std::move(userDefaultsKey))
    , originalShortcut_(shortcutView.shortcutValue()) {
    shortcutView_.setShortcutValue(storedShortcut(store_, userDefaultsKey_));
    observation_ = store_.observeAll([this] { settingsChanged(); });
    shortcutView_.setShortcutValueObserver([this] { valueChanged(); });
}

nrShortcutDefaultsObserver::~nrShortcutDefaultsObserver() {
    shortcutView_.setShortcutValueObserver(nullptr);
    observation_ = {};
    shortcutView_.setShortcutValue(originalShortcut_);
}

void nrShortcutDefaultsObserver::settingsChanged() {
    if (internalPreferenceChange_ > 0) {
        return;
    }
    const EchoGuard guard(internalShortcutChange_);
    shortcutView_.setShortcutValue(storedShortcut(store_, userDefaultsKey_));
}

void nrShortcutDefaultsObserver::valueChanged() {
    if (internalShortcutChange_ > 0) {
        return;
    }
    const EchoGuard guard(internalPreferenceChange_);
    storeShortcut(store_, userDefaultsKey_, shortcutView_.shortcutValue());
}

} // namespace nerlo::shortcuts
