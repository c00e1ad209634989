// A folder that goes with the object.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <unistd.h>

namespace nerlo::test {

class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "nerlo-XXXXXX").string();
        if (::mkdtemp(name.data())) {
            path_ = name;
        }
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;

    std::string operator/(const std::string &name) const { return path_ + "/" + name; }
    const std::string &path() const { return path_; }

    // Names that begin with `start`.
    int count(const std::string &start) const {
        int found = 0;
        for (const auto &entry : std::filesystem::recursive_directory_iterator(path_)) {
            found += entry.path().filename().string().starts_with(start) ? 1 : 0;
        }
        return found;
    }

  private:
    std::string path_;
};

inline std::string bytesOf(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline void putBytes(const std::string &path, const std::string &bytes) {
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
}

} // namespace nerlo::test
