// The find-and-replace rules as the table shows and edits them: values only, no file.
//
// A rule is a dictionary with "checkbox", "find" and "replace"; other keys in it are kept. Main
// thread only.
#pragma once

#include "settings/OptionLists.h"
#include "storage/PropertyValue.h"

#include <cstdint>
#include <string>
#include <vector>

namespace nerlo::settings {

class FindReplaceList {
  public:
    // The field under the table: the selected rule's replacement, or a hint.
    struct ReplacementField {
        std::u16string text;
        std::u16string placeholder;
        bool enabled = false;
        bool operator==(const ReplacementField &) const = default;
    };

    // In a rule; a key of this edition alone.
    static constexpr auto samplesKey = "samples";

    explicit FindReplaceList(Localize localize);

    const storage::PropertyArray &items() const { return items_; }
    // One for each item, to find it again after others have changed the list; 0 where none is
    // known.
    const std::vector<std::uint64_t> &ids() const { return ids_; }
    // Nothing is selected afterwards.
    void setItems(storage::PropertyArray items, std::vector<std::uint64_t> ids = {});
    // The selected row; -1 for none.
    int lastClickedRow() const { return lastClickedRow_; }
    const ReplacementField &field() const { return field_; }

    // A ticked rule with a text to start from, selected.
    void append(std::uint64_t id = 0);
    // lastClickedRow() still tells the row that went, until the next select(). False, and a hint in
    // the field, when no row is selected.
    bool removeSelected();
    // A row outside the list selects none.
    void select(int row);
    // Of the selected rule; nothing when none is.
    void setFind(std::u16string text);
    void setReplacement(std::u16string text);
    void setCheckbox(int row, bool on);
    // An array of dictionaries, see settings/RuleList.h. An empty one takes the key away.
    void setSamples(int row, storage::PropertyArray samples);
    // Behind the selected row or, where none is, at the end; the first of them is selected then.
    // `ids` has one for each.
    void insert(const storage::PropertyArray &rules, const std::vector<std::uint64_t> &ids);
    // Only the first of the rows is put back: the table selects one row at a time. `dropRow` is
    // the place between rows, from 0 to the number of rows.
    void move(const std::vector<int> &rows, int dropRow);

    // Of one rule.
    static bool isOn(const storage::PropertyValue &rule);
    static std::u16string textOf(const storage::PropertyValue &rule, std::string_view key);

  private:
    bool contains(int row) const;
    void setInRule(int row, std::string_view key, storage::PropertyValue value);

    Localize localize_;
    storage::PropertyArray items_;
    std::vector<std::uint64_t> ids_;
    int lastClickedRow_ = -1;
    ReplacementField field_;
};

} // namespace nerlo::settings
