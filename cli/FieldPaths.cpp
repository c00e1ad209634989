#include "cli/FieldPaths.h"

#include "cli/Failure.h"
#include "text/Utf.h"

#include <algorithm>

namespace nerlo::cli {

namespace {

using Kind = FieldNode::Kind;

[[noreturn]] void refuse(const std::string &path, const std::string &why) {
    throw Failure(ExitStatus::unusableArguments, "--field " + path + ": " + why);
}

// Takes a path apart, step by step.
class PathReader {
  public:
    explicit PathReader(const std::string &path)
        : path_(path) {}

    bool atEnd() const { return at_ == path_.size(); }
    // "[]"; false where a name comes instead.
    bool takeItems() {
        if (path_.compare(at_, 2, "[]") != 0) {
            return false;
        }
        at_ += 2;
        if (!atEnd() && path_[at_] != '.' && path_[at_] != '[') {
            refuse(path_, "behind \"[]\" comes a dot or the end");
        }
        passDot();
        return true;
    }
    std::string takeName() {
        std::string name;
        for (; !atEnd() && path_[at_] != '.' && path_[at_] != '['; ++at_) {
            if (path_[at_] == '\\' && ++at_ == path_.size()) {
                refuse(path_, "nothing follows the backslash");
            }
            name += path_[at_];
        }
        if (name.empty()) {
            refuse(path_, "a name is empty");
        }
        if (!atEnd() && path_[at_] == '[' && path_.compare(at_, 2, "[]") != 0) {
            refuse(path_, "a bracket in a name needs a backslash");
        }
        passDot();
        return name;
    }

  private:
    void passDot() {
        if (!atEnd() && path_[at_] == '.' && ++at_ == path_.size()) {
            refuse(path_, "a name is empty");
        }
    }

    const std::string &path_;
    std::size_t at_ = 0;
};

// Makes `node` what the path needs there; a new one has nothing below.
void become(FieldNode &node, Kind kind, const std::string &path) {
    if (node.below.empty() && node.kind == Kind::Object) {
        node.kind = kind;
    } else if (node.kind != kind) {
        refuse(path, "another field wants something else of " + node.path);
    }
}

FieldNode &memberOf(FieldNode &node, const std::string &name) {
    const auto known = std::ranges::find(node.below, name, &FieldNode::name);
    if (known != node.below.end()) {
        return *known;
    }
    const std::string path = node.path == "." ? name : node.path + "." + name;
    return node.below.emplace_back(FieldNode{.name = name, .path = path});
}

FieldNode &itemOf(FieldNode &node) {
    if (node.below.empty()) {
        node.below.push_back({.path = node.path == "." ? "[]" : node.path + "[]"});
    }
    return node.below.front();
}

void addPath(FieldNode &root, const std::string &path, std::size_t field) {
    if (text::utf8ToUtf16(path).invalidAt) {
        refuse(path, "not UTF-8");
    }
    PathReader reader(path);
    FieldNode *node = &root;
    do {
        const bool items = reader.takeItems();
        become(*node, items ? Kind::Array : Kind::Object, path);
        node = items ? &itemOf(*node) : &memberOf(*node, reader.takeName());
    } while (!reader.atEnd());
    become(*node, Kind::Text, path);
    node->field = field;
}

} // namespace

const FieldNode *FieldNode::member(std::string_view wanted) const {
    const auto found = std::ranges::find(below, wanted, &FieldNode::name);
    return found == below.end() ? nullptr : &*found;
}

FieldNode fieldTree(const std::vector<std::string> &paths, const std::string &taken) {
    FieldNode root{.path = "."};
    for (std::size_t field = 0; field < paths.size(); ++field) {
        addPath(root, paths[field], field);
    }
    if (!taken.empty()) {
        become(root, Kind::Object, paths.front());
        if (root.member(taken)) {
            refuse(taken, "--stats puts its counts there");
        }
        memberOf(root, taken).kind = Kind::Taken;
    }
    return root;
}

} // namespace nerlo::cli
