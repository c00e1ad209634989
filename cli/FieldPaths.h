// Paths to the texts of a record: "text", "doc.text", "messages[].content".
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace nerlo::cli {

// A value of a record and what is asked for in it.
struct FieldNode {
    enum class Kind : std::uint8_t {
        Object, // `below` are members
        Array,  // `below` is one node, which stands for every item
        Text,   // to be cleaned
        Taken,  // must not be there
    };

    Kind kind = Kind::Object;
    std::string name{};    // as a member, in UTF-8
    std::string path{};    // for messages
    std::size_t field = 0; // of a text: which of the paths leads here
    std::vector<FieldNode> below{};

    const FieldNode *member(std::string_view wanted) const;
};

// All paths in one tree, whose root is the record. Names are parted by dots, and "[]" behind one
// means every item of that array; a backslash takes the meaning from the character that follows.
// `taken`, unless empty, is a member that the record itself must not have. Throws Failure,
// unusableArguments, for a path that makes no sense, alone or beside the others.
FieldNode fieldTree(const std::vector<std::string> &paths, const std::string &taken);

} // namespace nerlo::cli
