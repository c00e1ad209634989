#include "platform/qt/PipeTransfer.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include <poll.h>

namespace nerlo::platform {

using namespace std::chrono_literals;

PipeTransfer::PipeTransfer(std::unique_ptr<Transfer> transfer, std::function<void()> ended)
    : transfer_(std::move(transfer))
    , ended_(std::move(ended))
    , ready_(transfer_->fd(),
             transfer_->events() == POLLIN ? QSocketNotifier::Read : QSocketNotifier::Write) {
    deadline_.setSingleShot(true);
    QObject::connect(&ready_, &QSocketNotifier::activated, &ready_, [this] {
        if (transfer_->advance()) {
            wait();
        } else {
            end();
        }
    });
    QObject::connect(&deadline_, &QTimer::timeout, &deadline_, [this] {
        transfer_->abandon();
        end();
    });
    wait();
}

void PipeTransfer::wait() {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(
        transfer_->deadline() - std::chrono::steady_clock::now());
    deadline_.start(std::clamp<std::chrono::milliseconds>(left, 0ms, 1h));
}

void PipeTransfer::end() {
    ready_.setEnabled(false);
    deadline_.stop();
    // Not in an event of the notifier, which would end with this.
    QMetaObject::invokeMethod(&deadline_, std::move(ended_), Qt::QueuedConnection);
}

} // namespace nerlo::platform
