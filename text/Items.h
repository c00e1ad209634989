// The items of a text between separators, found as they are needed: a list of them would take many
// times the room of short lines. Positions and sizes count UTF-16 code units.
#pragma once

#include "text/UnitScan.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace nerlo::text {

class Items {
  public:
    // Both must outlive the items. The separator is not empty; each one counts from left to right,
    // so that two never overlap.
    Items(std::u16string_view text, std::u16string_view separator)
        : text_(text)
        , separator_(separator) {}

    std::u16string_view text() const { return text_; }
    std::u16string_view separator() const { return separator_; }

    // Whether the item that `at` lies in, or just behind, ends there.
    bool endsAt(std::size_t at) const {
        return at == text_.size() ||
               (text_[at] == separator_.front() &&
                (separator_.size() == 1 || text_.substr(at).starts_with(separator_)));
    }
    // The item that begins at `begin`.
    std::u16string_view at(std::size_t begin) const {
        std::size_t end = findUnit(text_, begin, separator_.front());
        while (!endsAt(end)) {
            end = findUnit(text_, end + 1, separator_.front());
        }
        return text_.substr(begin, end - begin);
    }
    // Calls take(begin, item) for each, in order; there is always one.
    template <class Take>
    void forEach(Take take) const {
        const UnitSet first(separator_.substr(0, 1));
        UnitCursor cursor(text_, first);
        std::size_t begin = 0;
        for (std::size_t end = cursor.next(); end < text_.size(); end = cursor.next()) {
            if (end >= begin && endsAt(end)) {
                take(begin, text_.substr(begin, end - begin));
                begin = end + separator_.size();
            }
        }
        take(begin, text_.substr(begin));
    }

  private:
    std::u16string_view text_;
    std::u16string_view separator_;
};

// Puts items together with the separator between them.
class Joiner {
  public:
    // Makes room for as much as `items` take together.
    explicit Joiner(const Items &items)
        : separator_(items.separator()) {
        text_.reserve(items.text().size() + separator_.size());
    }

    void add(std::u16string_view item) { text_.append(item).append(separator_); }
    // What has been added so far, each item with a separator behind it.
    const std::u16string &text() const { return text_; }
    // The text; to be called last, after at least one item.
    std::u16string take() {
        text_.resize(text_.size() - separator_.size());
        return std::move(text_);
    }

  private:
    std::u16string_view separator_;
    std::u16string text_;
};

} // namespace nerlo::text
