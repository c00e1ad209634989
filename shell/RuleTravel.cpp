#include "shell/RuleTravel.h"

#include "shell/Alerts.h"
#include "shell/Strings.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSaveFile>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>

namespace nerlo::shell {

namespace {

constexpr auto filePattern = "*.nerlo-rules";

const char *keyOf(settings::ImportedRule::Effect effect) {
    using Effect = settings::ImportedRule::Effect;
    return effect == Effect::added     ? "sRuleAdded"
           : effect == Effect::changed ? "sRuleChanged"
                                       : "sRuleStays";
}

// What happens to each rule, with what it replaces.
QTableWidget *makePlan(const settings::RuleList &list, const storage::PropertyArray &stored) {
    const auto plan = settings::planImport(list, stored);
    auto *table = new QTableWidget(static_cast<int>(plan.size()), 3);
    table->setObjectName("importPlan");
    table->setAccessibleName(localized("sFindReplaceList"));
    table->setHorizontalHeaderLabels(
        {localized("sRuleEffect"), localized("sRuleColumnFind"), localized("sFindReplaceWith")});
    table->verticalHeader()->hide();
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setTabKeyNavigation(false);
    table->setWordWrap(false);
    for (int row = 0; row < table->rowCount(); ++row) {
        const auto at = static_cast<std::size_t>(row);
        const QString texts[] = {localized(keyOf(plan[at].effect)),
                                 QString::fromStdU16String(list.rules[at].find),
                                 QString::fromStdU16String(list.rules[at].replace)};
        for (int column = 0; column < 3; ++column) {
            auto *cell = new QTableWidgetItem(QString(texts[column]).replace('\n', ' '));
            cell->setToolTip(texts[column]);
            table->setItem(row, column, cell);
        }
    }
    return table;
}

} // namespace

bool confirmImport(const settings::RuleList &list, const storage::PropertyArray &stored,
                   QWidget *parent) {
    QDialog dialog(parent);
    dialog.setObjectName("importDialog");
    dialog.setWindowTitle(localized(Table::menu, "Nerlo Pro"));
    auto *layout = new QVBoxLayout(&dialog);
    auto *title =
        new QLabel(filled(localized("sRulesImportTitle"), {QString::fromStdU16String(list.title)}));
    title->setTextFormat(Qt::PlainText);
    title->setWordWrap(true);
    layout->addWidget(title);
    layout->addWidget(makePlan(list, stored));
    auto *buttons = new QDialogButtonBox;
    auto *import = buttons->addButton(localized("sRulesImportDo"), QDialogButtonBox::AcceptRole);
    QObject::connect(import, &QPushButton::clicked, &dialog, &QDialog::accept);
    QObject::connect(
        buttons->addButton(localized(Table::shortcut, "Cancel"), QDialogButtonBox::RejectRole),
        &QPushButton::clicked, &dialog, &QDialog::reject);
    layout->addWidget(buttons);
    import->setDefault(true);
    import->setFocus();
    dialog.resize(620, 360);
    const bool accepted = dialog.exec() == QDialog::Accepted;
    giveBackTheKeyboard(parent);
    return accepted;
}

std::optional<settings::RuleList> readRuleFile(const QString &path, QWidget *parent) {
    QFile file(path);
    const bool open = file.open(QFile::ReadOnly);
    // One byte more than there may be tells a file that is too long.
    const QByteArray bytes =
        open ? file.read(qint64(settings::mostRuleListBytes) + 1) : QByteArray();
    auto parsed = settings::parseRuleList({bytes.data(), static_cast<std::size_t>(bytes.size())});
    if (!parsed.list) {
        const QString why = open ? QString::fromStdString(parsed.error) : file.errorString();
        runAlert({Alert::Style::warning,
                  localized("sRulesUnreadable"),
                  path + "\n" + why,
                  {localized("OK")}},
                 parent);
    } else if (path.startsWith(':')) {
        const QString title = QString::fromStdU16String(parsed.list->title);
        parsed.list->title = localized(title.toStdString()).toStdU16String();
    }
    return std::move(parsed.list);
}

std::optional<QString> askForRuleFile(QWidget *parent) {
    const QString path =
        QFileDialog::getOpenFileName(parent, localized("sRulesImport"), {}, filePattern);
    giveBackTheKeyboard(parent);
    return path.isEmpty() ? std::nullopt : std::optional(path);
}

void exportRuleFile(settings::RuleList list, QWidget *parent) {
    QFileDialog dialog(parent, localized("sRulesExport"), {}, filePattern);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("nerlo-rules");
    const bool accepted = dialog.exec() == QDialog::Accepted;
    giveBackTheKeyboard(parent);
    if (!accepted) {
        return;
    }
    const QString path = dialog.selectedFiles().value(0);
    list.title = QFileInfo(path).completeBaseName().toStdU16String();
    const std::string text = settings::writeRuleList(list);
    QSaveFile file(path);
    if (!file.open(QFile::WriteOnly) ||
        file.write(text.data(), qint64(text.size())) != qint64(text.size()) || !file.commit()) {
        runAlert({Alert::Style::warning,
                  localized("sRulesNotWritten"),
                  path + "\n" + file.errorString(),
                  {localized("OK")}},
                 parent);
    }
}

std::vector<std::pair<QString, QString>> starterLists() {
    std::vector<std::pair<QString, QString>> lists;
    for (const QFileInfo &info : QDir(":/rules").entryInfoList({filePattern})) {
        if (const auto list = readRuleFile(info.filePath(), nullptr)) {
            lists.emplace_back(QString::fromStdU16String(list->title), info.filePath());
        }
    }
    std::ranges::sort(lists, [](const auto &a, const auto &b) {
        return a.first.localeAwareCompare(b.first) < 0;
    });
    return lists;
}

} // namespace nerlo::shell
