#include "shortcuts/view/ShortcutAccessible.h"

#include "shortcuts/view/nrShortcutView.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace nerlo::shortcuts {

namespace {

const QString deleteAction = QStringLiteral("Delete");

class ShortcutAccessible final : public QAccessibleWidget {
  public:
    explicit ShortcutAccessible(nrShortcutView *view)
        : QAccessibleWidget(view, QAccessible::Button) {}

    QString text(QAccessible::Text kind) const override {
        const QString own = QAccessibleWidget::text(kind);
        switch (kind) {
        case QAccessible::Name:
            return own.isEmpty() ? view().spokenValue()
                                 : own + QStringLiteral(", ") + view().spokenValue();
        case QAccessible::Value:
            return view().spokenValue();
        case QAccessible::Description:
            return view().warning().isEmpty() ? own : view().warning();
        default:
            return own;
        }
    }
    QAccessible::State state() const override {
        auto state = QAccessibleWidget::state();
        state.pressed = view().recording();
        return state;
    }
    QStringList actionNames() const override {
        QStringList names;
        if (view().isEnabled()) {
            names << pressAction();
            if (view().shortcutValue()) {
                names << deleteAction;
            }
            names << setFocusAction();
        }
        return names;
    }
    QString localizedActionName(const QString &name) const override {
        return QAccessibleWidget::localizedActionName(name);
    }
    void doAction(const QString &name) override {
        if (name == pressAction() && view().isEnabled()) {
            view().setFocus();
            view().setRecording(!view().recording());
        } else if (name == deleteAction && view().isEnabled()) {
            view().setRecording(false);
            view().record(std::nullopt);
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

  private:
    nrShortcutView &view() const { return *static_cast<nrShortcutView *>(widget()); }
};

QAccessibleInterface *make(const QString &, QObject *object) {
    auto *view = qobject_cast<nrShortcutView *>(object);
    return view ? new ShortcutAccessible(view) : nullptr;
}

} // namespace

void installShortcutAccessible() {
    QAccessible::installFactory(make);
}

} // namespace nerlo::shortcuts
