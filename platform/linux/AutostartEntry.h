// The login item as a desktop entry in the user's autostart folder.
#pragma once

#include "platform/LoginItem.h"

#include <string>

namespace nerlo::platform {

class AutostartEntry final : public LoginItem {
  public:
    // `folder` is $XDG_CONFIG_HOME/autostart, made when needed; `program` an absolute path.
    AutostartEntry(std::string folder, std::string program);

    // Switching off removes the entry.
    std::string setEnabled(bool enabled) override;
    bool enabled() const override;

  private:
    std::string folder_;
    std::string program_;
};

} // namespace nerlo::platform
