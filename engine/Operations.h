// What the engine can do to a text: the table of operations and the pipeline.
//
// Texts are UTF-16. Every function is pure and may run on any thread; none fails: at worst a text
// comes back as it was given.
#pragma once

#include "engine/CleaningOptions.h"
#include "engine/CleaningReport.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace nerlo::engine {

// What a clean needs besides the text. The options are only read.
struct CleaningContext {
    const CleaningOptions &options;
    // An ICU locale id ("de_DE"); decides case mapping, segmentation and collation.
    std::string locale;
    // The generation of the operating system: 106, 107, 108 or 109. From 108 on, case mapping
    // follows the locale; before, it is locale-free.
    std::int64_t actualVersion = 109;
    // Told which patterns could not be used; may be null.
    CleaningReport *report = nullptr;
};

// What an operation may change where structure is protected.
enum class Reach : std::uint8_t {
    prose,
    lineJoints, // prose that was wrapped; told apart by the guard
    lineEnds,   // the blanks at both ends of the lines of prose
    bullets,    // in front of list items
    quoteMarks, // in front of quoted lines
    addresses,  // web addresses in prose
    textEnds,   // up to what is protected
    whole,      // everything, as if nothing were protected
};

struct LocalForm;

struct Operation {
    std::int32_t index;
    std::string_view name;    // for the command line: "sort-lines"
    std::string_view hotKey;  // settings key of the global shortcut, also the key of its title
    std::string_view summary; // one English line for listings
    std::u16string (*run)(std::u16string text, const CleaningContext &context);
    // Whether the operation may run on a text piece by piece, cut wherever lastCut() says, with the
    // same result as on the whole. It must also leave letters at the cuts, so that the next
    // operation can run on the same pieces. Null for never.
    bool (*inPieces)(const CleaningOptions &options) = nullptr;
    Reach reach = Reach::prose;
    // How the operation goes over a text without end; null, and nothing for some options, where its
    // result may hang on what stands further away than the word or the line.
    std::optional<LocalForm> (*localForm)(const CleaningOptions &options) = nullptr;
};

// In the order of their indices. The row of the statistics operation returns its text unchanged.
std::span<const Operation> operations();

inline constexpr std::int32_t replyMarksOperation = 10;
inline constexpr std::int32_t tagsOperation = 11;
inline constexpr std::int32_t statisticsOperation = 25;
inline constexpr std::int32_t findReplaceOperation = 37;
inline constexpr std::int32_t cleanCharactersOperation = 40;
inline constexpr std::int32_t cleanLinksOperation = 42;

// Null for an index outside the table.
const Operation *findOperation(std::int32_t index);
// By name, or by index in decimal digits; null for anything else.
const Operation *findOperation(std::string_view nameOrIndex);

// These in their order. Operations next to each other that run in pieces go over each piece of
// about `pieceSize` units before the next piece is looked at.
std::u16string runSteps(std::u16string text, std::span<const Operation *const> steps,
                        const CleaningContext &context, std::size_t pieceSize);

// One operation, whether or not its switch is on; an index outside the table changes nothing.
std::u16string runOperation(std::int32_t index, std::u16string text,
                            const CleaningContext &context);

// The last place, at or beyond `from`, at which a text may be cut for operations that run in
// pieces: between two ASCII letters. 0 where there is none.
std::size_t lastCut(std::u16string_view text, std::size_t from);

// Units that stay in the processor's nearer caches through several operations.
inline constexpr std::size_t cachedPiece = 32 * 1024;

// The operations whose switches are on, in the fixed order in which a clean runs them.
std::vector<const Operation *> operationsSwitchedOn(const CleaningOptions &options);

// All of these; with udProtectStructure on, what is structure in the text stays.
std::u16string runPipeline(std::u16string text, const CleaningContext &context,
                           std::size_t pieceSize = cachedPiece);

} // namespace nerlo::engine
