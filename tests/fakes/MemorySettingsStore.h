// A settings store that lasts as long as the object.
#pragma once

#include "storage/SettingsStore.h"

namespace nerlo::test {

class MemorySettingsStore final : public storage::SettingsStore {
  public:
    MemorySettingsStore() = default;
    explicit MemorySettingsStore(storage::PropertyDictionary values) {
        replaceAll(std::move(values));
    }

    bool synchronize() override { return true; }

  private:
    void changed(std::string_view) override {}
};

} // namespace nerlo::test
