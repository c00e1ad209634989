#include "shell/CopyTableView.h"

#include "settings/ReadyProfiles.h"
#include "shell/Controls.h"
#include "shell/Program.h"
#include "shell/Strings.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QScopedValueRollback>
#include <algorithm>
#include <array>

namespace nerlo::shell {

namespace {

using clipboard::CopyRule;
using clipboard::Looks;

constexpr int shownRows = 5;

struct LooksRow {
    std::optional<Looks> looks;
    const char *key;
};
constexpr std::array<LooksRow, 5> looksRows{{
    {std::nullopt, "sLooksAny"},
    {Looks::terminal, "sLooksTerminal"},
    {Looks::code, "sLooksCode"},
    {Looks::table, "sLooksTable"},
    {Looks::link, "sLooksLink"},
}};

const LooksRow &rowOf(std::optional<Looks> looks) {
    return *std::ranges::find(looksRows, looks, &LooksRow::looks);
}

} // namespace

CopyTableView::CopyTableView(Program &program)
    : QGroupBox(localized("sCopyTable"))
    , program_(program)
    , list_(new RowList) {
    describe(*list_, "copyTable", "sCopyTable", "sCopyTableTip");
    list_->setFixedHeight(shownRows * (list_->fontMetrics().height() + 6));
    auto *layout = new QGridLayout(this);
    layout->addWidget(list_, 0, 0, 1, 2);
    makeButtons(*layout);
    auto *form = new QFormLayout;
    layout->addLayout(form, 3, 0, 1, 2);
    looks_ = addChoice(*form, "copyLooks", "sCopyLooks");
    for (const LooksRow &row : looksRows) {
        looks_->addItem(localized(row.key));
    }
    addField(*form, "copyProgram", "sCopyProgram", &CopyRule::program);
    addField(*form, "copyPage", "sCopyPage", &CopyRule::host);
    addField(*form, "copyFormat", "sCopyFormat", &CopyRule::format);
    profile_ = addChoice(*form, "copyProfile", "sCopyProfile");

    connect(looks_, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (index >= 0) {
            edit([&](CopyRule &rule) {
                rule.looks = looksRows[static_cast<std::size_t>(index)].looks;
            });
        }
    });
    connect(profile_, &QComboBox::currentIndexChanged, this, [this] {
        edit([&](CopyRule &rule) {
            rule.profile = profile_->currentData().toString().toStdU16String();
        });
    });
    connectList();
    observation_ = program.store().observe(clipboard::copyTableKey, [this] {
        if (!storing_) {
            load();
        }
    });
}

void CopyTableView::makeButtons(QGridLayout &layout) {
    const struct {
        const char *name;
        const char *key;
        const char *tip;
        std::function<void()> run;
    } buttons[] = {
        {"addCopyRow", "sCopyAdd", "sCopyAddTip",
         [this] {
             rules_.push_back({});
             store();
             load();
             list_->setCurrentRow(static_cast<int>(rules_.size()) - 1);
         }},
        {"removeCopyRow", "sCopyRemove", "sCopyRemoveTip", [this] { emit list_->removeAsked(); }},
        {"copyRowUp", "sFindReplaceUp", "sCopyUpTip", [this] { emit list_->moveAsked(-1); }},
        {"copyRowDown", "sFindReplaceDown", "sCopyDownTip", [this] { emit list_->moveAsked(1); }},
    };
    for (int i = 0; const auto &row : buttons) {
        auto *button = new QPushButton(localized(row.key));
        describe(*button, row.name, row.key, row.tip);
        connect(button, &QPushButton::clicked, this, row.run);
        layout.addWidget(button, 1 + i / 2, i % 2);
        if (i++ > 0) {
            ofRow_.push_back(button);
        }
    }
}

void CopyTableView::connectList() {
    connect(list_, &QListWidget::currentRowChanged, this, [this] {
        if (!loading_) {
            showRow();
        }
    });
    connect(list_, &QListWidget::itemChanged, this, [this](QListWidgetItem *item) {
        if (!loading_) {
            rules_[static_cast<std::size_t>(list_->row(item))].on =
                item->checkState() == Qt::Checked;
            store();
        }
    });
    connect(list_, &RowList::dropped, this,
            [this](int row, int place) { move(row, place > row ? place - 1 : place); });
    connect(list_, &RowList::moveAsked, this,
            [this](int by) { move(list_->currentRow(), list_->currentRow() + by); });
    connect(list_, &RowList::removeAsked, this, [this] {
        if (const int row = list_->currentRow(); row >= 0) {
            rules_.erase(rules_.begin() + row);
            store();
            load();
            emit removed();
        }
    });
}

QLineEdit *CopyTableView::addField(QFormLayout &form, const char *name, const char *key,
                                   std::string CopyRule::*member) {
    auto *field = new QLineEdit;
    describe(*field, name, key, std::string(key) + "Tip");
    form.addRow(new QLabel(localized(key)), field);
    fields_.emplace_back(field, member);
    // Not textEdited(), which is silent when an accessibility tool sets the text.
    connect(field, &QLineEdit::textChanged, this, [this, member, name](const QString &text) {
        edit([&](CopyRule &rule) { rule.*member = text.trimmed().toStdString(); },
             name + std::to_string(list_->currentRow()));
    });
    return field;
}

QComboBox *CopyTableView::addChoice(QFormLayout &form, const char *name, const char *key) {
    auto *box = new QComboBox;
    describe(*box, name, key, std::string(key) + "Tip");
    // As wide as the form, not as the longest name.
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    form.addRow(new QLabel(localized(key)), box);
    return box;
}

void CopyTableView::load() {
    const int row = list_->currentRow();
    rules_ = program_.copyRules();
    {
        const QScopedValueRollback loading(loading_, true);
        list_->clear();
        for (const CopyRule &rule : rules_) {
            auto *item = new QListWidgetItem(list_);
            item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable |
                           Qt::ItemIsDragEnabled);
            item->setCheckState(rule.on ? Qt::Checked : Qt::Unchecked);
            describeRow(list_->row(item));
        }
        list_->setCurrentRow(std::min(std::max(row, 0), list_->count() - 1)); // -1 for none
    }
    showRow();
}

void CopyTableView::describeRow(int row) {
    const CopyRule &rule = rules_[static_cast<std::size_t>(row)];
    const QString profile = rule.leavesAlone()
                                ? localized("sLeaveAlone")
                                : QString::fromStdU16String(program_.titleOf(rule.profile));
    QListWidgetItem &item = *list_->item(row);
    item.setText(conditionsOf(rule));
    item.setData(RowList::resultRole, profile);
    item.setData(Qt::AccessibleDescriptionRole, localized("sCopyProfile") + ": " + profile);
}

QString CopyTableView::conditionsOf(const CopyRule &rule) const {
    QStringList parts;
    if (rule.looks) {
        parts << localized(rowOf(rule.looks).key);
    }
    for (const auto &[field, member] : fields_) {
        const auto &value = rule.*member;
        if (member == &CopyRule::host && value == "*") {
            parts << localized("sReadyWeb");
        } else if (!value.empty()) {
            parts << field->accessibleName() + ": " + QString::fromStdString(value);
        }
    }
    return parts.isEmpty() ? localized("sLooksAny") : parts.join(", ");
}

void CopyTableView::profilesChanged() {
    load();
}

void CopyTableView::showRow() {
    const QScopedValueRollback loading(loading_, true);
    const int place = list_->currentRow();
    const bool any = place >= 0;
    const CopyRule rule = any ? rules_[static_cast<std::size_t>(place)] : CopyRule();
    for (const auto &[field, member] : fields_) {
        const QString text = QString::fromStdString(rule.*member);
        // Setting an equal text would still move the cursor to its end.
        if (field->text().trimmed() != text) {
            field->setText(text);
        }
        field->setEnabled(any);
    }
    looks_->setCurrentIndex(static_cast<int>(&rowOf(rule.looks) - looksRows.data()));
    looks_->setEnabled(any);
    profile_->clear();
    profile_->addItem(localized("sLeaveAlone"), QString());
    const auto add = [&](const QString &title, const QString &name) {
        if (profile_->findData(name) < 0) {
            profile_->addItem(shortName(title), name);
        }
    };
    for (const settings::ProfileItem &item : program_.preferences().profilesItems()) {
        const auto name = QString::fromStdU16String(settings::profileNameOf(item.record));
        add(name, name);
    }
    for (const settings::ReadyProfile &ready : settings::readyProfiles()) {
        const auto id = QString::fromUtf8(ready.id.data(), qsizetype(ready.id.size()));
        add(filled(localized("sReady"), {localized(ready.titleKey)}), id);
    }
    // One that has gone by now stays until another one is chosen.
    const auto name = QString::fromStdU16String(rule.profile);
    add(name, name);
    profile_->setCurrentIndex(profile_->findData(name));
    profile_->setEnabled(any);
    for (QPushButton *button : ofRow_) {
        button->setEnabled(any);
    }
}

void CopyTableView::edit(const std::function<void(CopyRule &)> &change, const std::string &place) {
    const int row = list_->currentRow();
    if (loading_ || row < 0) {
        return;
    }
    change(rules_[static_cast<std::size_t>(row)]);
    store(place);
    const QScopedValueRollback loading(loading_, true);
    describeRow(row);
}

void CopyTableView::store(const std::string &place) {
    const QScopedValueRollback storing(storing_, true);
    program_.setCopyRules(rules_, place);
}

void CopyTableView::move(int from, int to) {
    if (from < 0 || to < 0 || to >= static_cast<int>(rules_.size()) || from == to) {
        return;
    }
    CopyRule rule = std::move(rules_[static_cast<std::size_t>(from)]);
    rules_.erase(rules_.begin() + from);
    rules_.insert(rules_.begin() + to, std::move(rule));
    store();
    load();
    list_->setCurrentRow(to);
}

QString CopyTableView::searchTexts() const {
    QString texts;
    for (const auto *key :
         {"sCopyTable", "sCopyTableTip", "sCopyLooks", "sCopyProgram", "sCopyPage", "sCopyFormat",
          "sCopyProfile", "sLeaveAlone", "sLooksTerminal", "sLooksCode", "sLooksTable"}) {
        texts += localized(key) + ' ';
    }
    return texts;
}

} // namespace nerlo::shell
