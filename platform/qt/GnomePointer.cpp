#include "platform/qt/GnomePointer.h"

#include "platform/qt/GnomeOrOther.h"

#include <QGuiApplication>
#include <QScreen>

#include <chrono>
#include <utility>

namespace nerlo::platform {

namespace {

// A window is waiting for it.
constexpr std::chrono::milliseconds answerLimit{500};

// The Shell counts in pixels, as Xwayland does; the toolkit has the corners of screens in those,
// and all within a screen in pixels of its own size.
std::optional<PopupPoint> inToolkit(QPoint pixel) {
    for (const QScreen *screen : QGuiApplication::screens()) {
        const QPoint corner = screen->geometry().topLeft();
        const double ratio = screen->devicePixelRatio();
        const QPoint within = (pixel - corner) / ratio;
        if (QRect({}, screen->size()).contains(within)) {
            return PopupPoint{corner.x() + within.x(), corner.y() + within.y()};
        }
    }
    return std::nullopt;
}

class GnomePointer final : public PointerPlace {
  public:
    void find(Found found) override {
        if (!shell_.isThere()) {
            found(std::nullopt);
            return;
        }
        shell_.call(QStringLiteral("Pointer"), {}, answerLimit,
                    [found = std::move(found)](const QDBusMessage &reply) {
                        const auto place = reply.arguments();
                        found(reply.signature() == QLatin1String("ii")
                                  ? inToolkit({place[0].toInt(), place[1].toInt()})
                                  : std::nullopt);
                    });
    }
    bool isKnown() const override { return shell_.isThere(); }

  private:
    GnomeShell shell_{QDBusConnection::sessionBus(), GnomeShell::Part::keys};
};

} // namespace

Created<PointerPlace> createGnomePointer() {
    return createInGnome<PointerPlace, GnomePointer>();
}

} // namespace nerlo::platform
