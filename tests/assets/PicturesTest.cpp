#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

namespace nerlo {
namespace {

QImage drawn(const QString &file, QSize size) {
    QSvgRenderer renderer(file);
    EXPECT_TRUE(renderer.isValid()) << file.toStdString();
    QImage image(size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

int covered(const QImage &image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixelColor(x, y).alpha() > 127;
        }
    }
    return count;
}

TEST(Pictures, QtDrawsTheTrayIconsInOneColourAndEachStateDiffers) {
    const QStringList names = {"logo-menubar", "logo-menubar-automatic", "logo-menubar-problem"};
    for (const bool white : {false, true}) {
        std::vector<QImage> seen;
        for (const auto &name : names) {
            const auto image =
                drawn(":/icons/" + name + (white ? "-white.svg" : ".svg"), QSize(16, 16));
            EXPECT_GT(covered(image), 50) << name.toStdString();
            for (int y = 0; y < 16; ++y) {
                for (int x = 0; x < 16; ++x) {
                    const QColor pixel = image.pixelColor(x, y);
                    if (pixel.alpha() > 250) {
                        EXPECT_EQ(pixel.lightness() > 127, white) << name.toStdString();
                    }
                }
            }
            EXPECT_EQ(std::ranges::count(seen, image), 0) << name.toStdString();
            seen.push_back(image);
        }
    }
}

TEST(Pictures, QtDrawsTheApplicationIconAndAPictureForEachTip) {
    EXPECT_GT(covered(drawn(":/icons/org.nerlo.NerloPro.svg", QSize(48, 48))), 48 * 48 / 2);
    EXPECT_EQ(QDir(":/tips").entryList().size(), 6);
    for (int tip = 1; tip <= 6; ++tip) {
        const auto image = drawn(QString(":/tips/tip%1.svg").arg(tip), QSize(320, 180));
        EXPECT_GT(covered(image), 320 * 180 / 10) << tip;
    }
}

} // namespace
} // namespace nerlo
