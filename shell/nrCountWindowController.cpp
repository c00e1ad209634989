#include "shell/nrCountWindowController.h"

#include "shell/LeftOutRules.h"
#include "shell/StepNames.h"
#include "shell/Strings.h"

#include <QGridLayout>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <functional>
#include <ranges>
#include <utility>
#include <vector>

namespace nerlo::shell {

namespace {

constexpr double cornerRadius = 10.0;
constexpr double backgroundOpacity = 0.75;
constexpr std::int64_t defaultDelay = 5; // seconds
constexpr auto positionKey = "udStatisticsDefaultPosition";
constexpr std::size_t toldKinds = 3;

// The screen with the pointer, or the first one; its rectangles with the origin at the bottom left.
struct Screen {
    MainScreen screen;
    double bottom = 0; // the toolkit's y of the origin, whose axis points down

    ScreenPoint fromToolkit(QPoint point) const {
        return {static_cast<double>(point.x()), bottom - point.y()};
    }
};

Screen mainScreen(QPoint pointer) {
    const QScreen *screen = QGuiApplication::screenAt(pointer);
    if (!screen) {
        screen = QGuiApplication::primaryScreen();
    }
    if (!screen) {
        return {};
    }
    const QRectF frame = screen->geometry();
    const QRectF visible = screen->availableGeometry();
    const double bottom = frame.bottom();
    const auto flipped = [&](const QRectF &rect) {
        return ScreenRect{rect.x(), bottom - rect.bottom(), rect.width(), rect.height()};
    };
    return {{flipped(frame), flipped(visible), visible.top() - frame.top()}, bottom};
}

// Of each screen, all of it and what panels leave free, as the toolkit knows them.
using Rooms = std::vector<std::pair<QRect, QRect>>;

Rooms toolkitRooms() {
    Rooms rooms;
    for (const QScreen *screen : QGuiApplication::screens()) {
        rooms.emplace_back(screen->geometry(), screen->availableGeometry());
    }
    return rooms;
}

// From the top left of the screen. A panel that is no layer, such as Plasma's, is known to the
// toolkit alone.
QRect freeRoom(const platform::PopupScreen &screen, const Rooms &rooms) {
    const QRect free(screen.free.x, screen.free.y, screen.freeWidth, screen.freeHeight);
    const QRect all(screen.origin.x, screen.origin.y, screen.width, screen.height);
    for (const auto &[frame, room] : rooms) {
        const QRect both = free & room.translated(-frame.topLeft());
        if (frame == all && !both.isEmpty()) {
            return both;
        }
    }
    return free;
}

} // namespace

QPainterPath nrRoundedView::shape(QSize size) {
    QPainterPath path;
    path.addRoundedRect(QRectF(QPointF(0, 0), size), cornerRadius, cornerRadius);
    return path;
}

void nrRoundedView::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(rect(), Qt::transparent);
    painter.fillPath(shape(size()), QColor::fromRgbF(0, 0, 0, backgroundOpacity));
}

nrTransparentWindow::nrTransparentWindow(const storage::SettingsStore &def_,
                                         platform::MainQueue &mainQueue,
                                         platform::PopupLayer *layer,
                                         platform::PointerPlace *pointer)
    : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                           Qt::NoDropShadowWindowHint | Qt::WindowDoesNotAcceptFocus)
    , def(def_)
    , mainQueue_(mainQueue)
    , layer_(layer)
    , pointer_(nullptr, pointer, mainQueue) {
    setObjectName("countWindow");
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
    setFocusPolicy(Qt::NoFocus);
}

nrTransparentWindow::~nrTransparentWindow() {
    closeCountWindow();
}

void nrTransparentWindow::windowPosition(QPoint pointer) {
    const Screen screen = mainScreen(pointer);
    const ScreenPoint origin = popupOrigin(def.integerForKey(positionKey), screen.screen, width(),
                                           height(), screen.fromToolkit(pointer));
    move(static_cast<int>(std::lround(origin.x)),
         static_cast<int>(std::lround(screen.bottom - origin.y - height())));
}

std::int64_t nrTransparentWindow::delayForCountWindow() const {
    const auto seconds = def.integerForKey("udStatisticsValue");
    return seconds == 0 ? defaultDelay : seconds;
}

void nrTransparentWindow::open() {
    open_ = true;
    adjustSize();
    shown_ = showInLayer();
    if (!shown_) {
        pointer_.start([this](QPoint pointer) {
            windowPosition(pointer);
            show();
        });
    }
    if (def.integerForKey("udStatisticsDelaySwitcher") != 0) {
        // A day is longer than anybody looks; more seconds than that would overflow the clock.
        constexpr std::int64_t longest = 24 * 60 * 60;
        const std::chrono::seconds delay(
            std::clamp<std::int64_t>(delayForCountWindow(), 0, longest));
        close_ = mainQueue_.postAfter(delay, [this] {
            close_ = 0;
            closeCountWindow();
        });
    }
}

std::unique_ptr<platform::ShownPopup> nrTransparentWindow::showInLayer() {
    if (!layer_) {
        return nullptr;
    }
    const auto position = def.integerForKey(positionKey);
    platform::Popup popup;
    popup.width = width();
    popup.height = height();
    popup.atPointer = position == atPointerPosition;
    popup.place = [position, width = width(), height = height(),
                   rooms = toolkitRooms()](const platform::PopupScreen &screen,
                                           std::optional<platform::PopupPoint> pointer) {
        const auto flipped = [&screen](int y) { return static_cast<double>(screen.height - y); };
        const QRect free = freeRoom(screen, rooms);
        const MainScreen main{{0, 0, double(screen.width), double(screen.height)},
                              {double(free.x()), flipped(free.y() + free.height()),
                               double(free.width()), double(free.height())},
                              double(free.y())};
        const ScreenPoint at =
            pointer ? ScreenPoint{double(pointer->x), flipped(pointer->y)} : ScreenPoint{};
        // Where the pointer cannot be found, the popup stands in the first corner.
        const auto origin = popupOrigin(position == atPointerPosition && !pointer ? 0 : position,
                                        main, width, height, at);
        return platform::PopupPoint{
            static_cast<int>(std::lround(origin.x)),
            static_cast<int>(std::lround(screen.height - origin.y - height))};
    };
    popup.draw = [this](int scale) { return picture(scale); };
    popup.closed = [this] { closeCountWindow(); };
    return layer_->show(std::move(popup));
}

platform::PopupPicture nrTransparentWindow::picture(int scale) {
    QImage image(size() * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    // The layer blends the edges, which the mask would cut off.
    render(&image, {}, {}, DrawChildren | IgnoreMask);
    platform::PopupPicture picture{image.width(), image.height(), scale, {}};
    for (int y = 0; y < image.height(); ++y) {
        const auto *row = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        picture.pixels.insert(picture.pixels.end(), row, row + image.width());
    }
    return picture;
}

void nrTransparentWindow::closeCountWindow() {
    if (!std::exchange(open_, false)) {
        return;
    }
    mainQueue_.cancel(std::exchange(close_, 0));
    shown_.reset();
    pointer_.stop();
    hide();
}

void nrTransparentWindow::mousePressEvent(QMouseEvent *event) {
    event->accept();
    closeCountWindow();
}

void nrTransparentWindow::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    // Where nothing blends windows, what is transparent would be black.
    QRegion shape(nrRoundedView::shape(size()).toFillPolygon().toPolygon());
    setMask(shape);
}

nrCountWindowController::nrCountWindowController(const storage::SettingsStore &settings,
                                                 platform::MainQueue &mainQueue,
                                                 platform::PopupLayer *layer,
                                                 platform::PointerPlace *pointer)
    : window_(std::make_unique<nrTransparentWindow>(settings, mainQueue, layer, pointer)) {
    auto *around = new QGridLayout(window_.get());
    around->setContentsMargins(0, 0, 0, 0);
    auto *view = new nrRoundedView;
    around->addWidget(view);
    auto *layout = new QGridLayout(view);
    layout->setContentsMargins(18, 12, 18, 12);
    layout->setHorizontalSpacing(14);
    layout->setVerticalSpacing(3);

    QPalette palette;
    palette.setColor(QPalette::WindowText, Qt::white);
    int row = 0;
    const auto addRow = [&](QLabel *&label, QLabel *&value, const char *name) {
        label = new QLabel;
        value = new QLabel;
        label->setPalette(palette);
        value->setPalette(palette);
        label->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
        value->setAlignment(Qt::AlignLeading | Qt::AlignVCenter);
        value->setObjectName(name);
        value->setTextFormat(Qt::PlainText);
        QFont bold = value->font();
        bold.setBold(true);
        value->setFont(bold);
        layout->addWidget(label, row, 0);
        layout->addWidget(value, row, 1);
        ++row;
    };
    addRow(charsTextField, countCharsTextField, "countChars");
    addRow(spacesTextField, countSpacesTextField, "countSpaces");
    addRow(wordsTextField, countWordsTextField, "countWords");
    addRow(paragraphsTextField, countParagraphsTextField, "countParagraphs");
    const auto addLine = [&](const char *name) {
        auto *line = new QLabel;
        line->setObjectName(name);
        line->setPalette(palette);
        line->setTextFormat(Qt::PlainText);
        line->setWordWrap(true);
        line->hide();
        layout->addWidget(line, row++, 0, 1, 2);
        return line;
    };
    cleanedAs_ = addLine("cleanedAs");
    changedMost_ = addLine("changedMost");
    leftOut_ = addLine("leftOut");
    localizations();
}

nrCountWindowController::~nrCountWindowController() = default;

void nrCountWindowController::countToTextFields(std::u16string characters, std::u16string spaces,
                                                std::u16string words, std::u16string paragraphs) {
    const auto set = [](QLabel *label, QLabel *value, const std::u16string &text) {
        value->setText(QString::fromStdU16String(text));
        value->setAccessibleName(label->text() + ' ' + value->text());
    };
    set(charsTextField, countCharsTextField, characters);
    set(spacesTextField, countSpacesTextField, spaces);
    set(wordsTextField, countWordsTextField, words);
    set(paragraphsTextField, countParagraphsTextField, paragraphs);
}

void nrCountWindowController::tellProfile(std::u16string name) {
    cleanedAs_->setText(
        filled(localized("sCleanedAs"), {isolated(QString::fromStdU16String(name))}));
    cleanedAs_->show();
}

void nrCountWindowController::tellSteps(const std::vector<clipboard::ChangedStep> &steps) {
    struct Kind {
        QString name;
        std::size_t changes = 0;
    };
    std::vector<Kind> kinds; // in the order of the steps
    for (const clipboard::ChangedStep &step : steps) {
        const QString name = shortStepName(*step.operation);
        const auto known = std::ranges::find(kinds, name, &Kind::name);
        Kind &kind = known == kinds.end() ? kinds.emplace_back(name) : *known;
        kind.changes += step.changes;
    }
    std::ranges::stable_sort(kinds, std::ranges::greater(), &Kind::changes);
    QStringList told;
    for (const Kind &kind : kinds | std::views::take(toldKinds)) {
        // A name and its number stay on one line.
        told += QString(kind.name).replace(' ', QChar::Nbsp) + QChar(QChar::Nbsp) +
                QLocale().toString(static_cast<qulonglong>(kind.changes));
    }
    changedMost_->setText(
        filled(localized("sChangedMost"), {told.join(localized("sListBetween"))}));
    changedMost_->show();
}

void nrCountWindowController::tellReport(const engine::CleaningReport &report) {
    leftOut_->setText(leftOutText(report));
    leftOut_->setVisible(!leftOut_->text().isEmpty());
}

void nrCountWindowController::showWindow() {
    window_->open();
}

void nrCountWindowController::localizations() {
    const auto set = [](QLabel *label, std::string_view key) {
        label->setText(filled(QStringLiteral("%@:"), {localized(key)}));
    };
    set(charsTextField, "sChars");
    set(spacesTextField, "sSpaces");
    set(wordsTextField, "sWords");
    set(paragraphsTextField, "sParagraphs");
    window_->setWindowTitle(localized("sCountWindow"));
    window_->setAccessibleName(localized("sCountWindow"));
    window_->setToolTip(localized("sCountWindowTip"));
}

} // namespace nerlo::shell
