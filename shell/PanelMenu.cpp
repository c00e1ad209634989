#include "shell/PanelMenu.h"

#include <QAction>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMetaType>
#include <QKeySequence>
#include <utility>

namespace nerlo::shell {

namespace {

const auto path = QStringLiteral("/org/nerlo/NerloPro/Panel");

// What the toolkit shows for a title with letters marked by "&".
QString shownText(const QString &title) {
    QString shown;
    for (qsizetype at = 0; at < title.size(); ++at) {
        if (title[at] == '&' && at + 1 < title.size()) {
            ++at;
        }
        shown += title[at];
    }
    return shown;
}

unsigned flagsOf(const QAction &action) {
    const std::pair<bool, unsigned> rows[] = {
        {action.isEnabled(), PanelRow::enabled},       {action.isCheckable(), PanelRow::checkable},
        {action.isChecked(), PanelRow::checked},       {action.isSeparator(), PanelRow::separator},
        {action.menu() != nullptr, PanelRow::submenu},
    };
    unsigned flags = 0;
    for (const auto &[set, flag] : rows) {
        flags |= set ? flag : 0;
    }
    return flags;
}

// Only hot keys: the others are for the windows of this program.
QString hotKeyOf(const QAction &action) {
    return action.shortcutContext() == Qt::WidgetShortcut
               ? action.shortcut().toString(QKeySequence::NativeText)
               : QString();
}

} // namespace

QDBusArgument &operator<<(QDBusArgument &argument, const PanelRow &row) {
    argument.beginStructure();
    argument << row.id << row.depth << row.flags << row.title << row.keys;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, PanelRow &row) {
    argument.beginStructure();
    argument >> row.id >> row.depth >> row.flags >> row.title >> row.keys;
    argument.endStructure();
    return argument;
}

PanelMenu::PanelMenu(QMenu &menu, QString panel)
    : menu_(menu)
    , panel_(std::move(panel)) {
    qDBusRegisterMetaType<PanelRow>();
    qDBusRegisterMetaType<QList<PanelRow>>();
    QDBusConnection::sessionBus().registerObject(path, this,
                                                 QDBusConnection::ExportScriptableSlots |
                                                     QDBusConnection::ExportScriptableSignals);
}

PanelMenu::~PanelMenu() {
    QDBusConnection::sessionBus().unregisterObject(path);
}

void PanelMenu::setIcon(const QString &icon, const QString &title) {
    if (icon != icon_ || title != title_) {
        icon_ = icon;
        title_ = title;
        emit IconChanged(icon_, title_);
    }
}

QString PanelMenu::Rows(QString &title, QList<PanelRow> &rows) {
    if (!admits()) {
        return {};
    }
    actions_.removeIf([](const auto &entry) { return entry.value().isNull(); });
    collect(menu_, 0, rows);
    title = title_;
    return icon_;
}

void PanelMenu::Run(int id) {
    if (!admits()) {
        return;
    }
    if (QAction *action = actions_.value(id)) {
        // Not here, where a window that waits for an answer would keep the caller waiting, too.
        QMetaObject::invokeMethod(action, &QAction::trigger, Qt::QueuedConnection);
    }
}

// The menu names the beginning of a copied text.
bool PanelMenu::admits() {
    const bool admitted =
        connection().interface()->serviceOwner(panel_).value() == message().service();
    if (!admitted) {
        sendErrorReply(QDBusError::AccessDenied, "only for the panel");
    }
    return admitted;
}

int PanelMenu::idOf(QAction &action) {
    const int known = actions_.key(&action, 0);
    if (known == 0) {
        actions_.insert(++lastId_, &action);
    }
    return known == 0 ? lastId_ : known;
}

void PanelMenu::collect(const QMenu &menu, unsigned depth, QList<PanelRow> &rows) {
    for (QAction *action : menu.actions()) {
        if (!action->isVisible()) {
            continue;
        }
        rows.push_back(
            {idOf(*action), depth, flagsOf(*action), shownText(action->text()), hotKeyOf(*action)});
        if (action->menu()) {
            collect(*action->menu(), depth + 1, rows);
        }
    }
}

} // namespace nerlo::shell
