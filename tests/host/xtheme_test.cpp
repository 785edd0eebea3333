#include "ix/xtheme.h"
#include "support/test_support.h"

#include <QApplication>
#include <QLabel>
#include <QSet>

#include <gtest/gtest.h>

#include <cmath>

using namespace ix::xtheme;

namespace {

constexpr double kReadable = 4.5; // contrast that text needs

class Theme : public ::testing::Test
{
protected:
    void SetUp() override { apply(qApp); }
    void TearDown() override { qApp->setStyleSheet(QString()); }
};

double luminance(const QColor &color)
{
    const auto part = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const double first = luminance(a), second = luminance(b);
    return (qMax(first, second) + 0.05) / (qMin(first, second) + 0.05);
}

int coloured(const QPixmap &picture, const QColor &color)
{
    const QImage image = picture.toImage().convertToFormat(QImage::Format_ARGB32);
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == color ? 1 : 0;
    return count;
}

} // namespace

TEST_F(Theme, StatesAreReadableAndDiffer)
{
    QSet<QRgb> grounds;
    for (const State state :
         {State::None, State::Running, State::Attention, State::Fault, State::Manual, State::Stopped}) {
        EXPECT_GE(contrast(color(state), textColor(state)), kReadable) << stateName(state);
        grounds.insert(color(state).rgb());
    }
    EXPECT_EQ(grounds.size(), 6);
}

TEST_F(Theme, AStateShowsOnAWidgetThatIsVisibleAlready)
{
    QLabel label(QStringLiteral(" "));
    label.resize(40, 40);
    label.show();
    EXPECT_EQ(coloured(label.grab(), color(State::Running)), 0);
    setState(&label, State::Running);
    EXPECT_GT(coloured(label.grab(), color(State::Running)), 1000);
    setState(&label, State::Fault);
    EXPECT_EQ(coloured(label.grab(), color(State::Running)), 0);
    EXPECT_GT(coloured(label.grab(), color(State::Fault)), 1000);
    setState(&label, State::None);
    EXPECT_EQ(coloured(label.grab(), color(State::Fault)), 0);
}
