#include "platform/qt/GnomeActiveApplication.h"

#include "platform/SpreadsheetLinks.h"
#include "platform/qt/GnomeOrOther.h"

#include <string>
#include <utility>

namespace nerlo::platform {

namespace {

class GnomeActiveApplication final : public GnomeOrOther<ActiveApplication> {
  public:
    explicit GnomeActiveApplication(Created<ActiveApplication> otherwise)
        : GnomeOrOther(GnomeShell::Part::clipboard, std::move(otherwise),
                       "which program is in front cannot be told, so rules for a program fit no "
                       "copy") {
        QObject::connect(&shell_, &GnomeShell::activated, &shell_, [this](const QString &name) {
            const auto application = name.toStdString();
            const auto spreadsheet = spreadsheetOfWindow(application);
            tell(spreadsheet.empty() ? application : std::string(spreadsheet));
        });
    }

    void setActivatedHandler(Handler activated) override {
        activated_ = std::move(activated);
        if (otherwise_.backend) {
            otherwise_.backend->setActivatedHandler(
                !activated_ ? Handler() : [this](std::string application) {
                    if (!shell_.isThere()) {
                        tell(std::move(application));
                    }
                });
        }
    }

  private:
    void tell(std::string application) const {
        if (const Handler activated = activated_) {
            activated(std::move(application));
        }
    }

    Handler activated_;
};

} // namespace

Created<ActiveApplication> createGnomeActiveApplication(Created<ActiveApplication> otherwise) {
    return createInGnome<ActiveApplication, GnomeActiveApplication>(std::move(otherwise));
}

} // namespace nerlo::platform
