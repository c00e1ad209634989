#include "shell/OptionRows.h"

#include "engine/FindReplace.h"
#include "settings/SettingsKeys.h"
#include "shell/Controls.h"
#include "shell/FindReplaceTable.h"
#include "shell/LeftOutRules.h"
#include "shell/Strings.h"
#include "shortcuts/view/WarningMark.h"

#include <QAction>
#include <QFileDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QSpinBox>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <chrono>

namespace nerlo::shell {

namespace {

constexpr int recorderWidth = 170;
constexpr int indent = 26;
constexpr std::chrono::milliseconds flash{1200}; // of an option that is pointed at
constexpr int longestDelay = 999;                // seconds that the popup may be asked to stay

constexpr auto delayKey = "udStatisticsValue";
constexpr auto delaySwitchKey = "udStatisticsDelaySwitcher";
constexpr auto returnsKey = "udChangeReturnsOption";
constexpr auto firstCustomKey = "udChangeReturnsCustom1";
constexpr auto secondCustomKey = "udChangeReturnsCustom2";
constexpr auto patternKey = "udInsertYourPatternTextField";
constexpr auto linkRulesKey = "udCleanLinksRules";

struct SeparatorField {
    const char *separator;
    const char *field;
};
constexpr SeparatorField separatorFields[] = {
    {"udSortSeparator", "udSortCustomSeparator"},
    {"udRemoveDuplicateLinesSeparator", "udDuplicatesCustomSeparator"},
};

void describeOption(QWidget &widget, const std::string &key, const QString &name,
                    const QString &problem = {}) {
    QString tip = localized(tooltipKey(key));
    if (!problem.isEmpty()) {
        tip.prepend(problem + '\n');
    }
    describeAs(widget, QString::fromStdString(key), name, tip);
}

void addFileChooser(QLineEdit &field) {
    auto *choose = field.addAction(field.style()->standardIcon(QStyle::SP_DirOpenIcon),
                                   QLineEdit::TrailingPosition);
    choose->setText(localized("sChooseFile"));
    QObject::connect(choose, &QAction::triggered, &field, [&field] {
        const QString file =
            QFileDialog::getOpenFileName(field.window(), localized("sChooseFile"), field.text());
        if (!file.isEmpty()) {
            field.setText(file);
        }
    });
}

} // namespace

QWidget *makeRecorder(const RecorderMaker &make, const std::string &hotKey, const QString &command,
                      QWidget &row) {
    auto *recorder = make && !hotKey.empty() ? make(hotKey) : nullptr;
    if (recorder) {
        recorder->setQuietIn(row);
        recorder->setObjectName("shortcut." + QString::fromStdString(hotKey));
        recorder->setAccessibleName(filled(localized("sShortcutOf"), {command}));
        recorder->setFixedWidth(std::max(recorderWidth, recorder->sizeHint().width()));
        if (recorder->toolTip().isEmpty()) {
            setTip(*recorder, localized("sShortcutTip"));
        }
    }
    return recorder;
}

QLabel *makeProblem() {
    auto *label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    // Beginning with the name of a key, the line would stand where those of that script do.
    label->setAlignment(QStyle::visualAlignment(label->layoutDirection(), Qt::AlignLeft) |
                        Qt::AlignAbsolute);
    label->hide();
    return label;
}

void showProblem(QLabel &label, const QString &problem) {
    label.setText(problem);
    label.setVisible(!problem.isEmpty());
}

OptionPage::OptionPage(const PreferencesPage &page, settings::nrPreferences &preferences,
                       const RecorderMaker &makeRecorder)
    : preferences_(preferences)
    , page_(page)
    , layout_(new QVBoxLayout(this)) {
    layout_->setContentsMargins(12, 8, 12, 12);
    layout_->setSpacing(8);
    for (const OptionRow &row : page.rows) {
        addRow(row, makeRecorder);
    }
    if (!rules_) {
        layout_->addStretch();
    }
    load();
}

void OptionPage::addRow(const OptionRow &row, const RecorderMaker &makeRecorder) {
    auto *widget = new QWidget;
    auto *grid = new QGridLayout(widget);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(4);
    grid->setColumnMinimumWidth(0, indent - grid->horizontalSpacing());
    grid->setColumnStretch(2, 1);

    QCheckBox *box = makeCheckBox(row.key, localized(titleKey(row)));
    QString texts =
        localized(page_.title) + ' ' + box->text() + ' ' + localized(tooltipKey(row.key));
    grid->addWidget(box, 0, 0, 1, 3);
    if (QWidget *recorder = shell::makeRecorder(makeRecorder, row.hotKey, box->text(), *widget)) {
        grid->addWidget(recorder, 0, 3, Qt::AlignTop);
    }
    auto *problem = makeProblem();
    problem->setObjectName("problem." + QString::fromStdString(row.hotKey));
    grid->addWidget(problem, 1, 0, 1, 4);
    int line = 2;
    QHBoxLayout *pair = nullptr;
    if (row.sideBySide) {
        pair = new QHBoxLayout;
        pair->setSpacing(grid->horizontalSpacing());
        grid->addLayout(pair, line++, 1, 1, 3);
    }
    for (const std::string &key : row.dependents) {
        QWidget *control = makeControl(key, texts);
        const QString name = localized(labelKey(key));
        texts += ' ' + name + ' ' + localized(tooltipKey(key));
        if (qobject_cast<QCheckBox *>(control)) {
            grid->addWidget(control, line++, 1, 1, 3);
            continue;
        }
        auto *label = new QLabel(name);
        label->setBuddy(control);
        labels_.emplace(key, label);
        if (labelIsShared(name)) {
            control->setAccessibleName(box->text() + ": " + name);
        }
        if (pair) {
            columns_[pair->count() > 0 ? 1 : 0].push_back(label);
            pair->addWidget(label);
            pair->addWidget(control, 1);
        } else {
            columns_[0].push_back(label);
            grid->addWidget(label, line, 1);
            grid->addWidget(control, line++, 2, 1, 2);
        }
    }
    if (row.ruleList) {
        widget = withRules(*widget, texts);
    }
    layout_->addWidget(widget, row.ruleList ? 1 : 0);
    rows_.push_back({widget, texts.toLower(), row.hotKey, problem});
}

// With another control of the page.
bool OptionPage::labelIsShared(const QString &label) const {
    qsizetype found = 0;
    for (const OptionRow &row : page_.rows) {
        found += std::ranges::count_if(row.dependents, [&](const std::string &key) {
            return localized(labelKey(key)) == label;
        });
    }
    return found > 1;
}

QWidget *OptionPage::makeControl(const std::string &key, QString &texts) {
    const settings::SettingsKey *row = settings::findKey(key, settings::SettingScope::Profile);
    switch (row ? row->kind : settings::SettingKind::Text) {
    case settings::SettingKind::Switch:
        return makeCheckBox(key, localized(labelKey(key)));
    case settings::SettingKind::Index:
        return makeChoice(key, texts);
    default:
        return makeText(key);
    }
}

QCheckBox *OptionPage::makeCheckBox(const std::string &key, const QString &title) {
    auto *box = new QCheckBox(title);
    describeOption(*box, key, box->text());
    connect(box, &QCheckBox::toggled, this, [this, key](bool on) {
        if (!loading_) {
            preferences_.checkBoxChanged(key, on);
            updateDependents();
        }
    });
    controls_.emplace(key, box);
    return box;
}

QComboBox *OptionPage::makeChoice(const std::string &key, QString &texts) {
    auto *choice = new QComboBox;
    describeOption(*choice, key, localized(labelKey(key)));
    const auto &lists = preferences_.optionLists();
    const auto list = std::ranges::find(lists, key, &settings::OptionList::key);
    if (list != lists.end()) {
        for (const std::u16string &item : list->items) {
            choice->addItem(QString::fromStdU16String(item));
            texts += ' ' + choice->itemText(choice->count() - 1);
        }
    }
    connect(choice, &QComboBox::currentIndexChanged, this, [this, key](int index) {
        if (!loading_) {
            preferences_.comboBoxSelectionDidChange(key, index);
            updateDependents();
        }
    });
    controls_.emplace(key, choice);
    return choice;
}

QWidget *OptionPage::makeText(const std::string &key) {
    if (key == delayKey) {
        auto *number = new QSpinBox;
        number->setRange(1, longestDelay);
        number->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        describeOption(*number, key, localized(labelKey(key)));
        connect(number, &QSpinBox::valueChanged, this, [this](int seconds) {
            if (!loading_) {
                preferences_.sUpdateStatisticksValue(QString::number(seconds).toStdU16String());
            }
        });
        controls_.emplace(key, number);
        return number;
    }
    auto *field = new QLineEdit;
    describeOption(*field, key, localized(labelKey(key)));
    if (key == patternKey) {
        addPatternMark(*field);
    }
    if (key == linkRulesKey) {
        addFileChooser(*field);
    }
    // Not textEdited(), which is silent when an accessibility tool sets the text.
    connect(field, &QLineEdit::textChanged, this, [this, key](const QString &text) {
        if (!loading_) {
            preferences_.controlTextDidChange(key, text.toStdU16String());
        }
    });
    controls_.emplace(key, field);
    return field;
}

void OptionPage::addPatternMark(QLineEdit &field) {
    auto *mark = field.addAction(shortcuts::warningIcon(), QLineEdit::TrailingPosition);
    mark->setVisible(false);
    markPattern_ = [&field, mark](const QString &problem) {
        if (problem != (mark->isVisible() ? mark->text() : QString())) {
            mark->setText(problem);
            mark->setVisible(!problem.isEmpty());
            describeOption(field, patternKey, field.accessibleName(), problem);
        }
    };
    connect(&field, &QLineEdit::textChanged, this, [this](const QString &text) {
        const bool usable = engine::patternIsUsable(text.toStdU16String());
        markPattern_(usable ? QString() : localized("sPatternUnusable"));
    });
}

void OptionPage::setReport(const engine::CleaningReport &report) {
    if (rules_) {
        rules_->setReport(report);
    }
    const auto *pattern = qobject_cast<QLineEdit *>(control(patternKey));
    if (pattern && engine::patternIsUsable(pattern->text().toStdU16String())) {
        const bool leftOut =
            std::ranges::count(leftOutRules(report), engine::PatternFailure::ownPattern) > 0;
        markPattern_(leftOut ? localized("sRuleLeftOut") : QString());
    }
}

// The list is no part of the row in which the recorder is quiet: who works in it wants no shortcut.
QWidget *OptionPage::withRules(QWidget &row, QString &texts) {
    auto *both = new QWidget;
    auto *layout = new QVBoxLayout(both);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(&row);
    rules_ = new FindReplaceTable(preferences_);
    layout->addWidget(rules_, 1);
    texts += ' ' + rules_->searchTexts();
    return both;
}

QWidget *OptionPage::control(std::string_view key) const {
    const auto found = controls_.find(key);
    return found == controls_.end() ? nullptr : found->second;
}

void OptionPage::load() {
    const QScopedValueRollback loading(loading_, true);
    for (const auto &[key, widget] : controls_) {
        const storage::PropertyValue state = preferences_.state(key);
        if (auto *box = qobject_cast<QCheckBox *>(widget)) {
            box->setChecked(state.boolValue());
        } else if (auto *choice = qobject_cast<QComboBox *>(widget)) {
            const std::int64_t index = state.integerValue();
            choice->setCurrentIndex(index >= 0 && index < choice->count() ? static_cast<int>(index)
                                                                          : -1);
        } else if (auto *number = qobject_cast<QSpinBox *>(widget)) {
            number->setValue(
                static_cast<int>(std::clamp<std::int64_t>(state.integerValue(), 1, longestDelay)));
        } else if (auto *field = qobject_cast<QLineEdit *>(widget)) {
            const QString text = QString::fromStdU16String(state.stringValue());
            // Setting an equal text would still move the cursor to its end.
            if (field->text() != text) {
                field->setText(text);
            }
        }
    }
    if (rules_) {
        rules_->load();
    }
    updateDependents();
}

void OptionPage::updateRules(settings::RulesUpdate update) {
    if (rules_) {
        rules_->updateUI(update);
    }
}

void OptionPage::setEnabledWithLabel(std::string_view key, bool enabled) {
    if (QWidget *widget = control(key)) {
        widget->setEnabled(enabled);
    }
    if (const auto label = labels_.find(key); label != labels_.end()) {
        label->second->setEnabled(enabled);
    }
}

void OptionPage::updateDependents() {
    const auto isOn = [&](std::string_view key) {
        const auto *box = qobject_cast<QCheckBox *>(control(key));
        return box && box->isChecked();
    };
    for (const OptionRow &row : page_.rows) {
        for (const std::string &key : row.dependents) {
            setEnabledWithLabel(key, isOn(row.key));
        }
    }
    if (control(delayKey)) {
        setEnabledWithLabel(delayKey, isOn("udStatistics") && isOn(delaySwitchKey));
    }
    for (const auto &[separator, field] : separatorFields) {
        if (QWidget *widget = control(field)) {
            setEnabledWithLabel(field, widget->isEnabled() &&
                                           preferences_.customSeparatorEnabled(separator));
        }
    }
    auto *first = qobject_cast<QLineEdit *>(control(firstCustomKey));
    auto *second = qobject_cast<QLineEdit *>(control(secondCustomKey));
    if (first && second && control(returnsKey)) {
        const auto fields = preferences_.returnsFields();
        const bool on = first->isEnabled();
        setEnabledWithLabel(firstCustomKey, on && fields.firstEnabled);
        const QString label = QString::fromStdU16String(fields.label);
        if (QLabel &shown = *labels_.at(firstCustomKey); shown.text().remove('&') != label) {
            shown.setText(label);
        }
        first->setPlaceholderText(QString::fromStdU16String(fields.firstPlaceholder));
        second->setPlaceholderText(QString::fromStdU16String(fields.secondPlaceholder));
        second->setVisible(fields.secondShown);
        labels_.at(secondCustomKey)->setVisible(fields.secondShown);
        setEnabledWithLabel(secondCustomKey, on && fields.secondShown);
    }
}

void OptionPage::alignFields() {
    for (const auto &column : columns_) {
        int widest = 0;
        for (const QLabel *label : column) {
            widest = std::max(widest, label->sizeHint().width());
        }
        for (QLabel *label : column) {
            label->setMinimumWidth(widest);
        }
    }
}

// A tint of the colour of selections, below whatever stands in the row.
void OptionPage::mark(QWidget &row, bool marked) const {
    constexpr double strength = 0.18;
    const QColor plain = palette().color(QPalette::Window);
    const QColor tint = palette().color(QPalette::Highlight);
    const auto mixed = [](int from, int to) {
        return static_cast<int>(from + (to - from) * strength);
    };
    QPalette colours = palette();
    colours.setColor(QPalette::Window,
                     QColor(mixed(plain.red(), tint.red()), mixed(plain.green(), tint.green()),
                            mixed(plain.blue(), tint.blue())));
    row.setPalette(marked ? colours : QPalette());
    row.setAutoFillBackground(marked);
}

bool OptionPage::filter(const QStringList &words) {
    bool any = false;
    for (const Row &row : rows_) {
        const bool matches = std::ranges::all_of(
            words, [&](const QString &word) { return row.texts.contains(word); });
        row.widget->setVisible(matches);
        mark(*row.widget, matches && !words.isEmpty());
        any = any || matches;
    }
    return any;
}

bool OptionPage::point(std::string_view hotKey) {
    const auto row = std::ranges::find(rows_, hotKey, &Row::hotKey);
    if (row == rows_.end()) {
        return false;
    }
    QWidget *const widget = row->widget;
    for (QWidget *above = parentWidget(); above; above = above->parentWidget()) {
        if (auto *scroll = qobject_cast<QScrollArea *>(above)) {
            scroll->ensureWidgetVisible(widget);
        }
    }
    widget->setBackgroundRole(QPalette::Highlight);
    widget->setAutoFillBackground(true);
    QTimer::singleShot(flash, widget, [widget] {
        widget->setAutoFillBackground(false);
        widget->setBackgroundRole(QPalette::NoRole);
    });
    return true;
}

void OptionPage::setHotKeyProblem(std::string_view hotKey, const QString &problem) {
    for (const Row &row : rows_) {
        if (!row.hotKey.empty() && row.hotKey == hotKey) {
            showProblem(*row.problem, problem);
        }
    }
}

} // namespace nerlo::shell
