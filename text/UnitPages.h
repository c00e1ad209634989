// A table over all code units whose pages of 256 are filled when they are first looked at: texts
// use few of them, and filling the whole would cost more than a short text does.
#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <memory>

namespace nerlo::text {

// May be read from several threads; `compute` must then give the same on each.
template <class Value, Value (*compute)(char16_t unit)>
class UnitPages {
  public:
    static constexpr std::size_t pageSize = 256;
    using Page = std::array<Value, pageSize>;

    UnitPages() = default;
    ~UnitPages() {
        for (const auto &page : pages_) {
            delete page.load();
        }
    }
    UnitPages(const UnitPages &) = delete;
    UnitPages &operator=(const UnitPages &) = delete;

    Value operator[](char16_t unit) { return page(unit)[unit % pageSize]; }

    const Page &page(char16_t unit) {
        const Page *known = pages_[unit / pageSize].load(std::memory_order_acquire);
        return known ? *known : fill(unit / pageSize);
    }

  private:
    const Page &fill(std::size_t number) {
        auto page = std::make_unique<Page>();
        for (std::size_t i = 0; i < pageSize; ++i) {
            (*page)[i] = compute(static_cast<char16_t>(number * pageSize + i));
        }
        const Page *expected = nullptr;
        if (pages_[number].compare_exchange_strong(expected, page.get())) {
            return *page.release();
        }
        return *expected; // another thread was faster
    }

    std::array<std::atomic<const Page *>, 256> pages_{};
};

} // namespace nerlo::text
