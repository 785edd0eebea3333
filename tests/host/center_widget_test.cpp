#include "bwaf/center_widget.h"
#include "support/test_support.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

QStringList sent(QSignalSpy &spy)
{
    QStringList keys;
    while (!spy.isEmpty())
        keys.append(spy.takeFirst().at(0).toString());
    return keys;
}

const QString kHome = QStringLiteral("module.home");
const QString kSetup = QStringLiteral("module.setup");

} // namespace

TEST(CenterWidget, RefusesWhatItCannotFindAgain)
{
    bwaf::CenterWidget center;
    QWidget unwanted;
    EXPECT_TRUE(center.addPage(new QWidget, kHome));
    EXPECT_FALSE(center.addPage(nullptr, kSetup));
    EXPECT_FALSE(center.addPage(&unwanted, QString()));
    EXPECT_FALSE(center.addPage(&unwanted, kHome));
    EXPECT_EQ(unwanted.parent(), nullptr);
    EXPECT_FALSE(center.setCurrentPage(kSetup));
    EXPECT_EQ(center.pageKeys(), QStringList({kHome}));
}

TEST(CenterWidget, ForgetsAPageThatEndsElsewhere)
{
    bwaf::CenterWidget center;
    center.addPage(new QWidget, kHome);
    center.addPage(new QWidget, kSetup);
    QSignalSpy changed(&center, &bwaf::CenterWidget::currentPageChanged);
    EXPECT_TRUE(center.setCurrentPage(kSetup));
    EXPECT_TRUE(center.setCurrentPage(kHome));
    delete center.page(kHome);
    EXPECT_EQ(center.pageKeys(), QStringList({kSetup}));
    EXPECT_EQ(sent(changed), QStringList({kSetup, kHome, kSetup}));
    center.clearPages();
    EXPECT_TRUE(center.pageKeys().isEmpty());
    EXPECT_EQ(sent(changed), QStringList({QString()}));
}
