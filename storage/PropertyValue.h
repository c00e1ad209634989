// The value of a property list, as plain data.
//
// Strings are UTF-16; dictionary keys are UTF-8. A value copies deeply; the classes here are not
// synchronised, and a const value may be read from any thread.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace nerlo::storage {

class PropertyValue;

using PropertyArray = std::vector<PropertyValue>;
using PropertyData = std::vector<std::byte>;

// Seconds since 2001-01-01 00:00 UTC.
struct PropertyDate {
    double seconds = 0;
    bool operator==(const PropertyDate &) const = default;
};

// A reference to another object of a keyed archive.
struct PropertyUid {
    std::uint64_t index = 0;
    bool operator==(const PropertyUid &) const = default;
};

// Keys in the order in which they were first set; the files keep that order.
class PropertyDictionary {
  public:
    using Entries = std::vector<std::pair<std::string, PropertyValue>>;

    PropertyDictionary() = default;
    // A key that comes again replaces the value that it had. Linear in the number of entries.
    explicit PropertyDictionary(Entries entries);
    PropertyDictionary(std::initializer_list<std::pair<std::string, PropertyValue>> entries);

    // The value under `key`, or null.
    const PropertyValue *find(std::string_view key) const;
    // Replaces the value in its place, or appends a new key.
    void set(std::string_view key, PropertyValue value);
    // Returns whether the key was there.
    bool remove(std::string_view key);

    bool empty() const;
    std::size_t size() const;
    Entries::const_iterator begin() const;
    Entries::const_iterator end() const;

    bool operator==(const PropertyDictionary &) const;

  private:
    Entries entries_;
};

class PropertyValue {
  public:
    using Variant =
        std::variant<bool, std::int64_t, std::uint64_t, double, std::u16string, PropertyData,
                     PropertyDate, PropertyUid, PropertyArray, PropertyDictionary>;

    PropertyValue(bool value)
        : value_(value) {}
    PropertyValue(int value)
        : value_(std::int64_t{value}) {}
    PropertyValue(std::int64_t value)
        : value_(value) {}
    // Only for numbers above the range of std::int64_t.
    PropertyValue(std::uint64_t value)
        : value_(value) {}
    PropertyValue(double value)
        : value_(value) {}
    PropertyValue(std::u16string value)
        : value_(std::move(value)) {}
    PropertyValue(std::u16string_view value)
        : value_(std::u16string(value)) {}
    PropertyValue(const char16_t *value)
        : value_(std::u16string(value)) {}
    PropertyValue(PropertyData value)
        : value_(std::move(value)) {}
    PropertyValue(PropertyDate value)
        : value_(value) {}
    PropertyValue(PropertyUid value)
        : value_(value) {}
    PropertyValue(PropertyArray value)
        : value_(std::move(value)) {}
    PropertyValue(PropertyDictionary value)
        : value_(std::move(value)) {}

    const Variant &variant() const { return value_; }
    template <class T>
    const T *as() const {
        return std::get_if<T>(&value_);
    }
    template <class T>
    T *as() {
        return std::get_if<T>(&value_);
    }

    // How the settings of both editions convert values; this never fails. A number is true when it
    // is not zero; a string when it begins, after white space, with Y, y, T, t or a digit 1-9. The
    // integer of a string is its leading decimal integer, clamped to 64 bits. Everything else reads
    // as false and 0.
    bool boolValue() const;
    std::int64_t integerValue() const;
    // A string as it is, a number in decimal digits, anything else as the empty string.
    std::u16string stringValue() const;

    bool operator==(const PropertyValue &) const = default;

  private:
    Variant value_;
};

inline bool PropertyDictionary::empty() const {
    return entries_.empty();
}
inline std::size_t PropertyDictionary::size() const {
    return entries_.size();
}
inline PropertyDictionary::Entries::const_iterator PropertyDictionary::begin() const {
    return entries_.begin();
}
inline PropertyDictionary::Entries::const_iterator PropertyDictionary::end() const {
    return entries_.end();
}

} // namespace nerlo::storage
