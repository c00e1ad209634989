#include "shell/RuleModel.h"

#include "shell/LeftOutRules.h"
#include "shell/Strings.h"
#include "shortcuts/view/WarningMark.h"

#include <QApplication>
#include <QLocale>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QTextDocument>
#include <algorithm>

namespace nerlo::shell {

namespace {

constexpr const char *columnTitles[] = {"sRuleColumnOn", "sRuleColumnFind", "sRuleColumnKind",
                                        "sFindReplaceWith", "sRuleColumnFound"};
constexpr const char *columnTips[] = {"sRuleColumnOnTip", "sRuleColumnFindTip",
                                      "sRuleColumnKindTip", "sFindReplaceWithTip",
                                      "sRuleColumnFoundTip"};

const char *titleOf(engine::RuleKind kind) {
    return std::ranges::find(ruleKinds, kind, &RuleKindRow::kind)->titleKey;
}

engine::RuleReplacement replacementOf(const settings::TravelRule &rule) {
    return engine::readReplacement(rule.replace);
}

} // namespace

// Drawn, because those of some themes can hardly be read on red.
QIcon brokenIcon() {
    constexpr int side = 64; // scaled down
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xc6, 0x28, 0x28));
    painter.drawEllipse(2, 2, side - 4, side - 4);
    painter.setPen(QPen(Qt::white, 7, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(20, 20, side - 20, side - 20);
    painter.drawLine(20, side - 20, side - 20, 20);
    painter.end();
    return QIcon(pixmap);
}

QColor alarmColor(const QPalette &palette) {
    const bool dark = palette.color(QPalette::Base).lightness() < 128;
    return dark ? QColor(0x6b, 0x2b, 0x2b) : QColor(0xff, 0xd7, 0xd5);
}

RuleModel::RuleModel(settings::nrPreferences &preferences, QObject *parent)
    : QAbstractTableModel(parent)
    , preferences_(preferences) {}

void RuleModel::reload() {
    beginResetModel();
    endResetModel();
}

settings::TravelRule RuleModel::rule(int row) const {
    const auto &stored = preferences_.findReplaceList().items().at(static_cast<std::size_t>(row));
    return {settings::FindReplaceList::isOn(stored),
            settings::FindReplaceList::textOf(stored, "find"),
            settings::FindReplaceList::textOf(stored, "replace"), settings::samplesOf(stored)};
}

void RuleModel::tellChanged(int row) {
    emit dataChanged(index(row, 0), index(row, columns - 1));
    emit rowChanged(row);
}

void RuleModel::setTrials(const std::vector<settings::RuleTrial> &trials) {
    trials_ = trials;
    for (int row = 0; row < rowCount(); ++row) {
        tellChanged(row);
    }
}

void RuleModel::setReport(const engine::CleaningReport &report) {
    leftOut_.clear();
    for (const std::size_t number : leftOutRules(report)) {
        if (number != engine::PatternFailure::ownPattern &&
            number <= static_cast<std::size_t>(rowCount())) {
            leftOut_ << QString::fromStdU16String(rule(static_cast<int>(number) - 1).find);
        }
    }
    for (int row = 0; row < rowCount(); ++row) {
        tellChanged(row);
    }
}

const settings::RuleTrial *RuleModel::trial(int row) const {
    if (row < 0 || row >= rowCount() || static_cast<std::size_t>(row) >= trials_.size()) {
        return nullptr;
    }
    const settings::RuleTrial &trial = trials_[static_cast<std::size_t>(row)];
    const settings::TravelRule now = rule(row);
    const bool same = trial.find == now.find && trial.replace == now.replace;
    return same ? &trial : nullptr;
}

bool RuleModel::findsNothing(int row) const {
    const settings::RuleTrial *tried = trial(row);
    return tried && tried->finds.matches == std::size_t{0};
}

QString RuleModel::problem(int row) const {
    const settings::TravelRule now = rule(row);
    if (const auto place = engine::ruleTrouble(now.find, now.replace)) {
        return filled(localized("sRulePatternAt"), {QLocale().toString(place->character)});
    }
    const settings::RuleTrial *tried = trial(row);
    const bool givenUp = tried && tried->finds.givenUp;
    return givenUp || leftOut_.contains(QString::fromStdU16String(now.find))
               ? localized("sRuleLeftOut")
               : QString();
}

QString RuleModel::brokenSample(int row) const {
    const settings::RuleTrial *tried = trial(row);
    if (!tried || tried->samples.size() != rule(row).samples.size()) {
        return {};
    }
    const auto broken = std::ranges::find(tried->samples, false, &settings::SampleResult::holds);
    if (broken == tried->samples.end()) {
        return {};
    }
    const auto number = broken - tried->samples.begin() + 1;
    return filled(localized("sRuleSampleBroken"),
                  {QLocale().toString(static_cast<int>(number)),
                   isolated(QString::fromStdU16String(broken->given))});
}

int RuleModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(preferences_.findReplaceList().items().size());
}

int RuleModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : columns;
}

QString RuleModel::text(const QModelIndex &index) const {
    const settings::TravelRule now = rule(index.row());
    switch (index.column()) {
    case find:
        return QString::fromStdU16String(now.find);
    case kind:
        return localized(titleOf(replacementOf(now).kind));
    case replace:
        return QString::fromStdU16String(replacementOf(now).argument);
    case found: {
        const settings::RuleTrial *tried = trial(index.row());
        return !tried                 ? QString()
               : tried->finds.matches ? QLocale().toString(qulonglong(*tried->finds.matches))
                                      : QStringLiteral("\u2013");
    }
    default:
        return {};
    }
}

// For a screen reader, which reads a cell without its row and column, and does not see marks.
QString RuleModel::spoken(const QModelIndex &index) const {
    const int column = index.column();
    QString value = text(index);
    if (column == on) {
        value = text(index.siblingAtColumn(find)); // of which rule
    } else if (column == found && !problem(index.row()).isEmpty()) {
        value.clear(); // the description tells why there is no number
    }
    if (column == find && !value.isEmpty()) {
        return value;
    }
    const QString title = localized(columnTitles[column]);
    return value.isEmpty() ? title : title + ": " + value;
}

QVariant RuleModel::mark(const QModelIndex &index) const {
    if (index.column() == found && !problem(index.row()).isEmpty()) {
        return shortcuts::warningIcon();
    }
    if (index.column() == found && !brokenSample(index.row()).isEmpty()) {
        return brokenIcon();
    }
    return {};
}

QVariant RuleModel::data(const QModelIndex &index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const settings::TravelRule now = rule(index.row());
    const engine::RuleKind ruleKind = replacementOf(now).kind;
    switch (role) {
    case Qt::DisplayRole:
        return index.column() == replace || index.column() == find ? text(index).replace('\n', ' ')
                                                                   : text(index);
    case Qt::EditRole:
        return index.column() == kind ? QVariant(static_cast<int>(ruleKind))
                                      : QVariant(text(index));
    case Qt::CheckStateRole:
        return index.column() == on ? QVariant(now.on ? Qt::Checked : Qt::Unchecked) : QVariant();
    case Qt::DecorationRole:
        return mark(index);
    case Qt::BackgroundRole:
        return brokenSample(index.row()).isEmpty() ? QVariant()
                                                   : QVariant(alarmColor(QApplication::palette()));
    case Qt::ForegroundRole:
        return index.column() == found && findsNothing(index.row())
                   ? QVariant(shortcuts::warningColor(QApplication::palette()))
                   : QVariant();
    case Qt::TextAlignmentRole:
        return index.column() == found ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole: {
        QStringList told{problem(index.row()), brokenSample(index.row())};
        if (index.column() == found && findsNothing(index.row())) {
            told << localized("sRuleFindsNothing");
        }
        told.removeAll(QString());
        return told.isEmpty() && role == Qt::ToolTipRole ? text(index) : told.join('\n');
    }
    case Qt::AccessibleTextRole:
        return spoken(index);
    case troubleRole: {
        const auto place = engine::ruleTrouble(now.find, now.replace);
        return place ? place->character : 0;
    }
    case groupsRole:
        return qulonglong(engine::ruleGroups(now.find, now.replace));
    case leftToRightRole:
        return engine::isPattern(ruleKind) && (index.column() == find || index.column() == replace);
    default:
        return {};
    }
}

QVariant RuleModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical) {
        return role == Qt::DisplayRole ? QVariant(QLocale().toString(section + 1)) : QVariant();
    }
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
        return localized(columnTitles[section]);
    case Qt::ToolTipRole:
        return Qt::convertFromPlainText(localized(columnTips[section]), Qt::WhiteSpacePre);
    default:
        return {};
    }
}

bool RuleModel::setData(const QModelIndex &index, const QVariant &value, int role) {
    const int row = index.row();
    const settings::TravelRule now = rule(row);
    engine::RuleReplacement replacement = replacementOf(now);
    if (index.column() == on && role == Qt::CheckStateRole) {
        preferences_.saveCurrentFindReplaceCheckbox(row, value.toInt() == Qt::Checked);
    } else if (role != Qt::EditRole) {
        return false;
    } else if (index.column() == find) {
        preferences_.selectedRow(row);
        preferences_.saveCurrentFindReplace(value.toString().toStdU16String());
    } else if (index.column() == kind) {
        replacement.kind = static_cast<engine::RuleKind>(value.toInt());
        preferences_.endTyping();
        preferences_.selectedRow(row);
        preferences_.controlTextDidChangeReplace(engine::writeReplacement(replacement));
        preferences_.endTyping();
    } else if (index.column() == replace) {
        replacement.argument = value.toString().toStdU16String();
        preferences_.selectedRow(row);
        preferences_.controlTextDidChangeReplace(engine::writeReplacement(replacement));
    } else {
        return false;
    }
    tellChanged(row);
    return true;
}

Qt::ItemFlags RuleModel::flags(const QModelIndex &index) const {
    if (!index.isValid()) {
        return Qt::ItemIsDropEnabled;
    }
    const Qt::ItemFlags all = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled;
    return index.column() == on      ? all | Qt::ItemIsUserCheckable
           : index.column() == found ? all
                                     : all | Qt::ItemIsEditable;
}

} // namespace nerlo::shell
