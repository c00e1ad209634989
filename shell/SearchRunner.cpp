#include "shell/SearchRunner.h"

#include "engine/Operations.h"
#include "settings/SettingsKeys.h"
#include "shell/BusService.h"
#include "shell/ChooserItems.h"
#include "shell/Strings.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMetaType>
#include <QStringList>
#include <algorithm>
#include <optional>

namespace nerlo::shell {

// Must be in the namespace of the types, or the meta type system does not find them.
QDBusArgument &operator<<(QDBusArgument &argument, const RunnerMatch &match) {
    argument.beginStructure();
    argument << match.id << match.text << match.icon << match.kind << match.relevance
             << match.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, RunnerMatch &match) {
    argument.beginStructure();
    argument >> match.id >> match.text >> match.icon >> match.kind >> match.relevance >>
        match.properties;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const RunnerAction &action) {
    argument.beginStructure();
    argument << action.id << action.text << action.icon;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, RunnerAction &action) {
    argument.beginStructure();
    argument >> action.id >> action.text >> action.icon;
    argument.endStructure();
    return argument;
}

namespace {

const QString path = busObjectPath + QStringLiteral("/Runner");
const QString cleanAll = QStringLiteral("clean");

// Kinds of matches.
constexpr int possible = 30;
constexpr int exact = 100;

// As much of a word for cleaning shows that one is being typed.
constexpr qsizetype wordBegun = 3;

struct Query {
    int kind;
    QString rest; // which operation
};

// Nothing for what is not meant for this program.
std::optional<Query> parse(const QString &text) {
    const QString query = text.toCaseFolded().simplified();
    const QString first = query.section(' ', 0, 0);
    // The English words also elsewhere: they are those of the command line.
    const QString words = localized("sRunnerWords").toCaseFolded() + " clean nerlo";
    for (const QString &word : words.split(' ', Qt::SkipEmptyParts)) {
        if (first == word) {
            return Query{exact, query.section(' ', 1)};
        }
        if (first == query && first.size() >= wordBegun && word.startsWith(first)) {
            return Query{possible, {}};
        }
    }
    return std::nullopt;
}

} // namespace

SearchRunner::SearchRunner(Program &program)
    : program_(program) {
    qDBusRegisterMetaType<RunnerMatch>();
    qDBusRegisterMetaType<QList<RunnerMatch>>();
    qDBusRegisterMetaType<RunnerAction>();
    qDBusRegisterMetaType<QList<RunnerAction>>();
    QDBusConnection::sessionBus().registerObject(path, this, QDBusConnection::ExportAllSlots);
}

SearchRunner::~SearchRunner() {
    QDBusConnection::sessionBus().unregisterObject(path);
}

QList<RunnerMatch> SearchRunner::Match(const QString &text) {
    const auto query = parse(text);
    QList<RunnerMatch> matches;
    if (!query) {
        return matches;
    }
    const auto add = [&](const QString &id, const QString &title) {
        // The order is ours: each is a little less relevant than the one before.
        matches.push_back(
            {id, title, applicationId, query->kind, 1.0 / double(matches.size() + 1)});
    };
    if (query->rest.isEmpty()) {
        add(cleanAll, localized(settings::cleanHotKey));
    }
    if (query->kind == exact) {
        const auto items = operationItems();
        for (const auto place : placesOf(items, query->rest)) {
            add(items[place].keywords, items[place].title);
        }
    }
    return matches;
}

void SearchRunner::Run(const QString &id, const QString &) {
    if (id == cleanAll) {
        program_.clean();
    } else if (const auto *operation = engine::findOperation(std::string_view(id.toStdString()))) {
        program_.runOperation(operation->index);
    } else {
        sendErrorReply(QDBusError::InvalidArgs, "there is no operation '" + id + "'");
    }
}

} // namespace nerlo::shell
