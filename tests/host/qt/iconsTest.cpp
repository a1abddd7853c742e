#include "qt/icons.h"

#include <gtest/gtest.h>

#include <QColor>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>

#include <cmath>
#include <set>

namespace qncal::host {
namespace {

QImage drawn(int number)
{
    QImage image(48, 48, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    statusIcon(number).paint(&painter, image.rect());
    return image;
}

double luminance(const QColor& colour)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

/// The contrast ratio of WCAG 2.
double contrast(const QColor& a, const QColor& b)
{
    const double first = luminance(a) + 0.05;
    const double second = luminance(b) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

TEST(StatusIconsTest, EveryNumberHasAPictureOfItsOwn)
{
    std::vector<QImage> seen;
    std::set<QString> names;
    for (int number = 1; number <= statusIconCount; ++number) {
        const QImage image = drawn(number);
        QImage empty = image;
        empty.fill(Qt::transparent);
        EXPECT_NE(image, empty) << number;
        EXPECT_FALSE(seen.end() != std::find(seen.begin(), seen.end(), image)) << number;
        seen.push_back(image);
        EXPECT_FALSE(statusIconName(number).isEmpty());
        names.insert(statusIconName(number));
    }
    EXPECT_EQ(names.size(), static_cast<std::size_t>(statusIconCount));
}

TEST(StatusIconsTest, OtherNumbersHaveNone)
{
    EXPECT_TRUE(statusIcon(0).isNull());
    EXPECT_TRUE(statusIcon(statusIconCount + 1).isNull());
    EXPECT_TRUE(statusIconName(0).isEmpty());
}

TEST(StatusIconsTest, ThePicturesSaySoThemselvesAndShowOnLightAndDark)
{
    // What WCAG 2 asks of graphics.
    constexpr double enough = 3.0;
    for (int number = 1; number <= statusIconCount; ++number) {
        QFile file(QStringLiteral(":/qncal/icons/status%1.svg").arg(number, 2, 10, QChar('0')));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << number;
        const QString svg = QString::fromUtf8(file.readAll());
        EXPECT_TRUE(svg.contains("<title>" + statusIconName(number) + "</title>")) << number;
        auto colours = QRegularExpression("#[0-9a-f]{6}").globalMatch(svg);
        ASSERT_TRUE(colours.hasNext()) << number;
        while (colours.hasNext()) {
            const QColor colour(colours.next().captured());
            EXPECT_GE(contrast(colour, Qt::white), enough) << number;
            EXPECT_GE(contrast(colour, QColor(30, 30, 30)), enough) << number;
        }
    }
}

} // namespace
} // namespace qncal::host
