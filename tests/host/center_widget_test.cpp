#include "bwaf/bmodule.h"
#include "shell/center_provider.h"
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

TEST(CenterWidget, ShowsTheFirstPageAndThenTheChosenOne)
{
    bwaf::CenterWidget center;
    QSignalSpy changed(&center, &bwaf::CenterWidget::currentPageChanged);
    auto *home = new QWidget;
    auto *setup = new QWidget;
    EXPECT_TRUE(center.addPage(home, kHome));
    EXPECT_TRUE(center.addPage(setup, kSetup));
    EXPECT_EQ(center.pageKeys(), QStringList({kHome, kSetup}));
    EXPECT_EQ(center.currentPage(), kHome);
    EXPECT_TRUE(center.setCurrentPage(kSetup));
    EXPECT_TRUE(center.setCurrentPage(kSetup));
    EXPECT_EQ(sent(changed), QStringList({kHome, kSetup}));
    center.show();
    EXPECT_TRUE(setup->isVisible());
    EXPECT_FALSE(home->isVisible());
}

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
    delete center.page(kHome);
    EXPECT_EQ(center.pageKeys(), QStringList({kSetup}));
    EXPECT_EQ(center.page(kHome), nullptr);
    EXPECT_EQ(sent(changed), QStringList({kSetup}));
    center.clearPages();
    EXPECT_TRUE(center.pageKeys().isEmpty());
    EXPECT_EQ(sent(changed), QStringList({QString()}));
}

TEST(CenterWidget, IsMadeForModulesWhenTheHostGivesNone)
{
    bwaf::BModule module;
    bwaf::CenterWidget *made = instantiatedCenterWidget(&module);
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(instantiatedCenterWidget(&module), made);
    bwaf::CenterWidget given;
    host::setCenterWidget(&given);
    EXPECT_EQ(instantiatedCenterWidget(&module), &given);
    host::setCenterWidget(nullptr);
    EXPECT_EQ(instantiatedCenterWidget(&module), made);
}
