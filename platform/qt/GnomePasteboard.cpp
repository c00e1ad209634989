#include "platform/qt/GnomePasteboard.h"

#include "platform/Alive.h"
#include "platform/FallbackPasteboard.h"
#include "platform/PasteboardReading.h"
#include "platform/qt/GnomeShell.h"
#include "platform/qt/MutterOffer.h"
#include "platform/qt/PipeTransfer.h"

#include <QDBusArgument>
#include <QDBusUnixFileDescriptor>
#include <QStringList>

#include <algorithm>
#include <deque>
#include <utility>

#include <sys/mman.h>
#include <unistd.h>

namespace nerlo::platform {

namespace {

struct State {
    ChangeCount count = 0;
    std::vector<std::string> formats;
    bool complete = true;
};

// What the extension says of the content, if it is that; the extension is no more trusted than any
// other program.
std::optional<State> stateIn(const QDBusMessage &message) {
    if (message.type() == QDBusMessage::ErrorMessage ||
        message.signature() != QLatin1String("xasb")) {
        return std::nullopt;
    }
    const auto arguments = message.arguments();
    State state{arguments[0].toLongLong(), {}, arguments[2].toBool()};
    for (const auto &name : arguments[1].toStringList()) {
        auto format = name.toStdString();
        if (state.formats.size() == pasteboardFormatLimit ||
            format.size() > pasteboardFormatNameLimit) {
            state.complete = false;
        } else {
            state.formats.push_back(std::move(format));
        }
    }
    return state;
}

// A file in memory with these bytes, from its beginning; empty if the system has no room for it.
FileDescriptor fileOf(const std::string &bytes) {
    FileDescriptor file(memfd_create("nerlo-pro", MFD_CLOEXEC));
    for (std::size_t written = 0; written < bytes.size();) {
        const ssize_t count = write(file.get(), bytes.data() + written, bytes.size() - written);
        if (count <= 0) {
            return {};
        }
        written += static_cast<std::size_t>(count);
    }
    lseek(file.get(), 0, SEEK_SET);
    return file;
}

bool isOneText(const PasteboardContent &content) {
    return std::ranges::all_of(
        content, [&](const auto &data) { return data.bytes == content.front().bytes; });
}

std::vector<std::string> formatsOf(const PasteboardContent &content) {
    std::vector<std::string> formats;
    std::ranges::transform(content, std::back_inserter(formats), &PasteboardData::format);
    return formats;
}

QStringList asStrings(const std::vector<std::string> &names) {
    QStringList strings;
    std::ranges::transform(names, std::back_inserter(strings), &QString::fromStdString);
    return strings;
}

class GnomePasteboard final : public Pasteboard {
  public:
    explicit GnomePasteboard(MainQueue &mainQueue)
        : mainQueue_(mainQueue)
        , bus_(QDBusConnection::sessionBus())
        , shell_(bus_) {
        QObject::connect(&shell_, &GnomeShell::changed, &shell_,
                         [this](const QDBusMessage &message) {
                             if (auto state = stateIn(message)) {
                                 replaced(std::move(*state));
                             }
                         });
        QObject::connect(&shell_, &GnomeShell::came, &shell_, [this] {
            // Where it does not listen to us yet, its news comes as soon as it does.
            shell_.call(QStringLiteral("State"), {}, pasteboardServerLimit,
                        [this](const QDBusMessage &reply) {
                            if (auto state = stateIn(reply)) {
                                replaced(std::move(*state));
                            }
                        });
        });
        QObject::connect(&shell_, &GnomeShell::left, &shell_, [this] {
            there_ = false;
            endReads(PasteboardStatus::unavailable);
            if (left_) {
                left_();
            }
        });
    }

    // `came` gets the count of what stands on the clipboard when the extension begins to listen to
    // us; `left` runs when it has ended.
    void setPresenceHandlers(std::function<void(ChangeCount)> came, std::function<void()> left) {
        came_ = std::move(came);
        left_ = std::move(left);
    }

    // Whether the extension is there, be it for another process.
    bool start() {
        if (!shell_.isThere()) {
            return false;
        }
        const QDBusMessage reply = shell_.ask(QStringLiteral("State"), pasteboardServerLimit);
        if (auto state = stateIn(reply)) {
            now_ = std::move(*state);
            there_ = true;
        }
        return there_ ||
               reply.errorName() == QLatin1String("org.freedesktop.DBus.Error.AccessDenied");
    }

    ChangeCount changeCount() const override { return now_.count; }
    bool notifiesChanges() const override { return true; }
    void setChangeHandler(std::function<void()> changed) override { changed_ = std::move(changed); }
    // The extension may come back as long as there is a display.
    void setLostHandler(std::function<void()>) override {}

    void readFormats(FormatsHandler handler) override {
        // The news of a copy that was made just before may still be on its way.
        shell_.call(QStringLiteral("State"), {}, pasteboardServerLimit,
                    [this, handler = std::move(handler)](const QDBusMessage &reply) {
                        const auto state = stateIn(reply);
                        if (!state) {
                            handler({});
                            return;
                        }
                        const auto answer = alive_.guard([&] {
                            handler({PasteboardStatus::done, state->count, state->formats,
                                     state->complete});
                        });
                        replaced(*state); // may end this
                        answer();
                    });
    }

    void read(ChangeCount of, PasteboardRequest request, ReadHandler handler) override {
        const auto job = std::make_shared<ReadJob>(
            ReadJob{PasteboardReading(std::move(request)), std::move(handler), {}});
        mainQueue_.post(alive_.guard([this, of, job] {
            if (!there_) {
                job->finish(PasteboardStatus::unavailable);
            } else if (of != now_.count) {
                job->finish(PasteboardStatus::changed);
            } else {
                reads_.push_back(job);
                readOn(job);
            }
        }));
    }

    void write(PasteboardContent content, std::optional<ChangeCount> onlyOver,
               WriteHandler handler) override {
        writes_.push_back({std::move(content), onlyOver, std::move(handler)});
        if (writes_.size() == 1) {
            startWriteSoon();
        }
    }

    std::string description() const override { return GnomeShell::description; }
    std::vector<std::string> limitations() const override {
        return {shell_.isThere()
                    ? "When the screen is locked, what was restored keeps its text alone."
                    : GnomeShell::notEnabled};
    }

  private:
    // One format on its way. It has arrived when the pipe is at its end and the extension has said
    // that these were all the bytes.
    struct Arrival {
        std::unique_ptr<PipeTransfer> pipe;
        std::optional<IncomingTransfer::Outcome> outcome;
        std::string bytes;
        std::optional<bool> whole;
    };
    struct ReadJob {
        PasteboardReading reading;
        ReadHandler handler; // null once the job has ended
        std::vector<std::shared_ptr<Arrival>> arrivals;

        void finish(PasteboardStatus status) {
            arrivals.clear();
            if (handler) {
                std::exchange(handler, nullptr)(
                    status == PasteboardStatus::timedOut ? reading.late() : reading.result(status));
            }
        }
    };
    struct WriteJob {
        PasteboardContent content;
        std::optional<ChangeCount> onlyOver;
        WriteHandler handler;
    };

    void tellChanged() const {
        // A copy: the handler may replace itself.
        if (const auto changed = changed_) {
            changed();
        }
    }

    void replaced(State state) {
        if (!std::exchange(there_, true)) {
            if (came_) {
                came_(state.count);
            }
            take(std::move(state));
        } else if (offering_) {
            // One of these is our own.
            duringOffer_.push_back(std::move(state));
        } else if (state.count > now_.count) {
            take(std::move(state));
            tellChanged();
        }
    }

    void take(State state) {
        now_ = std::move(state);
        endReads(PasteboardStatus::changed);
    }

    void endReads(PasteboardStatus status) {
        for (const auto &job : std::exchange(reads_, {})) {
            job->finish(status);
        }
    }

    void endRead(const std::shared_ptr<ReadJob> &job, PasteboardStatus status) {
        std::erase(reads_, job);
        job->finish(status);
    }

    // Asks for as many formats as may be asked for now.
    void readOn(const std::shared_ptr<ReadJob> &job) {
        while (const auto place = job->reading.next()) {
            if (std::ranges::find(now_.formats, job->reading.format(*place)) ==
                now_.formats.end()) {
                job->reading.failed(PasteboardReading::Failure::refused);
            } else if (!startTransfer(job, *place)) {
                endRead(job, PasteboardStatus::unavailable);
                return;
            }
        }
        if (job->reading.finished()) {
            endRead(job, PasteboardStatus::done);
        }
    }

    // False if no pipe can be had.
    bool startTransfer(const std::shared_ptr<ReadJob> &job, std::size_t place) {
        Pipe pipe = makePipe();
        if (!pipe.reader) {
            return false;
        }
        const auto arrival = std::make_shared<Arrival>();
        const std::weak_ptr<Arrival> weak = arrival;
        const auto silence = job->reading.first() ? pasteboardStallLimit : pasteboardReadLimit;
        auto transfer = std::make_unique<IncomingTransfer>(
            std::move(pipe.reader),
            TransferLimits{job->reading.room(), silence, job->reading.end()},
            [weak](IncomingTransfer::Outcome outcome, std::string bytes) {
                if (const auto filled = weak.lock()) {
                    filled->outcome = outcome;
                    filled->bytes = std::move(bytes);
                }
            });
        const auto arrived = [this, job, weak, place] {
            if (const auto filled = weak.lock()) {
                arrivedPart(job, filled, place);
            }
        };
        arrival->pipe = std::make_unique<PipeTransfer>(std::move(transfer), arrived);
        job->arrivals.push_back(arrival);
        shell_.call(QStringLiteral("Read"),
                    {QVariant::fromValue<qlonglong>(now_.count),
                     QString::fromStdString(job->reading.format(place)),
                     QVariant::fromValue(QDBusUnixFileDescriptor(pipe.writer.get()))},
                    pasteboardReadLimit, [weak, arrived](const QDBusMessage &reply) {
                        if (const auto filled = weak.lock()) {
                            filled->whole = reply.arguments().value(0).metaType() ==
                                                QMetaType::fromType<bool>() &&
                                            reply.arguments()[0].toBool();
                            arrived();
                        }
                    });
        return true;
    }

    void arrivedPart(const std::shared_ptr<ReadJob> &job, const std::shared_ptr<Arrival> &arrival,
                     std::size_t place) {
        using Outcome = IncomingTransfer::Outcome;
        const auto outcome = arrival->outcome;
        if (!outcome || (*outcome == Outcome::complete && !arrival->whole)) {
            return;
        }
        auto &reading = job->reading;
        std::erase(job->arrivals, arrival);
        if (*outcome == Outcome::abandoned) {
            endRead(job, PasteboardStatus::timedOut);
            return;
        }
        if (*outcome == Outcome::complete && *arrival->whole) {
            reading.arrived(
                place, {reading.format(place), {}, pasteboardBytes(std::move(arrival->bytes))});
        } else {
            if (*outcome == Outcome::complete) {
                *reading.room() += arrival->bytes.size();
            }
            reading.failed(*outcome == Outcome::tooLarge ? PasteboardReading::Failure::tooLarge
                                                         : PasteboardReading::Failure::refused);
        }
        readOn(job);
    }

    void startWriteSoon() {
        mainQueue_.post(alive_.guard([this] { startWrite(); }));
    }

    void startWrite() {
        const WriteJob &job = writes_.front();
        if (!there_) {
            endWrite({PasteboardStatus::unavailable, 0});
        } else if (isOneText(job.content)) {
            writeText(job);
        } else if (job.onlyOver && *job.onlyOver != now_.count) {
            endWrite({PasteboardStatus::changed, 0});
        } else {
            offerContent();
        }
    }

    // The extension compares the counts and replaces the content at one go.
    void writeText(const WriteJob &job) {
        static const std::string nothing;
        const std::string &bytes = job.content.empty() ? nothing : *job.content.front().bytes;
        const FileDescriptor file = fileOf(bytes);
        if (!file) {
            endWrite({PasteboardStatus::unavailable, 0});
            return;
        }
        auto formats = formatsOf(job.content);
        const QVariantList arguments{
            job.onlyOver.has_value(), QVariant::fromValue<qlonglong>(job.onlyOver.value_or(0)),
            asStrings(formats), QVariant::fromValue(QDBusUnixFileDescriptor(file.get())),
            QVariant::fromValue<qulonglong>(bytes.size())};
        shell_.call(QStringLiteral("Write"), arguments, pasteboardReadLimit,
                    [this, formats = std::move(formats)](const QDBusMessage &reply) {
                        textWritten(reply, formats);
                    });
    }

    void textWritten(const QDBusMessage &reply, const std::vector<std::string> &formats) {
        if (reply.type() == QDBusMessage::ErrorMessage ||
            reply.signature() != QLatin1String("bx")) {
            const bool late =
                reply.errorName() == QLatin1String("org.freedesktop.DBus.Error.NoReply");
            endWrite({late ? PasteboardStatus::timedOut : PasteboardStatus::unavailable, 0});
        } else if (!reply.arguments()[0].toBool()) {
            endWrite({PasteboardStatus::changed, 0});
        } else {
            wrote({reply.arguments()[1].toLongLong(), formats, true});
        }
    }

    // A source in the extension cannot tell which of several formats it is asked for, but the
    // compositor has one that can.
    void offerContent() {
        offering_ = true;
        offer_ = std::make_unique<MutterOffer>(bus_, writes_.front().content, [this](bool offered) {
            if (!offered) {
                offerEnded();
                return;
            }
            // The news of all that was before comes before this answer.
            shell_.call(QStringLiteral("State"), {}, pasteboardServerLimit,
                        [this](const QDBusMessage &) { offerEnded(); });
        });
    }

    void offerEnded() {
        offering_ = false;
        const auto formats = formatsOf(writes_.front().content);
        auto news = std::exchange(duringOffer_, {});
        const auto own = std::ranges::find(news, formats, &State::formats);
        if (own == news.end()) {
            endWrite({PasteboardStatus::unavailable, 0});
        } else {
            wrote(*own);
        }
        if (!news.empty()) {
            replaced(std::move(news.back()));
        }
    }

    void wrote(State state) {
        const auto count = state.count;
        if (count > now_.count) {
            take(std::move(state));
        }
        endWrite({PasteboardStatus::done, count});
    }

    void endWrite(PasteboardWrite result) {
        const auto handler = std::move(writes_.front().handler);
        writes_.pop_front();
        if (!writes_.empty()) {
            startWriteSoon();
        }
        // Not before: a look at the count in between must not take our own write for another
        // program's copy.
        const auto tell = alive_.guard([this] { tellChanged(); });
        handler(result); // may end this
        tell();
    }

    MainQueue &mainQueue_;
    QDBusConnection bus_;
    GnomeShell shell_;
    Alive alive_;
    State now_;
    bool there_ = false; // and listens to us
    std::function<void()> changed_;
    std::function<void(ChangeCount)> came_;
    std::function<void()> left_;
    std::vector<std::shared_ptr<ReadJob>> reads_;
    std::deque<WriteJob> writes_;
    std::unique_ptr<MutterOffer> offer_; // of the last content that is no single text
    bool offering_ = false;
    std::vector<State> duringOffer_;
};

} // namespace

Created<Pasteboard> createGnomePasteboard(MainQueue &mainQueue,
                                          std::function<Created<Pasteboard>()> otherwise) {
    if (auto why = GnomeShell::impossible(QDBusConnection::sessionBus()); !why.empty()) {
        return {nullptr, std::move(why)};
    }
    auto gnome = std::make_unique<GnomePasteboard>(mainQueue);
    auto &extension = *gnome;
    auto both =
        std::make_unique<FallbackPasteboard>(std::move(gnome), [otherwise = std::move(otherwise)] {
            auto opened = otherwise();
            opened.lacks += std::string("; ") + GnomeShell::notEnabled;
            return opened;
        });
    extension.setPresenceHandlers([&both = *both](ChangeCount count) { both.useFirst(count); },
                                  [&both = *both] { both.useOther(); });
    if (!extension.start()) {
        both->useOther();
        if (both->usesFirst()) {
            return {nullptr, GnomeShell::notEnabled};
        }
    }
    return {std::move(both), {}};
}

bool gnomeExtensionRuns() {
    const auto name = QStringLiteral("nerlo-extension");
    const auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
    const bool runs = GnomeShell::impossible(bus).empty() && GnomeShell(bus).isThere();
    QDBusConnection::disconnectFromBus(name);
    return runs;
}

} // namespace nerlo::platform
