// Rows of named cases for functions from text to text.
#pragma once

#include "tests/reference/RandomText.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <utility>

namespace nerlo {

struct Row {
    const char *shows;
    std::u16string text;
    std::u16string expected;
};

template <class Run>
void expectRows(std::initializer_list<Row> rows, Run run) {
    for (const Row &row : rows) {
        EXPECT_EQ(reference::escaped(run(row.text)), reference::escaped(row.expected))
            << row.shows << ": \"" << reference::escaped(row.text) << '"';
    }
}

// Of a function that is there for UTF-8 too, the one for UTF-16.
inline void expectRows(std::initializer_list<Row> rows, std::u16string (*run)(std::u16string)) {
    expectRows<>(rows, [run](std::u16string text) { return run(std::move(text)); });
}

} // namespace nerlo
