// A settings store that lasts as long as the object.
#pragma once

#include "platform/SettingsStore.h"

namespace nerlo::platform {

class MemorySettingsStore final : public SettingsStore {
  public:
    MemorySettingsStore() = default;
    explicit MemorySettingsStore(PropertyDictionary values) { replaceAll(std::move(values)); }

    bool synchronize() override {
        ++synchronizations;
        return true;
    }

    int synchronizations = 0;

  private:
    void changed(std::string_view) override {}
};

} // namespace nerlo::platform
