#include "shell/nrCountWindowController.h"

#include "shell/PopupPlacement.h"
#include "tests/fakes/MemoryMainQueue.h"
#include "tests/fakes/MemorySettingsStore.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QTest>

namespace nerlo::shell {
namespace {

using namespace std::chrono_literals;

constexpr double width = 200;
constexpr double height = 100;

TEST(PopupPlacement, StandsWhereTheListSays) {
    // A panel of 30 at the top, one of 50 at the left.
    constexpr MainScreen screen{{0, 0, 1000, 800}, {50, 0, 950, 770}, 30};
    constexpr MainScreen none{};
    const struct {
        const char *shows;
        std::int64_t position;
        MainScreen screen;
        ScreenPoint pointer;
        ScreenPoint expected;
    } rows[] = {
        {"bottom left touches the panel", 0, screen, {}, {50, 0}},
        {"bottom right", 1, screen, {}, {800, 0}},
        {"top left", 2, screen, {}, {50, 670}},
        {"top right", 3, screen, {}, {800, 670}},
        {"centre: above the true one", 4, screen, {}, {400, 435}},
        {"pointer: hangs below it", 5, screen, {300, 400}, {300, 300}},
        {"pointer at the top: below the panel", 5, screen, {300, 795}, {300, 670}},
        {"pointer at the bottom: not below the screen", 5, screen, {300, 20}, {300, 0}},
        {"pointer at the right: pulled left", 5, screen, {990, 400}, {800, 300}},
        {"pointer left of the screen", 5, screen, {-40, 400}, {0, 300}},
        {"unknown number: the first", 6, screen, {}, {50, 0}},
        {"negative number: the first", -1, screen, {}, {50, 0}},
        {"no screen: a corner", 0, none, {}, {0, 0}},
        {"no screen: the centre", 4, none, {}, {-100, 50}},
        {"no screen: the pointer", 5, none, {7, 7}, {-200, 0}},
    };
    for (const auto &row : rows) {
        const auto origin = popupOrigin(row.position, row.screen, width, height, row.pointer);
        EXPECT_EQ(origin, row.expected) << row.shows << ": " << origin.x << ", " << origin.y;
    }
}

class Popup : public testing::Test {
  protected:
    test::MemorySettingsStore store;
    test::MemoryMainQueue queue;
    nrCountWindowController controller{store, queue};

    QString text(const char *name) { return controller.window().findChild<QLabel *>(name)->text(); }
};

TEST_F(Popup, ShowsTheTextsInTheCorner) {
    store.set("udStatisticsDefaultPosition", 3);
    controller.countToTextFields(u"1,234", u"56", u"<b>7", u"8");
    controller.showWindow();
    EXPECT_EQ(text("countChars"), "1,234");
    EXPECT_EQ(text("countSpaces"), "56");
    EXPECT_EQ(text("countWords"), "<b>7");
    EXPECT_EQ(text("countParagraphs"), "8");
    EXPECT_EQ(text("leftOut"), "");
    EXPECT_EQ(text("cleanedAs"), "");
    controller.tellProfile(u"<b>\u05D3\u05D5\u05D0\u05E8");
    EXPECT_EQ(text("cleanedAs"), "Cleaned as: \u2068<b>\u05D3\u05D5\u05D0\u05E8\u2069");
    const auto step = [](const char *operation, std::size_t changes) {
        return clipboard::ChangedStep{engine::findOperation(operation), changes};
    };
    EXPECT_EQ(text("changedMost"), "");
    controller.tellSteps({step("trim", 1), step("remove-tags", 1), step("change-quotes", 4),
                          step("join-lines", 1), step("collapse-spaces", 1200)});
    EXPECT_EQ(text("changedMost"), u"Changed: Spaces\u00a01,201, Quotes\u00a04, Tags\u00a01"_qs);
    using Why = engine::PatternFailure::Why;
    controller.tellReport(
        {{3, Why::GivenUp, {}}, {7, Why::DoesNotCompile, {}}, {9, Why::GivenUp, {}}});
    EXPECT_TRUE(text("leftOut").endsWith("3, 9"));
    controller.tellReport({});
    auto &window = controller.window();
    EXPECT_TRUE(window.isVisible());
    EXPECT_FALSE(window.isActiveWindow());
    EXPECT_EQ(window.geometry().topRight(),
              QGuiApplication::primaryScreen()->availableGeometry().topRight());
}

TEST_F(Popup, ClosesByItselfOnlyWhenAsked) {
    const struct {
        const char *shows;
        int switched;
        int seconds;
        int stillOpenAfter; // seconds
        bool closesThen;
    } rows[] = {
        {"off: stays", 0, 3, 86400, false},
        {"three seconds", 1, 3, 2, true},
        {"nothing stored: five seconds", 1, 0, 4, true},
        {"nonsense below zero: at once", 1, -7, -1, true},
    };
    for (const auto &row : rows) {
        store.set("udStatisticsDelaySwitcher", row.switched);
        store.set("udStatisticsValue", row.seconds);
        nrCountWindowController popup(store, queue);
        popup.showWindow();
        if (row.stillOpenAfter > 0) {
            queue.advance(std::chrono::seconds(row.stillOpenAfter));
            EXPECT_TRUE(popup.window().isVisible()) << row.shows;
        }
        queue.advance(1s);
        EXPECT_EQ(popup.window().isVisible(), !row.closesThen) << row.shows;
    }
}

TEST_F(Popup, AClickClosesItAndTheDelayIsForgotten) {
    store.set("udStatisticsDelaySwitcher", 1);
    controller.showWindow();
    QTest::mouseClick(&controller.window(), Qt::LeftButton, {}, {5, 40});
    EXPECT_FALSE(controller.window().isVisible());
    EXPECT_EQ(queue.delayedCount(), 0u);
    controller.showWindow();
    queue.advance(4s);
    EXPECT_TRUE(controller.window().isVisible());
}

class FakeLayer final : public platform::PopupLayer {
  public:
    std::unique_ptr<platform::ShownPopup> show(platform::Popup popup) override {
        struct Shown final : platform::ShownPopup {
            explicit Shown(int &count)
                : count_(count) {
                ++count_;
            }
            ~Shown() override { --count_; }
            int &count_;
        };
        last = std::move(popup);
        return std::make_unique<Shown>(shown);
    }
    std::string description() const override { return {}; }

    platform::Popup last;
    int shown = 0;
};

// Other places than these are looked at in a real session.
TEST_F(Popup, ALayerGetsPlacesAndPicturesInItsOwnCoordinates) {
    FakeLayer layer;
    // As above: a panel of 30 at the top, one of 50 at the left.
    constexpr platform::PopupScreen screen{1000, 800, {50, 30}, 950, 770};
    store.set("udStatisticsDefaultPosition", 5);
    nrCountWindowController popup(store, queue, &layer);
    popup.showWindow();
    EXPECT_FALSE(popup.window().isVisible());
    const auto &asked = layer.last;
    EXPECT_TRUE(asked.atPointer);
    const auto place = [&](std::optional<platform::PopupPoint> pointer) {
        const auto at = asked.place(screen, pointer);
        return std::pair(at.x, at.y);
    };
    EXPECT_EQ(place({}), std::pair(50, 800 - asked.height));
    EXPECT_EQ(place({{300, 400}}), std::pair(300, 400));
    EXPECT_EQ(place({{300, 2}}), std::pair(300, 30));
    const auto picture = asked.draw(2);
    ASSERT_EQ(picture.pixels.size(), std::size_t(4 * asked.width * asked.height));
    EXPECT_EQ(picture.width, 2 * asked.width);
    EXPECT_EQ(picture.pixels[0], 0u) << "round";
    EXPECT_EQ(picture.pixels[picture.pixels.size() / 2], 0xbf000000u);
    EXPECT_EQ(layer.shown, 1);
    asked.closed();
    EXPECT_EQ(layer.shown, 0);
    EXPECT_FALSE(popup.window().isOpen());
}

} // namespace
} // namespace nerlo::shell
