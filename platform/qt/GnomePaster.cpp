#include "platform/qt/GnomePaster.h"

#include "platform/VirtualKeys.h"
#include "platform/qt/GnomeOrOther.h"

#include <chrono>
#include <utility>

namespace nerlo::platform {

namespace {

using namespace std::chrono_literals;

constexpr std::uint64_t virtualV = 9;
// The extension waits for the window that was in front, but not as long as this.
constexpr auto answerLimit = 10s;

class GnomePaster final : public GnomeOrOther<Paster> {
  public:
    GnomePaster(MainQueue &mainQueue, const KeyboardLayout &layout, Created<Paster> otherwise)
        : GnomeOrOther(GnomeShell::Part::keys, std::move(otherwise),
                       "what the chooser makes is pasted by hand")
        , mainQueue_(mainQueue)
        , layout_(layout) {}

    void remember() override {
        if (shell_.isThere()) {
            shell_.call(QStringLiteral("Remember"), {}, answerLimit);
        }
        if (otherwise_.backend) {
            otherwise_.backend->remember();
        }
    }

    void paste(std::function<void(bool)> done) override {
        if (shell_.isThere()) {
            // Programs take Ctrl and the key at its place where the layout writes no Latin letters.
            const auto key = evdevOfVirtualKey(layout_.keyOfSymbol("v").value_or(virtualV));
            shell_.call(QStringLiteral("Paste"), {uint{*key}}, answerLimit,
                        [done = std::move(done)](const QDBusMessage &reply) {
                            done(reply.type() == QDBusMessage::ReplyMessage &&
                                 reply.arguments().value(0).toBool());
                        });
        } else if (otherwise_.backend) {
            otherwise_.backend->paste(std::move(done));
        } else {
            mainQueue_.post([done = std::move(done)] { done(false); });
        }
    }

  private:
    MainQueue &mainQueue_;
    const KeyboardLayout &layout_;
};

} // namespace

Created<Paster> createGnomePaster(MainQueue &mainQueue, const KeyboardLayout &layout,
                                  Created<Paster> otherwise) {
    return createInGnome<Paster, GnomePaster>(mainQueue, layout, std::move(otherwise));
}

} // namespace nerlo::platform
