#include "platform/qt/GnomeActiveApplication.h"

#include "platform/SpreadsheetLinks.h"
#include "platform/qt/GnomeShell.h"

#include <memory>
#include <utility>

namespace nerlo::platform {

namespace {

class GnomeActiveApplication final : public ActiveApplication {
  public:
    void setActivatedHandler(Handler activated) override {
        shell_.reset();
        if (!activated) {
            return;
        }
        shell_ = std::make_unique<GnomeShell>(QDBusConnection::sessionBus());
        QObject::connect(shell_.get(), &GnomeShell::activated, shell_.get(),
                         [activated = std::move(activated)](const QString &name) {
                             const auto application = name.toStdString();
                             const auto spreadsheet = spreadsheetOfWindow(application);
                             activated(spreadsheet.empty() ? application
                                                           : std::string(spreadsheet));
                         });
    }

    std::string description() const override { return "GNOME, by the Shell's extension"; }

  private:
    std::unique_ptr<GnomeShell> shell_; // of one handler after the other
};

} // namespace

Created<ActiveApplication> createGnomeActiveApplication() {
    if (std::string missing = GnomeShell::missing(QDBusConnection::sessionBus());
        !missing.empty()) {
        return {nullptr, std::move(missing)};
    }
    return {std::make_unique<GnomeActiveApplication>(), {}};
}

} // namespace nerlo::platform
