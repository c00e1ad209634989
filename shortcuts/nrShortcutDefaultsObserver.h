// Keeps a recorder control and a settings key equal, in both directions.
//
// Main thread only.
#pragma once

#include "shortcuts/nrShortcut.h"
#include "storage/SettingsStore.h"

#include <functional>
#include <optional>
#include <string>

namespace nerlo::shortcuts {

// A control that holds a shortcut.
class ShortcutControl {
  public:
    virtual std::optional<nrShortcut> shortcutValue() const = 0;
    virtual void setShortcutValue(const std::optional<nrShortcut> &value) = 0;
    // Runs `changed` after each change of the value, by whomever. Null ends that.
    virtual void setShortcutValueObserver(std::function<void()> changed) = 0;

  protected:
    ~ShortcutControl() = default;
};

class nrShortcutDefaultsObserver {
  public:
    // The control takes on the stored value. Both must outlive this.
    nrShortcutDefaultsObserver(ShortcutControl &shortcutView, storage::SettingsStore &store,
                               std::string userDefaultsKey);
    // The control gets back the value that it had before.
    ~nrShortcutDefaultsObserver();
    nrShortcutDefaultsObserver(const nrShortcutDefaultsObserver &) = delete;
    nrShortcutDefaultsObserver &operator=(const nrShortcutDefaultsObserver &) = delete;

    const std::string &userDefaultsKey() const { return userDefaultsKey_; }

  private:
    void settingsChanged();
    void valueChanged();

    ShortcutControl &shortcutView_;
    storage::SettingsStore &store_;
    std::string userDefaultsKey_;
    std::optional<nrShortcut> originalShortcut_;
    // Counted, so that each direction may run into itself.
    int internalPreferenceChange_ = 0;
    int internalShortcutChange_ = 0;
    storage::SettingsStore::Observation observation_;
};

} // namespace nerlo::shortcuts
