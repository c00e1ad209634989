#include "platform/qt/GnomeActiveApplication.h"

#include "platform/SpreadsheetLinks.h"
#include "platform/qt/GnomeShell.h"

#include <memory>
#include <utility>

namespace nerlo::platform {

namespace {

class GnomeActiveApplication final : public ActiveApplication {
  public:
    explicit GnomeActiveApplication(Created<ActiveApplication> otherwise)
        : otherwise_(std::move(otherwise)) {
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

    std::string description() const override {
        return shell_.isThere()     ? "GNOME, by the Shell's extension"
               : otherwise_.backend ? otherwise_.backend->description()
                                    : "none";
    }
    std::string limitation() const override {
        if (shell_.isThere()) {
            return {};
        }
        return (otherwise_.backend ? otherwise_.lacks
                                   : "which program is in front cannot be told, so rules for a "
                                     "program fit no copy") +
               "; " + GnomeShell::notEnabled;
    }

  private:
    void tell(std::string application) const {
        if (const Handler activated = activated_) {
            activated(std::move(application));
        }
    }

    const Created<ActiveApplication> otherwise_;
    Handler activated_;
    GnomeShell shell_{QDBusConnection::sessionBus()};
};

} // namespace

Created<ActiveApplication> createGnomeActiveApplication(Created<ActiveApplication> otherwise) {
    if (auto why = GnomeShell::impossible(QDBusConnection::sessionBus()); !why.empty()) {
        return {nullptr, std::move(why)};
    }
    return {std::make_unique<GnomeActiveApplication>(std::move(otherwise)), {}};
}

} // namespace nerlo::platform
