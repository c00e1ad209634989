// The settings store in one property-list file, shared with other processes.
#pragma once

#include "storage/FileCalls.h"
#include "storage/SafeFile.h"
#include "storage/SettingsStore.h"

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>

namespace nerlo::storage {

class FileSettingsStore final : public SettingsStore {
  public:
    // Reads the file. One that cannot be read, or holds no dictionary, is moved aside under a dated
    // name at the first write, and the store begins empty. With `later`, changes are written by
    // themselves in a task that is handed to it, to be run on this thread once the present one is
    // over; without, by synchronize() and the destructor.
    using Later = std::function<void(std::function<void()> task)>;
    explicit FileSettingsStore(std::string path, Later later = nullptr,
                               FileCalls &calls = FileCalls::system());
    ~FileSettingsStore() override;

    // Under the folder's lock: reads the file again, puts only the keys changed here into it, and
    // writes it if that makes a difference.
    bool synchronize() override;

    // Drops the changes that have not been written yet.
    void forgetChanges() { dirty_.clear(); }

    // Takes over what other processes have written; to be called when the folder has changed. Does
    // not read what was written here.
    void fileChanged();

    const std::string &path() const { return path_; }
    // Why the file could not be used when it was last found so; empty if it never was.
    const std::string &loadError() const { return loadError_; }
    // Why the last write failed; empty when it did not.
    const std::string &error() const { return error_; }
    // Runs after each write that fails when the last one did not, or the other way round.
    void setErrorHandler(std::function<void(const std::string &error)> changed) {
        errorChanged_ = std::move(changed);
    }

    // Runs when loadError() changes after the start.
    void setDamageHandler(std::function<void()> damaged) { damaged_ = std::move(damaged); }

  private:
    void noticeDamage(const std::string &why);
    void changed(std::string_view key) override;
    // The file's dictionary. Nothing when there is no file, or when it cannot be used; `unusable`
    // then says why.
    std::optional<PropertyDictionary> read(std::string &unusable) const;
    PropertyDictionary withOwnChanges(PropertyDictionary theirs) const;

    std::string path_;
    Later later_;
    FileCalls &calls_;
    std::optional<FileStamp> seen_; // the file when it was last written or read
    std::set<std::string> dirty_;   // set or removed here since the last write
    std::shared_ptr<bool> posted_ = std::make_shared<bool>(false);
    std::string loadError_;
    std::string error_;
    std::function<void(const std::string &error)> errorChanged_;
    std::function<void()> damaged_;
};

} // namespace nerlo::storage
