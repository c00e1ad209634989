// The desktop's general clipboard (on X11 the CLIPBOARD selection; the primary selection is left
// alone).
//
// The owner of the content is another program and may be slow, hang, vanish or lie, so nothing here
// waits for it: a read or a write returns at once, and its handler runs later on the main queue,
// exactly once, after a bounded time. The time limits below hold in every backend.
//
// All functions are called on the main thread, and all handlers run there. A pasteboard that is
// destroyed drops the handlers that have not run yet; the destructor first hands content of ours to
// a clipboard manager where the platform has one, for at most `pasteboardHandOverLimit`.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace nerlo::platform {

// Differs after each replacement of the content by any program, this one included, and after the
// content went with its owner. Compared for equality only.
using ChangeCount = std::int64_t;

// The wait for the first format of a read is given up when nothing arrives for this long,
inline constexpr std::chrono::milliseconds pasteboardStallLimit{2000};
// or when it takes this long altogether, however busy the owner looks.
inline constexpr std::chrono::milliseconds pasteboardReadLimit{15000};
// All the others have this long together: a spreadsheet may need many seconds for its pictures.
inline constexpr std::chrono::milliseconds pasteboardOthersLimit{1000};
inline constexpr std::chrono::milliseconds pasteboardHandOverLimit{2000};
// The display server and the desktop's shell are no owners: on a busy machine, as at login, they
// are slow for everybody, and to go on without them costs more than to wait.
inline constexpr std::chrono::milliseconds pasteboardServerLimit{5000};
// More formats than this, or longer names (in bytes), are nonsense; they are left off the list.
inline constexpr std::size_t pasteboardFormatLimit = 256;
inline constexpr std::size_t pasteboardFormatNameLimit = 1024;

// One format of the content, with its bytes.
struct PasteboardData {
    std::string format; // a MIME type or an X11 target name, as the owner spells it
    // X11 only: the name of the property type that the owner delivered; empty for the same as
    // `format`. Elsewhere empty and ignored.
    std::string type;
    std::shared_ptr<const std::string> bytes; // never null; formats may share their bytes
};

// Bytes for the content. They are overwritten when nobody has them any more.
std::shared_ptr<const std::string> pasteboardBytes(std::string bytes);

// What stands on the clipboard at one time. The order is the owner's.
using PasteboardContent = std::vector<PasteboardData>;

enum class PasteboardStatus {
    done,
    changed,     // the clipboard holds other content by now, or none
    timedOut,    // the owner was given up
    unavailable, // no connection to the desktop, or the owner does not answer in the protocol
};

struct PasteboardFormats {
    PasteboardStatus status = PasteboardStatus::unavailable;
    ChangeCount changeCount = 0;      // of the content that offers the formats
    std::vector<std::string> formats; // empty: the clipboard is empty
    bool complete = true;             // false: some that are offered are left off the list
};

// What is wanted of the content: one of several formats, and then more of them.
struct PasteboardRequest {
    // The first of these of which the owner delivers at least one byte. If it delivers none of
    // them, nothing else is asked for; an empty list asks for `others` alone.
    std::vector<std::string> firstOf;
    std::size_t firstLimit = 0; // bytes; a larger format counts as not delivered
    // Then all of these, a few of them at a time: one that is refused, late or too large keeps no
    // other from being read.
    std::vector<std::string> others;
    // Bytes of everything together. A format that does not fit is left out, and where the first
    // alone is larger, the others are not asked for.
    std::size_t limit = 0;
};

struct PasteboardRead {
    PasteboardStatus status = PasteboardStatus::unavailable;
    // With `done` and `timedOut` what has arrived: the one of `firstOf`, then the others in the
    // order in which they were asked for. With `timedOut` the owner was given up at `firstOf`.
    PasteboardContent content;
    bool tooLarge = false; // something was left out for its size
};

struct PasteboardWrite {
    PasteboardStatus status = PasteboardStatus::unavailable;
    ChangeCount changeCount =
        0; // with `done`: exactly the count that this write gave the clipboard
};

class Pasteboard {
  public:
    using FormatsHandler = std::function<void(PasteboardFormats)>;
    using ReadHandler = std::function<void(PasteboardRead)>;
    using WriteHandler = std::function<void(PasteboardWrite)>;

    virtual ~Pasteboard() = default;

    // Never waits. May lag behind another program's copy by the moment in which the news travels,
    // but not behind a write of ours whose handler has run.
    virtual ChangeCount changeCount() const = 0;

    // Whether `setChangeHandler` is of use; if not, the count has to be polled.
    virtual bool notifiesChanges() const = 0;
    // Runs after changes of the count; several close together may be reported once. Null for none.
    virtual void setChangeHandler(std::function<void()> changed) = 0;
    // Runs once, when the connection to the desktop is gone for good. Null for none.
    virtual void setLostHandler(std::function<void()> lost) = 0;

    // The formats of the current content. Formats that belong to the transfer protocol and not to
    // the content (TARGETS, TIMESTAMP, SAVE_TARGETS and their like) are not among them.
    virtual void readFormats(FormatsHandler handler) = 0;

    // The bytes that `request` asks for, as long as the clipboard still holds the content that had
    // the count `of`. No more than the limits allow is ever kept.
    virtual void read(ChangeCount of, PasteboardRequest request, ReadHandler handler) = 0;

    // Replaces the content. With `onlyOver`, only if the clipboard still holds the content that had
    // that count; else the status is `changed` and nothing is written. On Wayland a copy that
    // reaches the compositor together with the write may still lose against it; on X11 it does not.
    virtual void write(PasteboardContent content, std::optional<ChangeCount> onlyOver,
                       WriteHandler handler) = 0;

    // For a program that ends with this object: where nobody else has our content when this is
    // destroyed, a process is left behind that offers it, as it stands, until another program takes
    // the clipboard or the display goes. Our content never changes hands for that, so a copy that
    // comes meanwhile stays. Does nothing where the desktop keeps the content by itself.
    virtual void stayBehind() {}

    // For the user's eyes: one English line on what this is ("X11, XFixes 5.0"), and one line for
    // each thing that it cannot do.
    virtual std::string description() const = 0;
    virtual std::vector<std::string> limitations() const = 0;
};

} // namespace nerlo::platform
