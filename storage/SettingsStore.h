// The settings store: values by key, with observers.
//
// Main thread only. Values are whatever property lists hold; the typed readers convert as
// PropertyValue does and never fail. Changes are seen by readers at once; synchronize() makes them
// last.
#pragma once

#include "storage/PropertyValue.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace nerlo::storage {

class SettingsStore {
  public:
    using Observer = std::function<void()>;
    // Observes as long as it lives. It may outlive the store.
    class [[nodiscard]] Observation {
      public:
        Observation() = default;

      private:
        friend class SettingsStore;
        std::shared_ptr<void> alive_;
    };

    virtual ~SettingsStore() = default;

    // The value under `key`, or null; valid until the store changes.
    const PropertyValue *find(std::string_view key) const { return values_.find(key); }
    const PropertyDictionary &values() const { return values_; }

    bool boolForKey(std::string_view key) const;
    std::int64_t integerForKey(std::string_view key) const;
    std::u16string stringForKey(std::string_view key) const;
    // Null when there is none, or when it is not data.
    const PropertyData *dataForKey(std::string_view key) const;

    // Observers run within these calls, when the value has really changed.
    void set(std::string_view key, PropertyValue value);
    void remove(std::string_view key);

    // Makes the changes last, and takes over those of other processes. False when the changes could
    // not be written; they are kept and go with the next call.
    virtual bool synchronize() = 0;

    // Calls `observer` now, and after each change of the value under `key`, by this program or
    // another.
    Observation observe(std::string_view key, Observer observer);
    // Calls `observer` after each change of any value; not now.
    Observation observeAll(Observer observer);

  protected:
    // Takes over the given values and tells the observers of those that differ.
    void replaceAll(PropertyDictionary values);
    // A key was set or removed here.
    virtual void changed(std::string_view key) = 0;

  private:
    struct Entry {
        std::string key; // empty for all
        Observer observer;
    };
    Observation add(std::string key, Observer observer);
    void tell(const std::vector<std::string> &keys);

    PropertyDictionary values_;
    std::vector<std::weak_ptr<Entry>> observers_;
};

} // namespace nerlo::storage
