// Tells when the desktop has a tray of the XEmbed kind.
#pragma once

namespace nerlo::platform {

// Stands for the watching, which ends with it.
class TrayWatch {
  public:
    virtual ~TrayWatch() = default;
};

} // namespace nerlo::platform
