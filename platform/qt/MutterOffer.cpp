#include "platform/qt/MutterOffer.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusUnixFileDescriptor>
#include <QStringList>
#include <QVariantMap>

#include <algorithm>
#include <chrono>
#include <utility>

#include <unistd.h>

namespace nerlo::platform {

namespace {

const QString service = QStringLiteral("org.gnome.Mutter.RemoteDesktop");
const QString servicePath = QStringLiteral("/org/gnome/Mutter/RemoteDesktop");
const QString sessionInterface = QStringLiteral("org.gnome.Mutter.RemoteDesktop.Session");

// As elsewhere: a reader may stop for a while, but not for ever, and there may be so many at once.
constexpr auto receiverStallLimit = std::chrono::seconds(60);
constexpr std::size_t receiverLimit = 64;

} // namespace

MutterOffer::MutterOffer(QDBusConnection bus, PasteboardContent content,
                         std::function<void(bool)> set)
    : bus_(std::move(bus))
    , content_(std::move(content))
    , set_(std::move(set)) {
    begin();
}

MutterOffer::~MutterOffer() {
    close();
}

void MutterOffer::call(const QString &method, const QVariantList &arguments, Next next) {
    const bool first = session_.isEmpty();
    auto message = QDBusMessage::createMethodCall(service, first ? servicePath : session_,
                                                  first ? service : sessionInterface, method);
    message.setArguments(arguments);
    auto *watcher = new QDBusPendingCallWatcher(
        bus_.asyncCall(message, static_cast<int>(pasteboardServerLimit.count())), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, next = std::move(next)](QDBusPendingCallWatcher *finished) {
                finished->deleteLater();
                const QDBusMessage reply = finished->reply();
                if (reply.type() == QDBusMessage::ErrorMessage) {
                    end(false);
                } else if (next) {
                    next(reply);
                }
            });
}

void MutterOffer::begin() {
    call(QStringLiteral("CreateSession"), {}, [this](const QDBusMessage &created) {
        session_ = created.arguments().value(0).value<QDBusObjectPath>().path();
        bus_.connect(service, session_, sessionInterface, QStringLiteral("SelectionOwnerChanged"),
                     this, SLOT(onOwnerChanged(QDBusMessage)));
        bus_.connect(service, session_, sessionInterface, QStringLiteral("SelectionTransfer"), this,
                     SLOT(onTransfer(QString, uint)));
        bus_.connect(service, session_, sessionInterface, QStringLiteral("Closed"), this,
                     SLOT(onClosed()));
        QStringList formats;
        for (const auto &data : content_) {
            formats.append(QString::fromStdString(data.format));
        }
        call(QStringLiteral("EnableClipboard"), {QVariantMap()}, nullptr);
        call(QStringLiteral("SetSelection"), {QVariantMap{{QStringLiteral("mime-types"), formats}}},
             [this](const QDBusMessage &) { end(true); });
    });
}

// Once: what fails later is one transfer alone.
void MutterOffer::end(bool set) {
    if (set_) {
        if (!set) {
            close();
        }
        std::exchange(set_, nullptr)(set);
    }
}

void MutterOffer::close() {
    if (!session_.isEmpty()) {
        auto stop = QDBusMessage::createMethodCall(service, session_, sessionInterface,
                                                   QStringLiteral("Stop"));
        bus_.send(stop);
        session_.clear();
    }
    transfers_.clear();
    content_.clear();
}

void MutterOffer::onOwnerChanged(const QDBusMessage &message) {
    const auto options = qdbus_cast<QVariantMap>(message.arguments().value(0));
    if (!set_ && !options.value(QStringLiteral("session-is-owner")).toBool()) {
        close();
    }
}

void MutterOffer::onTransfer(const QString &format, uint serial) {
    call(QStringLiteral("SelectionWrite"), {serial},
         [this, format, serial](const QDBusMessage &reply) { serve(reply, format, serial); });
}

void MutterOffer::serve(const QDBusMessage &reply, const QString &format, uint serial) {
    const auto passed = reply.arguments().value(0).value<QDBusUnixFileDescriptor>();
    const auto data = std::ranges::find(content_, format.toStdString(), &PasteboardData::format);
    auto transfer = passed.isValid() && data != content_.end() && transfers_.size() < receiverLimit
                        ? OutgoingTransfer::create(FileDescriptor(dup(passed.fileDescriptor())),
                                                   data->bytes, receiverStallLimit)
                        : nullptr;
    if (!transfer) {
        served(serial, false);
        return;
    }
    transfers_[serial] = std::make_unique<PipeTransfer>(std::move(transfer),
                                                        [this, serial] { served(serial, true); });
}

void MutterOffer::served(uint serial, bool whole) {
    transfers_.erase(serial); // before: the end of the pipe is the end of the bytes
    if (!session_.isEmpty()) {
        auto done = QDBusMessage::createMethodCall(service, session_, sessionInterface,
                                                   QStringLiteral("SelectionWriteDone"));
        done.setArguments({serial, whole});
        bus_.send(done);
    }
}

} // namespace nerlo::platform
